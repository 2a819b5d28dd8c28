// Smes: a mixture of up to 20 components, the one public class of the library.
//
// Conventions. Temperatures are in kelvin, pressures in pascals, molar masses in kg/mol; component slots count from 1
// to 20. Result and argument texts are UTF-8. A 16-bit argument is an int here and raises error 6 beyond its range.
// Failures are shown to the user and told by return values; ChyboveHlasky chooses how:
//   -1  message boxes and a raised error (RunTimeError::kRaisedToHost)      0  message boxes (the default)
//    1  no message boxes of the correlation engine                          2  none of the mixture functions either
// At most MaxErrHlas counted boxes are shown in an object's life. Errors raised to the caller are RunTimeError. A host
// without a person in front of it sets Tichy.
//
// One object serves one thread; objects in different threads never meet.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "velor/chosen_numbers.h"
#include "velor/flash_record.h"
#include "velor/record.h"
#include "velor/run_time_error.h"
#include "velor/supplement.h"
#include "velor/user_interface.h"
#include "velor/variant.h"

namespace velor {

struct State;

class Smes {
  public:
    // With the system's own boxes. No file is opened by any of the constructors.
    Smes();
    // With the host's boxes; the interface must outlive the object.
    explicit Smes(UserInterface& userInterface);
    // The drives to search for a lost database, in order; the other constructors take the system's.
    Smes(UserInterface& userInterface, std::vector<std::string> volumes);
    ~Smes();
    Smes(const Smes&) = delete;
    Smes& operator=(const Smes&) = delete;

    // ---- Settings ------------------------------------------------------------------------------------------------

    // File name of the database, "VELOR.DRC" at first. Writing an empty text is ignored.
    std::string DataFileName() const;
    void DataFileName(const std::string& name);

    // Folder of the CFG file, ending in the path separator; at first the library file's own folder. A text that is
    // not empty replaces it; blanks around it are removed and the separator is added.
    std::string CFGPath() const;
    void CFGPath(const std::string& folder);

    // Name of the CFG file, "VELOR.CFG" at first. Any text is taken.
    std::string CFGName() const;
    void CFGName(const std::string& name);

    // Full path of the database. Reading locates it first (Adrvlr) while it is empty; writing checks nothing.
    std::string AdrVELOR();
    void AdrVELOR(const std::string& path);
    std::string SouborBaze();

    // Error-report mode; a value outside -1..2 is ignored.
    int ChyboveHlasky() const;
    void ChyboveHlasky(int mode);

    // Limit on counted message boxes, 20 at first; a negative value is ignored.
    int MaxErrHlas() const;
    void MaxErrHlas(int limit);

    // Counted message boxes shown so far; it only grows.
    int PocHlasek() const;

    // 1: there is no person. No box and no form is shown, a question gets No (nothing is deleted), an input raises
    // error 62, a form is closed as if by Back (ZadejSloz then leaves no components); the drives are not searched, so
    // that without a CFG file there is no database; bubble and dew points always end after 50 steps. Values, errors and
    // PocHlasek are as ever. 0, as built: the person is told and asked. Any other 16-bit number is taken for 1.
    // DefSmes, DefSlozky and ResetujSmes, which set ChyboveHlasky anew, leave it.
    int Tichy() const;
    void Tichy(int value);

    // While Tichy is 1, the last text that the last call would have shown; empty when it would have shown none. A call
    // that defines, loads, computes or shows begins with it empty; reading a setting, a constant or a kept result
    // leaves it. What ChyboveHlasky or a spent MaxErrHlas suppresses is not kept either. Tabulka is silent whatever
    // Tichy is, and so leaves its text here.
    std::string PosledniHlaska() const;

    // Temperature function of the equation of state: 0 Redlich-Kwong, any other value Soave.
    int Redlich() const;
    void Redlich(int choice);

    // Whether temperatures are clamped into each correlation's validity range (1) or extrapolated (0, the default).
    void MezeZap();
    void MezeVyp();
    int MezeTeplot() const;

    // Item j of correlation block k (1..11) of component i (1..count): j = 1..6 the coefficients, 7 Typ, 8 Priznak,
    // 9 Tmin, 10 Tmax. Reading gives -9999 for i or k out of range and 0 for another j. Writing changes the loaded
    // record only; j = 7..10 round to the nearest integer (6 beyond 16 bits), another j is ignored, i or k out of
    // range shows "VLRConst( ) - chybné zadání!".
    float VLRConst(int i, int k, int j) const;
    void VLRConst(int i, int k, int j, const Variant& value);

    // Where correlation k (1..10) of component i (1..count) comes from, as the supplement beside the database tells:
    // its source, with ", odhad" behind it where nothing was measured, and the largest deviation from that source, %.
    // Where the supplement cannot be read the source is a sentence that says so. Empty where nothing is told and for i
    // or k out of range. What VLRConst wrote they do not know.
    std::string Zdroj(int i, int k) const;
    Variant Odchylka(int i, int k) const;
    // The supplement itself, read when it is first asked for. It lives until the next call of these.
    const Supplement& supplement() const;

    // ---- The database --------------------------------------------------------------------------------------------

    // Finds the database: from the CFG file or, where there is none, by a search of the drives, which writes the CFG
    // file anew. Leaves AdrVELOR empty when there is no usable database. Asks before it deletes anything.
    void Adrvlr();

    // Searches a folder and its subfolders for files whose name matches Maska ("*" and "?") and, without regard to
    // case, Jmeno. Nalezy: element 0 the number of hits as text, elements 1..n their full paths; an array without
    // elements is sized 0..10 and grows by ten. Links are not followed, other volumes not entered.
    void FindFiles(const std::string& Cesta, const std::string& Maska, const std::string& Jmeno, Variant& Nalezy) const;

    // The part of the text before its first character of code 0.
    static std::string TrimNulls(const std::string& text);

    // ---- Components ----------------------------------------------------------------------------------------------

    // Defines N components by the substance numbers Cisla(1..N) and loads them. Always sets ChyboveHlasky to 0.
    // Errors: 9 an index outside the array or more than 20 components, 13 and 6 an element that is no 16-bit number.
    void DefSmes(int N, const Variant& Cisla);

    // Defines the components by a whole array counted from 0 and loads them. A negative first number sets
    // ChyboveHlasky to 1, which silences the message of a failed load; otherwise it becomes 0. Slots behind a short
    // array keep their numbers.
    void DefSlozky(const Variant& Cisla);

    // Puts substance n into slot i (1..20); the count of components stays.
    void ZapisNslozky(int i, int n);

    // Empties all 20 slots and switches messages on.
    void ResetujSmes();

    // Number of defined components. Writing a smaller number cuts the mixture down to its first components; any other
    // is ignored. Error 9: a negative number, which is kept all the same.
    Variant Nsloz() const;
    void Nsloz(const Variant& count);

    // Substance number loaded into slot i (1..20, else error 9); 0 when it was missing from the database.
    Variant Nslozky(int i) const;

    // Constant k (1..17 in the record's order: Mv, Tkr, Pkr, Vkr, Acent, Gyr, Nlomu, TNlomu, Dipol, TDipol, Permit,
    // TPermit, Htani, Ttani, Tnbv and two spare ones) of component i; -9999 for i or k out of range. Writing changes
    // the loaded record only, until the next load; out of range it shows "Bod( ) - chybné zadání!".
    float Bod(int i, int k) const;
    void Bod(int i, int k, const Variant& value);

    // Loads the records of the defined components unless they are loaded. Returns the number of components, 0 when a
    // substance is missing from the database. Errors: those of opening the database file (53, 70, 75, 76).
    Variant Inivlr();

    // Constants of component i (1..20, else error 9) as the loaded record holds them, single precision; -9999 stands
    // for one that is not known. An empty slot gives an empty text where "(*)" stands. Error 6: a damaged record
    // holds no finite number.
    Variant Mvi(int i) const;       // molar mass, kg/mol (*)
    Variant Tkri(int i) const;      // critical temperature, K (*)
    Variant TkriC(int i) const;     // critical temperature, degrees Celsius (*)
    Variant Pkri(int i) const;      // critical pressure, Pa (*)
    Variant Vkri(int i) const;      // critical molar volume, m3/mol (*)
    Variant Acenti(int i) const;    // acentric factor (*)
    Variant Tnbvi(int i) const;     // normal boiling temperature, K (*)
    Variant TnbviC(int i) const;    // normal boiling temperature, degrees Celsius (*)
    Variant Ttani(int i) const;     // melting temperature, K (*)
    Variant TtaniC(int i) const;    // melting temperature, degrees Celsius, exactly 0 within 1E-5 of it (*)
    Variant Htani(int i) const;     // enthalpy of fusion, J/mol (*)
    Variant Nlomui(int i) const;    // refractive index (*)
    Variant TNlomui(int i) const;   // temperature of the refractive index, K
    float Dipolm(int i) const;      // dipole moment, debye
    Variant TDipolm(int i) const;   // temperature of the dipole moment, K
    Variant Permiti(int i) const;   // relative permittivity
    Variant TPermiti(int i) const;  // temperature of the permittivity, K
    Variant Gyr(int i) const;       // radius of gyration, m

    // Texts of component i: the field's characters, blank-padded to 30, 20 and 30 (*).
    Variant Nazev(int i) const;
    Variant Vzorec(int i) const;
    Variant Synonym(int i) const;
    // Writes the name into the loaded record, padded or cut to 30 characters; what Windows-1250 lacks becomes "?".
    void Nazev(int i, const std::string& name);

    // Registry number in brackets, "[ 64-17-5]" for 64175; a single blank when the number is not positive. Error 5: a
    // number of one digit.
    Variant CAS(int i) const;

    // Caption of the mixture, stored and returned only.
    std::string SNazev() const;
    void SNazev(const std::string& caption);

    // Fills the table of 34 property captions; PopisVlastnosti(1..34) reads it, empty texts before. Error 9: another
    // index.
    void inivlast();
    std::string PopisVlastnosti(int i) const;

    // The whole record loaded into slot i (1..20, else error 9), to be read or, until the next load, replaced.
    const TLatka& record(int i) const;
    void record(int i, const TLatka& record);

    // ---- Correlations --------------------------------------------------------------------------------------------

    // The text of an equation type, 1 ... (docs/data.md); " Neznámý vztah! " for any other.
    static std::string Vztah(int Typ);

    // The short name of property 1..11 ("ETAG" ... "SIGMA", "Rezerva"); "Nedef. " for any other.
    static std::string ChybRozv(int k);

    // The number that a typed text begins with, "," read as "."; 0 when there is none. Error 6: beyond double
    // precision.
    static Variant Hodnota(const std::string& text);

    // Decimal logarithm. Error 5: not positive.
    static Variant Log10(const Variant& v);

    // Property k (1 ETAG, 2 CPG, 3 ALAG, 4 ROLW, 5 ETAL, 6 ALAL, 7 CPL, 8 DHV, 9 TENS, 10 SIGMA) of component i at T
    // kelvin, in the database's units: Pa s, J/(mol K), W/(m K), kg/m3, Pa s, W/(m K), J/(mol K), J/mol, Pa, N/m.
    // Above the critical temperature the properties from 5 on are evaluated at 0.98 of it, on purpose. Water's
    // density is the saturated-liquid equation of IAPWS (Wagner and Pruss, 1993) with one coefficient of our own.
    // A rejected k or i gives 0; an invalid equation type or an error in the evaluation gives 1E-8. Raises
    // kRaisedToHost for the last two while ChyboveHlasky is -1.
    Variant FFce(const Variant& T, int i, int k);

    // A number for display, centred in about 12 characters; -9999 reads " neobsazeno ".
    static std::string GFormat(const Variant& x);

    // ---- Composition ---------------------------------------------------------------------------------------------
    // Fractions are an array with the indices 1..count; a shorter one raises 9, an element that is no number 13.

    // Divides the fractions by their sum unless it is 1 within 1e-05. Error 11: all fractions are 0.
    void Normal(Variant& X) const;

    // An empty text when the fractions sum to 1 within 1e-05, or to exactly 0; otherwise "ERR sl." and a message.
    Variant KsumX(const Variant& X);

    // Mole to mass fractions and back. The result goes into the elements 1..count of the second array and is kept in
    // Zlomky. Returns the number of components, or "Chyba" when there are none. Comol raises 11 for a component
    // without a molar mass.
    Variant Cohmo(const Variant& X, Variant& W);
    Variant Comol(const Variant& W, Variant& X);

    // Fraction i (1..20, else error 9) of the last conversion, and of the last call of a mixture method; Empty at
    // first.
    Variant Zlomky(int i) const;
    Variant Slozeni(int i) const;

    // Molar mass of the mixture, kg/mol; Empty after a trapped error.
    Variant VSM(const Variant& X);

    // Reserved for the number of mixtures: always Empty.
    Variant PocetSmesi(const Variant& mixture) const;

    // ---- Liquid mixture ------------------------------------------------------------------------------------------
    // At T kelvin and mole fractions X, which are used as passed and kept in Slozeni. "(trap)" marks the methods that
    // trap run-time errors: they report them and return Empty; the others raise them. The rules' accuracy for mixtures
    // is that of their kind, some per cent; pure components give their correlation's value.

    // Density, kg/m3 (trap): ideal mixing of molar volumes at the mixture's reduced temperature.
    Variant ROLW(const Variant& T, const Variant& X);
    // Viscosity, Pa s (trap): logarithmic rule on molar kinematic viscosities.
    Variant ETAL(const Variant& T, const Variant& X);
    // Thermal conductivity, W/(m K) (trap): reciprocal-square rule on mass fractions.
    Variant ALAL(const Variant& T, const Variant& X);
    // Heat capacity, J/(mol K) and J/(kg K).
    Variant CPL(const Variant& T, const Variant& X);
    Variant CPLW(const Variant& T, const Variant& X);
    // Heat of vaporisation of the components below their critical temperatures, J/mol and J/kg.
    Variant DHV(const Variant& T, const Variant& X);
    Variant DHVW(const Variant& T, const Variant& X);
    // Enthalpy relative to each component's liquid at its normal boiling point, J/mol and J/kg. A component whose heat
    // capacity is no polynomial (types 1..5) contributes nothing.
    Variant HL(const Variant& T, const Variant& X);
    Variant HLW(const Variant& T, const Variant& X);
    // Entropy relative to the same states, without the entropy of mixing, J/(mol K) (trap) and J/(kg K).
    Variant SL(const Variant& T, const Variant& X);
    Variant SLW(const Variant& T, const Variant& X);
    // Surface tension, N/m (trap): fourth-root rule.
    Variant SIGMA(const Variant& T, const Variant& X);
    // Vapour pressure of the ideal solution (Raoult's law), Pa (trap).
    Variant TENS(const Variant& T, const Variant& X);
    // Prandtl number; Reynolds number with a velocity and a length, in either order. Error 11: a conductivity or a
    // viscosity that could not be computed.
    Variant PrL(const Variant& T, const Variant& X);
    Variant ReL(const Variant& T, const Variant& X, const Variant& a, const Variant& b);
    // Volumetric thermal expansion, 1/K, as a backward difference of 3 K: it belongs to T - 1.5 K. Error 11: no
    // density.
    Variant ObjRozL(const Variant& T, const Variant& x);

    // ---- Pseudocritical values -----------------------------------------------------------------------------------

    // Linear mixing of the critical constants (Kay, 1936) with p = Z R T / V. Sel chooses what is returned: "T" K,
    // "P" Pa, "V" m3/mol, "Z", "M" kg/mol, in either case; any other text computes and returns "PSEUD?". Fractions
    // that are off 1 by more than 0.002 give a message and are normalised (sum above 0.25) or refused ("PSEUD?");
    // while messages are not due they are used as passed. Error 11: no components, or one without critical values.
    Variant PSEUD(const Variant& X, const std::string& Sel);
    // Computes them and shows them in a message box.
    void PseudShow(const Variant& X);

    // The last PSEUD's results; 0 where it gave up.
    Variant TKRITsm() const;
    Variant PKRITsm() const;
    Variant VKRITsm() const;
    Variant ZKRITsm() const;
    Variant MSm() const;

    // ---- Gas mixture at low pressure -----------------------------------------------------------------------------

    // Viscosity, Pa s (trap): Herning and Zipperer (1936).
    Variant ETAG(const Variant& T, const Variant& X);
    // Thermal conductivity, W/(m K) (trap): Wassiljewa (1904) with the factor of Mason and Saxena (1958).
    Variant ALAG(const Variant& T, const Variant& X);
    // Heat capacity of the ideal gas, J/(mol K) and J/(kg K).
    Variant CPG(const Variant& T, const Variant& X);
    Variant CPGW(const Variant& T, const Variant& X);
    // Density of the ideal gas at P pascals, kg/m3 (trap).
    Variant ROGW(const Variant& T, const Variant& P, const Variant& X);

    // ---- Real gas ------------------------------------------------------------------------------------------------
    // At T kelvin, P pascals and mole fractions X. A state that cannot be solved (T or P not positive, a component
    // without critical values) is reported by TEVRP and the methods return Empty.

    // Solves the state: Redlich and Kwong (1949), or Soave (1972) where Redlich is not 0, for the mixture as one fluid.
    // Mode 1 fills the eight RG members, any other mode RGHustota and RGLnFug only. Returns the compressibility factor.
    // H, S and U are zero for each pure component's liquid at its normal boiling point and 101 325 Pa, as in HL and SL;
    // the entropy holds the mixing term. A component without a boiling point gets the message "Chybí údaj Tnbv ..."
    // and leaves H, S and U empty.
    Variant TEVRP(int mode, const Variant& T, const Variant& P, const Variant& X);

    Variant RROGW(const Variant& T, const Variant& P, const Variant& X);   // density, kg/m3 (trap)
    Variant RHG(const Variant& T, const Variant& P, const Variant& X);     // enthalpy, J/mol
    Variant RHGW(const Variant& T, const Variant& P, const Variant& X);    // J/kg
    Variant RSG(const Variant& T, const Variant& P, const Variant& X);     // entropy, J/(mol K)
    Variant RSGW(const Variant& T, const Variant& P, const Variant& X);    // J/(kg K)
    Variant RUG(const Variant& T, const Variant& P, const Variant& X);     // internal energy, J/mol
    Variant RUGW(const Variant& T, const Variant& P, const Variant& X);    // J/kg
    Variant RCPG(const Variant& T, const Variant& P, const Variant& X);    // heat capacity Cp, J/(mol K)
    Variant RCPGW(const Variant& T, const Variant& P, const Variant& X);   // J/(kg K)
    Variant RCVG(const Variant& T, const Variant& P, const Variant& X);    // heat capacity Cv, J/(mol K)
    Variant RCVGW(const Variant& T, const Variant& P, const Variant& X);   // J/(kg K)
    Variant LnFug(const Variant& T, const Variant& P, const Variant& X);   // logarithm of the fugacity coefficient
    Variant Kapa(const Variant& T, const Variant& P, const Variant& X);    // Cp/Cv
    Variant JTkoef(const Variant& T, const Variant& P, const Variant& X);  // Joule-Thomson coefficient, K/Pa

    // The last state solved; Empty where it failed.
    Variant RGHustota() const;         // mol/cm3
    Variant RGVnitrniEnergie() const;  // J/mol
    Variant RGEntalpie() const;        // J/mol
    Variant RGEntropie() const;        // J/(mol K)
    Variant RGLnFug() const;           // -
    Variant RGCv() const;              // J/(mol K)
    Variant RGCp() const;              // J/(mol K)
    Variant RGJouleThomson() const;    // K/Pa

    // Viscosity under pressure, Pa s (trap): ETAG and the excess of Dean and Stiel (1965).
    Variant RETAG(const Variant& T, const Variant& P, const Variant& X);
    // Thermal conductivity under pressure, W/(m K) (trap): ALAG and the excess of Stiel and Thodos (1964) with
    // constants of our own, about 4.6 times the published excess, by design.
    Variant RALAG(const Variant& T, const Variant& P, const Variant& X);

    // Prandtl number of the real gas; Reynolds number with a velocity and a length, in either order. Empty where a
    // state could not be solved.
    Variant PrG(const Variant& T, const Variant& P, const Variant& X);
    Variant ReG(const Variant& T, const Variant& P, const Variant& X, const Variant& a, const Variant& b);

    // ---- Phase equilibrium ---------------------------------------------------------------------------------------

    // Bubble and dew point of the ideal mixture (Raoult's law) at P pascals, K, by Newton's method to 0.02 K. After
    // more than 50 steps a message tells the divergence, and TBV returns 0, TRB its last estimate. While messages are
    // off (mode 2) or the budget is spent there is no limit, unless Tichy is 1: such a call may not return. Run-time
    // errors are trapped (Empty).
    Variant TBV(const Variant& P, const Variant& X);
    Variant TRB(const Variant& P, const Variant& Y);

    // How the last TBV and the last TRB ended, those of a flash included; None before the first.
    SaturationOutcome lastBubblePoint() const;
    SaturationOutcome lastDewPoint() const;

    // Single-stage flash of the feed Z (mole fractions, normalised here; error 11 when they sum to 0) at P pascals with
    // ideal K-values. Mode 0: isothermal at T kelvin. Mode 1: adiabatic, the feed a liquid at T, which receives the
    // final temperature. A negative mode asks the user for everything. Any other mode counts as isothermal. Returns a
    // Czech report: lines ended by CR LF, columns separated by TAB; after 30 passes without convergence only its
    // heading. The report's first pressure is the vapour pressure that the last iterated flash kept. Errors reach the
    // caller: 11 a singular step, 9 more than 20 fractions, 13 a real-gas enthalpy that could not be computed, 62
    // nobody answers. It calls TBV and TRB: where messages are off or spent and Tichy is 0 the call may not return.
    std::string FLASH(int mode, Variant& T, Variant& P, const Variant& Z);

    // The last flash as numbers.
    const FlashRecord& lastFlash() const;

    // ---- Dialogs -------------------------------------------------------------------------------------------------

    // Rebuilds the list of the substances in the database, sorted by name, and writes it to SEZNAM.DAT beside the
    // database. Without a database nothing changes. Errors: 9 more than 900 substances, 5 a CAS number of two digits or
    // a database path without the file name, file errors; where only SEZNAM.DAT fails the list is complete.
    void AkSeznam();

    // The lines of the list, counted from 1: number, name, synonym, formula, CAS. Error 9: another index.
    std::string SeznamLatek(int i) const;
    // Their number.
    int PocLatek() const;
    // The substance number of line i of the list. Error 9: another index.
    int listedSubstance(int i) const;
    // The mode of the last SeznamShow, -1 when it was left out.
    int RezimSeznamu() const;

    // Shows the list: mode left out, 0 or 1 asks for the order; 2 asks for a text and shows the lines that hold it.
    // Errors: 9 more than 800 lines, 62 nobody answers, those of AkSeznam where the list is not built yet; where only
    // SEZNAM.DAT cannot be written, here and in ZadejSmes, the list is shown.
    void SeznamShow(const Variant& mode = Variant::missing());

    // Sorts arr(first..last) by the first 17 characters of its texts; elements that are no texts stay what they are.
    void QuickSort(Variant& arr, int first, int last);
    // A random whole number from lower to upper, from a generator of the object's own that is never seeded.
    int RandInt(int lower, int upper);
    // Exchanges two elements.
    static void SWAP(Variant& arr, int a, int b);

    // Lets the user choose the components; they are loaded when the choice is confirmed. Errors: those of AkSeznam
    // where the list is not built yet, and of Inivlr.
    void ZadejSmes();

    // Lets the user enter the composition of the mixture, whose records are loaded first. n receives the number of
    // components, X(1..n) the mole and W(1..n) the mass fractions. mode prefills the values: |mode| = 1 equal parts, 2
    // W, 3 X. Back leaves the mixture without components and X and W as they were. Errors: kRaisedToHost a
    // negative value, 9 arrays that are too short, 11 a sum of 0 in mode 2 or no molar mass, those of Inivlr.
    void ZadejSloz(Variant& n, Variant& X, Variant& W, const Variant& text = Variant::missing(),
                   const Variant& mode = Variant::missing());

    // Fraction i (1..20, else error 9) of the last ZadejSloz: as entered, as mole and as mass fractions; Empty before.
    Variant ZadaneSlozeni(int i) const;
    Variant MolZlomky(int i) const;
    Variant HmotZlomky(int i) const;

    // Handlers of the forms' events.
    void mSeznam_zavrit();
    void mZadSmes_SZavrit(const CislaLatek& numbers);
    void mSloz_ZavriSloz();
    void mSloz_ZpetSloz();
    // Open the display of component i (1..count, else error 9) and the temporary change of its data. The records are
    // loaded first, so that a change survives the next property; it lasts until the next load. A component that is
    // missing from the database is told, and nothing is opened.
    void mSloz_ZobrazL(int i);
    void mSloz_ZobrazZ(int i);

    // ---- By name -------------------------------------------------------------------------------------------------

    // The property of that name, in either letter case and without blanks around it: a code of velor/properties.h.
    // Those that need no pressure do not read P. -9999 when nothing was computed: an unknown name, a pressure within
    // 1e-06 of 0, an error (a message, or in mode -1 kRaisedToHost unless the kind of an argument was wrong). A value
    // of the first list at or below -9999, as HL of a cold liquid may be, counts as not found and ends in the
    // unknown-name message, as built.
    Variant Vlastnost(const std::string& Name, const Variant& X, const Variant& T, const Variant& P);

    // The property of that name at many points, by the table (velor/table.h): of the components as they are loaded,
    // what was changed in them included, with the present Redlich and MezeTeplot. T and P are numbers or arrays, two
    // arrays of one length; the answer is a number or an array with the bounds of T's or P's. Fractions X(1..n) as in
    // Vlastnost, of sum 1 within 1e-05. What the property does not need is not read and may be left out. A point
    // without a value is Empty, as after a trapped error, and an Empty one is left so: of an empty cell the answer is
    // empty, where -9999 or 1E-8 would be taken for a number. A text that is no number is such a point, too. Nothing is
    // shown or counted, whatever Tichy is, and no result of an earlier call is touched; where a substance is missing
    // from the database every point is Empty, and PosledniHlaska tells which. Errors: 5 an unknown name, 9 other
    // lengths, too few fractions or no components, 13 a needed number left out or a fraction that is none, those of
    // Inivlr.
    Variant Tabulka(const std::string& Name, const Variant& X, const Variant& T, const Variant& P = Variant::missing());

  private:
    // With boxes that the object owns.
    explicit Smes(std::unique_ptr<UserInterface> userInterface);

    std::unique_ptr<State> state_;
};

}  // namespace velor
