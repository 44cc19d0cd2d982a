// SPDX-License-Identifier: GPL-3.0-or-later
#include "energy/katalog.h"

#include "project/FatalError.h"

#include <cmath>
#include <cstddef>

namespace {

// Full list of area sample points, m².
constexpr float FLAECHEN[11] = {100, 150, 200, 300, 500, 750, 1000, 1500, 2500, 5000, 10000};
constexpr float BIOMASSE_FLAECHEN[5] = {100, 150, 200, 300, 500};

// A table of values at sample points: the first value below the first point, linear between two
// points over [point, next point), the fixed value `danach` from the last point on.
template <std::size_t N>
float nachschlagen(const float (&x)[N], const float (&y)[N], float danach, float f_nutz) {
    if (f_nutz < x[0]) {
        return y[0];
    }
    for (std::size_t i = 0; i + 1 < N; ++i) {
        if (f_nutz >= x[i] && f_nutz < x[i + 1]) {
            return interpolieren(f_nutz, x[i], x[i + 1], y[i], y[i + 1]);
        }
    }
    return danach;
}

// Distribution losses and auxiliary electricity, by transfer.
constexpr float QD_1[11] = {2.9f, 2.5f, 2.3f, 2.1f, 2.0f, 1.9f, 1.8f, 1.8f, 1.8f, 1.7f, 1.7f};
constexpr float QD_7_1[11] = {2.1f, 1.8f, 1.6f, 1.5f, 1.4f, 1.3f, 1.3f, 1.3f, 1.2f, 1.2f, 1.2f};
constexpr float QD_2[11] = {0.7f, 0.6f, 0.6f, 0.5f, 0.5f, 0.5f, 0.5f, 0.4f, 0.4f, 0.4f, 0.4f};
constexpr float QDHE_1[11] = {1.85f, 1.24f, 0.95f, 0.68f, 0.48f, 0.38f,
                              0.33f, 0.28f, 0.24f, 0.22f, 0.20f};
constexpr float QDHE_7_1[11] = {1.98f, 1.35f, 1.06f, 0.78f, 0.57f, 0.47f,
                                0.42f, 0.37f, 0.33f, 0.30f, 0.28f};
constexpr float QDHE_2[11] = {3.52f, 2.40f, 1.88f, 1.39f, 1.01f, 0.83f,
                              0.74f, 0.65f, 0.58f, 0.53f, 0.50f};
// Storage of the heat pump's buffer.
constexpr float QS_1_X[7] = {100, 150, 200, 300, 500, 750, 1000};
constexpr float QS_1[7] = {0.3f, 0.2f, 0.2f, 0.1f, 0.1f, 0.1f, 0};
constexpr float QS_2_X[4] = {100, 150, 200, 300};
constexpr float QS_2[4] = {0.1f, 0.1f, 0.1f, 0};
constexpr float QSHE[11] = {0.63f, 0.43f, 0.34f, 0.24f, 0.16f, 0.12f,
                            0.10f, 0.08f, 0.07f, 0.06f, 0.05f};
// Generation: auxiliary electricity of boilers (table G) and the biomass tables B1..B6.
constexpr float TABELLE_G[11] = {0.79f, 0.66f, 0.58f, 0.48f, 0.38f, 0.31f,
                                 0.27f, 0.23f, 0.18f, 0.13f, 0.09f};
constexpr float B1[5] = {1.48f, 1.49f, 1.49f, 1.47f, 1.45f};
constexpr float B2[5] = {1.96f, 1.84f, 1.78f, 1.71f, 1.65f};
constexpr float B3[5] = {1.75f, 1.76f, 1.75f, 1.74f, 1.71f};
constexpr float B4[5] = {0.19f, 0.13f, 0.10f, 0.07f, 0.04f};
constexpr float B5[5] = {1.37f, 1.37f, 1.38f, 1.37f, 1.36f};
constexpr float B6[5] = {2.05f, 1.92f, 1.86f, 1.79f, 1.73f};
constexpr float EG_1_2_X[2] = {150, 200};
constexpr float EG_1_2[2] = {1.10f, 1.09f};
constexpr float EG_2_2_X[2] = {300, 500};
constexpr float EG_2_2[2] = {0.99f, 0.98f};

// Whether a system row offers the carrier index 1..4.
bool angeboten(int system, int traeger) {
    switch (system) {
    case 1:
    case 2:
    case 3:
    case 4:
        return traeger <= 2;
    case 6:
        return traeger <= 4;
    default:
        return traeger == 1;
    }
}

// Primary energy factor of an offered carrier.
float primaerenergiefaktor(int system, int traeger) {
    if (system <= 3) {
        return 1.1f;
    }
    if (system <= 5) {
        return 0.2f;
    }
    if (system == 6) {
        constexpr float FERNWAERME[4] = {0.7f, 0, 1.3f, 0.1f};
        return FERNWAERME[traeger - 1];
    }
    return 3.0f;
}

} // namespace

float interpolieren(double x, double x0, double x1, double y0, double y1) {
    return static_cast<float>((y1 - y0) / (x1 - x0) * x + (x1 * y0 - x0 * y1) / (x1 - x0));
}

Energiekennwerte katalog_werte(int16_t Heizsystem, int16_t Uebergabe, int16_t Energietraeger,
                               float f_nutz) {
    const int s = Heizsystem, u = Uebergabe, t = Energietraeger;
    if (s < 1 || s > 9 || u < 1 || u > 2 || t < 1 || t > 4 || !angeboten(s, t)) {
        const std::string wahl =
            std::to_string(s) + "/" + std::to_string(u) + "/" + std::to_string(t);
        throw FatalError("The heat supply " + wahl +
                             " (system/transfer/carrier) is not in the catalogue.",
                         "Die Wärmeversorgung " + wahl +
                             " (System/Übergabe/Energieträger) steht nicht im Katalog.");
    }
    Energiekennwerte k;
    k.q_ce = s <= 7 ? 1.1f : (s == 8 ? 0.7f : 4.4f);

    if (s <= 7) {
        if (u == 1) {
            k.q_d = nachschlagen(FLAECHEN, s == 7 ? QD_7_1 : QD_1, s == 7 ? 1.2f : 1.7f, f_nutz);
            k.q_d_he =
                nachschlagen(FLAECHEN, s == 7 ? QDHE_7_1 : QDHE_1, s == 7 ? 0.28f : 0.20f, f_nutz);
        } else {
            k.q_d = nachschlagen(FLAECHEN, QD_2, 0.4f, f_nutz);
            k.q_d_he = nachschlagen(FLAECHEN, QDHE_2, 0.50f, f_nutz);
        }
    }
    if (s == 7) {
        k.q_s =
            u == 1 ? nachschlagen(QS_1_X, QS_1, 0, f_nutz) : nachschlagen(QS_2_X, QS_2, 0, f_nutz);
        k.q_s_he = nachschlagen(FLAECHEN, QSHE, 0.05f, f_nutz);
    }

    const float G = nachschlagen(FLAECHEN, TABELLE_G, 0.09f, f_nutz);
    switch (s) {
    case 1:
        k.e_g = u == 1 ? 1.08f : nachschlagen(EG_1_2_X, EG_1_2, 1.09f, f_nutz);
        k.q_g_he = G;
        break;
    case 2:
        k.e_g = u == 1 ? 1.03f : nachschlagen(EG_2_2_X, EG_2_2, 0.98f, f_nutz);
        k.q_g_he = G;
        break;
    case 3:
        k.e_g = u == 1 ? 0.98f : 0.94f;
        k.q_g_he = G;
        break;
    case 4:
        k.e_g = nachschlagen(BIOMASSE_FLAECHEN, t == 1 ? B1 : B3, t == 1 ? 1.45f : 1.71f, f_nutz);
        k.q_g_he =
            nachschlagen(BIOMASSE_FLAECHEN, t == 1 ? B2 : B4, t == 1 ? 1.65f : 0.04f, f_nutz);
        break;
    case 5:
        k.e_g = nachschlagen(BIOMASSE_FLAECHEN, B5, 1.36f, f_nutz);
        k.q_g_he = nachschlagen(BIOMASSE_FLAECHEN, B6, 1.73f, f_nutz);
        break;
    case 6:
        k.e_g = 1.01f;
        k.q_g_he = 0;
        break;
    case 7:
        k.e_g = u == 1 ? 0.27f : 0.23f;
        k.q_g_he = static_cast<float>(1.9 * std::pow(static_cast<double>(f_nutz), -0.1));
        break;
    default:
        k.e_g = 1;
        k.q_g_he = 0;
        break;
    }
    k.f_p = primaerenergiefaktor(s, t);

    if (s < 4) {
        k.Traegername = t == 1 ? "Heizöl" : "Erdgas";
        k.Traegername_e = t == 1 ? "fuel oil" : "natural gas";
    } else if (s <= 5) {
        k.Traegername = "Holz";
        k.Traegername_e = "wood";
    } else if (s == 6) {
        k.Traegername = "Nah-/Fernwärme";
        k.Traegername_e = "district heat";
    } else {
        k.Traegername = "Strom";
        k.Traegername_e = "electricity";
    }
    return k;
}
