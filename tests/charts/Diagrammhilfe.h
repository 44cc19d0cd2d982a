// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Recording surfaces for every plane that holds charts, and a recalculated project with the
// texts of a language, for the chart tests.

#include "charts/ChartTheme.h"
#include "charts/Flaechen.h"
#include "charts/RecordingSurface.h"
#include "tests/support/Testprojekt.h"

#include <initializer_list>
#include <memory>
#include <string>

// Surfaces of the original sizes: month charts 330 x 140, year charts 90 x 140, facade bars
// 10 x 52, the Sankey surfaces 420 x 300.
struct Uebersicht {
    RecordingSurface Temperaturen{560, 250}, Monatsbilanz{330, 140}, JahrBilanz{90, 140},
        UeberGrafik{330, 140}, UeberJahr{90, 140};
    UebersichtFlaechen f{Temperaturen, Monatsbilanz, JahrBilanz, UeberGrafik, UeberJahr};
};

struct Heizen {
    RecordingSurface Heizbilanz{330, 140}, JahrBilanz{90, 140}, NutzungsgradMonat{330, 140},
        NutzungsgradJahr{90, 140};
    RecordingSurface Gewinne_N{10, 52}, Verluste_N{10, 52}, Gewinne_S{10, 52}, Verluste_S{10, 52},
        Gewinne_O{10, 52}, Verluste_O{10, 52}, Gewinne_W{10, 52}, Verluste_W{10, 52};
    HeizFelder Felder;
    HeizenFlaechen f{Heizbilanz, JahrBilanz, NutzungsgradMonat, NutzungsgradJahr,
                     Gewinne_N,  Verluste_N, Gewinne_S,         Verluste_S,
                     Gewinne_O,  Verluste_O, Gewinne_W,         Verluste_W,
                     Felder};
};

struct Kuehlen {
    RecordingSurface StundenProTagMonat{330, 130}, StundenProTagJahr{90, 130},
        KuehlbedarfMonat{330, 130}, KuehlbedarfJahr{90, 130}, KuehlGradStundenMonat{330, 130},
        KuehlGradStundenJahr{90, 130};
    KuehlenFlaechen f{StundenProTagMonat, StundenProTagJahr,     KuehlbedarfMonat,
                      KuehlbedarfJahr,    KuehlGradStundenMonat, KuehlGradStundenJahr};
};

struct Sankey {
    RecordingSurface Sankey_{420, 300}, Sankey_Kuehlen{420, 300};
    SankeyFlaechen f{Sankey_, Sankey_Kuehlen};
};

// The new project on the synthetic climate, recalculated, with the shared texts and month
// names of `sprache` ("d" or "e").
std::unique_ptr<Projekt> diagrammprojekt(const TempOrdner& ordner, const std::string& sprache);

// The settings of the charts in `sprache` with a decimal point.
Diagrammeinstellung einstellung(const std::string& sprache);

// The logged filled boxes of a surface in one colour.
std::vector<RecordingSurface::Primitive> boxen(const RecordingSurface& s, Rgb farbe);

// The same project with a low overheating limit and a large south window, so that it needs
// cooling in the summer months.
std::unique_ptr<Projekt> kuehlprojekt(const TempOrdner& ordner, const std::string& sprache);

// The number of pixels of `farbe` in column x from row y_von to y_bis.
int pixel_in_spalte(const RecordingSurface& s, int x, int y_von, int y_bis, Rgb farbe);

// Expects each of `texte` printed exactly once on `s`.
void einmal_gedruckt(const RecordingSurface& s, std::initializer_list<std::string> texte);
