// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct Projekt;

// The climate figures of the current station: warmest and coldest month with their mean, the
// year mean of the monthly means, and the extreme hourly temperatures. Written after each
// station read.
void klima_jahreswerte(Projekt& p);

// Heating limit temperature (°C), heating days and heating degree days 20/12 (Kd). The limit is
// the outdoor temperature at which the internal gains alone cover the losses; solar gains do not
// enter. Degree days follow VDI 3807: days with a mean below 12 °C count 20 °C less their mean.
void heizgrenztemperatur(Projekt& p);

// The fill of the climate and building plane after a recalculation: its loads come from the
// record, then heizgrenztemperatur runs.
void Ausfuellen(Projekt& p);
