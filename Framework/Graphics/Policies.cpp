#include "Framework/Graphics/ColourPolicy.h"
#include "Framework/Graphics/Draw.h"
#include "Framework/Graphics/MoveRotatePolicy.h"

namespace quorva::graphics {

void ColourPolicy::applyColour1() const {
    if (colour1 != nullptr) draw::setColour(*colour1);
}

void MoveRotatePolicy::applyPlace() const {
    draw::translate(position);
    draw::rotate(rotation);
    draw::scale(scale);
}

} // namespace quorva::graphics
