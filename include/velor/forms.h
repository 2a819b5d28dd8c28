// The dialogs as objects without a screen: the state of their controls, what the user may do, and the events that they
// raise to the mixture object that holds them. A view shows such an object and passes the user's actions on; it decides
// nothing itself. A form is modal: it is shown until `visible` turns false.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "velor/chosen_numbers.h"
#include "velor/form_controls.h"
#include "velor/substances.h"

namespace velor {

// The list of substances, to be read only.
class F_Sezn {
  public:
    static constexpr std::string_view kFont = "Courier New CE";  // of the list, fixed pitch

    std::string Nadpis_1;  // heading
    std::string Nadpis_2 = "... připravuji seznam látek, čekejte prosím ...";
    std::string Titulek =
        "  Č.      Název látky                        Synonymum                          Vzorec               CAS No.";
    ListBox L_Sezn;
    SubstanceList Latky;  // of the lines, for a view that has room for whole names; none where a line tells a failure
    bool visible = false;

    std::function<void()> zavrit;                                 // event: the form is to be closed
    std::function<void(const Substance& substance)> ZobrazLatku;  // event: one is to be shown; only where one can be

    // A click on the form, any key in the list, the frame's cross or Esc: all close it.
    void click() { close(); }
    void keyPressed(int key);
    void close();
};

// The choice of a mixture's components.
class F_Seznam {
  public:
    static constexpr int kBoxes = 20;
    static constexpr std::string_view kFont = "Courier New";

    std::string caption = " SEZNAM LÁTEK - definice složek směsi";
    std::string Nadpis_1, Nadpis_2;  // headings
    std::string lblDatafile = "Datafile";
    std::string Nav2 = "Výběr složek dvojklik nebo Enter";
    std::string Label1 = "Složky směsi:";
    std::string Frame1 = " Způsob zadání látek ";
    std::string Option1Caption = "&Přímo zadáním čísel látek";
    std::string Option2Caption = "&Výběrem ze seznamu látek";
    std::string C_OKCaption = "&Směs definována";
    std::string ZpetCaption = "Smazat, &znovu";
    ListBox L_Seznam;
    SubstanceList Latky;                 // of the lines, for a view that has room for whole names
    std::array<TextBox, kBoxes> T_Smes;  // chosen numbers; only those up to the next free one are visible
    bool Option1 = true;                 // typing the numbers; otherwise picking from the list
    Focus focus{Focus::Control::Number, 0};
    bool visible = false;

    int PocZadanych = 0;       // numbers entered so far
    bool NeniCislice = false;  // a key that is no digit was typed

    std::function<void(const CislaLatek&)> SZavrit;                // event: the choice is confirmed
    std::function<void(const std::string& text)> showExclamation;  // a message with the exclamation icon

    F_Seznam();

    void selectLine(int index);
    // In the list: takes the number at the start of the selected line. Enter does the same.
    void doubleClick();
    void keyInList(int key);
    // In box k (0..19): text edited by the control itself, then the key's code as pressed and released.
    void setText(int k, std::string text);
    void keyPressed(int k, int key);
    void keyReleased(int k);
    void clickOption1();
    void clickOption2();
    void clickZpet();
    // Raises SZavrit with the numbers. Error 6: one of them does not fit 16 bits.
    void clickC_OK();
    // The frame's cross or Esc: nothing changes.
    void close() { visible = false; }

  private:
    void exclaim(const std::string& text) const;
    void focusNumber(int k);
    void focusByOption();
    void showNextBox();
};

// The composition of the mixture.
class F_Sloz {
  public:
    static constexpr int kBoxes = 20;

    std::string caption = " Zadání složení směsi";
    std::string Frame1 = " Složení ";
    std::string O_MolCaption = "Molově";
    std::string O_HmotCaption = "Hmotově";
    std::string C_OKCaption = "&Pokračovat";
    std::string C_ZpetCaption = "&Zpět";
    std::string Navod =
        "Složení můžete vkládat jako mol. nebo hmotový zlomek nebo jako poměrové díly. Bude normalizováno. ";
    std::string Navod1 =
        "Kliknutím levého tlačítka  myši   na poli  názvu složky zobrazíte bodové vlastnosti této složky.";
    std::string Navod2 =
        "Kliknutím pravého tlačítka myši na poli názvu složky vyvoláte dialog dočasné  změny  jejího  názvu  a "
        "následně i dočasné změny datových hodnot.";
    std::string Nadpis = "Složka", Nadpiss = "Složení", Nadpisc;  // column headings
    std::array<std::string, kBoxes> L_J;                          // component names
    std::array<TextBox, kBoxes> T_S;                              // composition values
    int components = 0;                                           // boxes in use
    bool O_Mol = true;                                            // mole fractions or parts; otherwise mass
    Focus focus{Focus::Control::Value, 0};
    bool visible = false;

    std::function<void()> ZavriSloz;             // events: confirmed,
    std::function<void(int component)> ZobrazL;  // the display of a component asked for, counted from 1,
    std::function<void(int component)> ZobrazZ;  // its temporary change,
    std::function<void()> ZpetSloz;              // and back

    F_Sloz();

    void setText(int i, std::string text);
    // Enter in box i walks to the next one in use.
    void keyPressed(int i, int key);
    void clickO_Mol();
    void clickO_Hmot();
    // A mouse button on the name of component i + 1: 1 is the left one, any other stands for the right one.
    void mouseOnName(int i, int button);
    void clickC_OK();
    void clickC_Zpet();
    // The frame's cross or Esc is Back.
    void close() { clickC_Zpet(); }
};

}  // namespace velor
