#include "replay/CommandLine.h"

#include <getopt.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace quorva::replay {

namespace {

std::vector<option> optionsOf(const std::vector<CommandLine::Option>& known) {
    std::vector<option> options = {{}}; // the last one ends them
    for (const CommandLine::Option& each : known)
        options.insert(options.end() - 1,
                       {each.name, each.takesValue ? required_argument : no_argument, nullptr,
                        static_cast<int>(options.size())});
    return options;
}

[[noreturn]] void refuse(int found, const std::vector<CommandLine::Option>& known,
                         const std::string& word) {
    if (found == ':') throw BadUsage(word + " wants a value");
    const auto code = static_cast<std::size_t>(optopt);
    const bool isKnown = word.compare(0, 2, "--") == 0 && code > 0 && code <= known.size();
    if (isKnown) throw BadUsage(std::string("--") + known[code - 1].name + " takes no value");
    throw BadUsage("no such option: " + word);
}

} // namespace

CommandLine::CommandLine(const Words& words, const std::vector<Option>& known, Order order) {
    const std::vector<option> options = optionsOf(known);
    std::vector<const char*> arguments = {"kov-replay"};
    for (const std::string& word : words)
        arguments.push_back(word.c_str());
    const auto count = static_cast<int>(arguments.size());
    char* const* const given = const_cast<char* const*>(arguments.data()); // it only sorts them

    optind = 0; // starts anew
    // No option has a letter; with the colon it leaves it to us to say what is wrong.
    const char* const letters = order == mixed ? ":" : "+:";
    for (int found; (found = getopt_long(count, given, letters, options.data(), nullptr)) != -1;) {
        if (found == '?' || found == ':') refuse(found, known, given[std::max(optind - 1, 1)]);
        const Option& option = known[static_cast<std::size_t>(found) - 1];
        const std::string name = option.name;
        if (has(name) && !option.mayRepeat) throw BadUsage("--" + name + " stands there twice");
        values[name] = optarg != nullptr ? optarg : "";
    }
    files.assign(given + optind, given + count);
}

std::string CommandLine::value(const std::string& option, const std::string& unset) const {
    const auto found = values.find(option);
    return found == values.end() ? unset : found->second;
}

std::uint32_t toTime(const std::string& text) {
    constexpr std::size_t most_digits = 5;
    const std::size_t colon = text.find(':');
    const bool hasMinutes = colon != std::string::npos;
    const std::string m = hasMinutes ? text.substr(0, colon) : "0";
    const std::string s = hasMinutes ? text.substr(colon + 1) : text;
    for (const std::string& part : {m, s})
        if (part.empty() || part.size() > most_digits ||
            part.find_first_not_of("0123456789") != std::string::npos)
            throw BadUsage("no time such as 1:30: " + text);
    return static_cast<std::uint32_t>((std::stoul(m) * 60 + std::stoul(s)) * 1000);
}

double toSpeed(const std::string& text, double slowest, double fastest) {
    char* end = nullptr;
    const double speed = std::strtod(text.c_str(), &end);
    if (*end == '\0' && speed >= slowest && speed <= fastest) return speed;
    std::ostringstream out;
    out << "no speed from " << slowest << " to " << fastest << ": " << text;
    throw BadUsage(out.str());
}

} // namespace quorva::replay
