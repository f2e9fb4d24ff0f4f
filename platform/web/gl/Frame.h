#pragma once

namespace quorva::web {

/// Gives the page what has been drawn since the last frame.
void showFrame();

/// Whether the page is to be given the frames that follow.
void seeFrames(bool on);

} // namespace quorva::web
