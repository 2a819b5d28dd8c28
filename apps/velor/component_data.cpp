#include "component_data.h"

#include "runtime/text.h"

namespace velor::app {

namespace {

template <class Read>
std::optional<float> readable(const Read& read) {
    try {
        return read();
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

std::string trimmed(const Variant& text) { return std::string(trimBlanks(text.toText())); }

// Without the brackets and the blank that the library puts around it.
std::string casNumber(const std::string& text) {
    const std::size_t first = text.find_first_of("0123456789"), last = text.find(']');
    return first == std::string::npos ? std::string() : text.substr(first, last - first);
}

}  // namespace

ComponentData::ComponentData(const Smes& smes, int slot)
    : name_(trimmed(smes.Nazev(slot))),
      synonym_(trimmed(smes.Synonym(slot))),
      formula_(trimmed(smes.Vzorec(slot))),
      cas_(casNumber(smes.CAS(slot).toText())) {
    int k = 0;
    for (auto& constant : constants_) {
        ++k;
        constant = readable([&] { return smes.Bod(slot, k); });
    }
    k = 0;
    for (auto& correlation : correlations_) {
        ++k;
        int j = 0;
        for (auto& item : correlation) {
            ++j;
            item = readable([&] { return smes.VLRConst(slot, k, j); });
        }
    }
}

void ComponentData::putInto(Smes& smes, int slot) const {
    smes.Nazev(slot, name_);
    int k = 0;
    for (const auto& constant : constants_) {
        ++k;
        if (constant) smes.Bod(slot, k, *constant);
    }
    k = 0;
    for (const auto& correlation : correlations_) {
        ++k;
        int j = 0;
        for (const auto& item : correlation) {
            ++j;
            if (item) smes.VLRConst(slot, k, j, *item);
        }
    }
}

Substance ComponentData::described(const Substance& substance) const {
    return {substance.number, name_, synonym_, formula_, cas_};
}

}  // namespace velor::app
