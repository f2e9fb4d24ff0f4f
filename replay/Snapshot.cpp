#include "replay/Snapshot.h"

#include "Framework/Config.h"
#include "Framework/Managers/ColourManager.h"
#include "Framework/Managers/PointManager.h"
#include "Framework/config/Settings.h"
#include "Framework/input/KeyMapper.h"
#include "game/FModMP3Input.h"
#include "headless/StateHash.h"
#include "replay/Progress.h"

#include <algorithm>
#include <ctime>
#include <sstream>
#include <stdexcept>

namespace quorva::replay {

namespace {

/// What the reader would refuse can't be kept.
void requireReadable(const Setup& setup) {
    ByteWriter out;
    setup.write(out);
    ByteReader in(out.bytes);
    try {
        Setup::read(in);
    } catch (const BadFile&) {
        throw std::runtime_error("its colours or points are too far from the usual ones");
    }
}

} // namespace

Setup setupOfGame() {
    Setup setup = {};
    setup.date = std::time(nullptr);
    setup.settings = settingsOfGame();
    for (const auto& key : input::KeyMapper::Instance().keys)
        setup.bindings.emplace_back(key->key, key->jsButton);
    setup.songs = songPlayer()->songs.size();
    // Names that no line of the game's can ask for are left out.
    for (const auto& [name, entry] : ColourManager::Instance().resources) {
        const graphics::Colour& c = entry.value;
        if (isPlainName(name))
            setup.colours.push_back({name, {c.red(), c.green(), c.blue(), c.alpha()}});
    }
    for (const auto& [name, entry] : PointManager::Instance().resources) {
        const math::Point& p = entry.value.value;
        if (isPlainName(name)) setup.points.push_back({name, {p.x, p.y, p.z}});
    }
    requireReadable(setup);
    return setup;
}

SettingValues settingsOfGame() {
    const config::ConfigValuesT& values = *config::Config::Instance().activatedValues;
    SettingValues settings;
    for (const config::Setting& setting : config::allSettings()) {
        const char letter = setting.shortName;
        if (!setting.has(config::not_in_replays))
            settings.emplace_back(letter, setting.isFlag
                                              ? static_cast<int>(values.getBoolVal(letter))
                                              : values.getIntVal(letter));
    }
    return settings;
}

Check checkOfGame() {
    const std::vector<headless::StatePart> parts = headless::stateParts();
    Check check;
    check.hash = headless::combined(parts);
    for (const headless::StatePart& part : parts)
        check.partHashes.push_back(static_cast<char>(part.hash));
    return check;
}

std::string firstDifference(const Check& kept, const Check& played) {
    const std::string &was = kept.partHashes, &is = played.partHashes;
    if (kept.hash == played.hash && was == is) return {};
    std::ostringstream out;
    if (was.size() != is.size()) out << is.size() << " objects in place of " << was.size() << ", ";
    const auto first = std::mismatch(is.begin(), is.end(), was.begin(), was.end()).first;
    const auto index = static_cast<std::size_t>(first - is.begin());
    const auto parts = headless::stateParts();
    if (index < parts.size())
        out << "the first that differs: " << headless::describe(parts[index]);
    else
        out << (is.size() < was.size() ? "the last are missing" : "only the hash differs");
    return out.str();
}

} // namespace quorva::replay
