// SPDX-License-Identifier: GPL-3.0-or-later
#include "planes/Fensterfassade.h"

#include "project/c_glob.h"

const std::array<Fenstertyp, 8> FENSTERTYPEN = {{
    {"Einfachverglasung", "single glazing", 5.8f, 0.92f, 3.5f},
    {"Doppelverglasung", "double glazing", 3.0f, 0.80f, 2.8f},
    {"Wärmeschutz-Doppelverglasung (U = 1,9 W/(m² K))",
     "heat protection double glazing (U = 1.9 W/(m² K))", 1.9f, 0.70f, 2.0f},
    {"Wärmeschutz-Doppelverglasung (U = 1,4 W/(m² K))",
     "heat protection double glazing (U = 1.4 W/(m² K))", 1.4f, 0.58f, 1.5f},
    {"Wärmeschutz-Doppelverglasung (U = 1,0 W/(m² K))",
     "heat protection double glazing (U = 1.0 W/(m² K))", 1.0f, 0.52f, 1.5f},
    {"Wärmeschutz-Dreifachverglasung (U = 0,7 W/(m² K))",
     "heat protection triple glazing (U = 0.7 W/(m² K))", 0.7f, 0.51f, 0.7f},
    {"Wärmeschutz-Dreifachverglasung (U = 0,5 W/(m² K))",
     "heat protection triple glazing (U = 0.5 W/(m² K))", 0.5f, 0.51f, 0.7f},
    {"Sonstiges", "others", 0, 0, 0},
}};

namespace {

template <class T> T& waehlen(Fassade f, T& n, T& s, T& o, T& w) {
    return f == Nord ? n : f == Sued ? s : f == Ost ? o : w;
}

} // namespace

Fensterfassade::Fensterfassade(Projekt& p, Fassade fa)
    : f(waehlen(fa, p.fn, p.fs, p.fo, p.fw)),
      typ_feld(waehlen(fa, p.fenstern_typ, p.fensters_typ, p.fenstero_typ, p.fensterw_typ)),
      gf(waehlen(fa, p.gfn, p.gfs, p.gfo, p.gfw)), kfg(waehlen(fa, p.kfgn, p.kfgs, p.kfgo, p.kfgw)),
      kfr(waehlen(fa, p.kfrn, p.kfrs, p.kfro, p.kfrw)), kf(waehlen(fa, p.kfn, p.kfs, p.kfo, p.kfw)),
      ra(waehlen(fa, p.ran, p.ras, p.rao, p.raw)),
      versch(waehlen(fa, p.verschn, p.verschs, p.verscho, p.verschw)) {}
