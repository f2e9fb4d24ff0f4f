#include "Framework/Graphics/MoveRotatePolicy.h"

#include "Framework/Graphics/Draw.h"

namespace quorva::graphics {

void MoveRotatePolicy::applyPlace() const {
    draw::translate(position);
    draw::rotate(rotation);
    draw::scale(scale);
}

} // namespace quorva::graphics
