// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/Dateiendung.h"

std::string filterendung(const std::string& filtername) {
    const std::size_t stern = filtername.find("*.");
    if (stern == std::string::npos) {
        return std::string();
    }
    const std::size_t ende = filtername.find_first_of(" );", stern);
    const std::string endung = filtername.substr(
        stern + 1, ende == std::string::npos ? std::string::npos : ende - stern - 1);
    return endung == ".*" ? std::string() : endung;
}

std::string endung_ergaenzen(const std::string& pfad, const std::string& filtername) {
    const std::size_t trenner = pfad.find_last_of('/');
    const std::string name = trenner == std::string::npos ? pfad : pfad.substr(trenner + 1);
    if (name.empty() || name.find('.') != std::string::npos) {
        return pfad;
    }
    return pfad + filterendung(filtername);
}

std::string ordner_von(const std::string& pfad, const std::string& sonst) {
    const std::size_t trenner = pfad.find_last_of('/');
    if (trenner == std::string::npos) {
        return sonst;
    }
    return trenner == 0 ? std::string("/") : pfad.substr(0, trenner);
}
