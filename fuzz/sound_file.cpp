// Anything as a sound: loaded as an effect and opened as a song, both played for a while into
// memory.

#include "fuzz/Playground.h"
#include "platform/fmodex/Loopback.h"
#include "platform/fmodex/Mixer.h"

#include <array>

namespace {

constexpr int channels = 40;
constexpr int passes = 4;
constexpr std::size_t pass_frames = 1024;

FMOD_SYSTEM* openSystem() {
    fuzz::enterPlayground();
    platform::fmodex::useLoopback();
    FMOD_SYSTEM* system = nullptr;
    FMOD_System_Create(&system);
    fuzz::require(FMOD_System_Init(system, channels, 0, nullptr) == FMOD_OK, "there is an output");
    return system;
}

FMOD_SOUND* playIfGood(FMOD_SYSTEM* system, FMOD_RESULT opened, FMOD_SOUND* sound) {
    fuzz::require((opened == FMOD_OK) == (sound != nullptr), "a sound, or a reason why not");
    if (sound == nullptr) return nullptr;
    FMOD_CHANNEL* channel = nullptr;
    unsigned int length = 0;
    fuzz::require(FMOD_Sound_GetLength(sound, &length, FMOD_LENGTH_MS) == FMOD_OK,
                  "it has a length");
    fuzz::require(FMOD_System_PlaySound(system, FMOD_CHANNEL_ANY, sound, 0, &channel) == FMOD_OK,
                  "it plays");
    return sound;
}

} // namespace

/// libsndfile drops what libvorbis holds for a stream whose headers are broken.
extern "C" const char* __lsan_default_suppressions() { // NOLINT: the sanitizer's name
    return "leak:vorbis_info_init\n";
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static FMOD_SYSTEM* const system = openSystem();
    fuzz::write("any.wav", data, size);
    FMOD_SOUND *effect = nullptr, *song = nullptr;
    FMOD_RESULT opened =
        FMOD_System_CreateSound(system, "any.wav", FMOD_MODE_EFFECT, nullptr, &effect);
    effect = playIfGood(system, opened, effect);
    opened = FMOD_System_CreateStream(system, "any.wav", FMOD_MODE_STREAM, nullptr, &song);
    song = playIfGood(system, opened, song);
    if (effect == nullptr && song == nullptr) return 0;

    std::array<std::int16_t, 2 * pass_frames> heard;
    for (int pass = 0; pass < passes; ++pass) {
        FMOD_System_Update(system);
        platform::fmodex::render(system, heard.data(), pass_frames);
    }
    if (effect != nullptr) FMOD_Sound_Release(effect);
    if (song != nullptr) FMOD_Sound_Release(song);
    return 0;
}
