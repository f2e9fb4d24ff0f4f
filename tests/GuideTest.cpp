// What a new thing takes beside the code that makes it work: a failure says what to do.

#include "Framework/config/Settings.h"
#include "Framework/menus/ConfigMenu.h"
#include "Framework/menus/Resolutions.h"
#include "game/FModMP3Input.h"
#include "game/FModSystem.h"
#include "platform/standins/SoundRecorder.h"
#include "tests/support/Files.h"

#include <boost/algorithm/string/erase.hpp>
#include <boost/algorithm/string/predicate.hpp>
#include <boost/filesystem.hpp>
#include <boost/xpressive/xpressive_dynamic.hpp>
#include <gtest/gtest.h>

#include <set>

using namespace quorva;

namespace {

const std::string root = KOV_SOURCE_DIR "/";

/// What a pattern's group matches in a file.
std::set<std::string> matches(const std::string& file, const std::string& pattern) {
    const std::string text = contentsOf(file);
    const auto regex = boost::xpressive::sregex::compile(pattern);
    std::set<std::string> found;
    for (boost::xpressive::sregex_iterator at(text.begin(), text.end(), regex), end; at != end;
         ++at)
        found.insert((*at)[1]);
    return found;
}

} // namespace

TEST(Guide, AnEffectHasItsRow) {
    FModSystem::Instance();
    standins::sound().recording = true;
    const FModMP3Input audio;
    standins::sound().recording = false;
    const std::string calls = standins::sound().take();
    for (const auto& entry : boost::filesystem::directory_iterator(root + "Sounds")) {
        const std::string name = "Sounds/" + entry.path().filename().string();
        if (boost::ends_with(name, ".wav")) {
            EXPECT_TRUE(boost::contains(calls, "load " + name + ' '))
                << name << " is never heard: give it a row of `effects` in game/FModMP3Input.cpp";
        }
    }
}

TEST(Guide, ASettingIsInTheManualsAndCounted) {
    const std::string manual = boost::erase_all_copy(contentsOf(root + "manual.html"), "<wbr>");
    const std::string manPage = contentsOf(root + "packaging/kov.6");
    for (const config::Setting& setting : config::allSettings()) {
        EXPECT_TRUE(boost::contains(manual, "<td>" + setting.longName + "<br>")) << "manual.html";
        EXPECT_TRUE(boost::contains(manPage, "\\-\\-" + setting.longName)) << setting.longName;
    }
    // Texts say how many there are: a new one changes them, and these lines.
    EXPECT_EQ(config::allSettings().size(), 19U);
    EXPECT_EQ(menus::ConfigMenu::setting_count, 7 - 1); // Resolution sets two
    EXPECT_TRUE(boost::contains(manual, "All nineteen settings")) << "manual.html";
    EXPECT_TRUE(
        boost::contains(contentsOf(root + "game/AboutMenu.cpp"), "seven of the nineteen settings"));
}

TEST(Guide, AResolutionOfTheSettingsIsInThePage) {
    const auto& widths = config::settingWith('w').range;
    std::set<std::string> sizes;
    for (const menus::Resolution& size : menus::resolution_table)
        if (size.width >= widths.min && size.width <= widths.max)
            sizes.insert(std::to_string(size.width) + ", " + std::to_string(size.height));
    EXPECT_EQ(matches(root + "platform/web/page/page.js", "\\[(\\d+, \\d{3,})\\]"), sizes);
}

TEST(Guide, AColourIsInBothPalettes) {
    const char* const names = "([^,\\n]+),.*";
    EXPECT_EQ(matches(root + "data/Colour.kov", names),
              matches(root + "data/Colour-contrast.kov", names));
}

TEST(Guide, AnEntityHasItsStateInTheHash) {
    const std::string type = "<(?:menus::)?(\\w+)";
    const auto known = matches(root + "headless/StateHash.cpp", "(?:row|bodyAlone)" + type);
    for (const char* folder : {"game", "Framework/menus"})
        for (const auto& source : boost::filesystem::directory_iterator(root + folder))
            for (const auto& name : matches(source.path().string(), "createEntity" + type))
                EXPECT_EQ(known.count(name), 1U)
                    << "give " << name
                    << " a row in headless/StateHash.cpp, with what play depends on";
}
