// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/Neuzeichnen.h"

#include "charts/A_Heizen.h"
#include "charts/A_Kuehlen.h"
#include "charts/A_Sankey.h"
#include "charts/A_Uebersicht.h"
#include "charts/Energiebilder.h"
#include "charts/Geometriebilder.h"

void neu_zeichnen(Flaeche f, const Projekt& p, Ergebnisebenen& x, const Diagrammeinstellung& e) {
    switch (f) {
    case Flaeche::AV_Picture:
        if (x.geometrie) {
            AV_diagramm(p, x.geometrie->AV_Picture, e.thema);
        }
        return;
    case Flaeche::Picture1:
        if (x.geometrie) {
            Lageplan_zeichnen(p, x.geometrie->Picture1, e.thema);
        }
        return;
    case Flaeche::Monatsuebersicht:
        if (x.energie) {
            Monatsverbrauch_zeichnen(p, x.energie->Monatsuebersicht, e);
        }
        return;
    case Flaeche::Picture2:
    case Flaeche::Picture3:
        if (x.energie) {
            Energietraeger_zeichnen(p, x.energie->Picture2, x.energie->Picture3, e);
        }
        return;
    case Flaeche::Temperaturen:
        if (x.uebersicht) {
            TemperaturDiagrammZeichnen(p, x.uebersicht->Temperaturen, e);
        }
        return;
    case Flaeche::Monatsbilanz:
    case Flaeche::JahrBilanz_Uebersicht:
        if (x.uebersicht) {
            MonatsbilanzZeichnen(p, *x.uebersicht, e);
        }
        return;
    case Flaeche::UeberGrafik:
        if (x.uebersicht) {
            UeberGrafikZeichnen(p, *x.uebersicht, e);
        }
        return;
    case Flaeche::Sankey:
        if (x.sankey) {
            SankeyHeizen(p, *x.sankey, e);
        }
        return;
    case Flaeche::Sankey_Kuehlen:
        if (x.sankey) {
            SankeyKuehlen(p, *x.sankey, e);
        }
        return;
    case Flaeche::Heizbilanz:
        if (x.heizen) {
            HeizbilanzZeichnen(p, *x.heizen, e);
        }
        return;
    case Flaeche::JahrBilanz_Heizen:
        if (x.heizen) {
            JahrBilanzZeichnen(p, *x.heizen, e);
        }
        return;
    case Flaeche::NutzungsgradMonat:
    case Flaeche::NutzungsgradJahr:
        if (x.heizen) {
            NutzungsgradZeichnen(p, *x.heizen, e);
        }
        return;
    case Flaeche::Gewinne_N:
    case Flaeche::Verluste_W:
        if (x.heizen) {
            FassadenbalkenZeichnen(p, *x.heizen, e);
        }
        return;
    case Flaeche::StundenProTagMonat:
    case Flaeche::StundenProTagJahr:
        if (x.kuehlen) {
            StundenProTagZeichnen(p, *x.kuehlen, e);
        }
        return;
    case Flaeche::KuehlbedarfMonat:
    case Flaeche::KuehlbedarfJahr:
        if (x.kuehlen) {
            KuehlBedarfZeichnen(p, *x.kuehlen, e);
        }
        return;
    case Flaeche::KuehlGradStundenMonat:
    case Flaeche::KuehlGradStundenJahr:
        if (x.kuehlen) {
            KuehlGradStundenZeichnen(p, *x.kuehlen, e);
        }
        return;
    }
}
