#include "platform/web/gl/Shape.h"

#include <GL/glew.h>

namespace quorva::web {

void Shape::begin(unsigned int mode_) {
    mode = mode_;
    vertices.clear();
    colours.clear();
}

void Shape::add(const Vertex& vertex, const Colour& colour) {
    vertices.push_back(vertex);
    colours.push_back(colour);
}

void Shape::end(const Style& style_) {
    style = style_;
    if (mode == GL_LINES) return drawLines(2);
    if (mode == GL_LINE_STRIP || mode == GL_LINE_LOOP) drawLines(1);
    if (mode == GL_LINE_LOOP && vertices.size() > 1) line(vertices.size() - 1, 0, 0);
    drawFigures();
}

void Shape::drawLines(std::size_t step) {
    for (std::size_t i = 1; i < vertices.size(); i += step)
        line(i - 1, i, i);
}

void Shape::drawFigures() {
    const std::size_t count = vertices.size();
    switch (mode) {
    case GL_TRIANGLES:
        for (std::size_t i = 2; i < count; i += 3)
            triangle(i - 2, i - 1, i, i);
        break;
    case GL_TRIANGLE_STRIP:
        for (std::size_t i = 2; i < count; ++i)
            triangle(i - 2 + i % 2, i - 1 - i % 2, i, i);
        break;
    case GL_TRIANGLE_FAN:
        for (std::size_t i = 2; i < count; ++i)
            triangle(0, i - 1, i, i);
        break;
    case GL_QUADS:
        for (std::size_t i = 3; i < count; i += 4)
            polygon(i - 3, 4, i);
        break;
    case GL_POLYGON:
        polygon(0, count, 0);
        break;
    default:
        break;
    }
}

void Shape::line(std::size_t from, std::size_t to, std::size_t provoking) {
    const bool smooth = style.smoothShading;
    batch.addLine(vertices[from], vertices[to], colours[smooth ? from : provoking],
                  colours[smooth ? to : provoking], style.lineWidth);
}

void Shape::triangle(std::size_t a, std::size_t b, std::size_t c, std::size_t provoking) {
    if (isHidden(a, b, c)) return;
    if (!style.filled) {
        line(a, b, provoking);
        line(b, c, provoking);
        line(c, a, provoking);
        return;
    }
    const bool smooth = style.smoothShading;
    batch.addTriangle({vertices[a], vertices[b], vertices[c]},
                      {colours[smooth ? a : provoking], colours[smooth ? b : provoking],
                       colours[smooth ? c : provoking]});
}

void Shape::polygon(std::size_t first, std::size_t count, std::size_t provoking) {
    if (count < 3) return;
    if (style.filled) {
        for (std::size_t i = 2; i < count; ++i)
            triangle(first, first + i - 1, first + i, provoking);
        return;
    }
    if (isHidden(first, first + 1, first + 2)) return;
    for (std::size_t i = 0; i < count; ++i)
        line(first + i, first + (i + 1) % count, provoking);
}

bool Shape::isHidden(std::size_t a, std::size_t b, std::size_t c) const {
    if (!style.culling) return false;
    const Vertex &p = vertices[a], &q = vertices[b], &r = vertices[c];
    // The triangle's area on the screen, but for a factor above 0.
    const float area = p.x * (q.y * r.w - r.y * q.w) - p.y * (q.x * r.w - r.x * q.w) +
                       p.w * (q.x * r.y - r.x * q.y);
    return area < 0.0F;
}

} // namespace quorva::web
