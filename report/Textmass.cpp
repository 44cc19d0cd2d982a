// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Textmass.h"

#include "report/Schriftbreiten.h"

namespace {

// The next code point of UTF-8 text from `i`; a broken sequence counts as its first byte.
uint32_t naechstes_zeichen(const std::string& t, std::size_t& i) {
    const auto b = static_cast<unsigned char>(t[i++]);
    int folge = 0;
    uint32_t c = b;
    if (b >= 0xF0 && b < 0xF8) {
        folge = 3;
        c = b & 0x07u;
    } else if (b >= 0xE0) {
        folge = 2;
        c = b & 0x0Fu;
    } else if (b >= 0xC0) {
        folge = 1;
        c = b & 0x1Fu;
    }
    if (b >= 0xF8 || (b >= 0x80 && b < 0xC0) || i + static_cast<std::size_t>(folge) > t.size()) {
        return b;
    }
    for (int k = 0; k < folge; ++k) {
        const auto f = static_cast<unsigned char>(t[i + static_cast<std::size_t>(k)]);
        if ((f & 0xC0) != 0x80) {
            return b;
        }
        c = (c << 6) | (f & 0x3Fu);
    }
    i += static_cast<std::size_t>(folge);
    return c;
}

} // namespace

double times_breite(const std::string& text, double punkte) {
    long einheiten = 0;
    for (std::size_t i = 0; i < text.size();) {
        const uint32_t c = naechstes_zeichen(text, i);
        const uint32_t zeichen = c >= 0x20 && c <= 0xFF ? c : static_cast<uint32_t>('n');
        einheiten += SCHRIFT_BREITEN[zeichen - 0x20];
    }
    const double pixel_je_em = punkte * 96.0 / 72.0;
    return static_cast<double>(einheiten) * pixel_je_em / SCHRIFT_EINHEITEN;
}
