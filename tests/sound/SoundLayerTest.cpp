#include "platform/fmodex/Mixer.h"

#include "platform/fmodex/Loopback.h"
#include "tests/support/Files.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>
#include <sndfile.h>
#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <memory>
#include <set>

// What the layer plays is rendered into memory and looked at there.

namespace {

namespace fs = boost::filesystem;
using platform::fmodex::Decoder;

constexpr int rate = 44100;
constexpr double pi = 3.141592653589793;
constexpr int no_updates = 0;

struct Wave {
    double hertz, seconds;
    double level = 0.5;
    int channels = 1;
    double rise = 0;         ///< Hz that each second is higher than the one before
    double laterLevel = 0.5; ///< from the third second on
};

std::string zeros(std::size_t count) {
    return std::string(count, '\0');
}

const std::string unknown = "\xff\xff\xff\xff"; // a size that a pipe's writer leaves open

/// A WAV with other sizes of the whole and of its sound.
std::string resized(std::string file, const std::string& whole, const std::string& sound) {
    return file.replace(4, 4, whole).replace(40, 4, sound);
}

/// The left side of a file, -1 to 1.
std::vector<double> samplesOf(const std::string& path) {
    Decoder decoder;
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
    for (int i = 0; i < static_cast<int>(wave.seconds * rate); ++i) {
        const double hertz = wave.hertz + wave.rise * (i / rate);
        const double level = i < 2 * rate ? wave.level : wave.laterLevel;
        const double value = level * std::sin(2 * pi * hertz * i / rate);
        const std::vector<float> frame(static_cast<std::size_t>(wave.channels),
                                       static_cast<float>(value));
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
    static FMOD_CHANNEL* play(FMOD_SOUND* sound) {
        FMOD_CHANNEL* channel = nullptr;
        EXPECT_EQ(FMOD_System_PlaySound(system, FMOD_CHANNEL_ANY, sound, 0, &channel), FMOD_OK);
        return channel;
    }
    /// An effect or a song that plays from the start on, while this lives.
    struct Playing {
        explicit Playing(const std::string& path, bool isSong = true) {
            const auto create = isSong ? FMOD_System_CreateStream : FMOD_System_CreateSound;
            const unsigned int mode = isSong ? FMOD_MODE_STREAM : FMOD_MODE_EFFECT;
            EXPECT_EQ(create(system, path.c_str(), mode, nullptr, &sound), FMOD_OK) << path;
            channel = play(sound);
        }
        ~Playing() { FMOD_Sound_Release(sound); }
        Playing(const Playing&) = delete;
        Playing& operator=(const Playing&) = delete;
        unsigned int length() const { // in ms
            unsigned int ms = 0;
            EXPECT_EQ(FMOD_Sound_GetLength(sound, &ms, FMOD_LENGTH_MS), FMOD_OK);
            return ms;
        }

        FMOD_SOUND* sound = nullptr;
        FMOD_CHANNEL* channel;
    };
    /// The left side of what is heard in that time, frame by frame.
    static std::vector<std::int16_t> hear(double seconds, int updatesPerSecond = 100) {
        const int step = rate / (updatesPerSecond > 0 ? updatesPerSecond : 100);
        std::vector<std::int16_t> left, both(static_cast<std::size_t>(step) * 2);
        for (int done = 0; done < seconds * rate; done += step) {
            if (updatesPerSecond > 0) FMOD_System_Update(system);
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
    const Playing low("low.wav", false), high("high.wav", false);
    EXPECT_EQ(low.length(), 1000U);
    FMOD_Channel_SetVolume(low.channel, 0.25F);
    hear(0.1); // a change of level is eased in
    const auto heard = hear(0.5);
    const double full = levelOf(heard, 2000);
    EXPECT_GT(full, 0.2);
    EXPECT_NEAR(levelOf(heard, 500) / full, 0.25, 0.02);
    EXPECT_LT(levelOf(heard, 1250), 0.01);
}

TEST_F(SoundLayer, PlaysTheGamesSongs) {
    std::set<std::string> endings;
    for (const fs::path& path : fs::directory_iterator(KOV_SOURCE_DIR "/Songs")) {
        if (path.extension() != ".mp3" && path.extension() != ".ogg") continue;
        endings.insert(path.extension().string());
        const Playing song(path.string());
        EXPECT_GE(song.length(), 90000U) << path;
        const auto heard = hear(2);
        EXPECT_GT(*std::max_element(heard.begin(), heard.end()), 1000) << path;
    }
    EXPECT_EQ(endings.size(), 2U);
}

TEST_F(SoundLayer, CutsWhatIsTooLoudAndSilencesWhatIsNoNumber) {
    const double full = 32767 / 32768.0;
    for (const auto& [level, heard] : {std::pair{4.0, full}, {std::nan(""), 0.0}}) {
        write("loud.wav", SF_FORMAT_WAV | SF_FORMAT_FLOAT, {440, 1, level});
        const auto samples = samplesOf("loud.wav");
        const auto [least, most] = std::minmax_element(samples.begin(), samples.end());
        EXPECT_EQ(*least, -heard);
        EXPECT_EQ(*most, heard);
    }
}

TEST_F(SoundLayer, LetsTheOldestEffectGiveWayAndNeverTheSong) {
    write("song.wav", wav, {300, 5, 0.3});
    write("tick.wav", wav, {3000, 2, 0.01});
    auto song = std::make_unique<Playing>("song.wav"),
         tick = std::make_unique<Playing>("tick.wav", false);
    FMOD_CHANNEL* const music = song->channel;
    std::vector<FMOD_CHANNEL*> ticks = {tick->channel};
    while (ticks.size() < 60)
        ticks.push_back(play(tick->sound));
    hear(0.1);
    const auto heard = hear(0.5);
    EXPECT_GT(levelOf(heard, 300), 0.1);
    EXPECT_GT(levelOf(heard, 3000), 0.1) << "39 at once";
    EXPECT_EQ(FMOD_Channel_SetVolume(ticks[20], 0.5F), FMOD_ERR_INVALID_HANDLE) << "gave way";
    EXPECT_EQ(FMOD_Channel_SetVolume(ticks[21], 0.5F), FMOD_OK);
    EXPECT_EQ(FMOD_Channel_SetVolume(music, 0.5F), FMOD_OK);
    tick.reset();
    song.reset();
    EXPECT_LT(levelOf(hear(0.1), 300), 0.01) << "at once";
    for (FMOD_CHANNEL* const channel : {static_cast<FMOD_CHANNEL*>(nullptr), music, ticks.back()}) {
        EXPECT_EQ(FMOD_Channel_SetPaused(channel, 1), FMOD_ERR_INVALID_HANDLE);
        EXPECT_EQ(FMOD_Channel_SetVolume(channel, 1), FMOD_ERR_INVALID_HANDLE);
    }
}

TEST_F(SoundLayer, StreamsEveryKindWithItsLengthToTheEnd) {
    for (const auto& [path, format] : {std::pair{"a.wav", wav}, {"a.ogg", ogg}, {"a.mp3", mp3}}) {
        write(path, format, {440, 3.3, 0.5, 2});
        const Playing song(path);
        EXPECT_NEAR(song.length(), 3300, 50) << path;
        const auto heard = hear(3, 2); // the fewest frames a second without a gap
        for (int part = 0; part < 3; ++part) {
            const auto first = heard.begin() + part * rate;
            EXPECT_NEAR(levelOf({first + 4410, first + rate}, 440), 0.5, 0.05)
                << path << " second " << part;
        }
        hear(0.5);
        EXPECT_LT(levelOf(hear(0.2), 440), 0.01) << path << " does not loop";
        EXPECT_EQ(FMOD_Channel_SetPaused(song.channel, 1), FMOD_OK);
        for (int time = 0; time < 2; ++time) { // from its end, and while it plays
            play(song.sound);
            const auto anew = hear(3);
            EXPECT_NEAR(levelOf({anew.begin() + 4410, anew.end()}, 440), 0.5, 0.05) << path;
        }
    }
}

TEST_F(SoundLayer, GoesOnWhereItStoodAfterAPauseOrAStall) {
    write("long.wav", wav, {400, 7, 0.5, 1, 200}); // 400, 600, 800 Hz and so on
    const Playing song("long.wav");
    hear(0.49);
    FMOD_Channel_SetPaused(song.channel, 0); // it plays already, and isn't started anew
    hear(0.01);
    FMOD_Channel_SetPaused(song.channel, 1);
    hear(0.05); // what is on its way
    EXPECT_LT(levelOf(hear(0.5), 400), 0.01);
    FMOD_Channel_SetPaused(song.channel, 0);
    const auto stalled = hear(1.0, no_updates);
    EXPECT_NEAR(levelOf(stalled, 400), 0.25, 0.02) << "half a second of each";
    EXPECT_NEAR(levelOf(stalled, 600), 0.25, 0.02);
    EXPECT_NEAR(levelOf(hear(0.5), 600), 0.5, 0.02);
    hear(4.0, no_updates); // longer than the queue, which ends at 4 s
    EXPECT_LT(levelOf(hear(0.1, no_updates), 1000), 0.01);
    const auto after = hear(0.2), later = hear(0.7);
    EXPECT_LT(levelOf(after, 800), 0.02) << "nothing is heard twice";
    EXPECT_GT(levelOf(after, 1200), 0.15);
    EXPECT_NEAR(levelOf(later, 1200), 0.5, 0.02);
}

TEST(Downmix, KeepsEachSpeakerOnItsSide) {
    using platform::fmodex::Downmix;
    const struct {
        const char* what;
        int channels;
        Downmix::Order order;
        std::size_t speaker;
        float left, right;
    } cases[] = {
        {"mono", 1, Downmix::Order::wav, 0, 1, 1},
        {"right of 5.1", 6, Downmix::Order::wav, 1, 0, 0.3694F}, // 1 / (1 + 0.7071 + 1)
        {"middle of 5.1", 6, Downmix::Order::wav, 2, 0.2612F, 0.2612F},
        {"low of 5.1", 6, Downmix::Order::wav, 3, 0, 0},
        {"middle of 5.1, Vorbis", 6, Downmix::Order::vorbis, 1, 0.2612F, 0.2612F},
        {"back left of 7.1", 8, Downmix::Order::wav, 4, 0.2697F, 0}, // 1 / 3.7071
        {"any of nine", 9, Downmix::Order::vorbis, 8, 1 / 9.0F, 1 / 9.0F},
    };
    for (const auto& c : cases) {
        std::vector<float> frame(static_cast<std::size_t>(c.channels));
        frame[c.speaker] = 1;
        const auto mixed = Downmix(c.channels, c.order)(frame.data());
        EXPECT_NEAR(mixed[0], c.left, 0.0001) << c.what;
        EXPECT_NEAR(mixed[1], c.right, 0.0001) << c.what;
    }
}

TEST_F(SoundLayer, PlaysWhateverAnyPlayerOpens) {
    write("one.wav", wav, {440, 1});
    write("one.mp3", mp3, {440, 1, 0.5, 2});
    write("one.ogg", ogg, {440, 1});
    write("adpcm.wav", SF_FORMAT_WAV | SF_FORMAT_MS_ADPCM, {440, 1, 0.5, 2});
    write("odd.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_24, {440, 0.9999});
    const std::string plain = contentsOf("one.wav"), packed = contentsOf("one.mp3");
    const std::string pictures(300'000, '\x5a'); // 0x0493e0, in sevens 0x12 0x27 0x60
    const std::string id3 = std::string("ID3\3\0\0\0\x12\x27\x60", 10) + pictures;
    const std::string ape =
        std::string("APETAGEX\xd0\7\0\0\xe0\x93\4\0", 16) + zeros(16) + pictures;
    const struct {
        const char* what;
        std::string content;
    } cases[] = {
        {"zeros in front", zeros(40'000) + packed},
        {"junk in front", std::string(5000, '\x5a') + packed},
        {"APE, ID3 and zeros", ape + id3 + zeros(100) + packed},
        {"an ID3 before an Ogg", id3 + contentsOf("one.ogg")},
        {"sizes of 0", resized(plain, zeros(4), zeros(4))},
        {"sizes unknown", resized(plain, unknown, unknown)},
        {"MS-ADPCM, other bytes a second", contentsOf("adpcm.wav").replace(28, 4, "abc", 4)},
        {"an odd number of bytes", contentsOf("odd.wav")},
    };
    for (const auto& c : cases) {
        fill("any", c.content);
        const Playing song("any");
        EXPECT_NEAR(song.length(), 1000, 60) << c.what;
        hear(0.1);
        EXPECT_NEAR(levelOf(hear(0.5), 440), 0.5, 0.05) << c.what;
    }
}

TEST_F(SoundLayer, TellsTheLengthOfAVariableRateSongThatHidesIt) {
    write("full.mp3", mp3, {5000, 12, 0.9, 2, 37, 0.001}); // the rate falls after two seconds
    const std::string whole = contentsOf("full.mp3");
    fill("bare.mp3", whole.substr(whole.find("\xff\xfb", 4)));
    for (const char* path : {"full.mp3", "bare.mp3"}) // bare: with the coder's lead-in
        EXPECT_NEAR(Playing(path).length(), 12025, 50) << path;
}

TEST_F(SoundLayer, RefusesBadFilesWithACode) {
    write("good.wav", wav, {440, 0.5});
    const std::string good = contentsOf("good.wav");
    write("good.mp3", mp3, {440, 0.5, 0.5, 2});
    const std::string gigabytes = "\xff\xff\xff\x7f";
    const struct {
        const char* what;
        std::string content;
        FMOD_RESULT code;
    } cases[] = {
        {"empty", "", FMOD_ERR_FORMAT},
        {"garbage", std::string(5000, '\x5a'), FMOD_ERR_FORMAT},
        {"a frame's mark and garbage", "\xff\xfb\x90\x64" + std::string(5000, '\x5a'),
         FMOD_ERR_FORMAT},
        {"lying about its size", resized(good, good.substr(4, 4), gigabytes), FMOD_ERR_FILE_BAD},
        {"open, without sound", resized(good.substr(0, 44), unknown, unknown), FMOD_ERR_FILE_BAD},
        {"a tag longer than the file", "ID3\3" + std::string(5000, '\x5a'), FMOD_ERR_FORMAT},
        {"an MP3 behind too much", zeros(70'000) + contentsOf("good.mp3"), FMOD_ERR_FORMAT},
        {"whole", good, FMOD_OK},
    };
    for (const auto& c : cases) {
        fill("bad.wav", c.content);
        EXPECT_EQ(Decoder().open("bad.wav"), c.code) << c.what;
    }
    for (const int format : {ogg, mp3}) {
        write("song", format, {440, 4, 0.5, 2});
        const std::string song = contentsOf("song");
        fill("half", song.substr(0, song.size() / 2));
        EXPECT_EQ(Decoder().open("half"), FMOD_ERR_FILE_BAD) << format;
    }
    fill("zeros.mp3", "");
    fs::resize_file("zeros.mp3", 2'000'000'000);
    fs::create_directory("folder.mp3");
    mkfifo("pipe.mp3", 0600);
    const auto start = std::chrono::steady_clock::now();
    for (const char* path : {"none.mp3", "folder.mp3", "pipe.mp3", "/dev/zero"})
        EXPECT_EQ(Decoder().open(path), FMOD_ERR_FILE_NOTFOUND) << path;
    EXPECT_EQ(Decoder().open("zeros.mp3"), FMOD_ERR_FORMAT);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    EXPECT_STREQ(FMOD_ErrorString(FMOD_ERR_FILE_NOTFOUND), "File not found.");
}
