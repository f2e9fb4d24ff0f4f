// Anything as a font file, loaded and drawn in every mode.

#include "Framework/Graphics/Font.h"
#include "fuzz/Playground.h"

using namespace quorva::graphics;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool entered = (fuzz::enterPlayground(), true);
    static_cast<void>(entered);
    fuzz::write("any.ttf", data, size);
    for (const auto mode : {FR_POLYGON, FR_BITMAP, FR_PIXMAP, FR_OUTLINE, FR_TEXTURE}) {
        Font font(mode);
        font.loadFont("any.ttf");
        font.getBoundingBox("1UP!   3");
        font.render("1UP!   3");
    }
    return 0;
}
