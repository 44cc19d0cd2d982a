// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct Projekt;

// Makes the station named by p.Klimadatei the current climate: reads it, recalculates, and
// writes the climate figures of the station.
void wetter_laden(Projekt& p);
