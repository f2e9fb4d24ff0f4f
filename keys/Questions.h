#pragma once

#include "keys/BindFile.h"

#include <functional>

namespace quorva::keys {

enum class Device { keyboard, pad };

/// What an action is bound to on a device, as in the bind file: "W", "JOY4"; "nothing" if it isn't.
std::string wordOf(const input::InputKey& binding, Device device);

/// Asks for the key, or the button, of one action after the other, and has the answers saved at
/// the end. Nothing is saved before, and no action loses what it has: no key goes to two actions
/// that are listened to at the same time.
class Questions {
public:
    enum class Step {
        choose,  ///< keyboard or pad?
        ask,     ///< for one action after the other
        confirm, ///< all have been asked for
        told,    ///< what has come of it stands in `note`
        left,
    };
    using Save = std::function<Outcome(const Bindings& before, const Bindings& after)>;

    /// @param bindings of all actions of the game
    /// @param hasPad   else there is nothing to choose
    Questions(const std::vector<std::unique_ptr<input::InputKey>>& bindings, bool hasPad,
              Save save);

    void pressKey(int symbol);    ///< SDL's, of any key
    void pressButton(int button); ///< of a pad, from 0
    void pushStick();             ///< of a pad, which is no answer

    /// Whether the key leads through the questions now, and is no answer.
    bool isControl(int symbol) const;

    Step step() const { return currentStep; }
    Device device() const { return chosen; }
    /// In the order of asking. On a pad, the directions in front are not asked for.
    const Bindings& bindings() const { return answers; }
    const input::InputKey& bindingOf(const std::string& action) const;
    /// The binding asked for; null while none is.
    const input::InputKey* asked() const;
    std::size_t number() const { return current - first() + 1; } ///< of the question, from 1
    std::size_t count() const { return answers.size() - first(); }
    const std::string& note() const { return noted; }         ///< a line for the player, or nothing
    bool failed() const { return !outcome.good; }             ///< the answers couldn't be saved
    const std::string& saved() const { return outcome.text; } ///< empty before
    unsigned int changes() const { return changeCount; }      ///< grows with all of the above

private:
    std::size_t first() const;
    void control(int symbol);
    void answerByKey(input::QuorvaKey key);
    void answerByButton(input::QuorvaJKey button);
    void answer(unsigned short value, const std::string& word);
    bool trade(unsigned short value, const std::string& word);
    bool clash(std::size_t one, std::size_t other) const;
    bool canHave(std::size_t action, unsigned short value) const;
    bool canTakeOver(std::size_t action) const;
    unsigned short valueOf(std::size_t action) const;
    unsigned short& valueOf(std::size_t action);
    void begin(Device device);
    void goOn();
    void goBack();
    void finish();

    const Bindings before;
    Bindings answers;
    bool hasPad;
    Save save;
    Step currentStep;
    Device chosen = Device::keyboard;
    std::size_t current = 0;
    std::string noted;
    Outcome outcome = {true, ""};
    unsigned int changeCount = 0;
};

} // namespace quorva::keys
