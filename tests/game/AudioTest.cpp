#include "game/FModMP3Input.h"

#include "Framework/math/MTRand.h"
#include "game/FModSystem.h"
#include "platform/standins/SoundRecorder.h"
#include "platform/standins/VirtualSDL.h"
#include "tests/support/Errors.h"
#include "tests/support/Files.h"
#include "tests/support/Settings.h"

#include <boost/algorithm/string/replace.hpp>
#include <boost/filesystem.hpp>

#include <functional>
#include <set>

using namespace quorva;
using standins::sdl;
using standins::sound;

namespace {

template <class... Messages>
std::vector<void (*)()> senders() {
    return {[] { publish(Messages()); }...};
}

const auto effects = senders<SoundAlive, SoundBullet, SoundDeath, SoundBuletHit, SoundSquare,
                             SoundClearBomb, SoundImmuneBomb, SoundPup, SoundBad, SoundPause>();

class AudioTest : public testing::Test {
protected:
    void SetUp() override {
        sdl().ticks = 1000;
        sound().take();
        sound().recording = true;
    }
    void TearDown() override {
        sound().recording = false;
        sound().unreadable.clear();
        boost::filesystem::remove_all("Songs");
        boost::filesystem::create_directory("Songs");
    }
    static void songs(std::initializer_list<const char*> names) {
        for (const char* name : names)
            fill(std::string("Songs/") + name, "song");
    }
    static void start() { publish(PlaySong()); }
    static void stop() { publish(StopSong()); }
    static void pause(bool paused) {
        PauseGame message;
        message.paused = paused;
        publish(message);
    }
    static void nothing() {}
    static void set(const char* setting, int value) { activate({{setting, value}}); }

    struct Step {
        const char* what;
        std::uint32_t later; ///< ms
        std::function<void()> act;
        const char* calls; ///< A is the song that comes first
    };
    /// An update after each step, with two songs.
    static void expectCalls(const std::vector<Step>& steps) {
        songs({"a.mp3", "b.ogg"});
        FModMP3Input audio;
        std::string first, second;
        for (const Step& step : steps) {
            const unsigned int updates = sound().updates;
            sdl().ticks += step.later;
            sound().take();
            step.act();
            audio.update();
            if (first.empty()) {
                first = "Songs/" + audio.songs[audio.lastSongID];
                second = "Songs/" + audio.songs[1 - audio.lastSongID];
            }
            std::string calls = boost::replace_all_copy(sound().take(), first, "A");
            EXPECT_EQ(boost::replace_all_copy(calls, second, "B"), step.calls) << step.what;
            EXPECT_EQ(sound().updates, updates + 1) << step.what;
        }
        EXPECT_EQ(sound().openStreams, 0U);
    }
};

constexpr std::uint32_t near_wrap = 4'294'960'000; // ms; the clock has 7.3 s to go

} // namespace

TEST_F(AudioTest, LoadsTheEffectsThatShipAndPlaysAnotherForEachMessage) {
    FModSystem::Instance();
    sound().take();
    const FModSystemClass another;
    FModMP3Input audio;
    const std::string loads = sound().take();
    activate({{"EffectsVolume", 50}});
    std::string expected = "init 40 0; ";
    std::set<std::string> played;
    for (const auto send : effects) {
        send();
        const std::string calls = sound().take(), name = calls.substr(5, calls.find(';') - 5);
        EXPECT_EQ(calls, "play " + name + "; volume " + name + " 0.5; ");
        EXPECT_TRUE(boost::filesystem::exists(name)) << name;
        played.insert(name);
        expected += "load " + name + " 16713; ";
    }
    EXPECT_EQ(loads, expected) << "in this order";
    EXPECT_EQ(played.size(), effects.size());
    set("NoPlaySound", 0);
    effects[0]();
    EXPECT_EQ(sound().take(), "volume Sounds/Pause.wav 0.5; ") << "of the one before";
}

TEST_F(AudioTest, ListsSongsByTheirExactEnding) {
    songs({"a.mp3", ".mp3", "b.ogg", "LOUD.MP3", "notes.txt", "mp3", "c.mp3.bak"});
    boost::filesystem::create_directory("Songs/folder.mp3");
    boost::filesystem::create_symlink("circle.mp3", "Songs/circle.mp3");
    EXPECT_EQ(errorsOf([] {
                  const FModMP3Input audio;
                  EXPECT_EQ(std::set<std::string>(audio.songs.begin(), audio.songs.end()),
                            (std::set<std::string>{"a.mp3", "b.ogg"}));
              }),
              "");
}

TEST_F(AudioTest, DrawsFromTheSharedStreamForASingleSongToo) {
    songs({"a.mp3"});
    FModMP3Input audio;
    math::MTRand_int32 random;
    random.seed(3UL);
    random(); // makes the words
    const int before = math::MTRand_int32::p;
    audio.getRandomSongID();
    EXPECT_EQ(math::MTRand_int32::p, before + 1);
}

TEST_F(AudioTest, PlaysSongsByTheClock) {
    activate({{"EffectsVolume", 50}, {"MusicVolume", 25}});
    expectCalls({
        {"start", 0, start, "open A 64; play A; volume A 0.25; "},
        {"the very end is not past it", 90000, nothing, ""},
        {"end", 1, nothing, "release A; open B 64; play B; volume B 0.25; "},
        {"level of the next", 90001, [] { set("MusicVolume", 75); },
         "release B; open A 64; play A; volume A 0.75; "},
        {"end while off", 90001, [] { set("NoPlayMusic", 0); }, ""},
        {"on again", 1, [] { set("PlayMusic", 0); },
         "release A; open B 64; play B; volume B 0.75; "},
        {"clock set back, below its start", 0, [] { sdl().ticks = near_wrap; }, ""},
        {"start there", 0, start, "release B; open A 64; play A; volume A 0.75; "},
        {"wrapped", 90000, nothing, ""},
        {"end behind the wrap", 1, nothing, "release A; open B 64; play B; volume B 0.75; "},
        {"stop", 1, stop, "release B; "},
        {"start while off", 0, [] { set("NoPlayMusic", 0), start(); }, ""},
        {"off for twenty days", 1'728'000'000, nothing, ""},
        {"on after a month", 864'000'000, [] { set("PlayMusic", 0); },
         "open A 64; play A; volume A 0.75; "},
        {"stop at last", 0, stop, "release A; "},
    });
}

TEST_F(AudioTest, HoldsTheSongsWhileTheGameIsPaused) {
    const auto halt = [] { pause(true); };
    const auto goOn = [] { pause(false); };
    expectCalls({
        {"start", 0, start, "open A 64; play A; volume A 1; "},
        {"pause", 60000, halt, "pause A; "},
        {"the song and the next would be over", 120002, nothing, ""},
        {"resume", 9998, goOn, "resume A; "},
        {"the rest of it", 30000, nothing, ""},
        {"end", 1, nothing, "release A; open B 64; play B; volume B 1; "},

        {"the first of two pauses", 30000, halt, "pause B; "},
        {"over its end", 100000, goOn, "resume B; "},
        {"the second", 30000, halt, "pause B; "},
        {"also over its end", 200000, goOn, "resume B; "},
        {"what is left", 30000, nothing, ""},
        {"end of that", 1, nothing, "release B; open A 64; play A; volume A 1; "},

        {"a game that ends in its pause", 1000, halt, "pause A; "},
        {"ends", 200000, stop, "release A; "},
        {"the next game", 1000, start, "open B 64; play B; volume B 1; "},
        {"isn't paused", 90001, nothing, "release B; open A 64; play A; volume A 1; "},
        {"stop", 0, stop, "release A; "},
    });
}

TEST_F(AudioTest, ReportsASongThatIsNotThere) {
    songs({"a.mp3", "b.mp3"});
    FModMP3Input audio;
    PlaySong message;
    message.songId = 1;
    publish(message);
    message.songId = 2;
    EXPECT_EQ(errorsOf([&] { publish(message); }), "Can't play song id: 2. Only 2 songs exist.\n");
    EXPECT_EQ(audio.lastSongID, 1);
    // A song that can't be opened is reported once, and the silence lasts as long as the song
    // before; at the very first song, a second.
    sound().unreadable = {"Songs/a.mp3", "Songs/b.mp3"};
    EXPECT_EQ(errorsOf([&] { audio.playSong(0); }), "FMOD error!23recorded failure\n"
                                                    "FMOD error!37recorded failure\n");
    EXPECT_EQ(audio.songEndTime, sdl().ticks + sound().songLength);
    EXPECT_EQ(errorsOf([&] { audio.playSong(0); }), "");
    FModMP3Input first;
    first.playSong(0);
    EXPECT_EQ(first.songEndTime, sdl().ticks + 1000);
    audio.stopSong();
}
