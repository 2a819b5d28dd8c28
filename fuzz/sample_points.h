// Everything that a mixture can be asked, by name, on one object or on a fresh one for each question.
#pragma once

#include <array>
#include <limits>
#include <string>

#include "target.h"
#include "velor/properties.h"
#include "velor/smes.h"

namespace velor::fuzz {

// A bubble or dew point ends only while its divergence message is due: never on an object that may have spent its
// messages, nor in mode 2.
inline constexpr int kAmpleBudget = std::numeric_limits<std::int16_t>::max();

inline void askConstants(Smes& smes, int i) {
    for (const auto accessor :
         {&Smes::Mvi,     &Smes::Tkri,    &Smes::TkriC,   &Smes::Pkri,     &Smes::Vkri,  &Smes::Acenti,
          &Smes::Tnbvi,   &Smes::TnbviC,  &Smes::Ttani,   &Smes::TtaniC,   &Smes::Htani, &Smes::Nlomui,
          &Smes::TNlomui, &Smes::TDipolm, &Smes::Permiti, &Smes::TPermiti, &Smes::Gyr,   &Smes::Vzorec,
          &Smes::Synonym, &Smes::CAS,     &Smes::Nslozky})
        tryCall("constant", [&] { return (smes.*accessor)(i); });
    tryCall("Nazev", [&] { return smes.Nazev(i); });
    tryCall("Dipolm", [&] { return smes.Dipolm(i); });
    for (int k = 0; k <= 18; ++k) tryCall("Bod", [&] { return smes.Bod(i, k); });
    for (int k = 0; k <= 12; ++k)
        for (int j = 0; j <= 11; ++j) tryCall("VLRConst", [&] { return smes.VLRConst(i, k, j); });
}

inline void askKeptResults(Smes& smes) {
    for (const auto kept : {&Smes::RGHustota, &Smes::RGVnitrniEnergie, &Smes::RGEntalpie, &Smes::RGEntropie,
                            &Smes::RGLnFug, &Smes::RGCv, &Smes::RGCp, &Smes::RGJouleThomson, &Smes::TKRITsm,
                            &Smes::PKRITsm, &Smes::VKRITsm, &Smes::ZKRITsm, &Smes::MSm})
        tryCall("kept result", [&] { return (smes.*kept)(); });
    for (int i = 0; i <= 21; ++i) {
        tryCall("Slozeni", [&] { return smes.Slozeni(i); });
        tryCall("Zlomky", [&] { return smes.Zlomky(i); });
    }
}

inline void askMixture(Smes& smes, const Variant& T, const Variant& P, const Variant& X) {
    for (const MixtureProperty& property : mixtureProperties())
        if (!property.outcome)
            tryCall(property.code, [&] { return smes.Vlastnost(std::string(property.code), X, T, P); });
    tryCall("by no name", [&] { return smes.Vlastnost("?", X, T, P); });
    for (const char* part : {"T", "P", "V", "Z", "M", "?"}) tryCall("PSEUD", [&] { return smes.PSEUD(X, part); });
    for (const int mode : {0, 1}) tryCall("TEVRP", [&] { return smes.TEVRP(mode, T, P, X); });
    tryCall("PrG", [&] { return smes.PrG(T, P, X); });
    tryCall("ReG", [&] { return smes.ReG(T, P, X, T, P); });
    tryCall("ReL", [&] { return smes.ReL(T, X, T, P); });
    tryCall("KsumX", [&] { return smes.KsumX(X); });
    for (const auto conversion : {&Smes::Cohmo, &Smes::Comol}) {
        Variant converted = Numbers(std::array<double, 20>{});
        tryCall("conversion", [&] { return (smes.*conversion)(X, converted); });
        requireFinite(converted, "converted fractions");
    }
    askKeptResults(smes);
}

// Each on an object that make() has just made and defined.
template <class Make>
void askSaturation(const Make& make, const Variant& P, const Variant& X) {
    for (const auto point : {&Smes::TBV, &Smes::TRB}) {
        const auto smes = make();
        if (smes->PocHlasek() >= smes->MaxErrHlas() || smes->ChyboveHlasky() == 2) continue;
        tryCall("saturation", [&] { return (smes.get()->*point)(P, X); });
    }
}

}  // namespace velor::fuzz
