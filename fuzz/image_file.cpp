// Anything as a TGA file: there is an image of the size that it tells of, or none.

#include "Framework/Graphics/TGA.h"
#include "fuzz/Playground.h"

#include <numeric>

using quorva::graphics::TGA;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool entered = (fuzz::enterPlayground(), true);
    static_cast<void>(entered);
    fuzz::write("any.tga", data, size);
    const TGA image("any.tga");
    const std::ptrdiff_t bytes =
        std::ptrdiff_t{image.getWidth()} * image.getHeight() * (image.getBPP() / 8);
    fuzz::require(image.getImg() == nullptr || bytes > 0, "an image has a size");
    // All of it is there to be handed on.
    volatile unsigned sum = 0;
    if (image.getImg() != nullptr)
        sum = std::accumulate(image.getImg(), image.getImg() + bytes, 0U);
    if (image.getPalette() != nullptr)
        sum = std::accumulate(image.getPalette(), image.getPalette() + 768, sum);
    return 0;
}
