// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/Befehlszeile.h"

#include <array>
#include <cstdio>
#include <sys/wait.h>

Befehlslauf befehl_ausfuehren(const std::string& befehlszeile) {
    Befehlslauf lauf;
    FILE* rohr = popen(befehlszeile.c_str(), "r");
    if (!rohr) {
        return lauf;
    }
    std::array<char, 65536> puffer;
    std::size_t n;
    while ((n = std::fread(puffer.data(), 1, puffer.size(), rohr)) > 0) {
        lauf.aus.append(puffer.data(), n);
    }
    const int roh = pclose(rohr);
    lauf.status = WIFEXITED(roh) ? WEXITSTATUS(roh) : -1;
    return lauf;
}
