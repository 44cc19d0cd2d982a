// SPDX-License-Identifier: GPL-3.0-or-later
#include "planes/E_Daemmung.h"

#include "calc/c_mod.h"
#include "project/Zahlformat.h"
#include "project/c_glob.h"

float E_Daemmung::waermebruecken_wert(int index) {
    return index == 2 ? 0.1f : index == 3 ? 0.05f : 0.0f;
}

E_Daemmung::E_Daemmung(Projekt& p, char dezimal) : p_(p), dezimal_(dezimal) {
    struct Feld {
        ScrollField& sb;
        float& feld;
        Label& anz;
        bool hundertstel; // position / 100, else position x 0.1
        const char* muster;
    };
    const Feld felder[] = {
        {kwn_sb, p_.kwn, kwn_anz, true, "0.00"},
        {kws_sb, p_.kws, kws_anz, true, "0.00"},
        {kwo_sb, p_.kwo, kwo_anz, true, "0.00"},
        {kww_sb, p_.kww, kww_anz, true, "0.00"},
        {kd_sb, p_.kd, kd_anz, true, "0.00"},
        {kk_sb, p_.kk, kk_anz, true, "0.00"},
        {ft_sb, p_.ft, ft_anz, false, "##0.0"},
        {kt_sb, p_.kt, kt_anz, false, "##0.0"},
        {absfaktor_sb, p_.absfaktor, absfaktor_anz, true, "0.00"},
    };
    for (const Feld& f : felder) {
        ScrollField* sb = &f.sb;
        float* feld = &f.feld;
        Label* anz = &f.anz;
        const char* muster = f.muster;
        if (f.hundertstel) {
            sb->Change = [=] { wert_setzen(*feld, *anz, sb->Value() / 100.0, muster); };
        } else {
            sb->Change = [=] { wert_setzen(*feld, *anz, sb->Value() * 0.1, muster); };
        }
    }

    const bool englisch = p_.Sprache == "e";
    ugd.Eintraege =
        englisch
            ? std::vector<std::string>{"non-heated cellar (with insulation)",
                                       "non-heated cellar (without insulation)",
                                       "soil (with border insulation)",
                                       "soil (without border insulation)", "outside air"}
            : std::vector<std::string>{"Unbeheizter Keller (mit Perimeterdämmung)",
                                       "Unbeheizter Keller (ohne Perimeterdämmung)",
                                       "Erdreich (mit Randdämmung)", "Erdreich (ohne Randdämmung)",
                                       "Außenluft (aufgeständerter Fußboden)"};
    ogd.Eintraege =
        englisch ? std::vector<std::string>{"outside or non-insulated roof",
                                            "partly insulated roof", "totally insulated roof"}
                 : std::vector<std::string>{"Außen oder nicht gedämmtes Dach", "Teilgedämmtes Dach",
                                            "Vollgedämmtes Dach"};
    ogd_Dach.Eintraege = {englisch ? "outside air" : "Außenluft"};
    ogd_Dach.setze_index(0);
    ogd_Dach.Visible = false;
    liste2.Caption = englisch ? "upper floor" : "Obere Geschoßdecke";

    // The list selections store their row without marking the project changed; only a text
    // change of the list does.
    ugd.Click = [this] {
        p_.ugd_typ = static_cast<int16_t>(ugd.ListIndex());
        alles_berechnen(p_);
    };
    ogd.Click = [this] {
        p_.Dachraum_typ = static_cast<int16_t>(ogd.ListIndex());
        alles_berechnen(p_);
    };
    ugd.Change = [this] { p_.Geaendert = 1; };
    ogd.Change = [this] { p_.Geaendert = 1; };
    cbk_hDach.Click = [this] {
        p_.Geaendert = 1;
        p_.cbk_hDach = static_cast<int16_t>(1 - cbk_hDach.Value());
        alles_berechnen(p_);
    };
    Waermebruecken_opt.Click = [this](int index) {
        p_.Geaendert = 1;
        p_.Waermebruecken = waermebruecken_wert(index);
        alles_berechnen(p_);
    };
}

void E_Daemmung::wert_setzen(float& feld, Label& anz, double wert, const char* muster) {
    p_.Geaendert = 1;
    feld = static_cast<float>(wert);
    anz.Caption = format_muster(feld, muster, dezimal_);
    alles_berechnen(p_);
}
