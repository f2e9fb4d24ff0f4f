#include "replay/Records.h"

#include "Framework/Config.h"
#include "Framework/Managers/ColourManager.h"
#include "Framework/Managers/PointManager.h"
#include "Framework/config/Settings.h"
#include "Framework/input/Joystick.h"
#include "Framework/input/KeyMapper.h"
#include "headless/StateHash.h"
#include "replay/Progress.h"

#include "game/FModMP3Input.h"

#include <algorithm>
#include <cmath>
#include <ctime>
#include <sstream>

namespace quorva::replay {

namespace {

/// Of the settings those that play, its pages or its pictures depend on, by letter.
const std::string kept_settings = "wlzsmghjyufao";
constexpr std::size_t most_names = 256, longest_name = 64, most_songs = 10000, most_joysticks = 32;
constexpr double largest_colour = 8.0, largest_place = 1e9;
constexpr std::uint64_t most_idle = 1U << 24U; ///< passes before one that is kept

constexpr std::uint8_t has_idle = 1, has_events = 2, has_axes = 4, has_songs = 8, pass_flags = 15;
constexpr std::uint8_t first_other = 0x80; ///< the kinds of record that aren't passes begin here

bool isValid(const config::Setting& setting, int value) {
    const auto& list = setting.validValues;
    if (!list.empty()) return std::find(list.begin(), list.end(), value) != list.end();
    return value >= setting.range.min && value <= setting.range.max;
}

template <std::size_t Size>
void checkRange(const std::array<double, Size>& values, double largest) {
    for (const double value : values)
        if (!(std::fabs(value) <= largest)) damaged();
}

/// A name that can stand in a resource file.
bool isPlainName(const std::string& name) {
    return name.size() <= longest_name && name.find(',') == std::string::npos &&
           std::all_of(name.begin(), name.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

template <class Named, class Member>
std::vector<Named> readNamed(ByteReader& in, Member values, double largest) {
    std::vector<Named> list(in.number(most_names));
    for (Named& each : list) {
        each.name = in.text(longest_name);
        if (!isPlainName(each.name)) damaged();
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

int valueOf(char letter) {
    const config::ConfigValuesT& values = *config::Config::Instance().activatedValues;
    return config::settingWith(letter).isFlag ? static_cast<int>(values.getBoolVal(letter))
                                              : values.getIntVal(letter);
}

} // namespace

Setup Setup::ofGame() {
    Setup setup;
    setup.date = std::time(nullptr);
    for (const char letter : kept_settings)
        setup.settings.emplace_back(letter, valueOf(letter));
    for (const auto& key : input::KeyMapper::Instance().keys)
        setup.bindings.emplace_back(key->key, key->jsButton);
    setup.songs = songPlayer()->songs.size();
    // Names that no line of the game's can ask for are left out.
    for (const auto& [name, entry] : ColourManager::Instance().resources) {
        const graphics::Colour& c = entry.value;
        if (isPlainName(name))
            setup.colours.push_back({name, {c.red(), c.green(), c.blue(), c.alpha()}});
    }
    for (const auto& [name, entry] : PointManager::Instance().resources) {
        const math::Point& p = entry.value.value;
        if (isPlainName(name)) setup.points.push_back({name, {p.x, p.y, p.z}});
    }
    // What the reader would refuse.
    ByteWriter out;
    setup.write(out);
    ByteReader in(out.bytes);
    try {
        read(in);
    } catch (const BadFile&) {
        throw std::runtime_error("its colours or points are too far from the usual ones");
    }
    return setup;
}

void Setup::write(ByteWriter& out) const {
    out.signedNumber(date);
    out.number(settings.size());
    for (const auto& [letter, value] : settings) {
        out.byte(static_cast<std::uint8_t>(letter));
        out.signedNumber(value);
    }
    out.number(bindings.size());
    for (const auto& [key, button] : bindings) {
        out.signedNumber(key);
        out.signedNumber(button);
    }
    out.number(songs);
    out.number(joysticks.size());
    for (const bool opened : joysticks)
        out.byte(opened ? 1 : 0);
    writeNamed(out, colours, &NamedColour::parts);
    writeNamed(out, points, &NamedPoint::place);
}

Setup Setup::read(ByteReader& in) {
    Setup setup;
    setup.date = in.signedNumber();
    setup.settings.resize(in.count());
    for (auto& [letter, value] : setup.settings) {
        letter = static_cast<char>(in.byte());
        value = static_cast<int>(in.signedNumber());
        if (kept_settings.find(letter) == std::string::npos ||
            !isValid(config::settingWith(letter), value))
            damaged();
    }
    setup.bindings.resize(in.count());
    for (auto& [key, button] : setup.bindings) {
        key = static_cast<int>(in.signedNumber());
        button = static_cast<int>(in.signedNumber());
    }
    setup.songs = in.number(most_songs);
    setup.joysticks.resize(in.number(most_joysticks));
    for (std::size_t i = 0; i < setup.joysticks.size(); ++i)
        setup.joysticks[i] = in.byte() != 0;
    setup.colours = readNamed<NamedColour>(in, &NamedColour::parts, largest_colour);
    setup.points = readNamed<NamedPoint>(in, &NamedPoint::place, largest_place);
    return setup;
}

Check Check::ofGame() {
    const std::vector<headless::StatePart> parts = headless::stateParts();
    Check check;
    check.hash = headless::combined(parts);
    for (const headless::StatePart& part : parts)
        check.marks.push_back(static_cast<char>(part.hash));
    return check;
}

std::string Check::compare(const Check& played) const {
    if (hash == played.hash && marks == played.marks) return {};
    std::ostringstream out;
    if (marks.size() != played.marks.size())
        out << played.marks.size() << " objects in place of " << marks.size() << ", ";
    const std::size_t shorter = std::min(marks.size(), played.marks.size());
    const auto first =
        std::mismatch(played.marks.begin(),
                      played.marks.begin() + static_cast<std::ptrdiff_t>(shorter), marks.begin());
    const auto parts = headless::stateParts();
    const auto index = static_cast<std::size_t>(first.first - played.marks.begin());
    if (index < parts.size() && index < played.marks.size())
        out << "the first that differs: " << headless::describe(parts[index]);
    else
        out << (played.marks.size() < marks.size() ? "the last are missing"
                                                   : "only the hash differs");
    return out.str();
}

void RecordWriter::write(const Record& record, ByteWriter& out) {
    if (record.kind == Record::pass) return write(record.pass_, out);
    out.byte(first_other + record.kind);
    if (record.kind == Record::check || record.kind == Record::end) {
        out.fixed32(record.check_.hash);
        out.text(record.check_.marks);
    } else if (record.kind == Record::game_end) {
        out.number(record.result.score);
        out.number(record.result.deaths);
        out.byte(record.result.lost ? 1 : 0);
    }
}

void RecordWriter::write(const Pass& pass, ByteWriter& out) {
    const auto flag = [](bool set, std::uint8_t bit) { return set ? bit : std::uint8_t{0}; };
    out.byte(flag(pass.idle != 0, has_idle) | flag(!pass.events.empty(), has_events) |
             flag(!pass.axes.empty(), has_axes) | flag(!pass.songs.empty(), has_songs));
    if (pass.idle != 0) out.number(pass.idle);
    out.number(pass.clock.size());
    for (const std::uint32_t ms : pass.clock) {
        out.number(ms - clock); // around 2^32, as the clock does
        clock = ms;
    }
    if (!pass.events.empty()) out.number(pass.events.size());
    for (const Event& event : pass.events) {
        out.number(event.drain * Event::kind_count + event.kind);
        if (event.kind < Event::axis_moved) out.signedNumber(event.which);
    }
    if (!pass.axes.empty()) out.number(pass.axes.size());
    for (const std::int16_t position : pass.axes) { // x and y take turns
        out.signedNumber(position - axisBefore);
        axisBefore = axis;
        axis = position;
    }
    if (!pass.songs.empty()) out.number(pass.songs.size());
    for (const Pass::Song& song : pass.songs) {
        out.number(song.result);
        out.number(song.length);
    }
}

Record RecordReader::read(ByteReader& in) {
    Record record;
    if (in.peek() < first_other) {
        record.pass_ = readPass(in);
        return record;
    }
    const std::uint8_t kind = in.byte();
    if (kind <= first_other || kind > first_other + Record::end) damaged();
    record.kind = static_cast<Record::Kind>(kind - first_other);
    if (record.kind == Record::check || record.kind == Record::end) {
        record.check_.hash = in.fixed32();
        record.check_.marks.resize(in.count());
        for (char& mark : record.check_.marks)
            mark = static_cast<char>(in.byte());
    } else if (record.kind == Record::game_end) {
        record.result.score = static_cast<std::uint32_t>(in.number(UINT32_MAX));
        record.result.deaths = static_cast<std::uint32_t>(in.number(UINT32_MAX));
        record.result.lost = in.byte() != 0;
    }
    return record;
}

Pass RecordReader::readPass(ByteReader& in) {
    Pass pass;
    const std::uint8_t flags = in.byte();
    if (flags > pass_flags) damaged();
    if ((flags & has_idle) != 0) pass.idle = in.number(most_idle);
    pass.clock.resize(in.count());
    for (std::uint32_t& ms : pass.clock)
        ms = clock += static_cast<std::uint32_t>(in.number(UINT32_MAX));
    if ((flags & has_events) != 0) pass.events.resize(in.count());
    for (Event& event : pass.events) {
        const std::uint64_t code = in.number(UINT32_MAX);
        event.drain = static_cast<std::uint32_t>(code / Event::kind_count);
        event.kind = static_cast<Event::Kind>(code % Event::kind_count);
        event.which = 0;
        if (event.kind < Event::axis_moved)
            event.which = static_cast<std::int32_t>(in.signedNumber());
    }
    if ((flags & has_axes) != 0) pass.axes.resize(in.count());
    for (std::int16_t& position : pass.axes) {
        position =
            static_cast<std::int16_t>(static_cast<std::int16_t>(in.signedNumber()) + axisBefore);
        axisBefore = axis;
        axis = position;
    }
    if ((flags & has_songs) != 0) pass.songs.resize(in.count());
    for (Pass::Song& song : pass.songs) {
        song.result = static_cast<std::uint32_t>(in.number(UINT32_MAX));
        song.length = static_cast<std::uint32_t>(in.number(UINT32_MAX));
    }
    return pass;
}

} // namespace quorva::replay
