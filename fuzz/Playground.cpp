#include "fuzz/Playground.h"

#include "game/GameIdentity.h"

#include <boost/filesystem.hpp>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>

namespace fuzz {

namespace {

namespace fs = boost::filesystem;

const fs::path& folder() {
    static const auto* const path =
        new fs::path(fs::temp_directory_path() / fs::unique_path("kov-fuzz-%%%%%%%%"));
    return *path;
}

void leavePlayground() {
    boost::system::error_code ignored;
    fs::remove_all(folder(), ignored);
}

} // namespace

void enterPlayground(bool linkData) {
    fs::create_directories(folder() / "Songs");
    std::atexit(leavePlayground);
    for (const char* name : {"fonts", "textures", "Sounds"})
        fs::create_directory_symlink(fs::path(KOV_SOURCE_DIR) / name, folder() / name);
    if (linkData)
        fs::create_directory_symlink(fs::path(KOV_SOURCE_DIR) / "data", folder() / "data");
    else
        fs::create_directory(folder() / "data");
    fs::current_path(folder());
    for (std::ostream* stream : {&std::cerr, &std::cout})
        stream->setstate(std::ios::failbit);

    introduceGame();
}

void write(const char* name, const std::uint8_t* data, std::size_t size) {
    std::ofstream file(name, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    require(file.flush().good(), "the playground can be written to");
}

void require(bool condition, const char* what) {
    if (condition) return;
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
}

} // namespace fuzz
