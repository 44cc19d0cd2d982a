// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The refresh table of the recalculation driver: after every whole run each chart is redrawn,
// in a fixed order, only while its plane is visible. The core calls it through its observer
// interface and knows nothing of charts; a hidden plane keeps its stale drawing and is painted
// from its repaint events when it comes up.

#include "calc/c_mod.h"
#include "charts/ChartTheme.h"
#include "charts/Flaechen.h"

#include <functional>

struct Projekt;

// The planes the table asks about.
enum class Ebene { Energie, Geometrie, Uebersicht, Sankey, Heizen, Kuehlen, KlimaGebaeude };

// The planes whose charts the table draws. A plane that is not built (null) is skipped as if it
// were hidden.
struct Ergebnisebenen {
    EnergieFlaechen* energie = nullptr;
    GeometrieFlaechen* geometrie = nullptr;
    UebersichtFlaechen* uebersicht = nullptr;
    SankeyFlaechen* sankey = nullptr;
    HeizenFlaechen* heizen = nullptr;
    KuehlenFlaechen* kuehlen = nullptr;
    // Shows the climate and building figures (row 15); may be empty.
    std::function<void(const Projekt&)> klima_ausfuellen;
};

// The charts of the energy plane, which the energy refresh draws while that plane is visible,
// then rows 1 to 15 of the table, on the record as it stands: the visibility is asked anew
// before each row, sixteen times in all.
void auffrischen(const Projekt& p, Ergebnisebenen& ebenen,
                 const std::function<bool(Ebene)>& sichtbar, const Diagrammeinstellung& e);

// The table as an observer of a project's driver runs, from its construction to its end: it
// draws after every whole run, after the observers registered before it (the input planes).
class Auffrischtabelle : public Rechenbeobachter {
public:
    Auffrischtabelle(Projekt& p, Ergebnisebenen ebenen, std::function<bool(Ebene)> sichtbar,
                     Diagrammeinstellung einstellung);
    Auffrischtabelle(const Auffrischtabelle&) = delete;
    Auffrischtabelle& operator=(const Auffrischtabelle&) = delete;

    void geometrie_berechnet(Projekt& p) override;
    void alles_berechnet(Projekt& p) override;

private:
    Ergebnisebenen ebenen_;
    std::function<bool(Ebene)> sichtbar_;
    Diagrammeinstellung einstellung_;
    Beobachtung beobachtung_;
};
