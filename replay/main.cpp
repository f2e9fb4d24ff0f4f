// Keeps games, shows them again, proves them and makes films of them: see usage_text.

#include "replay/CommandLine.h"
#include "replay/Film.h"
#include "replay/Interruption.h"
#include "replay/Recorder.h"
#include "replay/Stage.h"
#include "replay/Summary.h"
#include "replay/Watcher.h"
#include "replay/Words.h"

#include "Framework/GameInfo.h"
#include "Framework/Graphics/VideoDriver.h"
#include "Framework/Utility.h"
#include "game/GameIdentity.h"
#include "headless/GameMain.h"

#include <boost/filesystem.hpp>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <iostream>

using namespace quorva::replay;
namespace fs = boost::filesystem;

namespace {

const char* const usage_text =
    "usage: kov-replay record [FILE] [-- GAME OPTIONS]   play, and keep the games\n"
    "       kov-replay watch FILE [--speed N] [--from M:SS]\n"
    "                        space stops, arrows change the speed or step, Escape leaves\n"
    "       kov-replay verify [--fair] FILE...           play again, unseen, and compare\n"
    "       kov-replay film FILE OUT.mp4 [--size WxH] [--from M:SS] [--to M:SS] [--full]\n"
    "                                                    make a film, by the program ffmpeg\n"
    "       kov-replay show FILE                         tell what is in it\n"
    "       kov-replay --help | --version\n"
    "In front of these: --data FOLDER, other game files than its own.\n";

const char* const ending = ".kovreplay";
const char* const replay_folder = "Replays";                 // where the game keeps its files
constexpr int smallest_picture = 16, largest_picture = 8192; // pixels

int complain(const std::string& what) {
    std::cerr << "kov-replay: " << quorva::utility::printable(what) << '\n';
    return exit_unusable;
}

void requireFiles(const CommandLine& line, std::size_t least, std::size_t most) {
    if (line.files.size() < least || line.files.size() > most) throw BadUsage("");
}

std::string stamp() {
    const std::time_t now = std::time(nullptr);
    char text[sizeof "-2147483648-12-31 23.59.59"];
    std::strftime(text, sizeof text, "%Y-%m-%d %H.%M.%S", std::localtime(&now));
    return text;
}

/// @param path where the file is now; it gets its score into the name if that wasn't given
void nameFile(const fs::path& path, const Recorder& recorder, bool nameGiven) {
    boost::system::error_code ignored; // it keeps the name that it has
    if (recorder.games == 0) {
        fs::remove(path, ignored);
        if (!nameGiven) fs::remove(path.parent_path(), ignored); // unless there are others
        return;
    }
    fs::path name = path;
    if (!nameGiven) {
        name = path.parent_path() /
               (path.stem().string() + ' ' + std::to_string(recorder.bestScore) + ending);
        fs::rename(path, name, ignored);
    }
    std::cout << "kept in " << name.string() << '\n';
}

void requireDisplay() {
    quorva::graphics::keepToDriversWithGL();
    if (SDL_Init(SDL_INIT_VIDEO) < 0) throw std::runtime_error("there is no display here");
}

int record(const fs::path&, const Words& words) {
    const auto dashes = std::find(words.begin(), words.end(), "--");
    const CommandLine line(Words(words.begin(), dashes), {});
    requireFiles(line, 0, 1);
    requireDisplay();
    const bool named = !line.files.empty();
    const fs::path path = fs::absolute(named ? fs::path(line.files[0])
                                             : fs::path(replay_folder) / (stamp() + ending));
    boost::system::error_code ignored; // the recorder says what is wrong
    if (!named) fs::create_directories(path.parent_path(), ignored);
    try {
        Recorder recorder(path.string());
        insert(&recorder);
        const int code = quorva::headless::runGameMain(
            dashes == words.end() ? Words() : Words(dashes + 1, words.end()));
        recorder.finish();
        insert(nullptr);
        nameFile(path, recorder, named);
        return code;
    } catch (const std::runtime_error& e) {
        return complain("can't write " + path.string() + ": " + e.what());
    }
}

/// Says what has been found; the window is gone.
int judge(Playback& playback, std::uint32_t start) {
    playback.finish();
    insert(nullptr);
    if (!playback.damage().empty()) return complain(playback.damage());
    if (!playback.difference().empty()) {
        complain(playback.difference());
        return exit_differs;
    }
    if (!isInterrupted()) return 0;
    complain("interrupted at " + minutes(playback.now() - start));
    return exit_interrupted;
}

int watch(const fs::path& data, const Words& words) {
    const CommandLine line(words, {{"speed", true}, {"from", true}});
    requireFiles(line, 1, 1);
    const std::string speed = line.value("speed"), from = line.value("from");
    const std::string path = fs::absolute(line.files[0]).string();
    const Summary summary(path);
    const Watcher::Times times = {
        summary.start, summary.length, from.empty() ? 0 : toTime(from),
        speed.empty() ? 1.0 : toSpeed(speed, Watcher::slowest, Watcher::fastest)};
    requireDisplay();
    const fs::path songs = fs::absolute(data) / "Songs";
    Script script(path);
    const Stage stage(data, script.setup);
    Watcher watcher(script, songs, times);
    insert(&watcher);
    runGame(script.setup);
    return judge(watcher, summary.start);
}

/// Of two exit codes: what is unusable, what differs, what is marked, what is well.
int worse(int a, int b) {
    const auto rank = [](int code) {
        return code == exit_marked     ? 1
               : code == exit_differs  ? 2
               : code == exit_unusable ? 3
                                       : code;
    };
    return rank(a) > rank(b) ? a : b;
}

/// The program that plays games unseen, which lies beside this one.
ProgramEnd playUnseen(const Words& words) {
    const fs::path self = fs::read_symlink("/proc/self/exe");
    Words all = {(self.parent_path() / "kov-replay-verify").string()};
    all.insert(all.end(), words.begin(), words.end());
    return runProgram(all);
}

int verify(const fs::path& data, const Words& words) {
    const CommandLine line(words, {{"fair", false}});
    requireFiles(line, 1, line.files.size());
    int worst = 0;
    for (const std::string& file : line.files) {
        Words all = {"--", file, data.string()};
        if (line.has("fair")) all.insert(all.begin(), "--fair");
        const ProgramEnd end = playUnseen(all);
        if (end.interrupted || end.code == exit_interrupted) return exit_interrupted;
        if (end.code < 0) complain(file + ": the game has failed");
        worst = worse(worst, end.code < 0 ? exit_differs : end.code);
    }
    return worst;
}

void takeSize(const std::string& size, Film::Format& format) {
    int length = -1;
    const auto isUsual = [](int pixels) {
        return pixels >= smallest_picture && pixels <= largest_picture;
    };
    std::sscanf(size.c_str(), "%5dx%5d%n", &format.width, &format.height, &length);
    if (length != static_cast<int>(size.size()) || !isUsual(format.width) ||
        !isUsual(format.height))
        throw BadUsage("no size such as 1280x720: " + size);
}

Film::Format toFormat(const CommandLine& line, const Summary& summary) {
    const SettingValues& settings = summary.setup.settings;
    Film::Format format = {valueOf(settings, 'w'), valueOf(settings, 'l'), summary.start, 0,
                           summary.length,         line.has("full")};
    if (line.has("size")) takeSize(line.value("size"), format);
    if (line.has("from")) format.from = toTime(line.value("from"));
    if (line.has("to")) format.to = std::min(format.to, toTime(line.value("to")));
    if (format.from >= format.to)
        throw std::runtime_error("the file is " + minutes(summary.length) +
                                 " long: nothing lies between " + minutes(format.from) + " and " +
                                 minutes(format.to));
    return format;
}

int film(const fs::path& data, const Words& words) {
    const CommandLine line(words, {{"size", true}, {"from", true}, {"to", true}, {"full", false}});
    requireFiles(line, 2, 2);
    const std::string path = fs::absolute(line.files[0]).string();
    const std::string out = fs::absolute(line.files[1]).string();
    const Summary summary(path);
    const Film::Format format = toFormat(line, summary);
    Film::requireTarget(out);
    requireDisplay();
    const fs::path songs = fs::absolute(data) / "Songs";
    Script script(path);
    const Stage stage(data, script.setup);
    Film film(script, songs, format);
    insert(&film);
    runGame(script.setup);
    const int code = judge(film, summary.start);
    if (code != exit_interrupted) film.finishFilm(out);
    return code;
}

int show(const fs::path& data, const Words& words) {
    const CommandLine line(words, {});
    requireFiles(line, 1, 1);
    const ProgramEnd end = playUnseen({"--show", "--", line.files[0], data.string()});
    if (end.interrupted) return exit_interrupted;
    if (end.code >= 0) return end.code;
    complain(line.files[0] + ": the game has failed");
    return exit_differs;
}

const struct {
    const char* name;
    int (*run)(const fs::path& data, const Words& words);
} commands[] = {
    {"record", record}, {"watch", watch}, {"verify", verify}, {"film", film}, {"show", show},
};

int sayVersion() {
    introduceGame();
    std::cout << "KOV " << quorva::GameInfo::Instance().version << '\n';
    return 0;
}

int run(const Words& words) {
    const CommandLine line(words, {{"data", true, true}, {"help", false}, {"version", false}},
                           CommandLine::options_first);
    if (line.has("help")) {
        std::cout << usage_text;
        return 0;
    }
    if (line.has("version")) return sayVersion();
    if (line.files.empty()) throw BadUsage("");
    // The launcher says where the game is installed; what the user says comes behind it.
    const std::string data = line.has("data") ? line.value("data") : ".";
    for (const auto& command : commands)
        if (line.files[0] == command.name)
            return command.run(data, Words(line.files.begin() + 1, line.files.end()));
    throw BadUsage("no such command: " + line.files[0]);
}

} // namespace

int main(int argc, char* argv[]) {
    try {
        return run(Words(argv + 1, argv + argc));
    } catch (const BadUsage& e) {
        if (e.what()[0] != '\0') complain(e.what());
        std::cerr << usage_text;
        return exit_unusable;
    } catch (const std::exception& e) {
        return complain(e.what());
    }
}
