// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/lebenszyklus/eingaben_anzeigen.h"

#include "climate/ebene/E_Klima.h"
#include "planes/Eingabeflaechen.h"
#include "project/Zahlformat.h"
#include "project/c_glob.h"

namespace {

void geometrie(Projekt& p, E_Geometrie& g) {
    g.l_sb.setze(p.l / 0.1);
    g.b_sb.setze(p.b / 0.1);
    g.h_sb.setze(p.h / -0.1);
    g.hd_sb.setze(p.hd / -0.1);
    g.ag_sb.setze(-static_cast<double>(p.ag));
    g.orient_sb.setze(-static_cast<double>(p.orient));
}

void daemmung(Projekt& p, E_Daemmung& d, char dezimal) {
    d.kwn_sb.setze(p.kwn * 100.0);
    d.kws_sb.setze(p.kws * 100.0);
    d.kwo_sb.setze(p.kwo * 100.0);
    d.kww_sb.setze(p.kww * 100.0);
    d.kd_sb.setze(p.kd * 100.0);
    d.kk_sb.setze(p.kk * 100.0);
    d.ft_sb.setze(p.ft * 10.0);
    d.kt_sb.setze(p.kt * 10.0);
    d.ft_anz.Caption = format_muster(p.ft, "##0.0", dezimal);
    d.kt_anz.Caption = format_muster(p.kt, "##0.0", dezimal);
    d.ugd.setze_index(p.ugd_typ);
    d.ogd.setze_index(p.Dachraum_typ);
    d.cbk_hDach.setze(1 - p.cbk_hDach);
    d.absfaktor_sb.setze(p.absfaktor * 100.0);
    // The options compare the stored float with each surcharge; a value that is none of them
    // sets no option and stays.
    for (int index : {1, 2, 3}) {
        if (p.Waermebruecken == E_Daemmung::waermebruecken_wert(index)) {
            d.Waermebruecken_opt.setzen(index);
        }
    }
}

void fenster(Projekt& p, E_Fenster& f) {
    f[Nord].typ.setze_index(p.fenstern_typ);
    f[Sued].typ.setze_index(p.fensters_typ);
    f[Ost].typ.setze_index(p.fenstero_typ);
    f[West].typ.setze_index(p.fensterw_typ);
    f[Ost].f_sb.setze(p.fo);
    f[Sued].f_sb.setze(p.fs);
    f[West].f_sb.setze(p.fw);
    f[Nord].f_sb.setze(p.fn);
    for (Fassade x : {Nord, Sued, Ost, West}) {
        f[x].versch_sb.setze(f[x].versch * 100.0);
    }
    for (Fassade x : {Nord, Sued, Ost, West}) {
        f[x].ra_sb.setze(f[x].ra * 100.0);
    }
}

void gebaeude(Projekt& p, E_Gebaeude& g, char dezimal) {
    g.Troom_sb.setze(p.Troom * 10.0);
    g.intg_sb.setze(p.intg * 2.0);
    g.infiltration_sb.setze(p.infiltration * 100.0);
    g.lw_sb.setze(p.lw * 100.0);
    g.WRG_Sb.setze(p.WRG * 100.0);
    g.intg_anz.Caption = format_muster(p.intg, "#0.0", dezimal);
    g.troom_anz.Caption = format_muster(p.Troom, "0.00", dezimal);
    g.infiltration_anz.Caption = format_muster(p.infiltration, "0.00", dezimal);
    g.lw_anz.Caption = format_muster(p.lw, "0.00", dezimal);
    g.WRG_anz.Caption = format_muster(p.WRG * 100.0, "0", dezimal);
    g.awn_cb.setze(1 - p.awn);
    g.aws_cb.setze(1 - p.aws);
    g.aww_cb.setze(1 - p.aww);
    g.awo_cb.setze(1 - p.awo);
    g.Tueber_sb.setze(p.Tueber * 10.0);
    g.Klimaeffizienz_sb.setze(p.Klimaeffizienz * 10.0);
}

} // namespace

void eingaben_anzeigen(Projekt& p, Eingabeflaechen& e, Dialogs& d) {
    geometrie(p, e.geometrie);
    daemmung(p, e.daemmung, e.dezimal);
    fenster(p, e.fenster);
    gebaeude(p, e.gebaeude, e.dezimal);
    e.energie.felder_zeigen();
    // The climate option of the project: set or already set, its handler runs and reconciles
    // the station with its scope; it reloads only where the station is in no list of it.
    switch (p.Klimaauswahl) {
    case 1:
        Option1_Click(e.klima, p, d, true);
        break;
    case 2:
        Option2_Click(e.klima, p, d, true);
        break;
    case 3:
        Option3_Click(e.klima, p, d, true);
        break;
    default:
        break;
    }
    p.Geaendert = 0;
}
