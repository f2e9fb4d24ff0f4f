// What each part of the drawing layer sends, also where the game has no use for it yet.

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

/// Draws a shape with these settings.
template <class Shape, class Set>
void show(Set set) {
    Shape shape;
    set(shape);
    shape.render();
}

// What the game draws is seen in the pictures of its states.
void drawShapes() {
    const primitives::Box box(4, -2, -1, 3);
    show<GLinedBox>([&](GLinedBox& shape) { shape.box = box; });
    for (const unsigned int points : {5U, 0U}) {
        note("disc", points);
        show<GCircle>([&](GCircle& disc) {
            disc.radius = 2;
            disc.resolution = points;
        });
    }
    note("cube of lines");
    show<GLinedCube>([](GLinedCube& cube) {
        cube.sizeX = 2;
        cube.sizeY = 4;
        cube.sizeZ = 6;
    });
    note("dead triangle");
    show<GTriangle>([](GTriangle& triangle) {
        triangle.points = {a, b, c};
        triangle.deathMode = true;
    });
    const float unset = -1.0F;
    for (const float value : {unset, 0.0F, 0.5F, 1.0F}) {
        note("slide bar", value);
        show<GSlideBar>([&](GSlideBar& bar) {
            bar.halfWidth = 2;
            bar.halfHeight = 0.5;
            if (value != unset) bar.value = &value;
        });
    }
    for (const int divisions : {0, 1, 3}) {
        note("grid", divisions);
        show<GGrid>([&](GGrid& grid) {
            grid.divisions = divisions;
            grid.box = box;
        });
    }
    note("axes");
    show<GAxesIndicator>([](GAxesIndicator& axes) { axes.length = 2; });
    note("sheet");
    show<SillyGrid>([](SillyGrid& sheet) {
        sheet.rows = 5;
        sheet.planes = 9;
        sheet.spacing = 2;
    });
}

void callFunctions() {
    note("kinds of shape");
    for (int shape = 0; shape <= 12; ++shape) {
        draw::begin(static_cast<ShapeEnum>(shape));
        note("of", draw::i_fun.currentShape);
        draw::end();
        if (draw::i_fun.currentShape != SHAPE_NONE) note("not ended");
    }
    note("vertices");
    const double array[] = {1, 2, 3};
    const std::vector<double> list = {4, 5, 6};
    draw::vertex3D(7, 8, 9);
    draw::vertex3D(array);
    draw::vertex3D(list);
    draw::vertex3D(b);
    draw::vertex3D(math::Vector(c));
    draw::vertex2D(7, 8);
    draw::vertex2D(array);
    draw::vertex2D(list);
    draw::vertex2D(b);
    draw::vertex2D(math::Vector(c));
    note("matrix");
    draw::pushMatrix();
    draw::translate(1, 2, 3);
    draw::translate(b);
    draw::translate(math::Vector(c));
    draw::scale(1, 2, 3);
    draw::scale(b);
    draw::scale(math::Vector(c));
    draw::rotate(30, 1, 2, 3);
    math::Quaternion turn;
    draw::rotate(turn);
    math::rotate(40, math::y_axis, turn);
    draw::rotate(turn);
    math::Matrix matrix;
    for (std::size_t i = 0; i < 16; ++i)
        matrix[i] = static_cast<double>(i);
    draw::rotate(matrix);
    draw::popMatrix();
    note("colours");
    using Byte = unsigned char;
    draw::setColour(0.5F, 0.6F, 0.7F, 0.8F);
    draw::setColour(Byte{255}, Byte{51}, Byte{0}, Byte{128});
    draw::setColour(colour);
}

void changeState() {
    for (void (*function)() :
         {draw::enableBlending, draw::disableBlending, draw::enableCulling, draw::disableCulling,
          draw::drawSolid, draw::drawLine, draw::enableDepthTest, draw::disableDepthTest,
          draw::enableAlpha, draw::disableAlpha, draw::setupDefaults, draw::startFrame,
          draw::endFrame})
        function();
    draw::setLineWidth(2.5F);
    for (void (*look)() : {draw::renderFlat, draw::renderSmooth}) {
        look();
        note(draw::isSmoothLines(), draw::isSmoothShapes(), draw::isSmoothShading());
    }
    draw::smoothShapes(true);
    note(draw::isSmoothShapes());
    draw::smoothShapes(false);
    for (void (*mode)() : {draw::setOutlineMode, draw::unsetOutlineMode}) {
        mode();
        note(draw::isOutLineMode());
    }
}

/// With the colours that count.
void useMaterials() {
    Material material;
    useMaterial(material);
    material.ambient = material.specular = &colours::pink;
    material.diffuse = material.emissive = &colours::orange;
    useMaterial(&material); // not yet
    material.hasAmbient = material.hasDiffuse = true;
    useMaterial(material);
    material.hasSpecular = material.hasEmissive = true;
    useMaterial(material);
    for (void (*part)(const Material&) :
         {useMaterialAmbient, useMaterialDiffuse, useMaterialSpecular, useMaterialEmissive})
        part(material);
}

void drawFigures() {
    using namespace draw::primitives;
    filledCircle(2, 4);
    filledCircle(1, 2, 3, 2, 4);
    filledCircle(colour, 2, 4);
    filledCircle(colour, 1, 2, 3, 2, 4);
    circle(2, 0);
    circle(2, 4);
    circle(1, 2, 3, 2, 4);
    circle(colour, 2, 4);
    circle(colour, 1, 2, 3, 2, 4);
    outlinedCircle(colour, colours::pink, 2, 4);
    outlinedCircle(colour, colours::pink, 1, 2, 3, 2, 4);
    filledDonut(1, 2, 4);
    filledDonut(colour, colours::pink, 1, 2, 4);
    circleSpokes(1, 2, 3, 2, 4);
    Circle3D(1, 2, 3, 2, 4);
    filledCylinder(1, 2, 3, 2, 5, 4);
    debug::drawBar(4, 1, 2);
}

} // namespace

TEST(Pictures, OfEachShape) {
    Camera::Instance().setupProjection();
    expectPicture("shapes", callsOf(drawShapes));
}

TEST(Pictures, OfEachFunctionOfTheDrawingLayer) {
    expectPicture("functions", callsOf([] {
                      callFunctions();
                      changeState();
                      useMaterials();
                  }));
}

TEST(Pictures, OfTheFigures) {
    expectPicture("figures", callsOf(drawFigures));
}

TEST(Pictures, OfTheCameraAsItMoves) {
    using C = CameraClass;
    C camera;
    using Move = void (C::*)();
    using MoveBy = void (C::*)(float);
    const Move moves[] = {&C::zoomOut,     &C::zoomIn,     &C::moveUp,     &C::moveDown,
                          &C::strafeRight, &C::strafeLeft, &C::rotateXPos, &C::rotateXNeg,
                          &C::rotateYPos,  &C::rotateYNeg, &C::rotateZPos, &C::rotateZNeg};
    const MoveBy movesBy[] = {&C::zoomOut,     &C::zoomIn,     &C::moveUp,     &C::moveDown,
                              &C::strafeRight, &C::strafeLeft, &C::rotateXPos, &C::rotateXNeg,
                              &C::rotateYPos,  &C::rotateYNeg, &C::rotateZPos, &C::rotateZNeg};
    expectPicture("camera", callsOf([&] {
                      camera.zoomIn(); // no further than home
                      for (const auto move : movesBy)
                          (camera.*move)(0.25F);
                      for (const auto move : moves)
                          (camera.*move)();
                      camera.strafeLeft(2);
                      camera.rotateXPos(3);
                      camera.orthographic = false;
                      camera.perspectiveScaleZ = 2;
                      for (int visit = 0; visit < 2; ++visit) {
                          camera.menuModeBegin();
                          note("menu");
                          camera.menuModeEnd();
                          camera.orthographic = true;
                      }
                      camera.setupFrustum();
                      for (math::Point p : {math::Point(1.5, 0, 9), math::Point(-1.5, 0, 9),
                                            math::Point(0, 1.5, 9), math::Point(0, -1.5, 9)})
                          note(camera.objectInFrustum(p, 0.5F), camera.objectInFrustum(p, 0.6F));
                  }));
}
