#include "platform/headless/Sandbox.h"

#include <gtest/gtest.h>

namespace {

/// Every run of the tests works in a folder of its own.
class SandboxEnvironment : public testing::Environment {
public:
    void SetUp() override { sandbox = new quorva::headless::Sandbox(KOV_SOURCE_DIR); }
    void TearDown() override { delete sandbox; }

private:
    /// Owned up to TearDown alone: a forked test that exits must not remove the folder.
    quorva::headless::Sandbox* sandbox = nullptr;
};

const auto* const environment = testing::AddGlobalTestEnvironment(new SandboxEnvironment);

} // namespace
