#include "game/PlayerCharacter.h"

#include "Framework/Engine.h"
#include "Framework/Graphics/Camera.h"
#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/Stuff/GCube.h"
#include "Framework/Managers/ColourManager.h"
#include "Framework/Managers/PointManager.h"
#include "Framework/physics/PhysicsObject.h"
#include "game/ArrowIndicator.h"
#include "game/BombClear.h"
#include "game/BombImmune.h"
#include "game/Bullet.h"
#include "game/Marvo.h"
#include "game/PupCooldown.h"
#include "game/PupLine.h"

using namespace quorva;

namespace {

// World units per tick. Deliberately not normalised: a diagonal move is faster.
const math::Vector right_movement(0.25, 0.0, 0.0);
const math::Vector left_movement(-0.25, 0.0, 0.0);
const math::Vector up_movement(0.0, 0.25, 0.0);
const math::Vector down_movement(0.0, -0.25, 0.0);
// The velocity of a bullet, world units per tick.
const math::Vector fire_right(1.0, 0.0, 0.0);
const math::Vector fire_left(-1.0, 0.0, 0.0);
const math::Vector fire_up(0.0, 1.0, 0.0);
const math::Vector fire_down(0.0, -1.0, 0.0);

constexpr double line_start_distance = 0.15; // behind the player, world units
constexpr double half_extent = 0.2;          // of the body, world units
constexpr double cube_size = 0.5;            // as drawn, world units
constexpr double field_margin = 0.5;         // world units
constexpr double arrow_offset = 1.0;         // world units

// All in ticks.
constexpr std::uint16_t invulnerable_duration = 100;
constexpr std::uint16_t blink_interval = 5;
constexpr std::uint16_t death_duration = 100;
constexpr std::uint16_t arrows_return = 50; // left of the death
constexpr std::uint16_t first_line_length = 200, line_length_step = 25, longest_line = 250;
constexpr std::uint16_t first_cooldown = 20, shortest_cooldown = 5;
constexpr std::uint16_t pickup_pause = 2;
constexpr std::uint32_t pickup_count = 3;

/// By Gun: its direction of fire and the index of its arrow.
const struct {
    const math::Vector& direction;
    unsigned int arrow;
} guns[] = {{fire_right, 3}, {fire_left, 1}, {fire_up, 0}, {fire_down, 2}};

/// How many chevrons to show while this share of the cooldown is left.
unsigned int recovery(double share) {
    if (share > 0.99) return 0;
    return share >= 0.75 ? 1 : share >= 0.5 ? 2 : share >= 0.25 ? 3 : 4;
}

/// Keeps x within the field; a coordinate that had to be put back resets z too.
void clampTo(double& x, double& z, double low, double high) {
    if (x + field_margin > high)
        x = high - field_margin;
    else if (x - field_margin < low)
        x = low + field_margin;
    else
        return;
    z = 0.0;
}

} // namespace

PlayerCharacter::PlayerCharacter(const math::Point& position)
    : invulnerableTicks(invulnerable_duration), blinkTicks(blink_interval),
      lineLength(first_line_length), cooldown(first_cooldown) {
    subscribeToAll();
    setupPhysics(position);
    setupGraphics();
    for (unsigned int i = 0; i < arrows.size(); ++i)
        arrows[i] = Engine::Instance().createEntity<ArrowIndicator>(
            "Arrow", static_cast<const math::Point*>(&physics->position), i * 90.0, arrow_offset);
}

void PlayerCharacter::setupPhysics(const math::Point& position) {
    if (physics == nullptr) {
        physics = new physics::PhysicsObject(position, true, false, true, true);
        physics->boxes.emplace_back(half_extent, half_extent);
    }
    PointManager::Instance().getV("Player Location"); // makes it
}

void PlayerCharacter::setupGraphics() {
    colour = &ColourManager::Instance().getV("Player Colour");
    cube = getGraphics()->createGraphic<GCube>(0);
    cube->sizeX = cube->sizeY = cube->sizeZ = cube_size;
    cube->setColour1(colour);
    graphics::RenderableThing* const base = getGraphics()->getBaseLayer();
    base->layer = graphics::layer_world;
    base->position = &physics->position;
    base->rotation = &physics->rotation;
}

void PlayerCharacter::update() {
    PointManager::Instance().getV("Player Location").value = physics->position;
}

void PlayerCharacter::receiveMessage(const PlayerDead*) {
    for (ArrowIndicator* arrow : arrows)
        arrow->fire();
    invulnerable = true;
    invulnerableTicks = invulnerable_duration;
    blinkTicks = blink_interval;
    physics->position = math::zero_point;
    deathTicks = death_duration;
    physics->velocity = math::zero_vector;
    moveUp = moveDown = moveLeft = moveRight = false;
    publish(SoundDeath());
}

void PlayerCharacter::receiveMessage(const messages::PlayerInput* m) {
    if (dead || deathTicks != 0) return;
    moveRight = m->move.x > 0.0;
    moveLeft = m->move.x < 0.0;
    moveUp = m->move.y > 0.0;
    moveDown = m->move.y < 0.0;
    if (m->fire.x > 0.0) fire(gun_right);
    if (m->fire.x < 0.0) fire(gun_left);
    if (m->fire.y > 0.0) fire(gun_up);
    if (m->fire.y < 0.0) fire(gun_down);
}

void PlayerCharacter::fire(Gun gun) {
    if (fireTimers[gun] != 0) return;
    shoot(gun, guns[gun].direction);
    fireTimers[gun] = cooldown;
    arrows[guns[gun].arrow]->showUpTo(0);
}

void PlayerCharacter::fireBullet(const math::Vector& direction) {
    if (deathTicks != 0) return;
    for (const Gun gun : {gun_right, gun_left, gun_up, gun_down})
        if (direction == guns[gun].direction) return shoot(gun, direction);
}

void PlayerCharacter::shoot(Gun gun, const math::Vector& velocity) {
    const math::Vector& direction = guns[gun].direction;
    const math::Point position = physics->position;
    auto* const bullet = Engine::Instance().createEntity<Bullet>("Bullet", position, velocity);
    PhysicsLineMessage line;
    line.position = position - direction * line_start_distance;
    line.bullet = bullet;
    line.horizontal = direction.x != 0.0;
    publish(line);
    publish(SoundBullet());
}

void PlayerCharacter::process() {
    if (deathTicks != 0) {
        lieDead();
    } else {
        steer();
        if (invulnerable) wearOff();
        if (pickupLock != 0) --pickupLock;
        coolDown();
        pickUp();
        stayOnField();
    }
    Marvo::Instance().process();
}

void PlayerCharacter::lieDead() {
    if (--deathTicks != arrows_return) return;
    for (ArrowIndicator* arrow : arrows)
        arrow->restore();
}

void PlayerCharacter::steer() {
    math::Vector velocity;
    if (moveRight)
        velocity += right_movement;
    else if (moveLeft)
        velocity += left_movement;
    if (moveDown)
        velocity += down_movement;
    else if (moveUp)
        velocity += up_movement;
    physics->velocity = velocity;
}

void PlayerCharacter::wearOff() {
    if (invulnerableTicks == 0) return becomeVulnerable();
    --invulnerableTicks;
    blink();
}

void PlayerCharacter::blink() {
    if (blinkTicks != 0) {
        --blinkTicks;
        return;
    }
    blinkTicks = blink_interval;
    graphics->setEnabled(!graphics->enabled);
}

void PlayerCharacter::becomeVulnerable() {
    invulnerable = false;
    publish(SoundAlive());
    invulnerableTicks = invulnerable_duration;
    blinkTicks = blink_interval;
    graphics->setEnabled(true);
}

void PlayerCharacter::coolDown() {
    for (unsigned int gun = 0; gun < gun_count; ++gun) {
        if (fireTimers[gun] == 0) continue;
        --fireTimers[gun];
        const double share = static_cast<double>(fireTimers[gun]) / cooldown;
        arrows[guns[gun].arrow]->showUpTo(recovery(share));
    }
}

void PlayerCharacter::pickUp() {
    if (!physics->hitBox || pickupLock != 0 || physics->collidedWith == nullptr) return;
    Entity* const touched = physics->collidedWith;
    if (take(touched)) {
        touched->dead = true;
        lastPickup = touched;
    }
    physics->hitBox = false;
    physics->collidedWith = nullptr;
    physics->pickupCount = pickup_count;
    pickupLock = pickup_pause;
}

bool PlayerCharacter::take(Entity* powerUp) {
    if (dynamic_cast<PupLine*>(powerUp) != nullptr) {
        ++linePups;
        if (lineLength < longest_line) lineLength += line_length_step;
        publish(SoundPup());
    } else if (dynamic_cast<PupCooldown*>(powerUp) != nullptr) {
        ++cooldownPups;
        if (cooldown > shortest_cooldown) --cooldown;
        publish(SoundPup());
    } else if (dynamic_cast<BombClear*>(powerUp) != nullptr) {
        ++cooldownPups; // deliberate: bombs count here
        publish(KillAllTriangles());
        publish(SoundClearBomb());
    } else if (dynamic_cast<BombImmune*>(powerUp) != nullptr) {
        ++cooldownPups;
        invulnerable = true;
        invulnerableTicks = invulnerable_duration;
        publish(SoundImmuneBomb());
    } else {
        return false;
    }
    return true;
}

void PlayerCharacter::stayOnField() {
    const auto& camera = graphics::Camera::Instance();
    math::Point& p = physics->position;
    clampTo(p.x, p.z, camera.left, camera.right);
    clampTo(p.y, p.z, camera.bottom, camera.top);
}
