// A mixture property chosen by its short name at run time.
#include <cmath>
#include <string>

#include "object/messages.h"
#include "object/state.h"
#include "runtime/text.h"
#include "velor/constants.h"
#include "velor/properties.h"
#include "velor/smes.h"

namespace velor {

namespace {

constexpr double kLeastPressure = 1e-06;

bool isAboveNothing(const Variant& value) { return value.isEmpty() || value.toDouble() > kNothing; }

}  // namespace

Variant Smes::Vlastnost(const std::string& Name, const Variant& X, const Variant& T, const Variant& P) {
    const PublicCall call(*state_);
    State& state = *state_;
    const MixtureProperty* const property = findMixtureProperty(Name);
    // One statement under the trap, which resumes behind it.
    const auto attempt = [&](const auto& statement) {
        try {
            statement();
        } catch (const RunTimeError& error) {
            if (error.number() == RunTimeError::kTypeMismatch) {
                show(state.messages,
                     "Špatně zadané parametry fce Vlastnost, (tlak)" + std::string(kLineBreak) +
                         "nebo neznámá vlastnost: " + Name,
                     Icon::Critical, "VELOR fce Vlastnost");
            } else if (state.messages.ChyboveHlasky == -1) {
                raiseToHost("VELOR - Vlastnost", "Chyba při výpočtu vlastnosti " + upperCase(Name));
            }
        }
    };

    Variant result = kNothing;
    const auto evaluate = [&] { result = property->method(*this, T, P, X); };
    if (property && !property->needsPressure) attempt(evaluate);
    if (isAboveNothing(result)) return result;

    bool refused = false;
    attempt([&] {
        // Only a magnitude near 0 is refused, whatever the message says of negative ones; and a spent budget lets
        // even 0 pass. Both are kept.
        refused = std::abs(P.toDouble()) < kLeastPressure && state.messages.PocHlasek < state.messages.MaxErrHlas;
        if (refused)
            showCounted(state.messages, "Zadaný tlak je nulový nebo záporný!", Icon::Critical, "VELOR - fce Vlastnost");
    });
    if (refused) return kNothing;

    if (property && property->needsPressure) {
        result = kNothing;
        attempt(evaluate);
        return result;
    }
    show(state.messages, "Neznámá nebo chybná vlastnost!: " + Name, Icon::Critical, "VELOR fce Vlastnost");
    return kNothing;
}

}  // namespace velor
