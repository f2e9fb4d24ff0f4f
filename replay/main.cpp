// Keeps games, shows them again, proves them and makes films of them: see usage_text.

#include "replay/Best.h"
#include "replay/CommandLine.h"
#include "replay/Film.h"
#include "replay/Interruption.h"
#include "replay/KeptGames.h"
#include "replay/Page.h"
#include "replay/Recorder.h"
#include "replay/Shipped.h"
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
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <iterator>
#include <optional>
#include <stdexcept>

using namespace quorva::replay;
namespace fs = boost::filesystem;

namespace {

const char* const usage_text =
    "usage: kov-replay record [FILE] [-- GAME OPTIONS]   play, and keep the games\n"
    "       kov-replay watch [FILE] [--speed N] [--from M:SS]\n"
    "                        a game that comes with the game, if no other is given;\n"
    "                        space stops, arrows change the speed or step, Escape leaves\n"
    "       kov-replay verify [--fair] FILE...           play again, unseen, and compare\n"
    "       kov-replay film FILE OUT.mp4 [--size WxH] [--from M:SS] [--to M:SS] [--full]\n"
    "                                                    make a film, by the program ffmpeg\n"
    "       kov-replay show FILE                         tell what is in it\n"
    "       kov-replay best [FOLDER] [--page FOLDER [--with-web BUILD]]\n"
    "                                                    the ten best games, proved\n"
    "       kov-replay --help | --version\n"
    "In front of these: --data FOLDER, other game files than its own.\n";

constexpr std::size_t most_games = 10;                       // of the best
constexpr int smallest_picture = 16, largest_picture = 8192; // pixels

/// Folders that are given in front of the command.
struct Folders {
    fs::path data;    ///< of the game
    fs::path replays; ///< where games are kept that have no other place
};

/// By SIGINT, SIGTERM or SIGHUP.
struct Interrupted : std::runtime_error {
    Interrupted() : std::runtime_error("interrupted") {}
};

int complain(const std::string& what) {
    std::cerr << "kov-replay: " << quorva::utility::printable(what) << '\n';
    return exit_unusable;
}

void requireFiles(const CommandLine& line, std::size_t least, std::size_t most) {
    if (line.files.size() < least || line.files.size() > most) throw BadUsage("");
}

/// Gives the file its score, or removes it if there is nothing in it.
/// @return where it is now; empty if nowhere
fs::path finishFile(const fs::path& path, const Recorder& recorder, KeptName* name) {
    boost::system::error_code ignored; // it keeps the name that it has
    if (recorder.games == 0) {
        fs::remove(path, ignored);
        if (name != nullptr) fs::remove(path.parent_path(), ignored); // unless there are others
        return {};
    }
    if (name == nullptr) return path;
    const fs::path finished = path.parent_path() / name->finished(recorder.bestScore);
    fs::rename(path, finished, ignored);
    return fs::exists(finished) ? finished : path;
}

void requireDisplay() {
    quorva::graphics::keepToDriversWithGL();
    if (SDL_Init(SDL_INIT_VIDEO) < 0) throw std::runtime_error("there is no display here");
}

/// The game ends the process by itself if it can't open a window. Nothing stays of that.
void removeIfEmptyAtExit(const fs::path& path) {
    static fs::path file;
    file = path;
    std::atexit([] {
        boost::system::error_code error;
        if (fs::file_size(file, error) <= BlockWriter::empty_size && !error)
            fs::remove(file, error);
    });
}

/// Plays, and keeps it in a file.
/// @param name by which it is kept; null if the path is the player's choice
int record(Recorder& recorder, const fs::path& path, KeptName* name, const Words& gameOptions) {
    removeIfEmptyAtExit(path);
    const Insertion insertion(recorder);
    const int code = quorva::headless::runGameMain(gameOptions);
    recorder.finish();
    const fs::path kept = finishFile(path, recorder, name);
    const bool isAutomatic = name != nullptr && name->isAutomatic;
    if (isAutomatic) tidy(path.parent_path());
    if (fs::exists(kept) && (!isAutomatic || isatty(STDOUT_FILENO) != 0))
        std::cout << "kept in " << kept.string() << '\n';
    return code;
}

int record(const Folders& folders, const Words& words) {
    const auto dashes = std::find(words.begin(), words.end(), "--");
    const CommandLine line(Words(words.begin(), dashes), {{"auto", false}});
    const Words gameOptions = dashes == words.end() ? Words() : Words(dashes + 1, words.end());
    const bool isAutomatic = line.has("auto"), isNamed = !line.files.empty();
    requireFiles(line, 0, isAutomatic ? 0 : 1);
    if (!isAutomatic) requireDisplay(); // else the game says so
    KeptName name = KeptName::now(isAutomatic);
    const fs::path path =
        fs::absolute(isNamed ? fs::path(line.files[0]) : folders.replays / name.unfinished());
    boost::system::error_code ignored; // the recorder says what is wrong
    if (!isNamed) fs::create_directories(path.parent_path(), ignored);
    std::optional<Recorder> recorder;
    try {
        recorder.emplace(path.string());
    } catch (const std::runtime_error& e) {
        complain("can't write " + path.string() + ": " + e.what());
        return isAutomatic ? quorva::headless::runGameMain(gameOptions) : exit_unusable;
    }
    return record(*recorder, path, isNamed ? nullptr : &name, gameOptions);
}

/// Says what has been found; the window is gone.
int judge(Playback& playback, std::uint32_t start) {
    playback.finish();
    if (!playback.damage().empty()) return complain(playback.damage());
    if (!playback.difference().empty()) {
        complain(playback.difference());
        return exit_differs;
    }
    if (!isInterrupted()) return 0;
    complain("interrupted at " + minutes(playback.now() - start));
    return exit_interrupted;
}

/// A game that comes with the game.
fs::path demonstration(const Folders& folders) {
    const fs::path installed = folders.data / "demonstration.kovreplay";
    return fs::exists(installed) ? installed : folders.data / "packaging" / installed.filename();
}

int watch(const Folders& folders, const Words& words) {
    const CommandLine line(words, {{"speed", true}, {"from", true}});
    requireFiles(line, 0, 1);
    const std::string path =
        fs::absolute(line.files.empty() ? demonstration(folders) : fs::path(line.files[0]))
            .string();
    const Summary summary(path);
    const Watcher::Times times = {summary.start, summary.length, toTime(line.value("from", "0")),
                                  toSpeed(line.value("speed", "1"), Pace::slowest, Pace::fastest)};
    requireDisplay();
    const fs::path songs = fs::absolute(folders.data) / "Songs";
    Script script(path);
    const Stage stage(folders.data, script.setup);
    Watcher watcher(script, songs, times);
    const Insertion insertion(watcher);
    runGame(script.setup);
    return judge(watcher, summary.start);
}

/// Of two exit codes: rather unusable than differs, than marked, than well.
int worse(int a, int b) {
    constexpr int ranking[] = {0, exit_marked, exit_differs, exit_unusable};
    const auto rank = [&](int code) {
        return std::find(std::begin(ranking), std::end(ranking), code) - std::begin(ranking);
    };
    return rank(a) > rank(b) ? a : b;
}

/// Plays games unseen; lies beside this one.
fs::path verifyProgram() {
    return fs::read_symlink("/proc/self/exe").parent_path() / "kov-replay-verify";
}

/// @return that program's exit code; exit_differs, with a line, if it has none. Throws Interrupted.
int playUnseen(const Folders& folders, const std::string& file, const Words& options) {
    Words words = {verifyProgram().string()};
    words.insert(words.end(), options.begin(), options.end());
    words.insert(words.end(), {"--", file, folders.data.string()});
    const ProgramEnd end = runProgram(words);
    if (end.interrupted || end.code == exit_interrupted) throw Interrupted();
    if (end.code >= 0) return end.code;
    complain(file + ": the game has failed");
    return exit_differs;
}

int verify(const Folders& folders, const Words& words) {
    const CommandLine line(words, {{"fair", false}});
    requireFiles(line, 1, line.files.size());
    const Words options = line.has("fair") ? Words{"--fair"} : Words{};
    int worst = 0;
    for (const std::string& file : line.files)
        worst = worse(worst, playUnseen(folders, file, options));
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
    Film::Format format = {valueOf(settings, 'w'), valueOf(settings, 'l'),
                           summary.start,          toTime(line.value("from", "0")),
                           summary.length,         line.has("full")};
    if (line.has("size")) takeSize(line.value("size"), format);
    if (line.has("to")) format.to = std::min(format.to, toTime(line.value("to")));
    if (format.from >= format.to)
        throw std::runtime_error("the file is " + minutes(summary.length) +
                                 " long: nothing lies between " + minutes(format.from) + " and " +
                                 minutes(format.to));
    return format;
}

int film(const Folders& folders, const Words& words) {
    const CommandLine line(words, {{"size", true}, {"from", true}, {"to", true}, {"full", false}});
    requireFiles(line, 2, 2);
    const std::string path = fs::absolute(line.files[0]).string();
    const std::string out = fs::absolute(line.files[1]).string();
    const Summary summary(path);
    const Film::Format format = toFormat(line, summary);
    Film::requireTarget(out);
    requireDisplay();
    const fs::path songs = fs::absolute(folders.data) / "Songs";
    Script script(path);
    const Stage stage(folders.data, script.setup);
    Film film(script, songs, format);
    const Insertion insertion(film);
    runGame(script.setup);
    const int code = judge(film, summary.start);
    if (code != exit_interrupted) film.finishFilm(out);
    return code;
}

int show(const Folders& folders, const Words& words) {
    const CommandLine line(words, {});
    requireFiles(line, 1, 1);
    return playUnseen(folders, line.files[0], {"--show"});
}

std::vector<RankedGame> provenGames(const Folders& folders, const fs::path& folder) {
    const Shipped shipped(fs::absolute(folders.data));
    std::vector<fs::path> basis = shipped.files;
    basis.push_back(verifyProgram());
    Proofs proofs(folder, basis, [&](const fs::path& file, const fs::path& report) {
        const int code = playUnseen(folders, file.string(), {"--report", report.string()});
        return code == 0 || code == exit_differs;
    });
    std::vector<RankedGame> games;
    for (const fs::path& file : replaysIn(folder)) {
        const auto report = proofs.of(file);
        if (!report) continue;
        if (!report->verdict.empty()) {
            complain(file.filename().string() + ": " + report->verdict);
            continue;
        }
        for (const Report::Game& game : report->games)
            games.push_back({file, report->date, game});
    }
    proofs.forgetOthers();
    return games;
}

int best(const Folders& folders, const Words& words) {
    const CommandLine line(words, {{"page", true}, {"with-web", true}});
    requireFiles(line, 0, 1);
    if (line.has("with-web") && !line.has("page")) throw BadUsage("--with-web wants --page");
    const fs::path folder =
        fs::absolute(line.files.empty() ? folders.replays : fs::path(line.files[0]));
    if (!line.files.empty() && !fs::is_directory(folder))
        throw std::runtime_error("no such folder: " + folder.string());
    const std::vector<RankedGame> games = best(provenGames(folders, folder), most_games);
    if (games.empty())
        std::cout << "no games are kept in " << folder.string() << '\n';
    else
        std::cout << inWords(games);
    if (!line.has("page")) return 0;
    writePage(line.value("page"), games, line.value("with-web"));
    std::cout << "page in " << (fs::absolute(line.value("page")) / "index.html").string() << '\n';
    return 0;
}

const struct {
    const char* name;
    int (*run)(const Folders& folders, const Words& words);
} commands[] = {
    {"record", record}, {"watch", watch}, {"verify", verify},
    {"film", film},     {"show", show},   {"best", best},
};

int sayVersion() {
    introduceGame();
    std::cout << "KOV " << quorva::GameInfo::Instance().version << '\n';
    return 0;
}

int run(const Words& words) {
    const CommandLine line(
        words, {{"data", true, true}, {"replays", true, true}, {"help", false}, {"version", false}},
        CommandLine::options_first);
    if (line.has("help")) {
        std::cout << usage_text;
        return 0;
    }
    if (line.has("version")) return sayVersion();
    if (line.files.empty()) throw BadUsage("");
    // The launcher says where the game is installed; what the user says comes behind it.
    const Folders folders = {line.value("data", "."), line.value("replays", "Replays")};
    for (const auto& command : commands)
        if (line.files[0] == command.name)
            return command.run(folders, Words(line.files.begin() + 1, line.files.end()));
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
    } catch (const Interrupted& e) {
        complain(e.what());
        return exit_interrupted;
    } catch (const std::exception& e) {
        return complain(e.what());
    }
}
