#include "replay/Script.h"

#include <algorithm>

namespace quorva::replay {

namespace {

/// Idle passes, for each byte of a file and for each ms of its session. A game that stands all
/// night without music makes some thousand passes a second, and hardly a byte.
constexpr std::uint64_t most_idle_a_byte = 1000, most_idle_a_ms = 10;

} // namespace

Script::Script(const std::string& path) : file(path), block(file.read()) {
    if (block.left() == 0) throw BadFile("nothing was recorded");
    setup = Setup::read(block);
}

bool Script::atEnd() {
    if (!next && !ended) fetch();
    return !next;
}

std::optional<Record> Script::take() {
    if (atEnd()) return {};
    return std::exchange(next, std::nullopt);
}

void Script::fetch() {
    if (block.left() == 0) block = ByteReader(file.read());
    if (block.left() == 0) return;
    next = reader.read(block);
    if (const auto* const pass = std::get_if<Pass>(&*next)) require(*pass);
    if (!std::holds_alternative<End>(*next)) return;
    ended = true;
    if (block.left() != 0 || file.offset() != file.size()) damaged(); // more follows
}

/// Throws BadFile for a pass that no recorder can have written.
void Script::require(const Pass& pass) {
    if (!pass.clock.empty() && !start) start = pass.clock.front();
    const std::uint32_t ms = pass.clock.empty() ? 0 : pass.clock.back() - *start;
    idle += pass.idle;
    if (idle > most_idle_a_byte * file.size() + most_idle_a_ms * ms) damaged();
    if (setup.hasOpenJoystick()) return;
    const bool usesOne = std::any_of(pass.events.begin(), pass.events.end(),
                                     [](const Event& event) { return event.isOfJoystick(); });
    if (usesOne || !pass.axes.empty()) damaged();
}

} // namespace quorva::replay
