#include "velor/user_interface.h"

#include <gtest/gtest.h>

#include <sstream>

#include "support/sample_mixture.h"

namespace velor {
namespace {

TEST(StreamUserInterface, asksYesOrNoUntilItIsAnswered) {
    struct Case {
        const char* input;
        Answer answer;
        const char* output;
    };
    const Case cases[] = {
        {"a\n", Answer::Yes, "(!) VELOR: Smazat?\nOpravdu?\n[a/n] "},
        {" ANO \r\n", Answer::Yes, "(!) VELOR: Smazat?\nOpravdu?\n[a/n] "},
        {"možná\n\nne\n", Answer::No, "(!) VELOR: Smazat?\nOpravdu?\n[a/n] [a/n] [a/n] "},
        {"", Answer::No, "(!) VELOR: Smazat?\nOpravdu?\n[a/n] "},
        {"y", Answer::Yes, "(!) VELOR: Smazat?\nOpravdu?\n[a/n] "},
    };
    for (const Case& c : cases) {
        std::istringstream answers(c.input);
        std::ostringstream shown;
        StreamUserInterface boxes(answers, shown);
        EXPECT_EQ(boxes.showMessage({"Smazat?\r\nOpravdu?", Icon::Exclamation, "VELOR", Buttons::YesNo}), c.answer)
            << c.input;
        EXPECT_EQ(shown.str(), c.output);
    }
}

TEST(StreamUserInterface, asksForTexts) {
    std::istringstream answers("10\r\n\n");
    std::ostringstream shown;
    StreamUserInterface boxes(answers, shown);
    EXPECT_EQ(boxes.askText({"Zadat tlak(Pa):", "FLASH", "101300"}), "10");
    EXPECT_EQ(boxes.askText({"Zadat tlak(Pa):", "FLASH", "101300"}), "101300");
    EXPECT_EQ(test::errorNumber(
                  [&] { boxes.askText({.prompt = "Zadat tlak(Pa):", .title = "VELOR", .defaultAnswer = "1"}); }),
              RunTimeError::kInputPastEnd);
    EXPECT_EQ(shown.str(),
              "FLASH: Zadat tlak(Pa): [101300] FLASH: Zadat tlak(Pa): [101300] VELOR: Zadat tlak(Pa): [1] ");
}

}  // namespace
}  // namespace velor
