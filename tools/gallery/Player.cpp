#include "tools/gallery/Player.h"

#include "Framework/Engine.h"
#include "Framework/Graphics/Camera.h"
#include "Framework/physics/PhysicsObject.h"
#include "game/GameBase.h"
#include "game/GameLevel.h"
#include "game/PlayerCharacter.h"
#include "game/PowerUp.h"
#include "game/Triangle.h"
#include "headless/HeadlessGame.h"

#include <SDL.h>

#include <cmath>

using namespace quorva;

namespace gallery {

namespace {

// World units.
constexpr double reach = 9.0;         ///< how near the prey of a fence has to be
constexpr double fence_margin = 2.2;  ///< between the prey and the far sides of its fence
constexpr double line_distance = 1.2; ///< the player keeps off its own fence by this
constexpr double too_close = 2.6;
constexpr double arrived = 0.2;
constexpr unsigned int worth_the_walk = 3; ///< power-ups and bombs that lie about: a fuller picture
constexpr double edge_margin = 0.8;
constexpr unsigned int patience_per_stop = 60; ///< ticks

const int move_keys[] = {SDLK_RIGHT, SDLK_LEFT, SDLK_UP, SDLK_DOWN};

double distance(const math::Point& a, const math::Point& b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

/// The place nearest to this one where the player can stand.
math::Point onField(math::Point p) {
    const auto& camera = graphics::Camera::Instance();
    p.x = std::fmin(std::fmax(p.x, camera.left + edge_margin), camera.right - edge_margin);
    p.y = std::fmin(std::fmax(p.y, camera.bottom + edge_margin), camera.top - edge_margin);
    return p;
}

} // namespace

void Player::play() {
    const GameLevel* const level = run.game().level;
    if (level == nullptr) return;
    cube = level->player;
    if (cube->deathTicks > 0) {
        stops.clear();
        return;
    }
    const Triangle* const nearest = nearestTriangle();
    if (nearest != nullptr && !cube->invulnerable && stepBack(*nearest)) return;
    if (stops.empty() && nearest != nullptr) plan(*nearest);
    if (stops.empty()) planWalk();
    follow();
}

void Player::rest() {
    for (const int key : move_keys)
        hold(key, false);
    stops.clear();
}

const Triangle* Player::nearestTriangle() const {
    const Triangle* nearest = nullptr;
    double least = 1e9;
    for (const auto& [id, entity] : Engine::Instance().entities) {
        const auto* const triangle = dynamic_cast<const Triangle*>(entity);
        if (triangle == nullptr || triangle->dead) continue;
        const double d = distance(triangle->physics->position, cube->physics->position);
        if (d >= least) continue;
        least = d;
        nearest = triangle;
    }
    return nearest;
}

/// Two sides of the fence from here, the other two from beyond the prey, walking outside of it.
void Player::plan(const Triangle& prey) {
    const math::Point here = cube->physics->position, there = prey.physics->position;
    if (distance(here, there) > reach) return;
    const bool right = there.x > here.x, up = there.y > here.y;
    const double sx = right ? 1.0 : -1.0, sy = up ? 1.0 : -1.0;
    const double sideX = there.x + sx * fence_margin, sideY = there.y + sy * fence_margin;
    const double outY = here.y - sy * line_distance, outX = sideX + sx * line_distance;
    const int across = right ? SDLK_d : SDLK_a, back = right ? SDLK_a : SDLK_d;
    const int along = up ? SDLK_w : SDLK_s;
    stops = {{here, {across, along}},
             {onField({here.x, outY, 0.0}), {0, 0}},
             {onField({sideX, outY, 0.0}), {along, 0}},
             {onField({outX, outY, 0.0}), {0, 0}},
             {onField({outX, sideY, 0.0}), {back, 0}}};
    patience = patience_per_stop;
}

void Player::planWalk() {
    math::Point goal = math::zero_point;
    double least = 1e9;
    unsigned int lying = 0;
    for (const auto& [id, entity] : Engine::Instance().entities) {
        if (dynamic_cast<const PowerUp*>(entity) == nullptr || entity->dead) continue;
        ++lying;
        const double d = distance(entity->physics->position, cube->physics->position);
        if (d >= least) continue;
        least = d;
        goal = entity->physics->position;
    }
    if (lying < worth_the_walk) goal = math::zero_point;
    stops = {{onField(goal), {0, 0}}};
    patience = 8; // looks about again soon
}

void Player::follow() {
    const Stop& next = stops.front();
    const math::Point here = cube->physics->position;
    const double dx = next.place.x - here.x, dy = next.place.y - here.y;
    if (std::fabs(dx) <= arrived && std::fabs(dy) <= arrived) return arrive(next);
    steer(dx, dy);
    if (patience-- == 0) stops.clear();
}

void Player::arrive(const Stop& stop) {
    steer(0.0, 0.0);
    for (const int gun : stop.guns)
        if (gun != 0) run.press(gun);
    stops.pop_front();
    patience = patience_per_stop;
}

/// @return whether it had to
bool Player::stepBack(const Triangle& hunter) {
    const math::Point here = cube->physics->position, there = hunter.physics->position;
    if (distance(here, there) > too_close) return false;
    stops.clear();
    const math::Point away =
        onField({here.x + 3.0 * (here.x - there.x), here.y + 3.0 * (here.y - there.y), 0.0});
    const math::Point inward =
        distance(away, here) < 1.0 ? math::Point(-here.x, -here.y, 0.0) : away;
    steer(inward.x - here.x, inward.y - here.y);
    const bool sideways = std::fabs(there.x - here.x) > std::fabs(there.y - here.y);
    if (sideways) // a line between the two
        run.press(there.y > here.y ? SDLK_w : SDLK_s);
    else
        run.press(there.x > here.x ? SDLK_d : SDLK_a);
    return true;
}

void Player::steer(double dx, double dy) {
    hold(SDLK_RIGHT, dx > arrived);
    hold(SDLK_LEFT, dx < -arrived);
    hold(SDLK_UP, dy > arrived);
    hold(SDLK_DOWN, dy < -arrived);
}

void Player::hold(int symbol, bool down) {
    for (int i = 0; i < 4; ++i) {
        if (move_keys[i] != symbol || held[i] == down) continue;
        held[i] = down;
        run.key(symbol, down);
    }
}

} // namespace gallery
