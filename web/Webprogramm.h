// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The program for the browser page on the record `p`: the input planes and their
// controls by design name, the driver with its refresh table drawing onto canvas surfaces, the
// project commands and the fault of the last action. A user's input goes to the model only,
// which fires its handler; the page then reads the state of every control at once (zustand),
// as the desktop brings its bound widgets up to date after each action.

#include "calc/c_mod.h"
#include "charts/Auffrischtabelle.h"
#include "charts/Flaechen.h"
#include "charts/Neuzeichnen.h"
#include "climate/Bitmap.h"
#include "climate/ebene/E_Zoom_Klima.h"
#include "climate/ebene/stationskarten.h"
#include "planes/Eingabeflaechen.h"
#include "project/Dialogs.h"
#include "project/lebenszyklus/FILEIO.h"
#include "web/CanvasFlaeche.h"
#include "web/Steuerelemente.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class Rechenlauf;

// The page's answers to the project's dialogs: a message goes to `nachricht`, which returns
// the button chosen; the open and save dialogs answer with the path the page put there before
// the command, once.
class Seitendialoge : public Dialogs {
public:
    std::function<Antwort(const std::string& text, const std::string& titel, Knoepfe k)> frage;
    std::optional<std::string> oeffnen_pfad;
    std::optional<std::string> speichern_pfad;
    std::string titel;

    Antwort nachricht(const std::string& text, const std::string& t, Symbol, Knoepfe knoepfe,
                      bool) override;
    std::optional<std::string> oeffnen_dialog(const std::string&, int, const std::string&) override;
    std::optional<std::string> speichern_dialog(const std::string&, int,
                                                const std::string&) override;
    void titel_setzen(const std::string& t) override { titel = t; }
};

class Webprogramm {
public:
    // The input planes by the order of their buttons, and the output planes.
    enum Eingabe { Geometrie, Fenster, Daemmung, Gebaeude, Klima, Energie };
    enum Ausgabe { Uebersicht, KlimaGebaeude, Heizen, Kuehlen, Sankey };

    // The program on the record `projekt` in `sprache` ("d" or "e") on the station folder
    // `klima`; `breite` and `hoehe` measure the texts of the charts. Its charts are made next,
    // then it starts.
    Webprogramm(Projekt& projekt, const std::string& sprache, const std::string& klima,
                CanvasFlaeche::Textmass breite, CanvasFlaeche::Textmass hoehe,
                Seitendialoge& dialoge);
    ~Webprogramm();
    // A chart of the page by its design name ("Monatsbilanz"), its size and background.
    void flaeche_anlegen(const std::string& feld, int breite, int hoehe, Rgb hintergrund);
    // The design names of the charts the page must create before it starts.
    static const std::vector<const char*> DIAGRAMME;
    // The new project built up and calculated, as at the desktop's start. Needs every chart.
    bool starten();
    Webprogramm(const Webprogramm&) = delete;
    Webprogramm& operator=(const Webprogramm&) = delete;

    // The user's actions on the control `name` (its design name as in steuerelemente()). Each
    // returns false for a fault, whose text is then in fehler().
    bool pfeil(const std::string& name, int richtung);
    bool seite(const std::string& name, int richtung);
    bool setzen(const std::string& name, int wert);
    // A plane's own buttons and fields: "Command_HR(i)", "Command1".."Command3",
    // "Label_Auswahl(i)", "Frame_Auswahl".
    bool klicken(const std::string& name);
    // The climate plane: "Option" with the scope 1..3, "Klimaregionwahl" or "Klimaregionwahl2"
    // with the row chosen, "plz" with the post code typed and searched, "HScroll1" with the
    // world map's scroll value in twips.
    bool klima(const std::string& was, int wert, const std::string& text);
    // The German map: a press picks the region under the pixel (x, y) of the picture shown, the
    // hover names it (empty outside the regions).
    bool karte_klick(int x, int y);
    std::string karte_hover(int x, int y);
    // The Europe or the world map of the scope shown, at the pixel (x, y) of its picture: the
    // hover names the station under the pointer (or nothing), a release on a dot picks it.
    std::string stationskarte_hover(int x, int y);
    bool stationskarte_klick(int x, int y);
    // The enlarged world map, opened from the world scope: its own choice by a dot or a row of
    // its list, handed to the plane when it closes with `ok`.
    void zoom_klima_oeffnen();
    std::string zoom_klima_hover(int x, int y);
    void zoom_klima_klick(int x, int y);
    void zoom_klima_waehlen(int zeile);
    bool zoom_klima_schliessen(bool ok);
    // A month button of the overview or of the enlarged temperature window, 1..12.
    void monat(int m);
    // The enlarged temperature window opened or closed; open, its chart ZOOM_FLAECHE, which the
    // page made, draws the overview's month.
    static constexpr const char* ZOOM_FLAECHE = "A_Zoom.Temperaturen";
    void zoom_zeigen(bool offen);
    // A plane's button: the plane comes up, its charts are drawn.
    bool eingabe_zeigen(int ebene);
    bool ausgabe_zeigen(int ebene);
    // The whole year calculated anew, as a change of an input does.
    bool berechnen();
    // The project commands of the menu; a path the dialogs will answer with is set before.
    bool neu();
    bool oeffnen(const std::string& pfad);
    // Saves under the current name (`unter` false) or under `pfad`; the path written, or empty.
    std::string speichern(bool unter, const std::string& pfad);

    // Every control's and label's state as JSON: {"name": {...}, ...}, with the chart versions,
    // the validity of the results and the title.
    std::string zustand() const;
    // The same, but of each control, label, field and chart and of each value at the top only
    // what differs from the last call (at the first call everything): the page's state after an
    // action costs no more than the action changed.
    std::string aenderungen();
    // The tooltip of the chart `feld` at (x, y), empty where none shows.
    std::string tooltip(const std::string& feld, double x, double y) const;
    // The results as the command line's calc writes them.
    std::string ergebnis() const;
    // The report as Rich Text, and the temperature table as text.
    std::string report(const std::function<double(const std::string&)>& times_breite) const;
    std::string temperaturen() const;

    const std::string& fehler() const { return fehler_; }
    bool gueltig() const { return gueltig_; }
    CanvasFlaeche* flaeche(const std::string& feld);
    const std::map<std::string, std::unique_ptr<CanvasFlaeche>>& flaechen() const {
        return flaechen_;
    }
    Projekt& p;
    Eingabeflaechen& ebenen() { return *ebenen_; }

private:
    // One piece of the state: a value at the top, or a member of "steuer", "felder" or
    // "diagramme", with its JSON.
    enum class Abschnitt { Oben, Steuer, Felder, Diagramme };
    struct Zustandsteil {
        Abschnitt abschnitt;
        std::string name;
        std::string json;
    };
    std::vector<Zustandsteil> zustandsteile() const;
    static std::string als_json(const std::vector<Zustandsteil>& teile);
    // The JSON of each piece as the page last received it.
    std::map<std::string, std::string> gesendet_;

    bool ausfuehren(const std::function<void()>& aktion);
    // An arrow or page step of the scroll field `name`.
    bool schieben(const std::string& name, void (ScrollField::*schritt)(int), int richtung);
    void nach_aktion();
    Ergebnisebenen ergebnisebenen();
    void zeichnen(Flaeche f);
    // The charts of the planes shown, from the record as it stands.
    void gezeigte_zeichnen();

    Seitendialoge& dialoge_;
    Diagrammeinstellung einstellung_;
    std::unique_ptr<Eingabeflaechen> ebenen_;
    std::unique_ptr<FILEIO> io_;
    std::map<std::string, Steuerelement> steuer_;
    std::map<std::string, std::unique_ptr<CanvasFlaeche>> flaechen_;
    HeizFelder heiz_felder_;
    std::unique_ptr<GeometrieFlaechen> geometrie_;
    std::unique_ptr<UebersichtFlaechen> uebersicht_;
    std::unique_ptr<HeizenFlaechen> heizen_;
    std::unique_ptr<KuehlenFlaechen> kuehlen_;
    std::unique_ptr<SankeyFlaechen> sankey_;
    std::unique_ptr<EnergieFlaechen> energie_;
    std::unique_ptr<Rechenlauf> rechenlauf_;
    std::unique_ptr<Auffrischtabelle> auffrischen_;
    CanvasFlaeche::Textmass breite_, hoehe_;
    int eingabe_ = Geometrie;
    int ausgabe_ = Uebersicht;
    bool gueltig_ = true;
    bool zoom_offen_ = false;
    std::string fehler_;
    void zoom_zeichnen();
    // The station of a project opened in the world scope brought into view on the world map.
    void weltstation_zeigen();
    // The map picture shown, read again only when the picture changes.
    const Bitmap& karte();
    std::string karte_name_;
    std::unique_ptr<Bitmap> karte_;
    // The colour under (x, y) of the station map shown: a dot's where one is painted, the last
    // on top, else the picture's, read once. -1 outside the picture.
    int32_t stationsfarbe(int x, int y);
    int32_t stationsfarbe(bool europa, const std::vector<Kartenpunkt>& punkte, double faktor, int x,
                          int y);
    std::vector<Kartenpunkt> zoom_klima_punkte() const;
    std::optional<E_Zoom_Klima> zoom_klima_;
    std::map<std::string, Bitmap> stationsbilder_;
};
