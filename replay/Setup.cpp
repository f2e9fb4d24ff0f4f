#include "replay/Setup.h"

#include "Framework/config/Settings.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace quorva::replay {

namespace {

constexpr std::size_t most_names = 256, longest_name = 64, most_songs = 10000, most_joysticks = 32;
constexpr double largest_colour = 8.0, largest_coordinate = 1e9;

template <std::size_t Size>
void checkRange(const std::array<double, Size>& values, double largest) {
    for (const double value : values)
        if (!(std::fabs(value) <= largest)) damaged();
}

template <class Named, class Member>
std::vector<Named> readNamed(ByteReader& in, Member values, double largest) {
    std::vector<Named> list(in.number(most_names));
    std::set<std::string> names;
    for (Named& each : list) {
        each.name = in.text(longest_name);
        if (!isPlainName(each.name) || !names.insert(each.name).second) damaged();
        for (double& value : each.*values)
            value = in.real();
        checkRange(each.*values, largest);
    }
    return list;
}

template <class Named, class Member>
void writeNamed(ByteWriter& out, const std::vector<Named>& list, Member values) {
    out.number(list.size());
    for (const Named& each : list) {
        out.text(each.name);
        for (const double value : each.*values)
            out.real(value);
    }
}

} // namespace

bool isPlainName(const std::string& name) {
    return name.size() <= longest_name && name.find(',') == std::string::npos &&
           std::all_of(name.begin(), name.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

int valueOf(const SettingValues& settings, char letter) {
    for (const auto& [each, value] : settings)
        if (each == letter) return value;
    return 0;
}

void write(const SettingValues& settings, ByteWriter& out) {
    out.number(settings.size());
    for (const auto& [letter, value] : settings) {
        out.byte(static_cast<std::uint8_t>(letter));
        out.signedNumber(value);
    }
}

SettingValues readSettings(ByteReader& in) {
    SettingValues settings(in.count());
    std::set<char> letters;
    for (auto& [letter, value] : settings) {
        letter = static_cast<char>(in.byte());
        const std::int64_t kept = in.signedNumber();
        value = static_cast<int>(kept);
        const config::Setting* const setting = config::findSetting(config::allSettings(), letter);
        if (setting == nullptr || setting->has(config::not_in_replays) ||
            !letters.insert(letter).second || value != kept ||
            !config::isValid(value, setting->validValues, setting->range))
            damaged();
    }
    return settings;
}

bool Setup::hasOpenJoystick() const {
    return std::find(joysticks.begin(), joysticks.end(), true) != joysticks.end();
}

void Setup::write(ByteWriter& out) const {
    out.signedNumber(date);
    replay::write(settings, out);
    out.number(bindings.size());
    for (const auto& [key, button] : bindings) {
        out.signedNumber(key);
        out.signedNumber(button);
    }
    out.number(songs);
    out.number(joysticks.size());
    for (const bool opened : joysticks)
        out.flag(opened);
    writeNamed(out, colours, &NamedColour::parts);
    writeNamed(out, points, &NamedPoint::coordinates);
}

Setup Setup::read(ByteReader& in) {
    Setup setup = {};
    setup.date = in.signedNumber();
    setup.settings = readSettings(in);
    setup.bindings.resize(in.count());
    for (auto& [key, button] : setup.bindings) {
        key = static_cast<int>(in.signedNumber());
        button = static_cast<int>(in.signedNumber());
    }
    setup.songs = in.number(most_songs);
    setup.joysticks.resize(in.number(most_joysticks));
    for (std::size_t i = 0; i < setup.joysticks.size(); ++i)
        setup.joysticks[i] = in.flag();
    setup.colours = readNamed<NamedColour>(in, &NamedColour::parts, largest_colour);
    setup.points = readNamed<NamedPoint>(in, &NamedPoint::coordinates, largest_coordinate);
    return setup;
}

} // namespace quorva::replay
