#pragma once

#include "platform/standins/GLRecorder.h"

#include <string>

// A picture is what a state of the game sends to GL and to the window, a call a line. The pinned
// pictures lie beside this file. Where the first line is `like OTHER M N`, the first M lines and
// the last N are those of another picture, and the file holds what is between them.

/// Fails, naming the state and the first calls that differ, unless `calls` is the pinned picture.
/// With KOV_RENEW_PICTURES in the environment it pins them instead.
/// @param like another state, pinned before, of which the file may hold the differences
void expectPicture(const std::string& state, const std::string& calls,
                   const std::string& like = "");

/// What an action sends.
template <class Action>
std::string callsOf(const Action& act) {
    auto& recorder = quorva::standins::glRecorder();
    recorder.start();
    act();
    recorder.stop();
    return recorder.text();
}

/// What the next frame sends. A word is one line: its text, and the file, mode and size of
/// its font; what the font library makes of it is left out.
std::string nextFrame();
