#pragma once

#include <map>
#include <stdexcept>
#include <string>

namespace quorva::config {

/// The configuration file can't be read.
class IPSError : public std::runtime_error {
public:
    explicit IPSError(const std::string& text) : std::runtime_error(text), message(text) {}

    std::string message;
};

/// The keys and values of the configuration file, as it was when the program started: lines of
/// "key = value", with any white space, and comments that begin with '#'. Other lines are ignored.
/// If a key occurs twice, the first line counts.
class ConfigFile {
public:
    /// Reads the whole file. Throws IPSError if it can't.
    explicit ConfigFile(const std::string& path);
    virtual ~ConfigFile() = default;

    /// Creates the backup file, which deliberately stays empty.
    /// @return false if it, or the configuration file, can't be opened
    virtual bool backup();

    const std::map<std::string, std::string>& getKeyVals() const { return keyVals; }

private:
    void readLine(std::string line);

    std::map<std::string, std::string> keyVals;
};

} // namespace quorva::config
