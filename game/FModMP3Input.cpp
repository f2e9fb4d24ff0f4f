#include "game/FModMP3Input.h"

#include "Framework/Config.h"
#include "Framework/Constants.h"
#include "Framework/math/MTRand.h"
#include "game/FModSystem.h"

#include <SDL.h>
#include <boost/filesystem.hpp>

#include <iostream>

using namespace quorva;

namespace {

math::MTRand_int32 Rand;

constexpr std::uint16_t no_song = 37626; // an index that no song has
constexpr std::size_t ending_length = 4; // ".mp3"
constexpr float full_volume = 100.0F;
/// ms. Beyond half the clock's range, an end that has long passed would count as one to come.
constexpr std::int32_t longest_overdue = 1 << 30;

using Effect = FMOD_SOUND* FModMP3Input::*;

/// The effects in the order of loading.
const struct {
    Effect sound;
    const char* file;
    const char* failure;
} effects[] = {
    {&FModMP3Input::aliveSound, "Sounds/alive.wav", "Can't read alive sound"},
    {&FModMP3Input::bulletSound, "Sounds/bullet.wav", "Can't read bullet sound"},
    {&FModMP3Input::deathSound, "Sounds/death.wav", "Can't read death sound"},
    {&FModMP3Input::hitSound, "Sounds/hit.wav", "Can't read hit sound"},
    {&FModMP3Input::squareSound, "Sounds/square.wav", "Can't read square sound"},
    {&FModMP3Input::clearSound, "Sounds/Clear.wav", "Can't read clear sound"},
    {&FModMP3Input::immuneSound, "Sounds/Immune.wav", "Can't read immune sound"},
    {&FModMP3Input::pupSound, "Sounds/Pup.wav", "Can't read Power up sound"},
    {&FModMP3Input::badSound, "Sounds/Bad.wav", "Can't read Bad sound"},
    {&FModMP3Input::pauseSound, "Sounds/Pause.wav", "Can't read Bad sound"}, // the same words
};

bool isSong(const std::string& name) {
    if (name.size() <= ending_length) return false;
    const std::string ending = name.substr(name.size() - ending_length);
    return ending == ".mp3" || ending == ".ogg";
}

} // namespace

FModMP3Input::FModMP3Input() : lastSongID(no_song) {
    subscribeToAll();
    system = FModSystem::Instance().system;
    loadSongList();
    loadEffects();
}

void FModMP3Input::loadEffects() {
    for (const auto& effect : effects) {
        FMOD_SOUND*& sound = this->*effect.sound;
        result = FMOD_System_CreateSound(system, effect.file, FMOD_MODE_EFFECT, nullptr, &sound);
        if (FModSystem::Instance().isFModOk(result)) continue;
        std::cerr << effect.failure << '\n';
        sound = nullptr;
    }
}

void FModMP3Input::loadSongList() {
    namespace fs = boost::filesystem;
    try {
        for (const fs::directory_entry& entry : fs::directory_iterator(mp3_directory)) {
            const std::string name = entry.path().filename().string();
            boost::system::error_code ignored; // of a link to itself, say
            const fs::file_type type = fs::status(entry.path(), ignored).type();
            const bool isFile = type != fs::directory_file && type != fs::status_error;
            if (isFile && isSong(name)) songs.push_back(name);
        }
    } catch (...) {
        std::cerr << "Song directory is missing\n"; // the game goes on without music
    }
}

unsigned short FModMP3Input::getRandomSongID() {
    if (songs.empty()) return 0;
    if (songs.size() == 1) return static_cast<unsigned short>(Rand() % 1);
    unsigned long id;
    do {
        id = Rand() % songs.size();
    } while (id == lastSongID);
    return static_cast<unsigned short>(id);
}

void FModMP3Input::playSong(unsigned short id) {
    const auto& config = config::Config::Instance();
    if (system == nullptr) return;
    if (!config.getPlayMusic()) {
        songPlaying = true; // update asks again, until the setting is on
        return;
    }
    if (id >= songs.size()) return;
    stopSong();
    pausedTime = 0;
    lastSongID = id;

    const std::string path = mp3_directory + "/" + songs[id];
    result = FMOD_System_CreateStream(system, path.c_str(), FMOD_MODE_STREAM, nullptr, &song);
    const bool isKnownToFail = result != FMOD_OK && !brokenSongs.insert(path).second;
    if (!isKnownToFail) FModSystem::Instance().isFModOk(result);
    result = FMOD_System_PlaySound(system, FMOD_CHANNEL_ANY, song, 0, &musicChannel);
    FMOD_Channel_SetVolume(musicChannel, config.getMusicVolume() / full_volume);
    if (!isKnownToFail) FModSystem::Instance().isFModOk(result);
    // If it can't be opened, the previous length stays, and the silence lasts that long.
    FMOD_Sound_GetLength(song, &songLength, FMOD_LENGTH_MS);
    songEndTime = SDL_GetTicks() + songLength;
    songPlaying = true;
}

void FModMP3Input::stopSong() {
    if (song != nullptr) FMOD_Sound_Release(song);
    song = nullptr;
    songPlaying = false;
    songPaused = false; // a game may end in its pause
}

std::int32_t FModMP3Input::overdueAt(std::uint32_t clock) const {
    // Signed: the clock may be set back, and wraps after 49.7 days.
    return static_cast<std::int32_t>(clock - (songEndTime + pausedTime));
}

bool FModMP3Input::songIsDue(std::uint32_t clock) const {
    return songPlaying && !songPaused && overdueAt(clock) > 0;
}

void FModMP3Input::update() {
    const std::uint32_t now = SDL_GetTicks();
    const std::int32_t overdue = overdueAt(now);
    if (overdue > longest_overdue && !songPaused) songEndTime += overdue - longest_overdue;
    if (songIsDue(now)) playSong(getRandomSongID());
    FMOD_System_Update(system);
}

void FModMP3Input::receiveMessage(const PlaySong* m) {
    if (m->songId == -1) return playSong(getRandomSongID());
    const auto id = static_cast<std::size_t>(m->songId); // a negative one is beyond every list
    if (id < songs.size()) return playSong(static_cast<unsigned short>(id));
    std::cerr << "Can't play song id: " << m->songId << ". Only " << songs.size()
              << " songs exist.\n";
}

void FModMP3Input::receiveMessage(const PauseGame* m) {
    const std::uint32_t now = SDL_GetTicks();
    if (songPaused) pausedTime += now - pauseStartTime;
    (m->paused ? pauseStartTime : pauseEndTime) = now;
    songPaused = m->paused;
    FMOD_Channel_SetPaused(musicChannel, m->paused ? 1 : 0);
}

void FModMP3Input::playEffect(FMOD_SOUND* sound) {
    const auto& config = config::Config::Instance();
    if (sound != nullptr && config.getPlaySound())
        FMOD_System_PlaySound(system, FMOD_CHANNEL_ANY, sound, 0, &effectChannel);
    // In every case: with sound off it sets the level of the effect before.
    FMOD_Channel_SetVolume(effectChannel, config.getFXVolume() / full_volume);
}
