#include "gnuplot.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <memory>

#include "failure.h"

namespace velor::app {

namespace {

[[noreturn]] void fail(const std::string& text) { throw Failure(ExitCode::NothingComputed, text); }

// A file without a name, gone with the object.
class ScratchFile {
  public:
    explicit ScratchFile(std::string_view content = "") : file_(std::tmpfile(), &std::fclose) {
        if (!file_) fail("Pro kreslení nelze vytvořit dočasný soubor.");
        std::fwrite(content.data(), 1, content.size(), file_.get());
        if (std::fflush(file_.get()) != 0) fail("Do dočasného souboru nelze zapsat.");
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

class FileActions {
  public:
    FileActions() { posix_spawn_file_actions_init(&actions_); }
    ~FileActions() { posix_spawn_file_actions_destroy(&actions_); }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;

    void use(const ScratchFile& file, int descriptor) {
        posix_spawn_file_actions_adddup2(&actions_, file.descriptor(), descriptor);
    }
    const posix_spawn_file_actions_t* get() const { return &actions_; }

  private:
    posix_spawn_file_actions_t actions_{};
};

bool endedWell(pid_t process) {
    int status = 0;
    while (waitpid(process, &status, 0) < 0)
        if (errno != EINTR) return false;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace

std::string runGnuplot(std::string_view script) {
    const ScratchFile input(script);
    ScratchFile picture, errors;
    FileActions streams;
    streams.use(input, STDIN_FILENO);
    streams.use(picture, STDOUT_FILENO);
    streams.use(errors, STDERR_FILENO);
    std::string program = "gnuplot", ownSettings = "--default-settings";  // not those of the user
    char* const words[] = {program.data(), ownSettings.data(), nullptr};
    pid_t process = 0;
    if (posix_spawnp(&process, program.c_str(), streams.get(), nullptr, words, environ) != 0)
        fail("Obrázky kreslí program gnuplot, který není nainstalován (balíček gnuplot-nox).");
    const bool isDrawn = endedWell(process);
    std::string image = picture.content();
    if (!isDrawn || image.empty()) fail("Program gnuplot obrázek nenakreslil: " + errors.content());
    return image;
}

}  // namespace velor::app
