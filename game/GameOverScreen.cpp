#include "game/GameOverScreen.h"

#include "game/Marvo.h"
#include "game/PageWords.h"

#include <string>

using namespace quorva;

namespace {

/// The comments on scores below a bound; the last one is for all others.
const struct {
    std::uint32_t below;
    const char* text;
} comments[] = {
    {50000, "Thanks for playing! Try to go for a high score, it's fun!"},
    {125000, "Not bad, you're getting there"},
    {250000, "Pretty Impressive"},
    {750000 + 1, "Good Score! You're super!"},
    {0, "Wow... you sure you aren't cheating ;)"},
};

const char* commentOn(std::uint32_t score) {
    for (const auto& row : comments)
        if (score < row.below) return row.text;
    return std::rbegin(comments)->text;
}

std::string highScoreText(const MarvoClass& marvo) {
    if (marvo.score > marvo.highScore) return "Congratulations, you have the new high score!";
    return "The highscore is " + std::to_string(marvo.highScore) + ". Try to beat it!";
}

} // namespace

GameOverScreen::GameOverScreen() {
    subscribe<messages::MenuMove>(this);
    MarvoClass& marvo = Marvo::Instance();
    using graphics::ALIGN_CENTRE;
    titleWord = addPageWord(*this, "Menu Font", 0.0, 4.0, 1.5, "GAME OVER", ALIGN_CENTRE);
    scoreWord = addPageWord(*this, "Menu Font", 0.0, 2.0, 1.0, nullptr, ALIGN_CENTRE);
    // Deliberate: written past setWord, so that the first digit stands at the middle.
    scoreWord->word = std::to_string(marvo.score);
    messageWord = addPageWord(*this, "Message Font", -19.0, 0.0, 0.75, commentOn(marvo.score));
    highScoreWord =
        addPageWord(*this, "Message Font", -19.0, -2.0, 0.75, highScoreText(marvo).c_str());
    if (marvo.score > marvo.highScore) marvo.saveHighScore();
    promptWord = addPageWord(*this, "Menu Font", 0.0, -5.0, 0.75, "Press Enter", ALIGN_CENTRE);
}

void GameOverScreen::receiveMessage(const messages::MenuMove* m) {
    if (m->select) done = true;
}
