// The command line.

#include "replay/CommandLine.h"

#include <gtest/gtest.h>

using namespace quorva::replay;

namespace {

const std::vector<CommandLine::Option> options = {
    {"full", false}, {"speed", true}, {"data", true, true}};

std::string refusal(const Words& words) {
    try {
        const CommandLine line(words, options);
        return "";
    } catch (const BadUsage& e) {
        return e.what();
    }
}

} // namespace

TEST(CommandLineTest, TakesValuesEitherWay) {
    for (const Words& words : {Words{"a", "--speed", "2", "--full", "-"},
                               {"--speed=2", "a", "--full", "-"},
                               {"--full", "--speed=2", "--", "a", "-"}}) {
        const CommandLine line(words, options);
        EXPECT_EQ(line.value("speed"), "2");
        EXPECT_TRUE(line.has("full"));
        EXPECT_FALSE(line.has("data"));
        EXPECT_EQ(line.files, (Words{"a", "-"}));
    }
    const CommandLine line({"--data", "1", "--data=2", "a", "--speed"}, options,
                           CommandLine::options_first);
    EXPECT_EQ(line.value("data"), "2");
    EXPECT_EQ(line.files, (Words{"a", "--speed"}));
}

TEST(CommandLineTest, NamesWhatIsWrong) {
    const struct {
        Words words;
        const char* refusal;
    } cases[] = {
        {{"a", "--speed", "2"}, ""},
        {{"--speed", "2", "--speed=3"}, "--speed stands there twice"},
        {{"--full", "--full"}, "--full stands there twice"},
        {{"a", "--speed"}, "--speed wants a value"},
        {{"--full=1"}, "--full takes no value"},
        {{"--nothing"}, "no such option: --nothing"},
        {{"-x"}, "no such option: -x"},
    };
    testing::internal::CaptureStderr();
    for (const auto& c : cases)
        EXPECT_EQ(refusal(c.words), c.refusal);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(CommandLineTest, ReadsTimesAndSpeeds) {
    EXPECT_EQ(toTime("1:30"), 90000U);
    EXPECT_EQ(toTime("75"), 75000U);
    EXPECT_EQ(toTime("0:05"), 5000U);
    for (const char* text : {"", "x", "1:30x", "1:", ":30", "-1", "1:2:3", "100000", "1:100000"})
        EXPECT_THROW(toTime(text), BadUsage) << text;
    EXPECT_EQ(toSpeed("0.5", 0.5, 4.0), 0.5);
    EXPECT_EQ(toSpeed("4", 0.5, 4.0), 4.0);
    for (const char* text : {"", "0.49", "4.01", "nan", "2x"})
        EXPECT_THROW(toSpeed(text, 0.5, 4.0), BadUsage) << text;
}
