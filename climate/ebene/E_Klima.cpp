// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/ebene/E_Klima.h"

#include "climate/Bitmap.h"
#include "climate/ebene/wetter_laden.h"
#include "climate/klimainfo_texte.h"
#include "climate/klimaregionen.h"
#include "climate/plz_suche.h"
#include "climate/stationsordner.h"
#include "project/Dialogs.h"
#include "project/FatalError.h"
#include "project/c_glob.h"

#include <algorithm>
#include <memory>
#include <random>

namespace {

// wetter_laden with the plane's part of it: the German map shows the region of a region file,
// and after the read and the recalculation the climate information plane names the station by
// the list of the scope as it stands now.
void laden(E_Klima& e, Projekt& p) {
    for (int i = 1; i <= KLIMAREGIONEN; ++i) {
        if (p.Regionsdatei[i] == p.Klimadatei) {
            e.Picture1 = klimakarte(i);
        }
    }
    wetter_laden(p);
    p.Klimainfo.Klimaname =
        p.Klimaauswahl == 1 ? "Region " + e.Klimaregionwahl.Text : e.Klimaregionwahl2.Text;
}

void fehlt_melden(const Projekt& p, Dialogs& d) {
    d.nachricht(p.txt_Klima_fehlt, p.txt_Klima_Titel, Dialogs::Symbol::Information,
                Dialogs::Knoepfe::OK);
}

const Stationsliste& liste_des_bereichs(const E_Klima& e, int bereich) {
    return bereich == 2 ? e.listen.Europa : e.listen.Welt;
}

// Europe and World: the list of the scope, the current station in it or shown by its world name,
// otherwise the message and a random station of the scope.
void stationsbereich(E_Klima& e, Projekt& p, Dialogs& d, int bereich) {
    p.Klimaauswahl = static_cast<int16_t>(bereich);
    e.sichtbar = bereich;
    const Stationsliste& liste = liste_des_bereichs(e, bereich);
    e.Klimaregionwahl2 = Klimaliste{};
    e.Klimaregionwahl2.Eintraege = liste.Stationsname;
    const int k = liste.suchen(p.Klimadatei);
    const int w = e.listen.Welt.suchen(p.Klimadatei);
    if (k >= 0) {
        e.Klimaregionwahl2.waehlen(k);
    } else if (w >= 0) {
        e.Klimaregionwahl2.Text = e.listen.Welt.Stationsname[static_cast<std::size_t>(w)];
    } else {
        fehlt_melden(p, d);
        if (liste.anzahl() == 0) {
            throw FatalError("no station file in " + p.KlimaOrdner +
                             " for this scope: the climate cannot be replaced by chance");
        }
        int z = static_cast<int>(e.zufall() * liste.anzahl());
        z = std::min(std::max(z, 0), liste.anzahl() - 1);
        p.Klimadatei = liste.Dateiname[static_cast<std::size_t>(z)];
        e.Klimaregionwahl2.waehlen(z);
        Klimaregionwahl2_Click(e, p);
        return;
    }
    ++e.karte_gezeichnet;
}

} // namespace

void klima_zeigen(E_Klima& e, Projekt& p) {
    int region = 0;
    for (int i = 1; i <= KLIMAREGIONEN; ++i) {
        if (p.Regionsdatei[i] == p.Klimadatei) {
            region = i;
        }
    }
    e.Picture1 = klimakarte(region);
    // The region list says what the map shows, also while another scope is in front: a station
    // of no region stands by its name with no row chosen, as the Germany option shows it.
    e.Klimaregionwahl.waehlen(region - 1);
    const int w = region > 0 ? -1 : e.listen.Welt.suchen(p.Klimadatei);
    if (w >= 0) {
        e.Klimaregionwahl.Text = e.listen.Welt.Stationsname[static_cast<std::size_t>(w)];
    }
    p.Klimainfo.Klimaname =
        p.Klimaauswahl == 1 ? "Region " + e.Klimaregionwahl.Text : e.Klimaregionwahl2.Text;
}

void klima_jahreswerte_zeigen(E_Klima& e, const Projekt& p, char dezimal) {
    // Only the three values this plane shows: it is filled on every recalculation.
    const Klimakennwerte& k = p.Klimainfo;
    e.anz_MittelJahrTemp.Caption = klima_jahreswert(k, k.MittelJahrTemp, dezimal);
    e.anz_MinMonatTemp.Caption = klima_jahreswert(k, k.MinMonatTemp, dezimal);
    e.anz_MaxMonatTemp.Caption = klima_jahreswert(k, k.MaxMonatTemp, dezimal);
}

void Klimaliste::waehlen(int i) {
    ListIndex = i >= 0 && i < static_cast<int>(Eintraege.size()) ? i : -1;
    Text = ListIndex >= 0 ? Eintraege[static_cast<std::size_t>(ListIndex)] : std::string();
}

void E_Klima_erstellen(E_Klima& e, const Projekt& p) {
    e.Klimaregionwahl = Klimaliste{};
    for (int i = 1; i <= KLIMAREGIONEN; ++i) {
        e.Klimaregionwahl.Eintraege.emplace_back(klimaregion(i).text);
    }
    e.listen = stationslisten_bauen(stationsordner(p));
    e.Picture1 = klimakarte(0);
    auto generator = std::make_shared<std::mt19937>(std::random_device{}());
    e.zufall = [generator] { return std::generate_canonical<double, 32>(*generator); };
}

void Option1_Click(E_Klima& e, Projekt& p, Dialogs& d, bool an) {
    if (!an) {
        return;
    }
    p.Klimaauswahl = 1;
    e.sichtbar = 1;
    int region = 0;
    for (int i = 1; i <= KLIMAREGIONEN; ++i) {
        if (p.Regionsdatei[i] == p.Klimadatei) {
            region = i;
        }
    }
    if (region > 0) {
        e.Klimaregionwahl.waehlen(region - 1);
        return;
    }
    const int w = e.listen.Welt.suchen(p.Klimadatei);
    if (w >= 0) {
        e.Picture1 = klimakarte(0);
        e.Klimaregionwahl.waehlen(-1);
        e.Klimaregionwahl.Text = e.listen.Welt.Stationsname[static_cast<std::size_t>(w)];
        return;
    }
    fehlt_melden(p, d);
    p.Klimadatei = p.Regionsdatei[4];
    e.Klimaregionwahl.waehlen(3);
    Klimaregionwahl_Click(e, p);
}

void Option2_Click(E_Klima& e, Projekt& p, Dialogs& d, bool an) {
    if (an) {
        stationsbereich(e, p, d, 2);
    }
}

void Option3_Click(E_Klima& e, Projekt& p, Dialogs& d, bool an) {
    if (an) {
        stationsbereich(e, p, d, 3);
    }
}

void Klimaregionwahl_Click(E_Klima& e, Projekt& p) {
    const int i = e.Klimaregionwahl.ListIndex;
    if (i < 0 || i >= KLIMAREGIONEN) {
        return;
    }
    p.Klimadatei = p.Regionsdatei[i + 1];
    p.Geaendert = 1;
    laden(e, p);
}

void Klimaregionwahl2_Click(E_Klima& e, Projekt& p) {
    const Stationsliste& liste = liste_des_bereichs(e, p.Klimaauswahl);
    const int k = e.Klimaregionwahl2.ListIndex;
    if (k < 0 || k >= liste.anzahl()) {
        return;
    }
    p.Klimadatei = liste.Dateiname[static_cast<std::size_t>(k)];
    if (p.Klimaauswahl == 3) {
        const double x = liste.punkt(k).first * 15;
        if (e.HScroll1 > x) {
            e.HScroll1 = 0;
        }
        if (e.HScroll1 + e.picture3f_breite < x) {
            e.HScroll1 = e.HScroll1_max;
        }
    }
    ++e.karte_gezeichnet;
    p.Geaendert = 1;
    laden(e, p);
}

int region_an_pixel(const Bitmap& karte, int x, int y, bool letzter) {
    const int32_t farbe = karte.farbe(x, y);
    if (farbe < 0) {
        return 0;
    }
    int gefunden = 0;
    for (int i = 1; i <= KLIMAREGIONEN; ++i) {
        const Klimaregion& r = klimaregion(i);
        if (karte.farbe(r.x, r.y) == farbe) {
            gefunden = i;
            if (!letzter) {
                break;
            }
        }
    }
    return gefunden;
}

void Picture1_MouseDown(E_Klima& e, Projekt& p, const Bitmap& karte, int x, int y) {
    e.plz.clear();
    const int region = region_an_pixel(karte, x, y, true);
    if (region > 0) {
        e.Klimaregionwahl.waehlen(region - 1);
        Klimaregionwahl_Click(e, p);
    }
}

std::string Picture1_Hover(const Bitmap& karte, int x, int y) {
    const int region = region_an_pixel(karte, x, y, false);
    if (region == 0) {
        return {};
    }
    return std::string(klimaregion(region).zeile1) + "\n" + klimaregion(region).zeile2;
}

void plz_KeyPress(E_Klima& e, Projekt& p, Dialogs& d, int taste) {
    if (taste >= '0' && taste <= '9') {
        if (e.plz.size() < 5) {
            e.plz += static_cast<char>(taste);
        }
    } else if (taste == 8) {
        if (!e.plz.empty()) {
            e.plz.pop_back();
        }
    } else if (taste == 13) {
        PLZsuchen_Click(e, p, d);
    }
}

void PLZsuchen_Click(E_Klima& e, Projekt& p, Dialogs& d) {
    const bool englisch = p.Sprache == "e";
    if (e.plz.size() != 5) {
        d.nachricht(englisch ? "Please insert 5 figures!"
                             : "Bitte Postleitzahl 5-stellig eingeben!",
                    "Velmaris", Dialogs::Symbol::Ausrufezeichen, Dialogs::Knoepfe::OK);
        return;
    }
    const int region = plz_region_aus_datei(p.KlimaOrdner + "/plz.txt", e.plz);
    if (region == 0) {
        d.nachricht(englisch ? "   Not a valid post code!   " : "  Keine gültige Postleitzahl!  ",
                    "Velmaris", Dialogs::Symbol::Keins, Dialogs::Knoepfe::OK);
        e.plz.clear();
        return;
    }
    p.Klimadatei = p.Regionsdatei[region];
    e.Klimaregionwahl.waehlen(region - 1);
    Klimaregionwahl_Click(e, p);
}
