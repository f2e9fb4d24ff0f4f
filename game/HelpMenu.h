#pragma once

#include "Framework/Entity.h"

/// The page of help: still text, which the main menu ends.
class HelpMenu : public quorva::Entity {
public:
    HelpMenu();

    void process() override {}
    void update() override {}
};
