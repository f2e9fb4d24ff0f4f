#include "replay/Summary.h"

#include "replay/Script.h"
#include "replay/Words.h"

#include <sstream>
#include <utility>

namespace quorva::replay {

Summary::Summary(const std::string& path) {
    Script script(path);
    setup = script.setup;
    size = script.size();
    bool first = true;
    while (const auto record = script.take()) {
        const auto* const pass = std::get_if<Pass>(&*record);
        if (pass == nullptr || pass->clock.empty()) continue;
        if (std::exchange(first, false)) start = pass->clock.back();
        length = pass->clock.back() - start;
    }
    cutOff = script.isCutOff();
}

std::string Summary::text() const {
    std::ostringstream out;
    out << "date      " << dateText(setup.date) << "\nlength    " << minutes(length)
        << (cutOff ? ", cut off there" : "") << "\nsongs     " << setup.songs << "\nsize      "
        << size << " bytes\n";
    return out.str();
}

} // namespace quorva::replay
