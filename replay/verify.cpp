// Plays a recorded game without a window, as fast as it goes, and compares every state that was
// kept. `kov-replay` starts it for what is to be proved or told of a file.
//   kov-replay-verify [--fair] [--show] [--report FILE] RECORDED_FILE FOLDER_OF_THE_GAMES_DATA
// Its exit codes are those of `kov-replay verify`.

#include "replay/CommandLine.h"
#include "replay/Interruption.h"
#include "replay/Meter.h"
#include "replay/Stage.h"
#include "replay/Summary.h"
#include "replay/Verifier.h"
#include "replay/Words.h"

#include "Framework/Utility.h"

#include <boost/filesystem.hpp>
#include <sys/prctl.h>

#include <csignal>
#include <fstream>
#include <iostream>

using namespace quorva::replay;

namespace {

/// What `verify` says of a file: a line, and one for each game.
void sayVerdict(const std::string& name, Verifier& verifier) {
    std::cout << name << ": " << inWords(verifier.progress().ticks, verifier.results()) << ": "
              << verifier.verdict() << '\n';
    for (std::size_t i = 0; i < verifier.story.games.size(); ++i)
        std::cout << "  game " << i + 1 << ": "
                  << inWords(verifier.remarks(verifier.story.games[i])) << '\n';
}

/// What `show` says.
void saySummary(const std::string& path, Verifier& verifier) {
    const Summary summary(path);
    std::cout << summary.text();
    for (const GameStory& game : verifier.story.games)
        std::cout << "game      at " << minutes(game.begin) << ": "
                  << (game.end ? inWords(*game.end) : "not to its end") << "\n  story   "
                  << inWords(game) << "\n  helps   " << inWords(verifier.remarks(game))
                  << "\n  settings" << inWords(game.settings) << '\n';
    std::cout << "verdict   " << verifier.verdict() << '\n';
}

void writeReport(const std::string& path, const Report& report) {
    ByteWriter out;
    report.write(out);
    std::ofstream(path, std::ios::binary) << out.bytes;
}

int codeOf(const Verifier& verifier, bool fair) {
    if (!verifier.difference().empty()) return exit_differs;
    if (isInterrupted()) return exit_interrupted;
    return fair && verifier.anyGameMarked() ? exit_marked : 0;
}

int verify(const CommandLine& line) {
    const std::string path = boost::filesystem::absolute(line.files[0]).string();
    const std::string reportPath = boost::filesystem::absolute(line.value("report")).string();
    Script script(path);
    const Stage stage(line.files[1], script.setup);
    Verifier verifier(script, stage.shipped, line.has("report"));
    Meter meter;
    verifier.onProgress = [&meter](double part) { meter.show(part); };
    const Insertion insertion(verifier);
    std::cerr.setstate(std::ios::failbit); // what the game had to say is of no interest
    runGame(script.setup);
    std::cerr.clear();
    verifier.finish();
    meter.clear();
    if (!verifier.damage().empty()) throw BadFile(verifier.damage());
    if (line.has("report"))
        writeReport(reportPath, verifier.report());
    else if (line.has("show"))
        saySummary(path, verifier);
    else
        sayVerdict(quorva::utility::printable(line.files[0]), verifier);
    std::cout << std::flush;
    return codeOf(verifier, line.has("fair"));
}

} // namespace

int main(int argc, char* argv[]) {
    prctl(PR_SET_PDEATHSIG, SIGTERM); // nobody is left to tell
    std::string name;
    try {
        const CommandLine line(Words(argv + 1, argv + argc),
                               {{"fair", false}, {"show", false}, {"report", true}});
        if (line.files.size() != 2) throw BadUsage("kov-replay-verify wants a file and a folder");
        name = quorva::utility::printable(line.files[0]) + ": ";
        return verify(line);
    } catch (const std::exception& e) {
        std::cerr << "kov-replay: " << name << e.what() << '\n';
        return exit_unusable;
    }
}
