// The settings on the command line, and the texts that tell of them.

#include "Framework/Config.h"
#include "Framework/Utility.h"

#include <boost/algorithm/string/trim.hpp>

#include <algorithm>
#include <iostream>

namespace quorva::config {

namespace {

enum class Outcome { start, usage_and_start, usage_and_stop, help };

/// `-x=value`, `--Name=value`.
Outcome takeWithValue(ConfigClass& config, const std::string& argument) {
    if (argument.front() != '-') return Outcome::start; // deliberate: passed over in silence
    std::vector<std::string> fields = utility::splitCompressed(argument, "=");
    fields.erase(std::remove_if(fields.begin(), fields.end(),
                                [](const std::string& f) { return f.empty() || f == " "; }),
                 fields.end());
    if (fields.size() != 2) return Outcome::usage_and_start;
    utility::trimStringsInVector(fields);
    const std::string& name = fields[0];
    if (name.size() < 2) return Outcome::usage_and_stop;
    if (name[1] != '-') {
        if (name.size() != 2) return Outcome::usage_and_stop;
        config.setSomeValue(name[1], fields[1]);
        return Outcome::start;
    }
    if (name.size() <= 2) return Outcome::usage_and_stop;
    config.setSomeValue(name.substr(2), fields[1]);
    return Outcome::start;
}

/// `-x`, `--Name`. The value is the argument itself, which counts as 0.
Outcome takeBare(ConfigClass& config, const std::string& argument) {
    if (argument.size() < 2 || argument[0] != '-') return Outcome::usage_and_stop;
    if (argument == "-h" || argument == "--help") return Outcome::help;
    if (argument.size() == 2)
        config.setSomeValue(argument[1], argument);
    else if (argument[1] == '-')
        config.setSomeValue(argument.substr(2), argument);
    else
        return Outcome::usage_and_stop;
    return Outcome::start;
}

Outcome take(ConfigClass& config, const std::string& argument) {
    try {
        return argument.find('=') != std::string::npos ? takeWithValue(config, argument)
                                                       : takeBare(config, argument);
    } catch (const ConfigValueException&) {
        return Outcome::usage_and_stop;
    }
}

/// Headings of the help in their order, with what a name must be shorter than for three tabs.
const struct {
    const char* heading;
    config_variable_section_e section;
    std::size_t shortName;
    const char* end;
} help_sections[] = {
    {"Video Options:", section_video, 6, "\n"},
    {"Sound Options:", section_sound, 6, "\n"},
    {"Input Options:", section_input, 6, "\n"},
    {"Effects:", section_effects, 7, ""}, // deliberate: no empty line behind it
    {"Misc:", section_misc, 7, "\n"},
};
constexpr std::size_t long_name = 15; // a longer one gets one tab

} // namespace

bool ConfigClass::parseCmdLineArgs(const char* programName, const char* argument) {
    const Outcome outcome = take(*this, boost::algorithm::trim_copy(std::string(argument)));
    if (outcome == Outcome::help) printCmdLineFlags(programName);
    if (outcome == Outcome::usage_and_start || outcome == Outcome::usage_and_stop)
        writeUsageMessage(programName);
    return outcome == Outcome::start || outcome == Outcome::usage_and_start;
}

void writeUsageMessage(const char* programName) {
    const std::string name = utility::printable(programName);
    std::cerr << "Usage: " << name << " [OPTION]...\n"
              << "Try `" << name << " --help` for more information.\n";
}

void ConfigClass::printCmdLineFlags(const char* programName) {
    std::cout << "Usage: " << utility::printable(programName) << " [OPTIONS]...\n"
              << "All flags are case-sensitive.\n";
    for (const auto& part : help_sections) {
        std::cout << part.heading << '\n';
        for (const ConfigValueAnon* setting : configValues->getAnonNames()) {
            if (setting->section != part.section) continue;
            const std::size_t length = setting->longName.size();
            const char* const tabs = length < part.shortName ? "\t\t\t"
                                     : length > long_name    ? "\t"
                                                             : "\t\t";
            std::cout << "  -" << setting->shortName << ", --" << setting->longName << tabs
                      << setting->description << '\n';
        }
        std::cout << part.end;
    }
    std::cout << std::flush;
}

} // namespace quorva::config
