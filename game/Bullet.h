#pragma once

#include "Framework/Entity.h"
#include "Framework/Graphics/Colour.h"
#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"
#include "Framework/math/Quaternion.h"

/// A shot: a small spinning cross that flies straight on until it has left the field or met a
/// triangle, then fades in flight. While fading it still holds the triangles that it passes.
class Bullet : public quorva::Entity, public quorva::MessageInterface<quorva::messages::EndLevel> {
public:
    /// @param velocity world units per tick
    Bullet(quorva::math::Point position, const quorva::math::Vector& velocity);

    void process() override;
    void update() override;
    void receiveMessage(const quorva::messages::EndLevel*) override { dead = true; }

    /// Ends it as a bullet: its line lets go of it, and it only fades from now on.
    void fakeKill();

    quorva::graphics::Colour colour; ///< own copy: it fades
    bool fakeKilled = false;         ///< ended as a bullet, though it still shows
    bool hitTriangle = false;        ///< ended at a triangle; nothing reads it
    quorva::math::Quaternion rotation;
    double spinAngle = 0.0; ///< degrees, ever growing
    bool dying = false;     ///< fading out

private:
    bool hasLeftField() const;
    void noticeHit();
};
