#include "platform/fmodex/Mixer.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>
#include <sndfile.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <limits>
#include <set>

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
    double rise = 0;         ///< Hz that each second is higher than the one before
    double laterLevel = 0.5; ///< from the third second on
};

std::string bytesOf(const char* path) {
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

/// The left side of a file, -1 to 1.
std::vector<double> samplesOf(const std::string& path) {
    platform::fmodex::Decoder decoder;
    EXPECT_EQ(decoder.open(path), FMOD_OK) << path;
    std::vector<std::int16_t> both;
    decoder.read(both, decoder.frames());
    std::vector<double> left;
    for (std::size_t i = 0; i < both.size(); i += 2)
        left.push_back(both[i] / 32768.0);
    return left;
}

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
        const double hertz = wave.hertz + wave.rise * (i / rate);
        const double level = i < 2 * rate ? wave.level : wave.laterLevel;
        const double value = level * std::sin(2 * pi * hertz * i / rate);
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

TEST_F(SoundLayer, PlaysTheGamesEffectsWithoutAClick) {
    for (const std::string name :
         {"alive", "bullet", "death", "hit", "square", "Clear", "Immune", "Pup", "Bad", "Pause"}) {
        const std::string path = KOV_SOURCE_DIR "/Sounds/" + name + ".wav";
        const auto samples = samplesOf(path);
        EXPECT_EQ(samples.front(), 0) << name;
        EXPECT_EQ(samples.back(), 0) << name;
        EXPECT_LE(*std::max_element(samples.begin(), samples.end()), 0.89) << name << ": -1 dBFS";
        const bool frequent = name == "bullet" || name == "hit";
        EXPECT_TRUE(!frequent || samples.size() < 0.16 * rate) << name;
        FMOD_SOUND* const sound = load(path.c_str());
        play(sound);
        const auto heard = hear(0.1);
        EXPECT_GT(*std::max_element(heard.begin(), heard.end()), 300) << name;
        FMOD_Sound_Release(sound);
    }
}

TEST_F(SoundLayer, StreamsTheGamesSongs) {
    std::set<std::string> endings;
    for (const fs::path& path : fs::directory_iterator(KOV_SOURCE_DIR "/Songs")) {
        if (path.extension() != ".mp3" && path.extension() != ".ogg") continue;
        endings.insert(path.extension().string());
        FMOD_SOUND* const song = open(path.c_str());
        unsigned int length = 0;
        FMOD_Sound_GetLength(song, &length, 1);
        EXPECT_GE(length, 90000U) << path;
        play(song);
        const auto heard = hear(2);
        EXPECT_GT(*std::max_element(heard.begin(), heard.end()), 1000) << path;
        FMOD_Sound_Release(song);
    }
    EXPECT_EQ(endings.size(), 2U);
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

TEST_F(SoundLayer, SurvivesAStallAndGoesOnWhereItStood) {
    write("long.wav", wav, {400, 7, 0.5, 1, 200}); // 400, 600, 800 Hz and so on
    FMOD_SOUND* const song = open("long.wav");
    play(song);
    hear(0.5);
    const auto stalled = hear(1.0, false);
    EXPECT_NEAR(levelOf(stalled, 400), 0.25, 0.02) << "half a second of each";
    EXPECT_NEAR(levelOf(stalled, 600), 0.25, 0.02);
    EXPECT_NEAR(levelOf(hear(0.5), 600), 0.5, 0.02);
    hear(4.0, false); // longer than the queue, which ends at 4 s
    EXPECT_LT(levelOf(hear(0.1, false), 1000), 0.01);
    const auto after = hear(0.2), later = hear(0.7);
    EXPECT_LT(levelOf(after, 800), 0.02) << "nothing is heard twice";
    EXPECT_GT(levelOf(after, 1200), 0.15);
    EXPECT_NEAR(levelOf(later, 1200), 0.5, 0.02);
    FMOD_Sound_Release(song);
}

TEST_F(SoundLayer, TellsTheLengthOfAVariableRateSongThatHidesIt) {
    write("full.mp3", mp3, {5000, 12, 0.9, 2, 37, 0.001}); // the rate falls after two seconds
    const std::string whole = bytesOf("full.mp3");
    std::ofstream("bare.mp3", std::ios::binary) << whole.substr(whole.find("\xff\xfb", 4));
    for (const char* path : {"full.mp3", "bare.mp3"}) {
        FMOD_SOUND* const song = open(path);
        unsigned int length = 0;
        FMOD_Sound_GetLength(song, &length, 1);
        EXPECT_NEAR(length, 12025, 50) << path; // bare: with the coder's lead-in
        FMOD_Sound_Release(song);
    }
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
    const std::string good = bytesOf("good.wav");
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
        {"a frame's mark and garbage", "\xff\xfb\x90\x64" + std::string(5000, '\x5a'), false,
         FMOD_ERR_FORMAT},
        {"a header alone", good.substr(0, 44), false, FMOD_ERR_FILE_BAD},
        {"cut short", good.substr(0, 5000), false, FMOD_ERR_FILE_BAD},
        {"lying about its size", lying, false, FMOD_ERR_FILE_BAD},
        {"whole", good, true, FMOD_OK},
    };
    testing::internal::CaptureStderr();
    for (const auto& c : cases) {
        std::ofstream("bad.wav", std::ios::binary) << c.content;
        FMOD_SOUND* sound = nullptr;
        const FMOD_RESULT result =
            FMOD_System_CreateSound(system, "bad.wav", sample_mode, nullptr, &sound);
        EXPECT_EQ(result, c.code) << c.what;
        EXPECT_EQ(sound != nullptr, c.loads) << c.what;
        if (sound != nullptr) FMOD_Sound_Release(sound);
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "telling is the caller's";
    for (const int format : {ogg, mp3}) {
        write("song", format, {440, 4, 0.5, 2});
        const std::string song = bytesOf("song");
        std::ofstream("half", std::ios::binary) << song.substr(0, song.size() / 2);
        FMOD_SOUND* half = nullptr;
        EXPECT_EQ(FMOD_System_CreateStream(system, "half", stream_mode, nullptr, &half),
                  FMOD_ERR_FILE_BAD)
            << format;
    }
    fs::create_directory("folder.wav");
    for (const char* path : {"none.wav", "folder.wav"}) {
        FMOD_SOUND* sound = nullptr;
        EXPECT_EQ(FMOD_System_CreateStream(system, path, stream_mode, nullptr, &sound),
                  FMOD_ERR_FILE_NOTFOUND);
        EXPECT_EQ(sound, nullptr);
    }
}
