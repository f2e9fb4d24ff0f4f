#include <GL/glew.h>

#include "Framework/Graphics/ImmediateFunctions.h"

namespace quorva::graphics {

void ImmediateFunctions::beginShape(ShapeEnum shape) {
    glBegin(getGLShape(shape));
    currentShape = shape;
}

void ImmediateFunctions::endShape() {
    glEnd();
    currentShape = SHAPE_NONE;
}

void ImmediateFunctions::plotVertex3D(double x, double y, double z) {
    glVertex3f(static_cast<float>(x), static_cast<float>(y), static_cast<float>(z));
}

void ImmediateFunctions::plotVertex2D(double x, double y) {
    glVertex2f(static_cast<float>(x), static_cast<float>(y));
}

} // namespace quorva::graphics
