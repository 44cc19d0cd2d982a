// SPDX-License-Identifier: GPL-3.0-or-later
#include "planes/E_Geometrie.h"

#include "calc/c_mod.h"
#include "climate/monatsstrahlung.h"
#include "planes/E_Daemmung.h"
#include "project/Zahlformat.h"
#include "project/Zahltext.h"
#include "project/c_glob.h"

#include <algorithm>
#include <cmath>

E_Geometrie::E_Geometrie(Projekt& p, E_Daemmung& daemmung, char dezimal)
    : p_(p), daemmung_(daemmung), dezimal_(dezimal) {
    l_sb.Change = [this] { groesse_geaendert(p_.l, l_sb.Value() * 0.1); };
    b_sb.Change = [this] { groesse_geaendert(p_.b, b_sb.Value() * 0.1); };
    h_sb.Change = [this] { groesse_geaendert(p_.h, h_sb.Value() * -0.1); };
    hd_sb.Change = [this] { groesse_geaendert(p_.hd, hd_sb.Value() * -0.1); };
    ag_sb.Change = [this] { groesse_geaendert(p_.ag, -ag_sb.Value()); };
    orient_sb.Change = [this] { orient_geaendert(); };
    Check_Dachgeschoss.Click = [this] { Check_Dachgeschoss_Click(); };
    Option_Dachfirst.Click = [this](int index) { Option_Dachfirst_Click(index); };
    // The plane's design: the north-south ridge set, the roof fields hidden until a heated
    // attic is chosen.
    Option_Dachfirst.setzen(p_.Dachfirst == 2 ? 2 : 1);
    Option_Dachfirst.Enabled(1, false);
    Option_Dachfirst.Enabled(2, false);
    hd_sb.Visible = false;
    for (Label* l : {&Label9, &Label6, &Label4, &hd_anz, &dachflaeche_anz, &Giebel_anz}) {
        l->Visible = false;
    }
}

void E_Geometrie::groesse_geaendert(float& feld, double wert) {
    p_.Geaendert = 1;
    feld = static_cast<float>(wert);
    alles_berechnen(p_);
}

void E_Geometrie::orient_geaendert() {
    p_.Geaendert = 1;
    p_.orient = static_cast<int16_t>(-orient_sb.Value());
    orient_anz.Caption = format_muster(static_cast<double>(p_.orient), "##0", dezimal_) + "°";
    monatsstrahlung_berechnen(p_);
    alles_berechnen(p_);
}

void E_Geometrie::Check_Dachgeschoss_Click() {
    const bool c = Check_Dachgeschoss.Value() == 1;
    const bool englisch = p_.Sprache == "e";
    p_.Dachgeschoss = c;
    Option_Dachfirst.Enabled(1, c);
    Option_Dachfirst.Enabled(2, c);
    Frame3_Enabled = c;
    if (!c) {
        hd_sb.setze(0);
        h_sb_Top = 1665;
        h_sb_Height = 1455;
        Picture3 = "Grafiken/haus0.bmp";
        daemmung_.liste2.Caption = englisch ? "upper floor" : "Obere Geschoßdecke";
    } else {
        hd_sb.setze(-10);
        h_sb_Top = 1920;
        h_sb_Height = 1200;
        Picture3 = Option_Dachfirst.Value(1) ? "Grafiken/haus1.bmp" : "Grafiken/haus2.bmp";
        // The labels over the picture take their places at once, not only at a ridge click.
        dachbeschriftung(Option_Dachfirst.Value(1) ? 1 : 2);
        daemmung_.liste2.Caption = englisch ? "roof" : "Dach";
    }
    hd_sb.Visible = c;
    for (Label* l : {&Label9, &Label6, &Label4, &hd_anz, &dachflaeche_anz, &Giebel_anz}) {
        l->Visible = c;
    }
    daemmung_.ogd.Visible = !c;
    daemmung_.ogd_Dach.Visible = c;
    alles_berechnen(p_);
}

void E_Geometrie::Option_Dachfirst_Click(int index) {
    p_.Dachfirst = static_cast<int16_t>(Option_Dachfirst.gesetzt() < 0 ? 0 : index);
    if (Check_Dachgeschoss.Value() != 1) {
        return;
    }
    Picture3 = "Grafiken/haus" + std::to_string(index) + ".bmp";
    dachbeschriftung(index);
    alles_berechnen(p_);
}

void E_Geometrie::dachbeschriftung(int index) {
    const bool englisch = p_.Sprache == "e";
    auto setzen = [](Label& l, int left, int top) {
        l.Left = left;
        l.Top = top;
    };
    // Each value stands under its caption, inside the picture.
    if (index == 1) {
        Label9.Caption = englisch ? "roof area (west):" : "Dachfläche (West):";
        setzen(Label9, 48, 26);
        Label6.Caption = englisch ? "gable:" : "Giebel";
        setzen(Label6, 72, 88);
        setzen(dachflaeche_anz, 24, 76);
        setzen(Giebel_anz, 72, 102);
    } else if (index == 2) {
        Label9.Caption = englisch ? "gable:" : "Giebel:";
        setzen(Label9, 56, 4);
        Label6.Caption = englisch ? "roof area (south):" : "Dachfläche (Süd):";
        setzen(Label6, 68, 48);
        setzen(dachflaeche_anz, 80, 84);
        setzen(Giebel_anz, 56, 18);
    }
}

void E_Geometrie::anzeigen() {
    const bool englisch = p_.Sprache == "e";
    auto zahl = [this](auto wert) { return format_muster(wert, "#0.0", dezimal_); };
    l_anz.Caption = (englisch ? "length: " : "Länge: ") + zahl(p_.l) + " m";
    b_anz.Caption = (englisch ? "width: " : "Breite: ") + zahl(p_.b) + " m";
    h_anz.Caption = zahl(p_.h) + " m";
    hd_anz.Caption = zahl(p_.hd) + " m";
    ag_anz.Caption = zahl_text(p_.ag, dezimal_);
    f_nfa_anz.Caption = " " + zahl(static_cast<double>(p_.h) * p_.l);
    f_wfa_anz.Caption = " " + zahl(static_cast<double>(p_.b) * p_.h);
    Giebel_anz.Caption = " " + zahl(static_cast<double>(p_.f_giebel_w) + p_.f_giebel_n) + " m²";
    dachflaeche_anz.Caption = " " + zahl(static_cast<double>(p_.f_dach_w) + p_.f_dach_n) + " m²";
    f_nutz_anz.Caption = " " + zahl(p_.f_nutz);
    f_gd_anz.Caption = " " + zahl(p_.f_gd);
    v_luft_anz.Caption = " " + zahl(p_.v_luft);
    v_geb_anz.Caption = " " + zahl(p_.v_geb);
}

int av_balken_y(const Projekt& p) {
    const double c = std::pow(static_cast<double>(p.v_geb), 1.0 / 3);
    const double y = std::nearbyint(123 - (p.AV * c - 2.88) / 0.06);
    if (!(y >= 7)) {
        return 7;
    }
    return static_cast<int>(std::min(y, 32767.0));
}

void E_Geometrie::AV_diagramm() {
    const double c = std::pow(static_cast<double>(p_.v_geb), 1.0 / 3);
    const int y = ::av_balken_y(p_);
    av_balken_y = y;
    av_anz.Top = std::max(y - 8, 5);
    av_anz.Caption = format_muster(p_.AV, "0.00", dezimal_) + " ";
    if (c > 0) {
        AV_Kugel.Caption = format_muster(4.836 / c, "0.00", dezimal_);
        AV_Wuerfel.Caption = format_muster(6 / c, "0.00", dezimal_);
        AV_Tetraeder.Caption = format_muster(7.2056 / c, "0.00", dezimal_);
    }
}
