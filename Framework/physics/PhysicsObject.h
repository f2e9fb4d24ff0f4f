#pragma once

#include "Framework/math/Quaternion.h"
#include "Framework/physics/AABB.h"
#include "Framework/physics/NearbyObstacles.h"

#include <array>
#include <cstdint>
#include <vector>

class TrapLine;

namespace quorva {

class Entity;

/// An entry in a body's list of the standing trap lines.
struct TriLine {
    TrapLine* line = nullptr; ///< not owned; the physics takes the entry out before its end
    math::Point reserved;     ///< stays zero

    bool operator==(const TriLine& other) const { return line == other.line; }
};

namespace physics {

/// What the collision tests take an object for.
enum ShapeType : std::uint32_t { shape_box = 0, shape_triangle = 1, shape_point = 2 };

/// The body of an Entity, which owns it. World units, +x right, +y up, z stays 0. The physics
/// and the actors write the fields directly.
class PhysicsObject {
public:
    PhysicsObject(const math::Point& position, bool collidable, bool isStatic, bool hasGravity,
                  bool isActive);

    void accelerate(const math::Vector& v) { velocity += v; }

    /// @param index of a present box
    void setSurface(const SurfaceDesc& s, unsigned int index) { boxes.at(index).surface = s; }

    math::Point position;         ///< reference point of the shape
    math::Point previousPosition; ///< before the current sub-step
    math::Quaternion rotation;
    math::Vector velocity; ///< world units per tick; each sub-step applies its share

    bool collided = false;        ///< touched in this sub-step; each sub-step clears it
    bool collidable;              ///< paired for tests, if active too
    bool isStatic;                ///< neither moved nor pulled
    bool hasGravity;              ///< set by most actors, though nothing pulls
    bool isActive;                ///< paired for tests, if collidable too
    bool booleanResult = false;   ///< cleared on request; nothing sets or reads it
    std::uint32_t stepResult = 0; ///< each sub-step clears it; nothing else sets or reads it

    /// Partner of the last overlap of boxes, not owned. The player clears it after reading it,
    /// the physics when the partner goes.
    Entity* collidedWith = nullptr;

    ShapeType type = shape_box;
    std::vector<AABB> boxes;               ///< of a box; the first alone is tested
    std::array<math::Point, 3> vertices{}; ///< of a triangle, relative to `position`
    std::vector<TriLine> lines;            ///< the standing trap lines, oldest first

    bool hitLine = false;   ///< a line refused a move, or a bullet touched; the triangle clears it
    bool hitBox = false;    ///< overlaps a box; the player clears it
    NearbyObstacles nearby; ///< of a triangle, for this tick; the physics keeps it up to date
    std::uint32_t pickupCount = 0; ///< the player writes 3 at each pick-up; nothing reads it
};

} // namespace physics
} // namespace quorva
