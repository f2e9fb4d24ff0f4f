#include "platform/web/MenuTouch.h"

#include "Framework/Graphics/Camera.h"
#include "Framework/Graphics/Stuff/GWord.h"
#include "Framework/MessageHandler.h"
#include "Framework/Messages.h"
#include "Framework/menus/ConfigMenu.h"
#include "Framework/menus/MainMenu.h"

#include <cmath>
#include <vector>

namespace quorva::web {

namespace {

using graphics::GWord;
using menus::ConfigMenu;
using messages::MenuMove;

constexpr double middle_of_line = 0.3; ///< above its position, world units
constexpr double reach = 0.9;          ///< of an item, up and down, world units
constexpr int nothing = -1;

math::Point toWorld(double x, double y) {
    const auto& camera = graphics::Camera::Instance();
    return {camera.left + x * (camera.right - camera.left),
            camera.top - y * (camera.top - camera.bottom), 0.0};
}

/// @return the nearest of the words by height, or `nothing`
int itemAt(const std::vector<GWord*>& words, double y) {
    int nearest = nothing;
    double least = reach;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const double distance = std::fabs(words[i]->position.y + middle_of_line - y);
        if (distance >= least) continue;
        least = distance;
        nearest = static_cast<int>(i);
    }
    return nearest;
}

void send(bool MenuMove::*flag) {
    MenuMove move;
    if (flag != nullptr) move.*flag = true;
    publish(move);
}

/// As the keys would, one item after the other.
template <class Menu>
void select(const Menu& menu, int item) {
    while (menu.selection < item)
        send(&MenuMove::down);
    while (menu.selection > item)
        send(&MenuMove::up);
}

void touchConfiguration(const ConfigMenu& menu, const math::Point& place, bool down) {
    std::vector<GWord*> rows = menu.names;
    rows.push_back(menu.saveWord);
    rows.push_back(menu.cancelWord);
    const int row = itemAt(rows, place.y);
    const bool isSetting = row != nothing && row < ConfigMenu::setting_count;
    if (down && row != nothing) select(menu, row);
    if (down && isSetting)
        send(place.x < menu.values[static_cast<std::size_t>(row)]->position.x ? &MenuMove::left
                                                                              : &MenuMove::right);
    if (down) return;
    send(nullptr); // lets go
    if (row != nothing && !isSetting) send(&MenuMove::select);
}

} // namespace

void touchMenu(menus::MainMenu& menu, double x, double y, bool down) {
    const math::Point place = toWorld(x, y);
    if (const auto* const page = dynamic_cast<ConfigMenu*>(menu.subMenu))
        return touchConfiguration(*page, place, down);
    if (!menu.shown) {
        if (!down) send(&MenuMove::select); // closes the page
        return;
    }
    const int item = itemAt(
        {menu.startWord, menu.configWord, menu.helpWord, menu.aboutWord, menu.exitWord}, place.y);
    if (item == nothing) return;
    if (down) select(menu, item);
    if (!down && menu.selection == item) send(&MenuMove::select);
}

} // namespace quorva::web
