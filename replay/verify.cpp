// Plays a recorded game without a window, as fast as it goes, and compares every state that was
// kept. `kov-replay verify` starts it.
//   kov-replay-verify FILE FOLDER_OF_THE_GAMES_DATA
// Its exit codes are those of `kov-replay verify`.

#include "replay/Interruption.h"
#include "replay/Playback.h"
#include "replay/Stage.h"
#include "replay/Words.h"

#include "Framework/Utility.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <iostream>

using namespace quorva::replay;

namespace {

/// Says on a terminal how far it is.
class Meter {
public:
    /// @param part done, from 0 to 1
    void show(double part) {
        if (!isWanted || ++calls % calls_a_look != 0) return;
        const auto time = std::chrono::steady_clock::now();
        if (time - shown < interval) return;
        shown = time;
        std::cout << '\r' << static_cast<int>(100.0 * part) << " % " << std::flush;
        hasShown = true;
    }
    void clear() {
        if (std::exchange(hasShown, false)) std::cout << "\r      \r" << std::flush;
    }

private:
    static constexpr unsigned int calls_a_look = 256;
    static constexpr std::chrono::milliseconds interval{500};

    const bool isWanted = isatty(STDOUT_FILENO) != 0;
    bool hasShown = false;
    unsigned int calls = 0;
    std::chrono::steady_clock::time_point shown = std::chrono::steady_clock::now();
};

class Verifier : public Playback {
public:
    using Playback::Playback;
    bool draws() override { return false; }

    Meter meter;

private:
    void show() override {
        if (!difference().empty()) stop();
        passIdly();
    }
    void passIdly() override {
        meter.show(static_cast<double>(script.place()) / static_cast<double>(script.size()));
    }
};

/// @return the program's exit code
int verify(const std::string& name, const std::string& path, const std::string& folder) {
    Script script(path);
    const Stage stage(folder, script.setup);
    Verifier verifier(script);
    insert(&verifier);
    std::cerr.setstate(std::ios::failbit); // what the game had to say is of no interest
    runGame(script.setup);
    std::cerr.clear();
    verifier.finish();
    insert(nullptr);
    verifier.meter.clear();
    if (!verifier.damage().empty()) throw BadFile(verifier.damage());
    std::cout << name << ": " << inWords(verifier.progress().ticks, verifier.results()) << ": ";
    if (!verifier.difference().empty()) {
        std::cout << verifier.difference() << std::endl;
        return exit_differs;
    }
    if (isInterrupted()) {
        std::cout << "interrupted" << std::endl;
        return exit_interrupted;
    }
    std::cout << (script.isCutOff() ? "holds, but is cut off here" : "holds") << std::endl;
    return 0;
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc != 3) {
        std::cerr << "usage: kov-replay-verify FILE FOLDER\n";
        return exit_unusable;
    }
    prctl(PR_SET_PDEATHSIG, SIGTERM); // nobody is left to tell
    const std::string name = quorva::utility::printable(argv[1]);
    try {
        return verify(name, argv[1], argv[2]);
    } catch (const std::exception& e) {
        std::cerr << "kov-replay: " << name << ": " << e.what() << '\n';
        return exit_unusable;
    }
}
