#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <set>
#include <utility>

#include "output/output.h"
#include "people/people.h"
#include "shared/files.h"
#include "shared/gnuplot.h"
#include "velor/text.h"

namespace velor::app {

namespace {

[[noreturn]] void fail(const std::string& text) { throw Failure(ExitCode::NothingComputed, text); }

constexpr std::string_view kSvg = ".svg", kPng = ".png";

bool endsIn(std::string_view name, std::string_view ending) {
    return name.size() > ending.size() && equalIgnoringCase(name.substr(name.size() - ending.size()), ending);
}

std::string coordinates(const Curve::Point& point) { return exactText(*point.x) + " " + exactText(*point.y) + "\n"; }

enum class Part { Sure, Unsure, Alone };
constexpr Part kParts[] = {Part::Sure, Part::Unsure, Part::Alone};

std::string blockName(std::size_t curve, Part part) {
    constexpr const char* kNames[] = {"$sure", "$unsure", "$alone"};
    return kNames[static_cast<std::size_t>(part)] + std::to_string(curve);
}

// Points without a neighbour on either side.
std::string lonePoints(const Curve& curve) {
    std::string text;
    const auto isThere = [&](std::size_t i) { return i < curve.points.size() && curve.points[i].isThere(); };
    for (std::size_t i = 0; i < curve.points.size(); ++i)
        if (isThere(i) && !isThere(i - 1) && !isThere(i + 1)) text += coordinates(curve.points[i]);
    return text;
}

// The pieces of the curve that are sure, or those that are not, which meet them at their ends. A blank line ends a
// piece, so that nothing is drawn over a point that is missing.
std::string pieces(const Curve& curve, bool wantsSure) {
    std::string text;
    bool isBegun = false;
    for (std::size_t i = 1; i < curve.points.size(); ++i) {
        const Curve::Point &from = curve.points[i - 1], &to = curve.points[i];
        const bool isWanted = from.isThere() && to.isThere() && (from.isSure && to.isSure) == wantsSure;
        if (isWanted && !isBegun) text += coordinates(from);
        if (isWanted) text += coordinates(to);
        if (!isWanted && isBegun) text += "\n";
        isBegun = isWanted;
    }
    return text;
}

// As many as a mixture may have components.
constexpr auto kColours = std::to_array<std::string_view>(
    {"#1b6ca8", "#d95f02", "#1b9e77", "#c2185b", "#7b4fb5", "#8c6d1f", "#455a64", "#e6ab02", "#66a61e", "#00a6c8",
     "#e377c2", "#7f7f7f", "#a0522d", "#3949ab", "#ff5c4d", "#009688", "#9ccc65", "#5d4037", "#b39ddb", "#f48fb1"});

std::string style(std::string_view colour, Part part) {
    std::string text = part == Part::Alone ? " with points pointtype 7 pointsize 0.6" : " with lines dashtype ";
    if (part != Part::Alone) text += part == Part::Sure ? "1" : "2";
    return text.append(" linecolor rgb '").append(colour).append("'");
}

std::string plotted(const std::string& data, std::string_view colour, Part part) {
    return data + (data.starts_with('$') ? " using 1:2" : "") + style(colour, part);
}

// Solid where the values hold; one entry of the legend tells what is dashed.
std::string plotCommand(const std::vector<Curve>& curves, const std::set<std::string>& blocks) {
    std::string text, separator = "plot ";
    bool isAllSure = true;
    for (std::size_t i = 0; i < curves.size(); ++i) {
        const std::string_view colour = kColours[i % kColours.size()];
        const bool isDrawn =
            std::ranges::any_of(kParts, [&](Part part) { return blocks.contains(blockName(i, part)); });
        text += std::exchange(separator, ", ") + plotted("keyentry", colour, Part::Sure) + " title " +
                gnuplotText(curves[i].name + (isDrawn ? "" : " (bez hodnot)"));
        for (const Part part : kParts) {
            if (!blocks.contains(blockName(i, part))) continue;
            text += separator + plotted(blockName(i, part), colour, part) + " notitle";
            isAllSure = isAllSure && part != Part::Unsure;
        }
    }
    if (!isAllSure)
        text += separator + plotted("keyentry", "#000000", Part::Unsure) + " title " +
                gnuplotText("mimo platnost, metastabilní apod.");
    return text + "\n";
}

// As many digits as keep the labels of an axis apart.
std::string labelFormat(const std::vector<Curve>& curves, std::optional<double> Curve::Point::*coordinate) {
    double least = std::numeric_limits<double>::infinity(), most = -least;
    for (const Curve& curve : curves)
        for (const Curve::Point& point : curve.points)
            if (const auto& value = point.*coordinate) least = std::min(least, *value), most = std::max(most, *value);
    const double parts = std::max(std::abs(least), std::abs(most)) / (most - least);
    const int digits = std::isfinite(parts) ? 2 + static_cast<int>(std::ceil(std::log10(parts))) : 0;
    return "'%." + std::to_string(std::clamp(digits, 6, 15)) + "g'\n";
}

std::string script(const Picture& picture, bool isPng) {
    std::string text = "set encoding utf8\nset terminal ";
    text += isPng ? "pngcairo size 900,600 font 'Sans,12'"
                  : "svg size 900,600 dynamic font 'DejaVu Sans,Arial,sans-serif,16'";
    text += " noenhanced linewidth 2 background rgb 'white'\n";
    text += "set format x " + labelFormat(picture.curves, &Curve::Point::x);
    text += "set format y " + labelFormat(picture.curves, &Curve::Point::y);
    if (picture.isOverFractions) text += "set xrange [0:1]\n";
    text += "set grid linewidth 0.5\nset key tmargin center horizontal\n";
    text += "set title " + gnuplotText(picture.title) + "\nset xlabel " + gnuplotText(picture.horizontal) +
            "\nset ylabel " + gnuplotText(picture.vertical) + "\n";
    std::set<std::string> blocks;  // those that hold anything: gnuplot complains of empty ones
    for (std::size_t i = 0; i < picture.curves.size(); ++i) {
        for (const Part part : kParts) {
            const Curve& curve = picture.curves[i];
            const std::string points = part == Part::Alone ? lonePoints(curve) : pieces(curve, part == Part::Sure);
            if (points.empty()) continue;
            blocks.insert(blockName(i, part));
            text += blockName(i, part) + " << END\n" + points + "END\n";
        }
    }
    if (blocks.empty()) fail("Není co nakreslit: žádný bod nemá hodnotu.");
    return text + plotCommand(picture.curves, blocks);
}

}  // namespace

Curve::Point pointOf(const Cell& x, const Cell& y) {
    const auto number = [](const Cell& cell) {
        const auto* const value = std::get_if<double>(&cell.value);
        return value ? std::optional(*value) : std::nullopt;
    };
    return {number(x), number(y), y.mark.empty()};
}

bool isPictureFileName(std::string_view name) { return endsIn(name, kSvg) || endsIn(name, kPng); }

std::string pictureFileName(std::string_view name) {
    if (isPictureFileName(name)) return std::string(name);
    throw Failure(ExitCode::WrongUse, "Soubor obrázku „" + std::string(name) + "“ musí mít příponu .svg nebo .png.");
}

void drawPicture(const Picture& picture, const std::string& fileName) {
    const std::string commands = script(picture, endsIn(fileName, kPng));
    std::string image;
    try {
        image = runGnuplot(commands);
    } catch (const GnuplotFailure& failure) {
        fail(failure.what());
    }
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
