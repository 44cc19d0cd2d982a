// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/import/cp1252.h"

#include <cstdint>

namespace {

// The characters of bytes 0x80..0x9F; 0 where the byte is unassigned.
constexpr uint16_t OBEN[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                               0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                               0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                               0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char als_byte(uint32_t zeichen) {
    if (zeichen < 0x80 || (zeichen >= 0xA0 && zeichen <= 0xFF)) {
        return static_cast<char>(zeichen);
    }
    for (int i = 0; i < 32; ++i) {
        if (OBEN[i] != 0 && OBEN[i] == zeichen) {
            return static_cast<char>(0x80 + i);
        }
    }
    return '?';
}

} // namespace

std::string utf8_nach_cp1252(std::string_view text) {
    std::string aus;
    std::size_t i = 0;
    while (i < text.size()) {
        const auto c = static_cast<unsigned char>(text[i]);
        std::size_t laenge = 0;
        uint32_t zeichen = 0;
        if (c >= 0xC2 && c <= 0xDF) {
            laenge = 2;
            zeichen = c & 0x1Fu;
        } else if (c >= 0xE0 && c <= 0xEF) {
            laenge = 3;
            zeichen = c & 0x0Fu;
        } else if (c >= 0xF0 && c <= 0xF4) {
            laenge = 4;
            zeichen = c & 0x07u;
        }
        bool gueltig = laenge > 0 && i + laenge <= text.size();
        for (std::size_t k = 1; gueltig && k < laenge; ++k) {
            const auto f = static_cast<unsigned char>(text[i + k]);
            gueltig = (f & 0xC0u) == 0x80u;
            zeichen = (zeichen << 6) | (f & 0x3Fu);
        }
        if (gueltig) {
            aus += als_byte(zeichen);
            i += laenge;
        } else {
            aus += text[i];
            ++i;
        }
    }
    return aus;
}
