#pragma once

#include "Framework/Engine.h"
#include "Framework/physics/PhysicsObject.h"
#include "Framework/physics/PhysicsProcessor.h"
#include "game/Bullet.h"
#include "game/GameBase.h"
#include "game/GameLevel.h"
#include "game/Marvo.h"
#include "game/PlayerCharacter.h"
#include "game/TrapLine.h"
#include "game/Triangle.h"
#include "headless/HeadlessGame.h"
#include "platform/standins/VirtualSDL.h"

/// Presses keys one after the other. A key is taken in the first tick, and seen in the second.
inline void press(quorva::headless::HeadlessGame& run, std::initializer_list<int> keys,
                  unsigned int ticksEach = 1) {
    for (const int key : keys) {
        run.press(key);
        run.ticks(ticksEach);
    }
}

/// A running level with an empty field, for tests to furnish. Nothing touches the player, unless a
/// test makes its body active.
class Field {
public:
    explicit Field(unsigned short width = 0, unsigned short height = 0) : run(100, width, height) {
        startLevel();
    }

    void startLevel() { ///< also after the end of another
        while (run.game().level == nullptr)
            run.startLevel(); // by keys: a last death has left a page that takes one
        level = run.game().level;
        player = level->player;
        physics = run.game().physicsProcessor;
        for (Triangle* const triangle : all<Triangle>()) {
            triangle->explodes = false;
            triangle->dead = true;
        }
        quorva::Engine::Instance().cleanupDeadEntities();
        body(player).isActive = false;
    }

    static quorva::physics::PhysicsObject& body(quorva::Entity* e) { return *e->physics; }

    static void fire(double x, double y) {
        quorva::messages::PlayerInput input;
        input.fire = quorva::math::Vector(x, y, 0);
        quorva::publish(input);
    }

    static Triangle* add(double x, double y, double speed = 0.0) {
        return quorva::Engine::Instance().createEntity<Triangle>(
            "Triangle", quorva::math::Point(x, y, 0), speed, 1.0);
    }
    /// A triangle that lies still, with the corners given in world units.
    Triangle* lay(const quorva::math::Point& a, const quorva::math::Point& b,
                  const quorva::math::Point& c) {
        Triangle* const triangle = add(0, 0);
        body(triangle).velocity = quorva::math::zero_vector;
        body(triangle).vertices = {a, b, c};
        return triangle;
    }
    /// A small triangle around a point.
    Triangle* layAt(double x, double y) {
        return lay({x - 0.1, y - 0.1, 0}, {x + 0.1, y - 0.1, 0}, {x, y + 0.1, 0});
    }

    /// A line that stands, without a bullet.
    TrapLine* stand(const quorva::math::Point& start, const quorva::math::Point& end) {
        auto* const bullet =
            quorva::Engine::Instance().createEntity<Bullet>("Bullet", end, quorva::math::Vector());
        PhysicsLineMessage message;
        message.position = start;
        message.bullet = bullet;
        message.horizontal = start.y == end.y;
        const std::size_t before = physics->lines.size();
        quorva::publish(message);
        bullet->dead = true;
        if (physics->lines.size() == before) return nullptr; // refused
        TrapLine* const line = physics->lines.back();
        line->bullet = nullptr;
        line->end = end;
        return line;
    }
    TrapLine* across(double y, double x1, double x2) { return stand({x1, y, 0}, {x2, y, 0}); }
    TrapLine* upright(double x, double y1, double y2) { return stand({x, y1, 0}, {x, y2, 0}); }

    /// The oldest first.
    template <class T>
    static std::vector<T*> all() {
        std::vector<T*> found;
        for (const auto& [id, entity] : quorva::Engine::Instance().entities)
            if (auto* const match = dynamic_cast<T*>(entity)) found.push_back(match);
        return found;
    }
    template <class T>
    static T* newest() {
        return all<T>().back();
    }

    quorva::headless::HeadlessGame run;
    GameLevel* level;
    PlayerCharacter* player;
    quorva::physics::PhysicsProcessor* physics;
};
