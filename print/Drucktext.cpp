// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/Drucktext.h"

#include "print/Drucker.h"
#include "project/Zahlformat.h"

namespace {

bool beginnt_mit(const std::string& s, const char* anfang) {
    return s.rfind(anfang, 0) == 0;
}

// Size of the raised part of a text of DruckeText.
constexpr double HOCH_FAKTOR = 0.7;

} // namespace

void ZeilenUmbruch(const Drucker& d, std::string& text, double breite,
                   std::vector<std::string>& ZeilenListe) {
    ZeilenListe.clear();
    if (d.TextWidth(text) < breite) {
        ZeilenListe.push_back(text);
        return;
    }

    // Cut after every hyphen and blank; the closing character stays with its piece.
    std::string wort;
    for (char c : text) {
        wort += c;
        if (c == '-' || c == ' ') {
            ZeilenListe.push_back(wort);
            wort.clear();
        }
    }
    ZeilenListe.push_back(wort);
    text.clear();

    // Join neighbours while the pair fits; each step removes an entry or moves on, so the walk
    // ends.
    std::size_t i = 0;
    while (i + 1 < ZeilenListe.size()) {
        std::string& links = ZeilenListe[i];
        const std::string& rechts = ZeilenListe[i + 1];
        if (!(d.TextWidth(links + rechts) < breite)) {
            ++i;
            continue;
        }
        const bool bindewort = beginnt_mit(links, "sowie") || beginnt_mit(links, "und");
        if (!bindewort && links.size() >= 2 && links.compare(links.size() - 2, 2, "- ") == 0) {
            links.erase(links.size() - 2);
        }
        links += rechts;
        ZeilenListe.erase(ZeilenListe.begin() + static_cast<std::ptrdiff_t>(i) + 1);
    }
}

void DruckeWert(Drucker& d, double wert, double anker, int stellen, char dezimal) {
    const char* muster = stellen <= 0 ? "0" : stellen == 1 ? "0.0" : "0.00";
    DruckeText(d, format_muster(wert, muster, dezimal), anker);
}

void DruckeText(Drucker& d, const std::string& text, double anker) {
    const double y = d.CurrentY;
    const std::size_t marke = text.find('^');
    const std::string grund = text.substr(0, marke);
    const std::string hoch = marke == std::string::npos ? std::string() : text.substr(marke + 1);
    const double groesse = d.FontSize;
    double breite = d.TextWidth(grund);
    if (!hoch.empty()) {
        d.FontSize = groesse * HOCH_FAKTOR;
        breite += d.TextWidth(hoch);
        d.FontSize = groesse;
    }
    d.CurrentX = anker - breite;
    d.Print(grund, true);
    if (!hoch.empty()) {
        d.FontSize = groesse * HOCH_FAKTOR;
        d.CurrentY = y - 0.1 * groesse * HOCH_FAKTOR;
        d.Print(hoch, true);
        d.FontSize = groesse;
    }
    d.CurrentY = y;
}

void zentriert_drucken(Drucker& d, const std::string& text) {
    d.CurrentX = (200 - d.TextWidth(text)) / 2;
    d.Print(text);
}

void drucken_bei(Drucker& d, double x, double y, const std::string& text) {
    d.CurrentX = x;
    d.CurrentY = y;
    d.Print(text);
}
