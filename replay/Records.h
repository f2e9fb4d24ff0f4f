#pragma once

#include "replay/Bytes.h"
#include "replay/Setup.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

// What follows the setup in a replay file, in memory and as bytes.

namespace quorva::replay {

struct Event {
    enum Kind : std::uint8_t { key_down, key_up, button_down, axis_moved, closed, kind_count };

    std::uint32_t emptyPolls; ///< taken after the queue was found empty so often in its pass
    Kind kind;
    std::int32_t which; ///< SDL's symbol of a key, or the button's index

    bool isPress() const { return kind == key_down || kind == button_down; }
    bool isOfJoystick() const { return kind == button_down || kind == axis_moved; }
};

/// All that came from outside between two frames.
struct Pass {
    /// Passes before this one in which nothing came and no tick ran, but songs were looked for:
    /// each is a draw of the random stream. Other passes like that aren't kept at all.
    std::uint64_t idle = 0;
    std::vector<std::uint32_t> clock; ///< ms, as often as it was read
    std::vector<Event> events;
    std::vector<std::int16_t> axes; ///< their positions, as often as they were read
    struct Song {
        std::uint32_t result; ///< of its opening; 0: it plays
        std::uint32_t length; ///< ms
    };
    std::vector<Song> songs; ///< that were begun
};

/// The state of the game at every hundredth tick, to be compared.
struct Check {
    std::uint32_t hash;
    std::string partHashes; ///< a byte of each part's hash, so that the first that differs is known
};

/// The settings of the game that begins next, where they are others than before.
struct ChangedSettings {
    SettingValues values;
};

struct GameBegin {};

/// How a game ended.
struct GameEnd {
    std::uint32_t score;
    std::uint32_t deaths;
    bool lost; ///< else it was left

    bool operator==(const GameEnd& other) const {
        return score == other.score && deaths == other.deaths && lost == other.lost;
    }
};

/// Of the program.
struct End {
    Check check;
};

using Record = std::variant<Pass, Check, GameBegin, GameEnd, End, ChangedSettings>;

/// Turns records into bytes. Clock and axes are kept as differences, so each of these two goes over
/// the records of a file in their order.
class RecordWriter {
public:
    void write(const Record& record, ByteWriter& out);

private:
    void write(const Pass& pass, ByteWriter& out);

    std::uint32_t clock = 0;
    std::int16_t axis = 0, axisBefore = 0;
};

class RecordReader {
public:
    Record read(ByteReader& in); ///< throws BadFile

private:
    Pass readPass(std::uint8_t flags, ByteReader& in);
    std::uint32_t readClock(ByteReader& in);

    std::uint32_t clock = 0;
    bool clockStarted = false;
    std::int16_t axis = 0, axisBefore = 0;
};

} // namespace quorva::replay
