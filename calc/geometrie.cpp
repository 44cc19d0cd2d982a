// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/geometrie.h"

#include "project/FatalError.h"
#include "project/c_glob.h"

#include <cmath>

namespace {

// Temperature correction of the lower floor by its kind and the characteristic floor dimension
// B = f_gd / (b + l): columns B < 5, 5 <= B <= 10, B > 10.
constexpr float FX_UGD[5][3] = {
    {0.55f, 0.5f, 0.45f}, // unheated cellar with perimeter insulation
    {0.7f, 0.65f, 0.55f}, // unheated cellar without perimeter insulation
    {0.3f, 0.25f, 0.2f},  // ground with edge insulation
    {0.45f, 0.4f, 0.25f}, // ground without edge insulation
    {0.9f, 0.9f, 0.9f},   // outdoor air (raised floor)
};

float f32(double v) {
    return static_cast<float>(v);
}

} // namespace

// Every assignment of the geometry is a stored value and so a float; the products and sums inside
// one assignment run in double.
void geometrie_berechnen(Projekt& p) {
    const double l = p.l, b = p.b, h = p.h, hd = p.hd;
    // A wall to a heated neighbour has no area, so no loss and no window.
    p.f_nfa = f32(p.awn * l * h);
    p.f_sfa = f32(p.aws * l * h);
    p.f_wfa = f32(p.aww * b * h);
    p.f_ofa = f32(p.awo * b * h);
    p.f_dach_n = p.f_dach_s = p.f_dach_o = p.f_dach_w = 0;
    p.f_giebel_n = p.f_giebel_s = p.f_giebel_o = p.f_giebel_w = 0;
    p.f_gd = f32(b * l);

    if (!p.Dachgeschoss) {
        p.Dachneigung = 0;
        p.f_dach_flach = p.f_gd;
    } else {
        const double spann = (p.Dachfirst == 1) ? l : b;
        if (spann == 0) {
            throw FatalError("Division by zero: the roof pitch needs a building length and width "
                             "above 0.",
                             "Division durch Null: die Dachneigung braucht eine Gebäudelänge und "
                             "-breite über 0.");
        }
        if (p.Dachfirst == 1) {
            // North-south ridge along b, spanning l: roof planes face east and west.
            p.f_dach_o = p.f_dach_w = f32(b * std::sqrt(l * l / 4 + hd * hd));
            p.f_giebel_s = p.f_giebel_n = f32(hd * l / 2);
            p.Dachneigung = f32(std::atan((hd + hd) / l) * 180 / 3.14159);
        } else {
            // East-west ridge along l, spanning b: roof planes face north and south.
            p.f_dach_n = p.f_dach_s = f32(l * std::sqrt(b * b / 4 + hd * hd));
            p.f_giebel_w = p.f_giebel_o = f32(hd * b / 2);
            p.Dachneigung = f32(std::atan((hd + hd) / b) * 180 / 3.14159);
        }
        p.f_dach_flach = 0;
    }

    // The lower floor counts in full; a wall to a heated neighbour does not count. Like every
    // assignment of the geometry, the envelope is held as a float.
    const float huelle = f32(static_cast<double>(p.f_sfa) + p.f_nfa + p.f_wfa + p.f_ofa + p.f_gd +
                             p.f_dach_n + p.f_dach_s + p.f_dach_o + p.f_dach_w + p.f_giebel_n +
                             p.f_giebel_s + p.f_giebel_o + p.f_giebel_w + p.f_dach_flach);

    p.v_geb = f32(static_cast<double>(p.f_gd) * h);
    p.f_nutz = f32(p.f_gd * 0.8 * p.ag);
    if (p.Dachgeschoss) {
        // Usable floor under the roof follows the height of the roof space.
        if (hd > 2) {
            p.f_nutz = f32(p.f_nutz + (hd - 2) * b * l * 0.8 / hd);
        }
        if (hd > 1 && hd <= 2) {
            p.f_nutz = f32(p.f_nutz + (hd - 1) * b * l * 0.4 / hd);
        }
        if (hd > 2) {
            p.f_nutz = f32(p.f_nutz + b * l * 0.4 / hd);
        }
        p.v_geb = f32(p.v_geb + b * l * hd / 2);
    }
    if (p.v_geb == 0) {
        p.v_geb = 1;
    }
    p.v_luft = f32(p.v_geb * 0.8);
    p.AV = f32(static_cast<double>(huelle) / p.v_geb);

    if (b + l == 0) {
        throw FatalError("Division by zero: the floor dimension needs a length and width above 0.",
                         "Division durch Null: das Grundrissmaß braucht eine Länge und Breite "
                         "über 0.");
    }
    // B is held as a float before it meets the column boundaries: l = 13.2, b = 41.25 gives
    // 10.00000004 in double but 10 as a float, the middle column.
    const float B = f32(p.f_gd / (b + l));
    if (p.ugd_typ >= 0 && p.ugd_typ <= 4) {
        const int spalte = (B < 5) ? 0 : (B > 10 ? 2 : 1);
        p.Fx_ugd = FX_UGD[p.ugd_typ][spalte];
    }
}

void fensterflaechen_berechnen(Projekt& p) {
    p.f_sf = f32(p.fs * static_cast<double>(p.f_sfa) / 100);
    p.f_nf = f32(p.fn * static_cast<double>(p.f_nfa) / 100);
    p.f_wf = f32(p.fw * static_cast<double>(p.f_wfa) / 100);
    p.f_of = f32(p.fo * static_cast<double>(p.f_ofa) / 100);
    p.f_gf = f32(static_cast<double>(p.f_nf) + p.f_sf + p.f_wf + p.f_of);
    p.f_sw = f32(static_cast<double>(p.f_sfa) - p.f_sf);
    // The door comes off the north wall whatever that wall's flag says; a negative net wall
    // is kept.
    p.f_nw = f32(static_cast<double>(p.f_nfa) - p.f_nf - p.ft);
    p.f_ww = f32(static_cast<double>(p.f_wfa) - p.f_wf);
    p.f_ow = f32(static_cast<double>(p.f_ofa) - p.f_of);
    p.f_wand = f32(static_cast<double>(p.f_nw) + p.f_sw + p.f_ww + p.f_ow);
}
