// Filming, in virtual time.

#include "replay/Film.h"
#include "headless/Sandbox.h"
#include "platform/standins/GLRecorder.h"
#include "platform/standins/SoundRecorder.h"
#include "platform/standins/VirtualSDL.h"
#include "replay/Stage.h"
#include "tests/replay/Edited.h"
#include "tests/support/Files.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iostream>
#include <map>
#include <sstream>

using namespace quorva;
using namespace quorva::replay;
using standins::sdl;
namespace fs = boost::filesystem;

namespace {

const char* const kept = KOV_SOURCE_DIR "/tests/recordings/first-steps.kovreplay";
constexpr std::uint32_t start = 5; // ms, its first frame; another each 30 ms

/// Stands for ffmpeg: keeps what it is told and given.
const char* const program = R"(#!/bin/sh
for target; do :; done
target=${target#file:}
case $target in
$FAILING) exit 1 ;;
esac
printf '%s\n' "$@" >"$target.arguments"
exec cat >"$target"
)";

/// Each frame takes a ms of the real clock.
class Filming : public Film {
public:
    using Film::Film;
    bool draws() override {
        const bool does = Film::draws();
        drawn += does ? 1 : 0;
        audible += sounds() ? 1 : 0;
        return does;
    }
    void tell() const {
        std::cerr << now() - start << " ms, " << drawn << " drawn, " << audible << " audible, "
                  << contentsOf("pictures.mkv").size() / 1440.0 << " pictures, "
                  << contentsOf("sound.mka").size() / 4.0 << " samples\n";
    }

private:
    void show() override {
        ++sdl().ticks;
        Film::show();
    }

    unsigned int drawn = 0, audible = 0; ///< passes
};

using Step = std::function<void(Filming&)>;

/// Films a game, and ends the process.
/// @param judge says on standard error how it went
[[noreturn]] void film(const std::string& path, const Film::Format& format, const Step& judge) {
    {
        Script script(path);
        const Stage stage(KOV_SOURCE_DIR, script.setup);
        std::cout.rdbuf(std::cerr.rdbuf());
        Filming filming(script, "Songs", format);
        const Insertion insertion(filming);
        runGame(script.setup);
        try {
            filming.finishFilm("out");
        } catch (const std::runtime_error& e) {
            std::cerr << e.what() << '\n';
        }
        judge(filming);
    }
    std::_Exit(0);
}

Film::Format part(std::uint32_t from, std::uint32_t to, bool full = false) {
    return {30, 12, start, from, to, full};
}

/// The values in a file, such as "7x3 9x1 " for 7 7 7 9.
template <class Value>
std::string runs(const std::string& path, double unit) {
    const std::string bytes = contentsOf(path);
    std::vector<Value> values(bytes.size() / sizeof(Value));
    std::memcpy(values.data(), bytes.data(), values.size() * sizeof(Value));
    std::ostringstream text;
    for (auto at = values.begin(), end = at; at != values.end(); at = end) {
        const long value = std::lround(*at / unit);
        end = std::find_if(at, values.end(),
                           [&](Value other) { return std::lround(other / unit) != value; });
        text << value << 'x' << end - at << ' ';
    }
    return text.str();
}

/// The rest of the line behind that.
std::string behind(const std::string& what, const std::string& text) {
    const std::size_t at = text.find(what) + what.size();
    return text.substr(at, text.find('\n', at) - at);
}

/// A file of that game with other passes, which are counted from 0.
const char* changed(const std::function<void(Pass&, unsigned int)>& change) {
    const auto edit = [&, n = 0U](Record& record) mutable {
        if (auto* const pass = std::get_if<Pass>(&record)) change(*pass, n++);
        return false;
    };
    edited(kept, edit, {}, false);
    return "edited";
}

void delay(Pass& pass, std::uint32_t late) {
    for (std::uint32_t& ms : pass.clock)
        ms += late;
}

/// "DeathTest": these come first, as no game may have run in this process before.
class FilmDeathTest : public testing::Test {
protected:
    FilmDeathTest() {
        fs::create_directory("bin");
        fill("bin/ffmpeg", program);
        fs::permissions("bin/ffmpeg", fs::owner_all);
        setenv("PATH", (fs::absolute("bin").string() + ':' + path).c_str(), 1);
    }
    ~FilmDeathTest() override {
        setenv("PATH", path.c_str(), 1);
        unsetenv("FAILING");
        sdl() = {};
    }

    /// @param words what is said, all of it
    static void expect(const std::string& words, const std::string& file,
                       const Film::Format& format, const Step& judge) {
        EXPECT_EXIT(film(file, format, judge), testing::ExitedWithCode(0),
                    testing::Matcher<const std::string&>(words));
    }

    const headless::Sandbox sandbox{KOV_SOURCE_DIR};
    const std::string path = std::getenv("PATH");
    const std::string done = "\r100 %                    \n"; ///< said at the end
};

} // namespace

TEST_F(FilmDeathTest, ShowsEachFrameInItsTime) {
    const struct {
        std::uint32_t late, from, to; ///< ms; late are the frames from the fourth on
        const char* words;
    } cases[] = {
        {0, 990, 1110,
         "1110 ms, 5 drawn, 5 audible, 4 pictures, 5292 samples\n34x360 35x360 36x360 37x360 "},
        {0, 961, 1100,
         "1110 ms, 4 drawn, 4 audible, 3 pictures, 4851 samples\n34x360 35x360 36x360 "},
        {45, 0, 165,
         "165 ms, 5 drawn, 5 audible, 5 pictures, 7276 samples\n1x360 2x360 3x720 4x360 "},
        {-20U, 0, 130,
         "130 ms, 6 drawn, 6 audible, 4 pictures, 5733 samples\n1x360 2x360 4x360 5x360 "},
    };
    for (const auto& c : cases)
        expect(done + c.words,
               changed([&](Pass& pass, unsigned int n) { delay(pass, n < 3 ? 0 : c.late); }),
               part(c.from, c.to), [](const Filming& filming) {
                   filming.tell();
                   std::cerr << runs<std::uint32_t>("pictures.mkv", 1);
               });
}

TEST_F(FilmDeathTest, CutsALongPauseAndFadesTowardsIt) {
    const auto change = [](Pass& pass, unsigned int n) {
        delay(pass, (n > 40 ? 8000 : 0) + (n < 20 ? 0 : 10));
    };
    const Step judge = [](const Filming&) { // thousandths, of both channels
        std::cerr << runs<std::int16_t>("sound.mka", standins::SoundRecorder::rendered / 1000);
    };
    std::ostringstream volumes;
    volumes << "1000x457758 "; // of 4 s, and before
    for (int volume = 990; volume >= 0; volume -= 30)
        volumes << volume << "x2646 ";
    for (int volume = 100; volume < 900; volume += 200)
        volumes << volume << "x2048 " << volume + 100 << "x598 ";
    volumes << "900x2048 1000x117022 ";
    expect(done + volumes.str(), changed(change), part(0, 10710), judge);
    expect(done + "1000x944622 ", changed(change), part(0, 10710, true), judge);
}

TEST_F(FilmDeathTest, KeepsWhereSomethingGoesOn) {
    const struct {
        std::map<unsigned int, int> keys; ///< by pass
        const char* words;
    } cases[] = {
        {{}, "166 pictures, 220500 samples"}, // a menu
        {{{100, SDLK_x}, {200, SDLK_x}}, "300 pictures, 396900 samples"},
        {{{1, SDLK_RETURN}}, "300 pictures, 396900 samples"},                              // a game
        {{{1, SDLK_RETURN}, {40, SDLK_p}, {100, SDLK_x}}, "205 pictures, 272097 samples"}, // stands
    };
    for (const auto& c : cases) {
        const auto press = [&](Pass& pass, unsigned int n) {
            pass.events.clear();
            if (c.keys.count(n) != 0) pass.events = {{0, Event::key_down, c.keys.at(n)}};
        };
        expect(done + "9000 ms, 301 drawn, 301 audible, " + c.words + '\n', changed(press),
               part(0, 9000), &Filming::tell);
    }
}

TEST_F(FilmDeathTest, HasTheGameInTheMiddle) {
    const struct {
        int width, height;
        const char* words;
    } cases[] = {{30, 12, "30 12 32 OPENGL, 7 0 16 12, 0 0 30 12 BGRA UNSIGNED_BYTE, 30x12"},
                 {16, 20, "16 20 32 OPENGL, 0 4 16 12, 0 0 16 20 BGRA UNSIGNED_BYTE, 16x20"}};
    const Step judge = [](Filming& filming) {
        for (const char* call : {"SDL_SetVideoMode ", "glViewport ", "glReadPixels "})
            std::cerr << behind(call, standins::glRecorder().text()) << ", ";
        std::cerr << behind("\n-s\n", contentsOf("pictures.mkv.arguments")) << ' '
                  << behind("\n-framerate\n", contentsOf("pictures.mkv.arguments")) << ' '
                  << behind("\n-ar\n", contentsOf("sound.mka.arguments")) << ' '
                  << standins::sound().calls.front() << ' ' << standins::sound().updates << ' '
                  << filming.lineWidth(100.0F);
    };
    standins::glRecorder().start();
    standins::sound().recording = true;
    for (const auto& c : cases) // the sound is updated in three passes and for six pieces
        expect(done + c.words + " 100/3 44100 loopback 9 2", kept,
               {c.width, c.height, start, 0, 90, false}, judge);
    standins::glRecorder().stop();
    standins::sound() = {};
}

TEST_F(FilmDeathTest, SaysHowFarItIs) {
    sdl().ticks = 498;
    sdl().onSwap = [] { sdl().ticks += 498; }; // 500 are over at every second frame
    expect("\r28 %, time left 0:03   \r57 %, time left 0:01   \r85 %, time left 0:00   " + done +
               "5 looks",
           kept, part(90, 300), [](const Filming&) { std::cerr << sdl().swaps << " looks"; });
}

TEST_F(FilmDeathTest, EndsByTheUser) {
    const struct {
        void (*end)();      ///< at the third look
        std::uint64_t idle; ///< passes in front of the second, which is 3 s late
        std::string words;
    } cases[] = {
        {standins::pushQuit, 0, done + "3030 ms, 1 drawn, 1 audible, 2 pictures, 1323 samples\n"},
        {[] { std::raise(SIGTERM); }, 0,
         "\r0 %, time left 33:18   " + done +
             "3030 ms, 1 drawn, 1 audible, 3 pictures, 2646 samples\n"},
        {standins::pushQuit, 100000, done + "0 ms, 1 drawn, 3 audible, 0 pictures, 0 samples\n"},
    };
    for (const auto& c : cases) {
        const auto change = [&](Pass& pass, unsigned int n) {
            if (n == 1) pass.idle = c.idle;
            delay(pass, n == 0 ? 0 : 3000);
        };
        sdl().ticks = 500;
        sdl().onSwap = [&] {
            sdl().ticks += 500;
            if (sdl().swaps == 3) c.end();
        };
        expect("\r0 %, time left 16:39   \r0 %, time left 24:59   " + c.words, changed(change),
               part(0, 9000, true), &Filming::tell);
    }
}

TEST_F(FilmDeathTest, StopsAndFailsWithFfmpeg) {
    const Film::Format format = {120, 48, start, 0, 12000, false}; // beyond what a pipe holds
    const Step judge = [](const Filming& filming) {
        std::cerr << (filming.now() - start < 12000 ? "stops" : "goes on");
    };
    for (const std::string failing : {"pictures.mkv", "sound.mka", "out"}) {
        setenv("FAILING", failing.c_str(), 1);
        expect(done + "ffmpeg has failed\n" + (failing == "out" ? "goes on" : "stops"), kept,
               format, judge);
    }
}
