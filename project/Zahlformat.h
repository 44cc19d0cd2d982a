// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

// A value by a number pattern of the displays: "0" is a digit always shown, "#" a digit shown
// only when needed, the point the place of the decimal mark ("#0.0", "0.00", "##0", "0").
// Rounds half away from zero on the value's decimal form; `dezimal` is the decimal mark of the
// system's locale. A negative value that rounds to zero shows without its sign.
// A double is taken with 15 significant digits, a float with the 7 it holds, so that the stored
// 2.85f shows as "2.9".
std::string format_muster(double wert, std::string_view muster, char dezimal);
std::string format_muster(float wert, std::string_view muster, char dezimal);
