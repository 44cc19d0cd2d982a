// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/import/importieren.h"

#include "climate/import/importtexte.h"
#include "climate/import/meteonorm.h"
#include "climate/import/spalten.h"
#include "climate/import/stationsschreiber.h"
#include "climate/import/zahltext.h"
#include "climate/klimadatei.h"
#include "project/Dateizugriff.h"
#include "project/Laufzeitfehler.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

Quelltext quelltext_lesen(const std::string& pfad, std::string& text) {
    std::string gelesen;
    try {
        gelesen = datei_text(pfad, IMPORT_HOECHSTGROESSE + 1);
    } catch (const Laufzeitfehler&) {
        return Quelltext::nicht_lesbar;
    }
    if (gelesen.size() > IMPORT_HOECHSTGROESSE) {
        return Quelltext::zu_gross;
    }
    text = std::move(gelesen);
    return Quelltext::gelesen;
}

namespace {

// A number as the fields show it: no sign, at most four decimals.
std::string feldtext(double wert) {
    std::string text = zahl_als_text(runden_gerade(std::fabs(wert), 4));
    return text.substr(1);
}

// The fields from the head of a source read by its own format.
void kopf_uebernehmen(Klimaimport& f, const Quelldaten& d) {
    f.Kopfzeilen = "0";
    if (!d.ort.empty()) {
        f.Standortname = d.ort;
    }
    if (!d.land.empty()) {
        f.Land = d.land;
    }
    if (d.koordinaten) {
        f.Breitezusatz = d.breite < 0 ? 1 : 0;
        f.Breitengrad = feldtext(d.breite);
        f.Laengezusatz = d.laenge < 0 ? 1 : 0;
        f.Laengengrad = feldtext(d.laenge);
    }
    f.GMT = d.ortszone < 0 ? 1 : 0;
    f.Zeitzone = feldtext(d.ortszone);
}

// The fields from the head of a source text of a format read by its own rules. A fault among the
// hours still leaves the head; the import names the fault later.
void kopf_aus_text(Klimaimport& f, std::string_view text) {
    Quelldaten daten;
    Quellfehler fehler;
    quelle_lesen(f.Format, text, daten, fehler);
    kopf_uebernehmen(f, daten);
}

// A value of a column source: the field of column `spalte`, tested as a number.
bool spaltenwert(const Klimaimport& f, std::string_view zeile, int spalte, double& wert) {
    std::string text;
    bool ok = false;
    Stelle(f, zeile, spalte, text, ok);
    if (!ok) {
        wert = 0;
        return false;
    }
    StringToReal(text, wert, ok, f.Dezimalzeichen);
    return ok;
}

// The hours of a column source in their own order, after the column checks and the test pass;
// false when a message ended the import.
bool spalten_lesen(const Klimaimport& f, std::string_view text, const std::string& Sprache,
                   ImportDialoge& dialoge, std::vector<Quellstunde>& stunden, bool& direkt) {
    int temperatur = 0, gesamt = 0, direktspalte = 0, diffus = 0;
    for (int i = 1; i <= IMPORT_SPALTEN; ++i) {
        switch (f.Spaltenbelegung[static_cast<std::size_t>(i)]) {
        case SPALTE_TEMPERATUR:
            temperatur = i;
            break;
        case SPALTE_GESAMT:
            gesamt = i;
            break;
        case SPALTE_DIREKT:
            direktspalte = i;
            break;
        case SPALTE_DIFFUS:
            diffus = i;
            break;
        default:
            break;
        }
    }
    const std::string titel = text_fehler_titel(Sprache);
    if (gesamt == 0 && direktspalte == 0) {
        dialoge.meldung(titel, text_keine_strahlung(Sprache));
        return false;
    }
    if (temperatur == 0) {
        dialoge.meldung(titel, text_keine_temperatur(Sprache));
        return false;
    }
    if (diffus == 0) {
        dialoge.meldung(titel, text_keine_diffusstrahlung(Sprache));
        return false;
    }
    direkt = gesamt == 0;
    const int strahlung = direkt ? direktspalte : gesamt;

    const std::size_t kopf = kopfzeilenzahl(f.Kopfzeilen);
    if (kopf > KOPFZEILEN_HOECHSTENS) {
        dialoge.meldung(titel, text_zu_viele_kopfzeilen(Sprache));
        return false;
    }
    const std::vector<std::string_view> zeilen = zeilen_teilen(text);
    // The blank modes take their column positions from the first line behind the head, as the
    // preview does.
    Klimaimport g = f;
    if (g.Datentrennung != 0) {
        Spalten_Festlegen(g, kopf < zeilen.size() ? zeilen[kopf] : std::string_view());
    }
    int erste_falsche = 0;
    int zeilenzahl = 0;
    stunden.clear();
    for (std::size_t i = kopf; i < zeilen.size() && zeilenzahl < JAHRESSTUNDEN; ++i) {
        ++zeilenzahl;
        Quellstunde s;
        const bool gut = spaltenwert(g, zeilen[i], temperatur, s.Ta) &&
                         spaltenwert(g, zeilen[i], strahlung, s.G_Gh) &&
                         spaltenwert(g, zeilen[i], diffus, s.G_Dh);
        if (!gut && erste_falsche == 0) {
            erste_falsche = zeilenzahl;
        }
        stunden.push_back(s);
    }
    if (erste_falsche != 0) {
        dialoge.meldung(titel,
                        text_fehler_in_zeile(Sprache, static_cast<int>(kopf) + erste_falsche));
        return false;
    }
    if (zeilenzahl < JAHRESSTUNDEN) {
        dialoge.meldung(titel, text_zu_wenig_daten(Sprache));
        return false;
    }
    return true;
}

} // namespace

Quelltext quelle_oeffnen(Klimaimport& f, const std::string& pfad, std::string& Datei) {
    std::string text;
    const Quelltext gelesen = quelltext_lesen(pfad, text);
    if (gelesen == Quelltext::gelesen) {
        quelle_annehmen(f, pfad, text, Datei);
    }
    return gelesen;
}

void quelle_annehmen(Klimaimport& f, const std::string& pfad, std::string_view text,
                     std::string& Datei) {
    Datei = pfad;
    f.DateinameBox = pfad;
    // Only the preview's lines are looked at here.
    const std::vector<std::string_view> zeilen = zeilen_teilen(text, VORSCHAU_ZEILEN);
    const std::size_t vorschau = std::min<std::size_t>(zeilen.size(), VORSCHAU_ZEILEN);
    f.Dateiansicht.clear();
    for (std::size_t i = 0; i < vorschau; ++i) {
        f.Dateiansicht.append(zeilen[i]).append("\r\n");
    }
    if (vorschau == VORSCHAU_ZEILEN) {
        f.Dateiansicht += "...";
    }
    f.Spaltenbelegung.fill(SPALTE_UNBENUTZT);
    f.Format = Quellformat::spalten;

    const std::vector<std::string_view> kopf(zeilen.begin(), zeilen.begin() + vorschau);
    if (ist_meteonorm(kopf)) {
        Meteonorm_Lesen(f, kopf);
        return;
    }
    f.Kopfzeilen.clear();
    f.Dezimalzeichen = 0;
    f.Laengengrad.clear();
    f.Breitengrad.clear();
    f.Zeitzone.clear();
    f.Standortname.clear();
    f.Land.clear();
    f.Format = format_erkennen(kopf);
    if (f.Format != Quellformat::spalten) {
        f.Kopfzeilen = "0";
        f.Datentrennung = 0;
        kopf_aus_text(f, text);
    }
}

bool quelle_kopf_lesen(Klimaimport& f) {
    std::string text;
    if (f.Format == Quellformat::spalten ||
        quelltext_lesen(f.DateinameBox, text) != Quelltext::gelesen) {
        return false;
    }
    kopf_aus_text(f, text);
    return true;
}

std::vector<Importeingabe> fehlende_eingaben(const Klimaimport& f) {
    auto zahl = [&f](const std::string& text) {
        double wert = 0;
        bool ok = false;
        StringToReal(text, wert, ok, f.Dezimalzeichen);
        return ok;
    };
    std::vector<Importeingabe> fehlt;
    const std::pair<bool, Importeingabe> pruefungen[] = {
        {!f.DateinameBox.empty(), Importeingabe::Quelle},
        {!f.Standortname.empty(), Importeingabe::Ort},
        {!f.Land.empty(), Importeingabe::Land},
        {zahl(f.Kopfzeilen), Importeingabe::Kopfzeilen},
        {zahl(f.Breitengrad), Importeingabe::Breite},
        {zahl(f.Laengengrad), Importeingabe::Laenge},
        {zahl(f.Zeitzone), Importeingabe::Zone}};
    for (const auto& [da, eingabe] : pruefungen) {
        if (!da) {
            fehlt.push_back(eingabe);
        }
    }
    return fehlt;
}

bool AlleEingabenTesten(const Klimaimport& f) {
    return fehlende_eingaben(f).empty();
}

std::string standardname(const std::string& DateinameBox) {
    std::string name = DateinameBox;
    const std::size_t doppelpunkt = name.find(':');
    if (doppelpunkt != std::string::npos) {
        name.erase(0, doppelpunkt + 1);
    }
    const std::size_t trenner = name.find_last_of("\\/");
    if (trenner != std::string::npos) {
        name.erase(0, trenner + 1);
    }
    const std::size_t punkt = name.rfind('.');
    if (punkt != std::string::npos) {
        name.erase(punkt);
    }
    return name;
}

Importergebnis klimadaten_importieren(const Klimaimport& f, const std::string& klimaordner,
                                      const std::string& Sprache, ImportDialoge& dialoge) {
    Importergebnis ergebnis;
    const std::string titel = text_fehler_titel(Sprache);
    std::string text;
    const Quelltext gelesen = quelltext_lesen(f.DateinameBox, text);
    if (gelesen != Quelltext::gelesen) {
        dialoge.meldung(titel, gelesen == Quelltext::zu_gross
                                   ? text_zu_gross(Sprache, f.DateinameBox)
                                   : text_nicht_lesbar(Sprache, f.DateinameBox));
        return ergebnis;
    }

    std::vector<Quellstunde> zeilen;
    bool direkt = false;
    if (f.Format == Quellformat::spalten) {
        if (!spalten_lesen(f, text, Sprache, dialoge, zeilen, direkt)) {
            return ergebnis;
        }
    } else {
        Quelldaten daten;
        if (!quelle_lesen(f.Format, text, daten, ergebnis.grund)) {
            dialoge.meldung(titel, ergebnis.grund.zu_wenig
                                       ? text_zu_wenig_daten(Sprache)
                                       : text_fehler_in_zeile(Sprache, ergebnis.grund.zeile));
            return ergebnis;
        }
        double zone = 0;
        bool ok = false;
        StringToReal(f.Zeitzone, zone, ok, f.Dezimalzeichen);
        zeilen = stationsreihenfolge(daten, f.GMT == 0 ? zone : -zone);
    }

    const std::string name = dialoge.eingabe(text_speichern_titel(Sprache),
                                             text_speichern_frage(Sprache, f.Standortname, f.Land),
                                             standardname(f.DateinameBox));
    if (name.empty()) {
        ergebnis.ausgang = Importausgang::abgebrochen;
        return ergebnis;
    }
    const std::string ziel = klimaordner + "/" + name + ".met";
    std::error_code fehler;
    if (std::filesystem::exists(ziel, fehler) &&
        !dialoge.frage_ja_nein(text_ueberschreiben(Sprache))) {
        ergebnis.ausgang = Importausgang::abgebrochen;
        return ergebnis;
    }
    const std::string station = stationsdatei(f, zeilen, direkt);
    try {
        datei_ersetzen(ziel, station);
    } catch (const Laufzeitfehler&) {
        dialoge.meldung(titel, text_nicht_schreibbar(Sprache, ziel));
        return ergebnis;
    }
    dialoge.meldung("", text_beendet(Sprache));
    ergebnis.ausgang = Importausgang::geschrieben;
    ergebnis.pfad = ziel;
    return ergebnis;
}
