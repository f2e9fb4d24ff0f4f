#pragma once

#include "Framework/Graphics/Colour.h"

namespace quorva::graphics {

/// The colours of a shape. Not owned: they belong to a resource manager, to the palette, or to the
/// entity where they fade, and must outlive the shape.
class ColourPolicy {
public:
    void setColour1(const Colour* colour) { colour1 = colour; }

    const Colour* colour1 = nullptr; ///< null: the shape draws in the colour of the one before it
    const Colour* colour2 = nullptr; ///< for shapes of two colours; none reads it yet

protected:
    ~ColourPolicy() = default;

    void applyColour1() const; ///< hands `colour1` to GL, if it is set
};

} // namespace quorva::graphics
