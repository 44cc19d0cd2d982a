// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/shell/Rechenlauf.h"
#include "charts/Auffrischtabelle.h"
#include "charts/Flaechen.h"
#include "language/c_Sprache.h"
#include "planes/Eingabeflaechen.h"
#include "project/lebenszyklus/FILEIO.h"
#include "ui/Bindungen.h"
#include "ui/Ebenen.h"
#include "ui/Hauptfenster.h"
#include "ui/Hilfefenster.h"
#include "ui/KlimaimportFenster.h"
#include "ui/QtDialogs.h"
#include "ui/QtUebersetzung.h"
#include "ui/StartFenster.h"
#include "ui/ZoomFenster.h"

#include <QStringList>

#include <memory>
#include <string>

struct Projekt;

// The program's arguments, without its own name, as the one command line text the start reads:
// joined by blanks, each as the system gave it.
std::string befehlszeile_aus(const QStringList& argumente);

// The desktop program on the record `p`: the language of the run, the planes and their
// widgets, the project commands, the start window and the help. Faults of the calculation are
// shown and leave the results marked as not valid until the next change calculates anew.
class Desktopprogramm {
public:
    // `dialoge` answers the project's dialogs; without it Qt's message boxes and file dialogs
    // do. `sprachwahl` stands for the language window of a first start when given.
    explicit Desktopprogramm(Projekt& projekt, Dialogs* dialoge = nullptr,
                             Sprachwahl sprachwahl = nullptr);
    ~Desktopprogramm();
    Desktopprogramm(const Desktopprogramm&) = delete;
    Desktopprogramm& operator=(const Desktopprogramm&) = delete;

    // The start with the program's command line ("d", "e", a project path, "|" and a folder):
    // the language, the windows, and the splash with Timer1, or at once for "d" and "e".
    void starten(const std::string& befehlszeile);
    // The handler of Timer1: the new project built up, the splash hidden, the main window shown.
    void Timer1_Timer();

    Projekt& p;
    // The folder of the station files and of the language file; the delivered klima/ unless
    // set before the start.
    std::string klimaordner;
    // The user's own folders of an installed program (settings, imported stations), empty for
    // a run from the build; and the first folder of the file dialogs.
    std::string einstellungen;
    std::string eigene_stationen;
    std::string dokumente;
    std::unique_ptr<Eingabeflaechen> ebenen;
    std::unique_ptr<FILEIO> io;
    std::unique_ptr<Bindungen> bindungen;
    std::unique_ptr<Hauptfenster> haupt;
    std::unique_ptr<StartFenster> start;
    std::unique_ptr<Hilfefenster> hilfe;
    std::unique_ptr<Sprachmenue> sprachmenue;
    GeometrieDiagramme geometrie_diagramme;
    UebersichtDiagramme uebersicht_diagramme;
    HeizenDiagramme heizen_diagramme;
    KuehlenDiagramme kuehlen_diagramme;
    SankeyDiagramme sankey_diagramme;
    KlimaFelder klima_felder;
    EnergieDiagramme energie_diagramme;
    KlimawahlFelder klimawahl_felder;
    // The enlarged temperature window, made by the first click on the overview's chart.
    std::unique_ptr<ZoomFenster> zoom;
    // The climate import window, made anew by each click on its menu entry and shown modal.
    std::unique_ptr<KlimaimportFenster> klimaimport;
    // Answers the import's messages and questions; Qt's boxes unless set otherwise.
    std::unique_ptr<ImportDialoge> import_dialoge;
    // How many rows of the caption tables found no control at the English start.
    int unuebersetzt = 0;
    // The text of the last fault reported, empty while the results are valid.
    std::string fehler;

    Dialogs& dialoge() { return *dialoge_; }

private:
    void fenster_bauen();
    // The chart surfaces of the built planes, as the refresh routines take them.
    Ergebnisebenen ergebnisebenen();
    void fehler_zeigen(const std::string& text);
    // Whether the results stand after a user action: not after a fault, nor after a run of the
    // driver that a fault stopped, nor while a project read in part holds the load guard; again
    // after a run that reached its end; otherwise as they stood.
    bool ergebnisse_gueltig(bool fehlerfrei);
    void nach_aktion();
    // The help of the language of the run at `anker`, or at its start page if empty.
    void hilfe_zeigen(const std::string& anker);
    void ergebnisse_bauen();
    // The result plane that came up: its fields and its charts from the record.
    void ausgabe_auffrischen();
    void zoom_zeigen();
    void klimaimport_zeigen();

    QtDialogs qt_dialoge_;
    std::unique_ptr<QTranslator> qt_texte_;
    Dialogs* dialoge_;
    Sprachwahl sprachwahl_;
    std::string befehlszeile_;
    std::unique_ptr<GeometrieFlaechen> geometrie_flaechen_;
    std::unique_ptr<UebersichtFlaechen> uebersicht_flaechen_;
    std::unique_ptr<HeizenFlaechen> heizen_flaechen_;
    std::unique_ptr<KuehlenFlaechen> kuehlen_flaechen_;
    std::unique_ptr<SankeyFlaechen> sankey_flaechen_;
    std::unique_ptr<EnergieFlaechen> energie_flaechen_;
    HeizFelder heiz_felder_;
    std::unique_ptr<Rechenlauf> rechenlauf_;
    std::unique_ptr<Auffrischtabelle> auffrischen_;
    Diagrammeinstellung einstellung_;
    std::vector<ChartWidget*> diagramme_;
};
