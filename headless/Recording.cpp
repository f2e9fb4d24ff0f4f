#include "headless/Recording.h"

#include "headless/HeadlessGame.h"
#include "headless/StateHash.h"

#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace quorva::headless {

namespace {

const char* const keys_ending = ".keys";
const char* const hashes_ending = ".hashes";
constexpr std::size_t hash_bytes = 4, count_bytes = 2; // little endian, before a tick's marks

std::uint8_t mark(const StatePart& part) {
    return static_cast<std::uint8_t>(part.hash);
}

template <class Stream>
Stream open(const std::string& path, std::ios::openmode mode) {
    Stream stream(path, mode);
    if (!stream) throw std::runtime_error("can't open " + path);
    return stream;
}

void writeNumber(std::ostream& out, std::uint32_t value, std::size_t bytes) {
    for (std::size_t i = 0; i < bytes; ++i)
        out.put(static_cast<char>(value >> (8 * i)));
}

std::uint32_t readNumber(const std::vector<std::uint8_t>& data, std::size_t at, std::size_t bytes) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < bytes; ++i)
        value |= static_cast<std::uint32_t>(data[at + i]) << (8 * i);
    return value;
}

} // namespace

void Recording::add(const std::vector<StatePart>& parts) {
    ticks.push_back({combined(parts), marks.size(), static_cast<std::uint16_t>(parts.size())});
    for (const StatePart& part : parts)
        marks.push_back(mark(part));
}

std::string Recording::compare(std::size_t tick, const std::vector<StatePart>& parts) const {
    const Tick& recorded = ticks.at(tick);
    if (combined(parts) == recorded.hash) return {};
    std::ostringstream out;
    out << "tick " << tick << ": ";
    if (parts.size() != recorded.count)
        out << parts.size() << " objects in place of " << recorded.count << "; ";
    std::size_t i = 0;
    while (i < parts.size() && i < recorded.count &&
           mark(parts[i]) == marks[recorded.firstMark + i])
        ++i;
    if (i < parts.size())
        out << "the first that differs: " << describe(parts[i]);
    else
        out << "the last are missing";
    return out.str();
}

void Recording::save(const std::string& path) const {
    saveKeys(path + keys_ending);
    saveHashes(path + hashes_ending);
}

void Recording::saveKeys(const std::string& path) const {
    auto file = open<std::ofstream>(path, std::ios::out);
    file << "start " << startTicks << "\n";
    for (const KeyEvent& key : keys)
        file << key.tick << (key.down ? " down " : " up ") << key.symbol << "\n";
}

void Recording::saveHashes(const std::string& path) const {
    auto file = open<std::ofstream>(path, std::ios::binary);
    for (const Tick& tick : ticks) {
        writeNumber(file, tick.hash, hash_bytes);
        writeNumber(file, tick.count, count_bytes);
        file.write(reinterpret_cast<const char*>(&marks[tick.firstMark]), tick.count);
    }
}

Recording Recording::load(const std::string& path) {
    Recording recording;
    recording.loadKeys(path + keys_ending);
    recording.loadHashes(path + hashes_ending);
    return recording;
}

void Recording::loadKeys(const std::string& path) {
    auto file = open<std::ifstream>(path, std::ios::in);
    std::string word;
    if (!(file >> word >> startTicks)) throw std::runtime_error("no start in " + path);
    KeyEvent key = {};
    while (file >> key.tick >> word >> key.symbol) {
        key.down = word == "down";
        keys.push_back(key);
    }
    if (!file.eof()) throw std::runtime_error("not a key in " + path);
}

void Recording::loadHashes(const std::string& path) {
    auto file = open<std::ifstream>(path, std::ios::binary);
    const std::vector<std::uint8_t> data((std::istreambuf_iterator<char>(file)), {});
    for (std::size_t at = 0; at < data.size();) {
        const std::size_t begin = at + hash_bytes + count_bytes;
        if (begin > data.size()) throw std::runtime_error("cut off: " + path);
        const std::size_t count = readNumber(data, at + hash_bytes, count_bytes);
        if (count > data.size() - begin) throw std::runtime_error("cut off: " + path);
        ticks.push_back(
            {readNumber(data, at, hash_bytes), marks.size(), static_cast<std::uint16_t>(count)});
        const auto first = data.begin() + static_cast<std::ptrdiff_t>(begin);
        marks.insert(marks.end(), first, first + static_cast<std::ptrdiff_t>(count));
        at = begin + count;
    }
}

std::string replay(const Recording& recording) {
    HeadlessGame run(recording.startTicks);
    auto key = recording.keys.begin();
    for (std::size_t tick = 0; tick < recording.length(); ++tick) {
        for (; key != recording.keys.end() && key->tick == tick; ++key)
            run.key(key->symbol, key->down);
        run.tick();
        std::string difference = recording.compare(tick, stateParts(run.game()));
        if (!difference.empty()) return difference;
    }
    return {};
}

} // namespace quorva::headless
