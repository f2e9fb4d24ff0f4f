#pragma once

#include "platform/fmodex/Decoder.h"

#include <AL/al.h>
#include <AL/alc.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <future>
#include <memory>
#include <vector>

/// A sound: an effect that is held whole, or a stream with its decoder and queue.
struct FMOD_SOUND {
    static constexpr std::size_t queue_length = 16;     ///< buffers
    static constexpr std::size_t pieces_per_second = 8; ///< a buffer holds one

    std::unique_ptr<platform::fmodex::Decoder> decoder; ///< of a stream; else null
    ALuint buffer = 0;                                  ///< of an effect
    std::vector<std::int16_t> samples;                  ///< of an effect, until the output is open
    int sampleRate = 0;                                 ///< Hz, of those
    std::array<ALuint, queue_length> queue{};           ///< of a stream
    std::vector<ALuint> spare;                          ///< buffers of `queue` that are not queued
    std::vector<std::int16_t> piece;                    ///< scratch of a stream
    unsigned int length = 0;                            ///< ms
    bool atEnd = false;                                 ///< a stream has nothing more to decode

    bool isStream() const { return decoder != nullptr; }
};

/// The channels and the output. Without a device everything succeeds in silence. The output opens
/// in the background, as that takes OpenAL some time; whatever needs it waits.
struct FMOD_SYSTEM {
    FMOD_RESULT start(int maxChannels);
    FMOD_RESULT load(const char* path, FMOD_SOUND** sound);
    FMOD_RESULT open(const char* path, FMOD_SOUND** sound);
    FMOD_RESULT play(FMOD_SOUND* sound, bool paused, FMOD_CHANNEL** channel);
    FMOD_RESULT setVolume(FMOD_CHANNEL* channel, float volume);
    FMOD_RESULT setPaused(FMOD_CHANNEL* channel, bool paused);
    FMOD_RESULT release(FMOD_SOUND* sound);
    void update();
    void close();       ///< at process exit; later calls are silent
    void awaitOutput(); ///< returns once the output is open, or known to be missing

    ALCdevice* device = nullptr;
    ALCcontext* context = nullptr;

private:
    using Clock = std::chrono::steady_clock;
    struct Channel {
        ALuint source = 0;
        FMOD_SOUND* sound = nullptr; ///< null: free
        bool paused = false;
        std::uint32_t generation = 0; ///< of its handles: an older one is stale
        std::uint64_t startedAt = 0;  ///< rising with each start
    };

    bool isSilent() {
        awaitOutput();
        return context == nullptr;
    }
    void submitSamples(FMOD_SOUND& effect);
    Channel* find(FMOD_CHANNEL* handle);
    FMOD_CHANNEL* handleOf(const Channel& channel) const;
    Channel* freeChannel();
    void stop(Channel& channel);
    bool hasEnded(const Channel& channel);
    /// Fills the buffers of a stream that have been played: one at least, more `until` then.
    void refill(Channel& channel, Clock::time_point until);
    void queueNextPiece(Channel& channel);

    std::future<ALCcontext*> opening; ///< valid until somebody has waited for it
    std::vector<FMOD_SOUND*> early;   ///< effects loaded before the output was open, not owned
    std::vector<Channel> channels;
    std::uint64_t starts = 0;
};
