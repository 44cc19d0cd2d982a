// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Bau.h"
#include "ui/ChartWidget.h"
#include "ui/Ebenen.h"

using namespace bau;

SankeyDiagramme sankey_bauen(QWidget& e, Ebenenbau& bau) {
    SankeyDiagramme d;
    // Both diagrams 436 wide, so that the labels anchored at x 415 and the list at x 356 stand
    // inside; their scale follows from the height.
    constexpr int BREITE = 436;
    constexpr int HOEHE = 228;
    text(&e, "Label1", "Energieflussdiagramm (Sankey) für das Heizen", 8, 4)
        ->setProperty("zeile", 0);
    d.Sankey = new ChartWidget(BREITE, HOEHE, &e);
    d.Sankey->move(6, 20);
    text(&e, "Label2", "Energieflussdiagramm (Sankey) für das Kühlen", 8, 254)
        ->setProperty("zeile", 1);
    d.Sankey_Kuehlen = new ChartWidget(BREITE, HOEHE, &e);
    d.Sankey_Kuehlen->move(6, 270);
    for (ChartWidget* c : {d.Sankey, d.Sankey_Kuehlen}) {
        c->flaeche().Cls();
        bau.diagramme.push_back(c);
    }
    return d;
}
