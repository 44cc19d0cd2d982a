// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/Auffrischtabelle.h"

#include "charts/A_Heizen.h"
#include "charts/A_Kuehlen.h"
#include "charts/A_Sankey.h"
#include "charts/A_Uebersicht.h"
#include "charts/Energiebilder.h"
#include "charts/Geometriebilder.h"
#include "project/c_glob.h"

#include <utility>

void auffrischen(const Projekt& p, Ergebnisebenen& x, const std::function<bool(Ebene)>& sichtbar,
                 const Diagrammeinstellung& e) {
    // Visibility is asked before each row, not once per plane.
    const auto zeile = [&](Ebene ebene, bool gebaut) { return sichtbar(ebene) && gebaut; };
    // The energy refresh runs before the table and draws its pictograms and monthly chart.
    if (zeile(Ebene::Energie, x.energie)) {
        Energietraeger_zeichnen(p, x.energie->Picture2, x.energie->Picture3, e);
        Monatsverbrauch_zeichnen(p, x.energie->Monatsuebersicht, e);
    }
    if (zeile(Ebene::Geometrie, x.geometrie)) {
        AV_diagramm(p, x.geometrie->AV_Picture, e.thema);
    }
    if (zeile(Ebene::Uebersicht, x.uebersicht)) {
        MonatsbilanzZeichnen(p, *x.uebersicht, e);
    }
    if (zeile(Ebene::Uebersicht, x.uebersicht)) {
        UeberGrafikZeichnen(p, *x.uebersicht, e);
    }
    if (zeile(Ebene::Uebersicht, x.uebersicht)) {
        TemperaturDiagrammZeichnen(p, x.uebersicht->Temperaturen, e);
    }
    if (zeile(Ebene::Sankey, x.sankey)) {
        SankeyHeizen(p, *x.sankey, e);
    }
    if (zeile(Ebene::Sankey, x.sankey)) {
        SankeyKuehlen(p, *x.sankey, e);
    }
    if (zeile(Ebene::Heizen, x.heizen)) {
        x.heizen->Felder = HeizFelderAusfuellen(p, e.dezimal);
    }
    if (zeile(Ebene::Heizen, x.heizen)) {
        FassadenbalkenZeichnen(p, *x.heizen, e);
    }
    if (zeile(Ebene::Heizen, x.heizen)) {
        JahrBilanzZeichnen(p, *x.heizen, e);
    }
    if (zeile(Ebene::Heizen, x.heizen)) {
        HeizbilanzZeichnen(p, *x.heizen, e);
    }
    if (zeile(Ebene::Heizen, x.heizen)) {
        NutzungsgradZeichnen(p, *x.heizen, e);
    }
    if (zeile(Ebene::Kuehlen, x.kuehlen)) {
        StundenProTagZeichnen(p, *x.kuehlen, e);
    }
    if (zeile(Ebene::Kuehlen, x.kuehlen)) {
        KuehlBedarfZeichnen(p, *x.kuehlen, e);
    }
    if (zeile(Ebene::Kuehlen, x.kuehlen)) {
        KuehlGradStundenZeichnen(p, *x.kuehlen, e);
    }
    if (zeile(Ebene::KlimaGebaeude, static_cast<bool>(x.klima_ausfuellen))) {
        x.klima_ausfuellen(p);
    }
}

Auffrischtabelle::Auffrischtabelle(Projekt& p, Ergebnisebenen ebenen,
                                   std::function<bool(Ebene)> sichtbar,
                                   Diagrammeinstellung einstellung)
    : ebenen_(std::move(ebenen)), sichtbar_(std::move(sichtbar)),
      einstellung_(std::move(einstellung)), beobachtung_(p.beobachter, *this) {}

void Auffrischtabelle::geometrie_berechnet(Projekt&) {}

void Auffrischtabelle::alles_berechnet(Projekt& p) {
    auffrischen(p, ebenen_, sichtbar_, einstellung_);
}
