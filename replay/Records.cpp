#include "replay/Records.h"

#include <type_traits>

namespace quorva::replay {

namespace {

constexpr std::uint64_t most_idle = 1U << 24U; ///< passes before one that is kept

constexpr std::uint8_t has_idle = 1, has_events = 2, has_axes = 4, has_songs = 8, pass_flags = 15;
/// The kinds of record that aren't passes, by their index among the alternatives.
constexpr std::uint8_t first_other = 0x80;

template <class Kind, std::size_t Index = 0>
constexpr std::uint8_t codeOf() {
    if constexpr (std::is_same_v<std::variant_alternative_t<Index, Record>, Kind>)
        return first_other + Index;
    else
        return codeOf<Kind, Index + 1>();
}

void writeBody(const Check& check, ByteWriter& out) {
    out.fixed32(check.hash);
    out.text(check.partHashes);
}

void writeBody(const GameBegin&, ByteWriter&) {}

void writeBody(const GameEnd& end, ByteWriter& out) {
    out.number(end.score);
    out.number(end.deaths);
    out.flag(end.lost);
}

void writeBody(const End& end, ByteWriter& out) {
    writeBody(end.check, out);
}

void writeBody(const ChangedSettings& settings, ByteWriter& out) {
    write(settings.values, out);
}

Check readCheck(ByteReader& in) {
    Check check;
    check.hash = in.fixed32();
    check.partHashes.resize(in.count());
    for (char& part : check.partHashes)
        part = static_cast<char>(in.byte());
    return check;
}

GameEnd readGameEnd(ByteReader& in) {
    GameEnd end;
    end.score = static_cast<std::uint32_t>(in.number(UINT32_MAX));
    end.deaths = static_cast<std::uint32_t>(in.number(UINT32_MAX));
    end.lost = in.flag();
    return end;
}

Event readEvent(ByteReader& in) {
    Event event = {};
    const std::uint64_t code = in.number(UINT32_MAX);
    event.emptyPolls = static_cast<std::uint32_t>(code / Event::kind_count);
    event.kind = static_cast<Event::Kind>(code % Event::kind_count);
    if (event.kind < Event::axis_moved) event.which = static_cast<std::int32_t>(in.signedNumber());
    return event;
}

} // namespace

void RecordWriter::write(const Record& record, ByteWriter& out) {
    if (const auto* const pass = std::get_if<Pass>(&record)) return write(*pass, out);
    out.byte(static_cast<std::uint8_t>(first_other + record.index()));
    std::visit(
        [&out](const auto& body) {
            if constexpr (!std::is_same_v<decltype(body), const Pass&>) writeBody(body, out);
        },
        record);
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
        out.number(event.emptyPolls * Event::kind_count + event.kind);
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
    const std::uint8_t code = in.byte();
    if (code < first_other) return readPass(code, in);
    switch (code) {
    case codeOf<Check>():
        return readCheck(in);
    case codeOf<GameBegin>():
        return GameBegin();
    case codeOf<GameEnd>():
        return readGameEnd(in);
    case codeOf<End>():
        return End{readCheck(in)};
    case codeOf<ChangedSettings>():
        return ChangedSettings{readSettings(in)};
    default:
        damaged();
    }
}

/// It never runs back, and is taken around 2^32.
std::uint32_t RecordReader::readClock(ByteReader& in) {
    const std::uint64_t most = clockStarted ? INT32_MAX : UINT32_MAX;
    clockStarted = true;
    return clock += static_cast<std::uint32_t>(in.number(most));
}

Pass RecordReader::readPass(std::uint8_t flags, ByteReader& in) {
    Pass pass;
    if (flags > pass_flags) damaged();
    if ((flags & has_idle) != 0) pass.idle = in.number(most_idle);
    pass.clock.resize(in.count());
    for (std::uint32_t& ms : pass.clock)
        ms = readClock(in);
    if ((flags & has_events) != 0) pass.events.resize(in.count());
    for (Event& event : pass.events)
        event = readEvent(in);
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
