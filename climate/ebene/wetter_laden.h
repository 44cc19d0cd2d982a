// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct Projekt;

// Makes the station named by p.Klimadatei the current climate: reads it (with its year figures)
// and recalculates.
void wetter_laden(Projekt& p);
