#include "game/GameLevel.h"

#include "Framework/Engine.h"
#include "Framework/Graphics/Camera.h"
#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/Stuff/GBox.h"
#include "Framework/Graphics/Stuff/Words.h"
#include "Framework/Managers/ColourManager.h"
#include "Framework/Managers/FontManager.h"
#include "Framework/Timer.h"
#include "Framework/math/MTRand.h"
#include "game/BombClear.h"
#include "game/BombImmune.h"
#include "game/Border.h"
#include "game/CDLineIcon.h"
#include "game/Marvo.h"
#include "game/PUPLineIcon.h"
#include "game/PlayerCharacter.h"
#include "game/PupCooldown.h"
#include "game/PupLine.h"
#include "game/Triangle.h"

#include <algorithm>

using namespace quorva;

namespace {

math::MTRand_int32 Rand;

/// A fresh draw in [0, 1). No expression holds two draws, as their order is part of the game.
double draw() {
    return math::randomFraction(Rand);
}

constexpr double first_spawn_base = 0.995, highest_threshold = 0.995;
constexpr double spawn_bonus_step = 0.001;
constexpr double death_spawn_step = 0.00025, death_size_step = 0.025;
constexpr std::uint16_t longest_spawn_gap = 51;    // ticks without a triangle
constexpr std::uint32_t difficulty_interval = 650; // ticks
constexpr std::uint16_t bomb_interval = 500;       // ticks
constexpr std::uint16_t triangles_per_power_up = 16;
constexpr double drop_width = 35.0, drop_height = 25.0; // world units about the origin
constexpr double spawn_distance = 5.0;                  // world units outside the view
constexpr double fastest = 10.0;
constexpr double smallest = 0.45, largest = 2.25;

constexpr double display_height = 14.0, icon_height = 14.25, pause_scale = 1.5;

math::Point dropPoint() {
    const double x = (draw() - 0.5) * drop_width;
    const double y = (draw() - 0.5) * drop_height;
    return {x, y, 0.0};
}

} // namespace

GameLevel::GameLevel() : spawnBase(first_spawn_base) {
    subscribeToAll();
    // The order below gives the ids, and with them the order of every tick: the level comes last.
    player = Engine::Instance().createEntity<PlayerCharacter>("Player", position);
    Marvo::Instance().reset();
    Marvo::Instance().player = player;
    getGraphics()->getBaseLayer()->layer = graphics::layer_world;
    Rand.seed(Timer::Instance().getTicks()); // so that no two games are alike
    createDisplay();
    createPauseOverlay();
    spawnTriangle();
    publish(PlaySong());
    Engine::Instance().createEntity<Border>("The Border");
}

graphics::GWord* GameLevel::addWord(unsigned short layer, const char* text, double x, double y,
                                    int alignment, double scale) {
    const graphics::WordStyle style = {&FontManager::Instance().getV("Menu Font"),
                                       &ColourManager::Instance().getV("Score Font"), scale,
                                       alignment};
    return graphics::addWord(*getGraphics(), layer, style, x, y, text);
}

void GameLevel::createDisplay() {
    const auto add = [this](const char* text, double x, int alignment) {
        return addWord(0, text, x, display_height, alignment, 1.0);
    };
    scoreWord = add("0", 0.0, graphics::ALIGN_CENTRE);
    livesWord = add("1UP!     3   lives", -19.0, graphics::ALIGN_LEFT);
    nextLifeWord = add("Next Life 50000", 10.0, graphics::ALIGN_LEFT);
    linePupWord = add("0", -9.0, graphics::ALIGN_LEFT);
    cooldownPupWord = add("0", -7.0, graphics::ALIGN_LEFT);

    const graphics::Colour& colour = ColourManager::Instance().getV("Score Font");
    lineIcon = getGraphics()->createGraphic<PUPLineIcon>(0);
    lineIcon->position = math::Point(-8.0, icon_height, graphics::word_depth);
    lineIcon->setColour1(&colour);
    cooldownIcon = getGraphics()->createGraphic<CDLineIcon>(0);
    cooldownIcon->position = math::Point(-6.0, icon_height, graphics::word_depth);
    cooldownIcon->setColour1(&colour);
}

void GameLevel::createPauseOverlay() {
    const unsigned short layer = getGraphics()->createNewLayer();
    graphics->things[layer]->layer = graphics::layer_menu_text;
    pauseBox = getGraphics()->createGraphic<graphics::GBox>(layer);
    pauseBox->box = graphics::Camera::Instance().getViewBox();
    pauseBox->setColour1(&ColourManager::Instance().getV("Pause BG"));
    pauseBox->deactivate();
    pauseWord = addWord(layer, "Paused!", 0.0, 0.0, graphics::ALIGN_CENTRE, pause_scale);
    pauseWord->deactivate();
}

void GameLevel::process() {
    spawnByChance();
    raiseDifficulty();
    dropBomb();
    dropPowerUp();
    refreshDisplay();
}

void GameLevel::spawnByChance() {
    const double threshold =
        std::min(spawnBase - spawnBonus + deathSpawnPenalty, highest_threshold);
    if (draw() > threshold)
        spawnTriangle();
    else
        ++ticksSinceSpawn;
    if (ticksSinceSpawn >= longest_spawn_gap) spawnTriangle();
}

void GameLevel::raiseDifficulty() {
    const std::uint32_t t = tickCount++;
    if (t <= levelNumber * difficulty_interval) return;
    ++levelNumber;
    spawnBonus += spawn_bonus_step;
}

void GameLevel::dropBomb() {
    if (++ticksSinceBomb < bomb_interval) return;
    ticksSinceBomb = 0;
    const math::Point point = dropPoint();
    if (draw() >= 0.5)
        Engine::Instance().createEntity<BombClear>("Clear Bomb", point);
    else
        Engine::Instance().createEntity<BombImmune>("Immune Bomb", point);
}

void GameLevel::dropPowerUp() {
    if (trianglesSincePowerUp < triangles_per_power_up) return;
    const bool longerLines = draw() < 0.5;
    const math::Point point = dropPoint();
    if (longerLines)
        Engine::Instance().createEntity<PupLine>("Line Powerup", point);
    else
        Engine::Instance().createEntity<PupCooldown>("Cooldown Powerup", point);
    trianglesSincePowerUp = 0;
}

void GameLevel::refreshDisplay() {
    // Deliberately not by setWord, which would measure the text: a word stays where its start text
    // stood, and grows to the right.
    const MarvoClass& marvo = Marvo::Instance();
    const auto show = [](graphics::GWord* word, const char* before, const auto& number,
                         const char* after = "") {
        // Reuses the string's capacity.
        word->word.assign(before).append(std::to_string(number)).append(after);
    };
    show(scoreWord, "", marvo.score);
    show(livesWord, "1UP!     ", marvo.lives, "   lives");
    show(nextLifeWord, "Next    Life    ", marvo.getNextLife());
    show(linePupWord, "", marvo.numLinePUPS());
    show(cooldownPupWord, "", marvo.numCDPUPS());
}

math::Point GameLevel::spawnPoint() const {
    const primitives::Box view = graphics::Camera::Instance().getViewBox();
    const auto beyond = [](double edge, double sign) {
        return edge + sign * spawn_distance + sign * spawn_distance * draw();
    };
    const auto along = [](double half) { return 2.0 * (draw() - 0.5) * half; };
    const double side = draw();
    math::Point p;
    if (side < 0.25) { // above
        p.x = along(view.right);
        p.y = beyond(view.top, 1.0);
    } else if (side < 0.5) { // below
        p.x = along(view.right);
        p.y = beyond(view.bottom, -1.0);
    } else if (side < 0.75) { // left
        p.x = beyond(view.left, -1.0);
        p.y = along(view.top);
    } else { // right
        p.x = beyond(view.right, 1.0);
        p.y = along(view.top);
    }
    return p;
}

double GameLevel::spawnSpeed() const {
    const int level = levelNumber - 1;
    const double byLevel = level * (1.0 + 0.5 * draw());
    const double speed = byLevel + 2.0 * (draw() - 0.25);
    return speed > fastest ? fastest - draw() : speed;
}

double GameLevel::spawnSize() const {
    double size = levelNumber / 15.0 + 1.0 + 2.0 * (draw() - 0.5) - deathSizePenalty;
    if (size < smallest) size += 1.0; // only once: a very small triangle stays small
    if (size > largest) size = largest - 0.25 * draw();
    return size;
}

void GameLevel::spawnTriangle() {
    const math::Point point = spawnPoint();
    const double speed = spawnSpeed();
    const double size = spawnSize();
    ++trianglesSincePowerUp;
    Engine::Instance().createEntity<Triangle>("Triangle", point, speed, size);
    ticksSinceSpawn = 0;
}

void GameLevel::receiveMessage(const PlayerDead*) {
    deathSpawnPenalty += death_spawn_step;
    deathSizePenalty += death_size_step;
}

void GameLevel::receiveMessage(const messages::PlayerInput* m) {
    if (dead || !m->pause) return;
    if (Timer::Instance().paused)
        resume();
    else
        pause();
}

void GameLevel::pause() {
    publish(SoundPause());
    pauseBox->activate();
    pauseWord->activate();
    Timer::Instance().pauseGame();
    PauseGame message;
    message.paused = true;
    publish(message);
}

void GameLevel::resume() {
    pauseBox->deactivate();
    pauseWord->deactivate();
    Timer::Instance().unPauseGame();
    publish(PauseGame());
}
