// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Report.h"

#include "climate/import/cp1252.h"
#include "climate/klimainfo_texte.h"
#include "energy/energie.h"
#include "language/Beschriftungen.h"
#include "planes/Eingabeflaechen.h"
#include "planes/Zahlformat.h"
#include "project/Zahltext.h"
#include "project/c_glob.h"
#include "report/schreibeZeile.h"

#include <array>
#include <fstream>

namespace {

const char* const DOKUMENT_ANFANG = "{\\rtf1\\ansi{\\fonttbl{\\f0\\froman Times New Roman;}}";
const char* const DOKUMENT_ENDE = "}";
const char* const TABS_WERT = "\\pard\\tx4300 ";
const char* const TABS_2 = "\\pard\\tx1800\\tx5100";
const char* const TABS_3 = "\\pard\\tx1800\\tx4000\\tx6200";
const char* const TABS_4 = "\\pard\\tx1800\\tx3450\\tx5100\\tx6750";
const char* const TABS_6 = "\\pard\\tx1800\\tx2900\\tx4000\\tx5100\\tx6200\\tx7300";
const char* const T = " \\tab ";

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

// The builder of one report: report_text and the rows of the pages in one language.
class Reportschreiber {
public:
    Reportschreiber(const Reportquelle& q, bool englisch)
        : q_(q), p_(q.p), e_(englisch), info_(klimainfo_texte(q.p, q.dezimal)) {}

    std::string schreiben(int16_t seite) {
        report_text_ = DOKUMENT_ANFANG;
        using Seite = void (Reportschreiber::*)();
        const std::array<Seite, 7> seiten{
            &Reportschreiber::datenblatt,      &Reportschreiber::uebersicht,
            &Reportschreiber::klima,           &Reportschreiber::waermebilanz,
            &Reportschreiber::kuehlbilanz,     &Reportschreiber::energie_heizung,
            &Reportschreiber::energie_kuehlung};
        for (std::size_t i = 0; i < seiten.size(); ++i) {
            if (seite == 0 || seite == static_cast<int16_t>(i + 1)) {
                (this->*seiten[i])();
                if (seite == 0 && i + 1 < seiten.size()) {
                    report_text_ += "\\page";
                }
            }
        }
        report_text_ += DOKUMENT_ENDE;
        return report_text_;
    }

private:
    void zeile_anhaengen(const std::string& text) { report_text_ += text + "\\par "; }
    void anhaengen(const char* text) { report_text_ += text; }
    const char* s(const char* deutsch, const char* englisch) const {
        return e_ ? englisch : deutsch;
    }
    // A stored value by a pattern: a float with the digits it holds, a quotient of doubles with
    // its own.
    std::string z(float v, const char* muster) const {
        return format_muster(v, muster, q_.dezimal);
    }
    std::string z(double v, const char* muster) const {
        return format_muster(v, muster, q_.dezimal);
    }
    // A quotient of two stored values, itself a 32-bit value.
    std::string quot(double a, double b, const char* muster) const {
        return z(static_cast<float>(a / b), muster);
    }

    void seitenkopf(const char* titel) {
        zeile_anhaengen("\\qc\\plain\\b\\i\\fs60 VELM\\plain\\b\\fs60 aris \\plain ");
        const std::string linie = "\\fs10 " + std::string(144, '_');
        zeile_anhaengen(linie);
        zeile_anhaengen(linie);
        zeile_anhaengen("\\fs20 ");
        zeile_anhaengen(std::string("\\fs30\\i ") + titel + "\\plain ");
        zeile_anhaengen("\\ql ");
    }
    void abschnitt(const char* name) {
        zeile_anhaengen(std::string("\\fs30\\ul ") + name + ": \\plain\\fs20");
    }
    void regel() { zeile_anhaengen("     " + std::string(78, '_')); }
    // A label row whose value wraps at the report width: first line in the row, each further
    // line in a row of its own under the value column.
    void umbrochen(const std::string& label, const std::string& text) {
        const std::vector<std::string> ZeilenListe =
            schreibeZeile(text, REPORT_BREITE, q_.Breitenbestimmung);
        for (std::size_t i = 0; i < ZeilenListe.size(); ++i) {
            zeile_anhaengen((i == 0 ? label : std::string("     \\tab ")) + ZeilenListe[i]);
        }
    }
    std::string monat(int m) const { return "     " + p_.Monat[m].Name + "\\tab "; }

    // Page 1.
    void datenblatt() {
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

    void geometrie() {
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
        zeile_anhaengen(s("     Grundfläche: \\tab ", "     Ground area: \\tab ") +
                        z(p_.f_gd, "0.0") + " m²");
        zeile_anhaengen(s("     Nutzfläche: \\tab ", "     Useful area: \\tab ") +
                        z(p_.f_nutz, "0.0") + " m²");
        zeile_anhaengen(s("     Gebäudevolumen: \\tab ", "     Volume total: \\tab ") +
                        z(p_.v_geb, "0.0") + " m³");
        zeile_anhaengen(s("     Luftvolumen: \\tab ", "     Air volume: \\tab ") +
                        z(p_.v_luft, "0.0") + " m³");
        zeile_anhaengen(s("     Fassadenfläche Nord bzw. Süd: \\tab ",
                          "     Facade north resp. south: \\tab ") +
                        z(p_.f_nfa, "0.0") + " m²");
        zeile_anhaengen(
            s("     Fassadenfläche Ost bzw. West: \\tab ", "     Facade east resp. west: \\tab ") +
            z(p_.f_ofa, "0.0") + " m²");
        zeile_anhaengen(s("     A/V - Verhältnis: \\tab ", "     Surface-to-volume value: \\tab ") +
                        z(p_.AV, "0.0") + " 1/m");
    }

    void daemmung() {
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

    void gebaeude() {
        const E_Gebaeude& g = q_.ebenen.gebaeude;
        abschnitt(s("Gebäude", "Building"));
        anhaengen(TABS_WERT);
        zeile_anhaengen(
            s("     Soll-Raumlufttemperatur: \\tab ", "     Interior temperature: \\tab ") +
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

    void klimawahl() {
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

    // The station as the station list shows it: the list's text, else the name of its file.
    std::string stationsname() const {
        const E_Klima& k = q_.ebenen.klima;
        if (!k.Klimaregionwahl2.Text.empty()) {
            return k.Klimaregionwahl2.Text;
        }
        const int i = k.listen.Welt.suchen(p_.Klimadatei);
        return i >= 0 ? k.listen.Welt.Stationsname[static_cast<std::size_t>(i)] : p_.Klimadatei;
    }

    void fenster() {
        abschnitt(s("Fenster", "Windows"));
        anhaengen(TABS_WERT);
        const E_Fenster& f = q_.ebenen.fenster;
        const std::array<const char*, 4> seiten{
            s("     Nord:", "     North:"), s("     Süd:", "     South:"),
            s("     Ost:", "     East:"), s("     West:", "     West:")};
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
            zeile_anhaengen(
                s("          U-Wert Glas: \\tab ", "          U value glazing: \\tab ") +
                z(ff.kfg, "0.00") + " W/(m² K)");
            zeile_anhaengen(
                s("          U-Wert Rahmen: \\tab ", "          U value frame: \\tab ") +
                z(ff.kfr, "0.00") + " W/(m² K)");
            zeile_anhaengen(
                s("          g-Wert Verglasung: \\tab ", "          g value glazing: \\tab ") +
                z(ff.gf, "0.00"));
            zeile_anhaengen(
                s("          Rahmenanteil: \\tab ", "          Fraction of frame: \\tab ") +
                z(static_cast<float>(ff.ra * 100.0), "0.0") + " %");
            zeile_anhaengen(s("          Verschattung: \\tab ", "          Shading: \\tab ") +
                            z(static_cast<float>(ff.versch * 100.0), "0.0") + " %");
        }
    }

    void energiewahl() {
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

    // Page 2.
    void uebersicht() {
        seitenkopf(s("Ausgabe: Übersicht", "Output: Overview"));
        abschnitt(s("Heizwärme- und Kühlbedarf", "Heat energy and cooling demand"));
        anhaengen(TABS_2);
        zeile_anhaengen(s(" \\tab Heizwärmebedarf \\tab Kühlbedarf",
                          " \\tab Heat energy demand \\tab Cooling demand"));
        zeile_anhaengen(" \\tab in kWh/m² \\tab in kWh/m²");
        double qh = 0, kuehl = 0;
        for (int m = 1; m <= 12; ++m) {
            const Monatswerte& mo = p_.Monat[m];
            zeile_anhaengen(monat(m) + quot(mo.Qh, p_.f_nutz, "0.0") + T +
                            quot(mo.Kuehlbedarf, p_.f_nutz, "0.0"));
            qh += mo.Qh;
            kuehl += mo.Kuehlbedarf;
        }
        regel();
        zeile_anhaengen(s("     Jahressumme", "     Yearly sum") + std::string("\\tab ") +
                        quot(qh, p_.f_nutz, "0.0") + T + quot(kuehl, p_.f_nutz, "0.0"));
        zeile_anhaengen("");

        abschnitt(s("Heiz- und Kühlstunden", "Heating and cooling hours"));
        anhaengen(TABS_3);
        zeile_anhaengen(s(" \\tab Heizstunden \\tab Nullenergiestunden \\tab Kühlstunden",
                          " \\tab Heating hours \\tab Zero energy hours \\tab Cooling hours"));
        zeile_anhaengen(s(" \\tab in Stunden \\tab in Stunden \\tab in Stunden",
                          " \\tab in hours \\tab in hours \\tab in hours"));
        long kalt = 0, komfort = 0, heiss = 0;
        for (int m = 1; m <= 12; ++m) {
            const Monatswerte& mo = p_.Monat[m];
            zeile_anhaengen(monat(m) + std::to_string(mo.Stunden_kalt) + "\\tab " +
                            std::to_string(mo.Stunden_komfort) + "\\tab " +
                            std::to_string(mo.Stunden_heiss));
            kalt += mo.Stunden_kalt;
            komfort += mo.Stunden_komfort;
            heiss += mo.Stunden_heiss;
        }
        regel();
        // The sums by the number-to-text form, whose leading blank ends the tab word.
        zeile_anhaengen(s("     Summe (in Std.)", "     Sum (in hours)") + std::string("\\tab") +
                        zahl_str(static_cast<double>(kalt)) + "\\tab" +
                        zahl_str(static_cast<double>(komfort)) + "\\tab" +
                        zahl_str(static_cast<double>(heiss)));
        zeile_anhaengen(s("     Summe (in %)", "     Sum (in %)") + std::string("\\tab ") +
                        z(kalt / 87.6, "0.0") + T + z(komfort / 87.6, "0.0") + T +
                        z(heiss / 87.6, "0.0"));
    }

    // Page 3.
    void klima() {
        seitenkopf(s("Ausgabe: Klima- und Gebäudedaten", "Output: Climate and building data"));
        abschnitt(s("Klimadaten", "Climate data"));
        anhaengen(TABS_3);
        zeile_anhaengen(s(" \\tab Mitteltemperatur \\tab Temperaturmaximum \\tab Temperaturminimum",
                          " \\tab Mean temperature \\tab Maximum temperature \\tab Minimum "
                          "temperature"));
        zeile_anhaengen(" \\tab in °C \\tab in °C \\tab in °C");
        double jahr = 0;
        for (int m = 1; m <= 12; ++m) {
            const int tage = p_.Monat[m].Tage;
            double summe = 0;
            // The extremes start from fixed bounds rather than from the first hour.
            float hoch = -1000, tief = 1000;
            for (int d = 1; d <= tage; ++d) {
                for (int h = 1; h <= 24; ++h) {
                    const float ta = p_.Wetter(m, d, h).Ta;
                    summe += ta;
                    jahr += ta / 8760.0;
                    hoch = ta > hoch ? ta : hoch;
                    tief = ta < tief ? ta : tief;
                }
            }
            const double mittel = tage > 0 ? summe / (tage * 24.0) : 0.0;
            zeile_anhaengen(monat(m) + z(mittel, "0.0") + T + z(hoch, "0.0") + T + z(tief, "0.0"));
        }
        regel();
        zeile_anhaengen(s("     Jahresmittel \\tab ", "     Yearly mean \\tab ") + z(jahr, "0.0"));
        zeile_anhaengen("");

        abschnitt(s("Gebäudedaten", "Building data"));
        anhaengen(TABS_WERT);
        const KlimainfoTexte& k = info_;
        zeile_anhaengen(s("     Mittlerer U-Wert: \\tab ", "     Mean U value: \\tab ") +
                        k.anz_Umittel + " W/(m² K)");
        zeile_anhaengen(s("     Spezifische Transmissionsverluste: \\tab ",
                          "     Specific transmission losses: \\tab ") +
                        k.anz_Tspez + " W/K");
        zeile_anhaengen(s("     Spezifische Lüftungsverluste: \\tab ",
                          "     Specific ventilation losses: \\tab ") +
                        k.anz_Vspez + " W/K");
        zeile_anhaengen(
            s("     Summe spezifische Verluste: \\tab ", "     Sum specific losses: \\tab ") +
            k.anz_TVspez + " W/K");
        zeile_anhaengen(s("     Thermische Trägheit: \\tab ", "     Thermal inertia: \\tab ") +
                        k.anz_tau + s(" Stunden", " hours"));
        zeile_anhaengen(s("     Maximale Heizlast: \\tab ", "     Maximum heating load: \\tab ") +
                        k.anz_Heizlast + " kW");
        zeile_anhaengen(s("     Maximale spezifische Heizlast: \\tab ",
                          "     Maximum specific heating load: \\tab ") +
                        k.anz_heizlast_spez + " W/m²");
        zeile_anhaengen(s("     Maximale Kühllast: \\tab ", "     Maximum cooling load: \\tab ") +
                        k.anz_kuehllast + " kW");
        zeile_anhaengen(s("     Maximale spezifische Kühllast: \\tab ",
                          "     Maximum specific cooling load: \\tab ") +
                        k.anz_kuehllast_spez + " W/m²");
        zeile_anhaengen(
            s("     Heizgrenztemperatur: \\tab ", "     Limit temperature for heating: \\tab ") +
            k.anz_Heizgrenztemp + "°C");
        // " Tage" in both languages.
        zeile_anhaengen(
            s("     Effektive Heiztage: \\tab ", "     Effective heating days: \\tab ") +
            k.anz_Heiztage + " Tage");
    }

    // Page 4: the heat balance, per m² of usable floor and for the whole building.
    void waermebilanz() {
        seitenkopf(s("Ausgabe: Wärmebilanz", "Output: Heat balance"));
        bilanztabelle(true);
        zeile_anhaengen("");
        bilanztabelle(false);
    }

    void bilanztabelle(bool spezifisch) {
        abschnitt(spezifisch ? s("Spezifisch (pro m² Nutzfläche)", "Specific (per m² useful area)")
                             : s("Absolut (gesamtes Gebäude)", "Absolute (total building)"));
        anhaengen(TABS_6);
        // "Tramsmis-" stands in the German and the English table alike.
        zeile_anhaengen(
            s(" \\tab Tramsmis- \\tab Lüftungs- \\tab Interne \\tab Solare \\tab Nutzungs- \\tab "
              "Heizwärme-",
              " \\tab Transm. \\tab Ventil. \\tab Internal \\tab Solar \\tab Usability \\tab Heat "
              "energy"));
        zeile_anhaengen(
            s(" \\tab sionsverl. \\tab verluste \\tab Gewinne \\tab Gewinne \\tab faktor \\tab "
              "bedarf",
              " \\tab losses \\tab losses \\tab Gains \\tab Gains \\tab factor \\tab demand"));
        zeile_anhaengen(spezifisch ? " \\tab in kWh/m² \\tab in kWh/m² \\tab in kWh/m² \\tab in "
                                     "kWh/m² \\tab \\tab in kWh/m²"
                                   : " \\tab in kWh \\tab in kWh \\tab in kWh \\tab in kWh \\tab "
                                     "\\tab in kWh");
        for (int m = 1; m <= 12; ++m) {
            const Monatswerte& mo = p_.Monat[m];
            auto wert = [&](float v) { return spezifisch ? quot(v, p_.f_nutz, "0.0") : z(v, "0"); };
            zeile_anhaengen(monat(m) + wert(mo.Qt) + T + wert(mo.Qv) + T + wert(mo.Qi_genutzt) + T +
                            wert(mo.Qs_genutzt) + T + z(mo.Nutzgrad, "0.00") + T + wert(mo.Qh));
        }
        regel();
        const char* muster = spezifisch ? "0.0" : "0";
        const std::array<float, 5> jahr =
            spezifisch ? std::array<float, 5>{p_.qtrs, p_.qinfs, p_.qis, p_.qsols, p_.qhs_sum}
                       : std::array<float, 5>{p_.qtr, p_.qinf, p_.qi, p_.qsol, p_.qh};
        zeile_anhaengen(s("     Jahressumme \\tab ", "     Yearly sum \\tab ") +
                        z(jahr[0], muster) + T + z(jahr[1], muster) + T + z(jahr[2], muster) + T +
                        z(jahr[3], muster) + T + T + z(jahr[4], muster));
    }

    // Page 5.
    void kuehlbilanz() {
        seitenkopf(s("Ausgabe: Kühlbilanz", "Output: Cooling balance"));
        abschnitt(s("Kühlbedarf und Überwärmung", "Cooling demand and overheating"));
        anhaengen(TABS_4);
        zeile_anhaengen(s(" \\tab Kühlbedarf \\tab Kühlbedarf \\tab Durchschnittliche \\tab "
                          "Kühlgradstunden",
                          " \\tab Cooling demand \\tab Cooling demand \\tab Mean \\tab Cooling "
                          "degree"));
        zeile_anhaengen(s(" \\tab spezifisch \\tab absolut \\tab Überwärmung",
                          " \\tab specific \\tab absolute \\tab overheating \\tab hours"));
        zeile_anhaengen(s(" \\tab in kWh/m² \\tab in kWh \\tab in Stunden/Tag \\tab in Kh",
                          " \\tab in kWh/m² \\tab in kWh \\tab in hours/day \\tab in Kh"));
        double kuehl = 0, grad = 0;
        for (int m = 1; m <= 12; ++m) {
            const Monatswerte& mo = p_.Monat[m];
            zeile_anhaengen(monat(m) + quot(mo.Kuehlbedarf, p_.f_nutz, "0.0") + T +
                            z(mo.Kuehlbedarf, "0") + T + quot(mo.Stunden_heiss, mo.Tage, "0.0") +
                            T + z(mo.Kuehlgradstunden, "0.0"));
            kuehl += mo.Kuehlbedarf;
            grad += mo.Kuehlgradstunden;
        }
        regel();
        zeile_anhaengen(s("     Jahressumme", "     Yearly sum") + std::string("\\tab ") +
                        quot(kuehl, p_.f_nutz, "0.0") + T + z(kuehl, "0") + T + T + z(grad, "0.0"));
    }

    // Page 6: the rows read the energy plane's fields.
    void energie_heizung() {
        seitenkopf(s("Ausgabe: Primär- und Endenergiebedarf Heizung",
                     "Output: Primary and end energy demand for heating"));
        abschnitt(s("Energiebedarf der Heizungsanlage", "Energy demand of the heating system"));
        anhaengen(TABS_WERT);
        const Energiekennwerte& k = p_.Energie;
        const std::string traeger = e_ ? k.Traegername_e : k.Traegername;
        const bool strom = k.Traegername == "Strom";
        const std::string einheit = " kWh/(m² a)";
        auto feld = [&](float v) { return z(v, "0.0"); };
        zeile_anhaengen(s("     Wärme:", "     Heat:"));
        zeile_anhaengen(
            s("          Heizwärmebedarf: \\tab ", "          Heat energy demand: \\tab ") +
            feld(p_.qhs_sum) + einheit);
        zeile_anhaengen(s("          Verluste bei der Wärmespeicherung: \\tab ",
                          "          Losses of the heat storage: \\tab ") +
                        feld(k.q_s) + einheit);
        zeile_anhaengen(s("          Wärmeverluste bei der Verteilung: \\tab ",
                          "          Heat losses from the distribution: \\tab ") +
                        feld(k.q_d) + einheit);
        zeile_anhaengen(s("          Verluste bei der Übergabe an die Räume: \\tab ",
                          "          Looses at the transmission to the rooms: \\tab ") +
                        feld(k.q_ce) + einheit);
        zeile_anhaengen(s("          Aufwandszahl der Wärmeerzeugung: \\tab ",
                          "          Expense number of heat generation: \\tab ") +
                        z(k.e_g, "0.00"));
        zeile_anhaengen("");
        zeile_anhaengen(s("          Endenergiebedarf ", "          End energy demand ") + traeger +
                        ": \\tab " + feld(p_.q_HE_Energietraeger) + einheit);
        if (!strom) {
            zeile_anhaengen(
                s("          Primärenergiefaktor ", "          Primary energy factor ") + traeger +
                ": \\tab " + feld(k.f_p));
            zeile_anhaengen(
                s("          Primärenergiebedarf ", "          Primary energy demand ") + traeger +
                ": \\tab " + feld(p_.q_PE_Energietraeger) + einheit);
        }
        zeile_anhaengen(s("     Hilfsenergie (Strom):", "     Auxiliary energy (electricity):"));
        zeile_anhaengen(s("          Hilfsenergiebedarf zur Wärmeerzeugung: \\tab ",
                          "          Auxiliary energy for heat generation: \\tab ") +
                        feld(k.q_g_he) + einheit);
        zeile_anhaengen(s("          Hilfsenergiebedarf zur Wärmespeicherung: \\tab ",
                          "          Auxiliary energy for heat storage: \\tab ") +
                        feld(k.q_s_he) + einheit);
        zeile_anhaengen(s("          Hilfsenergiebedarf zur Wärmeverteilung: \\tab ",
                          "          Auxiliary energy for heat distribution: \\tab ") +
                        feld(k.q_d_he) + einheit);
        zeile_anhaengen("");
        zeile_anhaengen(s("          Endenergiebedarf Hilfsenergie (Strom): \\tab ",
                          "          End energy demand auxiliary energy (electricity): \\tab ") +
                        feld(p_.q_HE_Strom) + einheit);
        if (strom) {
            // Electricity has a single primary energy line, as on the energy plane.
            zeile_anhaengen(s("     Primärenergiefaktor Strom: \\tab ",
                              "     Primary energy factor electricity: \\tab ") +
                            feld(k.f_p));
            zeile_anhaengen(s("     Primärenergiebedarf Strom: \\tab ",
                              "     Primary energy demand electricity: \\tab ") +
                            feld(static_cast<float>(static_cast<double>(p_.q_PE_Strom) +
                                                    p_.q_PE_Energietraeger)) +
                            einheit);
        } else {
            zeile_anhaengen(s("          Primärenergiefaktor Strom: \\tab ",
                              "          Primary energy factor electricity: \\tab ") +
                            z(PRIMAERFAKTOR_STROM, "0.0"));
            zeile_anhaengen(s("          Primärenergiebedarf Hilfsenergie (Strom): \\tab ",
                              "          Primary energy demand auxiliary energy (electricity): "
                              "\\tab ") +
                            feld(p_.q_PE_Strom) + einheit);
        }
        zeile_anhaengen("");
        if (strom) {
            stromtabelle();
        } else {
            energietabelle(traeger);
        }
    }

    // The year's energy by month in proportion to the month's heat demand; a year without heat
    // demand writes 0 and divides by nothing.
    std::string anteil(int m, double jahr) const {
        if (p_.qhs_sum == 0) {
            return "0";
        }
        const double w = static_cast<double>(p_.Monat[m].Qh) / p_.f_nutz / p_.qhs_sum;
        return z(w * jahr, "0.0");
    }

    void stromtabelle() {
        anhaengen(TABS_2);
        zeile_anhaengen(s(" \\tab Endenergiebedarf \\tab Primärenergiebedarf",
                          " \\tab End energy demand \\tab Primary energy demand"));
        zeile_anhaengen(s(" \\tab Strom \\tab Strom", " \\tab electricity \\tab electricity"));
        zeile_anhaengen(" \\tab in kWh/m² \\tab in kWh/m²");
        const double he = static_cast<double>(p_.q_HE_Strom) + p_.q_HE_Energietraeger;
        const double pe = static_cast<double>(p_.q_PE_Strom) + p_.q_PE_Energietraeger;
        for (int m = 1; m <= 12; ++m) {
            zeile_anhaengen(monat(m) + anteil(m, he) + T + anteil(m, pe));
        }
        regel();
        zeile_anhaengen(s("     Jahressumme", "     Yearly sum") + std::string("\\tab ") +
                        z(he, "0.0") + T + z(pe, "0.0"));
    }

    void energietabelle(const std::string& traeger) {
        anhaengen(TABS_6);
        zeile_anhaengen(s(" \\tab Endenergie- \\tab Endenergie- \\tab Endenergie- \\tab "
                          "Primärener- \\tab Primärener- \\tab Primärener-",
                          " \\tab End energy \\tab End energy \\tab End energy \\tab Primary "
                          "\\tab Primary \\tab Primary "));
        zeile_anhaengen(s(" \\tab bedarf \\tab bedarf \\tab bedarf \\tab giebedarf \\tab giebedarf "
                          "\\tab giebedarf",
                          " \\tab demand \\tab demand \\tab demand \\tab demand \\tab demand \\tab "
                          "demand"));
        const std::string strom = s("Strom", "electricity");
        const std::string gesamt = s("gesamt", "total");
        zeile_anhaengen(" \\tab " + traeger + " \\tab " + strom + " \\tab " + gesamt + " \\tab " +
                        traeger + " \\tab " + strom + " \\tab " + gesamt);
        zeile_anhaengen(" \\tab in kWh/m² \\tab in kWh/m² \\tab in kWh/m² \\tab in kWh/m² \\tab in "
                        "kWh/m² \\tab in kWh/m²");
        const double he_t = p_.q_HE_Energietraeger, he_s = p_.q_HE_Strom;
        const double pe_t = p_.q_PE_Energietraeger, pe_s = p_.q_PE_Strom;
        for (int m = 1; m <= 12; ++m) {
            zeile_anhaengen(monat(m) + anteil(m, he_t) + T + anteil(m, he_s) + T +
                            anteil(m, he_s + he_t) + T + anteil(m, pe_t) + T + anteil(m, pe_s) + T +
                            anteil(m, pe_s + pe_t));
        }
        regel();
        zeile_anhaengen(s("     Jahressumme", "     Yearly sum") + std::string("\\tab ") +
                        z(he_t, "0.0") + T + z(he_s, "0.0") + T +
                        z(static_cast<float>(he_s + he_t), "0.0") + T + z(pe_t, "0.0") + T +
                        z(pe_s, "0.0") + T + z(static_cast<float>(pe_s + pe_t), "0.0"));
    }

    // Page 7: cooling by the efficiency of the plant and a fixed primary factor 3.0 of
    // electricity.
    void energie_kuehlung() {
        seitenkopf(s("Ausgabe: Primär- und Endenergiebedarf Kühlung",
                     "Output: Primary and end energy demand for cooling"));
        abschnitt(s("Energiebedarf der Kühlanlage", "Energy demand of the cooling system"));
        anhaengen(TABS_WERT);
        zeile_anhaengen(s("     Effizienzfaktor der Klimaanlage: \\tab ",
                          "     Efficiency factor of the air conditioning: \\tab ") +
                        z(p_.Klimaeffizienz, "0.0") +
                        s(" kWh Kühlung/ kWh Strom", " kWh cooling/ kWh electricity"));
        zeile_anhaengen("");
        anhaengen(TABS_3);
        zeile_anhaengen(s(" \\tab Kühlbedarf \\tab Kühlenergiebedarf \\tab Primärenergiebedarf",
                          " \\tab Cooling demand \\tab End energy demand for cooling \\tab Primary "
                          "energy demand"));
        zeile_anhaengen(" \\tab in kWh/m² \\tab in kWh/m² \\tab in kWh/m²");
        const double eff = p_.Klimaeffizienz, fl = p_.f_nutz;
        auto zeile = [&](double kuehl) {
            return quot(kuehl, fl, "0.0") + T + z(kuehl / eff / fl, "0.0") + T +
                   z(kuehl / eff * 3.0 / fl, "0.0");
        };
        double summe = 0;
        for (int m = 1; m <= 12; ++m) {
            zeile_anhaengen(monat(m) + zeile(p_.Monat[m].Kuehlbedarf));
            summe += p_.Monat[m].Kuehlbedarf;
        }
        regel();
        zeile_anhaengen(s("     Jahressumme", "     Yearly sum") + std::string("\\tab ") +
                        zeile(summe));
    }

    const Reportquelle& q_;
    const Projekt& p_;
    const bool e_;
    const KlimainfoTexte info_;
    std::string report_text_;
};

} // namespace

std::string report_schreiben(const Reportquelle& q, int16_t seite) {
    return Reportschreiber(q, false).schreiben(seite);
}

std::string report_schreiben_englisch(const Reportquelle& q, int16_t seite) {
    return Reportschreiber(q, true).schreiben(seite);
}

std::string report_der_sprache(const Reportquelle& q, int16_t seite) {
    return q.p.Sprache == "e" ? report_schreiben_englisch(q, seite) : report_schreiben(q, seite);
}

char dezimalzeichen(const std::string& sprache) {
    return sprache == "e" ? '.' : ',';
}

bool report_speichern(const std::string& report_text, const std::string& pfad) {
    static const char* const HEX = "0123456789abcdef";
    std::string ansi;
    for (const char zeichen : utf8_nach_cp1252(report_text)) {
        const auto b = static_cast<unsigned char>(zeichen);
        if (b < 0x80) {
            ansi += zeichen;
        } else {
            ansi += "\\'";
            ansi += HEX[b >> 4];
            ansi += HEX[b & 0xF];
        }
    }
    std::ofstream datei(pfad, std::ios::binary | std::ios::trunc);
    if (!datei) {
        return false;
    }
    datei << ansi;
    datei.close();
    return static_cast<bool>(datei);
}
