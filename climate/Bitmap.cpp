// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/Bitmap.h"

#include "project/FatalError.h"

#include <fstream>
#include <iterator>

namespace {

constexpr int64_t SEITE_HOECHSTENS = 16384;
constexpr std::size_t DATEI_HOECHSTENS = 64u * 1024 * 1024;

uint32_t u32(std::string_view d, std::size_t pos) {
    return static_cast<uint32_t>(static_cast<unsigned char>(d[pos])) |
           static_cast<uint32_t>(static_cast<unsigned char>(d[pos + 1])) << 8 |
           static_cast<uint32_t>(static_cast<unsigned char>(d[pos + 2])) << 16 |
           static_cast<uint32_t>(static_cast<unsigned char>(d[pos + 3])) << 24;
}

uint16_t u16(std::string_view d, std::size_t pos) {
    return static_cast<uint16_t>(static_cast<unsigned char>(d[pos]) |
                                 static_cast<unsigned char>(d[pos + 1]) << 8);
}

[[noreturn]] void fehler(const std::string& name, const std::string& grund) {
    throw FatalError("picture " + name + ": " + grund);
}

} // namespace

int32_t Bitmap::farbe(int x, int y) const {
    if (x < 0 || y < 0 || x >= breite || y >= hoehe) {
        return -1;
    }
    return farben[static_cast<std::size_t>(y) * static_cast<std::size_t>(breite) +
                  static_cast<std::size_t>(x)];
}

Bitmap bitmap_aus_daten(std::string_view d, const std::string& name) {
    if (d.size() < 54 || d[0] != 'B' || d[1] != 'M') {
        fehler(name, "not a BMP file");
    }
    const uint32_t daten_ab = u32(d, 10);
    const uint32_t kopfgroesse = u32(d, 14);
    const auto breite = static_cast<int32_t>(u32(d, 18));
    const auto hoehe_roh = static_cast<int32_t>(u32(d, 22));
    const uint16_t bits = u16(d, 28);
    const uint32_t kompression = u32(d, 30);
    if (kopfgroesse < 40) {
        fehler(name, "old BMP header of " + std::to_string(kopfgroesse) + " bytes");
    }
    if (bits != 24 && bits != 32) {
        fehler(name, std::to_string(bits) + " bits per pixel, only 24 or 32 are read");
    }
    // 32-bit pictures may carry their masks (3); the masks of the usual layout are assumed.
    if (kompression != 0 && !(kompression == 3 && bits == 32)) {
        fehler(name, "compressed BMP");
    }
    const int64_t hoehe = hoehe_roh < 0 ? -static_cast<int64_t>(hoehe_roh) : hoehe_roh;
    if (breite <= 0 || hoehe <= 0 || breite > SEITE_HOECHSTENS || hoehe > SEITE_HOECHSTENS) {
        fehler(name, "size " + std::to_string(breite) + " x " + std::to_string(hoehe_roh) +
                         " is out of range");
    }
    const std::size_t bytes_pixel = bits / 8u;
    const std::size_t zeile = (static_cast<std::size_t>(breite) * bytes_pixel + 3) / 4 * 4;
    const std::size_t noetig =
        static_cast<std::size_t>(daten_ab) + zeile * static_cast<std::size_t>(hoehe);
    if (daten_ab < 54 || noetig > d.size()) {
        fehler(name, "pixel data shorter than the header says");
    }
    Bitmap b;
    b.breite = breite;
    b.hoehe = static_cast<int>(hoehe);
    b.farben.resize(static_cast<std::size_t>(breite) * static_cast<std::size_t>(hoehe));
    for (int64_t y = 0; y < hoehe; ++y) {
        const int64_t quelle = hoehe_roh < 0 ? y : hoehe - 1 - y;
        const std::size_t anfang = daten_ab + static_cast<std::size_t>(quelle) * zeile;
        for (int32_t x = 0; x < breite; ++x) {
            const std::size_t p = anfang + static_cast<std::size_t>(x) * bytes_pixel;
            const auto blau = static_cast<unsigned char>(d[p]);
            const auto gruen = static_cast<unsigned char>(d[p + 1]);
            const auto rot = static_cast<unsigned char>(d[p + 2]);
            b.farben[static_cast<std::size_t>(y) * static_cast<std::size_t>(breite) +
                     static_cast<std::size_t>(x)] = rot | gruen << 8 | blau << 16;
        }
    }
    return b;
}

Bitmap bitmap_lesen(const std::string& pfad) {
    std::ifstream datei(pfad, std::ios::binary);
    if (!datei) {
        fehler(pfad, "cannot be opened");
    }
    datei.seekg(0, std::ios::end);
    if (datei.tellg() > static_cast<std::streamoff>(DATEI_HOECHSTENS)) {
        fehler(pfad, "larger than any map picture");
    }
    datei.seekg(0, std::ios::beg);
    const std::string daten((std::istreambuf_iterator<char>(datei)),
                            std::istreambuf_iterator<char>());
    return bitmap_aus_daten(daten, pfad);
}
