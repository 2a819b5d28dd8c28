// The dialogs of one component of the mixture: its display, and the temporary change of its record. Objects without a
// screen, as in forms.h. A change concerns the loaded record alone; the database file is never written.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "velor/form_controls.h"
#include "velor/record.h"

namespace velor {

// What is shown of one correlation. Of a property that is not given only its names are filled.
struct CorrelationText {
    std::string code;     // "ETAG"
    std::string caption;  // "viskozita plynu"
    std::string unit;
    bool isGiven = false;
    int Typ = 0;
    std::string Vztah;             // the equation
    std::array<std::string, 6> A;  // A1..A6 in GFormat's texts
    std::string range;             // "273 – 373 K"
    std::string note;              // what else has to be known; mostly nothing
};

// The display of a component, to be read only.
class frmLatka {
  public:
    static constexpr int kConstants = 15;
    static constexpr int kProperties = 10;

    struct Constant {
        std::string caption, value, unit;  // "neobsazeno" is the value of one that is not known
    };

    std::string caption;  // of the window
    std::string Nazev, Synonym, Vzorec, CAS;
    std::string NazevPopis = "Název:", SynonymPopis = "Synonymum:", VzorecPopis = "Vzorec:", CASPopis = "CAS No.:";
    std::string Frame1 = " Konstanty ", Frame2 = " Teplotní závislosti ";
    std::array<Constant, kConstants> Konstanty;
    std::array<CorrelationText, kProperties> Korelace;
    ListBox L_Vlast;  // the ten properties, a line each; `selected` is the one whose correlation is shown
    TextBox T_Teplota{"298.15"};
    std::string T_TeplotaPopis = "Teplota [K]:";
    std::string Hodnota;  // of the selected property at that temperature
    std::string C_VypocetCaption = "&Vypočítat";
    std::string C_ZpetCaption = "&Zpět";
    bool visible = false;

    std::function<void(int k, double T)> Vypocet;  // event: the value of property k at T kelvin is to be shown
    std::function<void()> zavrit;                  // event: the form is to be closed
    std::function<void(const std::string& text)> showExclamation;  // a message with the exclamation icon

    const CorrelationText& selectedCorrelation() const;

    // Shows property index + 1 and, where the temperature can be read, its value. Error 9: another index.
    void selectProperty(int index);
    void setTemperature(std::string text) { T_Teplota.text = std::move(text); }
    // Enter in the box of the temperature computes.
    void keyInTemperature(int key);
    void clickC_Vypocet();
    void clickC_Zpet();
    // The frame's cross or Esc is Back.
    void close() { clickC_Zpet(); }
};

// The temporary change of a component's names and constants.
class F_Zmenaz {
  public:
    static constexpr int kFields = 19;  // name, synonym, formula, CAS, then the constants in the record's order
    enum Field { kNazev, kSynonym, kVzorec, kCAS, kFirstConstant };

    std::string caption;
    std::array<std::string, kFields> L_Pole;  // what stands before the boxes
    std::array<TextBox, kFields> T_Pole;
    std::string Navod =
        "Změna platí jen pro tuto směs, soubor databáze se nemění. Prázdné pole konstanty znamená, že není známa.";
    std::string C_OKCaption = "&Uložit";
    std::string C_DataCaption = "Uložit a změnit &data";
    std::string C_ObnovitCaption = "&Obnovit z databáze";
    std::string C_ZpetCaption = "&Zpět beze změny";
    Focus focus{Focus::Control::Value, 0};
    bool visible = false;

    bool isDataWanted = false;  // closed so that the correlations are changed next

    std::function<void(const TLatka& record)> Ulozit;              // event: the record as changed is to be used
    std::function<void(const std::string& text)> showExclamation;  // a message with the exclamation icon

    F_Zmenaz();

    // Fills the boxes with the record as it is used, which may have been changed before; the other one is the
    // database's. A field whose text stays as it was filled keeps its bytes.
    void load(const TLatka& record, const TLatka& original);
    // Error 9: field outside 0..18, here and below.
    void setText(int field, std::string text);
    // Enter walks to the next box, from the last one to the confirmation.
    void keyPressed(int field, int key);
    // Check the fields one by one. The first that cannot be taken is told and gets the focus; otherwise the event is
    // raised and the form is closed.
    void clickC_OK();
    void clickC_Data();
    // Fills the boxes with what the database holds; it is used when that is confirmed.
    void clickC_Obnovit();
    void clickC_Zpet() { visible = false; }
    // The frame's cross or Esc is Back.
    void close() { clickC_Zpet(); }

  private:
    std::optional<TLatka> changed();

    TLatka record_, original_;
    std::array<std::string, kFields> filled_;
};

// The temporary change of a component's correlations, one property at a time. What was typed for one property stays
// while another is looked at; all is taken or left together.
class frmOprav {
  public:
    static constexpr int kProperties = 10;
    static constexpr int kFields = 9;  // type, A1..A6, Tmin, Tmax
    enum Field { kTyp, kFirstCoefficient, kTmin = 7, kTmax };

    std::string caption;
    ListBox L_Vlast;  // the ten properties, a line each; `selected` is the one that is edited
    std::array<std::string, kFields> L_Pole{"Typ rovnice", "A1", "A2", "A3", "A4", "A5", "A6", "Tmin [K]", "Tmax [K]"};
    std::array<TextBox, kFields> T_Pole;  // of the selected property
    std::string Vztah;                    // the equation of the type typed
    std::string Poznamka;
    TextBox T_Teplota{"298.15"};
    std::string T_TeplotaPopis = "Teplota [K]:";
    std::string HodnotaPred, HodnotaPo;  // values at that temperature: the database's, and of what is typed
    std::string PredPopis = "Před změnou:", PoPopis = "Po změně:";
    std::string Navod =
        "Změna platí jen pro tuto směs, soubor databáze se nemění. Bez typu rovnice vlastnost není dána.";
    std::string C_VypocetCaption = "&Vypočítat";
    std::string C_OKCaption = "&Uložit";
    std::string C_ObnovitCaption = "&Obnovit z databáze";
    std::string C_ZpetCaption = "&Zpět beze změny";
    Focus focus{Focus::Control::Value, 0};
    bool visible = false;

    // Text of the value that property k of a component with that record has at T kelvin.
    std::function<std::string(int k, const TLatka& record, double T)> valueText;
    std::function<void(const TLatka& record)> Ulozit;              // event: the record as changed is to be used
    std::function<void(const std::string& text)> showExclamation;  // a message with the exclamation icon

    // Fills the form with a component's correlations as they are used, which may have been changed before, and selects
    // the first property; the other record is the database's.
    void load(const TLatka& record, const TLatka& original);
    // Error 9: another index.
    void selectProperty(int index);
    void setText(int field, std::string text);
    void keyPressed(int field, int key);
    void setTemperature(std::string text) { T_Teplota.text = std::move(text); }
    void keyInTemperature(int key);
    // Both values of the selected property; a field that cannot be read is told and gets the focus.
    void clickC_Vypocet();
    // Checks every property that was changed. The first field that cannot be taken is selected, told and focused;
    // otherwise the event is raised and the form is closed.
    void clickC_OK();
    // Fills the boxes of the selected property with what the database holds; it is used when that is confirmed.
    void clickC_Obnovit();
    void clickC_Zpet() { visible = false; }
    // The frame's cross or Esc is Back.
    void close() { clickC_Zpet(); }

  private:
    using Texts = std::array<std::string, kFields>;

    void showEquation();
    void fill(int index);
    void showValues();
    void complain(int field, const std::string& text);
    TKorelace typedBlock(int index) const;

    TLatka record_, original_;
    std::array<Texts, kProperties> filled_;
    std::array<Texts, kProperties> typed_;
};

}  // namespace velor
