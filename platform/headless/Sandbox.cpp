#include "platform/headless/Sandbox.h"

#include "Framework/GameInfo.h"

#include <unistd.h>

namespace quorva::headless {

namespace fs = boost::filesystem;

Sandbox::Sandbox(const fs::path& source)
    : maker(getpid()), folder(fs::temp_directory_path() / fs::unique_path("kov-sandbox-%%%%%%%%")) {
    fs::create_directories(folder);
    for (const char* name : {"data", "fonts", "textures", "Sounds"})
        fs::create_directory_symlink(fs::absolute(source) / name, folder / name);
    fs::create_directory(folder / "Songs");
    fs::current_path(folder);
    // Before a resource manager looks for its file.
    GameInfoClass& info = GameInfo::Instance();
    info.homeDirectory = ".kov";
    info.configFile = "game.conf";
}

Sandbox::~Sandbox() {
    if (getpid() != maker) return;
    fs::current_path("/");
    fs::remove_all(folder);
}

} // namespace quorva::headless
