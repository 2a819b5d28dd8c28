// Runs the real velor command, on a database of the tests' own or on the one it finds itself.
#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <iterator>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "support/temporary_folder.h"

namespace velor::test {

struct Outcome {
    int exitCode = -1;  // -1 where a signal ended it
    std::string out;
    std::string error;

    nlohmann::json json() const { return nlohmann::json::parse(out); }
};

using Words = std::vector<std::string>;

// The words of a line without quotes, and more behind them.
inline Words words(const std::string& line, const Words& more = {}) {
    std::istringstream text(line);
    Words all{std::istream_iterator<std::string>(text), {}};
    all.insert(all.end(), more.begin(), more.end());
    return all;
}

inline const std::string kVelor = std::string(VELOR_PROGRAMS) + "/velor";

// The outcome of a program on an input.
inline Outcome run(Words words, const std::string& program = kVelor, const std::string& input = "") {
    const TemporaryFolder folder;
    posix_spawn_file_actions_t streams{};
    posix_spawn_file_actions_init(&streams);
    const auto open = [&](int descriptor, const std::string& path, int flags) {
        posix_spawn_file_actions_addopen(&streams, descriptor, path.c_str(), flags, 0600);
    };
    open(STDIN_FILENO, folder.write("in", input), O_RDONLY);
    open(STDOUT_FILENO, folder / "out", O_WRONLY | O_CREAT);
    open(STDERR_FILENO, folder / "err", O_WRONLY | O_CREAT);
    words.insert(words.begin(), program);
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    pid_t process = 0;
    int status = 0;
    EXPECT_EQ(posix_spawn(&process, program.c_str(), &streams, nullptr, arguments.data(), environ), 0) << program;
    EXPECT_EQ(waitpid(process, &status, 0), process);
    posix_spawn_file_actions_destroy(&streams);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, readFile(folder / "out"), readFile(folder / "err")};
}

// In a shell, where the answers or the surroundings come from somebody else.
inline Outcome runInShell(const std::string& script) { return run({"-c", script}, "/bin/sh"); }

inline void expectMentions(const std::string& text, const std::string& phrase) {
    EXPECT_NE(text.find(phrase), std::string::npos) << "missing: " << phrase << "\nin: " << text;
}

// Nothing on the output, a sentence on the error stream, the exit code.
inline void expectFailure(const Outcome& outcome, int exitCode, const std::string& phrase) {
    EXPECT_EQ(outcome.exitCode, exitCode) << outcome.error;
    EXPECT_EQ(outcome.out, "");
    expectMentions(outcome.error, phrase);
}

}  // namespace velor::test
