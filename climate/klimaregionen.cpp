// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/klimaregionen.h"

#include <array>
#include <stdexcept>

namespace {

const std::array<Klimaregion, KLIMAREGIONEN> REGIONEN = {{
    {"  1: Nord- / Ostseeküste, nördliches Schleswig-Holstein",
     " Klimaregion 1 : Nord- und Ostseeküste, ", " nördliches Schleswig-Holstein ", 110, 20},
    {"  2: Nord- / Westdeutsches Tiefland", " Klimaregion 2 : Nord- und ",
     " Westdeutsches Tiefland ", 140, 90},
    {"  3: Ruhrgebiet / Ballungsgebiete des Flachlandes",
     " Klimaregion 3 : Ruhrgebiet und weitere ", " Ballungsgebiete des Flachlandes ", 35, 135},
    {"  4: Nördl. und westl. Mittelgebirge ohne Hochlagen",
     " Klimaregion 4 : Nördliche und westliche ", " Mittelgebirge ohne Hochlagen ", 90, 140},
    {"  5: Franken und nördliches Baden-Württemberg", " Klimaregion 5 : Franken und ",
     " nördliches Baden-Württemberg ", 90, 220},
    {"  6: Nördlicher Oberrheingraben", " Klimaregion 6 : ", " Nördlicher Oberrheingraben ", 70,
     200},
    {"  7: Südlicher Oberrheingraben", " Klimaregion 7 : ", " Südlicher Oberrheingraben ", 45, 260},
    {"  8: Donaubecken / Alpenvorland bis ca. 600 m Höhe", " Klimaregion 8 : Donaubecken und ",
     " Alpenvorland bis ca. 600m Höhe ", 90, 270},
    {"  9: Alpenvorl. (ca. 600 - 1000 m H.), NW Schwarzwald",
     " Klimaregion 9 : Alpenvorland (ca. 600 ", " -1000m Höhe), nordwestl. Schwarzwald ", 60, 250},
    {"10: Schwarzwald, Schwäbische und Fränkische Alb", " Klimaregion 10 : Schwarzwald, ",
     " Schwäbische und Fränkische Alb ", 70, 270},
    {"11: Hochlagen der nördlichen und westlichen Mittelgebirge",
     " Klimaregion 11 : Hochlagen der nörd- ", " lichen und westlichen Mittelgebirge ", 25, 175},
    {"12: Bodensee mit Umgebung", " Klimaregion 12 : ", " Bodensee mit Umgebung ", 75, 285},
}};

} // namespace

const Klimaregion& klimaregion(int i) {
    if (i < 1 || i > KLIMAREGIONEN) {
        throw std::out_of_range("climate region " + std::to_string(i) + " does not exist (1..12)");
    }
    return REGIONEN[static_cast<std::size_t>(i - 1)];
}

std::string klimakarte(int region) {
    return "Grafiken/klima" + std::to_string(region) + ".bmp";
}
