// Runs a target over the files of the folders that the command line names: the kept inputs, in a
// build without libFuzzer. Fails if there are none.

#include "fuzz/Playground.h"

#include <boost/filesystem.hpp>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

namespace fs = boost::filesystem;

namespace {

std::vector<fs::path> filesIn(int count, char* folders[]) {
    std::vector<fs::path> files;
    for (int i = 0; i < count; ++i)
        for (const fs::directory_entry& entry : fs::directory_iterator(folders[i]))
            files.push_back(fs::absolute(entry.path())); // a target changes the folder
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace

int main(int argc, char* argv[]) {
    const std::vector<fs::path> files = filesIn(argc - 1, argv + 1);
    for (const fs::path& path : files) {
        std::printf("%s\n", path.c_str());
        std::fflush(stdout);
        std::ifstream file(path.string(), std::ios::binary);
        const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
        // A copy of the exact size, so that a read past its end is seen.
        const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
        LLVMFuzzerTestOneInput(input.data(), input.size());
    }
    std::printf("%zu inputs\n", files.size());
    return files.empty() ? 1 : 0;
}
