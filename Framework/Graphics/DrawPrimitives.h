#pragma once

#include "Framework/Graphics/Colour.h"

/// Ready-made figures, in world units, with the state of GL as it is. A circle is `n` points, from
/// +x counter-clockwise; n = 0 draws an empty one. Coordinates are of the centre, without them it
/// is the origin; a colour stays in force afterwards. The game draws circles alone.
namespace quorva::graphics::draw::primitives {

void filledCircle(double cx, double cy, double cz, double r, unsigned int n);
void filledCircle(double r, unsigned int n);
void filledCircle(const Colour& colour, double cx, double cy, double cz, double r, unsigned int n);
void filledCircle(const Colour& colour, double r, unsigned int n);

// Without depth test, which is on afterwards.
void circle(double cx, double cy, double cz, double r, unsigned int n);
void circle(double r, unsigned int n);
void circle(const Colour& colour, double cx, double cy, double cz, double r, unsigned int n);
void circle(const Colour& colour, double r, unsigned int n);

// Filled, then the line over it.
void outlinedCircle(const Colour& fill, const Colour& line, double r, unsigned int n);
void outlinedCircle(const Colour& fill, const Colour& line, double cx, double cy, double cz,
                    double r, unsigned int n);

/// A ring about the origin; with colours, its two edges are drawn over it.
void filledDonut(double inner, double outer, unsigned int n);
void filledDonut(const Colour& fill, const Colour& line, double inner, double outer,
                 unsigned int n);

/// Lines from the centre to each point of the circle.
void circleSpokes(double cx, double cy, double cz, double r, unsigned int n);

/// A circle that faces along y.
void Circle3D(double cx, double cy, double cz, double r, unsigned int n);
/// The wall between two such circles, the lower one at cy.
void filledCylinder(double cx, double cy, double cz, double r, double height, unsigned int n);

// Declared for whoever needs them one day; they draw nothing.
void triangle();
void wireFrameTriangle();
void outlinedTriangle();
void outlinedRect(double width, double height);
void outlinedRect(double left, double bottom, double right, double top);
void filledRect(double width, double height);
void filledRect(double left, double bottom, double right, double top);
void filledRect(const Colour& colour, double width, double height);
void rect(double width, double height);
void rect(double left, double bottom, double right, double top);
void rect(const Colour& colour, double width, double height);
void wireFrameBox(double size);
void wireFrameBox(double width, double height, double depth);
void solidBox(double size);
void solidBox(double width, double height, double depth);
void outlinedBox(double size);
void line(double x1, double y1, double x2, double y2);
void line(double x1, double y1, double z1, double x2, double y2, double z2);
void line(const Colour& colour, double x1, double y1, double x2, double y2);
void line(const Colour& colour, double x1, double y1, double z1, double x2, double y2, double z2);
void outlinedTriangularPrism(double size, double depth);

} // namespace quorva::graphics::draw::primitives
