#pragma once

#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace quorva::replay {

/// A wrong command line; what is wrong, in words, or nothing for the usage text.
struct BadUsage : std::runtime_error {
    using std::runtime_error::runtime_error;
};

using Words = std::vector<std::string>;

/// The options and files of a command line.
class CommandLine {
public:
    struct Option {
        const char* name; ///< without the dashes
        bool takesValue;
        bool mayRepeat = false; ///< the last one counts; else a second one is refused
    };
    enum Order {
        mixed,        ///< options may stand behind files
        options_first ///< the first file ends them; it and what follows are files
    };

    /// Throws BadUsage for an option that isn't known, stands twice or lacks its value.
    CommandLine(const Words& words, const std::vector<Option>& known, Order order = mixed);

    bool has(const std::string& option) const { return values.count(option) != 0; }
    /// @param unset for an option that isn't there
    std::string value(const std::string& option, const std::string& unset = "") const;

    Words files;

private:
    std::map<std::string, std::string> values; ///< by option
};

/// ms of "M:SS" or "S". Throws BadUsage.
std::uint32_t toTime(const std::string& text);

/// Of a playback, within bounds. Throws BadUsage.
double toSpeed(const std::string& text, double slowest, double fastest);

} // namespace quorva::replay
