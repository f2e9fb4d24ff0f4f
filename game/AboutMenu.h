#pragma once

#include "Framework/Entity.h"

/// The page about the game: still text until the main menu ends it.
class AboutMenu : public quorva::Entity {
public:
    AboutMenu();

    void process() override {}
    void update() override {}
};
