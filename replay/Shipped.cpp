#include "replay/Shipped.h"

#include "Framework/Managers/ResourceTraits.h"
#include "Framework/input/KeyMapper.h"

#include <boost/filesystem.hpp>

#include <algorithm>
#include <fstream>
#include <map>

namespace quorva::replay {

namespace {

namespace fs = boost::filesystem;

using PointProperty = resources::Property<math::Point>;

std::array<double, 4> numbersOf(const graphics::Colour& c) {
    return {c.red(), c.green(), c.blue(), c.alpha()};
}
std::array<double, 3> numbersOf(const PointProperty& p) {
    return {p.value.x, p.value.y, p.value.z};
}

/// Colour.kov, and the others that a player may put in its place.
std::vector<fs::path> palettesIn(const fs::path& folder) {
    std::vector<fs::path> files;
    boost::system::error_code ignored; // none
    for (const fs::directory_entry& entry : fs::directory_iterator(folder / "data", ignored))
        if (entry.path().filename().string().compare(0, 6, "Colour") == 0)
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

/// The game's own resource file, as the game reads it.
template <class Value, class Named>
std::vector<Named> readFile(const fs::path& path) {
    std::ifstream file(path.string());
    std::vector<Named> list;
    for (std::string line; std::getline(file, line);) {
        std::string name;
        Value value = resources::ResourceTraits<Value>::empty();
        if (resources::ResourceTraits<Value>::parseLine(line, name, value))
            list.push_back({name, numbersOf(value)});
    }
    return list;
}

/// How many names have other numbers. One that isn't shipped has the default ones.
template <class Named, class Member, class Numbers>
std::size_t countChanged(const std::vector<Named>& shipped, const std::vector<Named>& used,
                         Member numbers, const Numbers& unnamed) {
    std::map<std::string, Numbers> left;
    for (const Named& each : shipped)
        left[each.name] = each.*numbers;
    std::size_t changed = 0;
    for (const Named& each : used) {
        const auto found = left.find(each.name);
        if (each.*numbers != (found != left.end() ? found->second : unnamed)) ++changed;
        left.erase(each.name);
    }
    return changed + left.size();
}

constexpr const char* menu_only = "Menu Select"; // does nothing in play

void compareKeys(const Setup& setup, Changes& changes) {
    const auto& shipped = input::KeyMapper::Instance().keys;
    std::map<int, std::size_t> keys, buttons; // and how many actions each has in play
    const auto countAction = [&](std::size_t& count) {
        changes.actionsOfAKey = std::max(changes.actionsOfAKey, ++count);
    };
    for (std::size_t i = 0; i < std::min(shipped.size(), setup.bindings.size()); ++i) {
        const auto& [key, button] = setup.bindings[i];
        changes.keys += (key != shipped[i]->key ? 1 : 0) + (button != shipped[i]->jsButton ? 1 : 0);
        if (shipped[i]->name == menu_only) continue;
        if (key != input::unknown_key) countAction(keys[key]);
        if (button != input::no_button) countAction(buttons[button]);
    }
}

} // namespace

Shipped::Shipped(const fs::path& folder) : files(palettesIn(folder)) {
    for (const fs::path& file : files)
        palettes.push_back(readFile<graphics::Colour, Setup::NamedColour>(file));
    files.push_back(folder / "data/Point.kov");
    points = readFile<PointProperty, Setup::NamedPoint>(files.back());
    for (const char* name : {"bind1.conf", "packaging/bind1.conf"})
        if (bindings.empty() && fs::exists(folder / name)) bindings = folder / name;
    if (!bindings.empty()) files.push_back(bindings);
}

Changes changesFrom(const Shipped& shipped, const Setup& setup) {
    Changes changes;
    changes.colours = setup.colours.size();
    const auto unnamed = numbersOf(resources::ResourceTraits<graphics::Colour>::defaultValue());
    for (const auto& palette : shipped.palettes)
        changes.colours =
            std::min(changes.colours,
                     countChanged(palette, setup.colours, &Setup::NamedColour::parts, unnamed));
    changes.points = countChanged(shipped.points, setup.points, &Setup::NamedPoint::coordinates,
                                  numbersOf(PointProperty()));
    compareKeys(setup, changes);
    return changes;
}

} // namespace quorva::replay
