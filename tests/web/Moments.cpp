// Makes pictures of a recorded game.
//   kov_moments FILE DATA FOLDER TICK...
// DATA is the folder of the game's data. After each of the rising TICKs, counted from the start of
// the program, FOLDER/TICK.ppm is what the screen shows.

#include "replay/Playback.h"
#include "replay/Stage.h"
#include "tools/gallery/Picture.h"

#include "Framework/Config.h"

#include <algorithm>
#include <iostream>
#include <string>
#include <vector>

using namespace quorva::replay;

namespace {

class Moments : public Playback {
public:
    Moments(Script& script_, std::string folder_, std::vector<std::uint32_t> ticks_)
        : Playback(script_), folder(std::move(folder_)), ticks(std::move(ticks_)) {}

    /// Only the frames that may be the next picture.
    bool draws() override { return taken < ticks.size() && progress().ticks + 1 >= ticks[taken]; }

private:
    void show() override {
        if (!difference().empty()) throw std::runtime_error(difference());
        if (!draws() || progress().ticks != ticks[taken]) return;
        const auto& config = quorva::config::Config::Instance();
        gallery::Picture::ofScreen(config.getScreenWidth(), config.getScreenHeight())
            .save(folder + '/' + std::to_string(ticks[taken]) + ".ppm");
        if (++taken == ticks.size()) stop();
    }

    const std::string folder;
    const std::vector<std::uint32_t> ticks;
    std::size_t taken = 0;
};

} // namespace

int main(int argc, char* argv[]) {
    try {
        if (argc < 5) throw std::runtime_error("usage: kov_moments FILE DATA FOLDER TICK...");
        std::vector<std::uint32_t> ticks;
        for (int i = 4; i < argc; ++i)
            ticks.push_back(static_cast<std::uint32_t>(std::stoul(argv[i])));
        Script script(argv[1]);
        const Stage stage(argv[2], script.setup);
        Moments moments(script, argv[3], ticks);
        insert(&moments);
        runGame(script.setup);
        insert(nullptr);
        return 0;
    } catch (const std::exception& e) {
        std::cerr << "kov_moments: " << e.what() << '\n';
        return 1;
    }
}
