#pragma once

#include "platform/standins/GLRecorder.h"

#include <map>
#include <string>
#include <vector>

namespace quorva::replay {

/// Pictures of the game that was played unseen, as SVG on one line: what its frame would have sent
/// to OpenGL, drawn with lines and areas.
class FramePicture {
public:
    /// From here on everything that is sent is written down.
    FramePicture();
    ~FramePicture();
    FramePicture(const FramePicture&) = delete;
    FramePicture& operator=(const FramePicture&) = delete;

    /// At the end of each frame, drawn or not: forgets it, but for the letters that it has made.
    void skip();

    /// The same of a frame that is kept.
    /// @param width, height of the game's window, pixels
    std::string take(int width, int height);

private:
    using Calls = std::vector<standins::GLCall>;

    void keepLists();

    std::map<unsigned int, Calls> lists; ///< letters, as the font library keeps them, by number
};

} // namespace quorva::replay
