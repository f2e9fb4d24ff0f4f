#include "game/GameIdentity.h"

#include "Framework/Constants.h"
#include "Framework/GameInfo.h"

void introduceGame() {
    quorva::GameInfoClass& info = quorva::GameInfo::Instance();
    info.name = "KOV";
    info.title = "KOV";
    info.version = "1.0";
    info.homeDirectory = ".kov";
    info.configFile = STARTING_PATH + "game.conf";
}
