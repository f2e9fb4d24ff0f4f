// What the parts of the drawing layer send that the game has no use for yet. The others are seen in
// the pictures of its states.

#include "tests/pictures/Pictures.h"

#include "Framework/Graphics/Camera.h"
#include "Framework/Graphics/DebugBar.h"
#include "Framework/Graphics/Draw.h"
#include "Framework/Graphics/DrawPrimitives.h"
#include "Framework/Graphics/Material.h"
#include "Framework/Graphics/Stuff/GAxesIndicator.h"
#include "Framework/Graphics/Stuff/GCircle.h"
#include "Framework/Graphics/Stuff/GGrid.h"
#include "Framework/Graphics/Stuff/GLinedBox.h"
#include "Framework/Graphics/Stuff/GLinedCube.h"
#include "Framework/Graphics/Stuff/GSlideBar.h"
#include "game/GTriangle.h"
#include "game/SillyGrid.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace quorva;
using namespace quorva::graphics;
using standins::glRecorder;

namespace {

template <class... Parts>
void note(const Parts&... parts) {
    std::ostringstream line;
    ((line << parts << ' '), ...);
    glRecorder().note(line.str());
}

const Colour colour(0.1F, 0.2F, 0.3F, 0.4F);
const math::Point a(1, 2, 3), b(-4, 5, 6), c(7, -8, 9);

void drawShapes() {
    const primitives::Box box(4, -2, -1, 3);
    GLinedBox outline;
    outline.box = box;
    outline.render();
    GCircle().render();
    GLinedCube cube;
    cube.sizeX = 2;
    cube.sizeY = 4;
    cube.sizeZ = 6;
    cube.render();
    GTriangle dead;
    dead.points = {a, b, c};
    dead.deathMode = true;
    dead.render();
    GSlideBar bar;
    bar.halfWidth = 2;
    bar.halfHeight = 0.5;
    const float value = 0.75F;
    bar.value = &value;
    bar.render();
    GGrid grid;
    grid.box = box;
    for (const int divisions : {0, 3}) {
        grid.divisions = divisions;
        grid.render();
    }
    GAxesIndicator().render();
    SillyGrid sheet;
    sheet.rows = 5;
    sheet.planes = 9;
    sheet.render();
}

void drawFigures() {
    using namespace draw::primitives;
    filledCircle(2, 4);
    filledCircle(colour, 2, 4);
    circle(2, 0);
    circle(colour, 2, 4);
    outlinedCircle(colour, colours::pink, 2, 4);
    outlinedCircle(colour, colours::pink, 1, 2, 3, 2, 4);
    filledDonut(colour, colours::pink, 1, 2, 4);
    circleSpokes(1, 2, 3, 2, 4);
    Circle3D(1, 2, 3, 2, 4);
    filledCylinder(1, 2, 3, 2, 5, 4);
    debug::drawBar(4, 1, 2);
}

void callFunctions() {
    for (int shape = 0; shape <= 10; ++shape)
        draw::begin(static_cast<ShapeEnum>(shape));
    draw::end();
    const double array[] = {1, 2, 3};
    const std::vector<double> list = {4, 5, 6};
    draw::vertex3D(array);
    draw::vertex3D(list);
    draw::vertex3D(math::Vector(c));
    draw::vertex2D(array);
    draw::vertex2D(list);
    draw::vertex2D(math::Vector(c));
    draw::translate(math::Vector(c));
    draw::scale(math::Vector(c));
    draw::rotate(30, 1, 2, 3);
    draw::rotate(math::Matrix(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15));
    using Byte = unsigned char;
    draw::setColour(Byte{255}, Byte{51}, Byte{0}, Byte{128});
    for (void (*function)() : {draw::disableBlending, draw::disableAlpha, draw::setupDefaults,
                               draw::startFrame, draw::endFrame})
        function();
    for (void (*look)() : {draw::renderFlat, draw::renderSmooth}) {
        look();
        note(draw::isSmoothLines(), draw::isSmoothShapes(), draw::isSmoothShading());
    }
    draw::smoothShapes(true);
    note(draw::isSmoothShapes());
    for (void (*mode)() : {draw::setOutlineMode, draw::unsetOutlineMode}) {
        mode();
        note(draw::isOutLineMode());
    }
    draw::smoothShapes(false);
    draw::setBlendMode(BLEND_STANDARD);
    draw::saveBlendMode();
    draw::setBlendMode(static_cast<BlendModeEnum>(7)); // is known, but not to GL
    note(draw::i_fun.currentBlendMode);
    draw::restoreBlendMode();
    note(draw::i_fun.currentBlendMode);
}

/// With the colours that count.
void useMaterials() {
    Material material;
    material.ambient = material.specular = &colours::pink;
    material.diffuse = material.emissive = &colours::orange;
    useMaterial(&material); // not yet
    material.hasAmbient = material.hasDiffuse = true;
    material.hasSpecular = material.hasEmissive = true;
    useMaterial(material);
}

} // namespace

TEST(Pictures, OfTheDrawingLayer) {
    Camera::Instance().setupProjection();
    expectPicture("drawing", callsOf([] {
                      drawShapes();
                      drawFigures();
                      callFunctions();
                      useMaterials();
                  }));
}

TEST(Pictures, OfTheCameraAsItMoves) {
    using C = CameraClass;
    C camera;
    using Move = void (C::*)();
    const Move moves[] = {&C::zoomOut,     &C::zoomIn,     &C::moveUp,     &C::moveDown,
                          &C::strafeRight, &C::strafeLeft, &C::rotateXPos, &C::rotateXNeg,
                          &C::rotateYPos,  &C::rotateYNeg, &C::rotateZPos, &C::rotateZNeg};
    expectPicture("camera", callsOf([&] {
                      camera.zoomIn(); // no further than home
                      for (const auto move : moves)
                          (camera.*move)();
                      camera.orthographic = false;
                      camera.perspectiveScaleZ = 2;
                      for (int visit = 0; visit < 2; ++visit) {
                          camera.menuModeBegin();
                          camera.menuModeEnd();
                          camera.orthographic = true;
                      }
                      camera.setupFrustum();
                      for (math::Point p : {math::Point(1.5, 0, 9), math::Point(-1.5, 0, 9),
                                            math::Point(0, 1.5, 9), math::Point(0, -1.5, 9)})
                          note(camera.objectInFrustum(p, 0.5F), camera.objectInFrustum(p, 0.6F));
                  }));
}
