// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/cli/aufrufe.h"

#include <array>

namespace {

struct Befehl {
    const char* name;
    const char* formen; // one form a line; a line starting with a blank continues the form above
    const char* zweck;
};

constexpr std::array<Befehl, 7> BEFEHLE{{
    {"calc",
     "calc --new [--klima DIR] [--hourly]\n"
     "calc PROJECT.vel [--klima DIR] [--sprache d|e] [--hourly]",
     "recalculate the new or an opened project, print JSON"},
    {"save", "save OUT.vel [--from PROJECT.vel] [--klima DIR]",
     "write the new or the opened project"},
    {"import",
     "import SOURCE --name NAME --ort PLACE --land COUNTRY [--klima DIR]\n"
     "  [--format auto|epw|try|mos|nsrdb|pvgis|meteonorm|spalten]\n"
     "  [--breite DEG] [--laenge DEG] [--zone HOURS]   (north, east, east of Greenwich "
     "positive)\n"
     "  [--kopfzeilen N] [--trennung tab|links|rechts] [--komma]\n"
     "  [--spalte N=ta|gesamt|direkt|diffus]... [--ueberschreiben] [--sprache d|e]",
     "convert hourly climate data into a station file"},
    {"klima",
     "klima stationen [--klima DIR]\n"
     "klima plz CODE [--klima DIR]\n"
     "klima region X Y [--programm DIR]",
     "station lists, the region of a post code, the region under a map pixel"},
    {"report", "report PROJECT.vel OUT.rtf [--sprache d|e] [--seite 0..7] [--klima DIR]",
     "the report as Rich Text, all pages (0) or one"},
    {"temperaturen", "temperaturen PROJECT.vel OUT.txt [--sprache d|e] [--klima DIR]",
     "the year's hourly temperatures as a text table"},
    {"drucken", "drucken PROJECT.vel OUT.pdf [--seiten 1,3,5] [--sprache d|e] [--klima DIR]",
     "the printed pages as a PDF file"},
}};

// The forms with `kopf` before the first line and as many blanks before the others.
std::string formen(const Befehl& b, const std::string& kopf) {
    const std::string einzug(kopf.size() - std::string("velmaris-cli ").size(), ' ');
    std::string text;
    std::string rest = b.formen;
    bool erste = true;
    while (!rest.empty()) {
        const std::size_t ende = rest.find('\n');
        const std::string zeile = rest.substr(0, ende);
        rest = ende == std::string::npos ? "" : rest.substr(ende + 1);
        if (zeile[0] == ' ') {
            text += einzug + "            " + zeile + "\n";
        } else {
            text += (erste ? kopf : einzug + "velmaris-cli ") + zeile + "\n";
        }
        erste = false;
    }
    return text;
}

} // namespace

std::string aufruf(const std::string& befehl) {
    for (const Befehl& b : BEFEHLE) {
        if (befehl == b.name) {
            return formen(b, "usage: velmaris-cli ");
        }
    }
    return {};
}

std::string gesamtaufruf() {
    std::string text = "usage: velmaris-cli COMMAND ...\n";
    for (const Befehl& b : BEFEHLE) {
        text += "\n" + formen(b, "  velmaris-cli ") + "      " + b.zweck + "\n";
    }
    text += "\nvelmaris-cli COMMAND --help shows the usage of one command.\n";
    return text;
}
