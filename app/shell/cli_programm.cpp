// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/shell/cli_programm.h"

#include "language/c_Sprache.h"
#include "project/c_glob.h"
#include "project/pfade.h"

#include <algorithm>

Dialogs::Antwort KonsolenDialogs::nachricht(const std::string& text, const std::string& t, Symbol,
                                            Knoepfe knoepfe, bool) {
    texte.push_back(text);
    titel.push_back(t);
    return knoepfe == Knoepfe::OK ? Antwort::OK : Antwort::Ja;
}

std::optional<std::string> KonsolenDialogs::speichern_dialog(const std::string&, int,
                                                             const std::string&) {
    std::optional<std::string> name = speichern_als;
    speichern_als.reset();
    return name;
}

KonsolenProgramm::KonsolenProgramm(Projekt& projekt, const std::string& klima,
                                   const std::string& sprache)
    : p(projekt) {
    p.KlimaOrdner = klima;
    if (klima == datenordner("klima")) {
        const Benutzerordner eigene = benutzerordner();
        p.Einstellungen = eigene.einstellungen;
        p.EigeneStationen = eigene.stationen;
    }
    // Without a language file and without a choice the run speaks German.
    sprache_beim_start(p, sprache, [] { return std::string(); });
    if (p.Sprache.empty()) {
        p.Sprache = "d";
        sprachtexte_setzen(p);
    }
    ebenen = std::make_unique<Eingabeflaechen>(p);
    io = std::make_unique<FILEIO>(p, *ebenen, dialogs);
    io->start(std::string(), programmordner(), programmordner());
}

int KonsolenProgramm::oeffnen(const std::string& pfad, std::ostream& fehler) {
    const std::size_t vorher = dialogs.texte.size();
    io->datei_oeffnen(pfad);
    int status = 0;
    for (std::size_t i = vorher; i < dialogs.texte.size(); ++i) {
        // A message box breaks its lines with CR LF or with CR alone; the terminal takes LF.
        std::string text = dialogs.texte[i];
        for (std::size_t crlf = text.find("\r\n"); crlf != std::string::npos;
             crlf = text.find("\r\n", crlf)) {
            text.erase(crlf, 1);
        }
        std::replace(text.begin(), text.end(), '\r', '\n');
        fehler << text << "\n";
        if (dialogs.titel[i] == p.txt_Klima_Titel) {
            // The project's station is missing: the default station stands in and the project
            // is calculated on it.
            status = STATION_ERSETZT;
            continue;
        }
        return dialogs.titel[i] == "Fehler" ? 3 : 2;
    }
    return status;
}
