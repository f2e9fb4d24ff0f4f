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
constexpr double stride = 0.25; ///< of the cube, per tick
constexpr double arrived = 0.2;
constexpr unsigned int worth_the_walk = 3; ///< power-ups and bombs that lie about: a fuller picture
constexpr double edge_margin = 0.8;
constexpr double top_margin = 3.5;             ///< for the display and the cube's arrows below it
constexpr unsigned int patience_per_stop = 60; ///< ticks

const int move_keys[] = {SDLK_RIGHT, SDLK_LEFT, SDLK_UP, SDLK_DOWN};

double distance(const math::Point& a, const math::Point& b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

/// The point nearest to this one where the player can stand.
math::Point onField(math::Point p) {
    const auto& camera = graphics::Camera::Instance();
    p.x = std::fmin(std::fmax(p.x, camera.left + edge_margin), camera.right - edge_margin);
    p.y = std::fmin(std::fmax(p.y, camera.bottom + edge_margin), camera.top - top_margin);
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
    if (directed) return stops.empty() ? steer(0.0, 0.0) : follow();
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

void Player::goTo(const math::Point& point) {
    stops = {{point, {0, 0}}};
    patience = patience_per_stop;
    directed = true;
}

void Player::fence(const math::Point& corner, const math::Point& opposite) {
    planFence(corner, opposite);
    directed = true;
}

void Player::plan(const Triangle& prey) {
    const math::Point here = cube->physics->position, there = prey.physics->position;
    if (distance(here, there) > reach) return;
    planFence(here, {there.x + std::copysign(fence_margin, there.x - here.x),
                     there.y + std::copysign(fence_margin, there.y - here.y), 0.0});
}

void Player::planFence(const math::Point& corner, const math::Point& opposite) {
    const bool right = opposite.x > corner.x, up = opposite.y > corner.y;
    const double outY = corner.y - (up ? line_distance : -line_distance);
    stops = {{corner, {right ? SDLK_d : SDLK_a, up ? SDLK_w : SDLK_s}},
             {onField({opposite.x, outY, 0.0}), {0, 0}},
             {onField(opposite), {right ? SDLK_a : SDLK_d, up ? SDLK_s : SDLK_w}}};
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

/// A key of now moves the cube only from the tick after the next.
math::Point Player::placeAfterTick() const {
    math::Point ahead = cube->physics->position;
    ahead.x += stride * (held[0] - held[1]);
    ahead.y += stride * (held[2] - held[3]);
    return ahead;
}

void Player::follow() {
    const Stop& next = stops.front();
    const math::Point here = placeAfterTick();
    const double dx = next.point.x - here.x, dy = next.point.y - here.y;
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
