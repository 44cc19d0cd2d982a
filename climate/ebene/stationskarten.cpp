// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/ebene/stationskarten.h"

#include "climate/ebene/E_Klima.h"
#include "project/c_glob.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int HOVER_VERSUCHE = 250;
constexpr int TWIPS = 15;
constexpr double KLICK_TOLERANZ = 3.0;

bool nahe(const Stationsliste& liste, int i, double x, double y, double toleranz, double faktor) {
    const auto [xs, ys] = liste.punkt(i);
    return std::fabs(x - xs * faktor) < toleranz && std::fabs(y - ys * faktor) < toleranz;
}

} // namespace

std::vector<Kartenpunkt> kartenpunkte(const Stationsliste& liste, int gewaehlt, double faktor) {
    std::vector<Kartenpunkt> punkte;
    for (int i = 0; i < liste.anzahl(); ++i) {
        const auto [x, y] = liste.punkt(i);
        punkte.push_back({x * faktor, y * faktor, FARBE_STATION});
    }
    if (gewaehlt >= 0 && gewaehlt < liste.anzahl()) {
        const auto [x, y] = liste.punkt(gewaehlt);
        punkte.push_back({x * faktor, y * faktor, FARBE_GEWAEHLT});
    } else {
        punkte.push_back({-10, -10, FARBE_GEWAEHLT});
    }
    return punkte;
}

std::string station_unter_maus(const Stationsliste& liste, int32_t farbe, double x, double y,
                               double toleranz, const std::function<double()>& zufall,
                               double faktor) {
    if ((farbe != FARBE_STATION && farbe != FARBE_GEWAEHLT) || liste.anzahl() == 0) {
        return {};
    }
    for (int versuch = 0; versuch < HOVER_VERSUCHE; ++versuch) {
        int k = static_cast<int>(zufall() * liste.anzahl());
        k = std::min(std::max(k, 0), liste.anzahl() - 1);
        if (nahe(liste, k, x, y, toleranz, faktor)) {
            return liste.Stationsname[static_cast<std::size_t>(k)];
        }
    }
    return {};
}

int station_beim_klick(const Stationsliste& liste, int32_t farbe, double x, double y,
                       const std::string& maus_region, double faktor) {
    if (farbe != FARBE_STATION) {
        return -1;
    }
    int gewaehlt = -1;
    for (int i = 0; i < liste.anzahl(); ++i) {
        if (nahe(liste, i, x, y, KLICK_TOLERANZ, faktor) &&
            liste.Stationsname[static_cast<std::size_t>(i)] <= maus_region) {
            gewaehlt = i;
        }
    }
    return gewaehlt;
}

void station_karte_klick(E_Klima& e, Projekt& p, int32_t farbe, double x, double y,
                         const std::string& maus_region) {
    const Stationsliste& liste = p.Klimaauswahl == 2 ? e.listen.Europa : e.listen.Welt;
    const int k = station_beim_klick(liste, farbe, x, y, maus_region);
    if (k >= 0) {
        e.Klimaregionwahl2.waehlen(k);
        Klimaregionwahl2_Click(e, p);
    }
}

void station_karte_hover(E_Klima& e, const Projekt& p, int32_t farbe, double x, double y) {
    const bool europa = p.Klimaauswahl == 2;
    e.MausRegion = station_unter_maus(europa ? e.listen.Europa : e.listen.Welt, farbe, x, y,
                                      europa ? TOLERANZ_EUROPA : TOLERANZ_WELT, e.zufall);
}

void weltkarte_einrichten(E_Klima& e, int karte, int rahmen) {
    e.picture3f_breite = rahmen * TWIPS;
    e.HScroll1_max = std::max(0, karte - rahmen) * TWIPS;
    HScroll1_Change(e, e.HScroll1);
}

void HScroll1_Change(E_Klima& e, int wert) {
    e.HScroll1 = std::min(std::max(wert, 0), e.HScroll1_max);
}
