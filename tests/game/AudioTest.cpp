#include "game/FModMP3Input.h"

#include "Framework/Config.h"
#include "Framework/math/MTRand.h"
#include "platform/standins/SoundRecorder.h"
#include "platform/standins/VirtualSDL.h"
#include "tests/support/Errors.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>

#include <fstream>
#include <set>

using namespace quorva;
using standins::sdl;
using standins::sound;

namespace {

class AudioTest : public testing::Test {
protected:
    void SetUp() override {
        sdl().ticks = 1000;
        sound().calls.clear();
    }
    void TearDown() override {
        sound().recording = false;
        sound().unreadable.clear();
        boost::filesystem::remove_all("Songs");
        boost::filesystem::create_directory("Songs");
    }
    static void songs(std::initializer_list<const char*> names) {
        for (const char* name : names)
            std::ofstream(std::string("Songs/") + name) << "song";
    }
    /// What happens from here on is written down.
    static void listen() {
        sound().calls.clear();
        sound().recording = true;
    }
    void turn(const char* setting) {
        settings.getConfigValues().setValue(setting, 0);
        settings.activateConfig();
    }

    config::ConfigClass& settings = config::Config::Instance();
};

} // namespace

TEST_F(AudioTest, PlaysAnEffectForEachMessageAndSetsTheVolumeInEveryCase) {
    sound().unreadable = {"Sounds/Pup.wav"};
    testing::internal::CaptureStderr();
    FModMP3Input audio;
    testing::internal::GetCapturedStderr();
    settings.setFXVolume(50);
    settings.activateConfig();
    listen();
    publish(SoundBuletHit());
    EXPECT_EQ(sound().take(), "play Sounds/hit.wav; volume Sounds/hit.wav 0.5; ");
    publish(SoundPup()); // missing: the level goes to the effect before
    EXPECT_EQ(sound().take(), "volume Sounds/hit.wav 0.5; ");
    turn("NoPlaySound");
    publish(SoundSquare());
    EXPECT_EQ(sound().take(), "volume Sounds/hit.wav 0.5; ");
}

TEST_F(AudioTest, ListsSongsByTheirExactEnding) {
    songs({"a.mp3", ".mp3", "b.ogg", "LOUD.MP3", "notes.txt", "mp3", "c.mp3.bak"});
    boost::filesystem::create_directory("Songs/folder.mp3");
    const FModMP3Input audio;
    EXPECT_EQ(std::set<std::string>(audio.songs.begin(), audio.songs.end()),
              (std::set<std::string>{"a.mp3", "b.ogg"}));
    boost::filesystem::remove_all("Songs");
    EXPECT_EQ(errorsOf([] { FModMP3Input silent; }), "Song directory is missing\n");
}

TEST_F(AudioTest, DrawsFromTheSharedStreamOnlyWhereThereIsAChoice) {
    math::MTRand_int32 random;
    const auto drawsOf = [&](FModMP3Input& audio) {
        random.seed(3UL);
        random(); // makes the words
        const int before = math::MTRand_int32::p;
        audio.getRandomSongID();
        return math::MTRand_int32::p - before;
    };
    FModMP3Input none;
    EXPECT_EQ(drawsOf(none), 0);
    songs({"a.mp3"});
    FModMP3Input one;
    EXPECT_EQ(drawsOf(one), 1);
    EXPECT_EQ(one.getRandomSongID(), 0);
    songs({"b.mp3"});
    FModMP3Input two;
    std::string order;
    for (int i = 0; i < 6; ++i) {
        two.playSong(two.getRandomSongID());
        order += std::to_string(two.lastSongID);
    }
    EXPECT_TRUE(order == "010101" || order == "101010") << order;
    two.stopSong();
}

TEST_F(AudioTest, StartsTheNextSongByTheClockWithPausesTakenOut) {
    songs({"a.mp3", "b.ogg"});
    FModMP3Input audio;
    settings.setMusicVolume(25);
    settings.activateConfig();
    publish(PlaySong());
    listen();
    sdl().ticks += 40000;
    PauseGame pause;
    pause.paused = true;
    publish(pause);
    sdl().ticks += 10000;
    publish(PauseGame());
    EXPECT_EQ(sound().calls.size(), 2U);
    sdl().ticks += 50000; // the very end is not past it
    audio.update();
    EXPECT_EQ(sound().calls.size(), 2U);
    sound().take();
    const bool first = audio.lastSongID == 0;
    ++sdl().ticks;
    audio.update();
    const std::string old = "Songs/" + audio.songs[first ? 0 : 1];
    const std::string next = "Songs/" + audio.songs[first ? 1 : 0];
    EXPECT_EQ(sound().take(), "release " + old + "; open " + next + " 64; play " + next +
                                  "; volume " + next + " 0.25; ");
    EXPECT_EQ(audio.pausedTime, 0U);
    publish(StopSong());
    sdl().ticks += 1000000;
    audio.update();
    EXPECT_EQ(sound().take(), "release " + next + "; ");
    EXPECT_EQ(sound().openStreams, 0U);
}

TEST_F(AudioTest, WaitsForTheSettingWhileMusicIsOff) {
    songs({"a.mp3"});
    FModMP3Input audio;
    turn("NoPlayMusic");
    listen();
    publish(PlaySong());
    for (int pass = 0; pass < 5; ++pass)
        audio.update();
    EXPECT_EQ(sound().take(), "");
    turn("PlayMusic");
    audio.update();
    EXPECT_EQ(sound().take().substr(0, 20), "open Songs/a.mp3 64;");
    audio.stopSong();
}

TEST_F(AudioTest, ReportsASongThatIsNotThere) {
    songs({"a.mp3", "b.mp3"});
    FModMP3Input audio;
    const struct {
        int id;
        const char* errors;
    } cases[] = {{1, ""},
                 {2, "Can't play song id: 2. Only 2 songs exist.\n"},
                 {-2, "Can't play song id: -2. Only 2 songs exist.\n"}};
    for (const auto& c : cases) {
        PlaySong message;
        message.songId = static_cast<std::int16_t>(c.id);
        EXPECT_EQ(errorsOf([&] { publish(message); }), c.errors);
        EXPECT_EQ(audio.lastSongID, 1);
    }
    // A song that can't be opened is reported, and the silence lasts as long as the song before; at
    // the very first song, a second.
    sound().unreadable = {"Songs/a.mp3", "Songs/b.mp3"};
    EXPECT_EQ(errorsOf([&] { audio.playSong(0); }), "FMOD error!23recorded failure\n"
                                                    "FMOD error!37recorded failure\n");
    EXPECT_EQ(audio.song, nullptr);
    FModMP3Input first;
    first.playSong(0);
    EXPECT_EQ(first.songEndTime, sdl().ticks + 1000);
    sdl().ticks += sound().songLength;
    EXPECT_EQ(errorsOf([&] { audio.update(); }), "");
    ++sdl().ticks;
    EXPECT_NE(errorsOf([&] { audio.update(); }), "");
    audio.stopSong();
}
