#include "Framework/Config.h"

#include "Framework/Files.h"
#include "Framework/GameInfo.h"
#include "Framework/Utility.h"
#include "Framework/config/Settings.h"

#include <boost/algorithm/string/trim.hpp>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <map>
#include <sstream>

namespace quorva::config {

namespace {

/// Stores `v`, of a flag 0 or 1. Throws ConfigValueException if that can't be done.
void put(ConfigValuesT& table, const Setting& setting, int v) {
    if (!setting.isFlag || setting.has(stored_by_letter))
        table.setValue(setting.shortName, v);
    else
        table.setValue(v != 0 ? setting.longName : default_negative_prefix + setting.longName, 0);
}

/// Stores a number, or a word for a setting of three grades.
template <class Key>
void storeText(ConfigValuesT& table, Key key, const char* text) {
    try {
        table.setValue(key, numberFromText(text));
        return;
    } catch (const ConfigValueException&) {
        // It may be a word.
    }
    const char* const words[] = {"low", "medium", "high"};
    const auto* const word = std::find(std::begin(words), std::end(words), std::string(text));
    if (word == std::end(words)) throw ConfigValueException(ConfigValueException::invalid_value);
    table.setValue(key, static_cast<QualityE>(word - words));
}

} // namespace

void writeSetValueError(const std::string& name) {
    std::cerr << "Couldn't set " << name << '\n';
}

int numberFromText(const char* text) {
    const long number = std::strtol(text, nullptr, 10);
    return static_cast<int>(
        std::clamp<long>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

ConfigClass::ConfigClass() {
    try {
        file = std::make_unique<ConfigFile>(GameInfo::Instance().configFile);
    } catch (...) {
        // Without a file the defaults hold; nothing is reported.
    }
    configValues = std::make_unique<ConfigValuesT>();
    activatedValues = std::make_unique<ConfigValuesT>();
}

void ConfigClass::activateConfig() {
    activatedValues = std::make_unique<ConfigValuesT>(*configValues);
    configured = true;
}

bool ConfigClass::configActivated() const {
    return *activatedValues == *configValues;
}

void ConfigClass::setDefaults() {
    for (const ConfigValueAnon* setting : configValues->getAnonNames())
        configValues->setDefault(setting->shortName);
    configured = true;
}

const std::vector<ConfigValueAnon*>& ConfigClass::getAllConfigValueInfos() const {
    return configValues->getAnonNames();
}
const ConfigValueAnon& ConfigClass::getConfigValueInfo(char key) {
    return configValues->getTypelessValue(key);
}
const ConfigValueAnon& ConfigClass::getConfigValueInfo(const char* key) {
    return configValues->getTypelessValue(key);
}
const ConfigValueAnon& ConfigClass::getConfigValueInfo(const std::string& key) {
    return configValues->getTypelessValue(key.c_str());
}

void ConfigClass::setSomeValue(char key, const char* text) {
    storeText(*configValues, key, text);
}
void ConfigClass::setSomeValue(const char* key, const char* text) {
    storeText(*configValues, key, text);
}

unsigned short ConfigClass::number(char letter, std::optional<unsigned short> fallback) const {
    try {
        return static_cast<unsigned short>(activatedValues->getIntVal(letter));
    } catch (const ConfigValueException&) {
        return fallback.value_or(settingWith(letter).defaultValue);
    }
}

bool ConfigClass::flag(char letter) const {
    try {
        return activatedValues->getBoolVal(letter);
    } catch (const ConfigValueException&) {
        return settingWith(letter).defaultValue != 0;
    }
}

void ConfigClass::store(char letter, int v) {
    const Setting& setting = settingWith(letter);
    try {
        put(*configValues, setting, v);
        return;
    } catch (const ConfigValueException&) {
        // The default takes its place.
    }
    try {
        put(*configValues, setting, setting.defaultValue);
        std::cerr << "Invalid " << setting.longName << (setting.has(spaced_tail) ? " ," : ",")
                  << " using default: " << setting.defaultValue << '\n';
    } catch (const ConfigValueException&) {
        writeSetValueError(setting.longName);
    }
}

void ConfigClass::readFile() {
    if (file != nullptr) {
        for (const auto& [key, value] : file->getKeyVals()) {
            const Setting* const setting = findSetting(allSettings(), key);
            if (setting == nullptr || setting->has(never_restored)) continue;
            const long number = std::strtol(value.c_str(), nullptr, 10);
            store(setting->shortName,
                  setting->isFlag ? number != 0 : static_cast<unsigned short>(number));
        }
    }
    activateConfig();
}

void ConfigClass::saveConfig() {
    if (file != nullptr) file->backup();
    std::multimap<int, std::string> lines;
    for (const Setting& setting : allSettings()) {
        const int value = setting.isFlag ? flag(setting.shortName) : number(setting.shortName);
        lines.insert({setting.fileLine, setting.longName + " = " + std::to_string(value)});
    }
    const GameInfoClass& info = GameInfo::Instance();
    std::ostringstream out;
    out << "#Config file for: " << info.title << ". v." << info.version << '\n';
    for (const auto& [number, line] : lines)
        out << line << '\n';
    out << "#eof\n";
    utility::replaceContents(info.configFile, out.str());
}

namespace {

enum class Outcome { start, usage_and_start, usage_and_stop, help };

/// `-x=value`, `--Name=value`.
Outcome takeWithValue(ConfigClass& config, const std::string& argument) {
    if (argument.front() != '-') return Outcome::start; // deliberate: ignored without a message
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

/// `-x`, `--Name`. The value is the argument itself, which converts to 0.
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

/// The sections of the help in their order.
const struct {
    const char* heading;
    config_variable_section_e section;
    std::size_t threeTabsBelow; ///< characters of a name
    const char* end;
} help_sections[] = {
    {"Video Options:", section_video, 6, "\n"},
    {"Sound Options:", section_sound, 6, "\n"},
    {"Input Options:", section_input, 6, "\n"},
    {"Effects:", section_effects, 7, ""}, // deliberate: no empty line follows
    {"Misc:", section_misc, 7, "\n"},
};
constexpr std::size_t one_tab_above = 15; // characters of a name

const char* tabsBehind(std::size_t length, std::size_t threeTabsBelow) {
    if (length < threeTabsBelow) return "\t\t\t";
    return length > one_tab_above ? "\t" : "\t\t";
}

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
            std::cout << "  -" << setting->shortName << ", --" << setting->longName
                      << tabsBehind(setting->longName.size(), part.threeTabsBelow)
                      << setting->description << '\n';
        }
        std::cout << part.end;
    }
    std::cout << std::flush;
}

} // namespace quorva::config
