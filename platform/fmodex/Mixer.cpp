#include "platform/fmodex/Mixer.h"

#include "platform/fmodex/Loopback.h"

#include <AL/alext.h>
#include <AL/efx.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

using platform::fmodex::Decoder;

namespace {

constexpr std::size_t largest_effect = std::size_t{64} << 20; // bytes of samples
constexpr std::size_t load_piece = 65536;                     // frames
/// A refill ends here, but for the piece that it is at: with that, less than a tick.
constexpr std::chrono::milliseconds longest_update{20};
constexpr int index_bits = 12;       // of a channel in its handle
constexpr int loopback_rate = 44100; // Hz

bool loopback = false;

template <class Function>
Function loopbackFunction(const char* name) {
    return reinterpret_cast<Function>(alcGetProcAddress(nullptr, name));
}

void submit(ALuint buffer, int sampleRate, const std::vector<std::int16_t>& samples) {
    alBufferData(buffer, AL_FORMAT_STEREO16, samples.data(),
                 static_cast<ALsizei>(samples.size() * sizeof samples[0]), sampleRate);
}

/// Keeps what OpenAL and ALSA write about a missing card off the player's terminal, unless their
/// log was asked for.
class Quiet {
public:
    Quiet() {
        const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
        if (nowhere < 0) return;
        if (std::getenv("ALSOFT_LOGLEVEL") == nullptr) {
            errors = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
            if (errors >= 0) dup2(nowhere, STDERR_FILENO);
        }
        ::close(nowhere);
    }
    ~Quiet() {
        if (errors < 0) return;
        dup2(errors, STDERR_FILENO);
        ::close(errors);
    }
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;

private:
    int errors = -1; ///< a copy of standard error; -1 if it was left alone
};

ALCdevice* openDevice() {
    const Quiet quiet;
    if (loopback)
        return loopbackFunction<LPALCLOOPBACKOPENDEVICESOFT>("alcLoopbackOpenDeviceSOFT")(nullptr);
    return alcOpenDevice(nullptr);
}

ALCcontext* openContext(ALCdevice* device, int sources) {
    const ALCint loopbackFormat[] = {
        ALC_FORMAT_CHANNELS_SOFT, ALC_STEREO_SOFT, ALC_FORMAT_TYPE_SOFT,
        ALC_SHORT_SOFT,           ALC_FREQUENCY,   loopback_rate,
        ALC_STEREO_SOURCES,       sources,         0};
    // No guess at headphones: it would colour the music. No room effects: every voice would have
    // memory for them.
    const ALCint cardFormat[] = {
        ALC_STEREO_SOURCES, sources, ALC_HRTF_SOFT, ALC_FALSE, ALC_MAX_AUXILIARY_SENDS, 0, 0};
    return alcCreateContext(device, loopback ? loopbackFormat : cardFormat);
}

} // namespace

namespace platform::fmodex {

void useLoopback() {
    loopback = true;
}

void render(FMOD_SYSTEM* system, std::int16_t* samples, int frames) {
    system->awaitOutput();
    loopbackFunction<LPALCRENDERSAMPLESSOFT>("alcRenderSamplesSOFT")(system->device, samples,
                                                                     frames);
}

} // namespace platform::fmodex

namespace {

void closeOutput() {
    FMOD_SYSTEM* system = nullptr;
    FMOD_System_Create(&system);
    system->close();
}

} // namespace

FMOD_RESULT FMOD_SYSTEM::start(int maxChannels) {
    if (maxChannels < 1 || maxChannels >= 1 << index_bits) return FMOD_ERR_INVALID_PARAM;
    if (!channels.empty()) return FMOD_OK;
    channels.resize(static_cast<std::size_t>(maxChannels));
    device = openDevice();
    if (device == nullptr) return FMOD_OK; // silent
    // If no thread can be started, the first caller that needs the output opens it.
    opening =
        std::async(std::launch::async | std::launch::deferred, openContext, device, maxChannels);
    std::atexit(closeOutput); // OpenAL complains of a device that is left open
    return FMOD_OK;
}

void FMOD_SYSTEM::awaitOutput() {
    if (!opening.valid()) return;
    context = opening.get();
    if (context != nullptr && alcMakeContextCurrent(context) == ALC_FALSE) {
        alcDestroyContext(context);
        context = nullptr;
    }
    for (Channel& channel : channels) {
        if (context == nullptr) break;
        alGenSources(1, &channel.source);
        alSourcei(channel.source, AL_DIRECT_CHANNELS_SOFT,
                  AL_TRUE); // left stays left, whatever the speakers
    }
    for (FMOD_SOUND* effect : early)
        submitSamples(*effect);
    early.clear();
}

void FMOD_SYSTEM::close() {
    awaitOutput();
    alcMakeContextCurrent(nullptr);
    alcDestroyContext(context);
    alcCloseDevice(device);
    context = nullptr; // later calls are silent
    device = nullptr;
}

FMOD_RESULT FMOD_SYSTEM::load(const char* path, FMOD_SOUND** result) {
    Decoder decoder;
    const FMOD_RESULT opened = decoder.open(path);
    if (opened != FMOD_OK) return opened;
    // In pieces: a length that the header invents must not claim the memory for it.
    std::vector<std::int16_t> samples;
    while (decoder.read(samples, load_piece) == load_piece)
        if (samples.size() * sizeof samples[0] > largest_effect) return FMOD_ERR_MEMORY;
    if (samples.empty()) return FMOD_ERR_FILE_BAD;

    auto sound = std::make_unique<FMOD_SOUND>();
    sound->length = decoder.lengthMs();
    sound->samples = std::move(samples);
    sound->sampleRate = decoder.sampleRate();
    if (opening.valid())
        early.push_back(sound.get());
    else
        submitSamples(*sound);
    *result = sound.release();
    return FMOD_OK;
}

/// If OpenAL has no room for the samples, the effect stays silent.
void FMOD_SYSTEM::submitSamples(FMOD_SOUND& effect) {
    if (!isSilent()) {
        alGenBuffers(1, &effect.buffer);
        submit(effect.buffer, effect.sampleRate, effect.samples);
    }
    std::vector<std::int16_t>().swap(effect.samples); // an empty list would keep the memory
}

FMOD_RESULT FMOD_SYSTEM::open(const char* path, FMOD_SOUND** result) {
    auto sound = std::make_unique<FMOD_SOUND>();
    sound->decoder = std::make_unique<Decoder>();
    const FMOD_RESULT opened = sound->decoder->open(path);
    if (opened != FMOD_OK) return opened;
    sound->length = sound->decoder->lengthMs();
    if (!isSilent()) alGenBuffers(static_cast<ALsizei>(sound->queue.size()), sound->queue.data());
    *result = sound.release();
    return FMOD_OK;
}

FMOD_SYSTEM::Channel* FMOD_SYSTEM::find(FMOD_CHANNEL* handle) {
    const auto value = reinterpret_cast<std::uintptr_t>(handle);
    const std::size_t index = (value & ((1U << index_bits) - 1)) - 1;
    if (value == 0 || index >= channels.size()) return nullptr;
    Channel& channel = channels[index];
    const bool current = channel.sound != nullptr && handleOf(channel) == handle;
    return current ? &channel : nullptr;
}

FMOD_CHANNEL* FMOD_SYSTEM::handleOf(const Channel& channel) const {
    const auto index = static_cast<std::uintptr_t>(&channel - channels.data());
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle, which is never dereferenced
    return reinterpret_cast<FMOD_CHANNEL*>(std::uintptr_t{channel.generation} << index_bits |
                                           (index + 1));
}

bool FMOD_SYSTEM::hasEnded(const Channel& channel) {
    if (channel.paused || isSilent()) return false;
    ALint state = AL_STOPPED;
    alGetSourcei(channel.source, AL_SOURCE_STATE, &state);
    return state == AL_STOPPED && (!channel.sound->isStream() || channel.sound->atEnd);
}

FMOD_SYSTEM::Channel* FMOD_SYSTEM::freeChannel() {
    Channel* oldest = nullptr;
    for (Channel& channel : channels) {
        if (channel.sound != nullptr && hasEnded(channel)) stop(channel);
        if (channel.sound == nullptr) return &channel;
        if (channel.sound->isStream()) continue;
        if (oldest == nullptr || channel.startedAt < oldest->startedAt) oldest = &channel;
    }
    if (oldest != nullptr) stop(*oldest);
    return oldest;
}

void FMOD_SYSTEM::stop(Channel& channel) {
    if (!isSilent()) {
        alSourceStop(channel.source);
        alSourcei(channel.source, AL_BUFFER, 0); // lets go of a queue, too
    }
    channel.sound = nullptr;
    ++channel.generation;
}

FMOD_RESULT FMOD_SYSTEM::play(FMOD_SOUND* sound, bool paused, FMOD_CHANNEL** result) {
    if (sound->isStream())
        for (Channel& channel : channels)
            if (channel.sound == sound) stop(channel);
    Channel* const channel = freeChannel();
    if (channel == nullptr) return FMOD_ERR_CHANNEL_ALLOC;
    channel->sound = sound;
    channel->paused = paused;
    channel->startedAt = ++starts;
    *result = handleOf(*channel);
    if (isSilent()) return FMOD_OK;

    alSourcef(channel->source, AL_GAIN, 1.0F);
    alSourcei(channel->source, AL_SOURCE_RELATIVE, AL_TRUE);
    if (sound->isStream()) {
        sound->decoder->rewind();
        sound->atEnd = false;
        sound->spare.assign(sound->queue.begin(), sound->queue.end());
        while (!sound->spare.empty() && !sound->atEnd)
            queueNextPiece(*channel);
    } else {
        alSourcei(channel->source, AL_BUFFER, static_cast<ALint>(sound->buffer));
    }
    if (!paused) alSourcePlay(channel->source);
    return FMOD_OK;
}

void FMOD_SYSTEM::queueNextPiece(Channel& channel) {
    FMOD_SOUND& sound = *channel.sound;
    const std::size_t frames =
        static_cast<std::size_t>(sound.decoder->sampleRate()) / FMOD_SOUND::pieces_per_second;
    sound.piece.clear();
    if (sound.decoder->read(sound.piece, frames) < frames) sound.atEnd = true;
    if (sound.piece.empty()) return;
    const ALuint buffer = sound.spare.back();
    sound.spare.pop_back();
    submit(buffer, sound.decoder->sampleRate(), sound.piece);
    alSourceQueueBuffers(channel.source, 1, &buffer);
}

void FMOD_SYSTEM::refill(Channel& channel, Clock::time_point until) {
    FMOD_SOUND& sound = *channel.sound;
    // Asked first: a source that stops from here on is started again by the next call.
    ALint state = AL_PLAYING, processed = 0;
    alGetSourcei(channel.source, AL_SOURCE_STATE, &state);
    alGetSourcei(channel.source, AL_BUFFERS_PROCESSED, &processed);
    for (; processed > 0; --processed) {
        ALuint buffer = 0;
        alSourceUnqueueBuffers(channel.source, 1, &buffer);
        sound.spare.push_back(buffer);
    }
    if (sound.spare.empty() || sound.atEnd) return;
    do
        queueNextPiece(channel);
    while (!sound.spare.empty() && !sound.atEnd && Clock::now() < until);
    // After a stall longer than the queue it goes on where it stood.
    if (state == AL_STOPPED) alSourcePlay(channel.source);
}

void FMOD_SYSTEM::update() {
    if (opening.valid() || isSilent()) return; // no stream plays before it is open
    const Clock::time_point until = Clock::now() + longest_update;
    for (Channel& channel : channels)
        if (channel.sound != nullptr && channel.sound->isStream() && !channel.paused)
            refill(channel, until);
}

FMOD_RESULT FMOD_SYSTEM::setVolume(FMOD_CHANNEL* handle, float volume) {
    Channel* const channel = find(handle);
    if (channel == nullptr) return FMOD_ERR_INVALID_HANDLE;
    const float gain = volume == volume ? std::clamp(volume, 0.0F, 1.0F) : 0.0F;
    if (!isSilent()) alSourcef(channel->source, AL_GAIN, gain);
    return FMOD_OK;
}

FMOD_RESULT FMOD_SYSTEM::setPaused(FMOD_CHANNEL* handle, bool paused) {
    Channel* const channel = find(handle);
    if (channel == nullptr) return FMOD_ERR_INVALID_HANDLE;
    if (channel->paused == paused || hasEnded(*channel)) return FMOD_OK;
    if (isSilent()) {
        channel->paused = paused;
        return FMOD_OK;
    }
    // A stream that a stall has stopped goes on first: only what plays can be halted.
    if (paused && channel->sound->isStream()) refill(*channel, Clock::now());
    channel->paused = paused;
    if (paused)
        alSourcePause(channel->source);
    else
        alSourcePlay(channel->source);
    return FMOD_OK;
}

FMOD_RESULT FMOD_SYSTEM::release(FMOD_SOUND* sound) {
    for (Channel& channel : channels)
        if (channel.sound == sound) stop(channel);
    if (!isSilent() && sound->isStream())
        alDeleteBuffers(static_cast<ALsizei>(sound->queue.size()), sound->queue.data());
    else if (!isSilent())
        alDeleteBuffers(1, &sound->buffer);
    delete sound;
    return FMOD_OK;
}
