// The whole program, from main to its exit, in a folder of its own with something wrong in it. It
// says the lines that it should on standard error, and nothing else, and plays on.

#include "game/Marvo.h"
#include "game/PlayerCharacter.h"
#include "headless/GameMain.h"
#include "platform/fmodex/fmodex.h"
#include "platform/standins/VirtualSDL.h"
#include "tests/support/Errors.h"
#include "tests/support/Files.h"

#include <boost/filesystem.hpp>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>
#include <functional>
#include <set>
#include <sstream>

/// The effects are held until the process ends, by nobody in the end.
extern "C" const char* __lsan_default_suppressions() { // NOLINT: the sanitizer's name
    return "leak:FModMP3Input::loadEffects\n";
}

extern "C" const char* __lsan_default_options() { // NOLINT: likewise
    return "print_suppressions=0";                // on standard error
}

namespace {

namespace fs = boost::filesystem;
using quorva::standins::sdl;

constexpr uid_t nobody = 65534;
constexpr int stopped_elsewhere = 99; // exit code
constexpr unsigned int patience = 60; // seconds

/// A key at a pass, 30 ms each. Plays, pauses, leaves, saves the settings, loses with a record.
const struct {
    unsigned int pass;
    int key;
} script[] = {{2, SDLK_RETURN},  {5, SDLK_w},       {10, SDLK_d},      {15, SDLK_p},
              {20, SDLK_p},      {25, SDLK_a},      {60, SDLK_ESCAPE}, // to the menu
              {65, SDLK_DOWN},   {66, SDLK_RETURN}, {67, SDLK_UP},     {68, SDLK_UP},
              {69, SDLK_RETURN}, // saves
              {75, SDLK_RETURN}};
constexpr unsigned int death_pass = 100;
constexpr std::uint32_t record = 4321;
const std::string beaten_score = std::string("\xe1\x10\0\0", 4); ///< with that record

unsigned int passes = 0;
/// After which pass the player ends the game, and how. That takes one more at most.
unsigned int lastPass = 120;
std::function<void()> end = quorva::standins::pushQuit;

void turnPage() {
    sdl().ticks += 30;
    ++passes;
    for (const auto& row : script) {
        if (row.pass != passes) continue;
        quorva::standins::pushKey(row.key, true);
        quorva::standins::pushKey(row.key, false);
    }
    if (passes == death_pass) {
        Marvo::Instance().score = record;
        Marvo::Instance().lives = 0;
        Marvo::Instance().player->invulnerable = false;
        Marvo::Instance().killPlayer();
    }
    if (passes == lastPass) end();
}

class Faults : public testing::Test {
protected:
    using Outcome = std::pair<std::string, int>; ///< what was said on standard error, exit code

    void SetUp() override {
        fs::create_directories(folder / "Songs");
        const fs::path source = KOV_SOURCE_DIR;
        for (const char* name : {"data", "fonts", "Sounds"}) {
            fs::create_directory(folder / name);
            for (const fs::directory_entry& entry : fs::directory_iterator(source / name))
                fs::copy_file(entry.path(), folder / name / entry.path().filename());
        }
        fs::copy_file(source / "fuzz/corpus/sound_file/song.ogg", folder / "Songs/a.ogg");
        fs::current_path(folder);
        fill("bind1.conf", "Fire Up, w\n");
        fill("game.conf", settings);
        fill("s.dat", std::string("\x10\x27\0\0", 4));
    }
    void TearDown() override {
        fs::current_path("/");
        fs::remove_all(folder);
    }

    /// Runs the game in a child process, as somebody whom file permissions bind.
    static Outcome play(const std::function<void()>& prepare = {}) {
        int status = 0;
        const std::string errors = errorsOf([&] {
            const pid_t child = fork();
            if (child == 0) runGame(prepare);
            waitpid(child, &status, 0);
        });
        return {errors, WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status)};
    }

    const Outcome well = {"", 0};
    const std::string settings = "ScreenWidth = 1280\nScreenHeight = 1024\n";
    const fs::path folder = fs::temp_directory_path() / fs::unique_path("kov-faults-%%%%%%%%");

private:
    [[noreturn]] static void runGame(const std::function<void()>& prepare) {
        setenv("ALSOFT_DRIVERS", "null", 0);
        alarm(patience);
        if (prepare) prepare();
        leaveRoot();
        sdl().onSwap = turnPage;
        const int code = quorva::headless::runGameMain({});
        if (sdl().quits != 1) std::cerr << "SDL_Quit: " << sdl().quits << '\n';
        std::exit(code == 0 && passes - lastPass > 1 ? stopped_elsewhere : code);
    }
    static void leaveRoot() {
        if (geteuid() != 0) return;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator("."))
            if (lchown(entry.path().c_str(), nobody, nobody) != 0) std::exit(stopped_elsewhere);
        if (chown(".", nobody, nobody) != 0 || setuid(nobody) != 0) std::exit(stopped_elsewhere);
        prctl(PR_SET_DUMPABLE, 1); // else the leak check can't look into this process
    }
};

enum Harm { missing, empty, other_kind, unreadable, garbage, pipe_there, device, harm_count };
const char* const harm_names[] = {"missing",          "empty",   "a folder or file in its place",
                                  "unreadable",       "garbage", "a pipe",
                                  "an endless device"};

const std::string garbage_bytes(4096, '\xc3'); ///< neither text nor any file's start

void spoil(const fs::path& path, Harm harm) {
    const bool isFolder = fs::is_directory(path);
    if (harm == unreadable) return fs::permissions(path, fs::no_perms);
    fs::remove_all(path);
    if (harm == missing) return;
    if (harm == pipe_there) return static_cast<void>(mkfifo(path.c_str(), 0666));
    if (harm == device) return fs::create_symlink("/dev/zero", path);
    const bool wantsFolder = isFolder ? harm == empty : harm == other_kind;
    if (wantsFolder)
        fs::create_directory(path);
    else
        fill(path.string(), harm == garbage ? garbage_bytes : "");
}

/// What is harmed, all of it at once, and the lines of each harm. A pipe and a device are no
/// better than another kind.
struct Row {
    std::vector<const char*> paths;
    std::string lines[pipe_there];
    const std::string& linesOf(int harm) const {
        return lines[harm < pipe_there ? harm : static_cast<int>(other_kind)];
    }
};

/// Resource managers are loaded again in the order of their addresses, which differs by system.
std::multiset<std::string> sorted(const std::string& text) {
    std::istringstream in(text);
    std::multiset<std::string> lines;
    for (std::string line; std::getline(in, line);)
        lines.insert(line);
    return lines;
}

std::string told(FMOD_RESULT result) {
    return "FMOD error!" + std::to_string(result) + FMOD_ErrorString(result) + "\n";
}

Row always(const char* path, const std::string& line) {
    return {{path}, {line, line, line, line, line}};
}

} // namespace

TEST_F(Faults, WithAllInPlaceNothingIsSaidAndAllIsKept) {
    EXPECT_EQ(play(), well);
    EXPECT_EQ(contentsOf("game.conf").substr(0, 50),
              "#Config file for: KOV. v.1.0\nScreenWidth = 1280\nSc");
    EXPECT_EQ(contentsOf("s.dat"), std::string("\x10\x27\0\0", 4)) << "10000 is not beaten";
    fill("s.dat", "");
    EXPECT_EQ(play(), well);
    EXPECT_EQ(contentsOf("s.dat"), beaten_score);
}

TEST_F(Faults, AFileThatIsNotWhatItShouldBeIsReportedOnceAndTheGameGoesOn) {
    // Resources are loaded at the start, and again when the video restarts.
    const std::string looks = "Can't readColour file: data/Colour.kov\n"
                              "Can't readFont file: data/Font.kov\n",
                      points = "Can't readPoint file: data/Point.kov\n",
                      font = "Couldn't load font: fonts/KovMenu.ttf\n",
                      songs = "Song directory is missing\n", lost = told(FMOD_ERR_FILE_NOTFOUND),
                      bad = told(FMOD_ERR_FORMAT), unplayed = told(FMOD_ERR_INVALID_PARAM),
                      silent = "Can't read alive sound\n",
                      unread = looks + "Can't read bind1.conf\n" + points + looks + points;
    const Row rows[] = {
        {{"data/Colour.kov", "data/Font.kov", "data/Point.kov", "bind1.conf"},
         {unread, "", unread, unread, ""}},
        {{"data/kov.ico", "game.conf", "s.dat"}, {}},
        always("fonts/KovMenu.ttf", font + font),
        always("fonts/VeraMono.ttf", "Couldn't load font: fonts/VeraMono.ttf\n"), // the fallback
        {{"Songs"}, {songs, "", songs, songs, songs}},
        {{"Songs/a.ogg"}, {"", bad + unplayed, "", lost + unplayed, bad + unplayed}},
        {{"Sounds/alive.wav"},
         {lost + silent, bad + silent, lost + silent, lost + silent, bad + silent}},
    };
    for (const Row& row : rows) {
        for (int harm = missing; harm < harm_count; ++harm) {
            const bool isSound = row.paths[0][0] == 'S' && std::strchr(row.paths[0], '/');
            if (isSound && harm >= pipe_there) continue; // left to the sound layer
            SCOPED_TRACE(std::string(row.paths[0]) + ": " + harm_names[harm]);
            for (const char* path : row.paths)
                spoil(path, static_cast<Harm>(harm));
            const auto [said, code] = play();
            EXPECT_EQ(sorted(said), sorted(row.linesOf(harm)));
            EXPECT_EQ(code, 0);
            TearDown();
            SetUp();
        }
    }
}

TEST_F(Faults, WhatCannotBeWrittenIsPassedOverAndLosesNothing) {
    const std::string score = std::string("\1\0\0\0", 4);
    fill("s.dat", score);
    EXPECT_EQ(play([] { leaveRoom(2); }), well); // bytes
    EXPECT_EQ(contentsOf("game.conf"), settings);
    EXPECT_EQ(contentsOf("s.dat"), score);
    fs::remove("game.conf.bak");
    // A folder, and files, that may only be read; then the folder alone.
    fill("s.dat", score);
    for (const char* path : {"game.conf", "s.dat", "."})
        fs::permissions(path, fs::owner_read | fs::owner_exe);
    for (const std::string& kept : {score, beaten_score}) {
        EXPECT_EQ(play(), well);
        EXPECT_EQ(contentsOf("s.dat"), kept);
        EXPECT_EQ(contentsOf("game.conf"), settings);
        EXPECT_FALSE(fs::exists("game.conf.bak"));
        fs::permissions("s.dat", fs::owner_read | fs::owner_write);
    }
    fs::permissions(".", fs::owner_all);
}

TEST_F(Faults, OfTheMachineAndSignals) {
    const std::string refused = "Couldn't set the video mode: no such mode\n";
    const struct {
        const char* what;
        std::function<void()> prepare;
        Outcome outcome;
    } cases[] = {
        {"a signal as the window opens",
         [] { sdl().onMode = [] { std::raise(SIGTERM); }, lastPass = 0; }, well},
        {"a signal in the pause", [] { end = [] { std::raise(SIGHUP); }, lastPass = 17; }, well},
        {"a signal that nohup ignores",
         [] { std::signal(SIGHUP, SIG_IGN), sdl().onMode = [] { std::raise(SIGHUP); }; }, well},
        {"no sound card", [] { setenv("ALSOFT_DRIVERS", "alsa", 1); }, well},
        {"no sound system", [] { setenv("ALSOFT_DRIVERS", "none", 1); }, well},
        {"a joystick that does not open",
         [] { sdl().joysticks = 1, sdl().refusedJoystick = 0; },
         {"No active joysticks found.\n", 0}},
        {"the mode is refused", [] { sdl().refusedModes = 1; }, {refused, 0}},
        {"so is the other", [] { sdl().refusedModes = 2; }, {refused + refused, 255}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(play(c.prepare), c.outcome) << c.what;
}
