// SPDX-License-Identifier: GPL-3.0-or-later
#include "planes/E_Fenster.h"

#include "calc/c_mod.h"
#include "project/Zahlformat.h"
#include "project/c_glob.h"

E_Fenster::E_Fenster(Projekt& p, char dezimal)
    : fassaden{{{p, Nord}, {p, Sued}, {p, Ost}, {p, West}}}, p_(p), dezimal_(dezimal) {
    const bool englisch = p_.Sprache == "e";
    for (const Fenstertyp& t : FENSTERTYPEN) {
        fassaden[Nord].typ.Eintraege.push_back(englisch ? t.englisch : t.deutsch);
    }
    for (Fassade f : {Sued, Ost, West}) {
        (*this)[f].typ.Eintraege = fassaden[Nord].typ.Eintraege;
    }
    for (Fassade f : {Nord, Sued, Ost, West}) {
        handler_verbinden(f);
    }
    // The mode the plane opens with, as designed: set before the handler is attached, so that
    // nothing is copied or calculated while the plane is built.
    Option1.setzen(p_.Fenstermodus == 1 ? 1 : 0);
    Option1.Click = [this](int index) { Option1_Click(index); };
}

void E_Fenster::handler_verbinden(Fassade f) {
    Fensterfassade& x = (*this)[f];
    x.f_sb.Change = [this, &x] {
        // The window share does not depend on the mode.
        p_.Geaendert = 1;
        x.f = x.f_sb.Value();
        x.f_anz.Caption = format_muster(static_cast<double>(x.f), "##0", dezimal_);
        alles_berechnen(p_);
    };
    x.typ.Click = [this, f] { typ_gewaehlt(f); };
    x.gf_sb.Change = [this, f, &x] {
        typwert_geaendert(f, &Fensterfassade::gf_sb, x.gf, x.gf_anz, false);
    };
    x.kfg_sb.Change = [this, f, &x] {
        typwert_geaendert(f, &Fensterfassade::kfg_sb, x.kfg, x.kfg_anz, true);
    };
    x.kfr_sb.Change = [this, f, &x] {
        typwert_geaendert(f, &Fensterfassade::kfr_sb, x.kfr, x.kfr_anz, true);
    };
    x.ra_sb.Change = [this, f, &x] {
        p_.Geaendert = 1;
        x.ra = static_cast<float>(x.ra_sb.Value() / 100.0);
        x.ra_anz.Caption = format_muster(static_cast<double>(x.ra) * 100, "##0", dezimal_);
        kf_kombinieren(f);
        abschluss(f, &Fensterfassade::ra_sb);
    };
    x.versch_sb.Change = [this, f, &x] {
        p_.Geaendert = 1;
        x.versch = static_cast<float>(x.versch_sb.Value() / 100.0);
        x.versch_anz.Caption = format_muster(static_cast<double>(x.versch) * 100, "##0", dezimal_);
        abschluss(f, &Fensterfassade::versch_sb);
    };
}

void E_Fenster::kf_kombinieren(Fassade f) {
    // The combination takes the scroll positions, not the stored glazing and frame fields.
    Fensterfassade& x = (*this)[f];
    const double ra = x.ra;
    x.kf = static_cast<float>((1 - ra) * x.kfg_sb.Value() / 100 + x.kfr_sb.Value() / 100.0 * ra);
}

void E_Fenster::typ_gewaehlt(Fassade f) {
    Fensterfassade& x = (*this)[f];
    p_.Geaendert = 1;
    const int index = x.typ.ListIndex();
    x.typ_feld = static_cast<int16_t>(index);
    if (index >= 0 && index < FENSTERTYP_SONSTIGES) {
        const Fenstertyp& t = FENSTERTYPEN[static_cast<std::size_t>(index)];
        x.kfg = t.kfg;
        x.gf = t.gf;
        x.kfr = t.kfr;
    }
    // On the screen the three position changes below would each run a whole calculation: the
    // guard keeps them to the geometry. The guard is given back as it was, so that a type set
    // while a project is built up does not end the build-up's guard.
    const int16_t guard = p_.FormLoadGuard;
    if (Visible) {
        p_.FormLoadGuard = -1;
    }
    x.kfg_sb.setze(static_cast<double>(x.kfg) * 100);
    x.kfr_sb.setze(static_cast<double>(x.kfr) * 100);
    x.gf_sb.setze(static_cast<double>(x.gf) * 100);
    if (Visible) {
        p_.FormLoadGuard = guard;
    }
    if (f == Sued) {
        if (Option1.Value(0)) {
            typ_kopieren();
        }
        alles_berechnen(p_);
    } else if (Option1.Value(1)) {
        alles_berechnen(p_);
    }
}

void E_Fenster::typwert_geaendert(Fassade f, ScrollField Fensterfassade::*glied, float& feld,
                                  Label& anz, bool kombinieren) {
    const ScrollField& sb = (*this)[f].*glied;
    p_.Geaendert = 1;
    feld = static_cast<float>(sb.Value() / 100.0);
    anz.Caption = format_muster(feld, "0.00", dezimal_);
    if (kombinieren) {
        kf_kombinieren(f);
    }
    // A value moved by the user makes the facade's type "Sonstiges". The test compares the
    // focused field's value with this position, as the plane always did.
    if (Visible && Fokus != nullptr && Fokus->Value() == sb.Value()) {
        (*this)[f].typ.setze_index(FENSTERTYP_SONSTIGES);
    }
    abschluss(f, glied);
}

void E_Fenster::abschluss(Fassade f, ScrollField Fensterfassade::*feld) {
    if (f != Sued) {
        if (Option1.Value(1)) {
            alles_berechnen(p_);
        }
        return;
    }
    // The south panel is the master of the same windows: the copies fire their own handlers,
    // which store their facade without running the driver; one run covers all four.
    if (Option1.Value(0)) {
        if (feld == &Fensterfassade::gf_sb || feld == &Fensterfassade::ra_sb ||
            feld == &Fensterfassade::versch_sb) {
            kopieren(feld, {Nord, Ost, West});
        } else {
            kopieren(feld, {Nord, West, Ost});
        }
    }
    alles_berechnen(p_);
}

void E_Fenster::kopieren(ScrollField Fensterfassade::*feld, std::array<Fassade, 3> ziele) {
    const int16_t position = ((*this)[Sued].*feld).Value();
    for (Fassade z : ziele) {
        ((*this)[z].*feld).setze(position);
    }
}

void E_Fenster::typ_kopieren() {
    const int zeile = (*this)[Sued].typ.ListIndex();
    for (Fassade z : {Nord, West, Ost}) {
        (*this)[z].typ.setze_index(zeile);
    }
}

void E_Fenster::Option1_Click(int index) {
    p_.Fenstermodus = static_cast<int16_t>(Option1.gesetzt() < 0 ? index : Option1.gesetzt());
    if (index == 0) {
        for (Knopf& k : Command_HR) {
            k.Visible = false;
            k.Enabled = true;
        }
        for (Fassade z : {Nord, Ost, West}) {
            (*this)[z].typ.setze_index((*this)[Sued].typ.ListIndex());
        }
        kopieren(&Fensterfassade::kfg_sb, {Nord, West, Ost});
        kopieren(&Fensterfassade::kfr_sb, {Nord, West, Ost});
        kopieren(&Fensterfassade::gf_sb, {Nord, Ost, West});
        kopieren(&Fensterfassade::ra_sb, {Nord, Ost, West});
        kopieren(&Fensterfassade::versch_sb, {Nord, Ost, West});
    } else if (index == 1) {
        for (Knopf& k : Command_HR) {
            k.Visible = true;
            k.Enabled = true;
        }
        Command_HR[Sued].Enabled = false;
    }
    Frame_Visible = {false, true, false, false};
    alles_berechnen(p_);
}

void E_Fenster::Command_HR_Click(int index) {
    for (Knopf& k : Command_HR) {
        k.Enabled = true;
    }
    Command_HR[static_cast<std::size_t>(index)].Enabled = false;
    Frame_Visible = {false, false, false, false};
    Frame_Visible[static_cast<std::size_t>(index)] = true;
}

void E_Fenster::anzeigen() {
    auto zahl = [this](auto wert, const char* muster) {
        return format_muster(wert, muster, dezimal_);
    };
    const double n = p_.f_nf, s = p_.f_sf, o = p_.f_of, w = p_.f_wf;
    (*this)[Nord].f_flaeche_anz.Caption = " " + zahl(n, "#0.0");
    (*this)[Sued].f_flaeche_anz.Caption = " " + zahl(s, "#0.0");
    (*this)[Ost].f_flaeche_anz.Caption = " " + zahl(o, "#0.0");
    (*this)[West].f_flaeche_anz.Caption = " " + zahl(w, "#0.0");
    f_gf_anz.Caption = zahl(n + s + o + w, "0.0");
    const double glas =
        (1 - static_cast<double>(p_.ras)) * s + (1 - static_cast<double>(p_.rao)) * o +
        (1 - static_cast<double>(p_.raw)) * w + (1 - static_cast<double>(p_.ran)) * n;
    f_vf_anz.Caption = zahl(glas, "0.0");
    const double summe = w + n + o + s;
    if (summe <= 0) {
        kf_anz.Caption.clear();
        gfm_anz.Caption.clear();
        return;
    }
    const double kf = (p_.kfs * s + p_.kfo * o + p_.kfw * w + p_.kfn * n) / summe;
    const double g = ((1 - static_cast<double>(p_.ras)) * s * p_.gfs +
                      (1 - static_cast<double>(p_.rao)) * o * p_.gfo +
                      (1 - static_cast<double>(p_.raw)) * w * p_.gfw +
                      (1 - static_cast<double>(p_.ran)) * n * p_.gfn) /
                     glas;
    kf_anz.Caption = " " + zahl(kf, "0.00");
    gfm_anz.Caption = " " + zahl(g, "0.00");
}
