// Runs the tests in the locale that the environment asks for, as a host does that sets it: C, where it is not
// installed.
#include <gtest/gtest.h>

#include <clocale>
#include <locale>
#include <stdexcept>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    try {
        std::locale::global(std::locale(""));  // for streams and, with it, for the functions of C
    } catch (const std::runtime_error&) {
        std::setlocale(LC_ALL, "C");
    }
    return RUN_ALL_TESTS();
}
