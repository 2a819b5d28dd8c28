// Writes calls and their results, one a line, for a client of another build to repeat: "mixture Redlich n substances
// fractions", or a member, its arguments ("X" is the composition) and the number it gives.
#include <velor/properties.h>
#include <velor/smes.h>

#include <cstdio>
#include <string>
#include <vector>

namespace {

using namespace velor;

struct Mixture {
    std::vector<int> substances;
    std::vector<double> fractions;
};

const Mixture kMixtures[] = {{{1}, {1.0}}, {{235, 1}, {0.4, 0.6}}, {{57, 235, 1, 234}, {0.1, 0.2, 0.3, 0.4}}};
constexpr double kTemperatures[] = {290.15, 333.3, 410.0}, kPressures[] = {5e4, 1.2e6};

void print(const std::string& call, double value) {
    if (value != -9999) std::printf("%s %.17g\n", call.c_str(), value);  // which says that there is none
}

std::string number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.17g", value);
    return text;
}

// Each value from an object of its own, so that no budget of messages is ever spent.
class Case {
  public:
    Case(const std::string& database, const Mixture& mixture, int redlich) : X_(Fractions(mixture.fractions)) {
        smes_.AdrVELOR(database);
        smes_.DefSlozky(List(mixture.substances));
        smes_.Redlich(redlich);
        smes_.Inivlr();
    }
    double byName(std::string_view name, double T, double P) {
        return smes_.Vlastnost(std::string(name), X_, T, P).toDouble();
    }
    Smes& smes() { return smes_; }
    const Variant& X() const { return X_; }

  private:
    RecordingUserInterface boxes_;
    Smes smes_{boxes_};
    Variant X_;
};

void writeMixture(const std::string& database, const Mixture& mixture, int redlich) {
    std::printf("mixture %d %zu", redlich, mixture.substances.size());
    for (const int substance : mixture.substances) std::printf(" %d", substance);
    for (const double fraction : mixture.fractions) std::printf(" %.17g", fraction);
    std::printf("\n");
    const auto fresh = [&] { return Case(database, mixture, redlich); };
    for (const double T : kTemperatures) {
        for (const MixtureProperty& property : mixtureProperties()) {
            if (!property.needsTemperature || property.isIntegral) continue;
            const std::string call = std::string(property.code) + " " + number(T);
            if (!property.needsPressure) print(call + " X", fresh().byName(property.code, T, 1e5));
            for (const double P : kPressures)
                if (property.needsPressure) print(call + " " + number(P) + " X", fresh().byName(property.code, T, P));
        }
        Case liquid = fresh();  // by name a cold liquid's enthalpy may count as not found
        print("HL " + number(T) + " X", liquid.smes().HL(T, liquid.X()).toDouble());
        print("HLW " + number(T) + " X", liquid.smes().HLW(T, liquid.X()).toDouble());
        for (int k = 1; k <= 10; ++k)
            print("FFce " + number(T) + " 1 " + std::to_string(k), fresh().smes().FFce(T, 1, k).toDouble());
    }
    for (const double P : kPressures)
        for (const char* name : {"TBV", "TRB"})
            print(std::string(name) + " " + number(P) + " X", fresh().byName(name, 300.0, P));
    Case one = fresh();
    print("VSM X", one.smes().VSM(one.X()).toDouble());
    for (const char* choice : {"T", "P", "V", "Z", "M"})
        print(std::string("PSEUD X ") + choice, one.smes().PSEUD(one.X(), choice).toDouble());
    for (int k = 1; k <= 15; ++k) print("Bod 1 " + std::to_string(k), one.smes().Bod(1, k));
    for (int j = 1; j <= 10; ++j) print("VLRConst 1 4 " + std::to_string(j), one.smes().VLRConst(1, 4, j));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    for (const Mixture& mixture : kMixtures)
        for (const int redlich : {0, 1}) writeMixture(argv[1], mixture, redlich);
    return 0;
}
