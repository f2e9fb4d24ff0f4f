// Games are kept, played again and compared by the programs themselves; files are spoilt in
// between.

#include "headless/GameMain.h"
#include "headless/Sandbox.h"
#include "platform/standins/GLRecorder.h"
#include "platform/standins/SoundRecorder.h"
#include "replay/Blocks.h"
#include "replay/Recorder.h"
#include "replay/Report.h"
#include "replay/Script.h"
#include "replay/Snapshot.h"
#include "replay/Stage.h"
#include "replay/Summary.h"
#include "replay/Tape.h"
#include "replay/WindowPlayback.h"

#include "Framework/Managers/PointManager.h"
#include "Framework/math/MTRand.h"
#include "tests/replay/Edited.h"
#include "tests/support/Field.h"
#include "tests/support/Files.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>

using namespace quorva;
using namespace quorva::replay;
namespace fs = boost::filesystem;

namespace {

struct Outcome {
    int code;
    std::string text;
};

Outcome run(const std::string& command) {
    Outcome outcome;
    FILE* const output = popen((command + " 2>&1").c_str(), "r");
    for (int c; (c = std::fgetc(output)) != EOF;)
        outcome.text += static_cast<char>(c);
    outcome.code = WEXITSTATUS(pclose(output));
    return outcome;
}

/// Its clock goes on by a ms whenever it is read.
class DriftingRecorder : public Recorder {
public:
    using Recorder::Recorder;
    std::uint32_t clock() override {
        ++standins::sdl().ticks;
        return Recorder::clock();
    }
};

class Replay : public testing::Test {
protected:
    /// Of a file with these bytes.
    static Outcome verify(const std::string& bytes) {
        fill("a", bytes);
        return verifyFile("a");
    }
    static Outcome verifyFile(const std::string& path) {
        return run(KOV_VERIFY " " + path + " " KOV_SOURCE_DIR);
    }

    /// Plays by keys, one every six passes of some 30 ms, each held for a pass; the first is there
    /// before the first frame. In a process of its own, a copy of this one, in which no game may
    /// have run.
    template <class Recorder = DriftingRecorder>
    static void record(const std::string& path, const std::vector<int>& keys,
                       const std::string& option = "-m") {
        const pid_t child = fork();
        if (child == 0) {
            std::size_t passes = 0;
            const auto press = [&] {
                const std::size_t key = passes / 6, since = passes++ % 6;
                if (key == keys.size()) return standins::pushQuit();
                if (since < 2) standins::pushKey(keys[key], since == 0);
            };
            standins::sdl().onSwap = [&] {
                standins::sdl().ticks += 30;
                press();
            };
            press();
            Recorder recorder(path);
            const Insertion insertion(recorder);
            headless::runGameMain({option});
            recorder.finish();
            std::_Exit(0);
        }
        waitpid(child, nullptr, 0);
    }

    const headless::Sandbox sandbox{KOV_SOURCE_DIR};
    const std::string kept = KOV_SOURCE_DIR "/tests/recordings/first-steps.kovreplay";
    const std::string other = KOV_SOURCE_DIR "/tests/recordings/one-game.kovreplay";
};

/// Plays in no game.
class BarePlayback : public Playback {
public:
    using Playback::Playback;

private:
    void prepareGame() override { std::cerr << "prepared, "; }
};

class OpeningPlayback : public WindowPlayback {
public:
    using WindowPlayback::openSongOf;
    using WindowPlayback::WindowPlayback;
};

} // namespace

TEST_F(Replay, HoldsWhateverWasPlayed) {
    const struct {
        const char* options;
        const char* games; ///< what the line has between two of them
    } cases[] = {
        {"--seed 5 --ticks 6000", "; "},
        {"--seed 6 --ticks 3000 --pages 1 --songs 3", ", left"}, // pauses, settings, broken songs
        {"--seed 4294960000 --ticks 500", ": 498 ticks"},        // the clock goes around 2^32
        {"--seed 7 --ticks 3000 --stick 1 --songs 1", ""},
        {"--seed 8 --ticks 1000 --songs 4 --music 0 --idle 3", ""}, // each pass draws
    };
    for (const auto& c : cases) {
        std::remove("recorded");
        const Outcome played = run(KOV_RECORD " recorded " + std::string(c.options));
        ASSERT_EQ(played.code, 0);
        const Outcome outcome = verifyFile("recorded");
        if (&c == cases) {
            // Of two games; behind it the line ends.
            const std::string best = played.text.substr(played.text.rfind(' '));
            EXPECT_LT(outcome.text.find(best.substr(0, best.size() - 1) + " points, "),
                      outcome.text.find(": holds"))
                << outcome.text << played.text;
        }
        EXPECT_EQ(outcome.code, 0) << c.options << outcome.text;
        EXPECT_NE(outcome.text.find(": holds\n"), std::string::npos) << outcome.text;
        EXPECT_NE(outcome.text.find(c.games), std::string::npos) << outcome.text;
        EXPECT_EQ(outcome.text.find("error"), std::string::npos)
            << "of the songs: " << outcome.text;
    }
}

TEST_F(Replay, ADamagedFileIsToldInALine) {
    const std::string whole = contentsOf(kept);
    const auto with = [&](std::size_t offset, char byte) {
        return std::string(whole).replace(offset, 1, 1, byte);
    };
    const auto flipped = [&](std::size_t offset) {
        return with(offset, static_cast<char>(whole[offset] ^ 1));
    };
    const std::size_t secondBlock = 13 + 12 + static_cast<unsigned char>(whole[13]) +
                                    256U * static_cast<unsigned char>(whole[14]);
    const struct {
        std::string bytes;
        const char* words;
    } cases[] = {
        {"", "no replay"},
        {"Up, W\n", "no replay"},
        {whole.substr(0, 12), "damaged"},
        {whole.substr(0, 13), "nothing was recorded"},
        {with(11, 3), "newer version"},
        {with(12, 3), "rules of another version"},
        {flipped(13), ""}, // sizes and checksum of a block
        {flipped(17), "damaged"},
        {flipped(21), "damaged"},
        {with(20, '\x7f'), "damaged"}, // a block of two gigabytes
        {flipped(30), "damaged"},
        {flipped(whole.size() - 1), "damaged"},
        {whole + whole, "damaged"},
        {whole + "x", "damaged"},
        {whole.substr(0, secondBlock) + contentsOf(other).substr(secondBlock), ""},
        {whole.substr(0, 13) + whole.substr(secondBlock), "damaged"}, // the first one left out
    };
    EXPECT_EQ(verify(with(11, format_version - 1)).code, 0);
    for (const std::size_t size : {whole.size() - 1, secondBlock + 5}) // in a block, in its head
        EXPECT_NE(verify(whole.substr(0, size)).text.find("holds, but is cut off"),
                  std::string::npos)
            << size;
    for (const auto& c : cases) {
        const Outcome outcome = verify(c.bytes);
        EXPECT_EQ(outcome.code, 2) << &c - cases << outcome.text;
        EXPECT_EQ(std::count(outcome.text.begin(), outcome.text.end(), '\n'), 1) << outcome.text;
        EXPECT_NE(outcome.text.find(c.words), std::string::npos) << &c - cases << outcome.text;
    }
}

TEST_F(Replay, AnEditedFileDiffers) {
    fill("a", edited(other, {}));
    const Outcome untouched = run(KOV_VERIFY " --fair a " KOV_SOURCE_DIR);
    EXPECT_EQ(untouched.code, 0) << untouched.text;
    EXPECT_EQ(untouched.text.find("(!)"), std::string::npos) << untouched.text;
    EXPECT_NE(untouched.text.find("\n  game 1: 4998 ticks"), std::string::npos) << untouched.text;
    const struct {
        const char* words;
        Edit edit;
    } cases[] = {
        {"score, deaths", ofFirst<GameEnd>([](GameEnd& end) { ++end.score; })},
        {"score, deaths", ofFirst<GameEnd>([](GameEnd& end) { ++end.deaths; })},
        {"score, deaths", ofFirst<GameEnd>([](GameEnd& end) { end.lost = true; })},
        {"the first that differs: ", toFirstShot({0, Event::key_down, SDLK_s})},
        {"the first that differs: ", toFirstShot({1, Event::key_down, SDLK_w})}, // not asked again
        {"goes another way", toFirstShot({0, Event::closed, 0})}, // it ends before the file does
        {"up to tick 0): only the hash differs",
         ofFirst<Check>([](Check& check) { ++check.hash; })},
        {"differs: score and lives", ofFirst<Check>([](Check& check) { ++check.partHashes[0]; })},
        {"the first that differs: ", ofFirst<End>([](End& end) { ++end.check.partHashes[0]; })},
        {"differs at tick 47 (as recorded up to tick 0): the game goes another way",
         [passes = 0](Record& r) mutable {
             return std::holds_alternative<Pass>(r) && ++passes == 50 && (r = GameBegin(), true);
         }},
        {"goes another way",
         [](Record& r) { return std::holds_alternative<GameBegin>(r) && (r = Check(), true); }},
    };
    for (const auto& c : cases) {
        const Outcome outcome = verify(edited(other, c.edit));
        EXPECT_EQ(outcome.code, 1) << &c - cases << outcome.text;
        EXPECT_NE(outcome.text.find(c.words), std::string::npos) << &c - cases << outcome.text;
    }
    record("menu", {SDLK_DOWN});
    const Outcome unclosed = verify(edited("menu", [](Record& r) {
        auto* const pass = std::get_if<Pass>(&r);
        const bool isLast =
            pass != nullptr && !pass->events.empty() && pass->events[0].kind == Event::closed;
        if (isLast) pass->events.clear();
        return isLast;
    }));
    EXPECT_NE(unclosed.text.find("differs at tick 6 (as recorded up to tick 0): the game goes on"),
              std::string::npos)
        << unclosed.text;
    const auto bind = [](replay::Setup& s) { s.bindings[8].first = s.bindings[7].first; };
    const auto fade = [](replay::Setup& s) {
        for (auto& colour : s.colours)
            colour.parts[3] *= 0.5;
    };
    const auto refine = [](replay::Setup& s) {
        for (auto& [letter, value] : s.settings)
            if (letter == 'z') value = 11;
    };
    const struct {
        void (*edit)(replay::Setup&);
        const char* helps;
    } setups[] = {
        {bind, "2 actions a key (!)"}, {fade, " colours changed (!)"}, {refine, "accuracy 11 (!)"}};
    for (const auto& setup : setups) {
        const Outcome outcome = verify(edited(other, {}, setup.edit));
        EXPECT_EQ(outcome.code, 1) << outcome.text;
        EXPECT_NE(outcome.text.find(setup.helps), std::string::npos) << outcome.text;
    }
}

TEST_F(Replay, WhatIsNeverRecordedIsRefused) {
    const struct {
        const char* what;
        Edit edit;
    } cases[] = {
        {"a clock that runs back",
         [passes = 0](Record& r) mutable {
             auto* const pass = std::get_if<Pass>(&r);
             if (pass == nullptr || ++passes < 50) return false;
             return --(pass->clock.back() -= 1000), true;
         }},
        {"a button without a joystick", ofFirst<Pass>([](Pass& p) {
             p.events.push_back({0, Event::button_down, 1});
         })},
        {"an axis without a joystick", ofFirst<Pass>([](Pass& p) {
             p.events.push_back({0, Event::axis_moved, 0});
         })},
        {"positions without a joystick", ofFirst<Pass>([](Pass& p) { p.axes.push_back(7); })},
    };
    for (const auto& c : cases) {
        const Outcome outcome = verify(edited(other, c.edit));
        EXPECT_EQ(outcome.code, 2) << c.what << outcome.text;
        EXPECT_NE(outcome.text.find("damaged"), std::string::npos) << c.what << outcome.text;
    }
}

TEST_F(Replay, ASetupIsReadUpToItsLimits) {
    using replay::Setup;
    using Points = std::vector<Setup::NamedPoint>;
    using Colours = std::vector<Setup::NamedColour>;
    const auto with = [](auto member, auto value) {
        Setup setup = {};
        setup.*member = value;
        return setup;
    };
    const auto named = [](std::size_t count, std::size_t length) {
        Points points(count);
        for (std::size_t i = 0; i < count; ++i)
            points[i].name = std::string(length - 3, 'a') + std::to_string(100 + i);
        return points;
    };
    const std::pair<bool, Setup> cases[] = {
        {true, with(&Setup::settings, SettingValues{{'w', 640}, {'l', 480}})},
        {false, with(&Setup::settings, SettingValues{{'w', 640}, {'w', 640}})},
        {false, with(&Setup::settings, SettingValues{{'w', 1921}})},
        {false, with(&Setup::settings, SettingValues{{'c', 16}})}, // doesn't belong there
        {false, with(&Setup::settings, SettingValues{{'x', 1}})},
        {true, with(&Setup::colours, Colours{{"a", {8.0, -8.0, 0.0, 1.0}}})},
        {false, with(&Setup::colours, Colours{{"a", {0.0, 0.0, 0.0, -8.001}}})},
        {false, with(&Setup::colours, Colours(2, {"a", {}}))},
        {true, with(&Setup::points, Points{{"a", {1e9, -1e9, 0.0}}})},
        {false, with(&Setup::points, Points{{"a", {0.0, 0.0, 1.000001e9}}})},
        {false, with(&Setup::points, Points(2, {"a", {}}))},
        {true, with(&Setup::points, named(256, 64))},
        {false, with(&Setup::points, named(1, 65))},
        {false, with(&Setup::points, named(257, 6))},
        {true, with(&Setup::songs, 10000)},
        {false, with(&Setup::songs, 10001)},
        {true, with(&Setup::joysticks, std::vector<bool>(32))},
        {false, with(&Setup::joysticks, std::vector<bool>(33))},
    };
    for (const auto& [isReadable, setup] : cases) {
        ByteWriter out;
        setup.write(out);
        ByteReader in(out.bytes);
        if (isReadable)
            EXPECT_NO_THROW(Setup::read(in)) << out.bytes;
        else
            EXPECT_THROW(Setup::read(in), BadFile) << out.bytes;
    }
}

TEST_F(Replay, ANightWithoutMusicIsReadAndHalfOfItIsNot) {
    constexpr std::uint32_t night = 8 * 3600 * 1000; // ms
    constexpr std::uint32_t start = 0x90000000;      // ms
    for (const std::uint32_t length : {night, night / 2}) {
        const auto stand = [length, passes = 0](Record& r) mutable {
            auto* const pass = std::get_if<Pass>(&r);
            if (pass == nullptr) return false;
            const bool hasStood = ++passes >= 50;
            if (hasStood && passes < 50 + 16) pass->idle = 1U << 24U; // 250 million in all
            for (std::uint32_t& ms : pass->clock)
                ms += start + (hasStood ? length : 0);
            return false;
        };
        fill("a", edited(kept, stand, {}, false));
        Script script("a");
        const auto readAll = [&] {
            while (script.take()) {
            }
        };
        if (length == night)
            EXPECT_NO_THROW(readAll());
        else
            EXPECT_THROW(readAll(), BadFile);
    }
}

TEST_F(Replay, IdlePassesAreInProportion) {
    std::uint64_t idle = 3000000;
    for (int step = 0; step < 12; ++step) { // comes near the limit, then goes beyond it
        const auto wait = [idle, passes = 0](Record& r) mutable {
            auto* const pass = std::get_if<Pass>(&r);
            return pass != nullptr && ++passes == 101 && (pass->idle = idle, true);
        };
        const std::uint64_t size = edited(kept, wait).size();
        const std::uint64_t most = 1000 * size + 10 * 3000; // for its bytes, and for its 3 s
        Script script("edited");
        const auto readAll = [&] {
            while (script.take()) {
            }
        };
        if (idle <= most)
            EXPECT_NO_THROW(readAll()) << idle << " of " << most;
        else
            EXPECT_THROW(readAll(), BadFile) << idle << " of " << most;
        idle = step < 6 ? most : idle + 1;
    }
}

TEST_F(Replay, AnInterruptionIsNoDifferenceAndLeavesNothing) {
    // More passes to repeat than could be played in a minute.
    fill("a", edited(kept, ofFirst<Pass>([](Pass& p) { p.idle = 1500000; })));
    fs::create_directory("tmp");
    for (const std::string signal : {"INT", "TERM", "HUP"}) {
        const Outcome outcome =
            run("TMPDIR=tmp env --default-signal=INT " KOV_VERIFY " a " KOV_SOURCE_DIR
                " & while [ -z \"$(ls tmp)\" ]; do sleep 0.01; done; kill -" +
                signal + " $!; wait $!");
        EXPECT_EQ(outcome.code, 3) << signal << outcome.text;
        EXPECT_NE(outcome.text.find("interrupted\n"), std::string::npos) << outcome.text;
        EXPECT_TRUE(fs::is_empty("tmp")) << signal;
    }
}

TEST_F(Replay, WhatCouldNotBeReadIsNotKept) {
    class Far : public Recorder {
    public:
        using Recorder::Recorder;
        std::uint32_t clock() override { // read in each pass, before its end
            PointManager::Instance().getV("a").value.x = 2e9;
            return Recorder::clock();
        }
    };
    const auto keep = [] {
        record<Far>("far", {SDLK_RETURN, SDLK_w});
        std::_Exit(0);
    };
    EXPECT_EXIT(keep(), testing::ExitedWithCode(0),
                "kov-replay: the rest of the game can't be kept: its colours or points are too "
                "far from the usual ones\n");
}

TEST_F(Replay, AGameIsKeptUpToTheEndOfTheDisk) {
    const Outcome played =
        run("ulimit -f 8; trap '' XFSZ; " KOV_RECORD " recorded --seed 5 --ticks 6000");
    EXPECT_EQ(played.code, 0);
    EXPECT_EQ(played.text.find("kov-replay: the rest of the game can't be kept: File too large\n"),
              played.text.rfind("kov-replay: "))
        << "once: " << played.text;
    const Outcome outcome = verifyFile("recorded");
    EXPECT_NE(outcome.text.find("holds, but is cut off here"), std::string::npos) << outcome.text;
}

TEST_F(Replay, ARecorderLetsNoClockRunBack) {
    Recorder recorder("clock");
    using Reading = std::pair<std::uint32_t, std::uint32_t>; // of the system, and as it is known
    for (const auto& [time, known] :
         {Reading{4294967000U, 4294967000U}, {4294966000U, 4294967000U}, {4, 4}, {3, 4}, {5, 5}}) {
        standins::sdl().ticks = time;
        EXPECT_EQ(recorder.clock(), known);
    }
    standins::sdl() = {};
}

TEST_F(Replay, ABlockHoldsSecondsOfPlay) {
    const auto passesOf = [](const std::string& options) {
        std::remove("recorded");
        EXPECT_EQ(run(KOV_RECORD " recorded --seed 5 --ticks 3000 " + options).code, 0);
        BlockReader file("recorded");
        RecordReader records;
        std::vector<std::size_t> passes;
        for (ByteReader block(file.read()); block.left() != 0; block = ByteReader(file.read())) {
            if (passes.empty()) replay::Setup::read(block);
            passes.push_back(0);
            while (block.left() != 0)
                passes.back() += std::holds_alternative<Pass>(records.read(block)) ? 1 : 0;
        }
        passes.resize(3);
        return passes;
    };
    using Passes = std::vector<std::size_t>;
    EXPECT_EQ(passesOf("--songs 2 --idle 2"), (Passes{302, 300, 300})) << "idle ones aren't kept";
    EXPECT_EQ(passesOf(""), (Passes{291, 11, 300})) << "full before tick 300, by the setup";

    const Summary summary("recorded");
    EXPECT_EQ(summary.start, 5U);
    EXPECT_EQ(summary.length, 90000U);
    EXPECT_EQ(summary.size, contentsOf("recorded").size());
    EXPECT_EQ(summary.setup.songs, 0U);
    EXPECT_LE(std::abs(summary.setup.date - std::time(nullptr)), 60);
    ByteWriter bytes;
    summary.setup.write(bytes);
    BlockWriter("bare").write(bytes.bytes);
    const Summary bare("bare");
    EXPECT_EQ(bare.start + bare.length, 0U);
    EXPECT_TRUE(bare.cutOff);
}

TEST_F(Replay, ASongOfTheSameLengthIsHeard) {
    fs::create_directory("mine");
    for (const char* song : {"mine/a.ogg", "mine/b.ogg"})
        fill(song, "");
    Script script(kept);
    OpeningPlayback playback(script, "mine");
    FMOD_SOUND* song = nullptr;
    for (const bool isHere : {true, false}) {
        standins::sound() = {};
        standins::sound().recording = true;
        playback.openSongOf(isHere ? 90000 : 80000, nullptr, &song);
        EXPECT_EQ(standins::sound().openStreams, 1U) << "those that were only measured are closed";
        const std::string calls = standins::sound().take();
        const std::size_t last = calls.rfind("open ");
        EXPECT_NE(calls.find(isHere ? "mine/a.ogg" : "silence.wav", last), std::string::npos)
            << calls;
        EXPECT_EQ(calls.find("b.ogg") != std::string::npos, isHere) << "measured once: " << calls;
    }
    standins::sound() = {};
    playback.openWindow(640, 480, 32, SDL_FULLSCREEN | SDL_OPENGL);
    const standins::VideoMode& window = standins::sdl().modes.back();
    EXPECT_EQ(std::tuple(window.width, window.height, window.depth, window.flags),
              std::tuple(640, 480, 32, std::uint32_t{SDL_OPENGL}));
    using namespace std::string_literals;
    EXPECT_EQ(contentsOf("silence.wav"), // as Python's `wave` writes it
              "RIFF\x64\x1f\0\0WAVEfmt \x10\0\0\0\x01\0\x01\0\x40\x1f\0\0\x40\x1f\0\0"
              "\x01\0\x08\0data\x40\x1f\0\0"s +
                  std::string(8000, '\x80'));
}

TEST_F(Replay, SettingsAreThoseOfEachGame) {
    record("changed",
           {SDLK_RETURN, SDLK_ESCAPE, SDLK_DOWN, SDLK_RETURN, SDLK_DOWN, SDLK_DOWN, SDLK_DOWN,
            SDLK_DOWN, SDLK_LEFT, SDLK_DOWN, SDLK_DOWN, SDLK_RETURN, SDLK_RETURN, SDLK_w});
    const Outcome shown = run(KOV_VERIFY " --show changed " KOV_SOURCE_DIR);
    EXPECT_EQ(shown.code, 0) << shown.text;
    const std::size_t first = shown.text.find("CollisionAccuracy=10 ");
    EXPECT_NE(first, std::string::npos) << shown.text;
    EXPECT_NE(shown.text.find("CollisionAccuracy=9 ", first), std::string::npos) << shown.text;
    const std::size_t last = shown.text.rfind("1 shot");
    EXPECT_NE(shown.text.find("0 deaths; ", last), std::string::npos) << "it ends with the program";
    EXPECT_NE(shown.text.find("accuracy 9 (!)"), std::string::npos) << shown.text;
    EXPECT_NE(shown.text.find("\nverdict   holds\n"), std::string::npos) << shown.text;
    EXPECT_EQ(run(KOV_VERIFY " --fair changed " KOV_SOURCE_DIR).code, 4);
    ASSERT_EQ(run(KOV_VERIFY " --report report changed " KOV_SOURCE_DIR).code, 0);
    ByteReader report(contentsOf("report"));
    const auto games = Report::read(report).games;
    ASSERT_EQ(games.size(), 2U);
    EXPECT_EQ(games[0].picture + games[1].picture, "") << "nothing was caught";
    const auto refine =
        ofFirst<ChangedSettings>([](ChangedSettings& s) { s.values[2].second = 8; });
    const Outcome edited_ = verify(edited("changed", refine));
    EXPECT_EQ(edited_.code, 1);
    EXPECT_NE(edited_.text.find("the settings"), std::string::npos) << edited_.text;
}

TEST_F(Replay, APassInWhichNothingCameHasOneTime) {
    class Waking : public DriftingRecorder {
    public:
        using DriftingRecorder::DriftingRecorder;
        void sleep(std::uint32_t) override {}
    };
    for (const std::string option : {"-U", "-u"}) { // with "-u" the game asks how long to sleep
        record<Waking>(option, {SDLK_RETURN, SDLK_w, SDLK_d, SDLK_p, SDLK_p, SDLK_w}, option);
        EXPECT_EQ(verifyFile("./" + option).code, 0);
        Script script(option);
        std::size_t passes = 0, times = 0;
        script.take(); // from the start to the first frame
        while (const auto record = script.take())
            if (const auto* const pass = std::get_if<Pass>(&*record); pass && pass->events.empty())
                ++passes, times += pass->clock.size();
        EXPECT_GE(passes, 20U) << option;
        EXPECT_EQ(times, passes) << option;
    }
}

TEST_F(Replay, EventsAndSongsComeAsTheyCame) {
    edited(kept, ofFirst<Pass>([](Pass& p) {
               p.events = {{1, Event::key_down, SDLK_x}, {1, Event::key_up, SDLK_y}};
               p.songs = {{37, 0}, {0, 500}};
               p.clock.clear();
           }));
    const auto poll = [] {
        Script script("edited");
        BarePlayback playback(script);
        SDL_Event event = {};
        for (int i = 0; i < 4; ++i)
            std::cerr << playback.poll(&event) << ' ' << event.key.keysym.sym << ' '
                      << static_cast<int>(event.key.state) << ", ";
        FMOD_SOUND* song = nullptr;
        unsigned int length = 0;
        for (int i = 0; i < 3; ++i)
            std::cerr << playback.openSong(nullptr, "", &song) << ' ';
        std::cerr << playback.songLength(song, &length) << ' ' << length << ' ' << playback.clock();
        std::_Exit(0);
    };
    EXPECT_EXIT(poll(), testing::ExitedWithCode(0),
                "^prepared, 0 0 0, 1 120 1, 1 121 0, 0 121 0, 37 0 23 0 500 0$");
}

TEST_F(Replay, AReportTellsOfEachGame) {
    ASSERT_EQ(run(KOV_VERIFY " --report report " + other + " " KOV_SOURCE_DIR).code, 0);
    ByteReader in(contentsOf("report"));
    const Report report = Report::read(in);
    EXPECT_EQ(report.date, Summary(other).setup.date);
    EXPECT_EQ(report.verdict, "");
    ASSERT_EQ(report.games.size(), 1U);
    const Report::Game& game = report.games[0];
    EXPECT_EQ(game.score, 13391U);
    EXPECT_EQ(game.begin, 30U);
    EXPECT_EQ(game.length, 149970U);
    ASSERT_EQ(game.curve.size(), 5U);
    EXPECT_EQ(game.curve.back().second, game.score);
    EXPECT_NE(game.picture.find("<path"), std::string::npos);

    edited(other, ofFirst<GameEnd>([](GameEnd& end) { ++end.score; }));
    EXPECT_EQ(run(KOV_VERIFY " --report report edited " KOV_SOURCE_DIR).code, 1);
    ByteReader differing(contentsOf("report"));
    EXPECT_NE(Report::read(differing).verdict.find("score, deaths"), std::string::npos);
    EXPECT_EQ(run(KOV_VERIFY " edited").code, 2) << "played where?";
}

TEST(ReportTest, IsReadUpToItsLimits) {
    const auto read = [](std::size_t text, std::size_t picture) {
        Report report = {0, std::string(text, 'x'), {{}}};
        report.games[0].picture.assign(picture, 'x');
        ByteWriter out;
        report.write(out);
        ByteReader in(out.bytes);
        return Report::read(in).games[0].picture.size();
    };
    constexpr std::size_t longest_text = 4096, largest_picture = 4U << 20U; // bytes
    EXPECT_EQ(read(longest_text, largest_picture), largest_picture);
    EXPECT_THROW(read(longest_text + 1, 0), BadFile);
    EXPECT_THROW(read(0, largest_picture + 1), BadFile);
}

TEST(Frames, StayEmptyWhileTheTapeShowsNone) {
    struct : Tape {
        bool draws() override { return false; }
    } none;
    Tape any;
    const headless::Sandbox sandbox(KOV_SOURCE_DIR);
    headless::HeadlessGame game(11);
    game.startLevel();
    game.process();
    for (Tape* const tape : {static_cast<Tape*>(&none), &any}) {
        const Insertion insertion(*tape);
        standins::glRecorder().start();
        game.frame();
        EXPECT_EQ(standins::glRecorder().callsTo("glVertex3f").empty(), tape == &none);
    }
    standins::glRecorder().stop();
}

TEST(StageTest, HasTheColoursAndPointsOfTheGame) {
    const headless::Sandbox sandbox(KOV_SOURCE_DIR);
    replay::Setup setup = {};
    setup.colours = {{"Line Colour", {0.5, 0.25, 1.0, 0.1F}}};
    setup.points = {{"a", {0.1, -2.0, 1e9}}};
    const Stage stage(KOV_SOURCE_DIR, setup);
    EXPECT_EQ(contentsOf("data/Colour.kov"), "Line Colour,0.5 0.25 1 0.100000001\n");
    EXPECT_EQ(contentsOf("data/Point.kov"), "a,0.10000000000000001#-2#1000000000#0\n");
    EXPECT_EQ(Shipped(".").points.size(), 1U);

    for (const char* number : {"3", "1", "4", "5", "2", "9", "6"})
        fill("data/Colour" + std::string(number) + ".kov", "");
    const auto files = Shipped(".").files;
    EXPECT_EQ(files.size(), 11U) << "with two colours that there are, points and keys";
    EXPECT_TRUE(std::is_sorted(files.begin(), files.end() - 2)) << "whatever order the disk has";

    fs::create_directories("bare/data");
    for (const char* name : {"Colour", "Point"})
        fill("bare/data/" + std::string(name) + ".kov", "");
    const Stage bare("bare", setup);
    EXPECT_EQ(contentsOf("bind1.conf"), "") << "there, all the same";
}

TEST(Comparison, NamesTheFirstObjectThatDiffers) {
    const struct {
        const char* words;
        void (*change)();
    } cases[] = {
        {"", [] {}},
        {"the first that differs: Triangle ",
         [] {
             double& x = Field::newest<Triangle>()->physics->position.x;
             x = std::nextafter(x, 1000.0);
         }},
        {"the first that differs: score and lives", [] { ++Marvo::Instance().score; }},
        {"the first that differs: random stream", [] { math::MTRand_int32()(); }},
        {"objects in place of", [] { Field::add(9, 9); }},
    };
    const headless::Sandbox sandbox(KOV_SOURCE_DIR);
    headless::HeadlessGame game(11);
    game.startLevel();
    game.ticks(300);
    for (const auto& c : cases) {
        const Check before = checkOfGame();
        c.change();
        const std::string found = firstDifference(before, checkOfGame());
        EXPECT_NE(found.find(c.words), std::string::npos) << found;
        EXPECT_EQ(found.empty(), *c.words == '\0') << found;
    }
    Check longer = checkOfGame();
    longer.partHashes += 'x';
    EXPECT_NE(firstDifference(longer, checkOfGame()).find("the last are missing"),
              std::string::npos);
}
