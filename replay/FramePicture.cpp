#include "replay/FramePicture.h"

#include "Framework/Graphics/Camera.h"
#include "Framework/math/Matrix.h"

#include <GL/gl.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <iomanip>
#include <sstream>
#include <string_view>
#include <utility>

namespace quorva::replay {

namespace {

using math::Matrix;
using standins::GLCall;

constexpr const char* background = "#1b1b1b"; // as the game clears its window
constexpr unsigned int digits_of_colour = 255;

struct Position {
    double x, y; ///< pixels, from the top left
};

Matrix identity() {
    Matrix matrix;
    matrix.makeIdentity();
    return matrix;
}

Matrix translation(double x, double y, double z) {
    Matrix matrix = identity();
    matrix[12] = x;
    matrix[13] = y;
    matrix[14] = z;
    return matrix;
}

Matrix scaling(double x, double y, double z) {
    Matrix matrix = identity();
    matrix[0] = x;
    matrix[5] = y;
    matrix[10] = z;
    return matrix;
}

Matrix turn(double degrees, double x, double y, double z) {
    Matrix matrix = identity();
    if (degrees != 0.0) matrix.makeRotation(degrees, x, y, z);
    return matrix;
}

/// Flat: what is nearer or farther looks the same.
Matrix orthographic(double left, double right, double bottom, double top) {
    const double width = right - left, height = top - bottom;
    Matrix matrix = identity();
    matrix[0] = 2.0 / width;
    matrix[5] = 2.0 / height;
    matrix[12] = -(right + left) / width;
    matrix[13] = -(top + bottom) / height;
    return matrix;
}

/// As an earlier frame has set it.
Matrix projectionOfGame() {
    const graphics::CameraClass& camera = graphics::Camera::Instance();
    return orthographic(camera.left, camera.right, camera.bottom, camera.top);
}

class Painter {
public:
    using Lists = std::map<unsigned int, std::vector<GLCall>>;

    Painter(int width_, int height_, const Lists& lists_)
        : width(width_), height(height_), lists(lists_) {}

    void draw(const std::vector<GLCall>& calls) {
        for (const GLCall& call : calls)
            draw(call);
    }
    std::string text() const {
        std::ostringstream svg;
        svg << "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 " << width << ' ' << height
            << "'><rect width='100%' height='100%' fill='" << background
            << "'/><g stroke-linecap='round' stroke-linejoin='round'>" << shapes.str()
            << "</g></svg>";
        return svg.str();
    }

private:
    void draw(const GLCall& call);
    void place(const GLCall& call);
    void vertex(const GLCall& call);
    void endShape();
    void outline(std::size_t step, bool closed);
    void areas();
    void path(const std::string& way, bool isArea);

    void transform(const Matrix& by) { current() = current() * by; }
    Matrix& current() { return isProjection ? projection : model; }

    const int width, height; // pixels
    const Lists& lists;
    std::ostringstream shapes;
    Matrix projection = projectionOfGame(), model = identity();
    std::vector<Matrix> stack;
    bool isProjection = false, isMakingList = false;
    std::array<double, 4> colour = {1, 1, 1, 1};
    double lineWidth = 1.0;
    unsigned int mode = GL_POINTS;
    std::vector<Position> vertices; ///< of the shape that is being made, pixels
};

void Painter::draw(const GLCall& call) {
    const std::string_view name = call.name;
    const auto& a = call.arguments;
    if (name == "glNewList" || name == "glEndList") isMakingList = name == "glNewList";
    if (isMakingList) return; // a letter, which is drawn by its list
    if (name.substr(0, 8) == "glVertex") return vertex(call);
    if (name == "glBegin") {
        mode = static_cast<unsigned int>(a[0]);
        vertices.clear();
    } else if (name == "glEnd") {
        endShape();
    } else if (name == "glColor4f" || name == "glColor4fv") {
        std::copy_n(a.begin(), colour.size(), colour.begin());
    } else if (name == "glLineWidth") {
        lineWidth = a[0];
    } else if (name == "glCallList") {
        const auto list = lists.find(static_cast<unsigned int>(a[0]));
        if (list != lists.end()) draw(list->second);
    } else {
        place(call);
    }
}

/// What moves that which follows.
void Painter::place(const GLCall& call) {
    const std::string_view name = call.name;
    const auto& a = call.arguments;
    if (name == "glMatrixMode") {
        isProjection = static_cast<unsigned int>(a[0]) == GL_PROJECTION;
    } else if (name == "glLoadIdentity") {
        current() = identity();
    } else if (name == "glOrtho") {
        transform(orthographic(a[0], a[1], a[2], a[3]));
    } else if (name == "glTranslatef") {
        transform(translation(a[0], a[1], a[2]));
    } else if (name == "glScalef") {
        transform(scaling(a[0], a[1], a[2]));
    } else if (name == "glRotatef") {
        transform(turn(a[0], a[1], a[2], a[3]));
    } else if (name == "glMultMatrixf") {
        Matrix by;
        by.m = a;
        transform(by);
    } else if (name == "glPushMatrix") {
        stack.push_back(model);
    } else if (name == "glPopMatrix" && !stack.empty()) {
        model = stack.back();
        stack.pop_back();
    }
}

void Painter::vertex(const GLCall& call) {
    const auto& a = call.arguments;
    const math::Point p =
        projection * (model * math::Point(a[0], a[1], call.count > 2 ? a[2] : 0.0));
    vertices.push_back({(p.x + 1.0) / 2.0 * width, (1.0 - p.y) / 2.0 * height});
}

void Painter::endShape() {
    switch (mode) {
    case GL_LINES:
        return outline(2, false);
    case GL_LINE_STRIP:
        return outline(vertices.size(), false);
    case GL_LINE_LOOP:
        return outline(vertices.size(), true);
    default:
        return areas();
    }
}

std::string point(char command, const Position& p) {
    std::ostringstream text;
    text << command << std::fixed << std::setprecision(1) << p.x << ' ' << p.y;
    return text.str();
}

void Painter::outline(std::size_t step, bool closed) {
    std::string way;
    for (std::size_t i = 0; i < vertices.size(); ++i)
        way += point(i % step == 0 ? 'M' : 'L', vertices[i]);
    path(way + (closed ? "Z" : ""), false);
}

/// All turn one way round: areas of opposite turns would take each other out where they overlap.
std::string polygon(std::vector<Position> corners) {
    double area = 0.0;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Position &p = corners[i], &q = corners[(i + 1) % corners.size()];
        area += p.x * q.y - q.x * p.y;
    }
    if (area < 0.0) std::reverse(corners.begin(), corners.end());
    std::string way;
    for (const Position& corner : corners)
        way += point(way.empty() ? 'M' : 'L', corner);
    return way + 'Z';
}

/// Triangles and quads by their corners, all others as they come.
void Painter::areas() {
    const auto& v = vertices;
    std::string way;
    if (mode == GL_TRIANGLES)
        for (std::size_t i = 2; i < v.size(); i += 3)
            way += polygon({v[i - 2], v[i - 1], v[i]});
    else if (mode == GL_TRIANGLE_STRIP)
        for (std::size_t i = 2; i < v.size(); ++i)
            way += polygon({v[i - 2], v[i - 1], v[i]});
    else if (mode == GL_QUADS)
        for (std::size_t i = 3; i < v.size(); i += 4)
            way += polygon({v[i - 3], v[i - 2], v[i - 1], v[i]});
    else
        for (std::size_t i = 2; i < v.size(); ++i) // a fan, or a convex polygon
            way += polygon({v[0], v[i - 1], v[i]});
    path(way, true);
}

void Painter::path(const std::string& way, bool isArea) {
    if (way.empty() || colour[3] <= 0.0) return;
    char paint[8];
    const auto level = [](double part) {
        return static_cast<unsigned int>(
            std::lround(std::clamp(part, 0.0, 1.0) * digits_of_colour));
    };
    std::snprintf(paint, sizeof paint, "#%02x%02x%02x", level(colour[0]), level(colour[1]),
                  level(colour[2]));
    shapes << "<path d='" << way << "' ";
    if (isArea)
        shapes << "fill='" << paint << '\'';
    else
        shapes << "fill='none' stroke='" << paint << "' stroke-width='" << lineWidth << '\'';
    if (colour[3] < 1.0) shapes << " opacity='" << colour[3] << '\'';
    shapes << "/>";
}

} // namespace

FramePicture::FramePicture() {
    standins::glRecorder().start();
}

FramePicture::~FramePicture() {
    standins::glRecorder().stop();
}

void FramePicture::skip() {
    keepLists();
    standins::glRecorder().start();
}

std::string FramePicture::take(int width, int height) {
    keepLists();
    Painter painter(width, height, lists);
    painter.draw(standins::glRecorder().calls);
    standins::glRecorder().start();
    return painter.text();
}

void FramePicture::keepLists() {
    Calls* list = nullptr;
    for (const GLCall& call : standins::glRecorder().calls) {
        if (call.name == "glNewList") {
            list = &lists[static_cast<unsigned int>(call.arguments[0])];
            list->clear();
        } else if (call.name == "glEndList") {
            list = nullptr;
        } else if (list != nullptr) {
            list->push_back(call);
        }
    }
}

} // namespace quorva::replay
