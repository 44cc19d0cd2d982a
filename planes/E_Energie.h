// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "energy/katalog.h"
#include "project/Label.h"

#include <array>
#include <functional>
#include <string>

struct Projekt;

// The selection part of the energy plane: three fields for heating system, transfer and
// carrier, each with a button that opens a list of the catalogue's entries under it. Choosing
// runs the driver but does not mark the project changed. Below them the year's supply figures.
class E_Energie {
public:
    // `dezimal` is the decimal mark of the figures.
    explicit E_Energie(Projekt& p, char dezimal = '.');
    E_Energie(const E_Energie&) = delete;
    E_Energie& operator=(const E_Energie&) = delete;

    Label Label_System, Label_Uebergabe, Label_Energietraeger; // the three chosen texts
    std::array<Label, 9> Label_Auswahl; // the list's entries 1..9 at index 0..8
    bool Frame_Auswahl_Visible = false; // the list panel
    // Place and height of the list panel in twips: under the field it serves, as high as its
    // stacked entries with a gap of 120 twips between and around them.
    int Frame_Auswahl_Left = 0, Frame_Auswahl_Top = 0, Frame_Auswahl_Height = 0;
    // The height in twips of an entry showing a text, wrapped to the panel's width; given by the
    // window. Without it every entry has one line.
    std::function<int(const std::string&)> Texthoehe;
    std::string Auswahlfeld; // the field the open list serves: "Label_System", "Label_Übergabe"
                             // or "Label_Energieträger"
    std::array<Heizsystemzeile, 9> Heizsysteme; // the catalogue in the language of the run

    // The supply figures of the last whole run, "0.0" (e_g "0.00").
    Label anz_qhs_sum, anz_q_verlust, anz_e_g;
    Label anz_q_HE_Energietraeger, anz_q_HE_Strom, anz_q_PE_Energietraeger, anz_q_PE_Strom;
    Label anz_Primaerenergiefaktor_Energietraeger, anz_Primaerenergiefaktor_Strom;
    // The supply's parts: never shown, the report reads them.
    Label anz_q_ce, anz_q_d, anz_q_s, anz_q_d_he, anz_q_s_he, anz_q_g_he;
    // The captions that name the carrier.
    Label Label8, Label21, Label27;
    // The electricity lines' captions and unit keep their design text; with electricity as the
    // carrier they hide, as do anz_q_PE_Strom and anz_Primaerenergiefaktor_Strom.
    Label Label14, Label6, Label34;

    // The buttons beside the three fields: fill the list and open or close it.
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    // A click on the list entry `index`, 1..9.
    void Label_Auswahl_Click(int index);
    // A click on the panel beside the entries closes it.
    void Frame_Auswahl_Click() { Frame_Auswahl_Visible = false; }
    // The three fields show the stored choice. Throws Laufzeitfehler for an index outside the
    // catalogue.
    void felder_zeigen();
    // The figures and carrier captions of the record's last run, in the language of the record.
    void ergebnisse_zeigen();

private:
    void liste_oeffnen(const Label& feld, const std::string& name, const std::string* texte,
                       std::size_t anzahl);
    const Heizsystemzeile& zeile() const;

    Projekt& p_;
    char dezimal_;
};
