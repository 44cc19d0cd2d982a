// SPDX-License-Identifier: GPL-3.0-or-later
// The two pages of the data sheet: every input of the project with the derived geometry.
#include "climate/klimaregionen.h"
#include "planes/Eingabeflaechen.h"
#include "planes/Fensterfassade.h"
#include "print/Druckdiagramme.h"
#include "print/Drucker.h"
#include "print/Drucktext.h"
#include "print/Seiten.h"
#include "project/Zahlformat.h"

#include <sstream>
#include <string>
#include <vector>

namespace {

// Row i of a list, or the empty text for a row the list does not have.
std::string listentext(const std::vector<std::string>& zeilen, int i) {
    return i >= 0 && static_cast<std::size_t>(i) < zeilen.size()
               ? zeilen[static_cast<std::size_t>(i)]
               : std::string();
}

std::string waermebruecken_text(const Druckseite& s) {
    if (s.p.Waermebruecken == 0.1f) {
        return s.t("U-Werte aller Umfassungsflächen um 0,10 W/(m² K) erhöhen",
                   "increase U-values of surrounding planes by 0.10 W/(m² K)");
    }
    if (s.p.Waermebruecken == 0.05f) {
        return s.t("U-Werte aller Umfassungsflächen um 0,05 W/(m² K) erhöhen",
                   "increase U-values of surrounding planes by 0.05 W/(m² K)");
    }
    return s.t("Wärmebrücken ignorieren", "ignore heat bridges");
}

// The region of the station file when the German scope is chosen, 0 for none.
int region_der_station(const Projekt& p) {
    if (p.Klimaauswahl != 1) {
        return 0;
    }
    for (int i = 1; i <= KLIMAREGIONEN; ++i) {
        if (!p.Regionsdatei[i].empty() && p.Regionsdatei[i] == p.Klimadatei) {
            return i;
        }
    }
    return 0;
}

std::string ohne_raender(const std::string& text) {
    const std::size_t a = text.find_first_not_of(' ');
    const std::size_t b = text.find_last_not_of(' ');
    return a == std::string::npos ? std::string() : text.substr(a, b - a + 1);
}

// A line of a region's text in lines no wider than `breite` millimetres, broken only at its
// blanks, so that "Nord- und" keeps its hyphen; a word wider than that stands alone.
std::vector<std::string> an_blanks_umbrechen(const Drucker& d, const std::string& text,
                                             double breite) {
    std::vector<std::string> zeilen;
    std::istringstream woerter(text);
    std::string wort;
    while (woerter >> wort) {
        if (!zeilen.empty() && d.TextWidth(zeilen.back() + " " + wort) <= breite) {
            zeilen.back() += " " + wort;
        } else {
            zeilen.push_back(wort);
        }
    }
    return zeilen;
}

// The kind of window in lines for a column `breite` mm wide: the name wrapped as any text,
// its bracket "(U = 1,4 W/(m² K))" on the name's last line where it fits, else on lines of its
// own broken only at its outer blanks, so that the unit stays whole.
std::vector<std::string> fensterart_zeilen(const Drucker& d, std::string text, double breite) {
    const std::size_t klammer = text.find(" (");
    std::string name = text.substr(0, klammer);
    std::vector<std::string> zeilen;
    ZeilenUmbruch(d, name, breite, zeilen);
    if (klammer == std::string::npos) {
        return zeilen;
    }
    std::vector<std::string> teile(1);
    int tiefe = 0;
    for (const char c : text.substr(klammer + 1)) {
        tiefe += c == '(' ? 1 : c == ')' ? -1 : 0;
        if (c == ' ' && tiefe == 1) {
            teile.emplace_back();
        } else {
            teile.back() += c;
        }
    }
    bool neue_zeile = d.TextWidth(zeilen.back() + " " + text.substr(klammer + 1)) >= breite;
    for (const std::string& teil : teile) {
        if (!neue_zeile && d.TextWidth(zeilen.back() + " " + teil) < breite) {
            zeilen.back() += " " + teil;
        } else {
            zeilen.push_back(teil);
        }
        neue_zeile = false;
    }
    return zeilen;
}

void geometrie(Druckseite& s) {
    const Projekt& p = s.p;
    abschnitt(s, s.t("Geometrie:", "Geometry:"));
    wertzeile(s, s.t("Länge der Nord- und Südfassade:", "Length of north and south facade:"),
              s.wert(p.l, "0.0") + " m");
    wertzeile(s, s.t("Länge der Ost- und Westfassade:", "Length of west and east facade:"),
              s.wert(p.b, "0.0") + " m");
    wertzeile(s, s.t("Höhe (ohne Dach):", "Height (without roof):"), s.wert(p.h, "0.0") + " m");
    wertzeile(s, s.t("Anzahl Geschosse:", "Number of floors:"), s.wert(p.ag, "0"));
    if (p.Dachgeschoss) {
        wertzeile(s, s.t("Dachhöhe:", "Height of roof:"), s.wert(p.hd, "0.0") + " m");
        if (p.Dachfirst == 1 || p.Dachfirst == 2) {
            // The sketch stands beside these rows: the direction is wrapped to end clear of its
            // letter "W".
            constexpr double ABSTAND = 2;
            textzeilen(s, s.t("Dachfirst:", "Roof ridge:"),
                       p.Dachfirst == 1 ? s.t("in Nord-Süd-Richtung", "in north-south-direction")
                                        : s.t("in Ost-West-Richtung", "in east-west-direction"),
                       30, skizze_links(s.d) - ABSTAND - 120);
        }
    }
    wertzeile(s,
              s.t("Südabweichung (gegen Westen positiv):", "Deviation from south (west positive):"),
              s.wert(p.orient, "0") + " °");
    wertzeile(s, s.t("Nutzfläche:", "Useful area:"), s.wert(p.f_nutz, "0.0") + " m²");
    wertzeile(s, s.t("Luftvolumen:", "Air volume:"), s.wert(p.v_luft, "0.0") + " m³");
    wertzeile(s, s.t("A/V - Verhältnis:", "Surface-to-volume value:"),
              s.wert(p.AV, "0.00") + " 1/m");
}

void daemmung(Druckseite& s) {
    const Projekt& p = s.p;
    const std::string u = " W/(m² K)";
    abschnitt(s, s.t("Dämmung:", "Insulation:"));
    wertzeile(s, s.t("U-Werte der Wände:", "U values of the walls:"), "");
    wertzeile(s, s.t("Nord:", "north:"), s.wert(p.kwn, "0.00") + u, 35);
    wertzeile(s, s.t("Süd:", "south:"), s.wert(p.kws, "0.00") + u, 35);
    wertzeile(s, s.t("Ost:", "east:"), s.wert(p.kwo, "0.00") + u, 35);
    wertzeile(s, s.t("West:", "west:"), s.wert(p.kww, "0.00") + u, 35);
    if (p.Dachgeschoss) {
        wertzeile(s, s.t("Dach:", "Roof:"), "");
        textzeilen(s, s.t("gegen:", "towards:"), s.t("Außenluft", "outside air"), 35);
    } else {
        wertzeile(s, s.t("Obere Geschoßdecke:", "Upper floor:"), "");
        textzeilen(s, s.t("gegen:", "towards:"),
                   listentext(s.e.daemmung.ogd.Eintraege, p.Dachraum_typ), 35);
    }
    wertzeile(s, s.t("U-Wert:", "U value:"), s.wert(p.kd, "0.00") + u, 35);
    wertzeile(s, s.t("Untere Geschoßdecke:", "Lower floor:"), "");
    textzeilen(s, s.t("gegen:", "towards:"), listentext(s.e.daemmung.ugd.Eintraege, p.ugd_typ), 35);
    wertzeile(s, s.t("U-Wert:", "U value:"), s.wert(p.kk, "0.00") + u, 35);
    wertzeile(s, s.t("Tür (Nordfassade):", "Door (north facade):"), "");
    wertzeile(s, s.t("Fläche:", "Area:"), s.wert(p.ft, "0.0") + " m²", 35);
    wertzeile(s, s.t("U-Wert:", "U value:"), s.wert(p.kt, "0.00") + u, 35);
    textzeilen(s, s.t("Wärmebrücken:", "Heat bridges:"), waermebruecken_text(s));
}

void gebaeude(Druckseite& s) {
    const Projekt& p = s.p;
    abschnitt(s, s.t("Gebäude:", "Building:"));
    wertzeile(s, s.t("Soll-Raumlufttemperatur:", "Interior temperature:"),
              s.wert(p.Troom, "0.0") + " °C");
    wertzeile(s, s.t("Lüftung:", "Ventilation:"), "");
    wertzeile(s, s.t("Freie Lüftung (Infiltration):", "Natural ventilation (infiltration):"),
              s.wert(p.infiltration, "0.00") + " 1/h", 35);
    wertzeile(s, s.t("Mechanische Lüftung:", "Mechanical ventilation:"),
              s.wert(p.lw, "0.00") + " 1/h", 35);
    wertzeile(s, s.t("Interne Gewinne:", "Internal gains:"), s.wert(p.intg, "0.0") + " kWh/(m² a)");
    wertzeile(s, s.t("Überwärmung ab:", "Limit of overheating:"), s.wert(p.Tueber, "0.0") + " °C");
    wertzeile(s, s.t("Wärmerückgewinnung:", "Heat recovery:"),
              s.wert(static_cast<double>(p.WRG) * 100, "0") + " %");
    wertzeile(s, s.t("Art der Außenwände:", "Kind of outdoor walls:"),
              listentext(s.e.gebaeude.Aussenwandart.Eintraege, p.Aussenwandart));
    wertzeile(s, s.t("Art der Innenwände:", "Kind of indoor walls:"),
              listentext(s.e.gebaeude.Innenwandart.Eintraege, p.Innenwandart));
    std::string waende;
    const struct {
        int16_t aussen;
        const char *deutsch, *englisch;
    } seiten[] = {{p.awn, "Nord", "north"},
                  {p.aws, "Süd", "south"},
                  {p.awo, "Ost", "east"},
                  {p.aww, "West", "west"}};
    for (const auto& w : seiten) {
        if (w.aussen == 0) {
            waende += (waende.empty() ? "" : ", ") + s.t(w.deutsch, w.englisch);
        }
    }
    wertzeile(s, s.t("Wände zu beheizter Zone:", "Walls towards a heated area:"),
              waende.empty() ? s.t("keine", "none") : waende);
}

void klima(Druckseite& s) {
    const Projekt& p = s.p;
    abschnitt(s, s.t("Klima:", "Climate:"));
    const int region = region_der_station(p);
    if (region > 0) {
        // The region's text is German in both languages, as on the climate plane.
        const Klimaregion& r = klimaregion(region);
        drucken_bei(s.d, 30, s.y, s.t("Klimaregion:", "Climatic region:"));
        for (const char* zeile : {r.zeile1, r.zeile2}) {
            for (const std::string& teil : an_blanks_umbrechen(s.d, ohne_raender(zeile), 55)) {
                wertzeile(s, "", teil);
            }
        }
        return;
    }
    const Stationsliste& welt = s.e.klima.listen.Welt;
    const int i = welt.suchen(p.Klimadatei);
    textzeilen(s, s.t("Klimastation:", "Climate station:"),
               i >= 0 ? welt.Stationsname[static_cast<std::size_t>(i)] : p.Klimadatei);
}

} // namespace

void Seite_Datenblatt1(Druckseite& s) {
    geometrie(s);
    daemmung(s);
    gebaeude(s);
    klima(s);
    Zeichnung_Haus(s.d, s.p, s.dezimal);
}

void Seite_Datenblatt2(Druckseite& s) {
    const Projekt& p = s.p;
    Drucker& d = s.d;
    abschnitt(s, s.t("Fenster:", "Windows:"));
    // One column per facade, values right-aligned on its anchor.
    const double anker[4] = {100, 125, 150, 175};
    const char* kopf_d[4] = {"Nord", "Süd", "Ost", "West"};
    const char* kopf_e[4] = {"north", "south", "east", "west"};
    regel(s, s.y);
    s.y += 0.8;
    d.CurrentY = s.y;
    for (int i = 0; i < 4; ++i) {
        DruckeText(d, s.t(kopf_d[i], kopf_e[i]), anker[i]);
    }
    s.y += DRUCKZEILE;
    regel(s, s.y, true);
    s.y += 1.8;

    struct Werte {
        float flaeche;
        const Fensterfassade& f;
    };
    const auto& fe = s.e.fenster.fassaden;
    const Werte w[4] = {
        {p.f_nf, fe[Nord]}, {p.f_sf, fe[Sued]}, {p.f_of, fe[Ost]}, {p.f_wf, fe[West]}};
    auto reihe = [&](const std::string& kopf, auto wert, int stellen) {
        drucken_bei(d, 26, s.y, kopf);
        d.CurrentY = s.y;
        for (int i = 0; i < 4; ++i) {
            DruckeWert(d, wert(w[i]), anker[i], stellen, s.dezimal);
        }
        s.y += DRUCKZEILE;
    };
    reihe(
        s.t("Fensterfläche in m²", "Window area in m²"),
        [](const Werte& x) { return static_cast<double>(x.flaeche); }, 1);
    reihe(
        s.t("Anteil der Fassade in %", "Share of the facade in %"),
        [](const Werte& x) { return static_cast<double>(x.f.f); }, 0);

    // The kind of window, wrapped in the width of its column at size 8.
    drucken_bei(d, 26, s.y, s.t("Fensterart", "Kind of windows"));
    d.FontSize = 8;
    double tiefste = s.y;
    for (int i = 0; i < 4; ++i) {
        const int typ = w[i].f.typ_feld;
        std::string text = typ >= 0 && typ < static_cast<int>(FENSTERTYPEN.size())
                               ? s.t(FENSTERTYPEN[static_cast<std::size_t>(typ)].deutsch,
                                     FENSTERTYPEN[static_cast<std::size_t>(typ)].englisch)
                               : std::string();
        s.ZeilenListe = fensterart_zeilen(d, text, 23);
        double y = s.y;
        for (const std::string& zeile : s.ZeilenListe) {
            d.CurrentY = y;
            DruckeText(d, zeile, anker[i]);
            y += DRUCKZEILE_KLEIN;
        }
        tiefste = std::max(tiefste, y);
    }
    d.FontSize = 10;
    s.y = std::max(tiefste, s.y + DRUCKZEILE) + 0.8;

    reihe(
        s.t("U-Wert Glas in W/(m² K)", "U value glazing in W/(m² K)"),
        [](const Werte& x) { return static_cast<double>(x.f.kfg); }, 2);
    reihe(
        s.t("U-Wert Rahmen in W/(m² K)", "U value frame in W/(m² K)"),
        [](const Werte& x) { return static_cast<double>(x.f.kfr); }, 2);
    reihe(
        s.t("g-Wert", "g value"), [](const Werte& x) { return static_cast<double>(x.f.gf); }, 2);
    reihe(
        s.t("Rahmenanteil in %", "Fraction of frame in %"),
        [](const Werte& x) { return static_cast<double>(x.f.ra) * 100; }, 0);
    reihe(
        s.t("Verschattung in %", "Shading in %"),
        [](const Werte& x) { return static_cast<double>(x.f.versch) * 100; }, 0);
    regel(s, s.y);
    s.y += 8;

    abschnitt(s, s.t("Energie:", "Energy:"));
    textzeilen(s, s.t("Heizungssystem:", "Heating system:"), s.e.energie.Label_System.Caption);
    s.y += 1;
    textzeilen(s, s.t("Wärmeübergabe / Systemtemperatur:", "Heat transfer / system temperature:"),
               s.e.energie.Label_Uebergabe.Caption);
    s.y += 1;
    textzeilen(s, s.t("Energieträger:", "Source of energy:"),
               s.e.energie.Label_Energietraeger.Caption);
}
