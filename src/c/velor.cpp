// The C interface: handles around the C++ one. No exception passes it.
#include "velor/velor.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <span>
#include <string>
#include <vector>

#include "records/record_file.h"
#include "rules/equations.h"
#include "runtime/checked.h"
#include "velor/constants.h"
#include "velor/flash_table.h"
#include "velor/substances.h"
#include "velor/table.h"
#include "velor/text.h"
#include "velor/version.h"

struct velor_database {
    std::string path;
    velor::SubstanceList substances;
    std::vector<velor::TLatka> records;  // one a substance
};

struct velor_mixture {
    velor::PreparedMixture prepared;
};

namespace velor {

namespace {

// What the caller did wrong, beside the library's own errors.
struct WrongUse {
    const char* text;
};

// As much as fits, ended at a whole character.
void copyText(std::string_view text, std::span<char> buffer) {
    std::size_t length = 0;
    for (std::string_view rest = text; !rest.empty() && text.size() - rest.size() < buffer.size();) {
        length = text.size() - rest.size();
        takeCodePoint(rest);
        if (rest.empty() && text.size() < buffer.size()) length = text.size();
    }
    std::memcpy(buffer.data(), text.data(), length);
    buffer[length] = '\0';
}

int tell(velor_error* error, velor_status status, int number, std::string_view text) {
    if (error && error->size >= sizeof(velor_error)) {
        error->number = number;
        copyText(text, error->text);
    }
    return status;
}

template <class Body>
int guarded(velor_error* error, const Body& body) {
    try {
        body();
        return VELOR_OK;
    } catch (const WrongUse& wrong) {
        return tell(error, VELOR_WRONG_USE, 0, wrong.text);
    } catch (const RunTimeError& raised) {
        return tell(error, VELOR_RUN_TIME_ERROR, raised.number(), raised.description());
    } catch (const std::bad_alloc&) {
        return tell(error, VELOR_NO_MEMORY, 0, "Nedostatek paměti.");
    } catch (const std::exception& unexpected) {
        return tell(error, VELOR_UNEXPECTED, 0, unexpected.what());
    }
}

void require(bool isRight, const char* otherwise) {
    if (!isRight) throw WrongUse{otherwise};
}

// A caller built with an earlier library has a smaller structure; none has been yet.
template <class Structure>
void requireSize(const Structure* structure) {
    require(structure && structure->size >= sizeof(Structure), "Struktura chybí nebo má jinou velikost.");
}

// The catalogue's texts are literals: a zero byte stands behind them.
const char* literal(std::string_view text) { return text.empty() ? "" : text.data(); }

const char* verdictText(int verdict, std::string_view (*text)(Standing)) {
    const bool isVerdict = verdict >= 0 && static_cast<std::size_t>(verdict) < kStandings;
    return isVerdict ? literal(text(static_cast<Standing>(verdict))) : "";
}

template <class Row>
const Row& rowOf(std::span<const Row> rows, int index) {
    require(index >= 0 && static_cast<std::size_t>(index) < rows.size(), "Vlastnost s tímto pořadím není.");
    return rows[static_cast<std::size_t>(index)];
}

template <class Row>
int indexOf(std::span<const Row> rows, const Row* row) {
    return row ? static_cast<int>(row - rows.data()) : -1;
}

const TLatka& recordOf(const velor_database* database, int number) {
    require(database, "Databáze chybí.");
    for (std::size_t i = 0; i < database->substances.size(); ++i)
        if (database->substances[i].number == number) return database->records[i];
    throw WrongUse{"Látka s tímto číslem není v bázi."};
}

std::span<const double> spanOf(const velor_series& series) {
    require(series.values || series.count == 0, "Hodnoty chybí.");
    return {series.values, series.count};
}

Compositions compositionsOf(const velor_compositions* compositions) {
    requireSize(compositions);
    return {spanOf({compositions->values, compositions->count}), compositions->component_stride,
            compositions->point_stride, compositions->by_mass != 0 ? FractionKind::Mass : FractionKind::Mole,
            compositions->normalised != 0};
}

template <class Value>
std::span<Value> outputOf(Value* values, std::size_t count) {
    return {values, values ? count : 0};
}

// Where the caller's enumerators are numbers.
template <class Enumerator>
class Numbered {
  public:
    Numbered(int* numbers, std::size_t points) : numbers_(numbers), values_(numbers ? points : 0) {}
    std::span<Enumerator> values() { return values_; }
    void copy() const {
        std::ranges::transform(values_, numbers_, [](Enumerator value) { return static_cast<int>(value); });
    }

  private:
    int* numbers_;
    std::vector<Enumerator> values_;
};

// The table's own check is of lengths alone.
template <class Body>
void withLengthsChecked(const Body& body) {
    try {
        body();
    } catch (const RunTimeError&) {
        throw WrongUse{"Počty hodnot, složení a bodů si neodpovídají."};
    }
}

template <class Body>
void evaluateInto(double* values, int* verdicts, std::size_t points, const Body& body) {
    require(values || verdicts || points == 0, "Není kam zapsat.");
    Numbered<Standing> standings(verdicts, points);
    withLengthsChecked([&] { body(outputOf(values, points), standings.values()); });
    standings.copy();
}

}  // namespace

}  // namespace velor

using namespace velor;

const char* velor_version(void) {
    static const std::string text =
        std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." + std::to_string(kVersionRevision);
    return text.c_str();
}

int velor_verdict_count(void) { return static_cast<int>(kStandings); }
const char* velor_verdict_word(int verdict) { return verdictText(verdict, standingWord); }
const char* velor_verdict_mark(int verdict) { return verdictText(verdict, standingMark); }
const char* velor_verdict_note(int verdict) { return verdictText(verdict, standingNote); }
int velor_verdict_has_value(int verdict) {
    return verdict >= 0 && PropertyValue{static_cast<Standing>(verdict)}.isComputed() ? 1 : 0;
}

int velor_mixture_property_count(void) { return static_cast<int>(mixtureProperties().size()); }
int velor_mixture_property(int index, velor_property* property) {
    return guarded(nullptr, [&] {
        requireSize(property);
        const MixtureProperty& row = rowOf(mixtureProperties(), index);
        *property = {property->size,    literal(row.code), literal(row.caption),        literal(row.symbol),
                     literal(row.unit), literal(row.rule), static_cast<int>(row.phase), row.needsTemperature,
                     row.needsPressure};
    });
}
int velor_find_mixture_property(const char* code) {
    return code ? indexOf(mixtureProperties(), findMixtureProperty(code)) : -1;
}

int velor_pure_property_count(void) { return static_cast<int>(pureProperties().size()); }
int velor_pure_property(int index, velor_property* property) {
    return guarded(nullptr, [&] {
        requireSize(property);
        const PureProperty& row = rowOf(pureProperties(), index);
        *property = {
            property->size, literal(row.code), literal(row.caption), "", literal(row.unit), "", VELOR_ANY_PHASE, 1, 0};
    });
}
int velor_find_pure_property(const char* code) { return code ? indexOf(pureProperties(), findPureProperty(code)) : -1; }

int velor_database_open(const char* path, velor_database** database, velor_error* error) {
    return guarded(error, [&] {
        require(path && database, "Cesta nebo místo pro databázi chybí.");
        auto opened = std::make_unique<velor_database>();
        opened->path = path;
        opened->substances = readSubstances(opened->path);
        if (opened->substances.empty()) checked::raise(RunTimeError::kTypeMismatch);
        const RecordFile file(opened->path);
        for (const Substance& substance : opened->substances) opened->records.push_back(file.read(substance.number));
        *database = opened.release();
    });
}
void velor_database_close(velor_database* database) { delete database; }

int velor_database_count(const velor_database* database) {
    return database ? static_cast<int>(database->substances.size()) : 0;
}
int velor_database_substance(const velor_database* database, int index, velor_substance* substance) {
    return guarded(nullptr, [&] {
        requireSize(substance);
        require(index >= 0 && index < velor_database_count(database), "Látka s tímto pořadím není.");
        const Substance& row = database->substances[static_cast<std::size_t>(index)];
        *substance = {substance->size,     row.number,          row.name.c_str(),
                      row.synonym.c_str(), row.formula.c_str(), row.cas.c_str()};
    });
}

int velor_database_find(const velor_database* database, const char* wanted, int* finding, int* numbers, int capacity,
                        int* count, velor_error* error) {
    return guarded(error, [&] {
        require(database && wanted && finding && count, "Databáze, text nebo místo pro výsledek chybí.");
        require(capacity >= 0 && (numbers || capacity == 0), "Místo pro čísla látek chybí.");
        const FoundSubstance found = searchSubstance(database->substances, wanted);
        *count = static_cast<int>(found.candidates.size());
        for (int i = 0; i < std::min(capacity, *count); ++i)
            numbers[i] = found.candidates[static_cast<std::size_t>(i)]->number;
        switch (found.outcome) {
            case Finding::Found:
                *finding = VELOR_FOUND;
                break;
            case Finding::Interpreted:
                *finding = VELOR_INTERPRETED;
                break;
            case Finding::Several:
                *finding = VELOR_SEVERAL;
                break;
            case Finding::NothingTyped:
            case Finding::Unknown:
            case Finding::UnknownNumber:
                *finding = VELOR_UNKNOWN;
        }
    });
}

int velor_constant_count(void) { return static_cast<int>(kConstantTable.size()); }
const char* velor_constant_key(int k) {
    return k >= 0 && k < velor_constant_count() ? literal(kConstantTable[static_cast<std::size_t>(k)].key) : "";
}
const char* velor_constant_unit(int k) {
    return k >= 0 && k < velor_constant_count() ? literal(kConstantTable[static_cast<std::size_t>(k)].unit) : "";
}
int velor_database_constant(const velor_database* database, int number, int k, double* value) {
    return guarded(nullptr, [&] {
        require(value && k >= 0 && k < velor_constant_count(), "Konstanta s tímto pořadím není.");
        const float constant = recordOf(database, number).*kConstantTable[static_cast<std::size_t>(k)].member;
        *value = constant == kNoConstant ? std::numeric_limits<double>::quiet_NaN() : double{constant};
    });
}

int velor_database_correlation(const velor_database* database, int number, int property,
                               velor_correlation* correlation) {
    return guarded(nullptr, [&] {
        requireSize(correlation);
        const PureProperty& row = rowOf(pureProperties(), property);
        const TKorelace& block = recordOf(database, number).Korelace[static_cast<std::size_t>(row.number - 1)];
        *correlation = {correlation->size,
                        block.Priznak != 0,
                        block.Typ,
                        literal(equationText(block.Typ)),
                        {},
                        static_cast<double>(block.Tmin),
                        static_cast<double>(block.Tmax)};
        std::ranges::copy(block.A, correlation->coefficients);
    });
}

int velor_mixture_create(const velor_database* database, const int* numbers, int count, const velor_settings* settings,
                         velor_mixture** mixture, velor_error* error) {
    return guarded(error, [&] {
        require(database && numbers && mixture && count > 0, "Databáze, čísla látek nebo místo pro směs chybí.");
        if (settings) requireSize(settings);
        const MixtureSettings chosen{settings && settings->soave != 0, settings && settings->clamped != 0};
        const std::span components(numbers, static_cast<std::size_t>(count));
        *mixture = new velor_mixture{PreparedMixture(database->path, components, chosen)};
    });
}
void velor_mixture_free(velor_mixture* mixture) { delete mixture; }

int velor_evaluate(const velor_mixture* mixture, int property, velor_series temperatures, velor_series pressures,
                   const velor_compositions* compositions, size_t points, double* values, int* verdicts, int threads,
                   velor_error* error) {
    return guarded(error, [&] {
        require(mixture && compositions, "Směs nebo složení chybí.");
        const MixtureProperty& row = rowOf(mixtureProperties(), property);
        const Compositions X = compositionsOf(compositions);
        const auto T = spanOf(temperatures), P = spanOf(pressures);
        evaluateInto(values, verdicts, points, [&](std::span<double> found, std::span<Standing> standings) {
            evaluate(mixture->prepared, row, T, P, X, found, standings, {threads});
        });
    });
}

int velor_evaluate_pure(const velor_mixture* mixture, int property, int component, velor_series temperatures,
                        size_t points, double* values, int* verdicts, int threads, velor_error* error) {
    return guarded(error, [&] {
        require(mixture, "Směs chybí.");
        const PureProperty& row = rowOf(pureProperties(), property);
        require(component >= 0 && component < mixture->prepared.size(), "Složka s tímto pořadím není.");
        const auto T = spanOf(temperatures);
        evaluateInto(values, verdicts, points, [&](std::span<double> found, std::span<Standing> standings) {
            evaluate(mixture->prepared, row, component + 1, T, found, standings, {threads});
        });
    });
}

int velor_flash(const velor_mixture* mixture, int kind, velor_series temperatures, velor_series pressures,
                const velor_compositions* feeds, size_t points, const velor_flash_results* results, int threads,
                velor_error* error) {
    return guarded(error, [&] {
        require(mixture && feeds, "Směs nebo složení chybí.");
        requireSize(results);
        require(kind == VELOR_ISOTHERMAL || kind == VELOR_ADIABATIC, "Takový flash není.");
        const bool hasPhases = results->liquids || results->vapours || results->equilibriums;
        require(!hasPhases || results->fraction_count > 0 || points == 0, "Není kam zapsat zlomky.");
        const Compositions Z = compositionsOf(feeds);
        const auto T = spanOf(temperatures), P = spanOf(pressures);
        Numbered<FlashOutcome> outcomes(results->outcomes, points);
        Numbered<Standing> verdicts(results->verdicts, points);
        const FlashResults arrays{outcomes.values(),
                                  verdicts.values(),
                                  outputOf(results->passes, points),
                                  outputOf(results->vapour_fractions, points),
                                  outputOf(results->temperatures, points),
                                  outputOf(results->bubble_points, points),
                                  outputOf(results->dew_points, points),
                                  outputOf(results->material_residuals, points),
                                  outputOf(results->energy_residuals, points),
                                  outputOf(results->liquids, results->fraction_count),
                                  outputOf(results->vapours, results->fraction_count),
                                  outputOf(results->equilibriums, results->fraction_count),
                                  results->component_stride,
                                  results->point_stride};
        const FlashKind chosen = kind == VELOR_ADIABATIC ? FlashKind::Adiabatic : FlashKind::Isothermal;
        withLengthsChecked([&] { flash(mixture->prepared, chosen, T, P, Z, points, arrays, {threads}); });
        outcomes.copy();
        verdicts.copy();
    });
}
