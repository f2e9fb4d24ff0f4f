#pragma once

#include "Framework/Entity.h"

/// The page of help: still text until the main menu ends it.
class HelpMenu : public quorva::Entity {
public:
    HelpMenu();

    void process() override {}
    void update() override {}
};
