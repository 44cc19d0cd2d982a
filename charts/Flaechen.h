// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The named surfaces of each plane that holds charts. A plane hands its routines this bag of
// references; the routine picks its surfaces by member, where the program looked them up by
// control name.

#include <string>

class Surface;

// The overview plane A_Uebersicht.
struct UebersichtFlaechen {
    Surface& Temperaturen; // temperature course of the chosen month
    Surface& Monatsbilanz; // monthly heat and cooling demand
    Surface& JahrBilanz;   // yearly heat and cooling demand
    Surface& UeberGrafik;  // hours of the three classes per month
    Surface& UeberJahr;    // the same for the year
};

// The ten result fields of the heating plane, as HeizFelderAusfuellen writes them.
struct HeizFelder {
    std::string qsols_anz, qis_anz, qh_s_anz, qinfs_anz, qtrs_anz; // kWh/(m² a)
    std::string qh_anz, qsol_anz, qi_anz, qinf_anz, qtr_anz;       // kWh/a
};

// The heating plane A_Heizen.
struct HeizenFlaechen {
    Surface& Heizbilanz;
    Surface& JahrBilanz;
    Surface& NutzungsgradMonat;
    Surface& NutzungsgradJahr;
    Surface& Gewinne_N;
    Surface& Verluste_N;
    Surface& Gewinne_S;
    Surface& Verluste_S;
    Surface& Gewinne_O;
    Surface& Verluste_O;
    Surface& Gewinne_W;
    Surface& Verluste_W;
    HeizFelder& Felder;
};

// The cooling plane A_Kuehlen.
struct KuehlenFlaechen {
    Surface& StundenProTagMonat;
    Surface& StundenProTagJahr;
    Surface& KuehlbedarfMonat;
    Surface& KuehlbedarfJahr;
    Surface& KuehlGradStundenMonat;
    Surface& KuehlGradStundenJahr;
};

// The energy flow plane A_Sankey.
struct SankeyFlaechen {
    Surface& Sankey;         // heating
    Surface& Sankey_Kuehlen; // cooling; the plane's "Sankey_Kühlen"
};

// The charts of the geometry plane.
struct GeometrieFlaechen {
    Surface& AV_Picture; // the A/V bar
    Surface& Picture1;   // the orientation sketch
};

// The charts of the energy plane.
struct EnergieFlaechen {
    Surface& Monatsuebersicht; // the plane's "Monatsübersicht_Energieträger"
    Surface& Picture2;         // pictogram of the main carrier
    Surface& Picture3;         // pictogram of the auxiliary electricity
};
