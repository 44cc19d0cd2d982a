// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/plz_suche.h"

#include "climate/klimaregionen.h"
#include "climate/numerisch.h"
#include "project/FatalError.h"
#include "project/Textkanal.h"

#include <fstream>
#include <iterator>

namespace {

// The table has 1000 lines of a few characters; a file beyond this is not a post code table.
constexpr std::streamoff TABELLE_HOECHSTENS = 1024 * 1024;

} // namespace

int plz_region(const std::string& tabelle, const std::string& plz) {
    const std::string vorsatz = plz.substr(0, 3);
    Textkanal kanal(tabelle);
    while (!kanal.ende()) {
        const std::string eintrag = kanal.eintrag();
        if (eintrag.compare(0, 3, vorsatz) != 0) {
            continue;
        }
        const double region = numerisch_lesen(spalten(eintrag, 5, 6));
        if (region < 0 || region > KLIMAREGIONEN || region != static_cast<int>(region)) {
            throw FatalError("post code table: the item \"" + eintrag +
                             "\" names no climate region 0..12");
        }
        return static_cast<int>(region);
    }
    throw FatalError("post code table: the prefix " + vorsatz +
                     " is missing; the table must hold every prefix 000 to 999");
}

int plz_region_aus_datei(const std::string& pfad, const std::string& plz) {
    std::ifstream datei(pfad, std::ios::binary);
    if (!datei) {
        throw FatalError("post code table " + pfad + " cannot be opened");
    }
    datei.seekg(0, std::ios::end);
    if (datei.tellg() > TABELLE_HOECHSTENS) {
        throw FatalError("post code table " + pfad + " is far larger than 1000 items");
    }
    datei.seekg(0, std::ios::beg);
    const std::string text((std::istreambuf_iterator<char>(datei)),
                           std::istreambuf_iterator<char>());
    return plz_region(text, plz);
}
