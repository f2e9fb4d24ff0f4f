#include "replay/Stage.h"

#include "Framework/config/Settings.h"
#include "headless/GameMain.h"

#include <boost/filesystem.hpp>

#include <cctype>
#include <fstream>
#include <limits>

namespace quorva::replay {

namespace {

namespace fs = boost::filesystem;

void writeColours(const std::vector<Setup::NamedColour>& colours) {
    std::ofstream file("data/Colour.kov");
    file.precision(std::numeric_limits<float>::max_digits10);
    for (const auto& [name, c] : colours)
        file << name << ',' << c[0] << ' ' << c[1] << ' ' << c[2] << ' ' << c[3] << '\n';
}

void writePoints(const std::vector<Setup::NamedPoint>& points) {
    std::ofstream file("data/Point.kov");
    file.precision(std::numeric_limits<double>::max_digits10);
    for (const auto& [name, p] : points)
        file << name << ',' << p[0] << '#' << p[1] << '#' << p[2] << "#0\n";
}

/// A setting as the command line has it.
std::string argument(char letter, int value) {
    if (!config::settingWith(letter).isFlag)
        return {'-' + std::string(1, letter) + '=' + std::to_string(value)};
    const int cased = value != 0 ? letter : std::toupper(letter);
    return {'-', static_cast<char>(cased)};
}

} // namespace

Stage::Stage(const fs::path& source, const Setup& setup)
    : shipped(fs::absolute(source)), sandbox(source) {
    const fs::path shared = fs::read_symlink("data");
    fs::remove("data");
    fs::create_directory("data");
    for (const fs::directory_entry& entry : fs::directory_iterator(shared))
        fs::create_symlink(entry.path(), "data" / entry.path().filename());
    for (const char* name : {"data/Colour.kov", "data/Point.kov"})
        fs::remove(name);
    writeColours(setup.colours);
    writePoints(setup.points);
    // There in any case: the recorded keys come later.
    if (shipped.bindings.empty())
        std::ofstream("bind1.conf");
    else
        fs::copy_file(shipped.bindings, "bind1.conf");
}

std::vector<std::string> optionsOf(const Setup& setup) {
    std::vector<std::string> options;
    for (const auto& [letter, value] : setup.settings)
        options.push_back(argument(letter, value));
    return options;
}

int runGame(const Setup& setup) {
    return headless::runGameMain(optionsOf(setup));
}

} // namespace quorva::replay
