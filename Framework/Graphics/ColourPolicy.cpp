#include "Framework/Graphics/ColourPolicy.h"

#include "Framework/Graphics/Draw.h"

namespace quorva::graphics {

void ColourPolicy::applyColour1() const {
    if (colour1 != nullptr) draw::setColour(*colour1);
}

} // namespace quorva::graphics
