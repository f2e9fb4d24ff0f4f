#include "Framework/input/KeyMapper.h"

#include "Framework/Files.h"
#include "Framework/Utility.h"

#include <boost/algorithm/string.hpp>

#include <algorithm>
#include <iostream>

namespace quorva::input {

namespace {

const std::string joystick_prefix = "JOY";
constexpr unsigned short bound_player = 0;
constexpr int joystick_buttons = 16;

/// The words of more than one character. A digit, a letter or ";" is a word by itself, with its
/// character as the symbol.
const struct {
    const char* word;
    QuorvaKey key;
} key_words[] = {
    {"BACKSPACE", 8}, {"TAB", 9},        {"RETURN", 13},    {"ENTER", 13},   {"ESCAPE", 27},
    {"SPACE", 32},    {"NUM0", 256},     {"NUM1", 257},     {"NUM2", 258},   {"NUM3", 259},
    {"NUM4", 260},    {"NUM5", 261},     {"NUM6", 262},     {"NUM7", 263},   {"NUM8", 264},
    {"NUM9", 265},    {"NUM.", 266},     {"NUM/", 267},     {"NUM*", 268},   {"NUM-", 269},
    {"NUM+", 270},    {"NUMENTER", 271}, {"NUM=", 272},     {"UP", 273},     {"DOWN", 274},
    {"RIGHT", 275},   {"LEFT", 276},     {"INSERT", 277},   {"HOME", 278},   {"END", 279},
    {"PAGEUP", 280},  {"PAGEDOWN", 281}, {"F1", 282},       {"RSHIFT", 303}, {"LSHIFT", 304},
    {"RCTRL", 305},   {"LCTRL", 306},    {"RALT", 307},     {"LALT", 308},   {"RMETA", 309},
    {"LMETA", 310},   {"LWINDOWS", 311}, {"RWINDOWS", 312},
};

/// The key of a word of one character, in upper case.
QuorvaKey keyFromCharacter(char c) {
    if ((c >= '0' && c <= '9') || c == ';') return static_cast<QuorvaKey>(c);
    if (c >= 'A' && c <= 'Z') return static_cast<QuorvaKey>(c - 'A' + 'a');
    return unknown_key;
}

bool isJoystickWord(const std::string& word) {
    return word.size() > joystick_prefix.size() && boost::starts_with(word, joystick_prefix);
}

void apply(const std::string& word, InputKey& key) {
    if (isJoystickWord(word))
        key.jsButton = jsbuttonFromWord(word);
    else
        key.key = keyFromWord(word);
}

} // namespace

QuorvaKey keyFromWord(const std::string& word) {
    const std::string upper = boost::to_upper_copy(word);
    for (const auto& row : key_words)
        if (upper == row.word) return row.key;
    const QuorvaKey key = upper.size() == 1 ? keyFromCharacter(upper.front()) : unknown_key;
    if (key == unknown_key) std::cerr << "Key not found: " << utility::printable(upper) << '\n';
    return key;
}

QuorvaJKey jsbuttonFromWord(const std::string& word) {
    for (int button = 0; button < joystick_buttons; ++button)
        if (word == joystick_prefix + std::to_string(button + 1))
            return static_cast<QuorvaJKey>(button);
    return no_button;
}

std::string wordFromKey(QuorvaKey key) {
    const auto* const found = std::find_if(std::begin(key_words), std::end(key_words),
                                           [key](const auto& row) { return row.key == key; });
    if (found != std::end(key_words)) return found->word;
    const bool isLetter = key >= 'a' && key <= 'z';
    const auto character = static_cast<char>(isLetter ? key - 'a' + 'A' : key);
    return keyFromCharacter(character) == key ? std::string(1, character) : "";
}

std::string wordFromJsbutton(QuorvaJKey button) {
    return button < joystick_buttons ? joystick_prefix + std::to_string(button + 1) : "";
}

std::vector<std::string> bindFields(std::string line) {
    boost::trim(line);
    if (line.empty() || line.front() == '#') return {};
    std::vector<std::string> fields = utility::splitCompressed(line, ",");
    utility::trimStringsInVector(fields);
    utility::removeEmptyStringsFromVector(fields);
    if (fields.size() != 2 && fields.size() != 3) fields.clear();
    return fields;
}

bool KeyMapperClass::addMappableKey(const std::string& name, QuorvaKey key, QuorvaJKey jsButton,
                                    unsigned short player) {
    if (getButton(name, player) != nullptr) return false;
    keys.push_back(std::make_unique<InputKey>(InputKey{name, key, jsButton, player}));
    return true;
}

const InputKey* KeyMapperClass::getButton(const char* name, unsigned short player) const {
    const auto found = std::find_if(keys.begin(), keys.end(), [name, player](const auto& key) {
        return key->player == player && key->name == name;
    });
    return found == keys.end() ? nullptr : found->get();
}

void KeyMapperClass::readBindFiles() {
    std::ifstream file = utility::openForReading(bind_file_name, utility::largest_text_file);
    if (!file) {
        std::cerr << "Can't read bind1.conf\n"; // the defaults stay in force
        return;
    }
    std::string line;
    while (std::getline(file, line)) {
        const std::vector<std::string> fields = bindFields(line);
        if (!fields.empty()) bind(fields);
    }
}

void KeyMapperClass::bind(const std::vector<std::string>& fields) {
    bool found = false;
    for (const auto& key : keys) {
        if (key->name != fields[0] || key->player != bound_player) continue;
        found = true;
        for (std::size_t i = 1; i < fields.size(); ++i)
            apply(fields[i], *key);
    }
    if (!found) std::cerr << "Couldn't find key: " << utility::printable(fields[0]) << '\n';
}

} // namespace quorva::input
