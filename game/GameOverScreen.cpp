#include "game/GameOverScreen.h"

#include "Framework/Graphics/Stuff/GWord.h"
#include "game/Marvo.h"
#include "game/PageWords.h"

#include <string>

using namespace quorva;

namespace {

/// The comment on a score below the bound; the last row is for all others.
const struct {
    std::uint32_t bound;
    const char* text;
} comments[] = {
    {50000, "Thanks for playing! Try to go for a high score, it's fun!"},
    {125000, "Not bad, you're getting there"},
    {250000, "Pretty Impressive"},
    {750001, "Good Score! You're super!"},
    {0, "Wow... you sure you aren't cheating ;)"},
};

const char* commentOn(std::uint32_t score) {
    for (const auto& row : comments)
        if (score < row.bound) return row.text;
    return std::rbegin(comments)->text;
}

/// Also saves the score, if it is a record.
std::string highScoreText(MarvoClass& marvo) {
    if (marvo.score > marvo.highScore) {
        marvo.saveHighScore();
        return "Congratulations, you have the new high score!";
    }
    return "The highscore is " + std::to_string(marvo.highScore) + ". Try to beat it!";
}

} // namespace

GameOverScreen::GameOverScreen() {
    subscribe<messages::MenuMove>(this);
    MarvoClass& marvo = Marvo::Instance();
    titleWord = addPageWord(*this, "Menu Font", 0.0, 4.0, 1.5);
    titleWord->alignment = graphics::ALIGN_CENTRE;
    titleWord->setWord("GAME OVER");
    scoreWord = addPageWord(*this, "Menu Font", 0.0, 2.0, 1.0);
    scoreWord->alignment = graphics::ALIGN_CENTRE;
    // Deliberate: straight into the text, so that the first digit stands at the middle.
    scoreWord->word = std::to_string(marvo.score);
    messageWord = addPageWord(*this, "Message Font", -19.0, 0.0, 0.75);
    messageWord->setWord(commentOn(marvo.score));
    highScoreWord = addPageWord(*this, "Message Font", -19.0, -2.0, 0.75);
    highScoreWord->setWord(highScoreText(marvo).c_str());
    promptWord = addPageWord(*this, "Menu Font", 0.0, -5.0, 0.75);
    promptWord->alignment = graphics::ALIGN_CENTRE;
    promptWord->setWord("Press Enter");
}

void GameOverScreen::receiveMessage(const messages::MenuMove* m) {
    if (m->select) done = true;
}
