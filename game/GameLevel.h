#pragma once

#include "Framework/Entity.h"
#include "Framework/MessageReceiver.h"
#include "Framework/Messages.h"

#include <string>

class CDLineIcon;
class PlayerCharacter;
class PUPLineIcon;

namespace quorva::graphics {
class Font;
class GBox;
class GWord;
} // namespace quorva::graphics

/// One whole game: makes the player and the border, spawns enemies and power-ups on a rising
/// curve, keeps the display up to date, toggles the pause. There is no next level: the level
/// number is a step of difficulty, which time raises.
class GameLevel : public quorva::Entity,
                  public quorva::MessageReceiver<PlayerDead, quorva::messages::PlayerInput> {
public:
    GameLevel();

    void process() override;
    void update() override {}
    void receiveMessage(const PlayerDead*) override; ///< each death eases the game a little
    void receiveMessage(const quorva::messages::PlayerInput* m) override; ///< toggles the pause

    void spawnTriangle(); ///< 5 to 10 world units outside the view, on a random side

    PlayerCharacter* player = nullptr; ///< the engine owns it
    quorva::math::Point position;      ///< where the player starts
    // A draw above spawnBase - spawnBonus + deathSpawnPenalty spawns a triangle.
    double spawnBase;
    double spawnBonus = 0.0;       ///< grows by each step of difficulty
    std::uint32_t tickCount = 0;   ///< of this game
    std::uint16_t levelNumber = 0; ///< step of difficulty
    quorva::graphics::GWord *scoreWord, *livesWord, *nextLifeWord; ///< the graphics own all these
    std::uint16_t trianglesSincePowerUp = 0;
    std::uint16_t ticksSinceBomb = 0;
    PUPLineIcon* lineIcon;
    CDLineIcon* cooldownIcon;
    quorva::graphics::GWord *linePupWord, *cooldownPupWord;
    double deathSpawnPenalty = 0.0; ///< grows by each death
    double deathSizePenalty = 0.0;  ///< the same; taken from the size of a triangle
    std::uint16_t ticksSinceSpawn = 0;
    quorva::graphics::GWord* pauseWord;
    quorva::graphics::GBox* pauseBox;

private:
    void createDisplay();
    void createPauseOverlay();
    quorva::graphics::GWord* addWord(unsigned short layer, const char* text, double x, double y,
                                     int alignment, double scale);
    void spawnByChance();
    void raiseDifficulty();
    void dropBomb();
    void dropPowerUp();
    void refreshDisplay();
    quorva::math::Point spawnPoint() const;
    double spawnSpeed() const;
    double spawnSize() const;
    void pause();
    void resume();
};
