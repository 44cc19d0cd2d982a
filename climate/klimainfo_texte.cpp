// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/klimainfo_texte.h"

#include "project/Zahlformat.h"
#include "project/c_glob.h"

std::string klima_jahreswert(const Klimakennwerte& k, double wert, char dezimal) {
    // The station's year values are written when a station is loaded; a record that has read
    // its station file without that step has none yet.
    const bool jahreswerte = k.MaxMonat >= 1 && k.MaxMonat <= 12;
    return jahreswerte ? format_muster(wert, "0.0", dezimal) : std::string();
}

KlimainfoTexte klimainfo_texte(const Projekt& p, char dezimal) {
    const Klimakennwerte& k = p.Klimainfo;
    auto zahl = [dezimal](double v, const char* muster) {
        return format_muster(v, muster, dezimal);
    };
    auto monat = [&p](int m) { return m >= 1 && m <= 12 ? p.Monat[m].Name : std::string(); };
    KlimainfoTexte t;
    t.anz_klimaregion = k.Klimaname;
    auto klimawert = [&](double v) { return klima_jahreswert(k, v, dezimal); };
    t.anz_MaxJahrTemp = klimawert(k.MaxJahrTemp);
    t.anz_MaxMonatTemp = klimawert(k.MaxMonatTemp);
    t.anz_MaxMonatName = monat(k.MaxMonat);
    t.anz_MittelJahrTemp = klimawert(k.MittelJahrTemp);
    t.anz_MinMonatTemp = klimawert(k.MinMonatTemp);
    t.anz_MinMonatName = monat(k.MinMonat);
    t.anz_MinJahrTemp = klimawert(k.MinJahrTemp);
    t.anz_Heizgradtage = zahl(k.Heizgradtage, "0");
    t.anz_Umittel = zahl(k.Umittel, "0.00");
    t.anz_Tspez = zahl(k.Tspez, "0.0");
    t.anz_Vspez = zahl(k.Vspez, "0.0");
    t.anz_TVspez = zahl(k.TVspez, "0.0");
    t.anz_tau = zahl(k.tau_h, "0.0");
    // Loads per m² of usable floor; a building without floor shows none.
    const double flaeche = p.f_nutz > 0 ? p.f_nutz : 0;
    auto je_m2 = [&](double kw) { return flaeche > 0 ? kw * 1000 / flaeche : 0.0; };
    t.anz_Heizlast = zahl(p.Heizlast_max, "0.0");
    t.anz_heizlast_spez = zahl(je_m2(p.Heizlast_max), "0.0");
    t.anz_kuehllast = zahl(p.Kuehllast_max, "0.0");
    t.anz_kuehllast_spez = zahl(je_m2(p.Kuehllast_max), "0.0");
    t.anz_Heizgrenztemp = zahl(k.Heizgrenztemperatur, "0.0");
    t.anz_Heiztage = std::to_string(k.Heiztage);
    return t;
}
