// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The scale steps of the charts by their largest value M. Each chart has its own table, and
// the irregularities between them are wanted: the heating plane's year chart has no step 1 and
// ends at 10000, the month balance of the heating plane jumps from 100 to 1000, and so on.

// Year chart of the heating plane, M = qverl_s.
double stufe_jahrbilanz_heizen(double M);
// Month balance of the heating plane; also the month chart of the utilisation factors.
double stufe_heizbilanz(double M);
// Month balance of the overview; also the cooling demand of the months.
double stufe_monatsbilanz(double M);
// Year chart of the overview; also the year of the utilisation factors and of cooling demand.
double stufe_jahrbilanz_uebersicht(double M);
// Overheating hours per day, months and year.
double stufe_stunden_pro_tag(double M);
// Cooling degree hours of the months.
double stufe_kuehlgradstunden_monat(double M);
// Cooling degree hours of the year: from 2500 on the step is 5000 at once.
double stufe_kuehlgradstunden_jahr(double M);
// The monthly end and primary energy chart of the energy plane.
double stufe_monatsverbrauch(double M);
