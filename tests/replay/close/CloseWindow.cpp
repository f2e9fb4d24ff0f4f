// Presses a window's close button, as a window manager would: kov_close_window ID

#include <X11/Xlib.h>

#include <cstdlib>

int main(int argc, char* argv[]) {
    Display* const display = XOpenDisplay(nullptr);
    if (display == nullptr || argc != 2) return EXIT_FAILURE;
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = std::strtoul(argv[1], nullptr, 10);
    event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
    event.xclient.format = 32; // bits
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", False));
    XSendEvent(display, event.xclient.window, False, NoEventMask, &event);
    XCloseDisplay(display);
}
