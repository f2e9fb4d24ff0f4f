#include <GL/glew.h>

#include "Framework/Graphics/DebugBar.h"

#include "Framework/Managers/ColourManager.h"

namespace quorva::debug {

namespace {

void drawQuad(float halfWidth, float halfHeight) {
    glBegin(GL_QUADS);
    glVertex2f(-halfWidth, -halfHeight);
    glVertex2f(halfWidth, -halfHeight);
    glVertex2f(halfWidth, halfHeight);
    glVertex2f(-halfWidth, halfHeight);
    glEnd();
}

} // namespace

void drawBar(double halfWidth, double halfHeight, double position) {
    const float width = static_cast<float>(halfWidth), height = static_cast<float>(halfHeight);
    const graphics::Colour& bar = ColourManager::Instance().getV("Console Bar");
    const graphics::Colour& outline = ColourManager::Instance().getV("Console Bar Outline");
    glColor4fv(bar.data());
    drawQuad(width, height);
    glPushMatrix();
    glTranslatef(static_cast<float>(position), 0.0F, 0.0F);
    drawQuad(height, 3.0F * height);
    glPopMatrix();
    glDisable(GL_DEPTH_TEST);
    glPolygonMode(GL_FRONT_AND_BACK, GL_LINE);
    glColor4fv(outline.data());
    drawQuad(width, height);
    glEnable(GL_DEPTH_TEST);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
}

} // namespace quorva::debug
