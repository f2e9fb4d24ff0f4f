#pragma once

#include "Framework/Entity.h"

/// The page about the game: still text, which the main menu ends.
class AboutMenu : public quorva::Entity {
public:
    AboutMenu();

    void process() override {}
    void update() override {}
};
