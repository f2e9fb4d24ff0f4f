#pragma once

#include "Framework/Graphics/Shape.h"
#include "keys/Questions.h"

namespace quorva::keys {

/// How much a part of a drawing stands out.
enum class Part {
    plain, ///< nothing to do with the actions
    bound,
    asked, ///< of the action that is being asked for
};

/// A device in lines, in which what is bound and what is asked for stand out.
class Drawing : public graphics::Shape {
public:
    void render() override;

    const Questions* questions = nullptr; ///< not owned, nor are the colours
    const graphics::Colour *plainColour = nullptr, *boundColour = nullptr, *askedColour = nullptr;

private:
    virtual void drawParts(Part kind) const = 0; ///< the outlines
    virtual void fillAsked() const = 0;          ///< what is asked for, as areas
};

} // namespace quorva::keys
