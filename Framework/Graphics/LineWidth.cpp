#include "Framework/Graphics/LineWidth.h"

#include "Framework/Config.h"

namespace quorva::math {

float lineWidthScale(double width) {
    auto& config = config::Config::Instance();
    const double scaled = config.getScreenWidth() / reference_screen_width * width;
    if (scaled < 1.0 && config.getCompatibility()) return 1.0F;
    return static_cast<float>(scaled);
}

} // namespace quorva::math
