// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/shell/ergebnis_json.h"

#include "app/shell/JsonWriter.h"
#include "project/c_glob.h"

namespace {

void eingaben(JsonWriter& j, const Projekt& p) {
    j.key("input");
    j.begin_object();
    j.field("l", p.l);
    j.field("b", p.b);
    j.field("h", p.h);
    j.field("hd", p.hd);
    j.field("ag", p.ag);
    j.field("orient", int{p.orient});
    j.field("kwn", p.kwn);
    j.field("kws", p.kws);
    j.field("kwo", p.kwo);
    j.field("kww", p.kww);
    j.field("kd", p.kd);
    j.field("kk", p.kk);
    j.field("ft", p.ft);
    j.field("kt", p.kt);
    j.field("Waermebruecken", p.Waermebruecken);
    j.field("ugd_typ", int{p.ugd_typ});
    j.field("Dachraum_typ", int{p.Dachraum_typ});
    j.field("absfaktor", p.absfaktor);
    j.field("cbk_hDach", int{p.cbk_hDach});
    j.field("fn", int{p.fn});
    j.field("fs", int{p.fs});
    j.field("fo", int{p.fo});
    j.field("fw", int{p.fw});
    j.field("verschn", p.verschn);
    j.field("verschs", p.verschs);
    j.field("verscho", p.verscho);
    j.field("verschw", p.verschw);
    j.field("ran", p.ran);
    j.field("ras", p.ras);
    j.field("rao", p.rao);
    j.field("raw", p.raw);
    j.field("fenstern_typ", int{p.fenstern_typ});
    j.field("fensters_typ", int{p.fensters_typ});
    j.field("fenstero_typ", int{p.fenstero_typ});
    j.field("fensterw_typ", int{p.fensterw_typ});
    j.field("gfn", p.gfn);
    j.field("gfs", p.gfs);
    j.field("gfo", p.gfo);
    j.field("gfw", p.gfw);
    j.field("kfgn", p.kfgn);
    j.field("kfgs", p.kfgs);
    j.field("kfgo", p.kfgo);
    j.field("kfgw", p.kfgw);
    j.field("kfrn", p.kfrn);
    j.field("kfrs", p.kfrs);
    j.field("kfro", p.kfro);
    j.field("kfrw", p.kfrw);
    j.field("awn", int{p.awn});
    j.field("aws", int{p.aws});
    j.field("awo", int{p.awo});
    j.field("aww", int{p.aww});
    j.field("lw", p.lw);
    j.field("infiltration", p.infiltration);
    j.field("WRG", p.WRG);
    j.field("intg", p.intg);
    j.field("Troom", p.Troom);
    j.field("Tueber", p.Tueber);
    j.field("Klimaeffizienz", p.Klimaeffizienz);
    j.field("Klimadatei", std::string_view(p.Klimadatei));
    j.field("Klimaauswahl", int{p.Klimaauswahl});
    j.field("Heizsystem", int{p.Heizsystem});
    j.field("Uebergabe", int{p.Uebergabe});
    j.field("Energietraeger", int{p.Energietraeger});
    j.field("Dachgeschoss", p.Dachgeschoss ? 1 : 0);
    j.field("Dachfirst", p.Dachfirst == 1 || p.Dachfirst == 2 ? int{p.Dachfirst} : 0);
    j.field("Fenstermodus", int{p.Fenstermodus});
    j.field("Aussenwandart", int{p.Aussenwandart});
    j.field("Innenwandart", int{p.Innenwandart});
    j.field("kfn", p.kfn);
    j.field("kfs", p.kfs);
    j.field("kfo", p.kfo);
    j.field("kfw", p.kfw);
    j.end_object();
}

void geometrie(JsonWriter& j, const Projekt& p) {
    j.key("geometrie");
    j.begin_object();
    j.field("Dachneigung", p.Dachneigung);
    j.field("f_sfa", p.f_sfa);
    j.field("f_wfa", p.f_wfa);
    j.field("f_nfa", p.f_nfa);
    j.field("f_ofa", p.f_ofa);
    j.field("f_dach_s", p.f_dach_s);
    j.field("f_dach_w", p.f_dach_w);
    j.field("f_dach_n", p.f_dach_n);
    j.field("f_dach_o", p.f_dach_o);
    j.field("f_dach_flach", p.f_dach_flach);
    j.field("f_giebel_s", p.f_giebel_s);
    j.field("f_giebel_w", p.f_giebel_w);
    j.field("f_giebel_n", p.f_giebel_n);
    j.field("f_giebel_o", p.f_giebel_o);
    j.field("v_geb", p.v_geb);
    j.field("v_luft", p.v_luft);
    j.field("f_gd", p.f_gd);
    j.field("f_nutz", p.f_nutz);
    j.field("AV", p.AV);
    j.field("Fx_ugd", p.Fx_ugd);
    j.field("f_nf", p.f_nf);
    j.field("f_wf", p.f_wf);
    j.field("f_sf", p.f_sf);
    j.field("f_of", p.f_of);
    j.field("f_nw", p.f_nw);
    j.field("f_ww", p.f_ww);
    j.field("f_sw", p.f_sw);
    j.field("f_ow", p.f_ow);
    j.field("f_wand", p.f_wand);
    j.field("f_gf", p.f_gf);
    j.end_object();
}

template <class F> void monatsreihe(JsonWriter& j, const Projekt& p, const char* name, F wert) {
    j.key(name);
    j.begin_array();
    for (int m = 1; m <= 12; ++m) {
        j.value(wert(p.Monat[m]));
    }
    j.end_array();
}

void monate(JsonWriter& j, const Projekt& p) {
    using M = Monatswerte;
    j.key("Monat");
    j.begin_object();
    monatsreihe(j, p, "Tage", [](const M& m) { return int{m.Tage}; });
    monatsreihe(j, p, "Strahlung_N", [](const M& m) { return int{m.Strahlung_N}; });
    monatsreihe(j, p, "Strahlung_S", [](const M& m) { return int{m.Strahlung_S}; });
    monatsreihe(j, p, "Strahlung_O", [](const M& m) { return int{m.Strahlung_O}; });
    monatsreihe(j, p, "Strahlung_W", [](const M& m) { return int{m.Strahlung_W}; });
    monatsreihe(j, p, "Tmittel", [](const M& m) { return m.Tmittel; });
    monatsreihe(j, p, "Nutzgrad", [](const M& m) { return m.Nutzgrad; });
    monatsreihe(j, p, "Qt", [](const M& m) { return m.Qt; });
    monatsreihe(j, p, "Qv", [](const M& m) { return m.Qv; });
    monatsreihe(j, p, "Qs_genutzt", [](const M& m) { return m.Qs_genutzt; });
    monatsreihe(j, p, "Qi_genutzt", [](const M& m) { return m.Qi_genutzt; });
    monatsreihe(j, p, "Qs_brutto", [](const M& m) { return m.Qs_brutto; });
    monatsreihe(j, p, "Qi_brutto", [](const M& m) { return m.Qi_brutto; });
    monatsreihe(j, p, "Qh", [](const M& m) { return m.Qh; });
    monatsreihe(j, p, "Kuehlbedarf", [](const M& m) { return m.Kuehlbedarf; });
    monatsreihe(j, p, "Kuehlgradstunden", [](const M& m) { return m.Kuehlgradstunden; });
    monatsreihe(j, p, "Stunden_kalt", [](const M& m) { return int{m.Stunden_kalt}; });
    monatsreihe(j, p, "Stunden_heiss", [](const M& m) { return int{m.Stunden_heiss}; });
    monatsreihe(j, p, "Stunden_komfort", [](const M& m) { return int{m.Stunden_komfort}; });
    monatsreihe(j, p, "Kuehl_solar", [](const M& m) { return m.Kuehl_solar; });
    monatsreihe(j, p, "Kuehl_intern", [](const M& m) { return m.Kuehl_intern; });
    monatsreihe(j, p, "Kuehl_trans", [](const M& m) { return m.Kuehl_trans; });
    monatsreihe(j, p, "Kuehl_lueft", [](const M& m) { return m.Kuehl_lueft; });
    j.end_object();
}

void jahr(JsonWriter& j, const Projekt& p) {
    j.key("jahr");
    j.begin_object();
    j.field("qh", p.qh);
    j.field("qhs_sum", p.qhs_sum);
    j.field("qsol", p.qsol);
    j.field("qsols", p.qsols);
    j.field("qi", p.qi);
    j.field("qis", p.qis);
    j.field("qtr", p.qtr);
    j.field("qtrs", p.qtrs);
    j.field("qinf", p.qinf);
    j.field("qinfs", p.qinfs);
    j.field("qverl_s", p.qverl_s);
    j.field("Fensterverlust_N", p.Fensterverlust_N);
    j.field("Fensterverlust_W", p.Fensterverlust_W);
    j.field("Fensterverlust_S", p.Fensterverlust_S);
    j.field("Fensterverlust_O", p.Fensterverlust_O);
    j.field("Fenstergewinn_N", p.Fenstergewinn_N);
    j.field("Fenstergewinn_W", p.Fenstergewinn_W);
    j.field("Fenstergewinn_S", p.Fenstergewinn_S);
    j.field("Fenstergewinn_O", p.Fenstergewinn_O);
    j.field("qtr_Waende", p.qtr_Waende);
    j.field("qtr_Dach", p.qtr_Dach);
    j.field("qtr_Boden", p.qtr_Boden);
    j.field("qtr_Fenster", p.qtr_Fenster);
    j.field("qtr_Tuer", p.qtr_Tuer);
    j.field("Heizlast_max", p.Heizlast_max);
    j.field("Kuehllast_max", p.Kuehllast_max);
    j.end_object();
}

void energie(JsonWriter& j, const Projekt& p) {
    const Energiekennwerte& e = p.Energie;
    j.key("energie");
    j.begin_object();
    j.field("q_ce", e.q_ce);
    j.field("q_d", e.q_d);
    j.field("q_s", e.q_s);
    j.field("e_g", e.e_g);
    j.field("q_d_he", e.q_d_he);
    j.field("q_s_he", e.q_s_he);
    j.field("q_g_he", e.q_g_he);
    j.field("f_p", e.f_p);
    j.field("Traegername", std::string_view(e.Traegername));
    j.field("q_HE_Energietraeger", p.q_HE_Energietraeger);
    j.field("q_HE_Strom", p.q_HE_Strom);
    j.field("q_PE_Energietraeger", p.q_PE_Energietraeger);
    j.field("q_PE_Strom", p.q_PE_Strom);
    j.end_object();
}

void klimainfo(JsonWriter& j, const Projekt& p) {
    const Klimakennwerte& k = p.Klimainfo;
    j.key("klimainfo");
    j.begin_object();
    j.field("MaxJahrTemp", k.MaxJahrTemp);
    j.field("MinJahrTemp", k.MinJahrTemp);
    j.field("MittelJahrTemp", k.MittelJahrTemp);
    j.field("MaxMonat", k.MaxMonat);
    j.field("MinMonat", k.MinMonat);
    j.field("Heizgrenztemperatur", k.Heizgrenztemperatur);
    j.field("Heiztage", k.Heiztage);
    j.field("Heizgradtage", k.Heizgradtage);
    j.end_object();
}

template <class F> void stundenreihe(JsonWriter& j, const Projekt& p, const char* name, F wert) {
    j.key(name);
    j.begin_array();
    for (int m = 1; m <= 12; ++m) {
        for (int d = 1; d <= p.Monat[m].Tage; ++d) {
            for (int h = 1; h <= 24; ++h) {
                j.value(wert(m, d, h));
            }
        }
    }
    j.end_array();
}

void stunden(JsonWriter& j, const Projekt& p) {
    j.key("stunden");
    j.begin_object();
    stundenreihe(j, p, "T_frei", [&](int m, int d, int h) { return p.T_frei(m, d, h); });
    stundenreihe(j, p, "T_regel", [&](int m, int d, int h) { return p.T_regel(m, d, h); });
    stundenreihe(j, p, "Q_heiz", [&](int m, int d, int h) { return p.Q_heiz(m, d, h); });
    stundenreihe(j, p, "Q_kuehl", [&](int m, int d, int h) { return p.Q_kuehl(m, d, h); });
    stundenreihe(j, p, "Ta", [&](int m, int d, int h) { return p.Wetter(m, d, h).Ta; });
    stundenreihe(j, p, "Direkt", [&](int m, int d, int h) { return p.Wetter(m, d, h).Direkt; });
    stundenreihe(j, p, "Diffus", [&](int m, int d, int h) { return p.Wetter(m, d, h).Diffus; });
    j.end_object();
}

} // namespace

std::string ergebnis_json(const Projekt& p, bool mit_stunden) {
    JsonWriter j;
    j.begin_object();
    j.field("schema", std::string_view("velmaris-calc/1"));
    eingaben(j, p);
    geometrie(j, p);
    j.key("gebaeude");
    j.begin_object();
    j.field("Cwirk", p.Cwirk);
    j.field("tau", p.tau);
    j.end_object();
    j.key("klima");
    j.begin_object();
    j.field("Breite", p.Breite);
    j.field("Laengenkorrektur", p.Laengenkorrektur);
    j.end_object();
    monate(j, p);
    jahr(j, p);
    energie(j, p);
    klimainfo(j, p);
    if (mit_stunden) {
        stunden(j, p);
    }
    j.end_object();
    return j.text();
}
