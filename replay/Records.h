#pragma once

#include "replay/Bytes.h"

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// What a replay file holds, in memory and as bytes.

namespace quorva::headless {
struct StatePart;
}

namespace quorva::replay {

/// What play depends on from the start, beside the clock and the keys. Nothing tells who played,
/// or on which machine.
struct Setup {
    struct NamedColour {
        std::string name;
        std::array<double, 4> parts; ///< red, green, blue, alpha, from -8 to 8
    };
    struct NamedPoint {
        std::string name;
        std::array<double, 3> place; ///< world units
    };

    /// As the game has them, once it is set up and before its first frame. Throws
    /// std::runtime_error if they can't be kept.
    static Setup ofGame();

    std::int64_t date = 0;                      ///< seconds since 1970, UTC
    std::vector<std::pair<char, int>> settings; ///< letter and value; a flag is 0 or 1
    std::vector<std::pair<int, int>> bindings;  ///< key and button of each action, in their order
    std::size_t songs = 0;                      ///< in the song folder
    std::vector<bool> joysticks;                ///< whether each could be opened
    std::vector<NamedColour> colours;           ///< their alphas are lifetimes, too
    std::vector<NamedPoint> points;

    void write(ByteWriter& out) const;
    static Setup read(ByteReader& in);
};

struct Event {
    enum Kind : std::uint8_t { key_down, key_up, button_down, axis_moved, closed, kind_count };

    std::uint32_t drain; ///< taken after the queue was found empty so often in its pass
    Kind kind;
    std::int32_t which; ///< SDL's symbol of a key, or the button's index
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

/// The state of the game, to be compared.
struct Check {
    std::uint32_t hash = 0;
    std::string marks; ///< a byte of each part's hash, so that the first that differs is known

    static Check ofGame();
    /// @return empty if `played` is the same, else what differs first, in words
    std::string compare(const Check& played) const;
};

/// How a game ended.
struct Result {
    std::uint32_t score = 0;
    std::uint32_t deaths = 0;
    bool lost = false; ///< else it was left

    bool operator==(const Result& other) const {
        return score == other.score && deaths == other.deaths && lost == other.lost;
    }
};

struct Record {
    enum Kind : std::uint8_t {
        pass,
        check,      ///< at every hundredth tick
        game_begin, ///< a game has begun
        game_end,
        end, ///< of the program, with a last check
    };
    Kind kind = pass;
    Pass pass_;
    Check check_;
    Result result;
};

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
    Record read(ByteReader& in);

private:
    Pass readPass(ByteReader& in);

    std::uint32_t clock = 0;
    std::int16_t axis = 0, axisBefore = 0;
};

} // namespace quorva::replay
