// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The pieces that the two energy flow diagrams compose their bands of: one-pixel lines that
// keep their end pixel, arrow tips and tail notches, ring sectors for bends, slanted bands and
// the S-bend of a band that shifts sideways. All coordinates are pixels, y downward; angles
// are degrees counter-clockwise from the right (90 up, 270 down). A band has no outline: every
// piece is painted in the band colour, and white paint cuts notches and the insides of bends.

#include "charts/Surface.h"

// Energy per pixel of a stack of `wert` on a surface `hoehe` pixels high: value over
// (hoehe - 50 - rand).
double Sankey_Massstab(double wert, double rand, double hoehe);

// One line that includes its last pixel: the end points are ordered left to right and the line
// is extended by one pixel in its direction of travel (x1, y1 .. x2 are passed by reference and
// are swapped, as callers may rely on).
void Sankey_Linie(Surface& s, double& x1, double& y1, double& x2, double& y2, Rgb farbe);

// A triangle of one-pixel lines on the segment (a,b)-(c,d), K = Int(length / 2) pixels deep: on
// a vertical segment given lower point first the apex points right; on a horizontal one given
// left to right it points down, given right to left it points up. In the band colour it is the
// head of an arrow, in white the notch of a tail.
void Sankey_Spitze(Surface& s, double a, double b, double c, double d, Rgb farbe);

// A ring sector around (cx,cy) from `winkel1` to `winkel2` degrees, inner radius r and outer
// radius r + breite: a filled pie in the band colour, then a white disk of radius r - 1 over its
// inside, which erases whatever lies under it. FillStyle must be Solid; FillColor is left at
// the band colour.
void Sankey_Bogen(Surface& s, double cx, double cy, double winkel1, double winkel2, double breite,
                  double r, Rgb bandfarbe);

// A slanted band: n + 1 parallel lines from (x1, y1 - k) to (x2, y2 - k), k = 0..n, upward from
// the given lower edge.
void Sankey_Schraegband(Surface& s, double x1, double y1, double x2, double y2, int n,
                        Rgb bandfarbe);

// The S-bend of a band of width b that shifts by dy = 10 over dx = 30: two tangent arcs of
// inner radius r = round((dx² + dy² - 2 dy b) / (4 dy)) (half to even), turned by theta degrees.
// From a width of 49 pixels on r is 0 or less and the bend is replaced by a slanted band.
struct SBogen {
    int r;        // inner radius of both arcs, pixels
    double theta; // turn of each arc, degrees
    // Distance in y between the two arc centres: 2r + b - dy.
    double versatz;
};
SBogen s_bogen(int b);

// The integer part of a band width or a pixel count: the next integer not above `wert`, held
// to +-1e6 (a not-a-number value gives 0) so that a runaway value cannot overflow.
int ganzzahl(double wert);
