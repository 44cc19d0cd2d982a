// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/Ausdrucken.h"

#include "print/Drucker.h"
#include "print/Drucktext.h"
#include "print/Seiten.h"

#include <ctime>

const std::array<Druckoption, DRUCKOPTIONEN>& druckoptionen() {
    static const std::array<Druckoption, DRUCKOPTIONEN> optionen = {{
        {"Eingabedaten (2 Seiten)",
         "Input data (2 pages)",
         2,
         {"Datenblatt (Teil 1):", "Datenblatt (Teil 2):"},
         {"Data sheet (1):", "Data sheet (2):"}},
        {"Heiz- und Kühlstunden (1 Seite)",
         "Heating and cooling hours (1 page)",
         1,
         {"Ausgabe: Heiz- und Kühlstunden", ""},
         {"Output: Heating and cooling hours", ""}},
        {"Wärmebilanz (1 Seite)",
         "Heat balance (1 page)",
         1,
         {"Ausgabe: Wärmebilanz", ""},
         {"Output: Heat balance", ""}},
        {"Kühlbilanz (1 Seite)",
         "Cooling balance (1 page)",
         1,
         {"Ausgabe: Kühlbilanz", ""},
         {"Output: Cooling balance", ""}},
        {"Solare Gewinne / Transmissionsverluste der Fenster (1 Seite)",
         "Solar gains / transmission losses of the windows (1 page)",
         1,
         {"Ausgabe: Fensterbilanz", ""},
         {"Output: Balance of windows", ""}},
        {"Primär- und Endenergiebedarf Heizung (1 Seite)",
         "Primary and end energy demand for heating (1 page)",
         1,
         {"Primär- und Endenergiebedarf Heizung", ""},
         {"Primary and end energy demand for heating", ""}},
        {"Primär- und Endenergiebedarf Kühlung (1 Seite)",
         "Primary and end energy demand for cooling (1 page)",
         1,
         {"Primär- und Endenergiebedarf Kühlung", ""},
         {"Primary and end energy demand for cooling", ""}},
    }};
    return optionen;
}

int seitenzahl(const Druckauswahl& auswahl) {
    int m = 0;
    for (int i = 0; i < DRUCKOPTIONEN; ++i) {
        m += auswahl[static_cast<std::size_t>(i)]
                 ? druckoptionen()[static_cast<std::size_t>(i)].seiten
                 : 0;
    }
    return m;
}

std::string druckdatum() {
    const std::time_t jetzt = std::time(nullptr);
    std::tm t{};
    localtime_r(&jetzt, &t);
    return std::to_string(t.tm_mday) + "." + std::to_string(t.tm_mon + 1) + "." +
           std::to_string(t.tm_year + 1900);
}

std::string dateiname_ohne_pfad(const std::string& pfad) {
    const std::size_t schnitt = pfad.find_last_of("/\\");
    return schnitt == std::string::npos ? pfad : pfad.substr(schnitt + 1);
}

void Seitenkopf(Drucker& d, const Projekt& p, const std::string& titel, int n, int m,
                const std::string& datum) {
    const bool englisch = p.Sprache == "e";

    // The logo: "VELM" in italic, "aris" upright, bold and underlined, centred together.
    d.FontSize = 20;
    d.FontBold = true;
    d.FontUnderline = true;
    d.FontItalic = true;
    const double velm = d.TextWidth("VELM");
    d.FontItalic = false;
    const double aris = d.TextWidth("aris");
    d.CurrentX = (200 - velm - aris) / 2;
    d.CurrentY = 20;
    d.FontItalic = true;
    d.Print("VELM", true);
    d.FontItalic = false;
    d.Print("aris");
    d.FontBold = false;
    d.FontUnderline = false;
    d.FontSize = 10;

    d.Line(25, 35, 175, 35, BLACK);
    d.Line(25, 260, 175, 260, BLACK);

    d.FontItalic = true;
    drucken_bei(d, 25, 261,
                std::string(englisch ? "File: " : "Datei: ") + dateiname_ohne_pfad(p.Datei) + " ");
    drucken_bei(d, 175 - d.TextWidth(datum), 261, datum);
    const std::string seite = std::string(englisch ? "- Page " : "- Seite ") + std::to_string(n) +
                              " / " + std::to_string(m) + " -";
    drucken_bei(d, (200 - d.TextWidth(seite)) / 2, 261, seite);

    d.FontItalic = false;
    d.FontSize = 16;
    d.CurrentY = 40;
    zentriert_drucken(d, titel);
    d.FontSize = 10;
}

void Ausdrucken(Drucker& d, const Projekt& p, const Eingabeflaechen& e,
                const Druckauswahl& Druckausgabe, char dezimal, const std::string& datum) {
    using Seitenkoerper = void (*)(Druckseite&);
    static constexpr Seitenkoerper KOERPER[DRUCKOPTIONEN][2] = {
        {Seite_Datenblatt1, Seite_Datenblatt2}, {Seite_Stunden, nullptr},
        {Seite_Waermebilanz, nullptr},          {Seite_Kuehlbilanz, nullptr},
        {Seite_Fensterbilanz, nullptr},         {Seite_Heizenergie, nullptr},
        {Seite_Kuehlenergie, nullptr}};

    d.FontName = "Arial";
    const int m = seitenzahl(Druckausgabe);
    const bool englisch = p.Sprache == "e";
    int n = 0;
    for (std::size_t i = 0; i < DRUCKOPTIONEN; ++i) {
        if (!Druckausgabe[i]) {
            continue;
        }
        const Druckoption& o = druckoptionen()[i];
        for (int s = 0; s < o.seiten; ++s) {
            if (n > 0) {
                d.NewPage();
            }
            ++n;
            const auto k = static_cast<std::size_t>(s);
            Seitenkopf(d, p, englisch ? o.titel_englisch[k] : o.titel_deutsch[k], n, m, datum);
            Druckseite seite{d, p, e, dezimal, {}};
            KOERPER[i][k](seite);
        }
    }
    d.EndDoc();
}
