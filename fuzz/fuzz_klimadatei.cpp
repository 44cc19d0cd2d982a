// SPDX-License-Identifier: GPL-3.0-or-later
// The station reader on arbitrary bytes: it reads or refuses with FatalError, never more.
#include "climate/klimadatei.h"
#include "project/FatalError.h"
#include "project/c_glob.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t laenge) {
    static auto p = std::make_unique<Projekt>();
    try {
        klimadatei_lesen(*p, std::string_view(reinterpret_cast<const char*>(daten), laenge),
                         "fuzz");
    } catch (const FatalError&) {
    }
    return 0;
}
