#pragma once

#include "Framework/Entity.h"
#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"

class GOutlinedCircle;

namespace quorva::graphics {
class Colour;
}

/// Something that lies on the field to be touched by the player, who carries out its effect.
class PowerUp : public quorva::Entity, public quorva::MessageInterface<quorva::messages::EndLevel> {
public:
    void process() override = 0;
    void update() override {}
    void receiveMessage(const quorva::messages::EndLevel*) override { dead = true; }

    GOutlinedCircle* circle = nullptr; ///< the graphics own it

protected:
    explicit PowerUp(const quorva::math::Point& position);

    /// Body and look, alike for all kinds.
    void build(const quorva::math::Point& position, const quorva::graphics::Colour& colour);
};
