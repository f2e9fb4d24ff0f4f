#pragma once

#include <gtest/gtest.h>

#include <string>

/// What an action says on standard error.
template <class Action>
std::string errorsOf(const Action& act) {
    testing::internal::CaptureStderr();
    act();
    return testing::internal::GetCapturedStderr();
}
