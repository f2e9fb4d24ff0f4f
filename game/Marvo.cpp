#include "game/Marvo.h"

#include "Framework/Constants.h"
#include "Framework/Engine.h"
#include "Framework/Files.h"
#include "Framework/Graphics/Camera.h"
#include "Framework/MessageHandler.h"
#include "Framework/Messages.h"
#include "game/PlayerCharacter.h"
#include "game/SquareIndicator.h"

#include <boost/multiprecision/cpp_bin_float.hpp>

using namespace quorva;

namespace {

const std::string high_score_file = STARTING_PATH + "s.dat";
constexpr std::int16_t first_lives = 2;
constexpr unsigned long extra_life_interval = 100000; // points
constexpr int points_scale = 1000;

/// 64 bits of mantissa, each operation rounded to nearest: the extended double of x86 processors,
/// on every machine.
using Extended = boost::multiprecision::cpp_bin_float_double_extended;

/// Truncated toward zero, low 32 bits; a sum that is no number leaves the score alone.
std::uint32_t toScore(const Extended& sum, std::uint32_t unchanged) {
    if (!isfinite(sum)) return unchanged;
    const Extended range = 4294967296.0, whole = trunc(sum);
    const Extended wrapped = whole - range * floor(whole / range); // exact, as range is 2^32
    return wrapped.convert_to<std::uint32_t>();
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
    const Extended width = Extended(sides.right) - sides.left;
    const Extended height = Extended(sides.top) - sides.bottom;
    const Extended f = 1 - width * height / fieldArea;
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
