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
using Participant = std::pair<Entity*, ShapeType>;

/// The pairs of one kind of collision test: each participant of the first shape with each of the
/// second, in the order of two nested loops, the inner starting at the outer's index. If the
/// shapes are the same, a body is paired with itself too.
///
/// The pairs are made on first use: half of the lists are never tested, and the list of triangles
/// with triangles would grow with the square of their number.
class PairList {
public:
    using Pair = std::pair<Entity*, Entity*>; ///< of the first shape, of the second
    using Pairs = std::vector<Pair>;

    /// @param participants in order of arrival; must outlive the list
    PairList(const std::vector<Participant>& participants_, ShapeType first_, ShapeType second_)
        : participants(participants_), first(first_), second(second_) {}
    PairList(const PairList&) = delete;
    PairList& operator=(const PairList&) = delete;

    void forget(); ///< to be called when the participants change

    Pairs::const_iterator begin() const { return get().begin(); }
    Pairs::const_iterator end() const { return get().end(); }
    std::size_t size() const { return get().size(); }

private:
    const Pairs& get() const;
    void make() const;

    const std::vector<Participant>& participants;
    ShapeType first, second;
    mutable bool made = false;
    mutable Pairs pairs;
};

} // namespace quorva::physics
