// What the supplement of the database tells of the components.
#include "object/state.h"
#include "runtime/numbers.h"
#include "velor/smes.h"

namespace velor {

namespace {

std::optional<Provenance> provenanceOf(const Smes& smes, int i, int k) {
    requireInt16({i, k});
    if (i < 1 || i > smes.Nsloz().toInt16() || i > ComponentSlots::kCount) return std::nullopt;
    return smes.supplement().provenance(substanceOf(i, smes.record(i)).cas, k);
}

}  // namespace

const Supplement& Smes::supplement() const {
    auto& kept = state_->supplement;
    if (!kept || kept->database != state_->place.AdresaBaze)
        kept = KeptSupplement{state_->place.AdresaBaze, Supplement::of(state_->place.AdresaBaze)};
    return kept->supplement;
}

std::string Smes::Zdroj(int i, int k) const {
    const auto provenance = provenanceOf(*this, i, k);
    if (!provenance) return std::string(supplement().note());
    return provenance->source + (provenance->isEstimate ? ", odhad" : "");
}

Variant Smes::Odchylka(int i, int k) const {
    const auto provenance = provenanceOf(*this, i, k);
    return provenance && provenance->deviation ? Variant(*provenance->deviation) : Variant();
}

}  // namespace velor
