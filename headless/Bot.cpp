#include "headless/Bot.h"

#include "Framework/Engine.h"
#include "Framework/Graphics/Camera.h"
#include "Framework/Timer.h"
#include "Framework/math/Vector.h"
#include "Framework/menus/MainMenu.h"
#include "Framework/physics/PhysicsObject.h"
#include "game/GameLevel.h"
#include "game/PlayerCharacter.h"
#include "game/PowerUp.h"
#include "game/Triangle.h"
#include "platform/standins/VirtualSDL.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quorva::headless {

using math::Point;

namespace {

constexpr int direction_keys[] = {SDLK_RIGHT, SDLK_LEFT, SDLK_UP, SDLK_DOWN};

constexpr double edge_margin = 1.0; // distance kept from the edges of the field, world units
constexpr double arrival = 0.3;     // closer than this counts as arrived, world units
constexpr double walk_beside = 0.8; // distance from the fence on the way along it
constexpr double smallest_half = 3.0, largest_half = 6.0; // of a rectangle
constexpr double look_ahead = 1.5; // a move is judged by where it leads this far ahead, world units
constexpr double fear_distance = 5.0;        // of a triangle
constexpr double fear = 12.0;                // weight of flight against the planned way
constexpr unsigned int plan_patience = 200;  // ticks
constexpr unsigned int defence_chance = 12;  // one tick in this many, while a triangle is near
constexpr unsigned int pause_chance = 1000;  // one tick in this many
constexpr unsigned int leave_chance = 10000; // likewise, for leaving a game
constexpr unsigned int page_chance = 2;      // one visit to the menu in this many

// Items of the main menu.
constexpr unsigned int start_game = menus::MainMenu::item_start, first_page = start_game + 1,
                       page_count = menus::MainMenu::item_exit - first_page, undecided = 99;

const Point& positionOf(const Entity* e) {
    return e->physics->position;
}

double distance(const Point& a, const Point& b) {
    return (a - b).length();
}

Point onField(Point p) {
    const auto& camera = graphics::Camera::Instance();
    p.x = std::clamp(p.x, camera.left + edge_margin, camera.right - edge_margin);
    p.y = std::clamp(p.y, camera.bottom + edge_margin, camera.top - edge_margin);
    return p;
}

/// The middle of a triangle's outline; its position is that of the base.
Point middleOf(const Entity* triangle) {
    Point middle = positionOf(triangle);
    for (const Point& corner : triangle->physics->vertices) {
        middle.x += corner.x / 3.0;
        middle.y += corner.y / 3.0;
    }
    return middle;
}

/// From the nearest corner of a triangle.
double distanceFrom(const Entity* triangle, const Point& p) {
    double least = std::numeric_limits<double>::infinity();
    for (const Point& corner : triangle->physics->vertices)
        least = std::min(least, distance(positionOf(triangle) + corner, p));
    return least;
}

bool isOnField(const Point& p) {
    return p == onField(p);
}

double sign(double value) {
    return value < 0.0 ? -1.0 : 1.0;
}

} // namespace

Bot::Bot(std::uint32_t seed) : random(seed), goal(undecided) {}

void Bot::play() {
    look();
    if (level != nullptr) {
        if (!wasInLevel) ++games;
        playLevel();
    } else {
        playMenu();
    }
    wasInLevel = level != nullptr;
}

void Bot::look() {
    menu = nullptr;
    level = nullptr;
    player = nullptr;
    triangles.clear();
    powerUps.clear();
    for (const auto& [id, entity] : Engine::Instance().entities) {
        if (entity->dead) continue;
        if (auto* const found = dynamic_cast<menus::MainMenu*>(entity)) menu = found;
        if (auto* const found = dynamic_cast<GameLevel*>(entity)) level = found;
        if (auto* const found = dynamic_cast<PlayerCharacter*>(entity)) player = found;
        if (dynamic_cast<Triangle*>(entity) != nullptr) triangles.push_back(entity);
        if (dynamic_cast<PowerUp*>(entity) != nullptr) powerUps.push_back(entity);
    }
}

void Bot::playMenu() {
    if (wasInLevel) {
        releaseAll();
        plan.active = false;
        wait = 2 + draw(6); // as if it looked at the menu
    }
    if (menu == nullptr) return; // the program is about to end
    if (wait > 0) {
        --wait;
        return;
    }
    wait = 1 + draw(6);
    if (menu->shown)
        chooseItem();
    else
        usePage();
}

void Bot::chooseItem() {
    if (goal == undecided)
        goal = visitsPages && draw(page_chance) == 0 ? first_page + draw(page_count) : start_game;
    if (menu->selection != goal) {
        press(menu->selection < goal ? SDLK_DOWN : SDLK_UP);
        return;
    }
    press(SDLK_RETURN);
    goal = undecided;
}

void Bot::usePage() {
    if (menu->subMenu == nullptr)
        press(SDLK_RETURN); // read
    else
        chooseInConfiguration();
}

void Bot::chooseInConfiguration() {
    const int keys[] = {SDLK_UP,    SDLK_DOWN,   SDLK_DOWN,  SDLK_LEFT,
                        SDLK_RIGHT, SDLK_RETURN, SDLK_ESCAPE};
    const int key = keys[draw(std::size(keys))];
    press(key);
}

void Bot::playLevel() {
    if (!wasInLevel) syncDirections();
    if (Timer::Instance().paused) return unpause();
    const bool liesDead = player->deathTicks != 0;
    if (liesDead || wasLyingDead) releaseAll(); // a key held through the death is not seen
    wasLyingDead = liesDead;
    if (liesDead) {
        plan.active = false;
        return;
    }
    if (pauses && draw(pause_chance) == 0) {
        wait = draw(40);
        return press(SDLK_p);
    }
    if (visitsPages && draw(leave_chance) == 0) return press(SDLK_ESCAPE);
    defend();
    if (plan.active && !planStands()) plan.active = false;
    if (plan.active) return followPlan();
    if (const Entity* const gift = nearestPowerUp()) return steerTo(positionOf(gift));
    planFence();
    if (plan.active)
        followPlan();
    else
        steerTo(math::zero_point);
}

/// Keys of the last game may have been released in the menu, unseen by the game.
void Bot::syncDirections() {
    for (const int key : direction_keys)
        press(key);
}

void Bot::unpause() {
    if (wait > 0)
        --wait;
    else
        press(SDLK_p);
}

const Entity* Bot::nearestPowerUp() const {
    const Entity* nearest = nullptr;
    for (const Entity* gift : powerUps)
        if (isOnField(positionOf(gift)) &&
            (nearest == nullptr || distance(positionOf(player), positionOf(gift)) <
                                       distance(positionOf(player), positionOf(nearest))))
            nearest = gift;
    return nearest;
}

void Bot::planFence() {
    std::vector<const Entity*> inReach;
    for (const Entity* triangle : triangles)
        if (isOnField(middleOf(triangle))) inReach.push_back(triangle);
    if (inReach.empty()) return;
    const Entity* const target = inReach[draw(static_cast<unsigned int>(inReach.size()))];
    const Point centre = middleOf(target), here = positionOf(player);
    const double half = between(smallest_half, largest_half);
    const Point first(centre.x + half * sign(here.x - centre.x),
                      centre.y + half * sign(here.y - centre.y), 0.0);
    const Point second(2.0 * centre.x - first.x, 2.0 * centre.y - first.y, 0.0);
    plan = Plan();
    plan.active = true;
    plan.target = target->id;
    plan.first = onField(first);
    plan.second = onField(second);
    // Around the outside of the fence's first horizontal side.
    const double beside = walk_beside * sign(plan.first.y - plan.second.y);
    plan.way = {plan.second, onField({plan.second.x, plan.first.y + beside, 0.0}), plan.first};
}

bool Bot::planStands() const {
    if (plan.age > plan_patience || plan.way.empty()) return false;
    return std::any_of(triangles.begin(), triangles.end(),
                       [this](const Entity* t) { return t->id == plan.target; });
}

void Bot::followPlan() {
    ++plan.age;
    const Point next = plan.way.back();
    if (distance(positionOf(player), next) > arrival) return steerTo(next);
    if (next == plan.first && !plan.firstFired) {
        if (!fireFrom(plan.first, plan.second)) return steerTo(next);
        plan.firstFired = true;
    } else if (plan.way.size() == 1 && !fireFrom(plan.second, plan.first)) {
        return steerTo(next);
    }
    plan.way.pop_back();
}

/// The two shots that reach from this corner towards the other one's sides.
/// @return false while one of the guns cools down
bool Bot::fireFrom(const Point& corner, const Point& other) {
    const bool right = other.x > corner.x, up = other.y > corner.y;
    const auto& timers = player->fireTimers;
    if (timers[right ? PlayerCharacter::gun_right : PlayerCharacter::gun_left] != 0 ||
        timers[up ? PlayerCharacter::gun_up : PlayerCharacter::gun_down] != 0)
        return false;
    press(right ? SDLK_d : SDLK_a);
    press(up ? SDLK_w : SDLK_s);
    return true;
}

/// A line between itself and a triangle that comes near along an axis.
bool Bot::defend() {
    const Point here = positionOf(player);
    for (const Entity* triangle : triangles) {
        const double dx = positionOf(triangle).x - here.x, dy = positionOf(triangle).y - here.y;
        if (distanceFrom(triangle, here) > fear_distance || draw(defence_chance) != 0) continue;
        if (std::fabs(dx) > std::fabs(dy))
            press(dx > 0.0 ? SDLK_d : SDLK_a);
        else
            press(dy > 0.0 ? SDLK_w : SDLK_s);
        return true;
    }
    return false;
}

double Bot::danger(const Point& point) const {
    double sum = 0.0;
    for (const Entity* triangle : triangles) {
        const double d = distanceFrom(triangle, point);
        if (d < fear_distance) sum += fear * (1.0 / std::max(d, 0.1) - 1.0 / fear_distance);
    }
    return sum;
}

void Bot::steerTo(const Point& to) {
    const Point here = positionOf(player);
    double best = std::numeric_limits<double>::infinity();
    int bestX = 0, bestY = 0;
    for (int x = -1; x <= 1; ++x)
        for (int y = -1; y <= 1; ++y) {
            const double reach = std::min(look_ahead, distance(here, to));
            const Point there = onField({here.x + x * reach, here.y + y * reach, 0.0});
            const double cost = distance(there, to) + danger(there);
            if (!(cost < best)) continue;
            best = cost;
            bestX = x;
            bestY = y;
        }
    hold(SDLK_RIGHT, bestX > 0);
    hold(SDLK_LEFT, bestX < 0);
    hold(SDLK_UP, bestY > 0);
    hold(SDLK_DOWN, bestY < 0);
}

void Bot::hold(int symbol, bool down) {
    const auto found = std::find(held.begin(), held.end(), symbol);
    if ((found != held.end()) == down) return;
    if (down)
        held.push_back(symbol);
    else
        held.erase(found);
    send(symbol, down);
}

void Bot::releaseAll() {
    while (!held.empty())
        hold(held.back(), false);
}

void Bot::press(int symbol) {
    send(symbol, true);
    send(symbol, false);
}

void Bot::send(int symbol, bool down) {
    standins::pushKey(symbol, down);
    if (onKey) onKey(symbol, down);
}

unsigned int Bot::draw(unsigned int bound) {
    return static_cast<unsigned int>(random()) % bound;
}

double Bot::between(double low, double high) {
    return low + (high - low) * static_cast<double>(random()) * 0x1p-32;
}

} // namespace quorva::headless
