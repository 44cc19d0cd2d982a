// SPDX-License-Identifier: GPL-3.0-or-later
// The page's state as JSON: every control, label, chart version and map the page shows, and of
// it only what changed since the page last asked.
#include "web/Webprogramm.h"

#include "app/shell/JsonWriter.h"
#include "climate/ebene/E_Klima.h"
#include "climate/ebene/stationskarten.h"
#include "climate/klimainfo_texte.h"
#include "project/c_glob.h"

#include <cmath>

std::string Webprogramm::zustand() const {
    return als_json(zustandsteile());
}

std::string Webprogramm::aenderungen() {
    std::vector<Zustandsteil> neu;
    for (Zustandsteil& t : zustandsteile()) {
        std::string& alt = gesendet_[std::to_string(static_cast<int>(t.abschnitt)) + t.name];
        if (alt != t.json) {
            alt = t.json;
            neu.push_back(std::move(t));
        }
    }
    return als_json(neu);
}

std::string Webprogramm::als_json(const std::vector<Zustandsteil>& teile) {
    auto schluessel = [](const std::string& name) {
        JsonWriter j;
        j.value(name);
        return j.text() + ':';
    };
    std::string oben;
    std::string abschnitte[3];
    for (const Zustandsteil& t : teile) {
        std::string& ziel =
            t.abschnitt == Abschnitt::Oben ? oben : abschnitte[static_cast<int>(t.abschnitt) - 1];
        ziel += (ziel.empty() ? "" : ",") + schluessel(t.name) + t.json;
    }
    return "{" + oben + (oben.empty() ? "" : ",") + "\"steuer\":{" + abschnitte[0] +
           "},\"felder\":{" + abschnitte[1] + "},\"diagramme\":{" + abschnitte[2] + "}}";
}

namespace {

void steuerelement_schreiben(JsonWriter& j, const Steuerelement& s) {
    j.begin_object();
    switch (s.art) {
    case Steuerelement::Art::Scroll: {
        const auto* f = static_cast<const ScrollField*>(s.modell);
        j.field("wert", static_cast<int>(f->Value()));
        j.field("min", static_cast<int>(f->Min));
        j.field("max", static_cast<int>(f->Max));
        j.field("klein", static_cast<int>(f->SmallChange));
        j.field("gross", static_cast<int>(f->LargeChange));
        j.field("aktiv", f->Enabled ? 1 : 0);
        j.field("sichtbar", f->Visible ? 1 : 0);
        break;
    }
    case Steuerelement::Art::Liste: {
        const auto* f = static_cast<const ListField*>(s.modell);
        j.key("zeilen");
        j.begin_array();
        for (const std::string& e : f->Eintraege) {
            j.value(e);
        }
        j.end_array();
        j.field("index", f->ListIndex());
        j.field("aktiv", f->Enabled ? 1 : 0);
        j.field("sichtbar", f->Visible ? 1 : 0);
        break;
    }
    case Steuerelement::Art::Check: {
        const auto* f = static_cast<const CheckField*>(s.modell);
        j.field("wert", f->Value());
        j.field("aktiv", f->Enabled ? 1 : 0);
        j.field("sichtbar", f->Visible ? 1 : 0);
        break;
    }
    case Steuerelement::Art::Option: {
        const auto* f = static_cast<const OptionGroup*>(s.modell);
        j.field("gesetzt", f->gesetzt());
        j.key("aktiv");
        j.begin_array();
        for (int i = 0; i < 4; ++i) {
            j.value((s.optionen >> i & 1U) != 0 ? (f->Enabled(i) ? 1 : 0) : -1);
        }
        j.end_array();
        break;
    }
    case Steuerelement::Art::Label: {
        const auto* f = static_cast<const Label*>(s.modell);
        j.field("text", f->Caption);
        j.field("sichtbar", f->Visible ? 1 : 0);
        j.field("links", f->Left);
        j.field("oben", f->Top);
        j.field("hoehe", f->Height);
        j.field("verdeckt", f->ForeColor == Label::Farbe::Hintergrund ? 1 : 0);
        break;
    }
    }
    j.end_object();
}

// Map dots as [x, y, colour] with red in the colour's low byte.
void punkte_schreiben(JsonWriter& j, const std::vector<Kartenpunkt>& punkte) {
    j.begin_array();
    for (const Kartenpunkt& punkt : punkte) {
        j.begin_array();
        j.value(static_cast<int>(std::lround(punkt.x)));
        j.value(static_cast<int>(std::lround(punkt.y)));
        j.value(static_cast<int>(punkt.farbe));
        j.end_array();
    }
    j.end_array();
}

} // namespace

std::vector<Webprogramm::Zustandsteil> Webprogramm::zustandsteile() const {
    std::vector<Zustandsteil> teile;
    auto teil = [&teile](Abschnitt a, std::string name, const auto& schreiben) {
        JsonWriter j;
        schreiben(j);
        teile.push_back({a, std::move(name), j.text()});
    };
    auto wert = [&teil](Abschnitt a, std::string name, const auto& w) {
        teil(a, std::move(name), [&w](JsonWriter& j) { j.value(w); });
    };
    wert(Abschnitt::Oben, "gueltig", gueltig_ ? 1 : 0);
    wert(Abschnitt::Oben, "fehler", fehler_);
    wert(Abschnitt::Oben, "titel", dialoge_.titel);
    wert(Abschnitt::Oben, "geaendert", static_cast<int>(p.Geaendert));
    wert(Abschnitt::Oben, "monat", static_cast<int>(p.Monat_Uebersicht));
    for (const auto& [name, s] : steuer_) {
        teil(Abschnitt::Steuer, name, [&s = s](JsonWriter& j) { steuerelement_schreiben(j, s); });
    }

    // The state of the planes that the desktop's builders follow by hand.
    teil(Abschnitt::Oben, "ebenen", [this](JsonWriter& j) {
        const E_Geometrie& g = ebenen_->geometrie;
        const E_Fenster& f = ebenen_->fenster;
        const E_Gebaeude& b = ebenen_->gebaeude;
        const E_Energie& e = ebenen_->energie;
        j.begin_object();
        j.field("Frame3_Enabled", g.Frame3_Enabled ? 1 : 0);
        j.field("h_sb_Top", g.h_sb_Top);
        j.field("h_sb_Height", g.h_sb_Height);
        j.field("Picture3", g.Picture3);
        j.field("av_balken_y", g.av_balken_y);
        j.key("Command_HR");
        j.begin_array();
        for (const auto& k : f.Command_HR) {
            j.value((k.Visible ? 1 : 0) + (k.Enabled ? 2 : 0));
        }
        j.end_array();
        j.key("Frame_Visible");
        j.begin_array();
        for (bool v : f.Frame_Visible) {
            j.value(v ? 1 : 0);
        }
        j.end_array();
        j.field("Gewicht1_Top", b.Gewicht1_Top);
        j.field("Gewicht1_Height", b.Gewicht1_Height);
        j.field("Gewicht2_Top", b.Gewicht2_Top);
        j.field("Gewicht2_Height", b.Gewicht2_Height);
        j.field("Frame_Auswahl_Visible", e.Frame_Auswahl_Visible ? 1 : 0);
        j.field("Frame_Auswahl_Left", e.Frame_Auswahl_Left);
        j.field("Frame_Auswahl_Top", e.Frame_Auswahl_Top);
        j.field("Frame_Auswahl_Height", e.Frame_Auswahl_Height);
        j.end_object();
    });

    teil(Abschnitt::Oben, "klima", [this](JsonWriter& j) {
        const E_Klima& k = ebenen_->klima;
        j.begin_object();
        j.field("auswahl", static_cast<int>(p.Klimaauswahl));
        j.field("sichtbar", k.sichtbar);
        j.field("Picture1", k.Picture1);
        j.field("plz", k.plz);
        j.field("HScroll1", k.HScroll1);
        j.field("HScroll1_max", k.HScroll1_max);
        j.field("picture3f_breite", k.picture3f_breite);
        // The dots of the station map shown, only while the plane is up: reading the stations'
        // places is the slowest piece of the state.
        j.key("punkte");
        if ((k.sichtbar == 2 || k.sichtbar == 3) && eingabe_ == Klima) {
            punkte_schreiben(j, kartenpunkte(k.sichtbar == 2 ? k.listen.Europa : k.listen.Welt,
                                             k.Klimaregionwahl2.ListIndex));
        } else {
            punkte_schreiben(j, {});
        }
        // The enlarged world map while it is open: its choice and its dots.
        if (zoom_klima_) {
            j.key("zoom");
            j.begin_object();
            j.field("index", zoom_klima_->Klimaregionwahl2.ListIndex);
            j.field("text", zoom_klima_->Klimaregionwahl2.Text);
            j.key("punkte");
            punkte_schreiben(j, zoom_klima_punkte());
            j.end_object();
        }
        for (const auto& [n, l] : std::initializer_list<std::pair<const char*, const Klimaliste*>>{
                 {"Klimaregionwahl", &k.Klimaregionwahl},
                 {"Klimaregionwahl2", &k.Klimaregionwahl2}}) {
            j.key(n);
            j.begin_object();
            j.key("zeilen");
            j.begin_array();
            for (const std::string& e : l->Eintraege) {
                j.value(e);
            }
            j.end_array();
            j.field("index", l->ListIndex);
            j.end_object();
        }
        j.end_object();
    });

    // The fields that the result planes write themselves.
    const HeizFelder& h = heiz_felder_;
    for (const auto& [n, t] : std::initializer_list<std::pair<const char*, const std::string*>>{
             {"qsols_anz", &h.qsols_anz},
             {"qis_anz", &h.qis_anz},
             {"qh_s_anz", &h.qh_s_anz},
             {"qinfs_anz", &h.qinfs_anz},
             {"qtrs_anz", &h.qtrs_anz},
             {"qh_anz", &h.qh_anz},
             {"qsol_anz", &h.qsol_anz},
             {"qi_anz", &h.qi_anz},
             {"qinf_anz", &h.qinf_anz},
             {"qtr_anz", &h.qtr_anz}}) {
        wert(Abschnitt::Felder, n, gueltig_ ? *t : std::string());
    }
    if (gueltig_) {
        const KlimainfoTexte k = klimainfo_texte(p, einstellung_.dezimal);
        for (const auto& [n, t] : std::initializer_list<std::pair<const char*, const std::string*>>{
                 {"anz_klimaregion", &k.anz_klimaregion},
                 {"anz_MaxJahrTemp", &k.anz_MaxJahrTemp},
                 {"anz_MaxMonatTemp", &k.anz_MaxMonatTemp},
                 {"anz_MaxMonatName", &k.anz_MaxMonatName},
                 {"anz_MittelJahrTemp", &k.anz_MittelJahrTemp},
                 {"anz_MinMonatTemp", &k.anz_MinMonatTemp},
                 {"anz_MinMonatName", &k.anz_MinMonatName},
                 {"anz_MinJahrTemp", &k.anz_MinJahrTemp},
                 {"anz_Heizgradtage", &k.anz_Heizgradtage},
                 {"anz_Umittel", &k.anz_Umittel},
                 {"anz_Tspez", &k.anz_Tspez},
                 {"anz_Vspez", &k.anz_Vspez},
                 {"anz_TVspez", &k.anz_TVspez},
                 {"anz_tau", &k.anz_tau},
                 {"anz_Heizlast", &k.anz_Heizlast},
                 {"anz_heizlast_spez", &k.anz_heizlast_spez},
                 {"anz_kuehllast", &k.anz_kuehllast},
                 {"anz_kuehllast_spez", &k.anz_kuehllast_spez},
                 {"anz_Heizgrenztemp", &k.anz_Heizgrenztemp},
                 {"anz_Heiztage", &k.anz_Heiztage}}) {
            wert(Abschnitt::Felder, n, *t);
        }
    }

    for (const auto& [name, flaeche] : flaechen_) {
        wert(Abschnitt::Diagramme, name, flaeche->fassung());
    }
    return teile;
}
