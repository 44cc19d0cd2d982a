// SPDX-License-Identifier: GPL-3.0-or-later
// The case library: buildings grouped by topic, each a change of the new project.
#pragma once

#include "project/c_glob.h"

struct Fall {
    const char* name;
    void (*aendern)(Projekt&);
};

inline const Fall FAELLE[] = {
    {"neues_projekt", [](Projekt&) {}},
    {"dach_nord_sued",
     [](Projekt& p) {
         p.Dachgeschoss = true;
         p.Dachfirst = 1;
         p.hd = 2.6f;
         p.l = 12;
         p.b = 9;
     }},
    {"dach_ost_west_gedreht",
     [](Projekt& p) {
         p.Dachgeschoss = true;
         p.Dachfirst = 2;
         p.hd = 3.5f;
         p.orient = 30;
         p.cbk_hDach = 0;
     }},
    {"passivhaus",
     [](Projekt& p) {
         p.kwn = p.kws = p.kwo = p.kww = p.kd = p.kk = 0.1f;
         p.kfn = p.kfs = p.kfo = p.kfw = 0.8f;
         p.Waermebruecken = 0;
         p.lw = 0.4f;
         p.WRG = 0.8f;
         p.infiltration = 0.1f;
         p.fs = 60;
         p.Heizsystem = 7;
         p.Uebergabe = 2;
     }},
    {"reihenmittelhaus",
     [](Projekt& p) {
         p.awo = p.aww = 0;
         p.ft = 2.5f;
         p.ugd_typ = 3;
         p.Dachraum_typ = 1;
         p.Aussenwandart = 0;
         p.Innenwandart = 2;
         p.Heizsystem = 4;
         p.Energietraeger = 2;
     }},
    {"ueberhitzung",
     [](Projekt& p) {
         p.fs = 90;
         p.fo = p.fw = 50;
         p.verschs = 0;
         p.gfs = 0.8f;
         p.intg = 60;
         p.Tueber = 24;
         p.Heizsystem = 6;
         p.Energietraeger = 3;
     }},
    {"grosser_bau",
     [](Projekt& p) {
         p.l = 50;
         p.b = 30;
         p.h = 30;
         p.ag = 10;
         p.ugd_typ = 4;
         p.Heizsystem = 9;
     }},
};
