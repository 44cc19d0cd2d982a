// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The four input planes whose controls are bound to their headless planes, and the overview. Each
// builder puts the plane's controls on `ebene` at the fixed places of the design, in German; the
// English captions are laid over them afterwards, and only then are the controls bound, so that the
// models' texts win over the design's.

#include <functional>
#include <string>
#include <vector>

class QWidget;
class Bindungen;
class ChartWidget;
class E_Daemmung;
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
// The overview plane: monthly and yearly demand, the hours of the three classes and the
// temperature course of the chosen month.
struct UebersichtDiagramme {
    ChartWidget *Monatsbilanz = nullptr, *JahrBilanz = nullptr, *UeberGrafik = nullptr,
                *UeberJahr = nullptr, *Temperaturen = nullptr;
};
UebersichtDiagramme uebersicht_bauen(QWidget& ebene, Ebenenbau& bau);
void fenster_bauen(QWidget& ebene, E_Fenster& f, Ebenenbau& bau);
void daemmung_bauen(QWidget& ebene, E_Daemmung& d, Ebenenbau& bau);
void gebaeude_bauen(QWidget& ebene, E_Gebaeude& g, Ebenenbau& bau);
