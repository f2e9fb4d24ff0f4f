#pragma once

#include "Framework/Constants.h"
#include "Framework/Singleton.h"

#include <boost/noncopyable.hpp>

#include <memory>
#include <string>
#include <vector>

namespace quorva::input {

using QuorvaKey = unsigned short;  ///< an SDL 1.2 key symbol
using QuorvaJKey = unsigned short; ///< a joystick button, 0 to 15

const std::string bind_file_name = STARTING_PATH + "bind1.conf";

constexpr QuorvaKey unknown_key = 323; ///< no event carries it
constexpr QuorvaJKey no_button = 999;  ///< no event carries it

/// What an action of a player is bound to.
struct InputKey {
    std::string name; ///< of the action
    QuorvaKey key;
    QuorvaJKey jsButton;
    unsigned short player;
};

/// The table from named actions to keys and buttons. Filled once at the start of the game.
class KeyMapperClass : private boost::noncopyable {
public:
    /// @return false, with nothing changed, if the player has an action of that name
    bool addMappableKey(const std::string& name, QuorvaKey key, QuorvaJKey jsButton,
                        unsigned short player);

    /// @return the binding of that action and player; null if there is none
    const InputKey* getButton(const char* name, unsigned short player) const;
    const InputKey* getButton(const std::string& name, unsigned short player) const {
        return getButton(name.c_str(), player);
    }

    /// Rebinds player 0's actions as bind1.conf says. An unknown action or key is reported on
    /// standard error, and the rest of the file still counts.
    void readBindFiles();

    std::vector<std::unique_ptr<InputKey>> keys; ///< in the order of registration

private:
    void bind(const std::vector<std::string>& fields);
};

using KeyMapper = ReturningSingleton<KeyMapperClass>;

/// The key of a word such as "UP" or "a", in any case. An unknown word is reported on standard
/// error and gives unknown_key. Deliberate: of the function keys only "F1" is known.
QuorvaKey keyFromWord(const std::string& word);

/// Button 0 to 15 of "JOY1" to "JOY16", upper case alone; anything else gives no_button.
QuorvaJKey jsbuttonFromWord(const std::string& word);

/// What keyFromWord and jsbuttonFromWord make a key or button of; empty if no word does. Of two
/// words it is the first that the manual names.
std::string wordFromKey(QuorvaKey key);
std::string wordFromJsbutton(QuorvaJKey button);

/// The fields of a bind file's line: an action, and one or two words. None if the line is a remark
/// or doesn't count.
std::vector<std::string> bindFields(std::string line);

} // namespace quorva::input
