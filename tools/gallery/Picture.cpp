#include "tools/gallery/Picture.h"

#include <GL/gl.h>
#include <SDL.h>

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace gallery {

Picture Picture::ofScreen(int width, int height) {
    const std::size_t row = 3U * width;
    std::vector<unsigned char> upwards(row * height);
    glReadBuffer(GL_BACK);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels(0, 0, width, height, GL_RGB, GL_UNSIGNED_BYTE, upwards.data());
    Picture picture{width, height, {}};
    picture.pixels.reserve(upwards.size());
    for (int y = height - 1; y >= 0; --y)
        picture.pixels.insert(picture.pixels.end(), upwards.begin() + row * y,
                              upwards.begin() + row * (y + 1));
    return picture;
}

void Picture::save(const std::string& path) const {
    std::ofstream file(path, std::ios::binary);
    file << "P6\n" << width << ' ' << height << "\n255\n";
    file.write(reinterpret_cast<const char*>(pixels.data()),
               static_cast<std::streamsize>(pixels.size()));
    if (!file.flush()) throw std::runtime_error("Can't write " + path);
}

} // namespace gallery

/// Never swapped, so that the back buffer keeps the frame until it is read.
extern "C" void SDL_GL_SwapBuffers() {}
