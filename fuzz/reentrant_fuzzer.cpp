// A host that calls back from every box and form: whatever a box or a form leads to, the object that showed it has to
// go on with what it finds then. The bytes seed the choice of the calls.
#include <array>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <random>
#include <vector>

#include "sample_points.h"
#include "support/sample_database.h"
#include "target.h"
#include "temporary_file.h"
#include "velor/component_forms.h"
#include "velor/forms.h"
#include "velor/smes.h"

namespace {

using namespace velor;

constexpr int kCalls = 2000;         // of one object
constexpr int kDeepest = 3;          // a box within a box within a box
constexpr int kSparedBudget = 1000;  // messages that have to be left, so that bubble and dew points end

class Host final : public UserInterface {
  public:
    Host(const std::string& folder, std::uint64_t seed) : folder_(folder), random_(seed), smes_(*this, {folder}) {
        smes_.CFGPath(folder);
        smes_.AdrVELOR(folder + "VELOR.DRC");
        smes_.MaxErrHlas(fuzz::kAmpleBudget);
    }

    // The number of calls made.
    int run() {
        while (mayCall()) callMember();
        return calls_;
    }

    Answer showMessage(const Message& message) override {
        reenter();
        if (message.buttons == Buttons::Ok) return Answer::Ok;
        return below(4) == 0 ? Answer::Yes : Answer::No;
    }
    std::string askText(const InputRequest&) override {
        reenter();
        constexpr const char* kTexts[] = {"0", "1", "2", "101325", "0.4 0.6", "0.2 0.3 0.5", "Voda", "*", "", "80"};
        if (below(8) == 0 || !mayCall()) throw RunTimeError(RunTimeError::kInputPastEnd);
        return kTexts[below(std::size(kTexts))];
    }
    void showForm(F_Sezn& form) override {
        act({[&] { form.keyPressed(13); }});
        form.close();
    }
    void showForm(F_Seznam& form) override {
        act({[&] { form.selectLine(below(5)); }, [&] { form.doubleClick(); }, [&] { form.setText(below(21), "2"); },
             [&] { form.keyPressed(below(21), kEnterKey); }, [&] { form.clickZpet(); }, [&] { form.clickC_OK(); }});
        form.close();
    }
    void showForm(F_Sloz& form) override {
        act({[&] { form.setText(below(21), "0.5"); }, [&] { form.mouseOnName(below(21), 1); },
             [&] { form.mouseOnName(below(21), 2); }, [&] { form.clickO_Hmot(); }});
        mayCall() && below(2) == 0 ? form.clickC_OK() : form.close();
    }
    void showForm(frmLatka& form) override {
        act({[&] { form.selectProperty(below(11)); }, [&] { form.clickC_Vypocet(); },
             [&] { form.setTemperature("900"); }});
        form.close();
    }
    void showForm(F_Zmenaz& form) override {
        act({[&] { form.setText(below(20), "1"); }, [&] { form.clickC_OK(); }, [&] { form.clickC_Data(); },
             [&] { form.clickC_Obnovit(); }});
        if (form.visible) form.close();
    }
    void showForm(frmOprav& form) override {
        act({[&] { form.setText(below(10), "21"); }, [&] { form.selectProperty(below(11)); },
             [&] { form.clickC_Vypocet(); }, [&] { form.clickC_Obnovit(); }, [&] { form.clickC_OK(); }});
        if (form.visible) form.close();
    }

  private:
    using Action = std::function<void()>;

    int below(std::size_t count) { return static_cast<int>(random_() % count); }
    bool mayCall() const { return calls_ < kCalls && smes_.PocHlasek() < fuzz::kAmpleBudget - kSparedBudget; }

    void act(const std::vector<Action>& actions) {
        for (int turn = below(4); turn > 0; --turn) {
            fuzz::tryCall("form", actions[static_cast<std::size_t>(below(actions.size()))]);
            reenter();
        }
    }

    void reenter() {
        if (depth_ == kDeepest || !mayCall()) return;
        ++depth_;
        for (int turn = below(3); turn > 0; --turn) callMember();
        --depth_;
    }

    double temperature() {
        return std::array{300.0, 350.0, 650.0, 0.0, -1.0, 1e300}[static_cast<std::size_t>(below(6))];
    }
    double pressure() { return std::array{101325.0, 1e7, 0.0, -1.0}[static_cast<std::size_t>(below(4))]; }

    Variant fractions() {
        std::vector<double> x(static_cast<std::size_t>(below(8) == 0                  ? below(25)
                                                       : smes_.Nsloz().toDouble() > 0 ? 20
                                                                                      : 3));
        for (double& fraction : x) fraction = below(4) == 0 ? 0.0 : 0.25;
        return Numbers(x);
    }

    Variant numbers() {
        std::vector<int> chosen(static_cast<std::size_t>(1 + below(3)));
        for (int& number : chosen) number = below(7);  // one is not in the database, one not given at all
        return List(chosen);
    }

    // The definition, and what shows boxes and forms.
    void changeOrShow() {
        Variant n, X = fractions(), W = fractions();
        const Action calls[] = {
            [&] { smes_.DefSlozky(numbers()); },
            [&] {
                smes_.DefSmes(1 + below(3), Fractions({1, 2, 3}));
            },
            [&] { smes_.Nsloz(below(25) - 2); },
            [&] { smes_.ZapisNslozky(below(22), below(7)); },
            [&] { smes_.ResetujSmes(); },
            [&] { smes_.Inivlr(); },
            [&] { smes_.ChyboveHlasky(below(3) - 1); },
            [&] { smes_.Redlich(below(2)); },
            [&] { below(2) == 0 ? smes_.MezeZap() : smes_.MezeVyp(); },
            [&] { smes_.VLRConst(below(4), below(12), below(11), 3); },
            [&] { smes_.Bod(below(4), below(18), below(2)); },
            [&] { smes_.Nazev(below(4), "Jiná"); },
            [&] { smes_.AkSeznam(); },
            [&] { smes_.SeznamShow(below(3)); },
            [&] { smes_.ZadejSmes(); },
            [&] { smes_.ZadejSloz(n, X, W, Variant::missing(), below(5) - 2); },
            [&] { smes_.mSloz_ZobrazL(below(4)); },
            [&] { smes_.mSloz_ZobrazZ(below(4)); },
            [&] { smes_.mSloz_ZpetSloz(); },
            [&] { smes_.mSeznam_zavrit(); },
            [&] { smes_.PseudShow(X); },
            [&] { smes_.AdrVELOR(below(9) == 0 ? "" : folder_ + "VELOR.DRC"); },
            [&] { smes_.DataFileName(below(2) == 0 ? "VELOR.DRC" : "x"); },
        };
        fuzz::tryCall("change", calls[below(std::size(calls))]);
    }

    void callMember() {
        ++calls_;
        if (below(2) == 0) return changeOrShow();
        const Variant X = fractions();
        Variant T = temperature(), P = pressure(), converted = fractions();
        const Action calls[] = {
            [&] {
                const auto properties = mixtureProperties();
                const std::string code(properties[static_cast<std::size_t>(below(properties.size()))].code);
                fuzz::requireFinite(smes_.Vlastnost(code, X, T, P), "by name");
            },
            [&] { fuzz::requireFinite(smes_.FFce(T, below(4), below(12)), "FFce"); },
            [&] { smes_.TBV(P, X); },
            [&] { smes_.TRB(P, X); },
            [&] { smes_.FLASH(below(3) - 1, T, P, X); },
            [&] { smes_.PSEUD(X, "T"); },
            [&] { smes_.PrG(T, P, X); },
            [&] { smes_.ReL(T, X, 1, 1); },
            [&] { smes_.KsumX(X); },
            [&] { smes_.Cohmo(X, converted); },
            [&] { smes_.Comol(X, converted); },
            [&] { smes_.Normal(converted); },
            [&] { fuzz::askKeptResults(smes_); },
        };
        fuzz::tryCall("value", calls[below(std::size(calls))]);
    }

    std::string folder_;
    std::mt19937_64 random_;
    int calls_ = 0, depth_ = 0;
    Smes smes_;
};

// How many calls the process has made, told at its end.
struct Tally {
    long long calls = 0;
    ~Tally() { std::fprintf(stderr, "calls: %lld\n", calls); }
};

std::string database() {
    std::vector<TLatka> records;
    for (const char* name : {"Voda", "Ethanol", "Benzen", "", "Toluen"})
        records.push_back(test::sampleSubstance(static_cast<int>(records.size()) + 1, name));
    records[3].Nazev.fill('\0');         // not in the database
    records[2].Korelace[8].Priznak = 0;  // no vapour pressure
    records[4].Korelace[0].Typ = 21;     // no such equation
    return test::acceptableDatabase(records);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::TemporaryFolder folder;
    static Tally tally;
    fuzz::Bytes bytes(data, size);
    while (!bytes.empty()) {
        folder.write("VELOR.DRC", database());
        tally.calls += Host(folder.path(), bytes.take<std::uint64_t>()).run();
    }
    return 0;
}
