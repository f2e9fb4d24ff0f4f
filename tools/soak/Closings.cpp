#include "tools/soak/Closings.h"

#include "Framework/Config.h"
#include "Framework/CounterManager.h"
#include "Framework/Engine.h"
#include "Framework/Graphics/Camera.h"
#include "Framework/Managers/ColourManager.h"
#include "Framework/Managers/FontManager.h"
#include "Framework/Managers/PointManager.h"
#include "Framework/Managers/ResourceManagerManager.h"
#include "Framework/Timer.h"
#include "Framework/input/Joystick.h"
#include "Framework/input/KeyMapper.h"
#include "game/FModSystem.h"
#include "game/Marvo.h"
#include "headless/GameMain.h"
#include "platform/standins/VirtualSDL.h"
#include "tools/soak/Closer.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>

namespace soak {

using namespace quorva;

namespace {

const char* const report_file = "closing.txt"; // what a run says on standard error

template <class Holder>
void touch() {
    Holder::Instance();
}

/// Services end in the reverse order of their first use. Here some are used early, in any order:
/// all the ends that the program can come to.
void touchServices(std::mt19937& random) {
    void (*touches[])() = {touch<Engine>,
                           touch<config::Config>,
                           touch<Timer>,
                           touch<graphics::Camera>,
                           touch<input::KeyMapper>,
                           touch<input::Joystick>,
                           touch<FontManager>,
                           touch<ColourManager>,
                           touch<PointManager>,
                           touch<resources::ResourceManagerManager>,
                           touch<FModSystem>,
                           touch<CounterManager>,
                           touch<MessageHandler<messages::EndLevel>>,
                           touch<MessageHandler<messages::EndGame>>,
                           touch<MessageHandler<PlayerDead>>,
                           touch<MessageHandler<messages::MenuMove>>,
                           touch<MessageHandler<KillAllTriangles>>};
    std::shuffle(std::begin(touches), std::end(touches), random);
    const std::size_t count = static_cast<std::size_t>(random()) % std::size(touches);
    for (std::size_t i = 0; i < count; ++i)
        touches[i]();
}

/// One run of the whole program, from main to the end of the process.
[[noreturn]] void runProgram(Moment moment, Way way, std::uint32_t seed) {
    const int report = open(report_file, O_CREAT | O_TRUNC | O_WRONLY, 0600);
    dup2(report, STDERR_FILENO);
    std::mt19937 random(seed);
    touchServices(random);
    static Closer* const closer = new Closer(moment, way, seed); // not to end before the program
    standins::sdl().ticks = seed;
    standins::sdl().onSwap = [] {
        standins::sdl().ticks += Timer::Instance().getProcessRate();
        closer->pass();
    };
    std::exit(headless::runGameMain({}));
}

std::string reportText() {
    std::ifstream file(report_file);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

/// @return what was wrong, empty if nothing
std::string judge(int status) {
    if (WIFSIGNALED(status)) return "signal " + std::to_string(WTERMSIG(status));
    if (WEXITSTATUS(status) == Closer::gives_up) return "did not come so far";
    if (WEXITSTATUS(status) != 0) return "exit code " + std::to_string(WEXITSTATUS(status));
    return reportText().empty() ? "" : "not silent";
}

} // namespace

bool runClosings(unsigned int count, std::uint32_t seed) {
    std::ofstream("bind1.conf"); // there, but empty: so that the game has nothing to say
    std::map<std::string, unsigned int> done;
    unsigned int faults = 0;
    for (unsigned int i = 0; i < count; ++i) {
        const auto moment = static_cast<Moment>(i % moment_count);
        const auto way = static_cast<Way>(i / moment_count % way_count);
        const std::string name = std::string(moment_names[moment]) + ", " + way_names[way];
        std::cout.flush();
        const pid_t child = fork();
        if (child == 0) runProgram(moment, way, seed + i);
        int status = 0;
        waitpid(child, &status, 0);
        const std::string wrong = judge(status);
        ++done[name];
        if (wrong.empty()) continue;
        ++faults;
        std::cout << "FAULT: seed " << seed + i << ", " << name << ": " << wrong << "\n"
                  << reportText() << std::endl;
    }
    for (const auto& [name, times] : done)
        std::cout << times << " times: " << name << "\n";
    std::cout << "closed " << count << " times, faults " << faults << std::endl;
    return faults == 0;
}

} // namespace soak
