// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/cli/aufrufe.h"
#include "app/cli/befehle.h"
#include "climate/import/importieren.h"
#include "climate/import/importtexte.h"
#include "climate/import/zahltext.h"
#include "project/pfade.h"

#include <cmath>
#include <filesystem>
#include <map>

namespace {

// The messages go to the terminal; the name question is answered by --name, the overwrite
// question by --ueberschreiben.
class Terminaldialoge : public ImportDialoge {
public:
    Terminaldialoge(std::ostream& aus, std::ostream& fehler, std::string name, bool ja)
        : aus_(aus), fehler_(fehler), name_(std::move(name)), ja_(ja) {}
    void meldung(const std::string& titel, const std::string& text) override {
        (titel.empty() ? aus_ : fehler_)
            << (titel.empty() ? "" : titel + ": ") << zeilen(text) << "\n";
    }
    std::string eingabe(const std::string&, const std::string&, const std::string&) override {
        return name_;
    }
    bool frage_ja_nein(const std::string& text) override {
        if (!ja_) {
            fehler_ << zeilen(text) << " (no; --ueberschreiben answers yes)\n";
        }
        return ja_;
    }

private:
    static std::string zeilen(std::string text) {
        for (std::size_t i = text.find("\r\n"); i != std::string::npos; i = text.find("\r\n", i)) {
            text.replace(i, 2, "\n");
        }
        return text;
    }
    std::ostream& aus_;
    std::ostream& fehler_;
    std::string name_;
    bool ja_;
};

// A signed number into the unsigned field and its list choice (0 for the positive side).
bool vorzeichenfeld(const std::string& text, std::string& feld, int16_t& seite) {
    double wert = 0;
    bool ok = false;
    StringToReal(text, wert, ok);
    if (!ok) {
        return false;
    }
    seite = wert < 0 ? 1 : 0;
    feld = zahl_als_text(std::fabs(wert)).substr(1);
    return true;
}

} // namespace

int befehl_import(const std::vector<std::string>& args, std::ostream& aus, std::ostream& fehler) {
    std::string quelle, name, format = "auto", klima = datenordner("klima"), sprache = "d";
    std::map<std::string, std::string> werte;
    std::vector<std::string> spalten;
    bool komma = false, ueberschreiben = false;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        const bool mit_wert = i + 1 < args.size();
        if (a == "--komma") {
            komma = true;
        } else if (a == "--ueberschreiben") {
            ueberschreiben = true;
        } else if (a == "--name" && mit_wert) {
            name = args[++i];
        } else if (a == "--klima" && mit_wert) {
            klima = args[++i];
        } else if (a == "--format" && mit_wert) {
            format = args[++i];
        } else if (a == "--sprache" && mit_wert) {
            sprache = args[++i];
        } else if (a == "--spalte" && mit_wert) {
            spalten.push_back(args[++i]);
        } else if ((a == "--ort" || a == "--land" || a == "--breite" || a == "--laenge" ||
                    a == "--zone" || a == "--kopfzeilen" || a == "--trennung") &&
                   mit_wert) {
            werte[a] = args[++i];
        } else if (a.rfind("--", 0) != 0 && quelle.empty()) {
            quelle = a;
        } else {
            fehler << "velmaris-cli import: unexpected argument \"" << a << "\"\n"
                   << aufruf("import");
            return 1;
        }
    }
    if (quelle.empty() || name.empty() || (sprache != "d" && sprache != "e")) {
        fehler << aufruf("import");
        return 1;
    }

    Klimaimport f;
    std::string datei;
    const Quelltext gelesen = quelle_oeffnen(f, quelle, datei);
    if (gelesen != Quelltext::gelesen) {
        fehler << "velmaris-cli import: "
               << (gelesen == Quelltext::zu_gross ? text_zu_gross(sprache, quelle)
                                                  : "\"" + quelle + "\" cannot be read")
               << "\n";
        return 2;
    }
    const std::map<std::string, Quellformat> formate = {
        {"epw", Quellformat::epw},     {"try", Quellformat::try_dat},
        {"mos", Quellformat::mos},     {"nsrdb", Quellformat::nsrdb},
        {"pvgis", Quellformat::pvgis}, {"spalten", Quellformat::spalten},
    };
    if (format == "meteonorm") {
        if (f.Format != Quellformat::spalten || f.Kopfzeilen != "4") {
            fehler << "velmaris-cli import: \"" << quelle << "\" is no Meteonorm text\n";
            return 2;
        }
    } else if (format != "auto") {
        const auto gewaehlt = formate.find(format);
        if (gewaehlt == formate.end()) {
            fehler << aufruf("import");
            return 1;
        }
        if (gewaehlt->second != f.Format) {
            f.Format = gewaehlt->second;
            f.Kopfzeilen = "0";
            quelle_kopf_lesen(f);
        }
    }

    if (werte.count("--ort")) {
        f.Standortname = werte["--ort"];
    }
    if (werte.count("--land")) {
        f.Land = werte["--land"];
    }
    if (werte.count("--kopfzeilen")) {
        f.Kopfzeilen = werte["--kopfzeilen"];
    }
    if (komma) {
        f.Dezimalzeichen = 1;
    }
    if (werte.count("--trennung")) {
        const std::string& t = werte["--trennung"];
        f.Datentrennung = t == "links" ? 1 : t == "rechts" ? 2 : 0;
    }
    int16_t gmt_minus = 0;
    if ((werte.count("--breite") &&
         !vorzeichenfeld(werte["--breite"], f.Breitengrad, f.Breitezusatz)) ||
        (werte.count("--laenge") &&
         !vorzeichenfeld(werte["--laenge"], f.Laengengrad, f.Laengezusatz)) ||
        (werte.count("--zone") && !vorzeichenfeld(werte["--zone"], f.Zeitzone, gmt_minus))) {
        fehler << "velmaris-cli import: --breite, --laenge and --zone take numbers\n";
        return 1;
    }
    if (werte.count("--zone")) {
        f.GMT = gmt_minus;
    }
    const std::map<std::string, int16_t> arten = {{"ta", SPALTE_TEMPERATUR},
                                                  {"gesamt", SPALTE_GESAMT},
                                                  {"direkt", SPALTE_DIREKT},
                                                  {"diffus", SPALTE_DIFFUS}};
    for (const std::string& s : spalten) {
        const std::size_t gleich = s.find('=');
        const auto art =
            gleich == std::string::npos ? arten.end() : arten.find(s.substr(gleich + 1));
        double nummer = 0;
        bool ok = false;
        StringToReal(s.substr(0, gleich == std::string::npos ? 0 : gleich), nummer, ok);
        if (art == arten.end() || !ok || nummer < 1 || nummer > IMPORT_SPALTEN ||
            nummer != std::floor(nummer)) {
            fehler << "velmaris-cli import: --spalte takes N=ta|gesamt|direkt|diffus, N 1..100\n";
            return 1;
        }
        f.Spaltenbelegung[static_cast<std::size_t>(nummer)] = art->second;
    }

    const std::vector<Importeingabe> fehlt = fehlende_eingaben(f);
    if (!fehlt.empty()) {
        // Only what is missing, by the option that gives it; the source's head fills in the rest.
        const std::map<Importeingabe, const char*> optionen = {
            {Importeingabe::Quelle, "the source (SOURCE)"},
            {Importeingabe::Ort, "the place (--ort)"},
            {Importeingabe::Land, "the country (--land)"},
            {Importeingabe::Kopfzeilen, "the number of head lines (--kopfzeilen)"},
            {Importeingabe::Breite, "the latitude (--breite)"},
            {Importeingabe::Laenge, "the longitude (--laenge)"},
            {Importeingabe::Zone, "the time zone (--zone)"}};
        fehler << "velmaris-cli import: missing ";
        for (std::size_t i = 0; i < fehlt.size(); ++i) {
            fehler << (i == 0                  ? ""
                       : i + 1 == fehlt.size() ? " and "
                                               : ", ")
                   << optionen.at(fehlt[i]);
        }
        fehler << "\n" << aufruf("import");
        return 1;
    }
    // An installed program imports into the user's own station folder.
    const std::string eigene = benutzerordner().stationen;
    if (klima == datenordner("klima") && !eigene.empty()) {
        klima = eigene;
        std::error_code fehlt;
        std::filesystem::create_directories(klima, fehlt);
    }
    Terminaldialoge dialoge(aus, fehler, name, ueberschreiben);
    const Importergebnis ergebnis = klimadaten_importieren(f, klima, sprache, dialoge);
    switch (ergebnis.ausgang) {
    case Importausgang::geschrieben:
        aus << ergebnis.pfad << "\n";
        return 0;
    case Importausgang::abgebrochen:
        return 1;
    case Importausgang::fehler:
        break;
    }
    if (!ergebnis.grund.grund.empty()) {
        fehler << "velmaris-cli import: " << quelle << ", line " << ergebnis.grund.zeile << ": "
               << ergebnis.grund.grund << "\n";
    }
    return 2;
}
