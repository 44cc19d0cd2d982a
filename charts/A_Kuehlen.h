// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The three chart pairs of the cooling plane, months and year, on the lower frame (axis at
// y 110, bars from y 109). A bar is drawn only for a value above 0.

#include "charts/ChartTheme.h"
#include "charts/Flaechen.h"

struct Projekt;

// Overheating hours per day: a month's cooling hours over its days, the year's over 365.
void StundenProTagZeichnen(const Projekt& p, KuehlenFlaechen& f, const Diagrammeinstellung& e);
// Cooling demand per m² of usable floor, kWh/(m² month) and kWh/(m² a).
void KuehlBedarfZeichnen(const Projekt& p, KuehlenFlaechen& f, const Diagrammeinstellung& e);
// Cooling degree hours, Kh, of the months and their sum.
void KuehlGradStundenZeichnen(const Projekt& p, KuehlenFlaechen& f, const Diagrammeinstellung& e);
