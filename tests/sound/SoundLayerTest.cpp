#include "platform/fmodex/Mixer.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>
#include <sndfile.h>

#include <cmath>
#include <fstream>
#include <limits>

// What the layer plays is rendered into memory and looked at there.

namespace {

namespace fs = boost::filesystem;

constexpr int rate = 44100;
constexpr double pi = 3.141592653589793;
constexpr unsigned int sample_mode = 0x4149, stream_mode = 64;

struct Wave {
    double hertz, seconds;
    double level = 0.5;
    int channels = 1;
};

void write(const std::string& path, int format, const Wave& wave) {
    SF_INFO info = {};
    info.samplerate = rate;
    info.channels = wave.channels;
    info.format = format;
    SNDFILE* const file = sf_open(path.c_str(), SFM_WRITE, &info);
    ASSERT_NE(file, nullptr) << path << ": " << sf_strerror(nullptr);
    if ((format & SF_FORMAT_TYPEMASK) == SF_FORMAT_MPEG) {
        int mode = SF_BITRATE_MODE_VARIABLE;
        sf_command(file, SFC_SET_BITRATE_MODE, &mode, sizeof mode);
    }
    std::vector<float> frame(static_cast<std::size_t>(wave.channels));
    for (int i = 0; i < static_cast<int>(wave.seconds * rate); ++i) {
        const double value = wave.level * std::sin(2 * pi * wave.hertz * i / rate);
        std::fill(frame.begin(), frame.end(), static_cast<float>(value));
        sf_writef_float(file, frame.data(), 1);
    }
    sf_close(file);
}

class SoundLayer : public testing::Test {
protected:
    static void SetUpTestSuite() {
        fs::create_directories(folder());
        fs::current_path(folder());
        platform::fmodex::useLoopback();
        ASSERT_EQ(FMOD_System_Create(&system), FMOD_OK);
        ASSERT_EQ(FMOD_System_Init(system, 40, 0, nullptr), FMOD_OK);
    }
    static void TearDownTestSuite() {
        fs::current_path("/");
        fs::remove_all(folder());
    }
    static fs::path folder() {
        static const fs::path path = fs::temp_directory_path() / fs::unique_path("kov-sound-%%%%");
        return path;
    }
    static FMOD_SOUND* load(const char* path) {
        FMOD_SOUND* sound = nullptr;
        EXPECT_EQ(FMOD_System_CreateSound(system, path, sample_mode, nullptr, &sound), FMOD_OK);
        return sound;
    }
    static FMOD_SOUND* open(const char* path) {
        FMOD_SOUND* sound = nullptr;
        EXPECT_EQ(FMOD_System_CreateStream(system, path, stream_mode, nullptr, &sound), FMOD_OK);
        return sound;
    }
    static FMOD_CHANNEL* play(FMOD_SOUND* sound) {
        FMOD_CHANNEL* channel = nullptr;
        EXPECT_EQ(FMOD_System_PlaySound(system, -1, sound, 0, &channel), FMOD_OK);
        return channel;
    }
    /// The left side of what is heard in that time, frame by frame; an update every 10 ms.
    static std::vector<std::int16_t> hear(double seconds, bool updating = true) {
        constexpr int step = rate / 100;
        std::vector<std::int16_t> left, both(step * 2);
        for (int done = 0; done < seconds * rate; done += step) {
            if (updating) FMOD_System_Update(system);
            platform::fmodex::render(system, both.data(), step);
            for (int i = 0; i < step; ++i)
                left.push_back(both[static_cast<std::size_t>(i) * 2]);
        }
        return left;
    }
    /// Amplitude of one frequency (Goertzel 1958), 1 being full scale.
    static double levelOf(const std::vector<std::int16_t>& samples, double hertz) {
        double re = 0, im = 0;
        for (std::size_t i = 0; i < samples.size(); ++i) {
            const double phase = 2 * pi * hertz * static_cast<double>(i) / rate;
            re += samples[i] * std::cos(phase);
            im += samples[i] * std::sin(phase);
        }
        return 2 * std::hypot(re, im) / static_cast<double>(samples.size()) / 32768;
    }

    static FMOD_SYSTEM* system;
};

FMOD_SYSTEM* SoundLayer::system = nullptr;

constexpr int wav = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
constexpr int ogg = SF_FORMAT_OGG | SF_FORMAT_VORBIS;
constexpr int mp3 = SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III;

} // namespace

TEST_F(SoundLayer, MixesEveryEffectAtTheLevelSet) {
    write("low.wav", wav, {500, 1});
    write("high.wav", wav, {2000, 1});
    FMOD_SOUND *low = load("low.wav"), *high = load("high.wav");
    FMOD_CHANNEL* const quiet = play(low);
    play(high);
    FMOD_Channel_SetVolume(quiet, 0.25F);
    hear(0.1); // a change of level is eased in
    const auto heard = hear(0.5);
    const double full = levelOf(heard, 2000);
    EXPECT_GT(full, 0.2);
    EXPECT_NEAR(levelOf(heard, 500) / full, 0.25, 0.02);
    EXPECT_LT(levelOf(heard, 1250), 0.01);
    for (const float volume : {-1.0F, std::numeric_limits<float>::quiet_NaN()}) {
        FMOD_Channel_SetVolume(quiet, volume);
        hear(0.1);
        EXPECT_LT(levelOf(hear(0.1), 500), 0.01);
    }
    FMOD_Sound_Release(low);
    FMOD_Sound_Release(high);
}

TEST_F(SoundLayer, LetsTheOldestEffectGiveWayAndNeverTheSong) {
    write("song.wav", wav, {300, 5, 0.3});
    write("tick.wav", wav, {3000, 2, 0.01});
    FMOD_SOUND *song = open("song.wav"), *tick = load("tick.wav");
    FMOD_CHANNEL* const music = play(song);
    std::vector<FMOD_CHANNEL*> ticks;
    for (int i = 0; i < 60; ++i)
        ticks.push_back(play(tick));
    hear(0.1);
    const auto heard = hear(0.5);
    EXPECT_GT(levelOf(heard, 300), 0.1);
    EXPECT_GT(levelOf(heard, 3000), 0.1) << "39 at once";
    EXPECT_EQ(FMOD_Channel_SetVolume(ticks[20], 0.5F), FMOD_ERR_INVALID_HANDLE) << "gave way";
    EXPECT_EQ(FMOD_Channel_SetVolume(ticks[21], 0.5F), FMOD_OK);
    EXPECT_EQ(FMOD_Channel_SetVolume(music, 0.5F), FMOD_OK);
    FMOD_Sound_Release(tick);
    EXPECT_EQ(FMOD_Channel_SetPaused(ticks[59], 1), FMOD_ERR_INVALID_HANDLE);
    FMOD_Sound_Release(song);
    EXPECT_LT(levelOf(hear(0.1), 300), 0.01) << "at once";
    for (FMOD_CHANNEL* const channel : {static_cast<FMOD_CHANNEL*>(nullptr), music}) {
        EXPECT_EQ(FMOD_Channel_SetPaused(channel, 1), FMOD_ERR_INVALID_HANDLE);
        EXPECT_EQ(FMOD_Channel_SetVolume(channel, 1), FMOD_ERR_INVALID_HANDLE);
    }
}

TEST_F(SoundLayer, StreamsEveryKindWithItsLengthToTheEnd) {
    const struct {
        const char* path;
        int format;
    } kinds[] = {{"a.wav", wav}, {"a.ogg", ogg}, {"a.mp3", mp3}};
    for (const auto& kind : kinds) {
        write(kind.path, kind.format, {440, 3.3, 0.5, 2});
        FMOD_SOUND* const song = open(kind.path);
        unsigned int length = 0;
        EXPECT_EQ(FMOD_Sound_GetLength(song, &length, 1), FMOD_OK);
        EXPECT_NEAR(length, 3300, 50) << kind.path;
        FMOD_CHANNEL* const channel = play(song);
        const auto heard = hear(3.2);
        for (int part = 0; part < 3; ++part) {
            const auto first = heard.begin() + part * rate;
            EXPECT_NEAR(levelOf({first + 4410, first + rate}, 440), 0.5, 0.05)
                << kind.path << " second " << part;
        }
        hear(0.3);
        EXPECT_LT(levelOf(hear(0.2), 440), 0.01) << kind.path << " does not loop";
        EXPECT_EQ(FMOD_Channel_SetPaused(channel, 1), FMOD_OK);
        FMOD_Sound_Release(song);
    }
}

TEST_F(SoundLayer, SurvivesAStallOfASecond) {
    write("long.wav", wav, {440, 6});
    FMOD_SOUND* const song = open("long.wav");
    play(song);
    hear(0.5);
    EXPECT_NEAR(levelOf(hear(1.0, false), 440), 0.5, 0.02) << "without an update";
    hear(0.5);
    EXPECT_NEAR(levelOf(hear(1.0), 440), 0.5, 0.02);
    FMOD_Sound_Release(song);
}

TEST_F(SoundLayer, APauseLosesAndRepeatsNothing) {
    write("tone.wav", wav, {100, 4});
    FMOD_SOUND* const song = open("tone.wav");
    FMOD_CHANNEL* const channel = play(song);
    auto heard = hear(0.73);
    FMOD_Channel_SetPaused(channel, 1);
    const auto silence = hear(0.5);
    FMOD_Channel_SetPaused(channel, 0);
    const auto after = hear(0.73);
    EXPECT_LT(levelOf({silence.begin() + 2205, silence.end()}, 100), 0.01);
    const auto crossings = [](const std::vector<std::int16_t>& samples) {
        int count = 0;
        bool below = false;
        for (const std::int16_t sample : samples) { // by a margin: the output is dithered
            if (sample < -2000) below = true;
            if (sample > 2000 && below) {
                below = false;
                ++count;
            }
        }
        return count;
    };
    heard.insert(heard.end(), after.begin(), after.end());
    EXPECT_NEAR(crossings(heard), 146, 1) << "a hundred a second";
    FMOD_Sound_Release(song);
}

TEST_F(SoundLayer, RefusesBadFilesWithACode) {
    write("good.wav", wav, {440, 0.5});
    const auto bytes = [](const char* name) {
        std::ifstream file(name, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    };
    const std::string good = bytes("good.wav");
    std::string lying = good;
    lying.replace(40, 4, "\xff\xff\xff\x7f"); // says two gigabytes
    const struct {
        const char* what;
        std::string content;
        bool loads;
        FMOD_RESULT code;
    } cases[] = {
        {"empty", "", false, FMOD_ERR_FORMAT},
        {"garbage", std::string(5000, '\x5a'), false, FMOD_ERR_FORMAT},
        {"a header alone", good.substr(0, 44), false, FMOD_ERR_FILE_BAD},
        {"half a header", good.substr(0, 20), false, FMOD_ERR_FORMAT},
        {"cut short", good.substr(0, 5000), true, FMOD_OK},
        {"lying about its size", lying, true, FMOD_OK},
    };
    for (const auto& c : cases) {
        std::ofstream("bad.wav", std::ios::binary) << c.content;
        FMOD_SOUND* sound = nullptr;
        const FMOD_RESULT result =
            FMOD_System_CreateSound(system, "bad.wav", sample_mode, nullptr, &sound);
        EXPECT_EQ(result, c.code) << c.what;
        EXPECT_EQ(sound != nullptr, c.loads) << c.what;
        if (sound != nullptr) FMOD_Sound_Release(sound);
    }
    fs::create_directory("folder.wav");
    for (const char* path : {"none.wav", "folder.wav"}) {
        FMOD_SOUND* sound = nullptr;
        EXPECT_EQ(FMOD_System_CreateStream(system, path, stream_mode, nullptr, &sound),
                  FMOD_ERR_FILE_NOTFOUND);
        EXPECT_EQ(sound, nullptr);
    }
    EXPECT_STREQ(FMOD_ErrorString(FMOD_ERR_FILE_NOTFOUND), "File not found.");
    EXPECT_STREQ(FMOD_ErrorString(74), "Unknown error.");
    EXPECT_STREQ(FMOD_ErrorString(-1), "Unknown error.");
}
