// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/import/stationsschreiber.h"

#include "climate/import/cp1252.h"
#include "climate/import/zahltext.h"

namespace {

const char* const ZEILENENDE = "\r\n";

std::string feld5(const std::string& text) {
    return text.size() >= 5 ? text : std::string(5 - text.size(), ' ') + text;
}

// The zero before a leading point: " .5" to " 0.5", "-.4" to "-0.4".
std::string null_davor(std::string text) {
    if (text.compare(0, 2, " .") == 0 || text.compare(0, 2, "-.") == 0) {
        text.insert(1, "0");
    }
    return text;
}

// A header value through the typed-number test, its sign from the list choice.
double kopfzahl(const std::string& text, int Dezimalzeichen, bool negieren) {
    double wert = 0;
    bool ok = false;
    StringToReal(text, wert, ok, Dezimalzeichen);
    wert = negieren ? -wert : wert;
    return wert == 0 ? 0.0 : wert;
}

} // namespace

std::string stationskopf(const Klimaimport& f) {
    std::string kopf = utf8_nach_cp1252(f.Standortname + " (" + f.Land + ")") + ZEILENENDE;
    kopf += "Breitengrad:  " +
            RealToString(kopfzahl(f.Breitengrad, f.Dezimalzeichen, f.Breitezusatz != 0)) +
            ZEILENENDE;
    kopf += "L\xE4ngengrad:   " +
            RealToString(kopfzahl(f.Laengengrad, f.Dezimalzeichen, f.Laengezusatz == 0)) +
            ZEILENENDE;
    kopf += "Zeitzone:     " + RealToString(kopfzahl(f.Zeitzone, f.Dezimalzeichen, f.GMT == 0)) +
            ZEILENENDE;
    kopf += ZEILENENDE;
    kopf += std::string("   dy   Ta G_Gh G_Dh") + ZEILENENDE;
    return kopf;
}

std::string stationszeile(int i, const Quellstunde& s, bool direkt) {
    const std::string tag = zahl_als_text(runden_gerade(i / 24.0 + 0.5000001, 0));
    std::string temperatur = zahl_als_text(runden_gerade(s.Ta, 1));
    if (temperatur.find('.') == std::string::npos) {
        temperatur += ".0";
    }
    temperatur = null_davor(temperatur);
    const std::string gesamt = direkt ? zahl_als_text(runden_gerade(s.G_Gh + s.G_Dh, 0))
                                      : RealToString(runden_gerade(s.G_Gh, 0));
    const std::string diffus = zahl_als_text(runden_gerade(s.G_Dh, 1));
    return feld5(tag) + feld5(temperatur) + feld5(gesamt) + feld5(diffus) + ZEILENENDE;
}

std::string stationsdatei(const Klimaimport& f, const std::vector<Quellstunde>& zeilen,
                          bool direkt) {
    std::string text = stationskopf(f);
    text.reserve(text.size() + JAHRESSTUNDEN * 23);
    for (int i = 0; i < JAHRESSTUNDEN && static_cast<std::size_t>(i) < zeilen.size(); ++i) {
        text += stationszeile(i, zeilen[static_cast<std::size_t>(i)], direkt);
    }
    return text;
}
