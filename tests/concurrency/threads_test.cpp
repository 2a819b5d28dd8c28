// Objects in different threads never meet: eight at once, from the first call on, answer as one alone does.
#include <gtest/gtest.h>

#include <barrier>
#include <string>
#include <thread>
#include <vector>

#include "platform/system.h"
#include "velor/smes.h"

namespace velor {
namespace {

constexpr int kThreads = 8;
constexpr int kRounds = 5;
constexpr int kEthanol = 235, kWater = 1, kMethanol = 234;

// Everything that the work answered, so that two runs can be compared.
using Answers = std::vector<Variant>;

void askProperties(Smes& smes, const Variant& X, Answers& answers) {
    for (const char* name : {"ROLW", "ETAL", "ETAG",    "ALAL",  "ALAG", "CPLW",   "CPGW", "SIGMA", "DHVW",   "SL",
                             "HLW",  "TENS", "OBJROZL", "PRL",   "VSM",  "RROGW",  "RCPG", "RCVGW", "RALAG",  "RETAG",
                             "RHGW", "RSG",  "RUG",     "LNFUG", "KAPA", "JTKOEF", "TBV",  "TRB",   "neznama"})
        answers.push_back(smes.Vlastnost(name, X, 350.0, 101325.0));
    answers.push_back(smes.PSEUD(X, "P"));
    for (int k = 1; k <= 10; ++k) answers.push_back(smes.FFce(320.0, 1, k));
    Variant W = X;
    answers.push_back(smes.Cohmo(X, W));
    answers.push_back(W);
    for (int i = 1; i <= 3; ++i) {
        answers.push_back(smes.Nazev(i));
        answers.push_back(smes.CAS(i));
        answers.push_back(Smes::GFormat(smes.Tkri(i)));
    }
    answers.push_back(smes.VSM("no composition"));
}

// Finds the database by the CFG file, defines a mixture and asks for all that it has; then the same for another one.
Answers work() {
    RecordingUserInterface boxes;
    Smes smes(boxes);
    smes.CFGPath(VELOR_PROGRAMS);
    Answers answers;
    answers.push_back(smes.AdrVELOR());
    for (const int first : {kEthanol, kMethanol}) {
        smes.DefSlozky(List({first, kWater, kEthanol}));
        smes.Redlich(first == kEthanol ? 0 : 1);
        answers.push_back(smes.Inivlr());
        askProperties(smes, Fractions({0.2, 0.5, 0.3}), answers);
    }
    for (const Message& message : boxes.messages) answers.push_back(message.text);
    for (const std::string& volume : platform::volumes()) answers.push_back(volume);  // where a database is searched
    Variant hits;
    smes.FindFiles(VELOR_PROGRAMS, "*", "VELOR.DRC", hits);
    answers.push_back(hits);
    return answers;
}

TEST(Threads, objectsNeverMeet) {
    std::barrier start(kThreads);
    std::vector<Answers> answers(kThreads);
    {
        std::vector<std::jthread> threads;
        for (Answers& own : answers) {
            threads.emplace_back([&] {
                start.arrive_and_wait();
                for (int round = 0; round < kRounds; ++round) own = work();
            });
        }
    }
    const Answers alone = work();
    ASSERT_EQ(alone[1].toInt16(), 3) << "the work needs its mixture";
    for (const Answers& own : answers) EXPECT_TRUE(own == alone);
}

}  // namespace
}  // namespace velor
