// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

// The text of the language `sprache`: `deutsch` for "d", `englisch` for "e", and the empty text
// for any other letter, as each language is tested by itself.
inline std::string sprachtext(const std::string& sprache, const char* deutsch,
                              const char* englisch) {
    if (sprache == "d") {
        return deutsch;
    }
    if (sprache == "e") {
        return englisch;
    }
    return std::string();
}
