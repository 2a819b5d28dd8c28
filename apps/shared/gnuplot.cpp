#include "shared/gnuplot.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace velor::app {

namespace {

// A file without a name, gone with the object.
class ScratchFile {
  public:
    explicit ScratchFile(std::string_view content = "") : file_(std::tmpfile(), &std::fclose) {
        if (!file_) throw GnuplotFailure("Pro kreslení nelze vytvořit dočasný soubor.");
        std::fwrite(content.data(), 1, content.size(), file_.get());
        if (std::fflush(file_.get()) != 0) throw GnuplotFailure("Do dočasného souboru nelze zapsat.");
        std::rewind(file_.get());
    }

    int descriptor() const { return fileno(file_.get()); }

    std::string content() {
        std::rewind(file_.get());
        std::string text;
        char buffer[4096];
        while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, file_.get())) text.append(buffer, count);
        return text;
    }

  private:
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file_;
};

constexpr int kNotFound = 127;  // as shells say that there is no such program

// In the new process: only what may be called there between fork and exec.
[[noreturn]] void becomeGnuplot(int input, int output, int errors) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);  // it ends with the command, whatever ends that
    dup2(input, STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    dup2(errors, STDERR_FILENO);
    execlp("gnuplot", "gnuplot", "--default-settings", nullptr);  // not those of the user
    _exit(kNotFound);
}

int exitCodeOf(pid_t process) {
    int status = 0;
    while (waitpid(process, &status, 0) < 0)
        if (errno != EINTR) return EXIT_FAILURE;
    constexpr int kSignalled = 128;  // as shells tell it
    return WIFEXITED(status) ? WEXITSTATUS(status) : kSignalled + WTERMSIG(status);
}

std::string code(unsigned char byte) {
    const char digits[] = {'\\', static_cast<char>('0' + byte / 64), static_cast<char>('0' + byte / 8 % 8),
                           static_cast<char>('0' + byte % 8)};
    return {digits, sizeof digits};
}

}  // namespace

std::string runGnuplot(std::string_view script) {
    const ScratchFile input(script);
    ScratchFile picture, errors;
    const pid_t process = fork();
    if (process == 0) becomeGnuplot(input.descriptor(), picture.descriptor(), errors.descriptor());
    if (process < 0) throw GnuplotFailure("Program gnuplot nelze spustit.");
    const int exitCode = exitCodeOf(process);
    if (exitCode == kNotFound)
        throw GnuplotFailure("Obrázky kreslí program gnuplot, který není nainstalován (balíček gnuplot-nox).");
    std::string image = picture.content();
    if (exitCode != 0 || image.empty())
        throw GnuplotFailure("Program gnuplot obrázek nenakreslil (kód " + std::to_string(exitCode) +
                             "): " + errors.content());
    return image;
}

std::string gnuplotText(std::string_view text) {
    std::string result = "\"";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool isLetter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || byte >= 0x80;
        result += isLetter || c == ' ' ? std::string(1, c) : code(byte);
    }
    return result + "\"";
}

}  // namespace velor::app
