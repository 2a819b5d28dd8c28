#include "commands.h"
#include "mixture_view.h"

namespace velor::app {

namespace {

Section pseudocriticalSection(MixtureObject& object) {
    const auto pseud = [&](const char* selector) { return object.smes.PSEUD(object.X, selector).toDouble(); };
    return {"pseudokriticke",
            "Pseudokritické veličiny (Kay, 1936) a molární hmotnost",
            Entries{{"MSm", "molární hmotnost", pseud("M"), "kg/mol"},
                    {"TKRITsm", "pseudokritická teplota", pseud("T"), "K"},
                    {"PKRITsm", "pseudokritický tlak", pseud("P"), "Pa"},
                    {"VKRITsm", "pseudokritický molární objem", pseud("V"), "m³/mol"},
                    {"ZKRITsm", "pseudokritický kompresibilitní faktor", pseud("Z"), ""}},
            {}};
}

}  // namespace

Report describeMixture(const Mixture& mixture, double P) {
    MixtureObject object(mixture);
    return {{compositionSection(mixture), pseudocriticalSection(object), boilingSection(boilingRange(mixture, P), P)},
            {}};
}

Report answer(const MixtureRequest& request, const Database& database, UserInterface&) {
    return describeMixture(findMixture(request.composition, database), request.pressure);
}

}  // namespace velor::app
