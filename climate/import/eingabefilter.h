// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The key filters of the import window's number fields. A key is the character code that a typed
// key gives (8 for back-space); keys that give no character (cursor keys, Delete) pass any filter.

// Breitengrad, Laengengrad, Zeitzone: digits, a decimal mark ("." or ",") and back-space. A sign
// is never typed: north or south, east or west and the side of Greenwich are chosen in lists.
bool zahlentaste(int taste);

// Kopfzeilen: digits only.
bool ziffertaste(int taste);
