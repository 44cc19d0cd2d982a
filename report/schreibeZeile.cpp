// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/schreibeZeile.h"

namespace {

bool endet_mit(const std::string& s, const std::string& ende) {
    return s.size() >= ende.size() && s.compare(s.size() - ende.size(), ende.size(), ende) == 0;
}

bool beginnt_mit(const std::string& s, const std::string& anfang) {
    return s.compare(0, anfang.size(), anfang) == 0;
}

} // namespace

std::vector<std::string> schreibeZeile(const std::string& text, double breite,
                                       const Textmass& mass) {
    std::vector<std::string> ZeilenListe;
    if (mass(text) < breite) {
        ZeilenListe.push_back(text);
        return ZeilenListe;
    }
    std::string stueck;
    for (const char c : text) {
        stueck += c;
        if (c == '-' || c == ' ') {
            ZeilenListe.push_back(stueck);
            stueck.clear();
        }
    }
    ZeilenListe.push_back(stueck);

    std::size_t i = 0;
    while (i + 1 < ZeilenListe.size()) {
        std::string& links = ZeilenListe[i];
        const std::string& rechts = ZeilenListe[i + 1];
        if (mass(links + rechts) < breite) {
            if (!beginnt_mit(rechts, "sowie") && !beginnt_mit(rechts, "und") &&
                endet_mit(links, "- ")) {
                links.erase(links.size() - 2);
            }
            links += rechts;
            ZeilenListe.erase(ZeilenListe.begin() + static_cast<std::ptrdiff_t>(i) + 1);
        } else {
            ++i;
        }
    }
    return ZeilenListe;
}
