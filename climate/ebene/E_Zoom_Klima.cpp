// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/ebene/E_Zoom_Klima.h"

#include "climate/ebene/stationskarten.h"

E_Zoom_Klima E_Zoom_Klima_oeffnen(const E_Klima& e) {
    E_Zoom_Klima z;
    z.Klimaregionwahl2 = e.Klimaregionwahl2;
    return z;
}

void E_Zoom_Klima_hover(E_Zoom_Klima& z, const E_Klima& e, int32_t farbe, double x, double y) {
    z.MausRegion =
        station_unter_maus(e.listen.Welt, farbe, x, y, TOLERANZ_WELT, e.zufall, ZOOM_FAKTOR);
}

void E_Zoom_Klima_klick(E_Zoom_Klima& z, const E_Klima& e, int32_t farbe, double x, double y) {
    const int k = station_beim_klick(e.listen.Welt, farbe, x, y, z.MausRegion, ZOOM_FAKTOR);
    if (k >= 0) {
        z.Klimaregionwahl2.waehlen(k);
    }
}

void E_Zoom_Klima_Command1(const E_Zoom_Klima& z, E_Klima& e, Projekt& p) {
    e.Klimaregionwahl2.waehlen(z.Klimaregionwahl2.ListIndex);
    Klimaregionwahl2_Click(e, p);
}
