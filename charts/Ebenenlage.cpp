// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/Ebenenlage.h"

#include <algorithm>
#include <cmath>

Lagepunkt tooltip_lage(Lagepunkt zeiger, int rahmen_breite, int rahmen_hoehe, int ebene_breite,
                       int ebene_hoehe) {
    // The right and bottom edges are held before the left and top ones, so that a frame larger
    // than the plane still shows its beginning.
    Lagepunkt l{zeiger.x - 5, zeiger.y - 20};
    l.x = std::max(0, std::min(l.x, ebene_breite - rahmen_breite));
    l.y = std::max(0, std::min(l.y, ebene_hoehe - rahmen_hoehe));
    return l;
}

Lagepunkt tooltip_lage_energie(Lagepunkt zeiger, int rahmen_breite, int rahmen_hoehe,
                               int ebene_hoehe) {
    Lagepunkt l{zeiger.x - rahmen_breite - 5, zeiger.y - 20};
    if (l.x < 0) {
        l.x = 0;
    }
    if (l.y + rahmen_hoehe > ebene_hoehe) {
        l.y = zeiger.y - 50 - rahmen_hoehe;
    }
    return l;
}

ZoomLage zoom_lage(int breite, int hoehe) {
    ZoomLage z;
    z.Temperaturen_Width = breite - 16;
    z.Temperaturen_Height = hoehe - 56;
    z.Schliessen_Left = breite - 144;
    z.Schliessen_Top = hoehe - 33;
    const auto links = [breite](int i) {
        return static_cast<int>(std::nearbyint((i - 1) / 12.0 * breite));
    };
    for (int i = 1; i <= 12; ++i) {
        z.Monatsbutton_Left[static_cast<std::size_t>(i - 1)] = links(i);
        z.Monatsbutton_Width[static_cast<std::size_t>(i - 1)] = links(i + 1) - links(i) + 1;
    }
    return z;
}
