// A database that holds what is awkward for the command.
#pragma once

#include <limits>

#include "command.h"
#include "support/sample_database.h"

namespace velor::test {

inline TLatka substance(int number, std::string_view name, std::string_view synonym, std::string_view formula,
                        int cas) {
    TLatka record = sampleSubstance(number, name);
    setText(record.Synonym, synonym);
    setText(record.Vzorec, formula);
    record.CAS = cas;
    return record;
}

// Property k of every sample is k + T between 200 and 400 K; the critical temperature is 500 K.
inline std::vector<TLatka> awkwardSubstances() {
    std::vector<TLatka> records{
        substance(1, "Voda", "Water (H2O)", "H2O", 7732185),
        substance(2, "Ethanol", "Ethylalkohol", "C2H6O", 64175),
        substance(3, "Dimethylether", "Dimethyl ether (DME)", "C2H6O", 115106),
        substance(4, "Kyselina octová", "Acetic acid", "C2H4O2", 64197),
        substance(5, "2,2-Dimethylpropan", "Neopentan", "C5H12", 463821),
        substance(6, "Oxid uhelnatý", "Carbon monoxide", "CO", 630080),
        substance(7, "Kobalt", "Cobalt", "Co", 7440484),
        substance(8, "Ethan", "Ethane", "C2H6", 74840),
        blankRecord(),
        substance(10, "Toluen", "Methylbenzen, Toluol", "C7H8", 0),
        substance(11, "Vadný prvek", "", "Xx", 0),
    };
    TLatka& toluene = records[9];
    toluene.Gyr = -9999;
    toluene.Korelace[9] = {};                                       // no SIGMA
    toluene.Korelace[8] = {{0.3F, 0.25F, 250.0F}, 7, 1, 100, 240};  // TENS: none above 250 K
    toluene.Korelace[7] = {{1.0F, 1.0F, -300.0F}, 6, 1, 200, 400};  // DHV: divides by zero at 300 K
    toluene.Korelace[6].Typ = 99;                                   // CPL: no such equation
    records[10].Pkr = std::numeric_limits<float>::quiet_NaN();
    return records;
}

class SmallDatabase {
  public:
    SmallDatabase() : path_(folder_.write("VELOR.DRC", databaseBytes(awkwardSubstances()))) {}

    const std::string& path() const { return path_; }

    Outcome run(Words words, const Words& more = {}) const {
        words.insert(words.end(), {"--baze", path_});
        words.insert(words.end(), more.begin(), more.end());
        return test::run(words);
    }

  private:
    TemporaryFolder folder_;
    std::string path_;
};

}  // namespace velor::test
