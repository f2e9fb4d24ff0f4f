#pragma once

#include <GL/gl.h>

#include <array>
#include <cstddef>
#include <map>
#include <vector>

// The picture of a frame in the fewest calls that GL allows: whatever is drawn in one state lies in
// one array, placed and coloured, and goes out at once. What that costs is the driver's own drawing
// of these lines and areas, the bound for every program.

namespace bench {

class FewestCalls {
public:
    /// From now on collects what GL is sent, in the state in which GL is.
    void record();
    void stop() { recording = false; }
    void play() const; ///< clears and draws; leaves GL's state as it was
    std::size_t arrays() const { return batches.size(); }

    void begin(GLenum mode) { shape = {mode, {}}; }
    void vertex(double x, double y, double z);
    void end();
    void newList(GLuint list) { listMade = list; }
    void endList() { listMade = 0; }
    void callList(GLuint list);

private:
    struct Vertex {
        float position[4]; ///< as GL clips it
        float colour[4];   ///< red, green, blue, alpha
    };
    struct Shape {
        GLenum mode;
        std::vector<std::array<double, 3>> vertices;
    };
    /// What divides one array from the next.
    struct State {
        GLenum mode; ///< lines or triangles
        float lineWidth;
        std::array<GLboolean, 4> enabled;

        static State current(bool lines);
        void set() const;
        bool operator==(const State& other) const;
    };
    struct Batch {
        State state;
        std::vector<Vertex> vertices;
    };

    void add(const Shape& added);
    std::vector<Vertex>& batchFor(const State& state);

    bool recording = false;
    GLuint listMade = 0;   ///< 0: none
    Shape shape = {0, {}}; ///< between begin and end
    std::map<GLuint, std::vector<Shape>> lists;
    std::vector<Batch> batches;
};

FewestCalls& fewestCalls();

} // namespace bench
