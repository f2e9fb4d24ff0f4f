#include "game/Marvo.h"

#include "Framework/Constants.h"
#include "Framework/Engine.h"
#include "Framework/Files.h"
#include "Framework/Graphics/Camera.h"
#include "Framework/MessageHandler.h"
#include "Framework/Messages.h"
#include "game/PlayerCharacter.h"
#include "game/SquareIndicator.h"

#include <cmath>

using namespace quorva;

namespace {

const std::string high_score_file = STARTING_PATH + "s.dat";
constexpr std::int16_t first_lives = 2;
constexpr unsigned long extra_life_interval = 100000; // points
constexpr long double points_scale = 1000.0L;

/// Truncated toward zero, low 32 bits; a sum that is no number leaves the score alone.
std::uint32_t toScore(long double sum, std::uint32_t unchanged) {
    if (!std::isfinite(sum)) return unchanged;
    constexpr long double range = 4294967296.0L;
    const long double wrapped = std::fmod(std::trunc(sum), range);
    return static_cast<std::uint32_t>(wrapped < 0.0L ? wrapped + range : wrapped);
}

} // namespace

MarvoClass::MarvoClass() {
    reset();
    const primitives::Box field = graphics::Camera::Instance().getViewBox();
    const auto width = static_cast<float>(field.right - field.left);
    const auto height = static_cast<float>(field.top - field.bottom);
    fieldArea = static_cast<double>(width) * height;

    std::ifstream file = utility::openForReading(high_score_file);
    file.read(reinterpret_cast<char*>(&highScore), sizeof highScore); // a short file counts too
}

void MarvoClass::reset() {
    score = 0;
    lives = first_lives;
    nextLife = 1;
}

void MarvoClass::process() {
    if (score <= getNextLife()) return;
    ++nextLife;
    ++lives;
}

unsigned long MarvoClass::getNextLife() const {
    return nextLife * extra_life_interval;
}

unsigned short MarvoClass::getPlayerLineLength() const {
    return player->lineLength;
}

unsigned short MarvoClass::numLinePUPS() const {
    return player->linePups;
}

unsigned short MarvoClass::numCDPUPS() const {
    return player->cooldownPups;
}

void MarvoClass::killPlayer() {
    if (player->invulnerable) return;
    --lives;
    PlayerDead message;
    message.gameOver = lives < 0;
    publish(message);
}

void MarvoClass::killTriangles(const primitives::Box& box, unsigned short count) {
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): a copy is rounded
    const primitives::Box sides(box); // through single precision
    const long double width = static_cast<long double>(sides.right) - sides.left;
    const long double height = static_cast<long double>(sides.top) - sides.bottom;
    const long double f = 1.0L - width * height / fieldArea;
    score = toScore(score + f * f * f * f * points_scale * (2 * count), score);
    Engine::Instance().createEntity<SquareIndicator>("Square Indicator", box);
    publish(SoundSquare());
}

void MarvoClass::saveHighScore() {
    if (score <= highScore) return;
    highScore = score;
    utility::replaceContents(high_score_file,
                             {reinterpret_cast<const char*>(&score), sizeof score});
}
