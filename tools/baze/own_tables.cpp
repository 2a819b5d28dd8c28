#include "baze/own_tables.h"

#include <algorithm>
#include <limits>
#include <map>
#include <set>
#include <span>

#include "baze/compile.h"
#include "baze/correlations_table.h"
#include "baze/substances_table.h"
#include "baze/supplement_table.h"
#include "records/record_file.h"
#include "records/record_layout.h"
#include "rules/equations.h"  // what they give inside their ranges
#include "velor/run_time_error.h"
#include "velor/smes.h"
#include "velor/substances.h"
#include "velor/text.h"

namespace velor::baze {

namespace {

// ---- The tables of a text ----------------------------------------------------------------------------------------

struct Block {
    int firstLine = 1;
    std::string_view text;
};

// A line without a letter or digit separates: worksheets fill empty ones with commas.
bool separates(std::string_view line) { return line.find_first_not_of(", \t\r") == std::string_view::npos; }

std::vector<Block> blocksOf(std::string_view text) {
    std::vector<Block> blocks;
    int number = 0;
    bool isOpen = false;
    while (!text.empty()) {
        const std::size_t length = std::min(text.find('\n'), text.size() - 1) + 1;
        const std::string_view line = text.substr(0, length);
        text.remove_prefix(length);
        ++number;
        if (separates(line.substr(0, line.find('\n')))) {
            isOpen = false;
        } else if (isOpen) {
            blocks.back().text = {blocks.back().text.data(), blocks.back().text.size() + line.size()};
        } else {
            blocks.push_back({number, line});
            isOpen = true;
        }
    }
    return blocks;
}

bool hasColumn(const Block& block, std::string_view name) {
    const std::string_view header = block.text.substr(0, block.text.find('\n'));
    return header.find(name) != std::string_view::npos;
}

struct OwnTables {
    std::vector<OwnSubstance> substances;
    std::vector<OwnCorrelation> correlations;
};

OwnTables readTables(std::string_view text, LineFaults& faults) {
    OwnTables tables;
    const auto blocks = blocksOf(text);
    if (blocks.empty()) faults.push_back({1, "soubor neobsahuje žádnou tabulku"});
    for (const Block& block : blocks) {
        const std::string_view header = block.text.substr(0, block.text.find('\n'));
        if (header.find(';') != std::string_view::npos) {
            faults.push_back({block.firstLine, "sloupce odděluje čárka, ne středník"});
        } else if (hasColumn(block, "vlastnost")) {
            for (auto& row : readOwnCorrelations(block.text, block.firstLine, faults))
                tables.correlations.push_back(std::move(row));
        } else if (hasColumn(block, "Nazev")) {
            for (auto& row : readOwnSubstances(block.text, block.firstLine, faults))
                tables.substances.push_back(std::move(row));
        } else {
            faults.push_back(
                {block.firstLine, "záhlaví není tabulka látek (Nazev, CAS …) ani korelací (CAS, vlastnost …)"});
        }
    }
    return tables;
}

// ---- What becomes of the database --------------------------------------------------------------------------------

struct Change {
    bool isNew = false;
    bool hasConstants = false;
    std::set<int> properties;
};

// No property of a substance is negative, and none is missing inside its own range.
std::string faultInRange(const TKorelace& block) {
    for (int T = block.Tmin; T <= block.Tmax; ++T) {
        const std::string at = " při " + std::to_string(T) + " K, v rozsahu Tmin až Tmax";
        try {
            const double value = evaluateEquation(block.Typ, block.A, static_cast<double>(T));
            if (value < 0) return "rovnice dává zápornou hodnotu" + at;
            if (value == kNoValue) return "rovnice nemá hodnotu" + at;
        } catch (const RunTimeError&) {
            return "rovnice nemá hodnotu" + at;
        }
    }
    return {};
}

class OwnDatabase {
  public:
    OwnDatabase(std::string_view bytes, const Supplement& supplement) {
        for (std::size_t at = 0; at + kRecordSize <= bytes.size(); at += kRecordSize) {
            const TLatka record = decodeRecord(std::span<const char, kRecordSize>(bytes.data() + at, kRecordSize));
            const int number = static_cast<int>(at / kRecordSize) + 1;
            last_ = number;
            if (!isUsed(record)) continue;
            records_.emplace(number, record);
            const std::string cas = substanceOf(number, record).cas;
            if (record.CAS != 0) numberOfCas_.emplace(record.CAS, number);
            for (int k = 1; k <= TLatka::kCorrelations; ++k) keep(number, k, record, supplement.provenance(cas, k));
        }
        further_ = takeApart(supplement.text(), records_);
    }

    void add(const OwnSubstance& own, LineFaults& faults) {
        const auto known = numberOfCas_.find(own.record.CAS);
        const int number = known == numberOfCas_.end() ? last_ + 1 : known->second;
        if (own.record.Cislo != 0 && own.record.Cislo != number)
            faults.push_back(
                {own.line, "Cislo: látka dostane číslo " + std::to_string(number) + ", pole nechte prázdné"});
        if (number > std::numeric_limits<std::int16_t>::max())
            return faults.push_back({own.line, "Cislo: v bázi už není volné číslo"});
        TLatka record = own.record;
        record.Cislo = static_cast<std::int16_t>(number);
        if (known == numberOfCas_.end()) {
            last_ = number;
            numberOfCas_.emplace(record.CAS, number);
        } else {
            record.Korelace = records_[number].Korelace;
            keepUntold(record, records_[number], own.untold);
        }
        requireOwnName(number, record, own.line, faults);
        records_[number] = record;
        Change& change = changes_[number];
        change.isNew = known == numberOfCas_.end();
        change.hasConstants = true;
    }

    void add(const OwnCorrelation& own, LineFaults& faults) {
        const int number = own.cas == 0 ? own.row.number : numberOf(own.cas);
        if (!records_.contains(number))
            return faults.push_back({own.row.line, own.cas == 0
                                                       ? "Cislo: látka " + std::to_string(number) + " v bázi není"
                                                       : "CAS: látka v bázi ani v tabulce látek není"});
        if (!changes_[number].properties.insert(own.row.property).second)
            return faults.push_back(
                {own.row.line, "vlastnost: " + Smes::ChybRozv(own.row.property) + " téže látky už v tabulce je"});
        if (const std::string fault = faultInRange(own.row.block); !fault.empty())
            faults.push_back({own.row.line, fault});
        records_[number].Korelace[static_cast<std::size_t>(own.row.property - 1)] = own.row.block;
        CorrelationRow row = own.row;
        row.number = number;
        correlations_[{number, row.property}] = row;
    }

    Addition finished(LineFaults& faults) const {
        Addition addition;
        std::vector<CorrelationRow> rows;
        for (const auto& [key, row] : correlations_) rows.push_back(row);
        SupplementFaults ofOwnTexts;
        if (!faults.empty()) return addition;
        addition.bytes = databaseBytes(records_);
        addition.supplement = makeSupplement(records_, rows, further_, ofOwnTexts);
        for (const auto& [number, change] : changes_) {
            ++(change.isNew ? addition.added : addition.changed);
            addition.report.push_back(sentence(number, change));
        }
        return addition;
    }

  private:
    int numberOf(std::int32_t cas) const {
        const auto known = numberOfCas_.find(cas);
        return known == numberOfCas_.end() ? 0 : known->second;
    }

    void keep(int number, int k, const TLatka& record, const std::optional<Provenance>& told) {
        const TKorelace& block = record.Korelace[static_cast<std::size_t>(k - 1)];
        if (!told) return;
        correlations_[{number, k}] = {0,
                                      number,
                                      k,
                                      block,
                                      told->source,
                                      told->deviation ? exactText(*told->deviation) : std::string(),
                                      told->isEstimate};
    }

    // Names are found without regard to case.
    void requireOwnName(int number, const TLatka& own, int line, LineFaults& faults) const {
        const std::string name = upperCase(substanceOf(number, own).name);
        for (const auto& [other, record] : records_)
            if (other != number && upperCase(substanceOf(other, record).name) == name)
                faults.push_back({line, "Nazev: tak se už jmenuje látka " + std::to_string(other)});
    }

    std::string sentence(int number, const Change& change) const {
        const Substance substance = substanceOf(number, records_.at(number));
        std::string told, missing;
        for (int k = 1; k < TLatka::kCorrelations; ++k) {
            if (change.properties.contains(k)) told += ' ' + Smes::ChybRozv(k);
            if (records_.at(number).Korelace[static_cast<std::size_t>(k - 1)].Priznak == 0)
                missing += ' ' + Smes::ChybRozv(k);
        }
        std::string text = (change.isNew ? "přidána " : "změněna ") + std::to_string(number) + ' ' + substance.name +
                           " (" + substance.cas + "):" + (change.hasConstants ? " konstanty" : "") +
                           (change.hasConstants && !told.empty() ? "," : "") + told;
        if (!missing.empty()) text += "; chybí" + missing;
        return text;
    }

    std::map<int, TLatka> records_;
    std::map<std::int32_t, int> numberOfCas_;
    std::map<std::pair<int, int>, CorrelationRow> correlations_;  // of which the supplement tells
    SupplementTexts further_;
    std::map<int, Change> changes_;
    int last_ = 0;
};

}  // namespace

Addition addOwnSubstances(std::string_view databaseBytes, const Supplement& supplement, std::string_view text,
                          LineFaults& faults) {
    const OwnTables tables = readTables(text, faults);
    OwnDatabase database(databaseBytes, supplement);
    for (const OwnSubstance& own : tables.substances) database.add(own, faults);
    for (const OwnCorrelation& own : tables.correlations) database.add(own, faults);
    return database.finished(faults);
}

std::string ownTablesTemplate() {
    return ownSubstancesHeader() +
           "Voda,Water "
           "(H2O),H2O,7732-18-5,0.01801528,647.096,2.2064e7,5.595e-5,0.3443,6.15e-11,1.333,293.15,1.85,,80.1,"
           "293.2,6001.74,273.15,373.124\n\n" +
           ownCorrelationsHeader() +
           // Wagner and Pruss (1993) needs more terms than any of the types; Antoine's form is the shortest example.
           "7732-18-5,TENS,6,23.1964,-3816.44,-46.13,,,,284,441,vlastní měření,0.3,\n";
}

}  // namespace velor::baze
