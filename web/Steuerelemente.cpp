// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/Steuerelemente.h"

#include "planes/Eingabeflaechen.h"

#include <array>

namespace {

using Art = Steuerelement::Art;

struct Liste {
    std::vector<Steuerelement>& ziel;
    std::string ebene;
    void operator()(const std::string& name, ScrollField& f) { add(name, Art::Scroll, &f); }
    void operator()(const std::string& name, ListField& f) { add(name, Art::Liste, &f); }
    void operator()(const std::string& name, CheckField& f) { add(name, Art::Check, &f); }
    void operator()(const std::string& name, OptionGroup& f) { add(name, Art::Option, &f); }
    void operator()(const std::string& name, Label& f) { add(name, Art::Label, &f); }
    void add(const std::string& name, Art art, void* modell) {
        ziel.push_back({ebene + "." + name, art, modell, 0});
    }
};

#define FELD(liste, ebene, name) liste(#name, (ebene).name)

void geometrie(Liste l, E_Geometrie& g) {
    FELD(l, g, l_sb);
    FELD(l, g, b_sb);
    FELD(l, g, h_sb);
    FELD(l, g, hd_sb);
    FELD(l, g, ag_sb);
    FELD(l, g, orient_sb);
    FELD(l, g, Check_Dachgeschoss);
    FELD(l, g, Option_Dachfirst);
    FELD(l, g, l_anz);
    FELD(l, g, b_anz);
    FELD(l, g, h_anz);
    FELD(l, g, hd_anz);
    FELD(l, g, ag_anz);
    FELD(l, g, orient_anz);
    FELD(l, g, f_nfa_anz);
    FELD(l, g, f_wfa_anz);
    FELD(l, g, Giebel_anz);
    FELD(l, g, f_nutz_anz);
    FELD(l, g, f_gd_anz);
    FELD(l, g, v_luft_anz);
    FELD(l, g, v_geb_anz);
    FELD(l, g, dachflaeche_anz);
    FELD(l, g, Label9);
    FELD(l, g, Label6);
    FELD(l, g, Label4);
    FELD(l, g, av_anz);
    FELD(l, g, AV_Kugel);
    FELD(l, g, AV_Wuerfel);
    FELD(l, g, AV_Tetraeder);
}

void fenster(Liste l, E_Fenster& f) {
    FELD(l, f, Option1);
    for (std::size_t i = 0; i < f.fassaden.size(); ++i) {
        Fensterfassade& x = f.fassaden[i];
        const std::string n = "(" + std::to_string(i) + ")";
        l("f_sb" + n, x.f_sb);
        l("gf_sb" + n, x.gf_sb);
        l("kfg_sb" + n, x.kfg_sb);
        l("kfr_sb" + n, x.kfr_sb);
        l("ra_sb" + n, x.ra_sb);
        l("versch_sb" + n, x.versch_sb);
        l("typ" + n, x.typ);
        l("f_anz" + n, x.f_anz);
        l("gf_anz" + n, x.gf_anz);
        l("kfg_anz" + n, x.kfg_anz);
        l("kfr_anz" + n, x.kfr_anz);
        l("ra_anz" + n, x.ra_anz);
        l("versch_anz" + n, x.versch_anz);
        l("f_flaeche_anz" + n, x.f_flaeche_anz);
    }
    FELD(l, f, f_gf_anz);
    FELD(l, f, f_vf_anz);
    FELD(l, f, kf_anz);
    FELD(l, f, gfm_anz);
}

void daemmung(Liste l, E_Daemmung& d) {
    FELD(l, d, kwn_sb);
    FELD(l, d, kws_sb);
    FELD(l, d, kwo_sb);
    FELD(l, d, kww_sb);
    FELD(l, d, kd_sb);
    FELD(l, d, kk_sb);
    FELD(l, d, ft_sb);
    FELD(l, d, kt_sb);
    FELD(l, d, absfaktor_sb);
    FELD(l, d, kwn_anz);
    FELD(l, d, kws_anz);
    FELD(l, d, kwo_anz);
    FELD(l, d, kww_anz);
    FELD(l, d, kd_anz);
    FELD(l, d, kk_anz);
    FELD(l, d, ft_anz);
    FELD(l, d, kt_anz);
    FELD(l, d, absfaktor_anz);
    FELD(l, d, ugd);
    FELD(l, d, ogd);
    FELD(l, d, ogd_Dach);
    FELD(l, d, liste2);
    FELD(l, d, cbk_hDach);
    FELD(l, d, Waermebruecken_opt);
}

void gebaeude(Liste l, E_Gebaeude& g) {
    FELD(l, g, Troom_sb);
    FELD(l, g, Tueber_sb);
    FELD(l, g, intg_sb);
    FELD(l, g, infiltration_sb);
    FELD(l, g, lw_sb);
    FELD(l, g, WRG_Sb);
    FELD(l, g, Klimaeffizienz_sb);
    FELD(l, g, troom_anz);
    FELD(l, g, Tueber_anz);
    FELD(l, g, intg_anz);
    FELD(l, g, intg_anz2);
    FELD(l, g, infiltration_anz);
    FELD(l, g, lw_anz);
    FELD(l, g, WRG_anz);
    FELD(l, g, KlimaEffizienz_anz);
    FELD(l, g, awn_cb);
    FELD(l, g, aws_cb);
    FELD(l, g, awo_cb);
    FELD(l, g, aww_cb);
    FELD(l, g, Aussenwandart);
    FELD(l, g, Innenwandart);
    FELD(l, g, Cwirk_anz);
    FELD(l, g, cges_anz);
}

void energie(Liste l, E_Energie& g) {
    FELD(l, g, Label_System);
    FELD(l, g, Label_Uebergabe);
    FELD(l, g, Label_Energietraeger);
    for (std::size_t i = 0; i < g.Label_Auswahl.size(); ++i) {
        l("Label_Auswahl(" + std::to_string(i + 1) + ")", g.Label_Auswahl[i]);
    }
    FELD(l, g, anz_qhs_sum);
    FELD(l, g, anz_q_verlust);
    FELD(l, g, anz_e_g);
    FELD(l, g, anz_q_HE_Energietraeger);
    FELD(l, g, anz_q_HE_Strom);
    FELD(l, g, anz_q_PE_Energietraeger);
    FELD(l, g, anz_q_PE_Strom);
    FELD(l, g, anz_Primaerenergiefaktor_Energietraeger);
    FELD(l, g, anz_Primaerenergiefaktor_Strom);
    FELD(l, g, anz_q_ce);
    FELD(l, g, anz_q_d);
    FELD(l, g, anz_q_s);
    FELD(l, g, anz_q_d_he);
    FELD(l, g, anz_q_s_he);
    FELD(l, g, anz_q_g_he);
    FELD(l, g, Label8);
    FELD(l, g, Label21);
    FELD(l, g, Label27);
    FELD(l, g, Label14);
    FELD(l, g, Label6);
    FELD(l, g, Label34);
}

void klima(Liste l, E_Klima& k) {
    FELD(l, k, anz_MittelJahrTemp);
    FELD(l, k, anz_MinMonatTemp);
    FELD(l, k, anz_MaxMonatTemp);
}

#undef FELD

} // namespace

std::vector<Steuerelement> steuerelemente(Eingabeflaechen& e) {
    std::vector<Steuerelement> s;
    geometrie({s, "E_Geometrie"}, e.geometrie);
    fenster({s, "E_Fenster"}, e.fenster);
    daemmung({s, "E_Daemmung"}, e.daemmung);
    gebaeude({s, "E_Gebaeude"}, e.gebaeude);
    energie({s, "E_Energie"}, e.energie);
    klima({s, "E_Klima"}, e.klima);
    return s;
}
