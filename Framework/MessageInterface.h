#pragma once

namespace quorva {

/// A subscriber of messages of type T. Its owner's constructor subscribes; the end of its life
/// unsubscribes, so that no bus ever holds a gone subscriber.
template <class T>
class MessageInterface {
public:
    virtual ~MessageInterface();

    /// @param message valid during the call only; an empty one is not to be read
    virtual void receiveMessage(const T* message) = 0;
};

} // namespace quorva

#include "Framework/MessageHandler.h" // completes the destructor
