// SPDX-License-Identifier: GPL-3.0-or-later
#include "planes/E_Energie.h"

#include "calc/c_mod.h"
#include "energy/energie.h"
#include "project/Laufzeitfehler.h"
#include "project/Zahlformat.h"
#include "project/c_glob.h"

E_Energie::E_Energie(Projekt& p, char dezimal)
    : Heizsysteme(katalog_laden(p.Sprache)), p_(p), dezimal_(dezimal) {
    for (Label* teil : {&anz_q_ce, &anz_q_d, &anz_q_s, &anz_q_d_he, &anz_q_s_he, &anz_q_g_he}) {
        teil->Visible = false;
    }
}

const Heizsystemzeile& E_Energie::zeile() const {
    if (p_.Heizsystem < 1 || p_.Heizsystem > 9) {
        throw Laufzeitfehler(Laufzeitfehler::IndexAusserhalb,
                             "Subscript out of range: Heizsystem " + std::to_string(p_.Heizsystem));
    }
    return Heizsysteme[static_cast<std::size_t>(p_.Heizsystem - 1)];
}

void E_Energie::liste_oeffnen(const Label& feld, const std::string& name, const std::string* texte,
                              std::size_t anzahl) {
    constexpr int LUECKE = 120;     // twips between the entries and at the panel's edges
    constexpr int EINE_ZEILE = 195; // twips of one line of the list's font
    int y = LUECKE;
    for (std::size_t i = 0; i < Label_Auswahl.size(); ++i) {
        Label& eintrag = Label_Auswahl[i];
        const bool benutzt = i < anzahl;
        eintrag.Caption = benutzt ? texte[i] : std::string();
        // Empty entries and those behind the used range stay hidden.
        eintrag.Visible = benutzt && !texte[i].empty();
        if (eintrag.Visible) {
            // A long text wraps over two lines: each entry stands under its predecessor by that
            // one's own height.
            eintrag.Height = Texthoehe ? Texthoehe(eintrag.Caption) : EINE_ZEILE;
            eintrag.Top = y;
            y += eintrag.Height + LUECKE;
        }
    }
    Frame_Auswahl_Height = y;
    Frame_Auswahl_Left = feld.Left;
    Frame_Auswahl_Top = feld.Top + feld.Height;
    Frame_Auswahl_Visible = !Frame_Auswahl_Visible;
    Auswahlfeld = name;
}

void E_Energie::Command1_Click() {
    std::array<std::string, 9> texte;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        texte[i] = Heizsysteme[i].Bezeichnung;
    }
    liste_oeffnen(Label_System, "Label_System", texte.data(), texte.size());
}

void E_Energie::Command2_Click() {
    const Heizsystemzeile& z = zeile();
    liste_oeffnen(Label_Uebergabe, "Label_Übergabe", z.Uebergabe.data(), z.Uebergabe.size());
}

void E_Energie::Command3_Click() {
    const Heizsystemzeile& z = zeile();
    liste_oeffnen(Label_Energietraeger, "Label_Energieträger", z.Energietraeger.data(),
                  z.Energietraeger.size());
}

void E_Energie::Label_Auswahl_Click(int index) {
    const std::string text = Label_Auswahl.at(static_cast<std::size_t>(index - 1)).Caption;
    if (Auswahlfeld == "Label_System") {
        p_.Heizsystem = static_cast<int16_t>(index);
        Label_System.Caption = text;
        // A new system starts with its first transfer and carrier: no stale index survives.
        p_.Uebergabe = 1;
        p_.Energietraeger = 1;
        Label_Uebergabe.Caption = zeile().Uebergabe[0];
        Label_Energietraeger.Caption = zeile().Energietraeger[0];
    } else if (Auswahlfeld == "Label_Übergabe") {
        p_.Uebergabe = static_cast<int16_t>(index);
        Label_Uebergabe.Caption = text;
    } else if (Auswahlfeld == "Label_Energieträger") {
        p_.Energietraeger = static_cast<int16_t>(index);
        Label_Energietraeger.Caption = text;
    }
    Frame_Auswahl_Visible = false;
    alles_berechnen(p_);
}

void E_Energie::felder_zeigen() {
    const Heizsystemzeile& z = zeile();
    if (p_.Uebergabe < 1 || p_.Uebergabe > 2 || p_.Energietraeger < 1 || p_.Energietraeger > 4) {
        throw Laufzeitfehler(Laufzeitfehler::IndexAusserhalb,
                             "Subscript out of range: Uebergabe " + std::to_string(p_.Uebergabe) +
                                 ", Energietraeger " + std::to_string(p_.Energietraeger));
    }
    Label_System.Caption = z.Bezeichnung;
    Label_Uebergabe.Caption = z.Uebergabe[static_cast<std::size_t>(p_.Uebergabe - 1)];
    Label_Energietraeger.Caption =
        z.Energietraeger[static_cast<std::size_t>(p_.Energietraeger - 1)];
}

void E_Energie::ergebnisse_zeigen() {
    const Energiekennwerte& k = p_.Energie;
    // Each figure keeps its own width: a float is formatted as a float.
    auto zahl = [this](auto wert) { return format_muster(wert, "0.0", dezimal_); };
    const bool englisch = p_.Sprache == "e";
    const std::string name = englisch ? k.Traegername_e : k.Traegername;
    Label8.Caption = (englisch ? "heating energy demand (" : "Heizenergiebedarf (") + name + "):";
    Label21.Caption =
        (englisch ? "primary energy demand (" : "Primärenergiebedarf (") + name + "):";
    Label27.Caption = name + ":";
    // Electricity has a single primary energy line, which carries the auxiliary energy too.
    const bool strom = k.Traegername == "Strom";
    for (Label* zeile :
         {&Label14, &Label6, &anz_q_PE_Strom, &Label34, &anz_Primaerenergiefaktor_Strom}) {
        zeile->Visible = !strom;
    }
    anz_qhs_sum.Caption = zahl(p_.qhs_sum);
    anz_q_verlust.Caption = zahl(k.q_s + k.q_ce + k.q_d);
    anz_e_g.Caption = format_muster(k.e_g, "0.00", dezimal_);
    anz_q_HE_Energietraeger.Caption = zahl(p_.q_HE_Energietraeger);
    anz_q_HE_Strom.Caption = zahl(p_.q_HE_Strom);
    anz_q_PE_Energietraeger.Caption =
        zahl(strom ? p_.q_PE_Strom + p_.q_PE_Energietraeger : p_.q_PE_Energietraeger);
    anz_q_PE_Strom.Caption = zahl(p_.q_PE_Strom);
    anz_Primaerenergiefaktor_Energietraeger.Caption = zahl(k.f_p);
    anz_Primaerenergiefaktor_Strom.Caption = zahl(PRIMAERFAKTOR_STROM);
    anz_q_ce.Caption = zahl(k.q_ce);
    anz_q_d.Caption = zahl(k.q_d);
    anz_q_s.Caption = zahl(k.q_s);
    anz_q_d_he.Caption = zahl(k.q_d_he);
    anz_q_s_he.Caption = zahl(k.q_s_he);
    anz_q_g_he.Caption = zahl(k.q_g_he);
}
