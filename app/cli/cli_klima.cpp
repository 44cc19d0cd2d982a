// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/cli/aufrufe.h"
#include "app/cli/befehle.h"
#include "climate/Bitmap.h"
#include "climate/ebene/E_Klima.h"
#include "climate/klimaregionen.h"
#include "climate/plz_suche.h"
#include "climate/stationslisten.h"
#include "project/c_glob.h"
#include "project/pfade.h"

#include <cstdlib>
#include <filesystem>

namespace {

int stationen(const std::vector<std::string>& ordner, std::ostream& aus) {
    const Stationslisten l = stationslisten_bauen(ordner);
    aus << "file\tname\tworld_x\tworld_y\teurope_x\teurope_y\n";
    for (int i = 0; i < l.Welt.anzahl(); ++i) {
        const auto k = static_cast<std::size_t>(i);
        aus << l.Welt.Dateiname[k] << "\t" << l.Welt.Stationsname[k] << "\t" << l.Welt.Laenge[k]
            << "\t" << l.Welt.Breite[k];
        const int e = l.Europa.suchen(l.Welt.Dateiname[k]);
        if (e >= 0) {
            aus << "\t" << l.Europa.Laenge[static_cast<std::size_t>(e)] << "\t"
                << l.Europa.Breite[static_cast<std::size_t>(e)];
        }
        aus << "\n";
    }
    return 0;
}

int plz(Projekt& p, const std::string& klima, const std::string& code, std::ostream& aus,
        std::ostream& fehler) {
    if (code.size() != 5) {
        fehler << "Bitte Postleitzahl 5-stellig eingeben!\n";
        return 1;
    }
    const int region = plz_region_aus_datei(klima + "/plz.txt", code);
    if (region == 0) {
        fehler << "  Keine gültige Postleitzahl!  \n";
        return 3;
    }
    neues_projekt(p);
    aus << region << "\t" << p.Regionsdatei[region] << "\t" << klimaregion(region).text << "\n";
    return 0;
}

int region(const std::string& programm, const std::string& x, const std::string& y,
           std::ostream& aus) {
    const Bitmap karte = bitmap_lesen(programm + "/" + klimakarte(0));
    const int r = region_an_pixel(karte, std::atoi(x.c_str()), std::atoi(y.c_str()), true);
    aus << r;
    if (r > 0) {
        aus << "\t" << klimaregion(r).text;
    }
    aus << "\n";
    return 0;
}

} // namespace

int befehl_klima(Projekt& p, const std::vector<std::string>& args, std::ostream& aus,
                 std::ostream& fehler) {
    std::string klima = datenordner("klima");
    // The map pictures lie in Grafiken/ of the program folder.
    std::string programm = std::filesystem::path(datenordner("Grafiken")).parent_path().string();
    std::vector<std::string> worte;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--klima" && i + 1 < args.size()) {
            klima = args[++i];
        } else if (args[i] == "--programm" && i + 1 < args.size()) {
            programm = args[++i];
        } else {
            worte.push_back(args[i]);
        }
    }
    if (worte.size() == 1 && worte[0] == "stationen") {
        // The delivered stations come with the user's own imports, unless a folder is given.
        std::vector<std::string> ordner{klima};
        const std::string eigene = benutzerordner().stationen;
        if (klima == datenordner("klima") && !eigene.empty()) {
            ordner.insert(ordner.begin(), eigene);
        }
        return stationen(ordner, aus);
    }
    if (worte.size() == 2 && worte[0] == "plz") {
        return plz(p, klima, worte[1], aus, fehler);
    }
    if (worte.size() == 3 && worte[0] == "region") {
        return region(programm, worte[1], worte[2], aus);
    }
    fehler << aufruf("klima");
    return 1;
}
