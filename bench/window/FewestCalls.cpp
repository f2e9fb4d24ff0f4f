#include "bench/window/FewestCalls.h"

#include <algorithm>

namespace bench {

namespace {

constexpr GLenum capabilities[] = {GL_DEPTH_TEST, GL_BLEND, GL_ALPHA_TEST, GL_LINE_SMOOTH};
constexpr GLenum matrices[] = {GL_PROJECTION, GL_MODELVIEW};

using Position = std::array<double, 4>;

/// A position by one of GL's matrices, whose columns follow one another.
Position transformed(GLenum matrix, const Position& position) {
    float m[16];
    glGetFloatv(matrix, m);
    Position result{};
    for (std::size_t i = 0; i < 16; ++i)
        result[i % 4] += m[i] * position[i / 4];
    return result;
}

bool isLines(GLenum mode) {
    return mode == GL_LINES || mode == GL_LINE_STRIP || mode == GL_LINE_LOOP;
}

/// The numbers of a shape's vertices, in the order in which they make lines or triangles apart.
std::vector<std::size_t> takenApart(GLenum mode, std::size_t count) {
    std::vector<std::size_t> order;
    const auto add = [&order](std::initializer_list<std::size_t> part) {
        order.insert(order.end(), part);
    };
    for (std::size_t i = 0; i < count; ++i) {
        if (mode == GL_LINES || mode == GL_TRIANGLES) add({i});
        if ((mode == GL_LINE_STRIP && i > 0) || mode == GL_LINE_LOOP)
            add({(i + count - 1) % count, i});
        if (mode == GL_TRIANGLE_STRIP && i > 1) add({i - 2, i - 1, i});
        if ((mode == GL_TRIANGLE_FAN || mode == GL_POLYGON) && i > 1) add({0, i - 1, i});
        if (mode == GL_QUADS && i % 4 == 3) add({i - 3, i - 2, i, i - 2, i - 1, i});
    }
    return order;
}

} // namespace

FewestCalls::State FewestCalls::State::current(bool lines) {
    State state = {lines ? GLenum{GL_LINES} : GLenum{GL_TRIANGLES}, 1, {}};
    if (lines) glGetFloatv(GL_LINE_WIDTH, &state.lineWidth);
    std::transform(std::begin(capabilities), std::end(capabilities), state.enabled.begin(),
                   glIsEnabled);
    return state;
}

void FewestCalls::State::set() const {
    for (std::size_t i = 0; i < enabled.size(); ++i)
        (enabled[i] != GL_FALSE ? glEnable : glDisable)(capabilities[i]);
    glLineWidth(lineWidth);
}

bool FewestCalls::State::operator==(const State& other) const {
    return mode == other.mode && lineWidth == other.lineWidth && enabled == other.enabled;
}

void FewestCalls::record() {
    batches.clear();
    recording = true;
}

void FewestCalls::vertex(double x, double y, double z) {
    if (recording || listMade != 0) shape.vertices.push_back({x, y, z});
}

void FewestCalls::end() {
    if (listMade != 0)
        lists[listMade].push_back(shape);
    else if (recording)
        add(shape);
}

void FewestCalls::callList(GLuint list) {
    if (!recording) return;
    for (const Shape& part : lists[list])
        add(part);
}

void FewestCalls::add(const Shape& added) {
    std::vector<Vertex>& vertices = batchFor(State::current(isLines(added.mode)));
    Vertex vertex;
    glGetFloatv(GL_CURRENT_COLOR, vertex.colour);
    for (const std::size_t i : takenApart(added.mode, added.vertices.size())) {
        const auto& [x, y, z] = added.vertices[i];
        const Position position =
            transformed(GL_PROJECTION_MATRIX, transformed(GL_MODELVIEW_MATRIX, {x, y, z, 1.0}));
        std::copy(position.begin(), position.end(), vertex.position);
        vertices.push_back(vertex);
    }
}

std::vector<FewestCalls::Vertex>& FewestCalls::batchFor(const State& state) {
    const auto found = std::find_if(batches.begin(), batches.end(),
                                    [&](const Batch& batch) { return batch.state == state; });
    if (found != batches.end()) return found->vertices;
    batches.push_back({state, {}});
    return batches.back().vertices;
}

void FewestCalls::play() const {
    glPushAttrib(GL_ENABLE_BIT | GL_LINE_BIT | GL_TRANSFORM_BIT);
    glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT);
    for (const GLenum matrix : matrices) {
        glMatrixMode(matrix);
        glPushMatrix();
        glLoadIdentity();
    }
    glEnableClientState(GL_VERTEX_ARRAY);
    glEnableClientState(GL_COLOR_ARRAY);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    for (const auto& [state, vertices] : batches) {
        state.set();
        glVertexPointer(4, GL_FLOAT, sizeof(Vertex), vertices.front().position);
        glColorPointer(4, GL_FLOAT, sizeof(Vertex), vertices.front().colour);
        glDrawArrays(state.mode, 0, static_cast<GLsizei>(vertices.size()));
    }
    for (const GLenum matrix : matrices) {
        glMatrixMode(matrix);
        glPopMatrix();
    }
    glPopClientAttrib();
    glPopAttrib();
}

FewestCalls& fewestCalls() {
    static FewestCalls calls;
    return calls;
}

} // namespace bench
