#include "picture.h"

#include "failure.h"
#include "gnuplot.h"
#include "number_text.h"
#include "platform/file_system.h"
#include "run_time_error_text.h"
#include "runtime/text.h"

namespace velor::app {

namespace {

constexpr std::string_view kSvg = ".svg", kPng = ".png";

bool endsIn(std::string_view name, std::string_view ending) {
    return name.size() > ending.size() && equalIgnoringCase(name.substr(name.size() - ending.size()), ending);
}

// A text of gnuplot's that nothing is interpreted in.
std::string quoted(std::string_view text) {
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
    text += "set title " + quoted(picture.title) + "\nset xlabel " + quoted(picture.horizontal) + "\nset ylabel " +
            quoted(picture.vertical) + "\n";
    for (std::size_t i = 0; i < picture.curves.size(); ++i) text += dataBlock(i, picture.curves[i]);
    text += "plot ";
    for (std::size_t i = 0; i < picture.curves.size(); ++i) {
        text += (i == 0 ? "" : ", ") + blockName(i) + " using 1:2 with lines title " + quoted(picture.curves[i].name);
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
        platform::replaceFile(fileName, image);
    } catch (const RunTimeError& error) {
        throw Failure(ExitCode::NothingComputed, "Soubor „" + fileName + "“ nelze zapsat: " + describe(error) + ".");
    }
}

Section pictureSection(const std::string& fileName, int points, std::vector<std::string> notes) {
    return {"obrazek", "Obrázek", Entries{{"soubor", "soubor", fileName, {}}, {"bodu", "bodů na křivku", points, {}}},
            std::move(notes)};
}

}  // namespace velor::app
