// Smes: a mixture of up to 20 components, the one public class of the library.
//
// Conventions. Temperatures are in kelvin, pressures in pascals, molar masses in kg/mol; component slots count from 1
// to 20. Result and argument texts are UTF-8. A 16-bit argument is an int here and raises error 6 beyond its range.
// Failures are shown to the user and told by return values; ChyboveHlasky chooses how:
//   -1  message boxes and a raised error (RunTimeError::kRaisedToHost)      0  message boxes (the default)
//    1  no message boxes of the correlation engine                          2  none of the mixture functions either
// At most MaxErrHlas counted boxes are shown in an object's life. Errors raised to the caller are RunTimeError.
//
// One object serves one thread; objects in different threads never meet.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "velor/run_time_error.h"
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

    // ---- Correlations --------------------------------------------------------------------------------------------

    // The text of equation type 1..19; " Neznámý vztah! " for any other.
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
    // density is the saturated-liquid equation of IAPWS (Wagner and Pruss, 1993) with two coefficients of our own.
    // A rejected k or i gives 0; an invalid equation type or an error in the evaluation gives 1E-8. Raises
    // kRaisedToHost for the last two while ChyboveHlasky is -1.
    Variant FFce(const Variant& T, int i, int k);

    // A number for display, centred in about 12 characters; -9999 reads " neobsazeno ".
    static std::string GFormat(const Variant& x);

  private:
    std::unique_ptr<State> state_;
};

}  // namespace velor
