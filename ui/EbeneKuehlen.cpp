// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/ChartTheme.h"
#include "charts/Tooltiptexte.h"
#include "ui/Bau.h"
#include "ui/ChartWidget.h"
#include "ui/Ebenen.h"
#include "ui/Tooltiprahmen.h"

using namespace bau;

namespace {

// A pair of the plane: months 330 x 130 and the year 90 x 130 under their caption; the charts'
// axes stand at row 110, their labels below it.
constexpr int HOEHE = 130;
constexpr int ABSTAND = 150;

} // namespace

KuehlenDiagramme kuehlen_bauen(QWidget& e, const Projekt& p, const Diagrammeinstellung& einst,
                               Ebenenbau& bau) {
    KuehlenDiagramme d;
    const std::array<std::pair<const char*, const char*>, 3> titel{{
        {"Label1", "Durchschnittliche Überwärmung pro Tag in Stunden (ohne Kühlung)"},
        {"Label10", "Kühlbedarf"},
        {"Label2", " Kühlgradstunden"},
    }};
    std::array<ChartWidget*, 6> c{};
    for (int i = 0; i < 3; ++i) {
        const int y = 6 + i * ABSTAND;
        text(&e, titel[static_cast<std::size_t>(i)].first,
             titel[static_cast<std::size_t>(i)].second, 10, y)
            ->setProperty("zeile", i);
        c[static_cast<std::size_t>(2 * i)] = new ChartWidget(330, HOEHE, &e);
        c[static_cast<std::size_t>(2 * i)]->move(6, y + 16);
        c[static_cast<std::size_t>(2 * i + 1)] = new ChartWidget(90, HOEHE, &e);
        c[static_cast<std::size_t>(2 * i + 1)]->move(342, y + 16);
    }
    d.StundenProTagMonat = c[0];
    d.StundenProTagJahr = c[1];
    d.KuehlbedarfMonat = c[2];
    d.KuehlbedarfJahr = c[3];
    d.KuehlGradStundenMonat = c[4];
    d.KuehlGradStundenJahr = c[5];
    for (ChartWidget* w : c) {
        w->flaeche().Cls();
        bau.diagramme.push_back(w);
    }

    d.tooltip = new Tooltiprahmen(e);
    const KuehlenLegende l = kuehlen_legende(einst.Sprache);
    const std::string sprache = einst.Sprache;
    const char dez = einst.dezimal;
    auto monatlich = [](auto text) {
        return [text](double x) {
            const int m = tooltip_monat(x);
            return m == 0 ? std::string() : text(m);
        };
    };
    d.tooltip->beobachten(d.StundenProTagMonat, monatlich([&p, sprache, dez](int m) {
                              return tooltip_StundenProTagMonat(p, m, sprache, dez);
                          }));
    d.tooltip->beobachten(d.StundenProTagJahr, [&p, sprache, dez](double) {
        return tooltip_StundenProTagJahr(p, sprache, dez);
    });
    d.tooltip->beobachten(d.KuehlbedarfMonat, monatlich([&p, l, dez](int m) {
                              return tooltip_KuehlbedarfMonat(p, m, l, dez);
                          }));
    d.tooltip->beobachten(d.KuehlbedarfJahr,
                          [&p, l, dez](double) { return tooltip_KuehlbedarfJahr(p, l, dez); });
    d.tooltip->beobachten(d.KuehlGradStundenMonat, monatlich([&p, l, dez](int m) {
                              return tooltip_KuehlGradStundenMonat(p, m, l, dez);
                          }));
    d.tooltip->beobachten(d.KuehlGradStundenJahr, [&p, l, sprache, dez](double) {
        return tooltip_KuehlGradStundenJahr(p, l, sprache, dez);
    });
    return d;
}
