#pragma once

#include "tests/support/Field.h"

#include <gtest/gtest.h>

class FieldTest : public testing::Test, protected Field {
protected:
    using Field::Field;
};

/// How often a message has been published.
template <class Message>
struct Count : quorva::MessageInterface<Message> {
    Count() { quorva::subscribe<Message>(this); }
    void receiveMessage(const Message*) override { ++count; }
    int count = 0;
};
