#include "Framework/Graphics/XErrors.h"

#include <X11/Xlib.h>

namespace quorva::graphics {

namespace {

int count = 0;
XErrorHandler handlerBefore = nullptr;

int countError(Display*, XErrorEvent*) {
    ++count;
    return 0;
}

} // namespace

XErrors::XErrors() {
    count = 0;
    handlerBefore = XSetErrorHandler(countError);
}

XErrors::~XErrors() {
    XSetErrorHandler(handlerBefore);
}

bool XErrors::any() const {
    return count != 0;
}

} // namespace quorva::graphics
