// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/zahlwandlung.h"

#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace zahlwandlung {

namespace {

bool ziffer(char c) {
    return c >= '0' && c <= '9';
}

// The end of the decimal number at the start of the range, or `erster` when there is none.
// `bedeutend` tells whether the digits before the exponent hold anything but zeros.
const char* zahl_ende(const char* erster, const char* letzter, bool& bedeutend) {
    const char* p = erster;
    if (p != letzter && *p == '-') {
        ++p;
    }
    bool ziffern = false;
    bedeutend = false;
    for (; p != letzter && ziffer(*p); ++p) {
        ziffern = true;
        bedeutend = bedeutend || *p != '0';
    }
    if (p != letzter && *p == '.') {
        ++p;
        for (; p != letzter && ziffer(*p); ++p) {
            ziffern = true;
            bedeutend = bedeutend || *p != '0';
        }
    }
    if (!ziffern) {
        return erster;
    }
    // An exponent counts only with at least one digit; "1e" is the number 1 followed by "e".
    if (p != letzter && (*p == 'e' || *p == 'E')) {
        const char* q = p + 1;
        if (q != letzter && (*q == '+' || *q == '-')) {
            ++q;
        }
        if (q != letzter && ziffer(*q)) {
            while (q != letzter && ziffer(*q)) {
                ++q;
            }
            p = q;
        }
    }
    return p;
}

std::to_chars_result kopieren(char* erster, char* letzter, const std::string& text) {
    if (static_cast<std::size_t>(letzter - erster) < text.size()) {
        return {letzter, std::errc::value_too_large};
    }
    std::memcpy(erster, text.data(), text.size());
    return {erster + text.size(), std::errc()};
}

// printf and strtod use the decimal mark of the current locale; the texts here always use a point.
std::string lokales_komma() {
    return std::localeconv()->decimal_point;
}

std::string c_text(const char* muster, int genauigkeit, double wert) {
    char puffer[400];
    std::snprintf(puffer, sizeof puffer, muster, genauigkeit, wert);
    std::string text = puffer;
    const std::string komma = lokales_komma();
    const std::size_t stelle = text.find(komma);
    if (komma != "." && stelle != std::string::npos) {
        text.replace(stelle, komma.size(), ".");
    }
    return text;
}

std::string fuer_strto(std::string text) {
    const std::string komma = lokales_komma();
    const std::size_t stelle = text.find('.');
    if (komma != "." && stelle != std::string::npos) {
        text.replace(stelle, 1, komma);
    }
    return text;
}

std::string nicht_endlich(double wert) {
    if (std::isnan(wert)) {
        return std::signbit(wert) ? "-nan" : "nan";
    }
    return wert < 0 ? "-inf" : "inf";
}

// The exponent form of the digits d1d2... times 10^exponent, as printf writes it.
std::string exponentform(const std::string& ziffern, int exponent) {
    std::string text(1, ziffern[0]);
    if (ziffern.size() > 1) {
        text += '.';
        text.append(ziffern, 1, std::string::npos);
    }
    char e[16];
    std::snprintf(e, sizeof e, "e%c%02d", exponent < 0 ? '-' : '+', std::abs(exponent));
    return text + e;
}

// The digits one unit higher in the last place: "199" -> "200", "99" -> "100" one place up.
void aufrunden(std::string& ziffern, int& exponent) {
    std::size_t i = ziffern.size();
    while (i > 0 && ziffern[i - 1] == '9') {
        ziffern[--i] = '0';
    }
    if (i == 0) {
        ziffern.insert(ziffern.begin(), '1');
        ziffern.pop_back();
        ++exponent;
    } else {
        ++ziffern[i - 1];
    }
}

bool liest_zurueck(const std::string& ziffern, int exponent, float betrag) {
    return std::strtof(fuer_strto(exponentform(ziffern, exponent)).c_str(), nullptr) == betrag;
}

// The fewest significant digits that read back as the float; of two candidates with as many
// digits the nearer, which is the correctly rounded one unless the value is a power of two whose
// lower neighbour lies closer.
void kuerzeste_ziffern(float betrag, std::string& ziffern, int& exponent) {
    for (int stellen = 1;; ++stellen) {
        const std::string text = c_text("%.*e", stellen - 1, betrag);
        const std::size_t e = text.find('e');
        ziffern = text.substr(0, 1) + (e > 2 ? text.substr(2, e - 2) : std::string());
        exponent = std::atoi(text.c_str() + e + 1);
        if (liest_zurueck(ziffern, exponent, betrag)) {
            break;
        }
        std::string hoeher = ziffern;
        int hoeher_exponent = exponent;
        aufrunden(hoeher, hoeher_exponent);
        if (liest_zurueck(hoeher, hoeher_exponent, betrag)) {
            ziffern = hoeher;
            exponent = hoeher_exponent;
            break;
        }
    }
    while (ziffern.size() > 1 && ziffern.back() == '0') {
        ziffern.pop_back();
    }
}

} // namespace

namespace portabel {

std::to_chars_result schreiben(char* erster, char* letzter, float wert) {
    if (wert == 0) {
        return kopieren(erster, letzter, std::signbit(wert) ? "-0" : "0");
    }
    if (!std::isfinite(wert)) {
        return kopieren(erster, letzter, nicht_endlich(wert));
    }
    const float betrag = std::fabs(wert);
    std::string ziffern;
    int exponent = 0;
    kuerzeste_ziffern(betrag, ziffern, exponent);

    const int n = static_cast<int>(ziffern.size());
    std::string fest;
    if (exponent >= n - 1) {
        // A whole number is written with all its digits, exactly as the float holds it.
        fest = c_text("%.*f", 0, betrag);
    } else if (exponent >= 0) {
        fest = ziffern.substr(0, static_cast<std::size_t>(exponent) + 1) + "." +
               ziffern.substr(static_cast<std::size_t>(exponent) + 1);
    } else {
        fest = "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + ziffern;
    }
    const std::string exponential = exponentform(ziffern, exponent);
    const std::string& kuerzer = fest.size() <= exponential.size() ? fest : exponential;
    return kopieren(erster, letzter, (wert < 0 ? "-" : "") + kuerzer);
}

std::to_chars_result schreiben(char* erster, char* letzter, double wert, std::chars_format form,
                               int genauigkeit) {
    if (!std::isfinite(wert)) {
        return kopieren(erster, letzter, nicht_endlich(wert));
    }
    const char* muster = nullptr;
    switch (form) {
    case std::chars_format::fixed:
        muster = "%.*f";
        break;
    case std::chars_format::scientific:
        muster = "%.*e";
        break;
    case std::chars_format::general:
        muster = "%.*g";
        break;
    default:
        return {erster, std::errc::invalid_argument};
    }
    // A fixed text of a huge value is longer than any buffer here: snprintf tells its length.
    const int laenge = std::snprintf(nullptr, 0, muster, genauigkeit, wert);
    if (laenge < 0 || laenge >= 400) {
        return {letzter, std::errc::value_too_large};
    }
    return kopieren(erster, letzter, c_text(muster, genauigkeit, wert));
}

std::from_chars_result lesen(const char* erster, const char* letzter, double& wert) {
    bool bedeutend = false;
    const char* ende = zahl_ende(erster, letzter, bedeutend);
    if (ende == erster) {
        return {erster, std::errc::invalid_argument};
    }
    const double w = std::strtod(fuer_strto(std::string(erster, ende)).c_str(), nullptr);
    if (std::isinf(w) || (w == 0 && bedeutend)) {
        return {ende, std::errc::result_out_of_range};
    }
    wert = w;
    return {ende, std::errc()};
}

} // namespace portabel

#if defined(__cpp_lib_to_chars)

std::to_chars_result schreiben(char* erster, char* letzter, float wert) {
    return std::to_chars(erster, letzter, wert);
}

std::to_chars_result schreiben(char* erster, char* letzter, double wert, std::chars_format form,
                               int genauigkeit) {
    return std::to_chars(erster, letzter, wert, form, genauigkeit);
}

std::from_chars_result lesen(const char* erster, const char* letzter, double& wert) {
    // The same numbers are accepted in every build: no "inf", "nan" or hexadecimal digits.
    bool bedeutend = false;
    const char* ende = zahl_ende(erster, letzter, bedeutend);
    if (ende == erster) {
        return {erster, std::errc::invalid_argument};
    }
    return std::from_chars(erster, ende, wert);
}

#else

std::to_chars_result schreiben(char* erster, char* letzter, float wert) {
    return portabel::schreiben(erster, letzter, wert);
}

std::to_chars_result schreiben(char* erster, char* letzter, double wert, std::chars_format form,
                               int genauigkeit) {
    return portabel::schreiben(erster, letzter, wert, form, genauigkeit);
}

std::from_chars_result lesen(const char* erster, const char* letzter, double& wert) {
    return portabel::lesen(erster, letzter, wert);
}

#endif

} // namespace zahlwandlung
