// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/layout/Layoutfaelle.h"

#include <string_view>

const std::vector<Layoutfall>& layoutfaelle() {
    static const std::vector<Layoutfall> faelle = {
        {"neues_projekt", [](Projekt&) {}},
        {"dach_nord_sued",
         [](Projekt& p) {
             p.Dachgeschoss = true;
             p.Dachfirst = 1;
             p.hd = 2.6f;
         }},
        {"dach_ost_west",
         [](Projekt& p) {
             p.Dachgeschoss = true;
             p.Dachfirst = 2;
             p.hd = 3.5f;
             p.orient = 30;
         }},
        {"alle_waende_angrenzend", [](Projekt& p) { p.awn = p.aws = p.awo = p.aww = 0; }},
        {"waermepumpe",
         [](Projekt& p) {
             p.Heizsystem = 7;
             p.Uebergabe = 2;
         }},
        {"grosser_bau",
         [](Projekt& p) {
             p.l = 50;
             p.b = 30;
             p.h = 30;
             p.ag = 10;
             p.ugd_typ = 4;
             p.Heizsystem = 9;
         }},
        {"kuehllast",
         [](Projekt& p) {
             p.fs = 90;
             p.fo = p.fw = 50;
             p.verschs = 0;
             p.gfs = 0.8f;
             p.intg = 60;
             p.Tueber = 22;
         }},
        // The region with the longest line of text, on data sheet 1.
        {"klimaregion_9",
         [](Projekt& p) {
             p.Klimaauswahl = 1;
             p.Klimadatei = p.Regionsdatei[9];
         }},
    };
    return faelle;
}

Textfeld textfeld(double x, double y, const std::string& text, double zeichen, double zeile) {
    const auto b = text.find_first_not_of(' ');
    if (b == std::string::npos) {
        return {x, y, x, y, text};
    }
    const auto e = text.find_last_not_of(' ');
    // Characters are counted as UTF-8 code points; a blank and the narrow letters of a
    // proportional font count less, so that columns set apart by blanks are not taken for one
    // wide text.
    const auto zaehlen = [&](std::size_t von, std::size_t bis) {
        double n = 0;
        for (std::size_t i = von; i < bis; ++i) {
            const char c = text[i];
            if ((static_cast<unsigned char>(c) & 0xC0) == 0x80) {
                continue;
            }
            n += c == ' '                                                                     ? 0.5
                 : std::string_view("il.,:;'!|()[]I1rtfj-").find(c) != std::string_view::npos ? 0.6
                                                                                              : 1.0;
        }
        return n;
    };
    // Leading blanks keep the full width: right-aligned numbers are placed by it.
    return {x + static_cast<double>(b) * zeichen, y,
            x + (static_cast<double>(b) + zaehlen(b, e + 1)) * zeichen, y + zeile, text};
}

bool ueberlappen(const Textfeld& a, const Textfeld& b, double toleranz) {
    if (a.x1 == a.x2 || b.x1 == b.x2) {
        return false;
    }
    return a.x1 < b.x2 - toleranz && b.x1 < a.x2 - toleranz && a.y1 < b.y2 - toleranz &&
           b.y1 < a.y2 - toleranz;
}
