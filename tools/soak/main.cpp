// Lets a bot play the real game for a long time, or closes it at any moment.
//   kov_soak [--ticks N] [--seed S]       plays N ticks, 30000 if not given
//   kov_soak --closings N [--seed S]      starts and closes the program N times
// Exit code 0 if nothing was found, 1 if something was.

#include "headless/Sandbox.h"
#include "tools/soak/Closings.h"
#include "tools/soak/Soak.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

namespace {

struct Options {
    std::uint64_t ticks = 30000;
    std::uint32_t seed = 1;
    unsigned int closings = 0;
};

bool parse(int argc, char* argv[], Options& options) {
    for (int i = 1; i < argc; i += 2) {
        if (i + 1 == argc) return false;
        const std::string name = argv[i];
        const std::uint64_t value = std::strtoull(argv[i + 1], nullptr, 10);
        if (name == "--ticks")
            options.ticks = value;
        else if (name == "--seed")
            options.seed = static_cast<std::uint32_t>(value);
        else if (name == "--closings")
            options.closings = static_cast<unsigned int>(value);
        else
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char* argv[]) {
    Options options;
    if (!parse(argc, argv, options)) {
        std::cerr << "usage: kov_soak [--ticks N | --closings N] [--seed S]\n";
        return 2;
    }
    const quorva::headless::Sandbox sandbox(KOV_SOURCE_DIR);
    std::ofstream("bind1.conf"); // there, but empty: every action has its usual key
    std::ofstream("Songs/one.ogg");
    std::ofstream("Songs/two.ogg");
    if (options.closings > 0)
        return soak::runClosings(options.closings, options.seed) ? EXIT_SUCCESS : EXIT_FAILURE;
    return soak::Soak(options.seed).play(options.ticks) ? EXIT_SUCCESS : EXIT_FAILURE;
}
