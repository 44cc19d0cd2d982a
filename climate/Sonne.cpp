// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/Sonne.h"

#include <cmath>

double arccos(double x) {
    return std::atan(-x / std::sqrt(1 - x * x)) + 1.5708;
}

Sonnenaufgang sonnenaufgang(int n, float Breite, float L) {
    // This declination uses 2 · 3.14159 and 3.14159 / 180, unlike the hourly formulas.
    const float delta =
        static_cast<float>(std::sin((n + 284) / 365.0 * 2 * 3.14159) * 23.45 * 3.14159 / 180);
    const double x = -std::tan(static_cast<double>(Breite)) * std::tan(static_cast<double>(delta));
    double ws;
    if (x >= 1) {
        ws = 0; // polar night
    } else if (x <= -1) {
        ws = 3.14159; // polar day
    } else {
        ws = arccos(x);
    }
    Sonnenaufgang s;
    // The longitude enters with the opposite sign to the solar time formula; the values only
    // move the sample time of the first and last sunlit hour.
    s.SA = 12 - (ws / GRAD + L) / 15;
    s.SU = static_cast<float>(12 + (ws / GRAD - L) / 15);
    return s;
}

double stichzeit(int h, const Sonnenaufgang& s) {
    double t = h - 0.5;
    if (static_cast<int>(std::floor(s.SA)) + 1 == h) {
        t = (h + s.SA) / 2;
    }
    if (static_cast<int>(std::floor(s.SU)) + 1 == h) {
        t = (h + static_cast<double>(s.SU) - 1) / 2;
    }
    return t;
}

namespace {

// Declination and hour angle in full precision. The horizontal factor takes them as they are;
// the plane factor rounds both to float.
double deklination(int n) {
    return std::sin((n + 284) / 365.0 * 6.2832) * 23.45 * GRAD;
}

// Equation of time in minutes, with B from the 16-bit day difference n - 81.
double zeitgleichung(int n) {
    const int tage = static_cast<int16_t>(n - 81);
    const double B = tage * 360.0 / 364 * GRAD;
    return 9.87 * std::sin(2 * B) - 7.53 * std::cos(B) - 1.5 * std::sin(B);
}

double stundenwinkel(double T) {
    return (T * 15 - 180) * GRAD;
}

} // namespace

Sonnentag sonnentag(int n) {
    return {deklination(n), zeitgleichung(n)};
}

float direktfaktor_horizontal(const Sonnentag& tag, float L, double t, float Breite) {
    const double delta = tag.delta;
    const double T = t + (-L * 4.0 + tag.E) / 60;
    const double w = stundenwinkel(T);
    const double phi = Breite;
    const double cosz =
        std::cos(delta) * std::cos(w) * std::cos(phi) + std::sin(phi) * std::sin(delta);
    if (cosz > 0.00001) {
        return static_cast<float>(1 / cosz);
    }
    return 0;
}

float direktfaktor_horizontal(int n, float L, double t, float Breite) {
    return direktfaktor_horizontal(sonnentag(n), L, t, Breite);
}

Sonnenstunde sonnenstunde(const Sonnentag& tag, float L, int h) {
    const float delta = static_cast<float>(tag.delta);
    // The integer hour: the plane factor is sampled at the end of the hour.
    const double T = h + (-L * 4.0 + tag.E) / 60;
    const float w = static_cast<float>(stundenwinkel(T));
    return {std::sin(delta), std::cos(delta), std::sin(w), std::cos(w)};
}

Sonnenstunde sonnenstunde(int n, float L, int h) {
    return sonnenstunde(sonnentag(n), L, h);
}

Ebenenlage ebenenlage(int16_t orient, double azimut, double neigung) {
    const double g = (orient + azimut) * GRAD;
    const double b = neigung * GRAD;
    return {std::sin(b), std::cos(b), std::sin(g), std::cos(g)};
}

float einfallsfaktor(const Sonnenstunde& s, const Ebenenlage& e, double sin_phi, double cos_phi) {
    const double c = s.sin_d * sin_phi * e.cos_b - cos_phi * s.sin_d * e.sin_b * e.cos_g +
                     cos_phi * s.cos_d * e.cos_b * s.cos_w +
                     sin_phi * s.cos_d * e.sin_b * e.cos_g * s.cos_w +
                     e.sin_b * s.cos_d * e.sin_g * s.sin_w;
    // With the sun behind the plane the factor is (1 - 1^2.5) * 0, exactly zero.
    if (c <= 0) {
        return 0;
    }
    return static_cast<float>((1 - std::pow(1 - c, 2.5)) * c);
}

float einfallsfaktor_ebene(int n, float L, int h, double azimut, double neigung, float Breite,
                           int16_t orient) {
    const double phi = Breite;
    return einfallsfaktor(sonnenstunde(n, L, h), ebenenlage(orient, azimut, neigung), std::sin(phi),
                          std::cos(phi));
}
