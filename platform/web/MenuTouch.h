#pragma once

namespace quorva::menus {
class MainMenu;
}

namespace quorva::web {

/// A finger on a menu, which sends keys: it chooses the item that it touches, closes a page, and in
/// Configuration lowers a setting at its name and raises it at its value, as long as it stays
/// there. For that it should stay for a tick.
/// @param x, y shares of the picture's width and height, from its upper left corner
/// @param down whether it arrives; else it leaves, where it arrived
void touchMenu(menus::MainMenu& menu, double x, double y, bool down);

} // namespace quorva::web
