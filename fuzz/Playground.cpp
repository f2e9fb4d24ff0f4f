#include "fuzz/Playground.h"

#include "headless/Sandbox.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>

namespace fuzz {

void enterPlayground(bool linkData) {
    static const quorva::headless::Sandbox sandbox(KOV_SOURCE_DIR);
    if (!linkData) {
        boost::filesystem::remove("data"); // the link
        boost::filesystem::create_directory("data");
    }
    for (std::ostream* stream : {&std::cerr, &std::cout})
        stream->setstate(std::ios::failbit);
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
