// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/Drucker.h"
#include "print/Drucktext.h"
#include "print/Seiten.h"
#include "project/Zahlformat.h"

#include <array>

std::string Druckseite::wert(double v, const char* muster) const {
    return format_muster(v, muster, dezimal);
}

void abschnitt(Druckseite& s, const std::string& titel) {
    // A section below others keeps a little space from the rows above it.
    if (s.y > 50) {
        s.y += 2;
    }
    s.d.FontSize = 12;
    s.d.FontBold = true;
    drucken_bei(s.d, 25, s.y, titel);
    s.d.FontSize = 10;
    s.d.FontBold = false;
    s.y += 6;
}

void wertzeile(Druckseite& s, const std::string& label, const std::string& wert, double x) {
    if (!label.empty()) {
        drucken_bei(s.d, x, s.y, label);
    }
    if (!wert.empty()) {
        drucken_bei(s.d, 120, s.y, wert);
    }
    s.y += DRUCKZEILE;
}

void textzeilen(Druckseite& s, const std::string& label, std::string text, double x,
                double breite) {
    drucken_bei(s.d, x, s.y, label);
    ZeilenUmbruch(s.d, text, breite, s.ZeilenListe);
    for (const std::string& zeile : s.ZeilenListe) {
        drucken_bei(s.d, 120, s.y, zeile);
        s.y += DRUCKZEILE;
    }
}

void regel(Druckseite& s, double y, bool doppelt) {
    s.d.Line(25, y, 175, y, BLACK);
    if (doppelt) {
        s.d.Line(25, y + 1, 175, y + 1, BLACK);
    }
}

std::string monatszeile(const Projekt& p, int m) {
    // Fixed row heads of the tables, in the language of the run.
    static const std::array<const char*, 12> DEUTSCH = {
        "Januar", "Februar", "März",      "April",   "Mai",      "Juni",
        "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
    static const std::array<const char*, 12> ENGLISCH = {
        "January", "February", "March",     "April",   "May",      "June",
        "July",    "August",   "September", "October", "November", "December"};
    if (m < 1 || m > 12) {
        return std::string();
    }
    const auto i = static_cast<std::size_t>(m - 1);
    return sprachtext(p.Sprache, DEUTSCH[i], ENGLISCH[i]);
}

void tabellenkopf(Druckseite& s, const std::string& kopf, const std::vector<double>& anker,
                  const std::vector<std::vector<std::string>>& zeilen, double hoehe) {
    regel(s, s.y);
    s.y += 0.8;
    drucken_bei(s.d, 26, s.y, kopf);
    for (const std::vector<std::string>& zeile : zeilen) {
        s.d.CurrentY = s.y;
        for (std::size_t i = 0; i < zeile.size() && i < anker.size(); ++i) {
            DruckeText(s.d, zeile[i], anker[i]);
        }
        s.y += hoehe;
    }
    regel(s, s.y, true);
    s.y += 1.8;
}

void tabellenzeile(Druckseite& s, const std::string& kopf, const std::vector<double>& anker,
                   const std::vector<double>& werte, const std::vector<int>& stellen,
                   double hoehe) {
    drucken_bei(s.d, 26, s.y, kopf);
    s.d.CurrentY = s.y;
    for (std::size_t i = 0; i < werte.size() && i < anker.size() && i < stellen.size(); ++i) {
        if (stellen[i] >= 0) {
            DruckeWert(s.d, werte[i], anker[i], stellen[i], s.dezimal);
        }
    }
    s.y += hoehe;
}
