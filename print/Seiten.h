// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The bodies of the printed pages, under the frame of Seitenkopf, from y 50 down to the foot
// rule at y 260.

#include "charts/Diagrammtexte.h"
#include "project/c_glob.h"

#include <string>
#include <vector>

class Drucker;
class Eingabeflaechen;

// What a page body is given: the printer, the record, the planes whose lists give texts, the
// decimal mark of the values, the scratch list of wrapped lines and the row being written.
struct Druckseite {
    Drucker& d;
    const Projekt& p;
    const Eingabeflaechen& e;
    char dezimal;
    std::vector<std::string> ZeilenListe;
    double y = 50; // top of the next row, mm

    // The text of the language of the run.
    std::string t(const char* deutsch, const char* englisch) const {
        return sprachtext(p.Sprache, deutsch, englisch);
    }
    // A value by the pattern with the decimal mark.
    std::string wert(double v, const char* muster) const;
};

// Height of a row of size 10 on the pages, mm.
constexpr double DRUCKZEILE = 4.2;
// Height of a row of size 8 (the tables of the heat balance and the energy pages), mm.
constexpr double DRUCKZEILE_KLEIN = 3.4;

// Section title: size 12 bold at x 25, then size 10 plain.
void abschnitt(Druckseite& s, const std::string& titel);
// Label at x `x` and value text at x 120 on one row, size 10; a heading row has no value, a
// continued value no label.
void wertzeile(Druckseite& s, const std::string& label, const std::string& wert, double x = 30);
// Label at x `x` and a long text wrapped by ZeilenUmbruch to `breite` mm from x 120, a row per
// line.
void textzeilen(Druckseite& s, const std::string& label, std::string text, double x = 30,
                double breite = 55);
// A rule from x 25 to x 175 at y; with `doppelt` a second one a millimetre lower.
void regel(Druckseite& s, double y, bool doppelt = false);
// The head of a table: a rule at the current row, the head rows right-aligned on the column
// anchors (row header "kopf" of the first row at x 26), a double rule under them.
void tabellenkopf(Druckseite& s, const std::string& kopf, const std::vector<double>& anker,
                  const std::vector<std::vector<std::string>>& zeilen, double hoehe);
// A row of a table: the row header at x 26 and each value by DruckeWert with its decimal places
// on its anchor; a column with places below 0 stays empty.
void tabellenzeile(Druckseite& s, const std::string& kopf, const std::vector<double>& anker,
                   const std::vector<double>& werte, const std::vector<int>& stellen, double hoehe);
// The month as the row header of the printed tables, 1..12.
std::string monatszeile(const Projekt& p, int m);

void Seite_Datenblatt1(Druckseite& s);
void Seite_Datenblatt2(Druckseite& s);
void Seite_Stunden(Druckseite& s);
void Seite_Waermebilanz(Druckseite& s);
void Seite_Kuehlbilanz(Druckseite& s);
void Seite_Fensterbilanz(Druckseite& s);
void Seite_Heizenergie(Druckseite& s);
void Seite_Kuehlenergie(Druckseite& s);
