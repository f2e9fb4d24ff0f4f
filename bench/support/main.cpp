// Works in a folder of its own, with the game's read-only data linked in.

#include "Framework/GameInfo.h"

#include <benchmark/benchmark.h>
#include <boost/filesystem.hpp>

namespace fs = boost::filesystem;

int main(int argc, char** argv) {
    const fs::path folder = fs::temp_directory_path() / fs::unique_path("kov-bench-%%%%%%%%");
    fs::create_directories(folder);
    for (const char* name : {"data", "fonts", "textures", "Sounds", "Songs"})
        fs::create_directory_symlink(fs::path(KOV_SOURCE_DIR) / name, folder / name);
    fs::current_path(folder);
    quorva::GameInfoClass& info = quorva::GameInfo::Instance();
    info.homeDirectory = ".kov";
    info.configFile = "game.conf";

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    fs::current_path("/");
    fs::remove_all(folder);
    return 0;
}
