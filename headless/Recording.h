#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quorva::headless {

struct StatePart;

struct KeyEvent {
    std::uint32_t tick; ///< taken in this pass, counted from 0
    int symbol;         ///< SDL's
    bool down;
};

/// A game as it was played: the keys, and the state that followed at every tick. On disk it is two
/// files: `.keys`, text, and `.hashes`, binary, a byte for each part of the state so that a
/// failing replay can name the part that differs.
class Recording {
public:
    std::uint32_t startTicks = 0; ///< ms, the clock at the start of the program
    std::vector<KeyEvent> keys;   ///< by rising tick

    /// Notes the state after a tick.
    void add(const std::vector<StatePart>& parts);
    std::size_t length() const { return ticks.size(); } ///< ticks

    /// @return empty if the parts are those of that tick, else what differs first, in words
    std::string compare(std::size_t tick, const std::vector<StatePart>& parts) const;

    /// @param path without the endings
    void save(const std::string& path) const;
    /// Throws std::runtime_error if there is no such recording, or half of one.
    static Recording load(const std::string& path);

private:
    struct Tick {
        std::uint32_t hash;    ///< of all parts
        std::size_t firstMark; ///< of the tick's, in `marks`
        std::uint16_t count;   ///< of parts
    };

    void saveKeys(const std::string& path) const;
    void saveHashes(const std::string& path) const;
    void loadKeys(const std::string& path);
    void loadHashes(const std::string& path);

    std::vector<Tick> ticks;
    std::vector<std::uint8_t> marks; ///< the low byte of each part's hash
};

/// Plays the keys again in a new game.
/// @return empty if every tick is as recorded, else the first tick and the first object that
///         differ
std::string replay(const Recording& recording);

} // namespace quorva::headless
