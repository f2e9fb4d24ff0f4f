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

#include <functional>
#include <sstream>

using namespace quorva;
using namespace quorva::graphics;
using standins::glRecorder;

namespace {

struct Row {
    const char* name;
    std::function<void()> draw;
};

template <std::size_t Count>
void expectPictures(const char* state, const Row (&rows)[Count]) {
    expectPicture(state, callsOf([&rows] {
                      for (const Row& row : rows) {
                          glRecorder().note("# " + std::string(row.name));
                          row.draw();
                      }
                  }));
}

template <class... Parts>
void note(const Parts&... parts) {
    std::ostringstream line;
    ((line << parts << ' '), ...);
    glRecorder().note(line.str());
}

const Colour colour(0.1F, 0.2F, 0.3F, 0.4F);
const math::Point a(1, 2, 3), b(-4, 5, 6), c(7, -8, 9);

/// Draws a shape with these settings.
template <class Shape>
std::function<void()> drawn(void (*set)(Shape&)) {
    return [set] {
        Shape shape;
        set(shape);
        shape.render();
    };
}

template <unsigned int points>
void disc(GCircle& shape) {
    shape.radius = 2;
    shape.resolution = points;
}

template <int divisions>
void grid(GGrid& shape) {
    shape.divisions = divisions;
    shape.box = primitives::Box(4, -2, -1, 3);
}

// What the game draws is seen in the pictures of its states.
const Row shapes[] = {
    {"outlined box",
     drawn<GLinedBox>([](GLinedBox& shape) { shape.box = primitives::Box(4, -2, -1, 3); })},
    {"disc", drawn(disc<5>)},
    {"disc of no points", drawn(disc<0>)},
    {"cube of lines", drawn<GLinedCube>([](GLinedCube& cube) {
         cube.sizeX = 2;
         cube.sizeY = 4;
         cube.sizeZ = 6;
     })},
    {"dead triangle", drawn<GTriangle>([](GTriangle& triangle) {
         triangle.points = {a, b, c};
         triangle.deathMode = true;
     })},
    {"slide bar without, and from end to end",
     [] {
         GSlideBar bar;
         bar.halfWidth = 2;
         bar.halfHeight = 0.5;
         bar.render();
         for (const float value : {0.0F, 0.5F, 1.0F}) {
             bar.value = &value;
             bar.render();
         }
     }},
    {"grid of no parts", drawn(grid<0>)},
    {"grid of one", drawn(grid<1>)},
    {"grid of three", drawn(grid<3>)},
    {"axes", drawn<GAxesIndicator>([](GAxesIndicator& axes) { axes.length = 2; })},
    {"sheet", drawn<SillyGrid>([](SillyGrid& sheet) {
         sheet.rows = 5;
         sheet.planes = 9;
         sheet.spacing = 2;
     })},
};

const Row functions[] = {
    {"kinds of shape",
     [] {
         for (int shape = 0; shape <= 12; ++shape) {
             draw::begin(static_cast<ShapeEnum>(shape));
             note("of", draw::i_fun.currentShape);
             draw::end();
             if (draw::i_fun.currentShape != SHAPE_NONE) note("not ended");
         }
     }},
    {"vertices",
     [] {
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
     }},
    {"matrix",
     [] {
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
     }},
    {"colours",
     [] {
         using Byte = unsigned char;
         draw::setColour(0.5F, 0.6F, 0.7F, 0.8F);
         draw::setColour(Byte{255}, Byte{51}, Byte{0}, Byte{128});
         draw::setColour(colour);
     }},
    {"state",
     [] {
         for (void (*function)() :
              {draw::enableBlending, draw::disableBlending, draw::enableCulling,
               draw::disableCulling, draw::drawSolid, draw::drawLine, draw::enableDepthTest,
               draw::disableDepthTest, draw::enableAlpha, draw::disableAlpha, draw::setupDefaults,
               draw::startFrame, draw::endFrame})
             function();
         draw::setLineWidth(2.5F);
     }},
    {"smoothing",
     [] {
         for (void (*look)() : {draw::renderFlat, draw::renderSmooth}) {
             look();
             note(draw::isSmoothLines(), draw::isSmoothShapes(), draw::isSmoothShading());
         }
         draw::smoothShapes(true);
         note(draw::isSmoothShapes());
         draw::smoothShapes(false);
     }},
    {"outlines",
     [] {
         for (void (*mode)() : {draw::setOutlineMode, draw::unsetOutlineMode}) {
             mode();
             note(draw::isOutLineMode());
         }
     }},
    {"materials, with the colours that count",
     [] {
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
     }},
};

const Row figures[] = {
    {"discs",
     [] {
         using namespace draw::primitives;
         filledCircle(2, 4);
         filledCircle(1, 2, 3, 2, 4);
         filledCircle(colour, 2, 4);
         filledCircle(colour, 1, 2, 3, 2, 4);
     }},
    {"circles",
     [] {
         using namespace draw::primitives;
         circle(2, 0);
         circle(2, 4);
         circle(1, 2, 3, 2, 4);
         circle(colour, 2, 4);
         circle(colour, 1, 2, 3, 2, 4);
     }},
    {"both",
     [] {
         using namespace draw::primitives;
         outlinedCircle(colour, colours::pink, 2, 4);
         outlinedCircle(colour, colours::pink, 1, 2, 3, 2, 4);
     }},
    {"rings",
     [] {
         using namespace draw::primitives;
         filledDonut(1, 2, 4);
         filledDonut(colour, colours::pink, 1, 2, 4);
     }},
    {"spokes", [] { draw::primitives::circleSpokes(1, 2, 3, 2, 4); }},
    {"in depth",
     [] {
         using namespace draw::primitives;
         Circle3D(1, 2, 3, 2, 4);
         filledCylinder(1, 2, 3, 2, 5, 4);
     }},
    {"bar for developers", [] { debug::drawBar(4, 1, 2); }},
};

} // namespace

TEST(Pictures, OfEachShape) {
    Camera::Instance().setupProjection();
    expectPictures("shapes", shapes);
}

TEST(Pictures, OfEachFunctionOfTheDrawingLayer) {
    expectPictures("functions", functions);
}

TEST(Pictures, OfTheFigures) {
    expectPictures("figures", figures);
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
