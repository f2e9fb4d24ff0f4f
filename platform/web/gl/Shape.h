#pragma once

#include "platform/web/gl/Batch.h"

#include <vector>

namespace quorva::web {

/// What glBegin and glEnd enclose, as GL's state is then.
struct Style {
    bool smoothShading = true; ///< else a figure has the colour of one of its vertices
    bool culling = false;      ///< of what is seen from behind
    bool filled = true;        ///< else figures are drawn as their outlines
    float lineWidth = 1.0F;    ///< pixels
};

class Shape {
public:
    explicit Shape(Batch& batch_) : batch(batch_) {}

    void begin(unsigned int mode_);
    void add(const Vertex& vertex, const Colour& colour);
    void end(const Style& style_);

private:
    void drawFigures();
    void drawLines(std::size_t step);
    void line(std::size_t from, std::size_t to, std::size_t provoking);
    /// Vertices `first`, and `count - 1` behind it; drawn from its first one as a fan.
    void polygon(std::size_t first, std::size_t count, std::size_t provoking);
    void triangle(std::size_t a, std::size_t b, std::size_t c, std::size_t provoking);
    bool isHidden(std::size_t a, std::size_t b, std::size_t c) const;

    Batch& batch;
    Style style;
    unsigned int mode = 0;
    std::vector<Vertex> vertices;
    std::vector<Colour> colours;
};

} // namespace quorva::web
