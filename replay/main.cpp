// Keeps games, shows them again, proves them and makes films of them: see usage_text.

#include "replay/Film.h"
#include "replay/Recorder.h"
#include "replay/Stage.h"
#include "replay/Summary.h"
#include "replay/Watcher.h"
#include "replay/Words.h"

#include "Framework/GameInfo.h"
#include "Framework/Graphics/VideoDriver.h"
#include "Framework/Utility.h"
#include "game/GameIdentity.h"

#include <boost/filesystem.hpp>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <utility>

int gameMain(int argc, char* argv[]); // of the game itself

using namespace quorva::replay;
namespace fs = boost::filesystem;

namespace {

const char* const usage_text =
    "usage: kov-replay record [FILE] [-- GAME OPTIONS]   play, and keep the games\n"
    "       kov-replay watch FILE [--speed N] [--from M:SS]\n"
    "                        space stops, arrows change the speed or step, Escape leaves\n"
    "       kov-replay verify FILE...                    play again, unseen, and compare\n"
    "       kov-replay film FILE OUT.mp4 [--size WxH]    make a film, by the program ffmpeg\n"
    "       kov-replay show FILE                         say what is in it\n"
    "       kov-replay --help | --version\n"
    "In front of these: --data FOLDER, other game files than its own.\n";

const char* const ending = ".kovreplay";
const char* const replay_folder = "Replays"; // where the game keeps its files
constexpr double slowest = Watcher::slowest, fastest = Watcher::fastest;
constexpr int smallest_picture = 16, largest_picture = 8192; // pixels

/// A wrong command line; what is wrong, in words, or nothing for the usage text.
struct BadUsage : std::runtime_error {
    using std::runtime_error::runtime_error;
};

using Words = std::vector<std::string>;

int complain(const std::string& what) {
    std::cerr << "kov-replay: " << quorva::utility::printable(what) << '\n';
    return exit_unusable;
}

/// Takes "--name value" out of the words; empty if it isn't there.
std::string takeOption(Words& words, const std::string& name) {
    const auto found = std::find(words.begin(), words.end(), name);
    if (found == words.end()) return {};
    if (found + 1 == words.end()) throw BadUsage(name + " wants a value");
    std::string value = std::move(found[1]);
    words.erase(found, found + 2);
    return value;
}

/// The words that are left: so many files.
void requireFiles(const Words& words, std::size_t least, std::size_t most) {
    for (const std::string& word : words)
        if (word.size() > 1 && word[0] == '-') throw BadUsage("no such option: " + word);
    if (words.size() < least || words.size() > most) throw BadUsage("");
}

std::string stamp() {
    const std::time_t now = std::time(nullptr);
    char text[sizeof "-2147483648-12-31 23.59.59"];
    std::strftime(text, sizeof text, "%Y-%m-%d %H.%M.%S", std::localtime(&now));
    return text;
}

int playGame(Words options) {
    options.insert(options.begin(), "kov");
    std::vector<char*> arguments;
    for (std::string& word : options)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    return gameMain(static_cast<int>(options.size()), arguments.data());
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

int record(const fs::path&, Words words) {
    const auto dashes = std::find(words.begin(), words.end(), "--");
    Words options;
    if (dashes != words.end()) options.assign(dashes + 1, words.end());
    words.erase(dashes, words.end());
    requireFiles(words, 0, 1);
    requireDisplay();
    const bool named = !words.empty();
    const fs::path path =
        fs::absolute(named ? fs::path(words[0]) : fs::path(replay_folder) / (stamp() + ending));
    boost::system::error_code ignored; // the recorder says what is wrong
    if (!named) fs::create_directories(path.parent_path(), ignored);
    try {
        Recorder recorder(path.string());
        insert(&recorder);
        // cppcheck-suppress invalidContainer // the options are copies
        const int code = playGame(options);
        recorder.finish();
        insert(nullptr);
        nameFile(path, recorder, named);
        return code;
    } catch (const std::runtime_error& e) {
        return complain("can't write " + path.string() + ": " + e.what());
    }
}

/// ms of "M:SS" or "S".
std::uint32_t toTime(const std::string& text) {
    unsigned int m = 0, s = 0;
    int length = -1;
    if (std::sscanf(text.c_str(), "%5u:%2u%n", &m, &s, &length) != 2) {
        m = 0;
        std::sscanf(text.c_str(), "%6u%n", &s, &length);
    }
    if (length != static_cast<int>(text.size())) throw BadUsage("no time such as 1:30: " + text);
    return (m * 60 + s) * 1000;
}

double toSpeed(const std::string& text) {
    char* end = nullptr;
    const double speed = std::strtod(text.c_str(), &end);
    if (*end != '\0' || !(speed >= slowest && speed <= fastest))
        throw BadUsage("no speed from 0.125 to 64: " + text);
    return speed;
}

/// Says what has been found; the window is gone.
int judge(Player& player) {
    player.finish();
    insert(nullptr);
    if (!player.damage().empty()) return complain(player.damage());
    if (player.difference().empty()) return 0;
    complain(player.difference());
    return exit_differs;
}

int watch(const fs::path& data, Words words) {
    const std::string speed = takeOption(words, "--speed"), from = takeOption(words, "--from");
    requireFiles(words, 1, 1);
    const std::string path = fs::absolute(words[0]).string();
    const Summary summary(path);
    const Watcher::Times times = {summary.start, summary.length, from.empty() ? 0 : toTime(from),
                                  speed.empty() ? 1.0 : toSpeed(speed)};
    requireDisplay();
    const fs::path songs = fs::absolute(data) / "Songs";
    Script script(path);
    const Stage stage(data, script.setup);
    Watcher watcher(script, songs, times);
    insert(&watcher);
    runGame(script.setup);
    return judge(watcher);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): as all commands
int verify(const fs::path& data, Words words) {
    requireFiles(words, 1, words.size());
    const fs::path program = fs::read_symlink("/proc/self/exe").parent_path() / "kov-replay-verify";
    int worst = 0;
    for (const std::string& word : words) {
        const int code = runProgram({program.string(), word, data.string()});
        if (code < 0) complain(word + ": the game has failed");
        worst = std::max(worst, code < 0 ? exit_differs : code);
    }
    return worst;
}

Film::Format toFormat(const std::string& size, const Summary& summary) {
    Film::Format format = {0, 0, summary.start, summary.length};
    for (const auto& [letter, value] : summary.setup.settings) {
        if (letter == 'w') format.width = value;
        if (letter == 'l') format.height = value;
    }
    int length = -1;
    if (size.empty()) return format;
    const auto isUsual = [](int pixels) {
        return pixels >= smallest_picture && pixels <= largest_picture;
    };
    std::sscanf(size.c_str(), "%5dx%5d%n", &format.width, &format.height, &length);
    if (length != static_cast<int>(size.size()) || !isUsual(format.width) ||
        !isUsual(format.height))
        throw BadUsage("no size such as 1280x720: " + size);
    return format;
}

int film(const fs::path& data, Words words) {
    const std::string size = takeOption(words, "--size");
    requireFiles(words, 2, 2);
    const std::string path = fs::absolute(words[0]).string();
    const std::string out = fs::absolute(words[1]).string();
    const Summary summary(path);
    const Film::Format format = toFormat(size, summary);
    if (fs::exists(out)) throw std::runtime_error(out + " is there already");
    if (runProgram({"ffmpeg", "-nostdin", "-v", "quiet", "-f", "lavfi", "-i", "anullsrc",
                    "-frames:a", "1", "-f", "null", "-"}) != 0)
        throw std::runtime_error("films are made by the program ffmpeg; please install the package "
                                 "ffmpeg");
    requireDisplay();
    const fs::path songs = fs::absolute(data) / "Songs";
    Script script(path);
    const Stage stage(data, script.setup);
    Film film(script, songs, format);
    insert(&film);
    runGame(script.setup);
    const int code = judge(film);
    film.finishFilm(out);
    return code;
}

int show(const fs::path&, Words words) {
    requireFiles(words, 1, 1);
    std::cout << Summary(words[0]).text();
    return 0;
}

const struct {
    const char* name;
    int (*run)(const fs::path& data, Words words);
} commands[] = {
    {"record", record}, {"watch", watch}, {"verify", verify}, {"film", film}, {"show", show},
};

int run(Words words) {
    // The launcher says where the game is installed; what the user says comes behind it.
    std::string data = ".";
    for (std::string given; given = takeOption(words, "--data"), !given.empty();)
        data = given;
    if (words.empty()) throw BadUsage("");
    const std::string name = words[0];
    words.erase(words.begin());
    if (name == "--help" || name == "-h") {
        std::cout << usage_text;
        return 0;
    }
    if (name == "--version") {
        introduceGame();
        std::cout << "KOV " << quorva::GameInfo::Instance().version << '\n';
        return 0;
    }
    for (const auto& command : commands)
        if (name == command.name) return command.run(data, words);
    throw BadUsage("no such command: " + name);
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
