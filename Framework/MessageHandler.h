#pragma once

#include "Framework/MessageInterface.h"
#include "Framework/Singleton.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace quorva {

/// The bus of one message type: the type is the address. Delivery is at once, inside the
/// publisher's call, in the order of subscription, which is part of the game.
template <class T>
class MessageHandlerClass {
public:
    MessageHandlerClass() { subscribers.reserve(usual_subscribers); }

    /// A second subscription of the same subscriber has no effect.
    void subscribe(MessageInterface<T>* s) {
        if (std::find(subscribers.begin(), subscribers.end(), s) == subscribers.end())
            subscribers.push_back(s);
    }

    void unsubscribe(const MessageInterface<T>* s) {
        subscribers.erase(std::remove(subscribers.begin(), subscribers.end(), s),
                          subscribers.end());
    }

    /// A subscriber that joins during the delivery is not called in it.
    void publish(const T* message) {
        // By position: a handler may subscribe others, and so move the list in memory.
        const std::size_t bound = subscribers.size();
        for (std::size_t i = 0; i < bound && i < subscribers.size(); ++i)
            subscribers[i]->receiveMessage(message);
    }

private:
    static constexpr std::size_t usual_subscribers = 125; ///< room without an allocation

    std::vector<MessageInterface<T>*> subscribers; ///< not owned
};

template <class T>
using MessageHandler = ReturningSingleton<MessageHandlerClass<T>>;

template <class T>
MessageInterface<T>::~MessageInterface() {
    MessageHandler<T>::Instance().unsubscribe(this);
}

template <class T>
void publish(const T& message = T()) {
    MessageHandler<T>::Instance().publish(&message);
}

template <class T>
void subscribe(MessageInterface<T>* subscriber) {
    MessageHandler<T>::Instance().subscribe(subscriber);
}

} // namespace quorva
