#include "com/smes_object.h"

#include <atomic>
#include <functional>
#include <tuple>
#include <type_traits>

#include "com/arguments.h"
#include "com/flash_item.h"
#include "com/guard.h"
#include "com/module.h"
#include "com/velor_com.h"
#include "runtime/checked.h"
#include "velor/smes.h"

namespace velor::com {

namespace {

// Properties that are read and written: the arguments tell which of the two methods is meant.
constexpr auto kDataFileName = [](Smes& smes, const auto&... a) { return smes.DataFileName(a...); };
constexpr auto kCFGPath = [](Smes& smes, const auto&... a) { return smes.CFGPath(a...); };
constexpr auto kCFGName = [](Smes& smes, const auto&... a) { return smes.CFGName(a...); };
constexpr auto kAdrVELOR = [](Smes& smes, const auto&... a) { return smes.AdrVELOR(a...); };
constexpr auto kChyboveHlasky = [](Smes& smes, const auto&... a) { return smes.ChyboveHlasky(a...); };
constexpr auto kMaxErrHlas = [](Smes& smes, const auto&... a) { return smes.MaxErrHlas(a...); };
constexpr auto kRedlich = [](Smes& smes, const auto&... a) { return smes.Redlich(a...); };
constexpr auto kVLRConst = [](Smes& smes, const auto&... a) { return smes.VLRConst(a...); };
constexpr auto kNsloz = [](Smes& smes, const auto&... a) { return smes.Nsloz(a...); };
constexpr auto kBod = [](Smes& smes, const auto&... a) { return smes.Bod(a...); };
constexpr auto kNazev = [](Smes& smes, const auto&... a) { return smes.Nazev(a...); };
constexpr auto kSNazev = [](Smes& smes, const auto&... a) { return smes.SNazev(a...); };
constexpr auto kTichy = [](Smes& smes, const auto&... a) { return smes.Tichy(a...); };

void writeNazev(Smes& smes, int i, const Variant& name) { smes.Nazev(i, name.toText()); }

// The numbers 0..20 of an array that counts from 0; those that it lacks are 0.
void confirmComponents(Smes& smes, const Variant& numbers) {
    CislaLatek chosen{};
    for (int i = numbers.lowerBound(); i <= numbers.upperBound(); ++i) {
        if (i < 0 || i >= static_cast<int>(chosen.size())) checked::raise(RunTimeError::kSubscript);
        chosen[static_cast<std::size_t>(i)] = numbers.at(i).toInt16();
    }
    smes.mZadSmes_SZavrit(chosen);
}

// The answer has the shape of the arrays.
Grid tabulate(Smes& smes, const std::string& name, const Variant& X, const Grid& T, const Grid& P) {
    if (T.isArray() && P.isArray() && !haveOneShape(T, P)) checked::raise(RunTimeError::kSubscript);
    return {(T.isArray() ? T : P).bounds, smes.Tabulka(name, X, T.values, P.values)};
}

class SmesObject final : public ISmes, public ISupportErrorInfo {
  public:
    // ---- The object ----------------------------------------------------------------------------------------------

    STDMETHODIMP QueryInterface(REFIID id, void** object) override {
        if (object == nullptr) return E_POINTER;
        *object = nullptr;
        if (id == IID_IUnknown || id == IID_IDispatch || id == __uuidof(ISmes)) {
            *object = static_cast<ISmes*>(this);
        } else if (id == IID_ISupportErrorInfo) {
            *object = static_cast<ISupportErrorInfo*>(this);
        } else {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        if (left == 0) guarded([this] { delete this; });
        return left;
    }

    STDMETHODIMP InterfaceSupportsErrorInfo(REFIID id) override { return id == __uuidof(ISmes) ? S_OK : S_FALSE; }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        if (count == nullptr) return E_POINTER;
        *count = 1;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** information) override {
        if (information == nullptr) return E_POINTER;
        *information = nullptr;
        if (index != 0) return DISP_E_BADINDEX;
        return guarded([&] { *information = typeInformation(); });
    }
    STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
        return guardedResult(
            [&] { return ComPointer<ITypeInfo>(typeInformation())->GetIDsOfNames(names, count, ids); });
    }
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                        EXCEPINFO* exception, UINT* badArgument) override {
        if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
        return guardedResult([&] {
            SetErrorInfo(0, nullptr);  // that of an earlier call is not to be taken for this one's
            return ComPointer<ITypeInfo>(typeInformation())
                ->Invoke(static_cast<ISmes*>(this), id, flags, arguments, result, exception, badArgument);
        });
    }

    // ---- The mixture ---------------------------------------------------------------------------------------------

    STDMETHODIMP get_DataFileName(BSTR* result) override { return answer(result, kDataFileName); }
    STDMETHODIMP put_DataFileName(BSTR value) override { return run(kDataFileName, value); }
    STDMETHODIMP get_CFGPath(BSTR* result) override { return answer(result, kCFGPath); }
    STDMETHODIMP put_CFGPath(BSTR value) override { return run(kCFGPath, value); }
    STDMETHODIMP get_CFGName(BSTR* result) override { return answer(result, kCFGName); }
    STDMETHODIMP put_CFGName(BSTR value) override { return run(kCFGName, value); }
    STDMETHODIMP get_AdrVELOR(BSTR* result) override { return answer(result, kAdrVELOR); }
    STDMETHODIMP put_AdrVELOR(BSTR value) override { return run(kAdrVELOR, value); }
    STDMETHODIMP get_SouborBaze(BSTR* result) override { return answer(result, &Smes::SouborBaze); }
    STDMETHODIMP get_ChyboveHlasky(short* result) override { return answer(result, kChyboveHlasky); }
    STDMETHODIMP put_ChyboveHlasky(short value) override { return run(kChyboveHlasky, value); }
    STDMETHODIMP get_MaxErrHlas(short* result) override { return answer(result, kMaxErrHlas); }
    STDMETHODIMP put_MaxErrHlas(short value) override { return run(kMaxErrHlas, value); }
    STDMETHODIMP get_PocHlasek(short* result) override { return answer(result, &Smes::PocHlasek); }
    STDMETHODIMP get_Redlich(short* result) override { return answer(result, kRedlich); }
    STDMETHODIMP put_Redlich(short value) override { return run(kRedlich, value); }
    STDMETHODIMP MezeZap() override { return run(&Smes::MezeZap); }
    STDMETHODIMP MezeVyp() override { return run(&Smes::MezeVyp); }
    STDMETHODIMP get_MezeTeplot(short* result) override { return answer(result, &Smes::MezeTeplot); }
    STDMETHODIMP get_VLRConst(short i, short k, short j, float* result) override {
        return answer(result, kVLRConst, i, k, j);
    }
    STDMETHODIMP put_VLRConst(short i, short k, short j, float value) override {
        return run(kVLRConst, i, k, j, value);
    }

    STDMETHODIMP Adrvlr() override { return run(&Smes::Adrvlr); }
    STDMETHODIMP FindFiles(BSTR Cesta, BSTR Maska, BSTR Jmeno, VARIANT* Nalezy) override {
        return run(&Smes::FindFiles, Cesta, Maska, Jmeno, Nalezy);
    }
    STDMETHODIMP TrimNulls(BSTR Text, BSTR* result) override { return answer(result, &Smes::TrimNulls, Text); }

    STDMETHODIMP DefSmes(short N, VARIANT Cisla) override { return run(&Smes::DefSmes, N, Cisla); }
    STDMETHODIMP DefSlozky(VARIANT Cisla) override { return run(&Smes::DefSlozky, Cisla); }
    STDMETHODIMP ZapisNslozky(short i, short n) override { return run(&Smes::ZapisNslozky, i, n); }
    STDMETHODIMP ResetujSmes() override { return run(&Smes::ResetujSmes); }
    STDMETHODIMP get_Nsloz(VARIANT* result) override { return answer(result, kNsloz); }
    STDMETHODIMP put_Nsloz(VARIANT value) override { return run(kNsloz, value); }
    STDMETHODIMP Nslozky(short i, VARIANT* result) override { return answer(result, &Smes::Nslozky, i); }
    STDMETHODIMP get_Bod(short i, short k, float* result) override { return answer(result, kBod, i, k); }
    STDMETHODIMP put_Bod(short i, short k, float value) override { return run(kBod, i, k, value); }
    STDMETHODIMP Inivlr(VARIANT* result) override { return answer(result, &Smes::Inivlr); }

    STDMETHODIMP Mvi(short i, VARIANT* result) override { return answer(result, &Smes::Mvi, i); }
    STDMETHODIMP Tkri(short i, VARIANT* result) override { return answer(result, &Smes::Tkri, i); }
    STDMETHODIMP TkriC(short i, VARIANT* result) override { return answer(result, &Smes::TkriC, i); }
    STDMETHODIMP Pkri(short i, VARIANT* result) override { return answer(result, &Smes::Pkri, i); }
    STDMETHODIMP Vkri(short i, VARIANT* result) override { return answer(result, &Smes::Vkri, i); }
    STDMETHODIMP Acenti(short i, VARIANT* result) override { return answer(result, &Smes::Acenti, i); }
    STDMETHODIMP Tnbvi(short i, VARIANT* result) override { return answer(result, &Smes::Tnbvi, i); }
    STDMETHODIMP TnbviC(short i, VARIANT* result) override { return answer(result, &Smes::TnbviC, i); }
    STDMETHODIMP Ttani(short i, VARIANT* result) override { return answer(result, &Smes::Ttani, i); }
    STDMETHODIMP TtaniC(short i, VARIANT* result) override { return answer(result, &Smes::TtaniC, i); }
    STDMETHODIMP Htani(short i, VARIANT* result) override { return answer(result, &Smes::Htani, i); }
    STDMETHODIMP Nlomui(short i, VARIANT* result) override { return answer(result, &Smes::Nlomui, i); }
    STDMETHODIMP TNlomui(short i, VARIANT* result) override { return answer(result, &Smes::TNlomui, i); }
    STDMETHODIMP Dipolm(short i, float* result) override { return answer(result, &Smes::Dipolm, i); }
    STDMETHODIMP TDipolm(short i, VARIANT* result) override { return answer(result, &Smes::TDipolm, i); }
    STDMETHODIMP Permiti(short i, VARIANT* result) override { return answer(result, &Smes::Permiti, i); }
    STDMETHODIMP TPermiti(short i, VARIANT* result) override { return answer(result, &Smes::TPermiti, i); }
    STDMETHODIMP Gyr(short i, VARIANT* result) override { return answer(result, &Smes::Gyr, i); }
    STDMETHODIMP get_Nazev(short i, VARIANT* result) override { return answer(result, kNazev, i); }
    STDMETHODIMP put_Nazev(short i, VARIANT value) override { return run(&writeNazev, i, value); }
    STDMETHODIMP Vzorec(short i, VARIANT* result) override { return answer(result, &Smes::Vzorec, i); }
    STDMETHODIMP Synonym(short i, VARIANT* result) override { return answer(result, &Smes::Synonym, i); }
    STDMETHODIMP CAS(short i, VARIANT* result) override { return answer(result, &Smes::CAS, i); }
    STDMETHODIMP get_SNazev(BSTR* result) override { return answer(result, kSNazev); }
    STDMETHODIMP put_SNazev(BSTR value) override { return run(kSNazev, value); }
    STDMETHODIMP inivlast() override { return run(&Smes::inivlast); }
    STDMETHODIMP get_PopisVlastnosti(short i, BSTR* result) override {
        return answer(result, &Smes::PopisVlastnosti, i);
    }

    STDMETHODIMP Vztah(short Typ, BSTR* result) override { return answer(result, &Smes::Vztah, Typ); }
    STDMETHODIMP ChybRozv(short k, BSTR* result) override { return answer(result, &Smes::ChybRozv, k); }
    STDMETHODIMP Hodnota(BSTR Text, VARIANT* result) override { return answer(result, &Smes::Hodnota, Text); }
    STDMETHODIMP Log10(VARIANT v, VARIANT* result) override { return answer(result, &Smes::Log10, v); }
    STDMETHODIMP FFce(VARIANT T, short i, short k, VARIANT* result) override {
        return answer(result, &Smes::FFce, T, i, k);
    }
    STDMETHODIMP GFormat(VARIANT x, BSTR* result) override { return answer(result, &Smes::GFormat, x); }

    STDMETHODIMP Normal(VARIANT* X) override { return run(&Smes::Normal, X); }
    STDMETHODIMP KsumX(VARIANT X, VARIANT* result) override { return answer(result, &Smes::KsumX, X); }
    STDMETHODIMP Cohmo(VARIANT X, VARIANT* W, VARIANT* result) override { return answer(result, &Smes::Cohmo, X, W); }
    STDMETHODIMP Comol(VARIANT W, VARIANT* X, VARIANT* result) override { return answer(result, &Smes::Comol, W, X); }
    STDMETHODIMP get_Zlomky(short i, VARIANT* result) override { return answer(result, &Smes::Zlomky, i); }
    STDMETHODIMP get_Slozeni(short i, VARIANT* result) override { return answer(result, &Smes::Slozeni, i); }
    STDMETHODIMP VSM(VARIANT X, VARIANT* result) override { return answer(result, &Smes::VSM, X); }
    STDMETHODIMP PocetSmesi(VARIANT Smes, VARIANT* result) override { return answer(result, &Smes::PocetSmesi, Smes); }

    STDMETHODIMP ROLW(VARIANT T, VARIANT X, VARIANT* result) override { return answer(result, &Smes::ROLW, T, X); }
    STDMETHODIMP ETAL(VARIANT T, VARIANT X, VARIANT* result) override { return answer(result, &Smes::ETAL, T, X); }
    STDMETHODIMP ALAL(VARIANT T, VARIANT X, VARIANT* result) override { return answer(result, &Smes::ALAL, T, X); }
    STDMETHODIMP CPL(VARIANT T, VARIANT X, VARIANT* result) override { return answer(result, &Smes::CPL, T, X); }
    STDMETHODIMP CPLW(VARIANT T, VARIANT X, VARIANT* result) override { return answer(result, &Smes::CPLW, T, X); }
    STDMETHODIMP DHV(VARIANT T, VARIANT X, VARIANT* result) override { return answer(result, &Smes::DHV, T, X); }
    STDMETHODIMP DHVW(VARIANT T, VARIANT X, VARIANT* result) override { return answer(result, &Smes::DHVW, T, X); }
    STDMETHODIMP HL(VARIANT T, VARIANT X, VARIANT* result) override { return answer(result, &Smes::HL, T, X); }
    STDMETHODIMP HLW(VARIANT T, VARIANT X, VARIANT* result) override { return answer(result, &Smes::HLW, T, X); }
    STDMETHODIMP SL(VARIANT T, VARIANT X, VARIANT* result) override { return answer(result, &Smes::SL, T, X); }
    STDMETHODIMP SLW(VARIANT T, VARIANT X, VARIANT* result) override { return answer(result, &Smes::SLW, T, X); }
    STDMETHODIMP SIGMA(VARIANT T, VARIANT X, VARIANT* result) override { return answer(result, &Smes::SIGMA, T, X); }
    STDMETHODIMP TENS(VARIANT T, VARIANT X, VARIANT* result) override { return answer(result, &Smes::TENS, T, X); }
    STDMETHODIMP PrL(VARIANT T, VARIANT X, VARIANT* result) override { return answer(result, &Smes::PrL, T, X); }
    STDMETHODIMP ReL(VARIANT T, VARIANT X, VARIANT a, VARIANT b, VARIANT* result) override {
        return answer(result, &Smes::ReL, T, X, a, b);
    }
    STDMETHODIMP ObjRozL(VARIANT T, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::ObjRozL, T, X);
    }

    STDMETHODIMP PSEUD(VARIANT X, BSTR Sel, VARIANT* result) override { return answer(result, &Smes::PSEUD, X, Sel); }
    STDMETHODIMP PseudShow(VARIANT X) override { return run(&Smes::PseudShow, X); }
    STDMETHODIMP get_TKRITsm(VARIANT* result) override { return answer(result, &Smes::TKRITsm); }
    STDMETHODIMP get_PKRITsm(VARIANT* result) override { return answer(result, &Smes::PKRITsm); }
    STDMETHODIMP get_VKRITsm(VARIANT* result) override { return answer(result, &Smes::VKRITsm); }
    STDMETHODIMP get_ZKRITsm(VARIANT* result) override { return answer(result, &Smes::ZKRITsm); }
    STDMETHODIMP get_MSm(VARIANT* result) override { return answer(result, &Smes::MSm); }

    STDMETHODIMP ETAG(VARIANT T, VARIANT X, VARIANT* result) override { return answer(result, &Smes::ETAG, T, X); }
    STDMETHODIMP ALAG(VARIANT T, VARIANT X, VARIANT* result) override { return answer(result, &Smes::ALAG, T, X); }
    STDMETHODIMP CPG(VARIANT T, VARIANT X, VARIANT* result) override { return answer(result, &Smes::CPG, T, X); }
    STDMETHODIMP CPGW(VARIANT T, VARIANT X, VARIANT* result) override { return answer(result, &Smes::CPGW, T, X); }
    STDMETHODIMP ROGW(VARIANT T, VARIANT P, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::ROGW, T, P, X);
    }

    STDMETHODIMP TEVRP(short Rezim, VARIANT T, VARIANT P, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::TEVRP, Rezim, T, P, X);
    }
    STDMETHODIMP RROGW(VARIANT T, VARIANT P, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::RROGW, T, P, X);
    }
    STDMETHODIMP RHG(VARIANT T, VARIANT P, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::RHG, T, P, X);
    }
    STDMETHODIMP RHGW(VARIANT T, VARIANT P, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::RHGW, T, P, X);
    }
    STDMETHODIMP RSG(VARIANT T, VARIANT P, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::RSG, T, P, X);
    }
    STDMETHODIMP RSGW(VARIANT T, VARIANT P, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::RSGW, T, P, X);
    }
    STDMETHODIMP RUG(VARIANT T, VARIANT P, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::RUG, T, P, X);
    }
    STDMETHODIMP RUGW(VARIANT T, VARIANT P, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::RUGW, T, P, X);
    }
    STDMETHODIMP RCPG(VARIANT T, VARIANT P, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::RCPG, T, P, X);
    }
    STDMETHODIMP RCPGW(VARIANT T, VARIANT P, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::RCPGW, T, P, X);
    }
    STDMETHODIMP RCVG(VARIANT T, VARIANT P, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::RCVG, T, P, X);
    }
    STDMETHODIMP RCVGW(VARIANT T, VARIANT P, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::RCVGW, T, P, X);
    }
    STDMETHODIMP LnFug(VARIANT T, VARIANT P, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::LnFug, T, P, X);
    }
    STDMETHODIMP Kapa(VARIANT T, VARIANT P, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::Kapa, T, P, X);
    }
    STDMETHODIMP JTkoef(VARIANT T, VARIANT P, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::JTkoef, T, P, X);
    }
    STDMETHODIMP RETAG(VARIANT T, VARIANT P, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::RETAG, T, P, X);
    }
    STDMETHODIMP RALAG(VARIANT T, VARIANT P, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::RALAG, T, P, X);
    }
    STDMETHODIMP PrG(VARIANT T, VARIANT P, VARIANT X, VARIANT* result) override {
        return answer(result, &Smes::PrG, T, P, X);
    }
    STDMETHODIMP ReG(VARIANT T, VARIANT P, VARIANT X, VARIANT a, VARIANT b, VARIANT* result) override {
        return answer(result, &Smes::ReG, T, P, X, a, b);
    }

    STDMETHODIMP get_RGHustota(VARIANT* result) override { return answer(result, &Smes::RGHustota); }
    STDMETHODIMP get_RGVnitrniEnergie(VARIANT* result) override { return answer(result, &Smes::RGVnitrniEnergie); }
    STDMETHODIMP get_RGEntalpie(VARIANT* result) override { return answer(result, &Smes::RGEntalpie); }
    STDMETHODIMP get_RGEntropie(VARIANT* result) override { return answer(result, &Smes::RGEntropie); }
    STDMETHODIMP get_RGLnFug(VARIANT* result) override { return answer(result, &Smes::RGLnFug); }
    STDMETHODIMP get_RGCv(VARIANT* result) override { return answer(result, &Smes::RGCv); }
    STDMETHODIMP get_RGCp(VARIANT* result) override { return answer(result, &Smes::RGCp); }
    STDMETHODIMP get_RGJouleThomson(VARIANT* result) override { return answer(result, &Smes::RGJouleThomson); }

    STDMETHODIMP TBV(VARIANT P, VARIANT X, VARIANT* result) override { return answer(result, &Smes::TBV, P, X); }
    STDMETHODIMP TRB(VARIANT P, VARIANT Y, VARIANT* result) override { return answer(result, &Smes::TRB, P, Y); }
    STDMETHODIMP FLASH(short Rezim, VARIANT* T, VARIANT* P, VARIANT Z, BSTR* result) override {
        return answer(result, &Smes::FLASH, Rezim, T, P, Z);
    }
    STDMETHODIMP get_lastFlash(BSTR Item, VARIANT* result) override { return answer(result, flashItem, Item); }

    STDMETHODIMP AkSeznam() override { return run(&Smes::AkSeznam); }
    STDMETHODIMP get_SeznamLatek(short i, BSTR* result) override { return answer(result, &Smes::SeznamLatek, i); }
    STDMETHODIMP get_PocLatek(short* result) override { return answer(result, &Smes::PocLatek); }
    STDMETHODIMP get_RezimSeznamu(short* result) override { return answer(result, &Smes::RezimSeznamu); }
    STDMETHODIMP SeznamShow(VARIANT Rezim) override { return run(&Smes::SeznamShow, Rezim); }
    STDMETHODIMP QuickSort(VARIANT* Pole, short Prvni, short Posledni) override {
        return run(&Smes::QuickSort, Pole, Prvni, Posledni);
    }
    STDMETHODIMP RandInt(short Dolni, short Horni, short* result) override {
        return answer(result, &Smes::RandInt, Dolni, Horni);
    }
    STDMETHODIMP SWAP(VARIANT* Pole, short a, short b) override { return run(&Smes::SWAP, Pole, a, b); }
    STDMETHODIMP ZadejSmes() override { return run(&Smes::ZadejSmes); }
    STDMETHODIMP ZadejSloz(VARIANT* n, VARIANT* X, VARIANT* W, VARIANT Text, VARIANT Rezim) override {
        return run(&Smes::ZadejSloz, n, X, W, Text, Rezim);
    }
    STDMETHODIMP get_ZadaneSlozeni(short i, VARIANT* result) override {
        return answer(result, &Smes::ZadaneSlozeni, i);
    }
    STDMETHODIMP get_MolZlomky(short i, VARIANT* result) override { return answer(result, &Smes::MolZlomky, i); }
    STDMETHODIMP get_HmotZlomky(short i, VARIANT* result) override { return answer(result, &Smes::HmotZlomky, i); }

    STDMETHODIMP mSeznam_zavrit() override { return run(&Smes::mSeznam_zavrit); }
    STDMETHODIMP mZadSmes_SZavrit(VARIANT CislaLatek) override { return run(confirmComponents, CislaLatek); }
    STDMETHODIMP mSloz_ZavriSloz() override { return run(&Smes::mSloz_ZavriSloz); }
    STDMETHODIMP mSloz_ZpetSloz() override { return run(&Smes::mSloz_ZpetSloz); }
    STDMETHODIMP mSloz_ZobrazL(short i) override { return run(&Smes::mSloz_ZobrazL, i); }
    STDMETHODIMP mSloz_ZobrazZ(short i) override { return run(&Smes::mSloz_ZobrazZ, i); }

    STDMETHODIMP Vlastnost(BSTR Name, VARIANT X, VARIANT T, VARIANT P, VARIANT* result) override {
        return answer(result, &Smes::Vlastnost, Name, X, T, P);
    }

    STDMETHODIMP Tabulka(BSTR Name, VARIANT X, VARIANT T, VARIANT P, VARIANT* result) override {
        return answer(result, tabulate, Name, X, Ranged{T}, Ranged{P});
    }

    STDMETHODIMP get_Tichy(short* result) override { return answer(result, kTichy); }
    STDMETHODIMP put_Tichy(short value) override { return run(kTichy, value); }
    STDMETHODIMP get_PosledniHlaska(BSTR* result) override { return answer(result, &Smes::PosledniHlaska); }

  private:
    // Every member: convert the arguments, call, give back what changed.
    template <class Method, class... Raw>
    HRESULT run(const Method& method, const Raw&... raw) {
        return guarded([&] {
            const ComPointer<IUnknown> alive = ownReference();
            std::tuple<Argument<Raw>...> arguments(raw...);
            std::apply(
                [&](auto&... each) {
                    call(method, each.value...);
                    (each.giveBack(), ...);
                },
                arguments);
        });
    }

    // The same for a member with an answer.
    template <class Result, class Method, class... Raw>
    HRESULT answer(Result* result, const Method& method, const Raw&... raw) {
        if (result == nullptr) return E_POINTER;
        return guarded([&] {
            const ComPointer<IUnknown> alive = ownReference();
            std::tuple<Argument<Raw>...> arguments(raw...);
            typename KeptAs<Result>::type kept{};
            std::apply(
                [&](auto&... each) {
                    keep(kept, call(method, each.value...));
                    (each.giveBack(), ...);
                },
                arguments);
            *result = handOver(kept);
        });
    }

    // A method of the mixture, a function that takes it first, or one that needs none.
    template <class Method, class... Values>
    decltype(auto) call(const Method& method, Values&... values) {
        if constexpr (std::is_invocable_v<const Method&, Smes&, Values&...>) {
            return std::invoke(method, smes_, values...);
        } else {
            return method(values...);
        }
    }

    // While a box is shown the host may let go of the object.
    ComPointer<IUnknown> ownReference() {
        AddRef();
        return ComPointer<IUnknown>(static_cast<ISmes*>(this));
    }

    std::atomic<ULONG> references_ = 0;
    ModuleReference module_;
    Smes smes_;
};

}  // namespace

HRESULT createSmes(REFIID interfaceId, void** object) {
    auto* const created = new SmesObject;
    created->AddRef();
    return ComPointer<SmesObject>(created)->QueryInterface(interfaceId, object);
}

}  // namespace velor::com
