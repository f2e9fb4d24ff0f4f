#include "headless/Sandbox.h"

#include "game/GameIdentity.h"

#include <unistd.h>

namespace quorva::headless {

namespace fs = boost::filesystem;

Sandbox::Sandbox(const fs::path& source)
    : maker(getpid()),
      folder(fs::absolute(fs::temp_directory_path()) / fs::unique_path("kov-sandbox-%%%%%%%%")) {
    fs::create_directories(folder);
    for (const char* name : {"data", "fonts", "textures", "Sounds"})
        fs::create_directory_symlink(fs::absolute(source) / name, folder / name);
    fs::create_directory(folder / "Songs");
    fs::current_path(folder);
    // Before a resource manager looks for its file, whose ending it takes from there.
    introduceGame();
}

Sandbox::~Sandbox() {
    if (getpid() != maker) return;
    fs::current_path("/");
    fs::remove_all(folder);
}

} // namespace quorva::headless
