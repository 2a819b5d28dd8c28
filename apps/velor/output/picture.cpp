#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <memory>

#include "output/output.h"
#include "people/people.h"
#include "shared/files.h"
#include "velor/text.h"

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

// Runs a script that draws to the standard output, in a process of its own, and returns the picture's bytes.
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

constexpr std::string_view kSvg = ".svg", kPng = ".png";

bool endsIn(std::string_view name, std::string_view ending) {
    return name.size() > ending.size() && equalIgnoringCase(name.substr(name.size() - ending.size()), ending);
}

// A text of gnuplot's that nothing is interpreted in.
std::string literal(std::string_view text) {
    std::string result = "'";
    for (const char c : text) result += c == '\'' ? std::string("''") : std::string(1, c);
    return result + "'";
}

std::string coordinate(const Value& value) {
    const auto* const number = std::get_if<double>(&value);
    return number ? exactText(*number) : "NaN";
}

std::string blockName(std::size_t index) { return "$curve" + std::to_string(index); }

std::string dataBlock(std::size_t index, const Curve& curve) {
    std::string block = blockName(index) + " << END\n";
    for (const auto& [x, y] : curve.points) block += coordinate(x) + " " + coordinate(y) + "\n";
    return block + "END\n";
}

std::string script(const Picture& picture, bool isPng) {
    std::string text = "set encoding utf8\nset terminal ";
    text += isPng ? "pngcairo size 900,600 font 'Sans,12'"
                  : "svg size 900,600 dynamic font 'DejaVu Sans,Arial,sans-serif,16'";
    text += " noenhanced linewidth 2 background rgb 'white'\n";
    text += "set datafile missing 'NaN'\nset grid linewidth 0.5\nset key tmargin center horizontal\n";
    text += "set title " + literal(picture.title) + "\nset xlabel " + literal(picture.horizontal) + "\nset ylabel " +
            literal(picture.vertical) + "\n";
    for (std::size_t i = 0; i < picture.curves.size(); ++i) text += dataBlock(i, picture.curves[i]);
    text += "plot ";
    for (std::size_t i = 0; i < picture.curves.size(); ++i) {
        text += (i == 0 ? "" : ", ") + blockName(i) + " using 1:2 with lines title " + literal(picture.curves[i].name);
    }
    return text + "\n";
}

}  // namespace

bool isPictureFileName(std::string_view name) { return endsIn(name, kSvg) || endsIn(name, kPng); }

std::string pictureFileName(std::string_view name) {
    if (isPictureFileName(name)) return std::string(name);
    throw Failure(ExitCode::WrongUse, "Soubor obrázku „" + std::string(name) + "“ musí mít příponu .svg nebo .png.");
}

void drawPicture(const Picture& picture, const std::string& fileName) {
    const std::string image = runGnuplot(script(picture, endsIn(fileName, kPng)));
    try {
        replaceFile(fileName, image);
    } catch (const RunTimeError& error) {
        throw Failure(ExitCode::NothingComputed, "Soubor „" + fileName + "“ nelze zapsat: " + describe(error) + ".");
    }
}

Report pictureReport(const std::string& fileName, Section drawn) {
    const int points = static_cast<int>(std::get<Table>(drawn.content).rows.size());
    drawn.title.clear();
    return {{{"obrazek", "Obrázek", Entries{{"soubor", "soubor", fileName, {}}, {"bodu", "bodů na křivku", points, {}}},
              drawn.notes},
             std::move(drawn)},
            {}};
}

}  // namespace velor::app
