#include "keys/BindFile.h"

#include "Framework/Files.h"

#include <algorithm>
#include <filesystem>
#include <iterator>

namespace quorva::keys {

namespace {

const std::string old_file_name = input::bind_file_name + ".bak";
const char* const head =
    "# The keys and buttons of KOV, as kov-keys has written them. The manual says"
    " how to edit them.\n";

using Lines = std::vector<std::string>; ///< each with its end, but perhaps for the last

Lines linesOf(const std::string& text) {
    Lines lines;
    for (std::size_t start = 0; start < text.size(); start += lines.back().size()) {
        const std::size_t end = std::min(text.find('\n', start), text.size() - 1);
        lines.push_back(text.substr(start, end - start + 1));
    }
    return lines;
}

std::string wordsOf(const input::InputKey& binding) {
    const std::string key = input::wordFromKey(binding.key);
    const std::string button = input::wordFromJsbutton(binding.jsButton);
    return key + (key.empty() || button.empty() ? "" : ", ") + button;
}

/// The line with other words: its action, its columns and its end stay.
std::string withWords(const std::string& line, const input::InputKey& binding) {
    const std::size_t comma = line.find(',', line.find(binding.name));
    const std::size_t words = line.find_first_not_of(" \t,", comma);
    const std::size_t end = line.find_last_not_of(" \t\r\n,") + 1;
    return line.substr(0, words) + wordsOf(binding) + line.substr(line.find_first_of("\r\n", end));
}

void writeLine(Lines& lines, const input::InputKey& binding) {
    const auto last = std::find_if(lines.rbegin(), lines.rend(), [&](const std::string& line) {
        const std::vector<std::string> fields = input::bindFields(line);
        return !fields.empty() && fields[0] == binding.name;
    });
    if (last != lines.rend())
        *last = withWords(*last, binding);
    else
        lines.push_back(binding.name + ", " + wordsOf(binding) + '\n');
}

bool differs(const input::InputKey& a, const input::InputKey& b) {
    return a.key != b.key || a.jsButton != b.jsButton;
}

Outcome replaceFile(const std::string& text, const Bindings& changed) {
    if (!utility::replaceContents(old_file_name, text))
        return {false, "Can't write " + old_file_name + ". Your keys are as they were."};
    if (!utility::replaceContents(input::bind_file_name, rebind(text, changed)))
        return {false, "Can't write " + input::bind_file_name + ". Your keys are as they were."};
    return {true, input::bind_file_name + " is written, for the next start. The old file is " +
                      old_file_name + "."};
}

} // namespace

std::string rebind(const std::string& text, const Bindings& bindings) {
    Lines lines = linesOf(text);
    if (!lines.empty() && lines.back().back() != '\n') lines.back() += '\n';
    for (const input::InputKey& binding : bindings)
        writeLine(lines, binding);
    std::string result;
    for (const std::string& line : lines)
        result += line;
    return result;
}

Outcome save(const Bindings& before, const Bindings& after) {
    Bindings changed;
    for (std::size_t i = 0; i < after.size(); ++i)
        if (differs(before[i], after[i])) changed.push_back(after[i]);
    if (changed.empty()) return {true, "All is as it was: no key has changed."};

    std::error_code ignored;
    if (!std::filesystem::exists(input::bind_file_name, ignored)) {
        if (utility::replaceContents(input::bind_file_name, rebind(head, after)))
            return {true, input::bind_file_name + " is written, for the next start."};
        return {false, "Can't write " + input::bind_file_name + ". Your keys are as they were."};
    }
    std::ifstream file = utility::openForReading(input::bind_file_name, utility::largest_text_file);
    if (!file)
        return {false, "Can't read " + input::bind_file_name + ". Your keys are as they were."};
    return replaceFile(std::string(std::istreambuf_iterator<char>(file), {}), changed);
}

} // namespace quorva::keys
