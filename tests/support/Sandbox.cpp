#include "platform/headless/Sandbox.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

/// Every run of the tests works in a folder of its own.
class SandboxEnvironment : public testing::Environment {
public:
    void SetUp() override { sandbox = std::make_unique<quorva::headless::Sandbox>(KOV_SOURCE_DIR); }
    void TearDown() override { sandbox.reset(); }

private:
    std::unique_ptr<quorva::headless::Sandbox> sandbox;
};

const auto* const environment = testing::AddGlobalTestEnvironment(new SandboxEnvironment);

} // namespace
