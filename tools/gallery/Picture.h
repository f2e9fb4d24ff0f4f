#pragma once

#include <string>
#include <vector>

namespace gallery {

/// What stands on the screen, as RGB bytes from the top row down.
struct Picture {
    int width = 0, height = 0; ///< pixels
    std::vector<unsigned char> pixels;

    static Picture ofScreen(int width, int height);
    void save(const std::string& path) const; ///< as a binary PPM; throws if it can't be written
};

} // namespace gallery
