// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The four input planes whose controls are bound to their headless planes, and the overview. Each
// builder puts the plane's controls on `ebene` at the fixed places of the design, in German; the
// English captions are laid over them afterwards, and only then are the controls bound, so that the
// models' texts win over the design's.

#include "charts/Flaechen.h"

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class QFrame;
class QLabel;
class QScrollBar;
class Stationskarte;
class ZoomKlimaFenster;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTimer;
class QComboBox;
class Dialogs;
struct E_Klima;
class QWidget;
class Tooltiprahmen;
struct Diagrammeinstellung;
struct Projekt;
class Bindungen;
class ChartWidget;
class E_Daemmung;
class E_Energie;
class E_Fenster;
class E_Gebaeude;
class E_Geometrie;

// What a builder leaves for the binding step and for the main window.
struct Ebenenbau {
    std::vector<std::function<void(Bindungen&)>> binden; // run after the translation
    std::vector<ChartWidget*> diagramme;                 // charts that show results
};

// The geometry plane: sizes, roof, orientation, the house picture with its labels, the A/V
// chart and the orientation sketch. `grafiken` is the folder of the pictures.
struct GeometrieDiagramme {
    ChartWidget* AV_Picture = nullptr;
    ChartWidget* Picture1 = nullptr;
};
GeometrieDiagramme geometrie_bauen(QWidget& ebene, E_Geometrie& g, const std::string& grafiken,
                                   Ebenenbau& bau);
// The result planes are built on the record and the chart settings they show; both must outlive
// the plane, as the tooltips and the month buttons read them.

// The overview plane: monthly and yearly demand, the hours of the three classes and the
// temperature course of the chosen month, with its twelve month buttons and the marker
// AktiverMonat lying on the chosen one. The month starts at 7.
struct UebersichtDiagramme {
    ChartWidget *Monatsbilanz = nullptr, *JahrBilanz = nullptr, *UeberGrafik = nullptr,
                *UeberJahr = nullptr, *Temperaturen = nullptr;
    std::array<QPushButton*, 12> Monatsbutton{}; // index 0 is January
    QFrame* AktiverMonat = nullptr;
    QLabel* AktiverMonat1 = nullptr;
    Tooltiprahmen* tooltip = nullptr;
};
UebersichtDiagramme uebersicht_bauen(QWidget& ebene, Projekt& p, const Diagrammeinstellung& e,
                                     Ebenenbau& bau);
// Monatsbutton_Click: the month m (1..12) chosen, the marker laid on its button and the
// temperature chart drawn anew.
void monat_waehlen(UebersichtDiagramme& d, Projekt& p, const Diagrammeinstellung& e, int m);

// The heating plane: month and year balance, utilisation, the facade bars and the ten result
// fields (qh_anz ... qtrs_anz, in the order of HeizFelder).
struct HeizenDiagramme {
    ChartWidget *Heizbilanz = nullptr, *JahrBilanz = nullptr, *NutzungsgradMonat = nullptr,
                *NutzungsgradJahr = nullptr;
    ChartWidget *Gewinne_N = nullptr, *Verluste_N = nullptr, *Gewinne_S = nullptr,
                *Verluste_S = nullptr, *Gewinne_O = nullptr, *Verluste_O = nullptr,
                *Gewinne_W = nullptr, *Verluste_W = nullptr;
    QLabel *qsols_anz = nullptr, *qis_anz = nullptr, *qh_s_anz = nullptr, *qinfs_anz = nullptr,
           *qtrs_anz = nullptr;
    QLabel *qh_anz = nullptr, *qsol_anz = nullptr, *qi_anz = nullptr, *qinf_anz = nullptr,
           *qtr_anz = nullptr;
    Tooltiprahmen* tooltip = nullptr;
};
HeizenDiagramme heizen_bauen(QWidget& ebene, const Projekt& p, const Diagrammeinstellung& e,
                             Ebenenbau& bau);
// The surfaces of the plane as the chart routines take them, writing the fields to `felder`.
HeizenFlaechen heizen_flaechen(const HeizenDiagramme& d, HeizFelder& felder);
// Shows the result fields as HeizFelderAusfuellen wrote them.
void heizfelder_zeigen(const HeizenDiagramme& d, const HeizFelder& f);

// The cooling plane: hours of overheating per day, cooling demand and cooling degree hours.
struct KuehlenDiagramme {
    ChartWidget *StundenProTagMonat = nullptr, *StundenProTagJahr = nullptr,
                *KuehlbedarfMonat = nullptr, *KuehlbedarfJahr = nullptr,
                *KuehlGradStundenMonat = nullptr, *KuehlGradStundenJahr = nullptr;
    Tooltiprahmen* tooltip = nullptr;
};
KuehlenDiagramme kuehlen_bauen(QWidget& ebene, const Projekt& p, const Diagrammeinstellung& e,
                               Ebenenbau& bau);

// The energy flow plane: the heating and the cooling diagram under their captions.
struct SankeyDiagramme {
    ChartWidget *Sankey = nullptr, *Sankey_Kuehlen = nullptr;
};
SankeyDiagramme sankey_bauen(QWidget& ebene, Ebenenbau& bau);

// The climate and building plane: labels only, filled from the record by klima_ausfuellen.
struct KlimaFelder {
    QLabel *anz_klimaregion = nullptr, *anz_MaxJahrTemp = nullptr, *anz_MaxMonatTemp = nullptr,
           *anz_MaxMonatName = nullptr, *anz_MittelJahrTemp = nullptr, *anz_MinMonatTemp = nullptr,
           *anz_MinMonatName = nullptr, *anz_MinJahrTemp = nullptr, *anz_Heizgradtage = nullptr;
    QLabel *anz_Umittel = nullptr, *anz_Tspez = nullptr, *anz_Vspez = nullptr,
           *anz_TVspez = nullptr, *anz_tau = nullptr, *anz_Heizlast = nullptr,
           *anz_heizlast_spez = nullptr, *anz_kuehllast = nullptr, *anz_kuehllast_spez = nullptr,
           *anz_Heizgrenztemp = nullptr, *anz_Heiztage = nullptr;
};
KlimaFelder klima_bauen(QWidget& ebene);
// Writes every label from p.Klimainfo and the loads of the record, `dez` the decimal mark.
void klima_ausfuellen(const KlimaFelder& f, const Projekt& p, char dez);
// The energy plane: the three choices with their buttons and the list panel Frame_Auswahl, the
// end and primary energy fields with their captions, the two pictograms and the monthly chart
// with its tooltip. The record and the chart settings must outlive the plane.
struct EnergieDiagramme {
    ChartWidget *Monatsuebersicht = nullptr, *Picture2 = nullptr, *Picture3 = nullptr;
    QFrame* Frame_Auswahl = nullptr;
    std::array<QLabel*, 9> Label_Auswahl{}; // the list's entries 1..9 at index 0..8
    Tooltiprahmen* tooltip = nullptr;
};
EnergieDiagramme energie_bauen(QWidget& ebene, E_Energie& g, const Projekt& p,
                               const Diagrammeinstellung& e, Ebenenbau& bau);
// The climate plane: the three scope options; for Germany the region map, whose press picks the
// region by colour, the region list and the post code field with its key filter and Enter; for
// Europe and the world the station list. `grafiken` is the folder of the map pictures.
struct KlimawahlFelder {
    std::array<QRadioButton*, 3> Option{}; // Germany, Europe, World
    QLabel* Picture1 = nullptr;            // the German map
    QComboBox *Klimaregionwahl = nullptr, *Klimaregionwahl2 = nullptr;
    QLineEdit* plz = nullptr;
    QPushButton* PLZsuchen = nullptr;
    QLabel* Label2 = nullptr;                    // the hover label over the map
    QTimer *Timer1 = nullptr, *Timer2 = nullptr; // shows it, then hides it
    // The Europe and the world map with their dots; the world map scrolls inside picture3f by
    // HScroll1 (twips), and Image1 opens the enlarged world map E_Zoom_Klima.
    Stationskarte *Picture2 = nullptr, *Picture3 = nullptr;
    QFrame* picture3f = nullptr;
    QScrollBar* HScroll1 = nullptr;
    QLabel* Image1 = nullptr;
    ZoomKlimaFenster* E_Zoom_Klima = nullptr;
    // The hover label of both station maps, with the timers that show and hide it.
    QLabel* MausRegion = nullptr;
    QTimer *MausTimer1 = nullptr, *MausTimer2 = nullptr;
    // The climate's year mean and month extremes, and the captions of the extremes.
    QLabel *anz_MittelJahrTemp = nullptr, *anz_MinMonatTemp = nullptr, *anz_MaxMonatTemp = nullptr,
           *anz_MinMonatText = nullptr, *anz_MaxMonatText = nullptr;
};
KlimawahlFelder klimawahl_bauen(QWidget& ebene, E_Klima& k, Projekt& p, Dialogs& d,
                                const std::string& grafiken, Ebenenbau& bau);
void fenster_bauen(QWidget& ebene, E_Fenster& f, Ebenenbau& bau);
void daemmung_bauen(QWidget& ebene, E_Daemmung& d, Ebenenbau& bau);
void gebaeude_bauen(QWidget& ebene, E_Gebaeude& g, Ebenenbau& bau);
