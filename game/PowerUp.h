#pragma once

#include "Framework/Entity.h"
#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"

class GOutlinedCircle;

namespace quorva::graphics {
class Colour;
}

/// A thing on the field for the player to touch. PlayerCharacter::take carries out its effect.
class PowerUp : public quorva::Entity, public quorva::MessageInterface<quorva::messages::EndLevel> {
public:
    void process() override = 0;
    void update() override {}
    void receiveMessage(const quorva::messages::EndLevel*) override { dead = true; }

    GOutlinedCircle* circle = nullptr; ///< the graphics own it

protected:
    explicit PowerUp(const quorva::math::Point& position); ///< the derived class calls build()

    /// Makes the body and the look, which differ in colour alone.
    /// @param colour resource, must outlive this
    void build(const quorva::math::Point& position, const quorva::graphics::Colour& colour);
};
