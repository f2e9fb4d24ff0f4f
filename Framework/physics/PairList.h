#pragma once

#include "Framework/physics/PhysicsObject.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace quorva {
class Entity;
}

namespace quorva::physics {

/// A body that takes part in a tick's tests, with its shape at that moment. Not owned.
using Partaker = std::pair<Entity*, ShapeType>;

/// The pairs that one kind of collision test looks at: every partaker of one shape with every
/// one of the other, in the order in which two nested loops come upon them, the inner one from
/// the outer one's place on. A body is paired with itself too, if the shapes are the same.
///
/// The pairs are made when somebody first asks for them: half of the lists have no test that
/// ever asks, and that of the triangles among themselves would grow with their square.
class PairList {
public:
    using Pair = std::pair<Entity*, Entity*>; ///< of the first shape, of the second
    using Pairs = std::vector<Pair>;

    /// @param partakers in order of arrival; must outlive the list
    PairList(const std::vector<Partaker>& partakers_, ShapeType first_, ShapeType second_)
        : partakers(partakers_), first(first_), second(second_) {}
    PairList(const PairList&) = delete;
    PairList& operator=(const PairList&) = delete;

    void forget(); ///< the partakers have changed

    Pairs::const_iterator begin() const { return get().begin(); }
    Pairs::const_iterator end() const { return get().end(); }
    std::size_t size() const { return get().size(); }

private:
    const Pairs& get() const;
    void make() const;

    const std::vector<Partaker>& partakers;
    ShapeType first, second;
    mutable bool made = false;
    mutable Pairs pairs;
};

} // namespace quorva::physics
