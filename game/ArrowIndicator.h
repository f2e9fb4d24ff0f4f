#pragma once

#include "Framework/Entity.h"
#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"
#include "Framework/math/Quaternion.h"

#include <boost/array.hpp>

class GCheveron;

/// Four chevrons on one side of the player that show the cooldown of that direction's gun. They
/// fly apart when the player dies and come back before the next life.
class ArrowIndicator : public quorva::Entity,
                       public quorva::MessageInterface<quorva::messages::EndLevel> {
public:
    static constexpr unsigned int chevron_count = 4;

    /// @param follow the player's position, which has to outlive this entity's last tick
    /// @param angle  turn about z, degrees; 0 points up
    /// @param offset distance of the first chevron's tip, world units
    ArrowIndicator(const quorva::math::Point* follow, double angle, double offset);

    void process() override;
    void update() override {}
    void receiveMessage(const quorva::messages::EndLevel*) override { dead = true; }

    void showUpTo(unsigned int n); ///< shows the nearest n chevrons, 0 to 4
    void fire();                   ///< they start to fly apart, from where the player is now
    void restore();                ///< they start to fly back, which takes 50 ticks

    const quorva::math::Point* follow; ///< not owned
    double angle;
    quorva::math::Quaternion rotation;
    boost::array<GCheveron*, chevron_count> cheverons; ///< nearest first; the graphics own them
    double offset;
    bool firing = false;
    bool restoring = false;
    quorva::math::Point firedFrom; ///< where the player died
    // Speed of each chevron, world units per tick.
    boost::array<double, chevron_count> outward = {{0.0, 0.0, 0.0, 0.0}}; ///< while firing
    boost::array<double, chevron_count> inward = {{0.0, 0.0, 0.0, 0.0}};  ///< while restoring
    std::uint16_t restoreTicks = 0;                                       ///< left of it

private:
    void flyApart();
    void flyBack();
    void comeToRest();
};
