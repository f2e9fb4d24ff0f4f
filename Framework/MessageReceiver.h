#pragma once

#include "Framework/MessageInterface.h"

namespace quorva {

/// A subscriber to several messages, each named once: in this list.
template <class... Messages>
class MessageReceiver : public MessageInterface<Messages>... {
protected:
    /// For the derived constructor: subscribes to each message, in the order of the list.
    void subscribeToAll() { (subscribe<Messages>(this), ...); }
};

} // namespace quorva
