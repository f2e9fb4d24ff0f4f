#pragma once

#include "replay/Blocks.h"
#include "replay/Progress.h"
#include "replay/Records.h"
#include "replay/Tape.h"

#include <optional>
#include <string>
#include <vector>

namespace quorva::replay {

/// Keeps what comes from outside in a file while the game is played. It writes at least
/// every nine seconds of play, so a crash leaves all but the last of them.
class Recorder : public Tape {
public:
    /// Makes the file. Throws std::runtime_error with the reason if it can't.
    explicit Recorder(const std::string& path);

    std::uint32_t clock() override;
    int poll(SDL_Event* event) override;
    SDL_Joystick* openJoystick(int index) override;
    std::int16_t axis(SDL_Joystick* joystick, int index) override;
    FMOD_RESULT openSong(FMOD_SYSTEM* system, const char* path, FMOD_SOUND** song) override;
    FMOD_RESULT songLength(FMOD_SOUND* song, unsigned int* ms) override;
    void endFrame() override;

    /// The program has ended: writes what is left, and the end.
    void finish();

    unsigned int games = 0;      ///< played to their end or left
    std::uint32_t bestScore = 0; ///< of these

private:
    void begin();
    bool isPlain() const;
    bool isIdle() const;
    bool couldRepeat() const;
    void endPass();
    void keepProgress();
    void keepSettings();
    Check check();
    void keep(const Record& record);
    void flush();
    void giveUp(const std::string& reason);

    BlockWriter file;
    bool failed = false;
    bool begun = false;     ///< the setup is written
    bool observing = false; ///< the clock is asked by this program, not by the game
    Progress progress;
    RecordWriter writer;
    ByteWriter pending; ///< not yet in the file

    std::vector<bool> openedJoysticks;
    SettingValues settings; ///< as they were kept last
    Pass pass;              ///< the one that is going on
    std::uint32_t emptyPolls = 0;
    std::uint32_t lastClock = 0;      ///< ms; that of the last kept pass after `endPass`
    std::optional<std::uint32_t> now; ///< ms, as the game knows it; empty: not yet
    int randomIndex = 0;              ///< in the random stream, when the pass began
    std::uint64_t idle = 0;           ///< passes since the last kept one that have to be repeated
};

} // namespace quorva::replay
