// Every run of the tests works in a folder of its own, with the game's read-only data linked in,
// so that no test writes into the tree or reads what another run has left.

#include "Framework/GameInfo.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>

namespace {

namespace fs = boost::filesystem;

class Sandbox : public testing::Environment {
public:
    void SetUp() override {
        fs::create_directories(folder);
        for (const char* name : {"data", "fonts", "textures", "Sounds"})
            fs::create_directory_symlink(fs::path(KOV_SOURCE_DIR) / name, folder / name);
        fs::create_directory(folder / "Songs");
        fs::current_path(folder);
        // Before a resource manager looks for its file.
        quorva::GameInfoClass& info = quorva::GameInfo::Instance();
        info.homeDirectory = ".kov";
        info.configFile = "game.conf";
    }
    void TearDown() override {
        fs::current_path("/");
        fs::remove_all(folder);
    }

private:
    const fs::path folder = fs::temp_directory_path() / fs::unique_path("kov-tests-%%%%%%%%");
};

const auto* const sandbox = testing::AddGlobalTestEnvironment(new Sandbox);

} // namespace
