// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Report.h"

#include "climate/import/cp1252.h"
#include "project/Dateizugriff.h"
#include "project/Laufzeitfehler.h"
#include "report/Reportschreiber.h"

std::string report_schreiben(const Reportquelle& q, int16_t seite) {
    return bericht::Reportschreiber(q, false).schreiben(seite);
}

std::string report_schreiben_englisch(const Reportquelle& q, int16_t seite) {
    return bericht::Reportschreiber(q, true).schreiben(seite);
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
    try {
        datei_ersetzen(pfad, ansi);
    } catch (const Laufzeitfehler&) {
        return false;
    }
    return true;
}
