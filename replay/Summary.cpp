#include "replay/Summary.h"

#include "replay/Script.h"
#include "replay/Words.h"

#include "Framework/config/Settings.h"

#include <ctime>
#include <sstream>

namespace quorva::replay {

namespace {

std::string dateText(std::int64_t date) {
    const auto seconds = static_cast<std::time_t>(date);
    std::tm parts = {};
    char text[sizeof "-2147483648-12-31 23:59"];
    if (localtime_r(&seconds, &parts) == nullptr ||
        std::strftime(text, sizeof text, "%Y-%m-%d %H:%M", &parts) == 0)
        return "unknown";
    return text;
}

} // namespace

Summary::Summary(const std::string& path) {
    Script script(path);
    setup = script.setup;
    size = script.size();
    SettingValues settings = setup.settings;
    bool first = true;
    while (const auto record = script.take()) {
        if (const auto* const pass = std::get_if<Pass>(&*record)) {
            if (pass->clock.empty()) continue;
            if (std::exchange(first, false)) start = pass->clock.back();
            length = pass->clock.back() - start;
        } else if (const auto* const changed = std::get_if<ChangedSettings>(&*record)) {
            settings = changed->values;
        } else if (std::holds_alternative<GameBegin>(*record)) {
            games.push_back({length, settings, {}});
        } else if (const auto* const end = std::get_if<GameEnd>(&*record)) {
            if (!games.empty()) games.back().end = *end;
        }
    }
    cutOff = script.isCutOff();
}

std::string Summary::text() const {
    std::ostringstream out;
    out << "date      " << dateText(setup.date) << "\nlength    " << minutes(length)
        << (cutOff ? ", cut off there" : "") << '\n';
    for (const Game& game : games)
        out << "game      at " << minutes(game.begin) << ": "
            << (game.end ? inWords(*game.end) : "not to its end") << '\n';
    out << "settings ";
    for (const auto& [letter, value] : setup.settings)
        out << ' ' << config::settingWith(letter).longName << '=' << value;
    out << "\nsongs     " << setup.songs << "\nsize      " << size << " bytes\n";
    return out.str();
}

} // namespace quorva::replay
