#include "replay/Remarks.h"

#include "Framework/config/Settings.h"
#include "replay/Words.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

namespace quorva::replay {

namespace {

/// A game beats every 30 ms. Pictures at 60 a second make that 33 ms, at 50 a second 40 ms; beyond
/// that it runs slower than monitors would have it.
constexpr double longest_mean_tick = 40.0; // ms
/// The opening of a song or a busy machine may hold a game for a moment. Longer is time to think.
constexpr std::uint32_t longest_tick = 500; // ms
constexpr double most_slow_ticks = 0.02;    // of all: slow motion now and then is more
/// For a telephone or a door. More pauses than that make a game of stills.
constexpr double free_pauses = 3.0, pauses_a_minute = 1.0;
/// Of monitors: from 5:4 to 21:9, width to height.
constexpr double narrowest = 5.0 / 4.0, widest = 64.0 / 27.0;
/// Two hands in a pass of 17 ms, or in a slow one of 100 ms.
constexpr std::size_t most_presses = 6;

constexpr char accuracy = 'z', width = 'w', height = 'l'; // letters of settings
constexpr double ms_a_minute = 60000.0;

class Remarks {
public:
    template <class... Parts>
    void add(bool marked, const Parts&... parts) {
        std::ostringstream out;
        out << std::fixed << std::setprecision(1);
        (out << ... << parts);
        list.push_back({out.str(), marked});
    }

    std::vector<Remark> list;
};

void addClock(const GameStory& game, Remarks& remarks) {
    const double mean = game.ticks == 0 ? 0.0 : static_cast<double>(game.played()) / game.ticks;
    remarks.add(false, counted(game.ticks, "tick"), " in ", minutes(game.played()));
    remarks.add(mean > longest_mean_tick, mean, " ms each");
    remarks.add(game.longestTick > longest_tick, game.longestTick, " ms at most");
    remarks.add(game.slowTicks > most_slow_ticks * game.ticks, game.slowTicks, " over ",
                GameStory::slow_tick, " ms");
    const double allowed = free_pauses + pauses_a_minute * game.played() / ms_a_minute;
    remarks.add(game.pauses > allowed, counted(game.pauses, "pause"),
                game.pauses != 0 ? " of " + minutes(game.paused) : "");
}

void addSettings(const GameStory& game, Remarks& remarks) {
    const int used = valueOf(game.settings, accuracy);
    remarks.add(used != config::settingWith(accuracy).defaultValue, "accuracy ", used);
    const int w = valueOf(game.settings, width), h = valueOf(game.settings, height);
    const double shape = h == 0 ? 0.0 : static_cast<double>(w) / h;
    remarks.add(shape < narrowest || shape > widest, "window ", w, 'x', h);
}

} // namespace

std::vector<Remark> remarksOn(const GameStory& game, const Changes& changes) {
    Remarks remarks;
    addClock(game, remarks);
    addSettings(game, remarks);
    remarks.add(changes.colours != 0, counted(changes.colours, "colour"), " changed");
    remarks.add(changes.points != 0, counted(changes.points, "point"), " changed");
    remarks.add(false, counted(changes.keys, "key"), " changed"); // hands and keyboards differ
    remarks.add(changes.actionsOfAKey > 1, counted(changes.actionsOfAKey, "action"), " a key");
    remarks.add(game.presses > most_presses, "up to ", counted(game.presses, "press", "presses"),
                " at once");
    return remarks.list;
}

bool anyMarked(const std::vector<Remark>& remarks) {
    return std::any_of(remarks.begin(), remarks.end(),
                       [](const Remark& remark) { return remark.marked; });
}

std::string inWords(const std::vector<Remark>& remarks) {
    std::string text;
    for (const Remark& remark : remarks)
        text += (text.empty() ? "" : ", ") + remark.text + (remark.marked ? " (!)" : "");
    return text;
}

} // namespace quorva::replay
