// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/ChartTheme.h"
#include "charts/Tooltiptexte.h"
#include "ui/Bau.h"
#include "ui/ChartWidget.h"
#include "ui/Ebenen.h"
#include "ui/Tooltiprahmen.h"

#include <QFrame>

#include <array>

using namespace bau;

namespace {

// A facade bar: 10 x 52, the bar from row 49 up to row 0 at the largest value.
constexpr int BALKEN_BREITE = 10;
constexpr int BALKEN_HOEHE = 52;

// A result field, right-aligned, at (x, y).
QLabel* feld(QWidget* e, int x, int y) {
    QLabel* l = anzeige(e, x, y, 62);
    l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return l;
}

// A caption with its row in the plane's caption table.
QLabel* zeilentext(QWidget* e, const char* name, const char* t, int x, int y, int zeile) {
    QLabel* l = text(e, name, t, x, y);
    l->setProperty("zeile", zeile);
    return l;
}

} // namespace

HeizenDiagramme heizen_bauen(QWidget& e, const Projekt& p, const Diagrammeinstellung& einst,
                             Ebenenbau& bau) {
    HeizenDiagramme d;
    d.Heizbilanz = new ChartWidget(330, 140, &e);
    d.Heizbilanz->move(6, 10);
    d.JahrBilanz = new ChartWidget(90, 140, &e);
    d.JahrBilanz->move(342, 10);
    const QColor dunkelblau(0, 0, 136), hellblau(102, 102, 255), rot(255, 0, 0),
        orange(255, 128, 0), gelb(255, 255, 0), dunkelgelb(192, 192, 0), braun(200, 99, 0);
    legende(&e, 10, 152, dunkelblau, "Transmissionsverluste", 11)->setObjectName("Label8");
    legende(&e, 150, 152, hellblau, "Lüftungsverluste", 12)->setObjectName("Label7");
    legende(&e, 270, 152, orange, "interne Gewinne", 13)->setObjectName("Label25");
    legende(&e, 10, 168, gelb, "solare Gewinne", 14)->setObjectName("Label21");
    legende(&e, 150, 168, rot, "Heizwärme", 15)->setObjectName("Label9");

    d.NutzungsgradMonat = new ChartWidget(330, 140, &e);
    d.NutzungsgradMonat->move(6, 188);
    d.NutzungsgradJahr = new ChartWidget(90, 140, &e);
    d.NutzungsgradJahr->move(342, 188);
    legende(&e, 10, 330, gelb, "Nutzbare solare Gewinne", 16)->setObjectName("Label13");
    legende(&e, 220, 330, dunkelgelb, "Nicht nutzbare solare Gewinne", 17)
        ->setObjectName("Label11");
    legende(&e, 10, 346, orange, "Nutzbare interne Gewinne", 18)->setObjectName("Label12");
    legende(&e, 220, 346, braun, "Nicht nutzbare interne Gewinne", 19)->setObjectName("Label10");

    // The result fields: a row per term, specific values beside absolute ones.
    constexpr int OBEN = 368;
    constexpr int ZEILE = 20;
    zeilentext(&e, "Label1", "Jahresbilanz:", 6, OBEN + 12, 0);
    text(&e, "Label15", "  spezifisch  in kWh/(m² a)", 136, OBEN, 76, 28)->setProperty("zeile", 6);
    text(&e, "Label16", "  absolut  in kWh/a", 214, OBEN, 64, 28)->setProperty("zeile", 7);
    const std::array<const char*, 5> zeilen{
        " Transmissionsverluste:", " Lüftungsverluste:", " nutzbare interne Gewinne:",
        " nutzbare solare Gewinne:", " Heizwärmebedarf:"};
    const std::array<const char*, 5> namen{"Label4", "Label5", "Label6", "Label3", "Label2"};
    std::array<QLabel*, 5> spezifisch{}, absolut{};
    for (int i = 0; i < 5; ++i) {
        const int y = OBEN + 30 + i * ZEILE;
        zeilentext(&e, namen[static_cast<std::size_t>(i)], zeilen[static_cast<std::size_t>(i)], 6,
                   y, i + 1);
        spezifisch[static_cast<std::size_t>(i)] = feld(&e, 140, y);
        absolut[static_cast<std::size_t>(i)] = feld(&e, 214, y);
    }
    d.qtrs_anz = spezifisch[0];
    d.qinfs_anz = spezifisch[1];
    d.qis_anz = spezifisch[2];
    d.qsols_anz = spezifisch[3];
    d.qh_s_anz = spezifisch[4];
    d.qtr_anz = absolut[0];
    d.qinf_anz = absolut[1];
    d.qi_anz = absolut[2];
    d.qsol_anz = absolut[3];
    d.qh_anz = absolut[4];

    // The facade bars: per facade, north to west, the window gains beside the window losses.
    constexpr int LINKS = 284;
    ChartWidget** balken[4][2] = {{&d.Gewinne_N, &d.Verluste_N},
                                  {&d.Gewinne_S, &d.Verluste_S},
                                  {&d.Gewinne_O, &d.Verluste_O},
                                  {&d.Gewinne_W, &d.Verluste_W}};
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 2; ++j) {
            auto* c = new ChartWidget(BALKEN_BREITE, BALKEN_HOEHE, &e);
            c->move(LINKS + 4 + i * 40 + j * 12, OBEN + 4);
            *balken[i][j] = c;
        }
    }
    // Each facade letter centred under its own pair of bars.
    constexpr std::array<std::pair<const char*, int>, 4> buchstaben{
        {{"N", 10}, {"S", 20}, {"O", 21}, {"W", 22}}};
    for (int i = 0; i < 4; ++i) {
        const auto& [b, zeile] = buchstaben[static_cast<std::size_t>(i)];
        QLabel* l =
            zeilentext(&e, i == 0 ? "Label19" : nullptr, b, LINKS + 4 + i * 40, OBEN + 58, zeile);
        l->setGeometry(LINKS + 4 + i * 40, OBEN + 58, 2 * BALKEN_BREITE + 2, 14);
        l->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    }
    const std::array<std::pair<QColor, const char*>, 2> schluessel{
        {{gelb, "nutzbare solare Gewinne"},
         {dunkelblau, "Transmissionsverluste über die Fenster"}}};
    for (int i = 0; i < 2; ++i) {
        auto* f = new QFrame(&e);
        f->setAutoFillBackground(true);
        QPalette pal = f->palette();
        pal.setColor(QPalette::Window, schluessel[static_cast<std::size_t>(i)].first);
        f->setPalette(pal);
        // The two-line second entry ends inside the plane.
        const int y = OBEN + 74 + i * 26;
        f->setGeometry(LINKS, y + 3, 10, 10);
        text(&e, i == 0 ? "Label17" : "Label18", schluessel[static_cast<std::size_t>(i)].second,
             LINKS + 14, y, 150, 28)
            ->setProperty("zeile", 8 + i);
    }

    for (ChartWidget* c : {d.Heizbilanz, d.JahrBilanz, d.NutzungsgradMonat, d.NutzungsgradJahr,
                           d.Gewinne_N, d.Verluste_N, d.Gewinne_S, d.Verluste_S, d.Gewinne_O,
                           d.Verluste_O, d.Gewinne_W, d.Verluste_W}) {
        c->flaeche().Cls();
        bau.diagramme.push_back(c);
    }

    d.tooltip = new Tooltiprahmen(e);
    const HeizenLegende l = heizen_legende(einst.Sprache);
    const char dez = einst.dezimal;
    d.tooltip->beobachten(d.Heizbilanz, [&p, l, dez](double x) {
        const int m = tooltip_monat(x);
        return m == 0 ? std::string() : tooltip_Heizbilanz(p, m, l, dez);
    });
    d.tooltip->beobachten(d.JahrBilanz,
                          [&p, l, dez](double) { return tooltip_JahrBilanz_Heizen(p, l, dez); });
    d.tooltip->beobachten(d.NutzungsgradMonat, [&p, l, dez](double x) {
        const int m = tooltip_monat(x);
        return m == 0 ? std::string() : tooltip_NutzungsgradMonat(p, m, l, dez);
    });
    d.tooltip->beobachten(d.NutzungsgradJahr,
                          [&p, l, dez](double) { return tooltip_NutzungsgradJahr(p, l, dez); });
    return d;
}

HeizenFlaechen heizen_flaechen(const HeizenDiagramme& d, HeizFelder& felder) {
    return HeizenFlaechen{d.Heizbilanz->flaeche(),
                          d.JahrBilanz->flaeche(),
                          d.NutzungsgradMonat->flaeche(),
                          d.NutzungsgradJahr->flaeche(),
                          d.Gewinne_N->flaeche(),
                          d.Verluste_N->flaeche(),
                          d.Gewinne_S->flaeche(),
                          d.Verluste_S->flaeche(),
                          d.Gewinne_O->flaeche(),
                          d.Verluste_O->flaeche(),
                          d.Gewinne_W->flaeche(),
                          d.Verluste_W->flaeche(),
                          felder};
}

void heizfelder_zeigen(const HeizenDiagramme& d, const HeizFelder& f) {
    const std::array<std::pair<QLabel*, const std::string*>, 10> paare{{
        {d.qsols_anz, &f.qsols_anz},
        {d.qis_anz, &f.qis_anz},
        {d.qh_s_anz, &f.qh_s_anz},
        {d.qinfs_anz, &f.qinfs_anz},
        {d.qtrs_anz, &f.qtrs_anz},
        {d.qh_anz, &f.qh_anz},
        {d.qsol_anz, &f.qsol_anz},
        {d.qi_anz, &f.qi_anz},
        {d.qinf_anz, &f.qinf_anz},
        {d.qtr_anz, &f.qtr_anz},
    }};
    for (const auto& [label, text] : paare) {
        label->setText(QString::fromStdString(*text));
    }
}
