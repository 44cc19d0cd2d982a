// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Bau.h"
#include "ui/ChartWidget.h"
#include "ui/Ebenen.h"

#include <QFrame>

using namespace bau;

namespace {

// A small colour key beside its text; `zeile` is the text's row in the plane's caption table.
void legende(QWidget* e, int x, int y, QColor farbe, const char* text, int zeile) {
    auto* f = new QFrame(e);
    f->setAutoFillBackground(true);
    QPalette pal = f->palette();
    pal.setColor(QPalette::Window, farbe);
    f->setPalette(pal);
    f->setGeometry(x, y + 3, 10, 10);
    bau::text(e, nullptr, text, x + 14, y)->setProperty("zeile", zeile);
}

} // namespace

UebersichtDiagramme uebersicht_bauen(QWidget& e, Ebenenbau& bau) {
    UebersichtDiagramme d;
    // The charts at the sizes their coordinates were drawn for: months 330 x 140, the year 90.
    d.Monatsbilanz = new ChartWidget(330, 140, &e);
    d.Monatsbilanz->move(6, 16);
    d.JahrBilanz = new ChartWidget(90, 140, &e);
    d.JahrBilanz->move(342, 16);
    legende(&e, 40, 158, QColor(255, 0, 0), "Heizwärmebedarf", 0);
    legende(&e, 200, 158, QColor(0, 0, 255), "Kühlbedarf", 1);
    d.UeberGrafik = new ChartWidget(330, 140, &e);
    d.UeberGrafik->move(6, 180);
    d.UeberJahr = new ChartWidget(90, 140, &e);
    d.UeberJahr->move(342, 180);
    legende(&e, 40, 322, QColor(255, 0, 0), "Heizstunden", 2);
    legende(&e, 150, 322, QColor(255, 255, 0), "Nullenergiestunden", 3);
    legende(&e, 290, 322, QColor(0, 0, 255), "Kühlstunden", 4);
    d.Temperaturen = new ChartWidget(426, 150, &e);
    d.Temperaturen->move(6, 344);
    for (ChartWidget* c :
         {d.Monatsbilanz, d.JahrBilanz, d.UeberGrafik, d.UeberJahr, d.Temperaturen}) {
        c->flaeche().Cls();
        bau.diagramme.push_back(c);
    }
    return d;
}
