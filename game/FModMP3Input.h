#pragma once

#include "Framework/Component.h"
#include "Framework/MessageReceiver.h"
#include "Framework/Messages.h"
#include "platform/fmodex/fmodex.h"

#include <cstdint>
#include <set>
#include <string>
#include <vector>

/// Plays all sound: an effect for each effect's message, and the files of the song folder as an
/// endless random sequence, which pauses with the game.
class FModMP3Input
    : public quorva::Component,
      public quorva::MessageReceiver<PlaySong, StopSong, PauseGame, SoundBullet, SoundBuletHit,
                                     SoundSquare, SoundAlive, SoundDeath, SoundClearBomb,
                                     SoundImmuneBomb, SoundPup, SoundBad, SoundPause,
                                     quorva::messages::ResetAudio> {
public:
    FModMP3Input(); ///< an effect that can't be loaded is reported and stays silent

    void update() override; ///< every pass: the next song, when one is due
    void process() override {}

    void receiveMessage(const PlaySong* m) override;
    void receiveMessage(const StopSong*) override { stopSong(); }
    void receiveMessage(const PauseGame* m) override;
    void receiveMessage(const SoundBullet*) override { playEffect(bulletSound); }
    void receiveMessage(const SoundBuletHit*) override { playEffect(hitSound); }
    void receiveMessage(const SoundSquare*) override { playEffect(squareSound); }
    void receiveMessage(const SoundDeath*) override { playEffect(deathSound); }
    void receiveMessage(const SoundAlive*) override { playEffect(aliveSound); }
    void receiveMessage(const SoundClearBomb*) override { playEffect(clearSound); }
    void receiveMessage(const SoundImmuneBomb*) override { playEffect(immuneSound); }
    void receiveMessage(const SoundPup*) override { playEffect(pupSound); }
    void receiveMessage(const SoundBad*) override { playEffect(badSound); }
    void receiveMessage(const SoundPause*) override { playEffect(pauseSound); }
    /// Nothing to do: while music is off, update tries again at every pass.
    void receiveMessage(const quorva::messages::ResetAudio*) override {}

    /// Starts a song. With music off it only waits for the setting; an unknown id is ignored.
    void playSong(unsigned short id);
    void stopSong();

    /// Whether the next song, or the one that waits for the setting, would start at this clock.
    /// Never in a pause: the song that it halts has the rest of its time still to come.
    [[nodiscard]] bool songIsDue(std::uint32_t clock) const;

    /// A draw of the shared random stream, or several: never the last song again, if there are
    /// two. 0, without a draw, if there are none.
    unsigned short getRandomSongID();

    /// Appends the .mp3 and .ogg files of the song folder, in the order that it gives them.
    void loadSongList();

    FMOD_CHANNEL* effectChannel = nullptr; ///< of the last effect, whichever it was
    FMOD_CHANNEL* musicChannel = nullptr;
    FMOD_SYSTEM* system;
    FMOD_RESULT result = 0;
    FMOD_SOUND* song = nullptr; ///< the open stream
    FMOD_SOUND *aliveSound = nullptr, *bulletSound = nullptr, *deathSound = nullptr,
               *hitSound = nullptr, *squareSound = nullptr, *clearSound = nullptr,
               *immuneSound = nullptr, *pupSound = nullptr, *badSound = nullptr,
               *pauseSound = nullptr;
    /// ms. A second before the first song, so that a folder of broken songs is not tried at every
    /// pass.
    std::uint32_t songLength = 1000;
    std::uint32_t songEndTime = 0;  ///< clock at which the song ends, but for pauses
    std::vector<std::string> songs; ///< file names, without the folder
    bool songPlaying = false;       ///< update watches for the song's end, or for the setting
    std::uint16_t lastSongID;
    std::uint32_t pausedTime = 0; ///< ms of the current song's pauses, but for one that lasts
    std::uint32_t pauseStartTime = 0;
    std::uint32_t pauseEndTime = 0;
    bool songPaused = false; ///< as the last PauseGame said, until a song is stopped or started

private:
    void loadEffects();
    void playEffect(FMOD_SOUND* sound);
    /// ms since the song's end, below 0 before it.
    [[nodiscard]] std::int32_t overdueAt(std::uint32_t clock) const;

    std::set<std::string> brokenSongs; ///< paths whose failure has been reported
};
