#include "platform/standins/SoundRecorder.h"

#include "platform/fmodex/fmodex.h"

#include <algorithm>
#include <map>
#include <memory>
#include <sstream>

struct FMOD_SYSTEM {};

struct FMOD_SOUND {
    std::string path;
    bool isStream;
};

struct FMOD_CHANNEL {
    std::string path; ///< of what it plays
};

namespace quorva::standins {

std::string SoundRecorder::take() {
    std::string text;
    for (const std::string& call : calls)
        text += call + "; ";
    calls.clear();
    return text;
}

SoundRecorder& sound() {
    static auto* const recorder = new SoundRecorder; // outlives every singleton
    return *recorder;
}

namespace {

template <class... Parts>
void note(const Parts&... parts) {
    if (!sound().recording) return;
    std::ostringstream text;
    (text << ... << parts);
    sound().calls.push_back(text.str());
}

bool isUnreadable(const std::string& path) {
    const auto& list = sound().unreadable;
    return std::find(list.begin(), list.end(), path) != list.end();
}

/// Samples are shared by path: the game never releases one.
FMOD_SOUND* sampleOf(const std::string& path) {
    static auto* const samples = new std::map<std::string, FMOD_SOUND>;
    return &samples->insert({path, FMOD_SOUND{path, false}}).first->second;
}

FMOD_CHANNEL* channelOf(const std::string& path) {
    static auto* const channels = new std::map<std::string, FMOD_CHANNEL>;
    return &channels->insert({path, FMOD_CHANNEL{path}}).first->second;
}

/// Held here, as a sound system would: the game leaves its song open when it ends.
std::map<FMOD_SOUND*, std::unique_ptr<FMOD_SOUND>>& streams() {
    static auto* const open = new std::map<FMOD_SOUND*, std::unique_ptr<FMOD_SOUND>>;
    return *open;
}

std::string nameOf(const FMOD_CHANNEL* channel) {
    return channel == nullptr ? "nothing" : channel->path;
}

} // namespace

} // namespace quorva::standins

using namespace quorva::standins;

FMOD_RESULT FMOD_System_Create(FMOD_SYSTEM** system) {
    static FMOD_SYSTEM the_system;
    *system = &the_system;
    return 0;
}

FMOD_RESULT FMOD_System_Init(FMOD_SYSTEM*, int maxChannels, unsigned int flags, void*) {
    note("init ", maxChannels, " ", flags);
    return 0;
}

FMOD_RESULT FMOD_System_CreateSound(FMOD_SYSTEM*, const char* path, unsigned int mode, void*,
                                    FMOD_SOUND** result) {
    note("load ", path, " ", mode);
    if (isUnreadable(path)) return 23;
    *result = sampleOf(path);
    return 0;
}

FMOD_RESULT FMOD_System_CreateStream(FMOD_SYSTEM*, const char* path, unsigned int mode, void*,
                                     FMOD_SOUND** result) {
    note("open ", path, " ", mode);
    if (isUnreadable(path)) return 23;
    auto stream = std::make_unique<FMOD_SOUND>(FMOD_SOUND{path, true});
    *result = stream.get();
    streams()[*result] = std::move(stream);
    ++sound().openStreams;
    return 0;
}

FMOD_RESULT FMOD_System_PlaySound(FMOD_SYSTEM*, int channelIndex, FMOD_SOUND* played, int paused,
                                  FMOD_CHANNEL** channel) {
    if (played == nullptr) return 37;
    const std::string where =
        channelIndex == FMOD_CHANNEL_ANY ? "" : " on " + std::to_string(channelIndex);
    note("play ", played->path, where, paused != 0 ? " paused" : "");
    *channel = channelOf(played->path);
    return 0;
}

FMOD_RESULT FMOD_Channel_SetVolume(FMOD_CHANNEL* channel, float volume) {
    note("volume ", nameOf(channel), " ", volume);
    return 0;
}

FMOD_RESULT FMOD_Channel_SetPaused(FMOD_CHANNEL* channel, int paused) {
    note(paused != 0 ? "pause " : "resume ", nameOf(channel));
    return 0;
}

FMOD_RESULT FMOD_Sound_GetLength(FMOD_SOUND* of, unsigned int* length, unsigned int unit) {
    if (of == nullptr || unit != FMOD_LENGTH_MS) return 37;
    *length = sound().songLength;
    return 0;
}

FMOD_RESULT FMOD_Sound_Release(FMOD_SOUND* released) {
    note("release ", released->path);
    if (released->isStream) {
        --sound().openStreams;
        streams().erase(released);
    }
    return 0;
}

FMOD_RESULT FMOD_System_Update(FMOD_SYSTEM*) {
    ++sound().updates;
    return 0;
}

namespace platform::fmodex {

void useLoopback() {
    note("loopback");
}

void render(FMOD_SYSTEM*, std::int16_t* samples, int frames) {
    note("render ", frames);
    std::fill_n(samples, 2 * frames, SoundRecorder::rendered);
}

} // namespace platform::fmodex

const char* FMOD_ErrorString(FMOD_RESULT) {
    return "recorded failure";
}
