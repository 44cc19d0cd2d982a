// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/A_Uebersicht.h"
#include "charts/ChartTheme.h"
#include "charts/Tooltiptexte.h"
#include "project/c_glob.h"
#include "ui/Bau.h"
#include "ui/ChartWidget.h"
#include "ui/Ebenen.h"
#include "ui/Massstab.h"
#include "ui/Tooltiprahmen.h"

#include <QFrame>

#include <cmath>

using namespace bau;

namespace {

// The temperature chart with its month buttons above it: 426 wide from x 6.
constexpr int TEMPERATUR_LEFT = 6;
constexpr int TEMPERATUR_BREITE = 426;
constexpr int MONATSKNOPF_TOP = 344;
constexpr int MONATSKNOPF_HOEHE = 20;

} // namespace

UebersichtDiagramme uebersicht_bauen(QWidget& e, Projekt& p, const Diagrammeinstellung& einst,
                                     Ebenenbau& bau) {
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
    // Twelve buttons spread over the chart's width, each reaching one pixel into the next.
    for (int i = 0; i < 12; ++i) {
        const int links = static_cast<int>(std::nearbyint(i / 12.0 * TEMPERATUR_BREITE));
        const int rechts = static_cast<int>(std::nearbyint((i + 1) / 12.0 * TEMPERATUR_BREITE));
        const std::string name = "Monatsbutton(" + std::to_string(i + 1) + ")";
        d.Monatsbutton[static_cast<std::size_t>(i)] =
            knopf(&e, name.c_str(), p.Monat[i + 1].Kurz.c_str(), TEMPERATUR_LEFT + links,
                  MONATSKNOPF_TOP, rechts - links + 1, MONATSKNOPF_HOEHE);
    }
    // The marker: a sunken frame over the chosen button with its caption in bold.
    d.AktiverMonat = new QFrame(&e);
    d.AktiverMonat->setObjectName(QStringLiteral("AktiverMonat"));
    d.AktiverMonat->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    d.AktiverMonat->setAutoFillBackground(true);
    QPalette pal = d.AktiverMonat->palette();
    pal.setColor(QPalette::Window, QColor(255, 255, 255));
    d.AktiverMonat->setPalette(pal);
    d.AktiverMonat1 = new QLabel(d.AktiverMonat);
    d.AktiverMonat1->setObjectName(QStringLiteral("AktiverMonat1"));
    d.AktiverMonat1->setAlignment(Qt::AlignCenter);
    QFont fett = d.AktiverMonat1->font();
    fett.setBold(true);
    d.AktiverMonat1->setFont(fett);

    const int oben = MONATSKNOPF_TOP + MONATSKNOPF_HOEHE + 2;
    d.Temperaturen = new ChartWidget(TEMPERATUR_BREITE, 500 - oben, &e);
    d.Temperaturen->move(TEMPERATUR_LEFT, oben);
    for (ChartWidget* c :
         {d.Monatsbilanz, d.JahrBilanz, d.UeberGrafik, d.UeberJahr, d.Temperaturen}) {
        c->flaeche().Cls();
        bau.diagramme.push_back(c);
    }

    d.tooltip = new Tooltiprahmen(e);
    const UebersichtLegende l = uebersicht_legende(einst.Sprache);
    const Projekt& q = p;
    const char dez = einst.dezimal;
    d.tooltip->beobachten(d.Monatsbilanz, [&q, l, dez](double x) {
        const int m = tooltip_monat(x);
        return m == 0 ? std::string() : tooltip_Monatsbilanz(q, m, l, dez);
    });
    d.tooltip->beobachten(
        d.JahrBilanz, [&q, l, dez](double) { return tooltip_JahrBilanz_Uebersicht(q, l, dez); });
    d.tooltip->beobachten(d.UeberGrafik, [&q, l, dez](double x) {
        const int m = tooltip_monat(x);
        return m == 0 ? std::string() : tooltip_UeberGrafik(q, m, l, dez);
    });
    const std::string sprache = einst.Sprache;
    d.tooltip->beobachten(d.UeberJahr, [&q, l, sprache, dez](double) {
        return tooltip_UeberJahr(q, l, sprache, dez);
    });
    return d;
}

void monat_waehlen(UebersichtDiagramme& d, Projekt& p, const Diagrammeinstellung& e, int m) {
    if (m < 1 || m > 12) {
        return;
    }
    p.Monat_Uebersicht = static_cast<int16_t>(m);
    QPushButton* k = d.Monatsbutton[static_cast<std::size_t>(m - 1)];
    d.AktiverMonat1->setText(k->text());
    const QRect knopf = massstab::entwurf(*k);
    massstab::setzen(*d.AktiverMonat, knopf);
    // The caption field one pixel larger than its frame's inside, as the frame lies on the button.
    massstab::setzen(*d.AktiverMonat1, QRect(0, 0, knopf.width() + 1, knopf.height() + 1));
    d.AktiverMonat->raise();
    d.AktiverMonat->show();
    if (d.Temperaturen->isVisible() && d.Temperaturen->gueltig()) {
        d.Temperaturen->flaeche().Cls();
        TemperaturDiagrammZeichnen(p, d.Temperaturen->flaeche(), e);
        d.Temperaturen->update();
    }
}
