#include <GL/glew.h>

#include "Framework/Graphics/Stuff/GGrid.h"

void GGrid::render() {
    begin();
    const double stepX = (box.right - box.left) / divisions;
    const double stepY = (box.top - box.bottom) / divisions;
    glBegin(GL_LINES);
    for (unsigned int i = 0; i <= divisions; ++i) {
        const float x = static_cast<float>(box.left + i * stepX);
        glVertex2f(x, static_cast<float>(box.bottom));
        glVertex2f(x, static_cast<float>(box.top));
    }
    for (unsigned int i = 0; i <= divisions; ++i) {
        const float y = static_cast<float>(box.bottom + i * stepY);
        glVertex2f(static_cast<float>(box.left), y);
        glVertex2f(static_cast<float>(box.right), y);
    }
    glEnd();
}
