#include "Framework/Graphics/MoveRotatePolicy.h"

#include "Framework/Graphics/Draw.h"

namespace quorva::graphics {

void MoveRotatePolicy::applyTransform() const {
    // GL applies the last one first: scaled, then turned, then moved.
    draw::translate(position);
    draw::rotate(rotation);
    draw::scale(scale);
}

} // namespace quorva::graphics
