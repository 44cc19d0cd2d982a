// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

// A value by a number pattern of the displays: "0" is a digit always shown, "#" a digit shown
// only when needed, the point the place of the decimal mark ("#0.0", "0.00", "##0", "0").
// Rounds half away from zero on the value's decimal form; `dezimal` is the decimal mark of the
// system's locale. A negative value that rounds to zero shows without its sign.
std::string format_muster(double wert, std::string_view muster, char dezimal);
