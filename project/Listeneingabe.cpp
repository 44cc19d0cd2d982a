// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/Listeneingabe.h"

#include "project/Laufzeitfehler.h"
#include "project/zahlwandlung.h"

#include <cctype>
#include <cfloat>
#include <cmath>

Listeneingabe::Listeneingabe(std::string_view text) : kanal_(std::string(text)) {}

std::string Listeneingabe::feld() {
    if (kanal_.ende()) {
        throw Laufzeitfehler(Laufzeitfehler::EingabeNachDateiende,
                             "Input past end of file after line " +
                                 std::to_string(kanal_.zeilennummer()));
    }
    return kanal_.eintrag();
}

std::string Listeneingabe::text() {
    return feld();
}

double Listeneingabe::zahl() {
    const std::string wert_text = feld();
    const std::string_view f = wert_text;
    if (f.empty()) {
        return 0;
    }
    const auto fehler = [&] {
        return Laufzeitfehler(Laufzeitfehler::Typfehler, "Type mismatch in line " +
                                                             std::to_string(kanal_.zeilennummer()) +
                                                             ": \"" + std::string(f) + "\"");
    };
    // Only the characters of a plain number: no "inf", "nan" or hexadecimal forms.
    std::string norm;
    std::size_t i = 0;
    bool negativ = false;
    if (f[i] == '+' || f[i] == '-') {
        negativ = f[i] == '-';
        ++i;
    }
    bool ziffern = false;
    for (; i < f.size() && std::isdigit(static_cast<unsigned char>(f[i])); ++i) {
        norm += f[i];
        ziffern = true;
    }
    if (i < f.size() && f[i] == '.') {
        norm += f[i++];
        for (; i < f.size() && std::isdigit(static_cast<unsigned char>(f[i])); ++i) {
            norm += f[i];
            ziffern = true;
        }
    }
    if (!ziffern) {
        throw fehler();
    }
    if (i < f.size() && (f[i] == 'E' || f[i] == 'e' || f[i] == 'D' || f[i] == 'd')) {
        norm += 'e';
        ++i;
        if (i < f.size() && (f[i] == '+' || f[i] == '-')) {
            norm += f[i++];
        }
        bool exp_ziffern = false;
        for (; i < f.size() && std::isdigit(static_cast<unsigned char>(f[i])); ++i) {
            norm += f[i];
            exp_ziffern = true;
        }
        if (!exp_ziffern) {
            throw fehler();
        }
    }
    if (i != f.size()) {
        throw fehler();
    }
    double wert = 0;
    const auto erg = zahlwandlung::lesen(norm.data(), norm.data() + norm.size(), wert);
    if (erg.ec == std::errc::result_out_of_range) {
        throw Laufzeitfehler(Laufzeitfehler::Ueberlauf,
                             "Overflow in line " + std::to_string(kanal_.zeilennummer()));
    }
    if (erg.ec != std::errc() || erg.ptr != norm.data() + norm.size()) {
        throw fehler();
    }
    return negativ ? -wert : wert;
}

float Listeneingabe::f32() {
    const double wert = zahl();
    if (!(std::fabs(wert) <= FLT_MAX)) {
        throw Laufzeitfehler(Laufzeitfehler::Ueberlauf,
                             "Overflow in line " + std::to_string(kanal_.zeilennummer()));
    }
    return static_cast<float>(wert);
}

int16_t Listeneingabe::i16() {
    const double wert = std::nearbyint(zahl());
    if (!(wert >= -32768.0 && wert <= 32767.0)) {
        throw Laufzeitfehler(Laufzeitfehler::Ueberlauf,
                             "Overflow in line " + std::to_string(kanal_.zeilennummer()));
    }
    return static_cast<int16_t>(wert);
}

namespace {

bool gueltiges_utf8(std::string_view s) {
    for (std::size_t i = 0; i < s.size();) {
        const auto c = static_cast<unsigned char>(s[i]);
        const std::size_t n = c < 0x80         ? 1
                              : (c >> 5) == 6  ? 2
                              : (c >> 4) == 14 ? 3
                              : (c >> 3) == 30 ? 4
                                               : 0;
        if (n == 0 || i + n > s.size()) {
            return false;
        }
        for (std::size_t k = 1; k < n; ++k) {
            if ((static_cast<unsigned char>(s[i + k]) >> 6) != 2) {
                return false;
            }
        }
        i += n;
    }
    return true;
}

} // namespace

std::string text_aus_datei(std::string_view roh) {
    if (gueltiges_utf8(roh)) {
        return std::string(roh);
    }
    std::string utf8;
    for (char ch : roh) {
        const auto c = static_cast<unsigned char>(ch);
        if (c < 0x80) {
            utf8 += ch;
        } else {
            utf8 += static_cast<char>(0xC0 | (c >> 6));
            utf8 += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return utf8;
}

std::string text_in_datei(std::string_view utf8) {
    if (!gueltiges_utf8(utf8)) {
        return std::string(utf8);
    }
    std::string roh;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto c = static_cast<unsigned char>(utf8[i]);
        if ((c == 0xC2 || c == 0xC3) && i + 1 < utf8.size()) {
            roh += static_cast<char>(((c & 0x03) << 6) |
                                     (static_cast<unsigned char>(utf8[i + 1]) & 0x3F));
            ++i;
        } else if (c >= 0x80) {
            // A character beyond the 8-bit page: the whole text stays UTF-8.
            return std::string(utf8);
        } else {
            roh += utf8[i];
        }
    }
    return roh;
}
