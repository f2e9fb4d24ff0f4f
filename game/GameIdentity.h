#pragma once

/// Fills GameInfo with this game's name, version and files. To be called before anything else.
void introduceGame();
