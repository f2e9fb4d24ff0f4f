#pragma once

#include "Framework/Entity.h"
#include "Framework/MessageReceiver.h"
#include "Framework/Messages.h"

class GTriangle;

namespace quorva::graphics {
class Colour;
}

/// The enemy. It creeps after the player like an inchworm: the base closes up on the nose, it
/// rests, the nose reaches forward, it rests; and it turns towards the player by a little each
/// tick. Lines stop it, bullets hold it for a moment, a closed rectangle kills it.
class Triangle
    : public quorva::Entity,
      public quorva::MessageReceiver<quorva::messages::EndLevel, KillAllTriangles, PlayerDead> {
public:
    enum State : std::uint32_t { expanding, contracting, restAfterContract, restAfterExpand };

    /// Draws twice from the random stream. The first triangle of a run seeds it anew.
    /// @param speed gives a velocity of 1 / (15 - speed) world units per tick
    /// @param size  scale of the outline
    Triangle(const quorva::math::Point& position, double speed, double size);
    ~Triangle() override; ///< makes its sides fly apart, if it `explodes`

    void process() override;
    void update() override {}
    void receiveMessage(const quorva::messages::EndLevel*) override; ///< goes without a burst
    void receiveMessage(const PlayerDead*) override { dead = true; }
    void receiveMessage(const KillAllTriangles*) override { dead = true; }

    void changeRotation(double radians); ///< rewrites the outline from the model, turned
    void changeMovement();               ///< velocity along the heading
    void reposition();                   ///< turns towards the player
    void startContracting() {}           ///< nothing calls these two
    void startExpanding() {}

    static bool seeded; ///< the first triangle of the run has seeded the random stream

    const quorva::graphics::Colour* normalColour; ///< resources, not owned
    const quorva::graphics::Colour* stuckColour;
    GTriangle* graphic; ///< the true current outline, relative to the body's position
    double speed;
    double size;
    double angle = 0.0; ///< heading, radians; 0 has the nose along +y
    bool explodes = true;
    quorva::math::Point modelA, modelB, modelC; ///< the outline before size and angle; A the nose
    State state = contracting;
    quorva::math::Vector step;       ///< move per tick
    quorva::math::Vector baseOffset; ///< lead of the base over its place in the model
    quorva::math::Vector noseStep;   ///< growth of noseOffset per tick
    quorva::math::Vector noseOffset; ///< lead of the nose
    std::uint16_t pauseTicks = 0;    ///< left of a rest
    std::uint16_t noseTarget = 0;    ///< how many ticks the nose is to reach forward
    std::uint16_t contractTicks = 0; ///< spent contracting
    std::uint16_t noseTicks = 0;     ///< spent reaching forward
    std::uint16_t stuckTicks = 0;    ///< 3, 2, 1, 0 and round again while a line holds it

private:
    void buildOutline();
    bool isHeld();
    void walk();
    void contract();
    void restContracted();
    void expand();
    void restExpanded();
    void shareOutline();
    void explode() const;
};
