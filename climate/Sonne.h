// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Sun position and the direct radiation factors of a plane.
//
// Sources: declination after Cooper (1969), equation of time after Spencer-type fits as in
// Duffie & Beckman, "Solar Engineering of Thermal Processes", ch. 1.6, and the general incidence
// angle formula for a tilted and turned plane (ibid., eq. 1.6.2). The constants are this
// program's own with their limited digits (0.01745 per degree, 6.2832 for two pi); they are not
// to be replaced by finer ones, since every stored result depends on them.
//
// Conventions: day number n 1..365 (1 = January 1), hour h 1..24 (the hour ending at h o'clock),
// L = Laengenkorrektur in degrees (west positive), plane azimuth in degrees with 0 south, -90
// east, +90 west, 180 north, tilt 0 horizontal, 90 vertical, latitude in radians.

#include <cstdint>

// Degrees to radians as the program counts them.
constexpr double GRAD = 0.01745;

// arccos for -1 < x < 1, computed as atan(-x / sqrt(1 - x²)) + 1.5708.
double arccos(double x);

// Sunrise and sunset of a day in clock hours, as the station reader uses them to place the
// sample time of the first and the last sunlit hour.
struct Sonnenaufgang {
    // The reader holds the sunrise in double and the sunset as a float; both move the sample
    // time of an hour, so each width shows in the direct radiation.
    double SA = 0; // sunrise, clock hours
    float SU = 0;  // sunset, clock hours
};
Sonnenaufgang sonnenaufgang(int n, float Breite, float L);

// Sample time of hour h for the direct normal radiation: the middle of the hour, or the middle
// of the sunlit part in the hours of sunrise and sunset (sunset wins).
double stichzeit(int h, const Sonnenaufgang& s);

// What a day shares among its 24 hours: the declination and the equation of time (minutes).
struct Sonnentag {
    double delta = 0;
    double E = 0;
};
Sonnentag sonnentag(int n);

// 1 / cos of the zenith angle at day n and real clock time t, or 0 with the sun down.
float direktfaktor_horizontal(const Sonnentag& tag, float L, double t, float Breite);
float direktfaktor_horizontal(int n, float L, double t, float Breite);

// The sun terms one hour shares among all planes.
struct Sonnenstunde {
    double sin_d = 0, cos_d = 0; // declination
    double sin_w = 0, cos_w = 0; // hour angle
};
Sonnenstunde sonnenstunde(const Sonnentag& tag, float L, int h);
Sonnenstunde sonnenstunde(int n, float L, int h);

// The terms of one plane.
struct Ebenenlage {
    double sin_b = 0, cos_b = 0; // tilt
    double sin_g = 0, cos_g = 0; // surface azimuth including the building's orientation
};
Ebenenlage ebenenlage(int16_t orient, double azimut, double neigung);

// Effective incidence factor of direct radiation on a plane, 0..1: cos θ reduced by the falling
// acceptance of flat incidence, (1 - (1 - cos θ)^2.5) · cos θ.
float einfallsfaktor(const Sonnenstunde& s, const Ebenenlage& e, double sin_phi, double cos_phi);

// The same for one day, hour and plane, everything computed afresh.
float einfallsfaktor_ebene(int n, float L, int h, double azimut, double neigung, float Breite,
                           int16_t orient);
