#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

// A stand-in for OpenGL at link time: a program that links it draws without a window, and can
// look at the calls that a frame has sent, those of the stand-in for SDL's window among them.

namespace quorva::standins {

struct GLCall {
    std::string name;
    std::array<double, 16> arguments{};
    unsigned int count = 0;    ///< of arguments
    std::uint32_t symbols = 0; ///< a bit for each argument that is one of GL's constants
};

class GLRecorder {
public:
    /// Starts a new recording.
    void start();
    void stop() { recording = false; }

    /// Writes down anything else in its place among the calls.
    void note(const std::string& line);

    /// A call a line: the name, then its arguments, numbers to four digits behind the point and
    /// GL's constants by their names.
    std::string text() const;
    /// The recorded calls of that name.
    std::vector<GLCall> callsTo(const std::string& name) const;

    bool recording = false; ///< else calls are only counted
    std::uint64_t total = 0;
    std::uint32_t frames = 0; ///< begun
    std::vector<GLCall> calls;
    std::int32_t unpackAlignment = 4; ///< bytes: rows of an image start at multiples of it
    std::vector<unsigned char> image; ///< the last texture's, as GL has read it from memory
};

GLRecorder& glRecorder();

} // namespace quorva::standins
