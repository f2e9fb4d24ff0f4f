#include "game/Triangle.h"

#include "Framework/Engine.h"
#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Managers/ColourManager.h"
#include "Framework/Managers/PointManager.h"
#include "Framework/Timer.h"
#include "Framework/math/Elementary.h"
#include "Framework/math/MTRand.h"
#include "Framework/physics/PhysicsObject.h"
#include "game/GTriangle.h"
#include "game/TriangleExplodeLine.h"

using namespace quorva;

namespace {

math::MTRand_int32 Rand;

constexpr double nose_length = 2.0;      // world units, at size 1
constexpr double slowest_divisor = 15.0; // velocity: 1 / (this - speed)
constexpr double turn_limit = 2.5;       // degrees per tick
constexpr std::uint16_t rest_ticks = 16;
constexpr std::uint16_t held_ticks = 3;
constexpr double contracted_share = 1.1; // divides the squared length from nose to base

void addInPlane(math::Point& point, const math::Vector& offset) {
    point.x += offset.x;
    point.y += offset.y;
}

double squaredLength(const math::Vector& v) {
    return v.dot(v);
}

/// `corner` of the model turned by `radians`, at `length` from the origin.
/// With x at 0 the slope is infinite, and atan gives the right angle that is wanted.
math::Point turned(const math::Point& corner, double radians, double length) {
    const math::SinCos direction = math::sinCos(math::atan(corner.y / corner.x) + radians);
    return {direction.cos * length, direction.sin * length, 0.0};
}

math::Vector unitInPlane(const math::Point& from, const math::Point& to) {
    math::Vector v(to.x - from.x, to.y - from.y, 0.0);
    v.normalise();
    return v;
}

} // namespace

bool Triangle::seeded = false;

Triangle::Triangle(const math::Point& position, double speed_, double size_)
    : speed(speed_), size(size_) {
    if (!seeded) Rand.seed(Timer::Instance().getTicks());
    seeded = true;
    subscribeToAll();
    physics = new physics::PhysicsObject(position, true, false, true, true);
    physics->type = physics::shape_triangle;
    normalColour = &ColourManager::Instance().getV("Badguy Colour");
    stuckColour = &ColourManager::Instance().getV("Badguy Stuck Colour");
    graphics::RenderableThing* const base = getGraphics()->getBaseLayer();
    base->layer = graphics::layer_world;
    base->position = &physics->position;
    buildOutline();
    reposition();
}

void Triangle::buildOutline() {
    const double left = math::randomFraction(Rand);
    const double right = math::randomFraction(Rand);
    modelA = math::Point(0.0, nose_length, 0.0);
    modelB = math::Point(-left, 0.0, 0.0);
    modelC = math::Point(right, 0.0, 0.0);
    physics->vertices = {modelA, modelB, modelC};
    graphic = getGraphics()->createGraphic<GTriangle>(0);
    graphic->a() = modelA;
    graphic->b() = modelB;
    graphic->c() = modelC;
    graphic->setColour1(normalColour);
}

Triangle::~Triangle() {
    if (explodes && !Engine::Instance().isClosing()) explode();
}

void Triangle::receiveMessage(const messages::EndLevel*) {
    dead = true;
    explodes = false;
}

void Triangle::changeRotation(double radians) {
    graphic->a() = turned(modelA, radians, modelA.length() * size);
    // B has a slope of zero, which points along +x, and B lies along -x: hence the minus.
    graphic->b() = turned(modelB, radians, -modelB.length() * size);
    graphic->c() = turned(modelC, radians, modelC.length() * size);
}

void Triangle::changeMovement() {
    const math::SinCos heading = math::sinCos(angle + math::right_angle);
    step = math::Vector(10.0 * heading.cos, 10.0 * heading.sin, step.z);
    step.normalise();
    step.x /= slowest_divisor - speed;
    step.y /= slowest_divisor - speed;
    physics->velocity = step;
}

void Triangle::reposition() {
    const math::Point& player = PointManager::Instance().getV("Player Location").value;
    math::Vector forward((modelB.x + modelC.x) / 2.0 + graphic->a().x,
                         (modelB.y + modelC.y) / 2.0 + graphic->a().y, 0.0);
    math::Vector toPlayer = player - physics->position;
    forward.normalise();
    toPlayer.normalise();
    // Deliberately unguarded: exactly where the player is, `angle` becomes not-a-number.
    const double cosine = forward.dot(toPlayer);
    const double turn = math::acos(cosine < -1.0  ? -1.0
                                   : cosine > 1.0 ? 1.0
                                                  : cosine) *
                        180.0 / math::pi;
    const double side = toPlayer.x * forward.y - toPlayer.y * forward.x;
    const double radians = (turn > turn_limit ? turn_limit : turn) * math::pi / 180.0;
    angle += side < 0.0 ? radians : -radians;
    changeRotation(angle);
    changeMovement();
}

void Triangle::process() {
    if (!isHeld()) walk();
    shareOutline();
}

bool Triangle::isHeld() {
    if (physics->hitLine) {
        graphic->setColour1(stuckColour);
        physics->hitLine = false;
        stuckTicks = stuckTicks == 0 ? held_ticks : stuckTicks - 1;
        return true;
    }
    if (stuckTicks != 0) {
        --stuckTicks;
        return true;
    }
    graphic->setColour1(normalColour);
    return false;
}

void Triangle::walk() {
    reposition();
    switch (state) {
    case contracting:
        contract();
        break;
    case restAfterContract:
        restContracted();
        break;
    case expanding:
        expand();
        break;
    case restAfterExpand:
        restExpanded();
        break;
    }
    addInPlane(graphic->b(), baseOffset);
    addInPlane(graphic->c(), baseOffset);
}

void Triangle::contract() {
    ++contractTicks;
    baseOffset += step;
    if (!(squaredLength(baseOffset) >= squaredLength(modelA - modelB) / contracted_share)) return;
    state = restAfterContract;
    pauseTicks = rest_ticks;
}

void Triangle::restContracted() {
    physics->velocity = math::zero_vector;
    if (--pauseTicks != 0) return;
    noseTicks = 0;
    noseTarget = contractTicks;
    noseStep.x = baseOffset.x / contractTicks;
    noseStep.y = baseOffset.y / contractTicks;
    noseOffset = math::zero_vector;
    state = expanding;
}

void Triangle::expand() {
    noseOffset += noseStep;
    addInPlane(graphic->a(), noseOffset);
    if (++noseTicks < noseTarget) return;
    state = restAfterExpand;
    pauseTicks = rest_ticks;
}

void Triangle::restExpanded() {
    physics->velocity = math::zero_vector;
    contractTicks = 0;
    if (pauseTicks == rest_ticks) {
        // The body has unfolded ahead of its position, which now catches up.
        addInPlane(physics->position, baseOffset);
        baseOffset = math::zero_vector;
    }
    if (--pauseTicks == 0) state = contracting;
}

void Triangle::shareOutline() {
    physics->vertices = {graphic->a(), graphic->b(), graphic->c()};
}

void Triangle::explode() const {
    const math::Point a = graphic->a(), b = graphic->b(), c = graphic->c();
    const math::Vector ab = unitInPlane(b, a), ac = unitInPlane(c, a), bc = unitInPlane(c, b);
    const struct {
        const math::Point &from, &to;
        const math::Vector& drift;
    } sides[] = {{a, b, ac}, {a, c, ab}, {b, c, bc}};
    for (const auto& side : sides)
        Engine::Instance().createEntity<TriangleExplodeLine>("Explode Line", physics->position,
                                                             side.from, side.to, side.drift);
}
