#pragma once

#include "Framework/Graphics/Colour.h"

namespace quorva::graphics {

/// The colours of a shape. They belong to a resource manager, the palette or the entity.
class ColourPolicy {
public:
    void setColour1(const Colour* colour) { colour1 = colour; }

    const Colour* colour1 = nullptr; ///< null: the shape draws in the colour of the one before it
    const Colour* colour2 = nullptr;

protected:
    ~ColourPolicy() = default;

    void applyColour1() const; ///< hands `colour1` to GL, if it is set
};

} // namespace quorva::graphics
