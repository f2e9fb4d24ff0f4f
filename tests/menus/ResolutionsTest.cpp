#include "Framework/menus/Resolutions.h"

#include <gtest/gtest.h>

using quorva::menus::fullScreenResolution;

TEST(ResolutionsTest, FullScreenIsAsTheDesktopIsOrTheLargestThatFits) {
    const struct {
        std::uint16_t desktopWidth, desktopHeight, width, height;
        const char* why;
    } cases[] = {
        {1600, 900, 1600, 900, "not in the table, but of a shape that is"},
        {3840, 2160, 1920, 1080, "too large for the settings"},
        {2560, 1600, 1920, 1200, "the largest of the same shape"},
        {1360, 768, 1280, 768, "of another shape"},
        {1080, 1920, 1024, 768, "upright"},
        {1024, 600, 960, 600, "narrower than the largest of this height"},
    };
    for (const auto& each : cases) {
        const auto size = fullScreenResolution({each.desktopWidth, each.desktopHeight});
        ASSERT_TRUE(size) << each.why;
        EXPECT_EQ(size->width, each.width) << each.why;
        EXPECT_EQ(size->height, each.height) << each.why;
    }
    EXPECT_FALSE(fullScreenResolution({320, 240})) << "too small for the settings";
}
