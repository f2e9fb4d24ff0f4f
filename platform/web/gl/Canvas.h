#pragma once

// The side of the drawing that the page does, in script/gl.js.

extern "C" {

/// Prepares the page's canvas. @return false if it has no WebGL
bool kovOpenCanvas(int width, int height);
void kovViewport(int x, int y, int width, int height);
void kovClear(float red, float green, float blue);
/// @param corners `count` of struct Corner, three to a triangle
void kovDraw(const void* corners, int count, bool depthTest, bool blending);
/// Rows of RGB, from the bottom.
void kovReadPixels(int x, int y, int width, int height, void* pixels);

} // extern "C"
