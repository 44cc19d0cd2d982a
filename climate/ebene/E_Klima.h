// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The climate plane without its widgets: the state of its option fields, lists and map, and the
// handlers that choose the scope (Germany, Europe, World), a region, a station or a post code.
// Every pick that changes the station ends in wetter_laden. Messages go through the Dialogs port;
// the random source of the fallback pick can be replaced for tests.

#include "climate/stationslisten.h"
#include "project/Label.h"

#include <functional>
#include <string>
#include <vector>

struct Bitmap;
struct Projekt;
class Dialogs;

// One drop-down list of the plane: its rows, the selected row and the text part.
struct Klimaliste {
    std::vector<std::string> Eintraege; // rows, from 0
    int ListIndex = -1;                 // selected row, -1 for none
    std::string Text;                   // text part: the selected row, or a name put there

    // Selects row i (-1 for none) and shows its text; fires no handler.
    void waehlen(int i);
};

struct E_Klima {
    Stationslisten listen;       // the station lists, built once with the plane
    Klimaliste Klimaregionwahl;  // the twelve German regions
    Klimaliste Klimaregionwahl2; // the stations of the Europe or the world scope
    int sichtbar = 0;            // scope whose frames and map are shown, 1..3; 0 before a choice
    std::string Picture1;        // German map picture, relative to the program folder
    std::string plz;             // post code field, up to five digits
    std::string MausRegion;      // hover text over the Europe or world map: a station name or empty
    // World map scrolling, in twips (1/15 pixel): the map's left edge is -HScroll1.
    int HScroll1 = 0;
    int HScroll1_max = 0;
    int picture3f_breite = 0;       // width of the frame that shows the world map, twips
    int karte_gezeichnet = 0;       // how often the Europe or the world map was redrawn
    std::function<double()> zufall; // a random number in [0, 1)
    // The year values of the station read last, as the climate information shows them.
    Label anz_MittelJahrTemp, anz_MinMonatTemp, anz_MaxMonatTemp;
};

// Builds the plane: the region rows, the station lists of p.KlimaOrdner, the German map without
// highlight and a random source seeded from the system.
void E_Klima_erstellen(E_Klima& e, const Projekt& p);
// After a project was opened or begun, whose station was read without the plane: the German map
// highlights the station's region (none for another station), the region list chooses the same
// region (none, with the station's name, for another station), and the climate information plane
// names the station by the list of its scope as the plane shows it now.
void klima_zeigen(E_Klima& e, Projekt& p);
// The year values of the record's station with the decimal mark `dezimal`; empty before the
// station's year values were read.
void klima_jahreswerte_zeigen(E_Klima& e, const Projekt& p, char dezimal);

// The three option handlers; each does nothing when fired with its option off (`an` false).
// They set Klimaauswahl, show their scope and reconcile Klimadatei with it: a station that is in
// no list of the scope gives the message txt_Klima_fehlt and the fallback (Germany: region 4;
// Europe and World: a random station of the scope). An empty list makes the random pick
// impossible: FatalError after the message.
void Option1_Click(E_Klima& e, Projekt& p, Dialogs& d, bool an);
void Option2_Click(E_Klima& e, Projekt& p, Dialogs& d, bool an);
void Option3_Click(E_Klima& e, Projekt& p, Dialogs& d, bool an);

// The region list's pick: the region's station file, Geaendert = 1, wetter_laden.
void Klimaregionwahl_Click(E_Klima& e, Projekt& p);

// The station list's pick in the scope of p.Klimaauswahl: the station's file, in the world scope
// the map scrolled to the station, the map redrawn, Geaendert = 1, wetter_laden.
void Klimaregionwahl2_Click(E_Klima& e, Projekt& p);

// The region under a pixel of the German map by colour: the colour is compared with those at the
// twelve reference pixels. `letzter` takes the last match (as the click does), otherwise the
// first (as the hover does). 0 when none matches.
int region_an_pixel(const Bitmap& karte, int x, int y, bool letzter);

// Mouse button on the German map at (x, y): clears the post code field and picks the region under
// the mouse through the region list.
void Picture1_MouseDown(E_Klima& e, Projekt& p, const Bitmap& karte, int x, int y);

// The hover label of the German map at (x, y): the two lines of the region joined by a line
// break, or empty when the pixel belongs to no region.
std::string Picture1_Hover(const Bitmap& karte, int x, int y);

// A key in the post code field: digits up to five and back-space (8) are taken, Enter (13)
// searches, any other key is dropped.
void plz_KeyPress(E_Klima& e, Projekt& p, Dialogs& d, int taste);

// The post code search: five characters are needed; the region of the prefix in
// p.KlimaOrdner/plz.txt is picked through the region list; region 0 gives a message and empties
// the field.
void PLZsuchen_Click(E_Klima& e, Projekt& p, Dialogs& d);
