#include "Framework/config/ConfigFile.h"

#include "Framework/Files.h"
#include "Framework/GameInfo.h"
#include "Framework/Utility.h"

#include <boost/algorithm/string/trim.hpp>

#include <fstream>

namespace quorva::config {

ConfigFile::ConfigFile(const std::string& path) {
    const std::string failure = "Unable to load config file: " + path;
    std::ifstream file = utility::openForReading(path, utility::largest_text_file);
    if (!file) throw IPSError(failure);
    try {
        std::string line;
        while (std::getline(file, line))
            readLine(line);
    } catch (const std::exception&) {
        throw IPSError(failure);
    }
}

void ConfigFile::readLine(std::string line) {
    boost::algorithm::trim(line);
    if (line.empty() || line.front() == '#') return;
    std::vector<std::string> fields = utility::splitCompressed(line, "=");
    utility::removeEmptyStringsFromVector(fields);
    if (fields.size() != 2) return;
    utility::trimStringsInVector(fields);
    keyVals.insert({fields[0], fields[1]});
}

bool ConfigFile::backup() {
    const std::string& path = GameInfo::Instance().configFile;
    // Deliberate: no line is copied. An old backup must not look like a current one.
    const bool emptied = utility::replaceContents(path + ".bak", "");
    return emptied && utility::openForReading(path).good();
}

} // namespace quorva::config
