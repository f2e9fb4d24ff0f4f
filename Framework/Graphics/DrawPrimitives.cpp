#include "Framework/Graphics/DrawPrimitives.h"

#include "Framework/Graphics/Draw.h"
#include "Framework/math/Elementary.h"

namespace quorva::graphics::draw::primitives {

namespace {

constexpr double full_turn = 6.283185; // radians, as the game has always rounded it

/// Point `i` of `n` on a circle about the origin. The angle has passed through single precision.
math::Point onCircle(double r, unsigned int i, unsigned int n) {
    const float angle = static_cast<float>(i * full_turn / n);
    return {r * math::cos(angle), r * math::sin(angle), 0.0};
}

/// In the plane of z = cz.
void plotCircle(ShapeEnum shape, double cx, double cy, double cz, double r, unsigned int n) {
    begin(shape);
    for (unsigned int i = 0; i < n; ++i) {
        const math::Point p = onCircle(r, i, n);
        vertex3D(cx + p.x, cy + p.y, cz);
    }
    end();
}

} // namespace

void filledCircle(double cx, double cy, double cz, double r, unsigned int n) {
    plotCircle(SHAPE_POLYGON, cx, cy, cz, r, n);
}
void filledCircle(double r, unsigned int n) {
    filledCircle(0.0, 0.0, 0.0, r, n);
}
void filledCircle(const Colour& colour, double cx, double cy, double cz, double r, unsigned int n) {
    setColour(colour);
    filledCircle(cx, cy, cz, r, n);
}
void filledCircle(const Colour& colour, double r, unsigned int n) {
    filledCircle(colour, 0.0, 0.0, 0.0, r, n);
}

void circle(double cx, double cy, double cz, double r, unsigned int n) {
    disableDepthTest();
    plotCircle(SHAPE_LINE_LOOP, cx, cy, cz, r, n);
    enableDepthTest();
}
void circle(double r, unsigned int n) {
    circle(0.0, 0.0, 0.0, r, n);
}
void circle(const Colour& colour, double cx, double cy, double cz, double r, unsigned int n) {
    setColour(colour);
    circle(cx, cy, cz, r, n);
}
void circle(const Colour& colour, double r, unsigned int n) {
    circle(colour, 0.0, 0.0, 0.0, r, n);
}

void outlinedCircle(const Colour& fill, const Colour& line, double r, unsigned int n) {
    outlinedCircle(fill, line, 0.0, 0.0, 0.0, r, n);
}
void outlinedCircle(const Colour& fill, const Colour& line, double cx, double cy, double cz,
                    double r, unsigned int n) {
    filledCircle(fill, cx, cy, cz, r, n);
    circle(line, cx, cy, cz, r, n);
}

void filledDonut(double inner, double outer, unsigned int n) {
    begin(SHAPE_QUADS);
    for (unsigned int i = 0; i < n; ++i) {
        vertex2D(onCircle(inner, i, n));
        vertex2D(onCircle(outer, i, n));
        vertex2D(onCircle(outer, i + 1, n));
        vertex2D(onCircle(inner, i + 1, n));
    }
    end();
}
void filledDonut(const Colour& fill, const Colour& line, double inner, double outer,
                 unsigned int n) {
    setColour(fill);
    filledDonut(inner, outer, n);
    circle(line, inner, n);
    circle(line, outer, n);
}

void circleSpokes(double cx, double cy, double cz, double r, unsigned int n) {
    begin(SHAPE_LINES);
    for (unsigned int i = 0; i < n; ++i) {
        const math::Point p = onCircle(r, i, n);
        vertex3D(cx, cy, cz);
        vertex3D(cx + p.x, cy + p.y, cz);
    }
    end();
}

void Circle3D(double cx, double cy, double cz, double r, unsigned int n) {
    begin(SHAPE_LINE_LOOP);
    for (unsigned int i = 0; i < n; ++i) {
        const math::Point p = onCircle(r, i, n);
        vertex3D(cx + p.x, cy, cz + p.y);
    }
    end();
}

void filledCylinder(double cx, double cy, double cz, double r, double height, unsigned int n) {
    begin(SHAPE_QUADS);
    for (unsigned int i = 0; i < n; ++i) {
        const math::Point p = onCircle(r, i, n), q = onCircle(r, i + 1, n);
        vertex3D(cx + p.x, cy, cz + p.y);
        vertex3D(cx + p.x, cy + height, cz + p.y);
        vertex3D(cx + q.x, cy + height, cz + q.y);
        vertex3D(cx + q.x, cy, cz + q.y);
    }
    end();
}

void triangle() {}
void wireFrameTriangle() {}
void outlinedTriangle() {}
void outlinedRect(double, double) {}
void outlinedRect(double, double, double, double) {}
void filledRect(double, double) {}
void filledRect(double, double, double, double) {}
void filledRect(const Colour&, double, double) {}
void rect(double, double) {}
void rect(double, double, double, double) {}
void rect(const Colour&, double, double) {}
void wireFrameBox(double) {}
void wireFrameBox(double, double, double) {}
void solidBox(double) {}
void solidBox(double, double, double) {}
void outlinedBox(double) {}
void line(double, double, double, double) {}
void line(double, double, double, double, double, double) {}
void line(const Colour&, double, double, double, double) {}
void line(const Colour&, double, double, double, double, double, double) {}
void outlinedTriangularPrism(double, double) {}

} // namespace quorva::graphics::draw::primitives
