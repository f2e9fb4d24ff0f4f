#pragma once

#include <boost/noncopyable.hpp>

namespace quorva::graphics {

/// While an object lives, errors of the X server are counted and passed over; by itself the X
/// library ends the process at the first one. Needs no server. One object at a time.
class XErrors : private boost::noncopyable {
public:
    XErrors();
    ~XErrors();

    bool any() const; ///< since this object was made
};

} // namespace quorva::graphics
