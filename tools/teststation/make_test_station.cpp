// SPDX-License-Identifier: GPL-3.0-or-later
// Writes a synthetic station file: make-test-station OUT.met ["Place (Country)"]
#include "tools/teststation/teststation.h"

#include <fstream>
#include <iostream>

int main(int argc, char** argv) {
    if (argc < 2) {
        std::cerr << "usage: make-test-station OUT.met [\"Place (Country)\"]\n";
        return 1;
    }
    Stationskopf kopf;
    if (argc > 2) {
        kopf.ort = argv[2];
    }
    std::ofstream aus(argv[1], std::ios::binary);
    aus << station_text(kopf, synthetisches_wetter);
    if (!aus.flush()) {
        std::cerr << "make-test-station: cannot write " << argv[1] << "\n";
        return 2;
    }
    return 0;
}
