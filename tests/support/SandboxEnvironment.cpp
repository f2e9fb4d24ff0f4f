#include "headless/Sandbox.h"

#include "Framework/Config.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>

namespace {

/// Removes the settings and files that a test has left.
class Tidiness : public testing::EmptyTestEventListener {
    void OnTestEnd(const testing::TestInfo&) override {
        for (const char* file : {"s.dat", "game.conf", "game.conf.bak", "bind1.conf"})
            std::remove(file);
        quorva::config::Config::Instance().setDefaults();
        quorva::config::Config::Instance().activateConfig();
    }
};

/// Every run of the tests works in a folder of its own.
class SandboxEnvironment : public testing::Environment {
public:
    void SetUp() override {
        sandbox = std::make_unique<quorva::headless::Sandbox>(KOV_SOURCE_DIR);
        testing::UnitTest::GetInstance()->listeners().Append(new Tidiness); // which it owns
    }
    void TearDown() override { sandbox.reset(); }

private:
    std::unique_ptr<quorva::headless::Sandbox> sandbox;
};

const auto* const environment = testing::AddGlobalTestEnvironment(new SandboxEnvironment);

} // namespace
