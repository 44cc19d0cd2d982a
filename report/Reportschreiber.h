// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The builder of the report's Rich Text, shared by the files of its pages.

#include "climate/klimainfo_texte.h"
#include "project/Zahlformat.h"
#include "project/c_glob.h"
#include "report/Report.h"
#include "report/schreibeZeile.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace bericht {

// The Rich Text frame and the tab blocks of the rows.
inline constexpr const char* DOKUMENT_ANFANG =
    "{\\rtf1\\ansi{\\fonttbl{\\f0\\froman Times New Roman;}}";
inline constexpr const char* DOKUMENT_ENDE = "}";
inline constexpr const char* TABS_WERT = "\\pard\\tx4300 ";
inline constexpr const char* TABS_2 = "\\pard\\tx1800\\tx5100";
inline constexpr const char* TABS_3 = "\\pard\\tx1800\\tx4000\\tx6200";
inline constexpr const char* TABS_4 = "\\pard\\tx1800\\tx3450\\tx5100\\tx6750";
inline constexpr const char* TABS_6 = "\\pard\\tx1800\\tx2900\\tx4000\\tx5100\\tx6200\\tx7300";
inline constexpr const char* T = " \\tab ";

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
    void datenblatt();
    void geometrie();
    void daemmung();
    void gebaeude();
    void klimawahl();
    // The station as the station list shows it: the list's text, else the name of its file.
    std::string stationsname() const;
    void fenster();
    void energiewahl();
    // Page 2.
    void uebersicht();
    // Page 3.
    void klima();
    // Page 4: the heat balance, per m² of usable floor and for the whole building.
    void waermebilanz();
    void bilanztabelle(bool spezifisch);
    // Page 5.
    void kuehlbilanz();
    // Page 6: the rows read the energy plane's fields.
    void energie_heizung();
    // The year's energy by month in proportion to the month's heat demand; a year without heat
    // demand writes 0 and divides by nothing.
    std::string anteil(int m, double jahr) const;
    void stromtabelle();
    void energietabelle(const std::string& traeger);
    // Page 7: cooling by the efficiency of the plant and a fixed primary factor 3.0 of
    // electricity.
    void energie_kuehlung();

    const Reportquelle& q_;
    const Projekt& p_;
    const bool e_;
    const KlimainfoTexte info_;
    std::string report_text_;
};

} // namespace bericht
