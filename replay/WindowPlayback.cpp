#include "replay/WindowPlayback.h"

#include <boost/filesystem.hpp>

#include <fstream>

namespace quorva::replay {

namespace {

namespace fs = boost::filesystem;

const char* const silent_song = "silence.wav"; // in the folder where the game is played

/// A second of silence, mono at 8 kHz and 8 bits.
void writeSilence() {
    constexpr std::uint32_t samples = 8000;
    ByteWriter wav;
    wav.bytes = "RIFF";
    wav.fixed32(samples + 36);
    wav.bytes += "WAVEfmt ";
    for (const std::uint32_t word : {16U, 0x10001U, samples, samples, 0x80001U})
        wav.fixed32(word);
    wav.bytes += "data";
    wav.fixed32(samples);
    wav.bytes.append(samples, '\x80');
    std::ofstream(silent_song, std::ios::binary) << wav.bytes;
}

} // namespace

WindowPlayback::WindowPlayback(Script& script_, const fs::path& songs_)
    : Playback(script_), folder(fs::absolute(songs_)) {}

SDL_Surface* WindowPlayback::openWindow(int width, int height, int depth, std::uint32_t flags) {
    return Tape::openWindow(width, height, depth, flags & ~static_cast<Uint32>(SDL_FULLSCREEN));
}

FMOD_RESULT WindowPlayback::openSongOf(std::uint32_t ms, FMOD_SYSTEM* system, FMOD_SOUND** song) {
    if (!measured) measureSongs(system);
    const auto found = songs.find(ms);
    return Tape::openSong(system, found == songs.end() ? silent_song : found->second.c_str(), song);
}

void WindowPlayback::measureSongs(FMOD_SYSTEM* system) {
    measured = true;
    writeSilence();
    boost::system::error_code ignored; // no folder, no songs
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, ignored)) {
        FMOD_SOUND* song = nullptr;
        unsigned int length = 0;
        const std::string path = entry.path().string();
        if (Tape::openSong(system, path.c_str(), &song) != FMOD_OK) continue;
        if (Tape::songLength(song, &length) == FMOD_OK) songs.insert({length, path});
        FMOD_Sound_Release(song);
    }
}

} // namespace quorva::replay
