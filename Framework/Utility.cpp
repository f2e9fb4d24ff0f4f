#include "Framework/Utility.h"

#include <boost/algorithm/string.hpp>

namespace quorva::utility {

void trimStringsInVector(std::vector<std::string>& strings) {
    for (std::string& text : strings)
        boost::algorithm::trim(text);
}

void removeEmptyStringsFromVector(std::vector<std::string>& strings) {
    strings.erase(std::remove(strings.begin(), strings.end(), std::string()), strings.end());
}

std::vector<std::string> splitCompressed(const std::string& text, const char* separators) {
    std::vector<std::string> fields;
    boost::algorithm::split(fields, text, boost::algorithm::is_any_of(separators),
                            boost::algorithm::token_compress_on);
    return fields;
}

} // namespace quorva::utility
