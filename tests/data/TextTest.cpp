// Texts that vary, at their longest, measured in the fonts of data/Font.kov where they stand. The
// others are in the pictures of the pages.

#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/RenderableThing.h"
#include "Framework/Graphics/Stuff/GWord.h"
#include "Framework/menus/ConfigMenu.h"
#include "Framework/menus/MainMenu.h"
#include "game/GameOverScreen.h"
#include "tests/support/Field.h"
#include "tests/support/Settings.h"

#include <gtest/gtest.h>

using namespace quorva;

namespace {

// Of the narrowest field, 4 by 3, in world units from its centre.
constexpr double half_width = 20.0, half_height = 15.0;

/// What a text covers of the page, in world units.
struct Ink {
    std::string text;
    double left, right, bottom, top;
};

Ink inkOf(const graphics::GWord& word) {
    const primitives::Box box = word.font->getBoundingBox(word.word);
    double shift = 0.0; // in the word's own units, from its bounds: not always those of its text
    if (word.alignment == graphics::ALIGN_RIGHT) shift = -word.bounds.right;
    if (word.alignment == graphics::ALIGN_CENTRE)
        shift = (word.bounds.right - word.bounds.left) / -2.0;
    return {word.word, word.position.x + word.scale.x * (box.left + shift),
            word.position.x + word.scale.x * (box.right + shift),
            word.position.y + word.scale.y * box.bottom, word.position.y + word.scale.y * box.top};
}

std::vector<Ink> inksOf(const Entity& page) {
    std::vector<Ink> inks;
    for (const graphics::RenderableThing* thing : page.graphics->things)
        for (const graphics::RenderInterface* shape : thing->graphics) {
            if (!thing->active || !shape->active) continue;
            const auto* const word = dynamic_cast<const graphics::GWord*>(shape);
            if (word != nullptr && !word->word.empty()) inks.push_back(inkOf(*word));
        }
    return inks;
}

/// Nothing leaves the field, and nothing runs into what stands beside, above or below it.
void expectInOrder(const Entity& page, std::size_t texts) {
    const std::vector<Ink> inks = inksOf(page);
    EXPECT_EQ(inks.size(), texts);
    for (std::size_t i = 0; i < inks.size(); ++i) {
        const Ink& a = inks[i];
        EXPECT_LT(a.left, a.right) << a.text << " is not drawn";
        EXPECT_TRUE(a.left >= -half_width && a.right <= half_width && a.bottom >= -half_height &&
                    a.top <= half_height)
            << a.text << " leaves the field: it ends at " << a.right;
        for (std::size_t k = 0; k < i; ++k) {
            const Ink& b = inks[k];
            EXPECT_TRUE(a.left >= b.right || b.left >= a.right || a.bottom >= b.top ||
                        b.bottom >= a.top)
                << a.text << " runs into " << b.text;
        }
    }
}

class TextTest : public testing::Test {
protected:
    headless::HeadlessGame run;
};

} // namespace

TEST_F(TextTest, TheConfigurationWithAllItsValues) {
    activate({{"CollisionAccuracy", 1000}});
    press(run, {SDLK_DOWN, SDLK_RETURN});
    auto& menu = static_cast<menus::ConfigMenu&>(*run.game().mainMenu->subMenu);
    constexpr std::size_t still = 18; // texts besides the lines of help
    for (std::size_t i = 0; i < menu.resolutions.size(); ++i) {
        expectInOrder(menu, still);
        press(run, {SDLK_RIGHT});
    }
    press(run, {SDLK_DOWN, SDLK_RIGHT}); // full screen
    press(run, {SDLK_DOWN, SDLK_DOWN, SDLK_DOWN});
    run.tick(); // the lines of help follow the selection
    expectInOrder(menu, still + 2);
}

TEST_F(TextTest, TheDisplayOfALongGameAndItsPause) {
    run.startLevel();
    GameLevel& level = *run.game().level;
    run.tick();
    expectInOrder(level, 5);
    level.scoreWord->word = "9999999";
    level.livesWord->word = "1UP!     99   lives";
    level.nextLifeWord->word = "Next    Life    10000000";
    level.linePupWord->word = level.cooldownPupWord->word = "99";
    level.pauseWord->activate();
    expectInOrder(level, 6);
}

TEST_F(TextTest, EveryVerdictOnAGame) {
    MarvoClass& marvo = Marvo::Instance();
    run.game().mainMenu->hide();
    for (const bool record : {false, true})
        for (const std::uint32_t score : {0U, 50000U, 125000U, 250000U, 9999998U}) {
            marvo.score = score;
            marvo.highScore = record ? 0 : 9999999;
            const GameOverScreen page;
            expectInOrder(page, 5);
        }
    marvo.score = marvo.highScore = 0;
}
