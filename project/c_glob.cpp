// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/c_glob.h"

Projekt& projekt() {
    static Projekt p;
    return p;
}

void neues_projekt(Projekt& p) {
    const char* const regionen[12] = {
        "bremen.met",   "braunschweig.met",     "hamburg.met",  "trier.met",
        "würzburg.met", "frankfurt_main.met",   "freiburg.met", "weihenstephan.met",
        "münchen.met",  "hohenpeissenberg.met", "passau.met",   "konstanz.met"};
    for (int i = 1; i <= 12; ++i) {
        p.Regionsdatei[i] = regionen[i - 1];
    }

    p.l = 10;
    p.b = 10;
    p.h = 5.2f;
    p.hd = 2;
    p.ag = 2;
    p.orient = 0;
    p.Dachgeschoss = false; // the ridge option keeps its position

    p.kwn = p.kws = p.kwo = p.kww = 0.2f;
    p.kd = 0.2f;
    p.kk = 0.2f;
    p.ft = 0;
    p.kt = 1.5f;
    p.Waermebruecken = 0.1f;
    p.ugd_typ = 0;
    p.Dachraum_typ = 0;
    p.absfaktor = 0.5f;
    p.cbk_hDach = 1;

    p.fn = 5;
    p.fs = 40;
    p.fo = 5;
    p.fw = 5;
    p.verschn = p.verschs = p.verscho = p.verschw = 0.2f;
    p.ran = p.ras = p.rao = p.raw = 0.2f;
    p.fenstern_typ = p.fensters_typ = p.fenstero_typ = p.fensterw_typ = 3;
    p.gfn = p.gfs = p.gfo = p.gfw = 0.58f;
    p.kfgn = p.kfgs = p.kfgo = p.kfgw = 1.4f;
    p.kfrn = p.kfrs = p.kfro = p.kfrw = 1.5f;
    p.kfn = p.kfs = p.kfo = p.kfw = 1.42f;

    p.awn = p.aws = p.awo = p.aww = 1;
    p.lw = 0;
    p.infiltration = 0.6f;
    p.WRG = 0;
    p.intg = 25;
    p.Troom = 20;
    p.Tueber = 27;
    p.Klimaeffizienz = 2.5f;
    p.Aussenwandart = 1;
    p.Innenwandart = 1;

    p.Klimadatei = p.Regionsdatei[4];
    p.Klimaauswahl = 2;
    p.Heizsystem = 1;
    p.Uebergabe = 1;
    p.Energietraeger = 1;

    p.Datei = "default.vel";
}
