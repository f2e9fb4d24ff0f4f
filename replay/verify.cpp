// Plays a recorded game without a window, as fast as it goes, and compares every state that was
// kept. `kov-replay verify` starts it.
//   kov-replay-verify FILE FOLDER_OF_THE_GAMES_DATA
// Exit code 0 if it holds, 1 if not, 2 for files that can't be read.

#include "replay/Player.h"
#include "replay/Stage.h"
#include "replay/Words.h"

#include "Framework/Utility.h"

#include <iostream>

using namespace quorva::replay;

namespace {

class Verifier : public Player {
public:
    using Player::Player;
    bool draws() override { return false; }

private:
    void show() override {
        if (!difference().empty()) stop();
    }
};

} // namespace

int main(int argc, char* argv[]) {
    if (argc != 3) {
        std::cerr << "usage: kov-replay-verify FILE FOLDER\n";
        return exit_unusable;
    }
    const std::string name = quorva::utility::printable(argv[1]);
    try {
        Script script(argv[1]);
        const Stage stage(argv[2], script.setup);
        Verifier verifier(script);
        insert(&verifier);
        std::cerr.setstate(std::ios::failbit); // what the game had to say is of no interest
        runGame(script.setup);
        std::cerr.clear();
        verifier.finish();
        insert(nullptr);
        if (!verifier.damage().empty()) throw BadFile(verifier.damage());
        const std::string found = verifier.difference().empty()
                                      ? (script.isCutOff() ? "holds, but is cut off here" : "holds")
                                      : verifier.difference();
        std::cout << name << ": " << inWords(verifier.progress().ticks, verifier.results()) << ": "
                  << found << '\n'
                  << std::flush;
        return verifier.difference().empty() ? 0 : exit_differs;
    } catch (const std::exception& e) {
        std::cerr << "kov-replay: " << name << ": " << e.what() << '\n';
        return exit_unusable;
    }
}
