#include "game/GameIdentity.h"

#include "Framework/Constants.h"
#include "Framework/GameInfo.h"

void introduceGame() {
    quorva::GameInfoClass& info = quorva::GameInfo::Instance();
    info.name = "KOV";
    info.title = "KOV";
    info.version = KOV_VERSION;
    info.homeDirectory = ".kov";
    info.configFile = STARTING_PATH + "game.conf";
}
