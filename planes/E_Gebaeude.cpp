// SPDX-License-Identifier: GPL-3.0-or-later
#include "planes/E_Gebaeude.h"

#include "calc/c_mod.h"
#include "planes/E_Fenster.h"
#include "project/Zahlformat.h"
#include "project/c_glob.h"

#include <cmath>

E_Gebaeude::E_Gebaeude(Projekt& p, E_Fenster& fenster, char dezimal)
    : p_(p), fenster_(fenster), dezimal_(dezimal) {
    auto zahl = [this](auto wert, const char* muster) {
        return format_muster(wert, muster, dezimal_);
    };
    Troom_sb.Change = [this] { Troom_geaendert(); };
    Tueber_sb.Change = [this] { Tueber_geaendert(); };
    intg_sb.Change = [this, zahl] {
        p_.Geaendert = 1;
        p_.intg = static_cast<float>(intg_sb.Value() / 2.0);
        intg_anz.Caption = zahl(p_.intg, "#0.0");
        // The same gains as a mean power over the year's 8760 hours, W/m².
        intg_anz2.Caption = zahl(static_cast<double>(p_.intg) * 1000 / 8760, "#0.0");
        alles_berechnen(p_);
    };
    auto regel = [this](ScrollField& sb, float& feld, Label& anz, double teiler, const char* muster,
                        double anzeige_faktor) {
        sb.Change = [this, &sb, &feld, &anz, teiler, muster, anzeige_faktor] {
            p_.Geaendert = 1;
            feld = static_cast<float>(sb.Value() / teiler);
            anz.Caption = format_muster(feld * anzeige_faktor, muster, dezimal_);
            alles_berechnen(p_);
        };
    };
    regel(infiltration_sb, p_.infiltration, infiltration_anz, 100, "0.00", 1);
    regel(lw_sb, p_.lw, lw_anz, 100, "0.00", 1);
    regel(WRG_Sb, p_.WRG, WRG_anz, 100, "0", 100);
    regel(Klimaeffizienz_sb, p_.Klimaeffizienz, KlimaEffizienz_anz, 10, "#0.0", 1);

    awn_cb.Click = [this] { wand(awn_cb, p_.awn, 0); };
    aws_cb.Click = [this] { wand(aws_cb, p_.aws, 1); };
    awo_cb.Click = [this] { wand(awo_cb, p_.awo, 2); };
    aww_cb.Click = [this] { wand(aww_cb, p_.aww, 3); };

    const bool englisch = p_.Sprache == "e";
    const std::vector<std::string> bauweisen =
        englisch ? std::vector<std::string>{"heavy construction", "medium construction",
                                            "light construction"}
                 : std::vector<std::string>{"Schwere Bauweise", "Mittelschwere Bauweise",
                                            "Leichte Bauweise"};
    Aussenwandart.Eintraege = bauweisen;
    Innenwandart.Eintraege = bauweisen;
    // The plane's design selects the middle row of both lists before any handler is bound.
    Aussenwandart.setze_index(1);
    Innenwandart.setze_index(1);
    Aussenwandart.Click = [this] {
        p_.Geaendert = 1;
        p_.Aussenwandart = static_cast<int16_t>(Aussenwandart.ListIndex());
        alles_berechnen(p_);
    };
    Innenwandart.Click = [this] {
        p_.Geaendert = 1;
        p_.Innenwandart = static_cast<int16_t>(Innenwandart.ListIndex());
        alles_berechnen(p_);
    };
}

void E_Gebaeude::Troom_geaendert() {
    p_.Geaendert = 1;
    p_.Troom = static_cast<float>(Troom_sb.Value() / 10.0);
    troom_anz.Caption = format_muster(p_.Troom, "#0.0", dezimal_);
    // The set temperature gives way below the overheating limit; the position change runs this
    // handler once more with the corrected value.
    if (p_.Troom >= p_.Tueber) {
        Troom_sb.setze(static_cast<double>(p_.Tueber) * 10 - 1);
    }
    alles_berechnen(p_);
}

void E_Gebaeude::Tueber_geaendert() {
    p_.Geaendert = 1;
    p_.Tueber = static_cast<float>(Tueber_sb.Value() / 10.0);
    Tueber_anz.Caption = format_muster(p_.Tueber, "#0.0", dezimal_);
    if (p_.Tueber <= p_.Troom) {
        Tueber_sb.setze(static_cast<double>(p_.Troom) * 10 + 1);
    }
    alles_berechnen(p_);
}

void E_Gebaeude::wand(CheckField& cb, int16_t& feld, int fassade) {
    const int c = cb.Value();
    p_.Geaendert = 1;
    feld = static_cast<int16_t>(1 - c);
    // A wall towards a heated neighbour has no window: its share field is disabled and its
    // share value hidden in its own background colour, but kept.
    Fensterfassade& x = fenster_.fassaden[static_cast<std::size_t>(fassade)];
    x.f_sb.Enabled = c == 0;
    x.f_anz.ForeColor = c == 1 ? Label::Farbe::Hintergrund : Label::Farbe::Schaltflaechentext;
    alles_berechnen(p_);
}

void E_Gebaeude::speicher_anzeigen() {
    const double x = static_cast<double>(p_.Cwirk) / p_.v_geb / 3600;
    Cwirk_anz.Caption = format_muster(x, "#0.0", dezimal_);
    cges_anz.Caption = format_muster(static_cast<double>(p_.Cwirk) / 3600 / 1000, "#0.0", dezimal_);
    if (x >= 0 && std::isfinite(x)) {
        Gewicht1_Height = static_cast<int>(std::lround(std::sqrt(x) * 100));
        Gewicht1_Top = 1500 - Gewicht1_Height;
        Gewicht2_Height = static_cast<int>(std::lround(std::sqrt(x) * 400 / 9));
        Gewicht2_Top = 1500 - Gewicht1_Height - Gewicht2_Height + 10;
    }
}
