// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Reportschreiber.h"

#include "language/Beschriftungen.h"
#include "planes/Eingabeflaechen.h"
#include "project/Zahltext.h"

#include <array>

namespace bericht {

namespace {

// The region texts of the report, German in both languages, line 2 empty for one line.
const std::array<std::array<const char*, 2>, 12> REGIONEN{{
    {" Nord- und Ostseeküste,", " nördliches Schleswig-Holstein"},
    {" Nord- und Westdeutsches Tiefland", ""},
    {" Ruhrgebiet und weitere Ballungs-", " gebiete des Flachlandes"},
    {" Nördliche und westliche Mittel-", " gebirge ohne Hochlagen"},
    {" Franken und nördliches", " Baden-Würtemberg"},
    {" Nördlicher Oberrheingraben", ""},
    {" Südlicher Oberrheingraben", ""},
    {" Donaubecken und Alpenvorland", " bis ca. 600m Höhe"},
    {" Alpenvorland (ca. 600-1000m Höhe),", " nordwestl. Schwarzwald"},
    {" Schwarzwald, Schwäbische", " und Fränkische Alb"},
    {" Hochlagen der nördlichen ", " und westlichen Mittelgebirge"},
    {" Bodensee mit Umgebung", ""},
}};

// A caption of a plane's table in the language of the report.
std::string beschriftung(const char* fenster, const char* steuerelement, bool englisch) {
    for (const Beschriftung& b : beschriftungen(fenster)) {
        if (b.Steuerelement == steuerelement) {
            return std::string(englisch ? b.Englisch : b.Deutsch);
        }
    }
    return std::string();
}

} // namespace

void Reportschreiber::datenblatt() {
    seitenkopf(s("Datenblatt", "Data sheet"));
    geometrie();
    zeile_anhaengen("");
    daemmung();
    zeile_anhaengen("");
    gebaeude();
    zeile_anhaengen("");
    klimawahl();
    zeile_anhaengen("");
    fenster();
    zeile_anhaengen("");
    energiewahl();
}

void Reportschreiber::geometrie() {
    abschnitt(s("Geometrie", "Geometry"));
    anhaengen(TABS_WERT);
    zeile_anhaengen(s("     Länge der Nord- und Südfassade: \\tab ",
                      "     Length of north and south facade: \\tab ") +
                    z(p_.l, "0.0") + " m");
    zeile_anhaengen(s("     Länge der Ost- und Westfassade: \\tab ",
                      "     Length of west and east facade: \\tab ") +
                    z(p_.b, "0.0") + " m");
    zeile_anhaengen(s("     Höhe (ohne Dach): \\tab ", "     Height (without roof): \\tab ") +
                    z(p_.h, "0.0") + " m");
    zeile_anhaengen(s("     Anzahl Geschosse: \\tab ", "     Number of floors: \\tab ") +
                    z(p_.ag, "0"));
    // Roof height and ridge exist only with the pitched roof of a heated attic.
    if (p_.Dachgeschoss) {
        zeile_anhaengen(s("     Dachhöhe: \\tab ", "     Height of roof: \\tab ") +
                        z(p_.hd, "0.0") + " m");
        if (p_.Dachfirst == 1) {
            zeile_anhaengen(s("     Dachfirst: \\tab in Nord-Süd-Richtung",
                              "     Roof ridge: \\tab in north-south-direction"));
        } else if (p_.Dachfirst == 2) {
            zeile_anhaengen(s("     Dachfirst: \\tab in Ost-West-Richtung",
                              "     Roof ridge: \\tab in east-west-direction"));
        }
    }
    zeile_anhaengen(s("     Südabweichung (gegen Westen positiv): \\tab ",
                      "     Deviation from south direction (west positive): \\tab ") +
                    z(static_cast<double>(p_.orient), "0.0") + " °");
    zeile_anhaengen("");
    zeile_anhaengen(s("     Grundfläche: \\tab ", "     Ground area: \\tab ") + z(p_.f_gd, "0.0") +
                    " m²");
    zeile_anhaengen(s("     Nutzfläche: \\tab ", "     Useful area: \\tab ") + z(p_.f_nutz, "0.0") +
                    " m²");
    zeile_anhaengen(s("     Gebäudevolumen: \\tab ", "     Volume total: \\tab ") +
                    z(p_.v_geb, "0.0") + " m³");
    zeile_anhaengen(s("     Luftvolumen: \\tab ", "     Air volume: \\tab ") + z(p_.v_luft, "0.0") +
                    " m³");
    zeile_anhaengen(
        s("     Fassadenfläche Nord bzw. Süd: \\tab ", "     Facade north resp. south: \\tab ") +
        z(p_.f_nfa, "0.0") + " m²");
    zeile_anhaengen(
        s("     Fassadenfläche Ost bzw. West: \\tab ", "     Facade east resp. west: \\tab ") +
        z(p_.f_ofa, "0.0") + " m²");
    zeile_anhaengen(s("     A/V - Verhältnis: \\tab ", "     Surface-to-volume value: \\tab ") +
                    z(p_.AV, "0.0") + " 1/m");
}

void Reportschreiber::daemmung() {
    const E_Daemmung& d = q_.ebenen.daemmung;
    const std::string uwert = " W/(m² K)";
    abschnitt(s("Dämmung", "Insulation"));
    anhaengen(TABS_WERT);
    zeile_anhaengen(s("     U-Werte der Wände:", "     U values of the walls:"));
    zeile_anhaengen(s("          Nord: \\tab ", "          north: \\tab ") + z(p_.kwn, "0.00") +
                    uwert);
    zeile_anhaengen(s("          Süd: \\tab ", "          south: \\tab ") + z(p_.kws, "0.00") +
                    uwert);
    zeile_anhaengen(s("          Ost: \\tab ", "          east: \\tab ") + z(p_.kwo, "0.00") +
                    uwert);
    zeile_anhaengen(s("          West: \\tab ", "          west: \\tab ") + z(p_.kww, "0.00") +
                    uwert);
    if (p_.Dachgeschoss) {
        zeile_anhaengen(s("     Dach:", "     Roof:"));
        zeile_anhaengen(
            s("          Gegen: \\tab Außenluft", "          Towards: \\tab outside air"));
    } else {
        zeile_anhaengen(s("     Obere Geschoßdecke:", "     Upper floor:"));
        umbrochen(s("          Gegen: \\tab ", "          Towards: \\tab "), d.ogd.Text());
    }
    const char* uwert_label = s("          U-Wert: \\tab ", "          U value: \\tab ");
    zeile_anhaengen(uwert_label + z(p_.kd, "0.00") + uwert);
    zeile_anhaengen(s("     Untere Geschoßdecke:", "     Lower floor:"));
    zeile_anhaengen(s("          Gegen: \\tab ", "          Towards: \\tab ") + d.ugd.Text());
    zeile_anhaengen(uwert_label + z(p_.kk, "0.00") + uwert);
    zeile_anhaengen(s("     Tür (Nordfassade):", "     Door (north facade):"));
    zeile_anhaengen(s("          Fläche: \\tab ", "          Area: \\tab ") + z(p_.ft, "0.0") +
                    " m²");
    zeile_anhaengen(uwert_label + z(p_.kt, "0.00") + uwert);
    // The English report keeps the German label of this row.
    const int option = d.Waermebruecken_opt.gesetzt();
    const std::string name = "Waermebruecken_opt(" + std::to_string(option) + ")";
    umbrochen("     Wärmebrücken: \\tab ", beschriftung("E_Daemmung", name.c_str(), e_));
}

void Reportschreiber::gebaeude() {
    const E_Gebaeude& g = q_.ebenen.gebaeude;
    abschnitt(s("Gebäude", "Building"));
    anhaengen(TABS_WERT);
    zeile_anhaengen(s("     Soll-Raumlufttemperatur: \\tab ", "     Interior temperature: \\tab ") +
                    z(p_.Troom, "0.0") + " °C");
    zeile_anhaengen(s("     Überwärmung ab einer Raumlufttemperatur über: \\tab ",
                      "     Limit of overheating: \\tab ") +
                    z(p_.Tueber, "0.0") + " °C");
    zeile_anhaengen(s("     Lüftung:", "     Ventilation:"));
    zeile_anhaengen(s("          Freie Lüftung (infiltration): \\tab ",
                      "          Natural ventilation (infiltration): \\tab ") +
                    z(p_.infiltration, "0.00") + " 1/h");
    zeile_anhaengen(
        s("          Mechanische Lüftung: \\tab ", "          Mechanical ventilation: \\tab ") +
        z(p_.lw, "0.00") + " 1/h");
    zeile_anhaengen(s("          Wärmerückgewinnung (nur mech. Lüftung): \\tab ",
                      "          Heat recovery (only mech. ventilation): \\tab ") +
                    z(static_cast<float>(p_.WRG * 100.0), "0") + " %");
    if (e_) {
        zeile_anhaengen("     " + beschriftung("E_Gebaeude", "Frame9", true) + ": \\tab " +
                        z(p_.Klimaeffizienz, "0.0") + " kWh{\\sub cool} / kWh{\\sub electr}");
    }
    zeile_anhaengen(s("     Interne Gewinne: \\tab ", "     Internal gains: \\tab ") +
                    z(p_.intg, "0.0") + " kWh/(m² a)");
    if (e_) {
        zeile_anhaengen("     Kind of indoor walls: \\tab " + g.Innenwandart.Text());
        zeile_anhaengen("     Kind of outdoor walls: \\tab " + g.Aussenwandart.Text());
    } else {
        zeile_anhaengen("     Art der Außenwände: \\tab " + g.Aussenwandart.Text());
        zeile_anhaengen("     Art der Innenwände: \\tab " + g.Innenwandart.Text());
    }
    // A wall towards a heated neighbour has its outer wall flag cleared.
    const std::array<std::pair<int16_t, const char*>, 4> waende{{{p_.awn, s("Nord", "north")},
                                                                 {p_.aws, s("Süd", "south")},
                                                                 {p_.awo, s("Ost", "east")},
                                                                 {p_.aww, s("West", "west")}}};
    std::string namen;
    for (const auto& [aussen, name] : waende) {
        if (aussen == 0) {
            namen += (namen.empty() ? "" : ", ") + std::string(name);
        }
    }
    zeile_anhaengen(s("     Wände, die an eine beheizte Zone grenzen: \\tab ",
                      "     Walls towards another heated area: \\tab ") +
                    namen);
}

void Reportschreiber::klimawahl() {
    const E_Klima& k = q_.ebenen.klima;
    abschnitt(s("Klima", "Climate"));
    anhaengen(TABS_WERT);
    const int region = k.Klimaregionwahl.ListIndex + 1;
    if (p_.Klimaauswahl == 1) {
        if (region >= 1 && region <= 12) {
            const auto& text = REGIONEN[static_cast<std::size_t>(region - 1)];
            zeile_anhaengen(s("     Klimaregion: \\tab ", "     Climatic region: \\tab ") +
                            std::string(text[0]));
            if (text[1][0] != '\0') {
                zeile_anhaengen(std::string(" \\tab ") + text[1]);
            }
        }
        return;
    }
    zeile_anhaengen(s("     Klimastation: \\tab ", "     Climate station: \\tab ") +
                    stationsname());
}

std::string Reportschreiber::stationsname() const {
    const E_Klima& k = q_.ebenen.klima;
    if (!k.Klimaregionwahl2.Text.empty()) {
        return k.Klimaregionwahl2.Text;
    }
    const int i = k.listen.Welt.suchen(p_.Klimadatei);
    return i >= 0 ? k.listen.Welt.Stationsname[static_cast<std::size_t>(i)] : p_.Klimadatei;
}

void Reportschreiber::fenster() {
    abschnitt(s("Fenster", "Windows"));
    anhaengen(TABS_WERT);
    const E_Fenster& f = q_.ebenen.fenster;
    const std::array<const char*, 4> seiten{
        s("     Nord:", "     North:"), s("     Süd:", "     South:"), s("     Ost:", "     East:"),
        s("     West:", "     West:")};
    const std::array<float, 4> flaechen{p_.f_nf, p_.f_sf, p_.f_of, p_.f_wf};
    const std::array<Fassade, 4> fassaden{Nord, Sued, Ost, West};
    for (std::size_t i = 0; i < fassaden.size(); ++i) {
        const Fensterfassade& ff = f.fassaden[static_cast<std::size_t>(fassaden[i])];
        zeile_anhaengen(seiten[i]);
        // The English north panel says "Windows area", the others "Window area".
        zeile_anhaengen(
            s("          Fensterfläche: \\tab ",
              i == 0 ? "          Windows area: \\tab " : "          Window area: \\tab ") +
            z(flaechen[i], "0.0") + " m²");
        zeile_anhaengen(s("          Fensteranteil der Fassade: \\tab ",
                          "          Fraction of windows area at the facade: \\tab ") +
                        z(static_cast<double>(ff.f), "0.0") + " %");
        zeile_anhaengen(s("          Fensterart: \\tab ", "          Kind of windows: \\tab ") +
                        ff.typ.Text());
        zeile_anhaengen(s("          U-Wert Glas: \\tab ", "          U value glazing: \\tab ") +
                        z(ff.kfg, "0.00") + " W/(m² K)");
        zeile_anhaengen(s("          U-Wert Rahmen: \\tab ", "          U value frame: \\tab ") +
                        z(ff.kfr, "0.00") + " W/(m² K)");
        zeile_anhaengen(
            s("          g-Wert Verglasung: \\tab ", "          g value glazing: \\tab ") +
            z(ff.gf, "0.00"));
        zeile_anhaengen(s("          Rahmenanteil: \\tab ", "          Fraction of frame: \\tab ") +
                        z(static_cast<float>(ff.ra * 100.0), "0.0") + " %");
        zeile_anhaengen(s("          Verschattung: \\tab ", "          Shading: \\tab ") +
                        z(static_cast<float>(ff.versch * 100.0), "0.0") + " %");
    }
}

void Reportschreiber::energiewahl() {
    const E_Energie& en = q_.ebenen.energie;
    abschnitt(s("Energie", "Energy"));
    anhaengen(TABS_WERT);
    umbrochen(s("     Heizungssystem: \\tab ", "     Heating system: \\tab "),
              en.Label_System.Caption);
    umbrochen(s("     Wärmeübergabe / Systemtemperatur: \\tab ",
                "     Heat transfer / system temperature: \\tab "),
              en.Label_Uebergabe.Caption);
    umbrochen(s("     Energieträger: \\tab ", "     Source of energy: \\tab "),
              en.Label_Energietraeger.Caption);
}

} // namespace bericht
