// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The two small charts of the geometry plane.

#include "charts/ChartTheme.h"

struct Projekt;
class Surface;

// The A/V bar on AV_Picture: red from row 123 up to av_balken_y, white above it up to row 7, so
// that the scale of the bodies drawn behind it stays visible. Nothing else is cleared.
void AV_diagramm(const Projekt& p, Surface& AV_Picture, const ChartTheme& thema);

// The orientation sketch on Picture1: the plan of the hipped house in grey and the south arrow
// in red, turned by orient, around the centre of the surface.
void Lageplan_zeichnen(const Projekt& p, Surface& Picture1, const ChartTheme& thema);
