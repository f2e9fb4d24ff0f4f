#pragma once

#include "replay/Bytes.h"

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace quorva::replay {

/// Letter and value; a flag is 0 or 1.
using SettingValues = std::vector<std::pair<char, int>>;

/// A name that can stand in a resource file, and in a replay.
bool isPlainName(const std::string& name);

/// What play depends on from the start, beside the clock and the keys. Nothing tells who played,
/// or on which machine.
struct Setup {
    struct NamedColour {
        std::string name;
        std::array<double, 4> parts; ///< red, green, blue, alpha, from -8 to 8
    };
    struct NamedPoint {
        std::string name;
        std::array<double, 3> coordinates; ///< world units
    };

    std::int64_t date;                         ///< seconds since 1970, UTC
    SettingValues settings;                    ///< of the start
    std::vector<std::pair<int, int>> bindings; ///< key and button of each action, in their order
    std::size_t songs;                         ///< in the song folder
    std::vector<bool> joysticks;               ///< whether each could be opened
    std::vector<NamedColour> colours;          ///< their alphas are lifetimes, too
    std::vector<NamedPoint> points;

    bool hasOpenJoystick() const;

    void write(ByteWriter& out) const;
    static Setup read(ByteReader& in); ///< throws BadFile
};

void write(const SettingValues& settings, ByteWriter& out);
SettingValues readSettings(ByteReader& in); ///< throws BadFile

/// The value of that letter; 0 if it isn't among them.
int valueOf(const SettingValues& settings, char letter);

} // namespace quorva::replay
