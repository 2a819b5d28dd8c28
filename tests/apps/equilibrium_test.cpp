// velor rovnovaha and velor flash: laws that the figures have to keep.
#include "command.h"
#include "runtime/numbers.h"

namespace velor::test {
namespace {

Outcome flash(const std::string& more) {
    return run(words("flash --latky pentan,hexan,heptan --slozeni 0.3,0.3,0.4 " + more));
}

TEST(FlashTest, askingGivesTheSameAsArgumentsAndThinkingIsNotLimited) {
    const std::string asking = kVelor + " flash --interaktivne --latky pentan,hexan,heptan --limit 1";
    const Outcome asked = runInShell(R"((sleep 1.5; printf '0\n101325\n0,3 0,3 0,4\n66.85\n') | )" + asking);
    EXPECT_EQ(asked.exitCode, 0) << asked.error;
    EXPECT_EQ(asked.out, flash("-T 340").out);
    for (const char* question : {"Zadat tlak(Pa):", "oddělené mezerou nebo středníkem", "Bod varu  60.9"})
        expectMentions(asked.error, question);
    const Outcome silent = runInShell("true | " + asking);
    EXPECT_EQ(silent.exitCode, 1);
    expectMentions(silent.error, "čtení za koncem vstupu");
}

}  // namespace
}  // namespace velor::test
