// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/zeitkonstante.h"

#include "project/FatalError.h"
#include "project/c_glob.h"
#include "project/checked.h"

#include <cmath>
#include <iomanip>
#include <sstream>

int32_t bauweise_kapazitaet(int16_t index) {
    switch (index) {
    case 0:
        return 105000;
    case 1:
        return 65000;
    case 2:
        return 25000;
    default:
        return 0;
    }
}

float lueftungskoeffizient(const Projekt& p) {
    // 1.29 kJ/(m³ K) is the heat capacity of air.
    return static_cast<float>(((1 - static_cast<double>(p.WRG)) * p.lw + p.infiltration) / 3600 *
                              1000 * 1.29 * p.v_luft);
}

// The running capacity C, Hv, Cwirk and tau are kept and so floats; the interior wall area and
// Ht are values of this run only and stay double.
void zeitkonstante_berechnen(Projekt& p) {
    const double ca = bauweise_kapazitaet(p.Aussenwandart);
    const bool innen_gueltig = p.Innenwandart >= 0 && p.Innenwandart <= 2;
    const double ci = innen_gueltig ? bauweise_kapazitaet(p.Innenwandart) : ca;
    const double l = p.l, b = p.b, h = p.h;

    float C = static_cast<float>(p.f_wand * ca);
    // Interior walls: whole rooms of 10 m² times the perimeter of a square room times the room
    // height, less the whole outer perimeter. Negative for a small building, and not clamped.
    const double Ai =
        std::floor(p.f_nutz / 10.0) * 4 * std::sqrt(10.0) * 2.6 - (l + l) * h - (b + b) * h;
    C = static_cast<float>(C + Ai * ci);
    // Each floor counts with a ceiling and a floor surface.
    C = static_cast<float>(C + (static_cast<double>(p.ag) + p.ag) * p.f_gd * ci);
    // Walls to heated neighbours count like interior walls.
    C = static_cast<float>(C + to_i16(1 - p.awn, "1 - awn") * l * h * ci);
    C = static_cast<float>(C + to_i16(1 - p.aws, "1 - aws") * l * h * ci);
    C = static_cast<float>(C + to_i16(1 - p.awo, "1 - awo") * b * h * ci);
    C = static_cast<float>(C + to_i16(1 - p.aww, "1 - aww") * b * h * ci);

    // Deliberately simpler than the balance: the upper closure counts with the floor area, no
    // gable, no roof plane, no temperature correction, and no surcharge on the windows.
    const double Wd = p.Waermebruecken;
    const double Ht = (p.kwn + Wd) * p.f_nw + (p.kwo + Wd) * p.f_ow + (p.kww + Wd) * p.f_ww +
                      (p.kws + Wd) * p.f_sw + (p.kd + Wd) * p.f_gd + (p.kk + Wd) * p.f_gd +
                      static_cast<double>(p.kfn) * p.f_nf + static_cast<double>(p.kfs) * p.f_sf +
                      static_cast<double>(p.kfo) * p.f_of + static_cast<double>(p.kfw) * p.f_wf +
                      static_cast<double>(p.kt) * p.ft;
    const float Hv = lueftungskoeffizient(p);

    // 1290 J/(m³ K) for the air itself.
    p.Cwirk = to_f32(p.v_luft * 1290.0 + C, "effective heat capacity Cwirk");
    if (p.Cwirk / static_cast<double>(p.v_geb) / 3600 < 0) {
        std::ostringstream wert;
        wert << std::fixed << std::setprecision(0) << p.Cwirk;
        throw FatalError(
            "The effective heat capacity comes out negative (Cwirk = " + wert.str() +
                " J/K): the building is too tall or too light for its floor area.",
            "Die wirksame Wärmekapazität wird negativ (Cwirk = " + wert.str() +
                " J/K): das Gebäude ist für seine Grundfläche zu hoch oder zu leicht.");
    }
    if (Ht + Hv == 0) {
        throw FatalError("Division by zero: the time constant needs a transmission or "
                         "ventilation loss above 0.",
                         "Division durch Null: die Zeitkonstante braucht einen Transmissions- "
                         "oder Lüftungsverlust über 0.");
    }
    p.tau = to_f32(p.Cwirk / (Ht + Hv), "time constant tau");
}
