// SPDX-License-Identifier: GPL-3.0-or-later
// The Rich Text reader on arbitrary bytes: it reads or names the fault, never more, and every
// text it gives is the input's characters.
#include "report/RtfLeser.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t laenge) {
    const RtfDokument d = rtf_lesen(std::string_view(reinterpret_cast<const char*>(daten), laenge));
    std::size_t zeichen = 0;
    for (const RtfAbsatz& a : d.absaetze) {
        zeichen += a.text().size();
    }
    // A character of the model comes from at most one input byte, and grows to four in UTF-8.
    if (zeichen > 4 * laenge) {
        __builtin_trap();
    }
    return 0;
}
