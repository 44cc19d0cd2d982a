// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct Projekt;

// The hourly simulation written the plain way, as the model reads: every plane factor computed
// afresh inside the hour loop and the exponential taken in every hour. It serves as the oracle
// that the fast simulation must match bit for bit, and as the benchmark's baseline.
void stundensimulation_woertlich(Projekt& p);
