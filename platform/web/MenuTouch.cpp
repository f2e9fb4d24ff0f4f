#include "platform/web/MenuTouch.h"

#include "Framework/Graphics/Camera.h"
#include "Framework/Graphics/Stuff/GWord.h"
#include "Framework/input/KeyMapper.h"
#include "Framework/menus/ConfigMenu.h"
#include "Framework/menus/MainMenu.h"

#include <cmath>
#include <vector>

extern "C" void kovKey(int symbol, bool down); // as the keyboard's

namespace quorva::web {

namespace {

using graphics::GWord;
using menus::ConfigMenu;

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

/// Sends the key of an action.
void send(const char* action, bool down) {
    kovKey(input::KeyMapper::Instance().getButton(action, 0)->key, down);
}

void press(const char* action) {
    send(action, true);
    send(action, false);
}

/// As the keys would, one item after the other.
void select(int selection, int item) {
    for (; selection < item; ++selection)
        press("Down");
    for (; selection > item; --selection)
        press("Up");
}

void touchConfiguration(const ConfigMenu& menu, const math::Point& point, bool down) {
    std::vector<GWord*> rows = menu.names;
    rows.push_back(menu.saveWord);
    rows.push_back(menu.cancelWord);
    const int row = itemAt(rows, point.y);
    if (row == nothing) return;
    const bool isSetting = row < ConfigMenu::setting_count;
    if (down == isSetting) select(menu.selection, row);
    if (isSetting) {
        const GWord& value = *menu.values[static_cast<std::size_t>(row)];
        send(point.x < value.position.x ? "Left" : "Right", down);
    } else if (!down) {
        press("Menu Select");
    }
}

} // namespace

void touchMenu(menus::MainMenu& menu, double x, double y, bool down) {
    const math::Point point = toWorld(x, y);
    if (const auto* const page = dynamic_cast<ConfigMenu*>(menu.subMenu))
        return touchConfiguration(*page, point, down);
    if (down) return;
    if (menu.shown) {
        const auto items = menu.items();
        const int item = itemAt({items.begin(), items.end()}, point.y);
        if (item == nothing) return;
        select(menu.selection, item);
    }
    press("Menu Select"); // which closes a page
}

} // namespace quorva::web
