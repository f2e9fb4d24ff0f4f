#pragma once

#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"
#include "headless/Bot.h"

#include <cstdint>
#include <random>

namespace quorva::menus {
class MainMenu;
}

namespace soak {

/// What the program is doing when it is closed.
enum Moment : unsigned int {
    in_main_menu,
    in_configuration,
    in_help,
    in_about,
    in_first_pass_of_game,
    in_game,
    in_pause,
    on_death,
    lying_dead,
    on_rectangle,
    on_clear_bomb,
    on_last_death,
    in_verdict,
    moment_count
};
extern const char* const moment_names[moment_count];

/// How it is closed.
enum Way : unsigned int {
    by_window,
    by_escape_and_window, ///< both in one pass
    by_window_and_keys,   ///< keys go on for what is left of the pass
    by_exit,              ///< back to the menu, and "Exit"
    way_count
};
extern const char* const way_names[way_count];

/// Sits at the keys of one run of the program: leads it to a moment, and closes it there.
class Closer : public quorva::MessageInterface<PlayerDead>,
               public quorva::MessageInterface<SoundSquare>,
               public quorva::MessageInterface<SoundClearBomb> {
public:
    Closer(Moment moment, Way way, std::uint32_t seed);

    /// Sends the keys of the next pass. Ends the process, with `gives_up`, if the moment doesn't
    /// come or the program doesn't end.
    void pass();

    void receiveMessage(const PlayerDead* m) override;
    void receiveMessage(const SoundSquare*) override { happens(on_rectangle); }
    void receiveMessage(const SoundClearBomb*) override { happens(on_clear_bomb); }

    static constexpr int gives_up = 99; ///< exit code

private:
    void lead();
    bool hasCome() const;
    void openPage();
    void happens(Moment m);
    void close();
    void leaveBySteps();
    bool isInLevel() const;
    static quorva::menus::MainMenu* menu();

    const Moment moment;
    const Way way;
    std::mt19937 random;
    quorva::headless::Bot bot;
    unsigned int passesToPlay; ///< before anything else
    unsigned int passesToStay; ///< at the moment, if it is a state and not an event
    unsigned int occurrences;  ///< of the event, until the one that counts
    unsigned int passes = 0;
    bool closing = false;
};

} // namespace soak
