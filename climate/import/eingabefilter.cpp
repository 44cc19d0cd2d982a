// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/import/eingabefilter.h"

bool ziffertaste(int taste) {
    return taste >= '0' && taste <= '9';
}

bool zahlentaste(int taste) {
    return ziffertaste(taste) || taste == '.' || taste == ',' || taste == 8;
}
