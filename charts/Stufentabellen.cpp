// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/Stufentabellen.h"

#include "charts/Balkenrahmen.h"

double stufe_jahrbilanz_heizen(double M) {
    return stufe_waehlen(M,
                         {{5, 2},
                          {10, 2},
                          {25, 5},
                          {50, 10},
                          {75, 15},
                          {100, 20},
                          {250, 50},
                          {500, 100},
                          {750, 150},
                          {1000, 200},
                          {2500, 500},
                          {5000, 1000},
                          {7500, 1500},
                          {10000, 2000}},
                         10000);
}

double stufe_heizbilanz(double M) {
    return stufe_waehlen(
        M, {{5, 1}, {10, 2}, {25, 5}, {50, 10}, {75, 15}, {100, 20}, {250, 50}, {500, 100}}, 1000);
}

double stufe_monatsbilanz(double M) {
    return stufe_waehlen(
        M, {{5, 1}, {10, 2}, {25, 5}, {50, 10}, {75, 15}, {100, 20}, {250, 50}, {500, 100}}, 500);
}

double stufe_jahrbilanz_uebersicht(double M) {
    return stufe_waehlen(M,
                         {{5, 1},
                          {10, 2},
                          {25, 5},
                          {50, 10},
                          {75, 15},
                          {100, 20},
                          {250, 50},
                          {500, 100},
                          {750, 150},
                          {1000, 200},
                          {2500, 500}},
                         2500);
}

double stufe_stunden_pro_tag(double M) {
    return stufe_waehlen(M, {{4, 1}, {8, 2}, {12, 3}, {16, 4}, {20, 5}}, 6);
}

double stufe_kuehlgradstunden_monat(double M) {
    return stufe_waehlen(M,
                         {{5, 1},
                          {10, 2},
                          {25, 5},
                          {50, 10},
                          {100, 20},
                          {250, 50},
                          {500, 100},
                          {1000, 200},
                          {2500, 500},
                          {5000, 1000}},
                         2000);
}

double stufe_kuehlgradstunden_jahr(double M) {
    return stufe_waehlen(M,
                         {{5, 1},
                          {10, 2},
                          {25, 5},
                          {50, 10},
                          {100, 20},
                          {250, 50},
                          {500, 100},
                          {1000, 200},
                          {2500, 500}},
                         5000);
}

double stufe_monatsverbrauch(double M) {
    return stufe_waehlen(M,
                         {{30, 10},
                          {60, 20},
                          {150, 50},
                          {300, 100},
                          {600, 200},
                          {1500, 500},
                          {3000, 1000},
                          {6000, 2000},
                          {15000, 5000},
                          {30000, 10000}},
                         50000);
}
