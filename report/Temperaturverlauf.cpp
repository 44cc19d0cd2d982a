// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Temperaturverlauf.h"

#include "climate/import/cp1252.h"
#include "project/Dateizugriff.h"
#include "project/Laufzeitfehler.h"
#include "project/Zahlformat.h"
#include "project/c_glob.h"

namespace {

const char* const CRLF = "\r\n";
const char* const LINIE = "____________________________________________________________";

// A field right-aligned to ten characters; a longer value is not cut.
std::string feld(const std::string& wert) {
    return wert.size() < 10 ? std::string(10 - wert.size(), ' ') + wert : wert;
}

void zeilen(std::string& text, std::initializer_list<const char*> liste) {
    for (const char* z : liste) {
        text += z;
        text += CRLF;
    }
}

void legende(std::string& text, bool englisch) {
    if (englisch) {
        zeilen(text, {"Legend:", "", "     T out:         Outside air temperature",
                      "     T free:        Room air temperature",
                      "                    without heating and cooling",
                      "     T HC:          Room air temperature",
                      "                    with heating and cooling", "", ""});
    } else {
        zeilen(text, {"Legende:", "", "     T außen:       Außenlufttemperatur",
                      "     T frei:        Raumlufttemperatur",
                      "                    ohne Heizung und Kühlung",
                      "     T HK:          Raumlufttemperatur",
                      "                    mit Heizung und Kühlung", "", ""});
    }
}

// The rows of month m.
void monatszeilen(std::string& text, const Projekt& p, int m, char dezimal) {
    for (int d = 1; d <= p.Monat[m].Tage; ++d) {
        for (int h = 1; h <= 24; ++h) {
            text += feld(std::to_string(d)) + feld(std::to_string(m)) + feld(std::to_string(h)) +
                    feld(format_muster(p.Wetter(m, d, h).Ta, "0.0", dezimal)) +
                    feld(format_muster(p.T_frei(m, d, h), "0.0", dezimal)) +
                    feld(format_muster(p.T_regel(m, d, h), "0.0", dezimal)) + CRLF;
        }
    }
}

} // namespace

std::string temperaturverlauf_schreiben(const Projekt& p, int monat, char dezimal) {
    const bool englisch = p.Sprache == "e";
    std::string text = monat != 0 ? "      " : "";
    text += CRLF;
    zeilen(text, {"                          Velmaris", LINIE, ""});
    zeilen(text, {englisch ? "                      Temperature courses"
                           : "                      Temperaturverläufe",
                  ""});
    if (monat >= 1 && monat <= 12) {
        text +=
            std::string(englisch ? "Month: " : "Monat: ") + "     " + p.Monat[monat].Name + CRLF;
        text += CRLF;
    }
    legende(text, englisch);
    // "Temperaturdaten:" has no English form, and the screen's English head says "T fret".
    zeilen(text, {"Temperaturdaten:", "",
                  englisch ? "       day     month      hour     T out    T fret      T HC"
                           : "       Tag     Monat    Stunde   T außen    T frei      T HK",
                  "                                   in °C     in °C     in °C", LINIE, ""});
    for (int m = 1; m <= 12; ++m) {
        if (monat == 0 || monat == m) {
            monatszeilen(text, p, m, dezimal);
        }
    }
    return text;
}

std::string temperaturverlauf_jahrestext(const Projekt& p, char dezimal) {
    const bool englisch = p.Sprache == "e";
    std::string text;
    zeilen(text, {"                          Velmaris", LINIE, "",
                  englisch ? "             Yearly temperature courses"
                           : "             Jahres-Temperaturverläufe",
                  ""});
    legende(text, englisch);
    // The year file's units line says "in kW" for the last column, which holds °C.
    zeilen(text, {"Temperaturdaten:", "",
                  englisch ? "       day     Month      hour     T out    T free      T HC"
                           : "       Tag     Monat    Stunde   T außen    T frei      T HK",
                  "                                   in °C     in °C     in kW", LINIE, ""});
    for (int m = 1; m <= 12; ++m) {
        monatszeilen(text, p, m, dezimal);
    }
    return text;
}

bool temperaturverlauf_exportieren(const Projekt& p, char dezimal, const std::string& pfad) {
    try {
        datei_ersetzen(pfad, utf8_nach_cp1252(temperaturverlauf_jahrestext(p, dezimal)));
    } catch (const Laufzeitfehler&) {
        return false;
    }
    return true;
}
