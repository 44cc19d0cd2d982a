// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/Zahlformat.h"

#include "project/zahlwandlung.h"

#include <cmath>
#include <cstdlib>

namespace {

std::string formatieren(double wert, std::string_view muster, char dezimal, int genauigkeit) {
    const std::size_t punkt = muster.find('.');
    const std::string_view ganz = muster.substr(0, punkt);
    const int stellen =
        punkt == std::string_view::npos ? 0 : static_cast<int>(muster.size() - punkt - 1);
    int mindestens = 0;
    for (char c : ganz) {
        mindestens += c == '0' ? 1 : 0;
    }
    if (!std::isfinite(wert)) {
        return std::string();
    }

    // Fifteen significant digits first, so that a float such as 2.85 (2.8499999) rounds as the
    // decimal number it stands for.
    char puffer[64];
    const auto erg = zahlwandlung::schreiben(puffer, puffer + sizeof puffer, std::fabs(wert),
                                             std::chars_format::scientific, genauigkeit - 1);
    const std::string_view sci(puffer, static_cast<std::size_t>(erg.ptr - puffer));
    const std::size_t e = sci.find('e');
    const int exponent = std::atoi(std::string(sci.substr(e + 1)).c_str());
    std::string ziffern;
    for (char c : sci.substr(0, e)) {
        if (c != '.') {
            ziffern += c;
        }
    }
    // ziffern stands for 0.d1d2... times 10^(exponent + 1). Put it as whole digits with
    // `stellen` decimals plus one guard digit.
    const int vorkomma = exponent + 1;
    std::string fest; // digits of the value times 10^stellen, then the rest
    if (vorkomma > 0) {
        fest = ziffern;
    } else {
        fest = std::string(static_cast<std::size_t>(-vorkomma), '0') + ziffern;
    }
    const int komma = vorkomma > 0 ? vorkomma : 0; // digits before the decimal mark in `fest`
    const std::size_t behalten = static_cast<std::size_t>(komma + stellen);
    if (fest.size() < behalten + 1) {
        fest.append(behalten + 1 - fest.size(), '0');
    }
    const bool aufrunden = fest[behalten] >= '5';
    std::string stamm = fest.substr(0, behalten);
    if (aufrunden) {
        int i = static_cast<int>(stamm.size()) - 1;
        while (i >= 0 && stamm[static_cast<std::size_t>(i)] == '9') {
            stamm[static_cast<std::size_t>(i)] = '0';
            --i;
        }
        if (i >= 0) {
            ++stamm[static_cast<std::size_t>(i)];
        } else {
            stamm.insert(stamm.begin(), '1');
        }
    }
    std::string vor = stamm.substr(0, stamm.size() - static_cast<std::size_t>(stellen));
    const std::string nach = stamm.substr(stamm.size() - static_cast<std::size_t>(stellen));
    while (vor.size() > 1 && vor[0] == '0') {
        vor.erase(0, 1);
    }
    if (vor == "0" || vor.empty()) {
        vor.clear();
    }
    if (static_cast<int>(vor.size()) < mindestens) {
        vor.insert(0, static_cast<std::size_t>(mindestens) - vor.size(), '0');
    }
    bool null = true;
    for (char c : vor + nach) {
        null = null && c == '0';
    }
    std::string text = (wert < 0 && !null) ? "-" : "";
    text += vor;
    if (stellen > 0) {
        text += dezimal;
        text += nach;
    }
    return text;
}

} // namespace

std::string format_muster(double wert, std::string_view muster, char dezimal) {
    return formatieren(wert, muster, dezimal, 15);
}

std::string format_muster(float wert, std::string_view muster, char dezimal) {
    return formatieren(wert, muster, dezimal, 7);
}
