// proloz: points fitted to an equation, with a report, a picture and a row to append.
#include "baze/fit/fit.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <memory>
#include <optional>

#include "baze/correlations_table.h"
#include "commands/commands.h"
#include "rules/equations.h"  // which types there are, and their curves
#include "runtime/numbers.h"  // numbers by a pattern, whatever the locale
#include "shared/gnuplot.h"
#include "velor/text.h"

namespace velor::baze {

namespace {

struct Task {
    std::string points;
    std::string property;
    int type = 0;  // 0: the best
    FitOptions options;
    double boilingPoint = 0;
    std::string through;
    std::string picture;
    std::string cas;
    std::string source = "vlastní data";
};

constexpr double kAtmosphere = 101325;

const PureProperty& propertyOf(const Task& task) {
    if (const PureProperty* property = findPureProperty(task.property)) return *property;
    throw Failure("Vlastnost „" + task.property +
                  "“ není; jsou ETAG, CPG, ALAG, ROLW, ETAL, ALAL, CPL, DHV, TENS, SIGMA.");
}

std::vector<MeasuredPoint> throughPoints(const Task& task, const PureProperty& property) {
    std::vector<MeasuredPoint> points;
    if (task.boilingPoint > 0 && property.number == kTENS) points.push_back({task.boilingPoint, kAtmosphere, 1, 0});
    if (task.through.empty()) return points;
    for (const std::string& item : splitItems(task.through)) {
        const std::size_t colon = item.find(':');
        const auto T = parseWholeNumber(item.substr(0, colon));
        const auto value = parseWholeNumber(colon == std::string::npos ? "" : item.substr(colon + 1));
        if (!T || !value || *T <= 0 || *value <= 0)
            throw Failure("Pevný bod „" + item + "“ nemá tvar teplota:hodnota, například 373.15:101325.");
        points.push_back({*T, *value, 1, 0});
    }
    return points;
}

std::string percent(double value) { return std::isfinite(value) ? Format(value, "0.0000") : "-"; }

// As wide as its column.
std::string padded(std::string text, std::size_t width) {
    const std::size_t length = characterCount(text);
    return text.append(length < width ? width - length : 1, ' ');
}

// ---- The report --------------------------------------------------------------------------------------------------

void printCandidates(const std::vector<Fit>& fits) {
    std::cout << "typ   AICc        odch. [%]  největší [%]  rovnice\n";
    for (const Fit& fit : fits) {
        std::cout << padded(std::to_string(fit.block.Typ), 6) << padded(percent(fit.aicc), 12)
                  << padded(percent(fit.rms), 11) << padded(percent(fit.most), 14)
                  << trimBlanks(equationText(fit.block.Typ));
        if (!fit.doubt.empty()) std::cout << "  – mimo body " << fit.doubt;
        std::cout << '\n';
    }
    std::cout << '\n';
}

void printCoefficients(const Fit& fit) {
    for (std::size_t j = 0; j < fit.free.size(); ++j) {
        const auto place = static_cast<std::size_t>(fit.free[j] - 1);
        std::cout << 'A' << fit.free[j] << " = " << exactText(fit.block.A[place]);
        if (!fit.covariance.empty()) std::cout << "  ± " << roundedText(std::sqrt(std::max(0.0, fit.covariance[j][j])));
        std::cout << '\n';
    }
    if (fit.covariance.empty()) {
        std::cout << "Kovarianci tolik bodů neurčí.\n";
        return;
    }
    std::cout << "Kovariance koeficientů:\n";
    for (const auto& row : fit.covariance) {
        for (const double value : row) std::cout << padded(roundedText(value), 14);
        std::cout << '\n';
    }
}

void printPoints(const Fit& fit, const std::vector<MeasuredPoint>& points) {
    std::cout << "T [K]       hodnota       odchylka [%]  váha\n";
    for (std::size_t i = 0; i < points.size(); ++i)
        std::cout << padded(roundedText(points[i].T), 12) << padded(roundedText(points[i].value), 14)
                  << padded(percent(fit.deviations[i]), 14) << roundedText(points[i].weight * fit.weights[i]) << '\n';
}

// ---- The picture -------------------------------------------------------------------------------------------------

std::string numbers(const std::vector<std::pair<double, double>>& points) {
    std::string text;
    for (const auto& [x, y] : points) text += exactText(x) + " " + exactText(y) + "\n";
    return text;
}

std::string script(const Fit& fit, const std::vector<MeasuredPoint>& points, const PureProperty& property, bool isPng) {
    constexpr int kSteps = 400;
    const double aside = 0.1 * (fit.block.Tmax - fit.block.Tmin);
    std::vector<std::pair<double, double>> curve, measured, missed;
    for (int i = 0; i <= kSteps; ++i) {
        const double T = fit.block.Tmin - aside + (fit.block.Tmax - fit.block.Tmin + 2 * aside) * i / kSteps;
        const double value = curveValue(fit, T);
        if (std::isfinite(value)) curve.emplace_back(T, value);
    }
    for (std::size_t i = 0; i < points.size(); ++i) {
        measured.emplace_back(points[i].T, points[i].value);
        missed.emplace_back(points[i].T, fit.deviations[i]);
    }
    const std::string range = "'#dddddd'";
    std::string text = "set encoding utf8\nset terminal ";
    text += isPng ? "pngcairo size 900,900 font 'Sans,12'"
                  : "svg size 900,900 dynamic font 'DejaVu Sans,Arial,sans-serif,16'";
    text += " noenhanced linewidth 2 background rgb 'white'\n$body << END\n" + numbers(measured) +
            "END\n$krivka << END\n" + numbers(curve) + "END\n$odchylky << END\n" + numbers(missed) + "END\n";
    text += "set multiplot layout 2,1\nset grid linewidth 0.5\nset key tmargin center horizontal\n";
    text += "set xrange [" + exactText(fit.block.Tmin - aside) + ":" + exactText(fit.block.Tmax + aside) + "]\n";
    for (const int bound : {fit.block.Tmin, fit.block.Tmax})
        text += "set arrow from " + std::to_string(bound) + ", graph 0 to " + std::to_string(bound) +
                ", graph 1 nohead dashtype 3 linecolor rgb '#777777'\n";
    text += "set xlabel " + app::gnuplotText("T [K]") + "\nset ylabel " +
            app::gnuplotText(std::string(property.code) + " [" + std::string(property.unit) + "]") + "\n";
    if (property.number == kTENS || property.number == kETAL) text += "set logscale y\n";
    text += "plot $krivka with lines linecolor rgb '#1b6ca8' title " +
            app::gnuplotText("rovnice typu " + std::to_string(fit.block.Typ)) +
            ", $body with points pointtype 7 pointsize 0.7 linecolor rgb '#d95f02' title " + app::gnuplotText("body") +
            "\n";
    text +=
        "unset logscale y\nset ylabel " + app::gnuplotText("odchylka [%]") +
        "\nplot 0 with lines linecolor rgb '#777777' notitle, $odchylky with impulses linecolor rgb '#d95f02' notitle, "
        "$odchylky with points pointtype 7 pointsize 0.7 linecolor rgb '#d95f02' notitle\nunset multiplot\n";
    return text;
}

void draw(const Fit& fit, const std::vector<MeasuredPoint>& points, const PureProperty& property,
          const std::string& path) {
    const bool isPng = path.ends_with(".png");
    if (!isPng && !path.ends_with(".svg"))
        throw Failure("Soubor obrázku „" + path + "“ musí mít příponu .svg nebo .png.");
    try {
        writeFile(path, app::runGnuplot(script(fit, points, property, isPng)));
    } catch (const app::GnuplotFailure& failure) {
        throw Failure(failure.what());
    }
}

// ---- The command -------------------------------------------------------------------------------------------------

Fit chosen(const Task& task, const std::vector<MeasuredPoint>& points, const PureProperty& property,
           const FitOptions& options) {
    if (task.type != 0) {
        if (!isEquationType(task.type)) throw Failure("Typ rovnice má být " + equationTypesText() + ".");
        if (const auto fit = fitted(task.type, points, property, options)) return *fit;
        throw Failure("Rovnicí typu " + std::to_string(task.type) +
                      " tyto body proložit nelze; je jich málo, nebo takové "
                      "hodnoty nedává.");
    }
    const auto fits = bestFits(points, property, options);
    if (fits.empty()) throw Failure("Bodů je málo i na nejjednodušší rovnici.");
    printCandidates(fits);
    return fits.front();
}

void requireConstants(const FitOptions& options, const std::vector<MeasuredPoint>& points, const Task& task) {
    for (const auto& [name, value] : {std::pair("Tkr", options.Tkr), {"Pkr", options.Pkr}, {"Tnbv", task.boilingPoint}})
        if (!(value >= 0) || !std::isfinite(value)) throw Failure(std::string("--") + name + ": má být kladné číslo");
    for (const MeasuredPoint& point : points)
        if (options.Tkr > 0 && options.Tkr < point.T && propertyOf(task).number >= kROLW)
            throw Failure("--Tkr: body leží až nad kritickou teplotou");
}

// A form with too few coefficients cannot go through all of them.
void printMissed(const Fit& fit, const FitOptions& options) {
    constexpr double kMost = 0.01;  // %
    for (const MeasuredPoint& point : options.through) {
        const double missed = 100 * (evaluateEquation(fit.block.Typ, fit.block.A, point.T) / point.value - 1);
        if (std::abs(missed) > kMost)
            std::cout << "POZOR: zadaným bodem při " << exactText(point.T) << " K křivka neprochází, odchylka "
                      << percent(missed) << " %.\n";
    }
}

int fitPoints(const Task& task) {
    const PureProperty& property = propertyOf(task);
    const auto points = readTable(
        task.points, [&](std::string_view text, LineFaults& faults) { return readPoints(text, property, faults); });
    FitOptions options = task.options;
    options.through = throughPoints(task, property);
    requireConstants(options, points, task);
    if (!task.picture.empty()) requireOther(task.picture, task.points);
    const Fit fit = chosen(task, points, property, options);
    std::cout << property.code << ", rovnice typu " << fit.block.Typ << ": " << trimBlanks(equationText(fit.block.Typ))
              << '\n';
    printCoefficients(fit);
    printPoints(fit, points);
    printMissed(fit, options);
    std::cout << "Směrodatná odchylka " << percent(fit.rms) << " %, největší " << percent(fit.most) << " %, AICc "
              << percent(fit.aicc) << '\n';
    if (!fit.doubt.empty()) std::cout << "POZOR: mimo body rovnice " << fit.doubt << ".\n";
    std::cout << '\n'
              << ownCorrelationsHeader()
              << ownCorrelationRow(task.cas, property.number, fit.block,
                                   {task.source, std::round(fit.most * 1e4) / 1e4, false});
    if (!task.picture.empty()) draw(fit, points, property, task.picture);
    return kDone;
}

}  // namespace

void addFit(CLI::App& app, Action& action) {
    const auto task = std::make_shared<Task>();
    CLI::App* command = addCommand(app, "proloz", "Proloží naměřené body rovnicí báze");
    addArgument(*command, "body", task->points,
                "Tabulka bodů: T, hodnota, vaha; jednotky v záhlaví, např. T [°C],TENS [kPa]");
    command->add_option("--vlastnost", task->property, "Zkratka vlastnosti: TENS, ROLW …")
        ->required()
        ->type_name("VLASTNOST");
    command->add_option("--typ", task->type, "Typ rovnice; bez něj nejlepší podle AICc")->type_name("TYP");
    command->add_option("--Tkr", task->options.Tkr, "Kritická teplota [K]")->type_name("T");
    command->add_option("--Pkr", task->options.Pkr, "Kritický tlak [Pa]")->type_name("P");
    command->add_option("--Tnbv", task->boilingPoint, "Bod varu [K]; tenzí par tu projde 101325 Pa")->type_name("T");
    command->add_option("--bodem", task->through, "Body, kterými křivka projde: teplota:hodnota,…")->type_name("BODY");
    command->add_flag("--robustni", task->options.isRobust, "Odlehlé body nebudou mít váhu");
    command->add_option("--graf", task->picture, "Obrázek .svg nebo .png: body, křivka, rozsah a odchylky");
    command->add_option("--CAS", task->cas, "Registrační číslo do výsledného řádku")->type_name("CAS");
    command->add_option("--zdroj", task->source, "Zdroj do výsledného řádku")->type_name("ZDROJ");
    command->footer(
        "Nejmenší čtverce relativních odchylek; koeficienty jsou v jednoduché přesnosti a posuzuje se, co z nich "
        "program\n"
        "spočítá. Poslední dva řádky výpisu jsou tabulka pro příkaz pridej.");
    command->callback([task, &action] { action = [task] { return fitPoints(*task); }; });
}

}  // namespace velor::baze
