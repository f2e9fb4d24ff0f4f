#include "Framework/physics/PairList.h"

namespace quorva::physics {

void PairList::forget() {
    made = false;
    pairs.clear();
}

const PairList::Pairs& PairList::get() const {
    if (!made) make();
    return pairs;
}

void PairList::make() const {
    made = true;
    std::vector<Entity*> firsts, seconds;
    for (const auto& [entity, shape] : participants) {
        if (shape == first) firsts.push_back(entity);
        if (shape == second) seconds.push_back(entity);
    }
    std::size_t firstsPassed = 0, secondsPassed = 0;
    for (const auto& [entity, shape] : participants) {
        if (shape == first)
            for (std::size_t i = secondsPassed; i < seconds.size(); ++i)
                pairs.emplace_back(entity, seconds[i]);
        else if (shape == second)
            for (std::size_t i = firstsPassed; i < firsts.size(); ++i)
                pairs.emplace_back(firsts[i], entity);
        if (shape == first) ++firstsPassed;
        if (shape == second) ++secondsPassed;
    }
}

} // namespace quorva::physics
