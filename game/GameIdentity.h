#pragma once

/// Fills GameInfo with this game's name, version and files. Comes before all else that runs.
void introduceGame();
