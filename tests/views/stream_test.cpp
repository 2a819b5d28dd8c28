#include <gtest/gtest.h>

#include <sstream>

#include "support/sample_mixture.h"
#include "velor/user_interface.h"

namespace velor {
namespace {

TEST(StreamUserInterface, asksYesOrNoUntilItIsAnswered) {
    const std::tuple<const char*, Answer, const char*> cases[] = {
        {" ANO \r\n", Answer::Yes, ""},
        {"možná\n\nne\n", Answer::No, "[a/n] [a/n] "},
        {"", Answer::No, ""},
        {"y", Answer::Yes, ""},
    };
    for (const auto& [input, answer, again] : cases) {
        std::istringstream answers(input);
        std::ostringstream shown;
        StreamUserInterface boxes(answers, shown);
        EXPECT_EQ(boxes.showMessage({"Smazat?\r\nOpravdu?", Icon::Exclamation, "VELOR", Buttons::YesNo}), answer)
            << input;
        EXPECT_EQ(shown.str(), std::string("(!) VELOR: Smazat?\nOpravdu?\n[a/n] ") + again);
    }
}

TEST(StreamUserInterface, leavesTheTerminalAlone) {
    std::istringstream answers;
    std::ostringstream shown;
    StreamUserInterface(answers, shown)
        .showMessage({"\x1B[2JVo\xC2\x9B"
                      "da\tč",
                      Icon::None, "VE\aLOR"});
    EXPECT_EQ(shown.str(), "VE?LOR: ?[2JVo?da\tč\n");
}

}  // namespace
}  // namespace velor
