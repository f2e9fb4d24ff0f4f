#pragma once

namespace quorva {

/// A subscriber to messages of type T. Deriving does not subscribe: the derived constructor does.
/// The destructor unsubscribes, so that no bus ever holds a deleted subscriber.
template <class T>
class MessageInterface {
public:
    virtual ~MessageInterface();

    /// @param message valid during the call only. Messages without fields may arrive as null.
    virtual void receiveMessage(const T* message) = 0;
};

} // namespace quorva

#include "Framework/MessageHandler.h" // completes the destructor
