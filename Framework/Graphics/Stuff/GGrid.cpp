#include <GL/glew.h>

#include "Framework/Graphics/Stuff/GGrid.h"

#include <algorithm>

void GGrid::render() {
    begin();
    const int parts = std::max<int>(divisions, 1); // undivided it is one line each way: no step
    const double stepX = (box.right - box.left) / parts;
    const double stepY = (box.top - box.bottom) / parts;
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
