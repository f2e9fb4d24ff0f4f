#pragma once

namespace quorva::replay {

/// Says how much is done, wherever the program's reader looks: on a terminal, or in a page.
class Meter {
public:
    /// @param part from 0 to 1. To be called often.
    void show(double part) {
        const int now = static_cast<int>(100.0 * part);
        if (now != percent) say(percent = now);
    }
    void clear(); ///< takes it away again

private:
    void say(int percent_);

    int percent = 0; ///< that is shown; 0: nothing yet
};

} // namespace quorva::replay
