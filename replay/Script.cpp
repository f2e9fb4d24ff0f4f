#include "replay/Script.h"

namespace quorva::replay {

namespace {

/// Idle passes for each byte of a file: more than a paused game without music takes.
constexpr std::uint64_t most_idle_a_byte = 1000;

} // namespace

Script::Script(const std::string& path) : file(path), block(file.read()) {
    if (block.left() == 0) throw BadFile("nothing was recorded");
    setup = Setup::read(block);
}

const Record* Script::peek() {
    if (!ahead && !ended) fetch();
    return ahead ? &*ahead : nullptr;
}

std::optional<Record> Script::next() {
    peek();
    std::optional<Record> record;
    ahead.swap(record);
    return record;
}

void Script::fetch() {
    if (block.left() == 0) block = ByteReader(file.read());
    if (block.left() == 0) return;
    ahead = reader.read(block);
    idle += ahead->pass_.idle;
    if (idle > most_idle_a_byte * file.size()) damaged();
    if (ahead->kind != Record::end) return;
    ended = true;
    if (block.left() != 0 || !file.read().empty() || file.isCutOff()) damaged(); // more follows
}

} // namespace quorva::replay
