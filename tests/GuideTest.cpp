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
#include <gtest/gtest.h>

#include <set>
#include <sstream>

using namespace quorva;

namespace {

const std::string root = KOV_SOURCE_DIR "/";

/// Up to 99.
std::string inWords(std::size_t number) {
    static const char* const small[] = {"zero",    "one",     "two",       "three",    "four",
                                        "five",    "six",     "seven",     "eight",    "nine",
                                        "ten",     "eleven",  "twelve",    "thirteen", "fourteen",
                                        "fifteen", "sixteen", "seventeen", "eighteen", "nineteen"};
    static const char* const tens[] = {"",      "",      "twenty",  "thirty", "forty",
                                       "fifty", "sixty", "seventy", "eighty", "ninety"};
    if (number < std::size(small)) return small[number];
    const std::string ten = tens[number / 10];
    return number % 10 == 0 ? ten : ten + '-' + small[number % 10];
}

/// The first arguments that the sources of a folder give to a template.
std::set<std::string> argumentsOf(const std::string& name, const std::string& folder) {
    const std::string nested = "menus::";
    std::set<std::string> found;
    for (const auto& entry : boost::filesystem::recursive_directory_iterator(root + folder)) {
        const std::string text = contentsOf(entry.path().string());
        for (std::size_t at = 0; (at = text.find(name + '<', at)) != std::string::npos;) {
            at += name.size() + 1;
            if (text.compare(at, nested.size(), nested) == 0) at += nested.size();
            found.insert(text.substr(at, text.find_first_of(",>", at) - at));
        }
    }
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
    const std::string count = inWords(config::allSettings().size());
    constexpr std::size_t in_menu = menus::ConfigMenu::setting_count + 1; // Resolution sets two
    const auto expect = [](const std::string& text, const std::string& words, const char* file) {
        EXPECT_TRUE(boost::contains(text, words)) << file << " lacks: " << words;
    };
    for (const config::Setting& setting : config::allSettings()) {
        expect(manual, "<td>" + setting.longName + "<br>", "manual.html");
        expect(manPage, "\\-\\-" + setting.longName, "packaging/kov.6");
    }
    expect(manual, "All " + count + " settings", "manual.html");
    expect(contentsOf(root + "game/AboutMenu.cpp"),
           inWords(in_menu) + " of the " + count + " settings", "game/AboutMenu.cpp");
}

TEST(Guide, AResolutionOfTheSettingsIsInThePage) {
    const std::string page = contentsOf(root + "platform/web/page/page.js");
    const auto& widths = config::settingWith('w').range;
    for (const menus::Resolution& size : menus::resolution_table) {
        if (size.width < widths.min || size.width > widths.max) continue;
        const std::string text =
            '[' + std::to_string(size.width) + ", " + std::to_string(size.height) + ']';
        EXPECT_TRUE(boost::contains(page, text)) << "`resolutions` of page.js lacks " << text;
    }
}

TEST(Guide, AColourIsInBothPalettes) {
    const auto namesIn = [](const char* file) {
        std::set<std::string> names;
        std::istringstream text(contentsOf(root + file));
        for (std::string line; std::getline(text, line);)
            names.insert(line.substr(0, line.find(',')));
        return names;
    };
    EXPECT_EQ(namesIn("data/Colour.kov"), namesIn("data/Colour-contrast.kov"));
}

TEST(Guide, AnEntityHasItsStateInTheHash) {
    std::set<std::string> known = argumentsOf("row", "headless");
    known.merge(argumentsOf("bodyAlone", "headless"));
    EXPECT_GT(known.size(), 10U);
    for (const char* folder : {"game", "Framework/menus"})
        for (const std::string& name : argumentsOf("createEntity", folder))
            EXPECT_EQ(known.count(name), 1U)
                << "give " << name << " a row in headless/StateHash.cpp, with what play depends on";
}
