#include "tools/gallery/Stage.h"

#include "Framework/Engine.h"
#include "game/BombClear.h"
#include "game/BombImmune.h"
#include "game/PupCooldown.h"
#include "game/PupLine.h"
#include "game/Triangle.h"

using quorva::math::Point;

namespace gallery {

namespace {

template <class Thing>
void put(const char* name, double x, double y) {
    quorva::Engine::Instance().createEntity<Thing>(name, Point(x, y, 0.0));
}

void putTriangle(double x, double y, double speed, double size) {
    quorva::Engine::Instance().createEntity<Triangle>("Triangle", Point(x, y, 0.0), speed, size);
}

} // namespace

const Point fence_corner(-4.5, 3.5, 0.0), fence_opposite(4.5, -3.0, 0.0);
const Point power_up_place(9.0, -7.5, 0.0);
const Point second_corner(6.0, -2.0, 0.0), second_opposite(15.0, 4.0, 0.0);
const Point death_place(-6.0, -3.0, 0.0);

void stageFence() {
    putTriangle(-1.5, -3.2, 1.0, 1.1);
    putTriangle(0.8, -1.6, 1.0, 1.2);
    putTriangle(2.8, -3.2, 1.0, 1.0);
    putTriangle(14.0, 3.0, 1.0, 1.2); // for the second catch
    putTriangle(11.5, 5.5, 1.0, 1.0);
    put<PupLine>("Line Powerup", power_up_place.x, power_up_place.y);
}

void stageDeath() {
    putTriangle(-3.0, -6.0, 1.0, 1.3);
    putTriangle(2.0, 4.0, 1.0, 1.1);
    putTriangle(-15.0, 6.0, 1.0, 1.5);
    putTriangle(9.0, -7.0, 1.0, 0.9);
    putTriangle(14.0, 2.0, 1.0, 1.2);
}

void stagePowerUps() {
    put<PupLine>("Line Powerup", -11.0, 5.0);
    put<PupCooldown>("Cooldown Powerup", 10.5, -6.0);
    put<BombClear>("Clear Bomb", 8.5, 6.0);
    put<BombImmune>("Immune Bomb", -8.5, -7.0);
    putTriangle(-14.0, -1.0, 1.0, 1.3);
    putTriangle(15.0, 1.5, 1.0, 1.0);
}

} // namespace gallery
