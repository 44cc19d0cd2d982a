// SPDX-License-Identifier: GPL-3.0-or-later
// The DWD test reference year: a head closed by a line "***", the column names in the line before
// it, then one row per hour with month MM, day DD, the hour ending HH 1..24 in Central European
// time, air temperature t (°C), and the direct B and diffuse D radiation on the horizontal (W/m²,
// hourly mean); the total is B + D. The grid cell is given as Rechtswert / Hochwert.
#include "climate/import/quelle_intern.h"
#include "climate/import/zahltext.h"

#include <algorithm>
#include <cmath>

namespace quellen {

namespace {

// The number after the colon of a head line "Name : value ...", or false.
bool kopfwert(const std::vector<std::string_view>& zeilen, std::size_t bis, std::string_view name,
              double& wert) {
    for (std::size_t i = 0; i < bis; ++i) {
        const std::string_view z = zeilen[i];
        if (z.substr(0, name.size()) != name) {
            continue;
        }
        const std::size_t doppelpunkt = z.find(':');
        if (doppelpunkt == std::string_view::npos) {
            return false;
        }
        const std::vector<std::string_view> w = woerter(z.substr(doppelpunkt + 1));
        return !w.empty() && zahl_streng(w[0], wert);
    }
    return false;
}

} // namespace

void lcc_geografisch(double rechtswert, double hochwert, double& breite, double& laenge) {
    const double pi = 3.14159265358979323846;
    const double grad = pi / 180;
    const double a = 6378137.0;
    const double abplattung = 1 / 298.257222101;
    const double e = std::sqrt(2 * abplattung - abplattung * abplattung);
    const double phi1 = 35 * grad, phi2 = 65 * grad, phi0 = 52 * grad, lambda0 = 10 * grad;
    const double x0 = 4000000, y0 = 2800000;
    auto m = [&](double phi) {
        return std::cos(phi) / std::sqrt(1 - std::pow(e * std::sin(phi), 2));
    };
    auto t = [&](double phi) {
        return std::tan(pi / 4 - phi / 2) /
               std::pow((1 - e * std::sin(phi)) / (1 + e * std::sin(phi)), e / 2);
    };
    const double n =
        (std::log(m(phi1)) - std::log(m(phi2))) / (std::log(t(phi1)) - std::log(t(phi2)));
    const double F = m(phi1) / (n * std::pow(t(phi1), n));
    const double r0 = a * F * std::pow(t(phi0), n);
    const double dx = rechtswert - x0;
    const double dy = r0 - (hochwert - y0);
    const double r = std::hypot(dx, dy);
    const double tt = std::pow(r / (a * F), 1 / n);
    double phi = pi / 2 - 2 * std::atan(tt);
    for (int i = 0; i < 10; ++i) {
        phi =
            pi / 2 -
            2 * std::atan(tt * std::pow((1 - e * std::sin(phi)) / (1 + e * std::sin(phi)), e / 2));
    }
    breite = phi / grad;
    laenge = (std::atan2(dx, dy) / n + lambda0) / grad;
}

void try_lesen(const std::vector<std::string_view>& zeilen, Quelldaten& d) {
    std::size_t stern = 0;
    while (stern < zeilen.size() && zeilen[stern].substr(0, 3) != "***") {
        ++stern;
    }
    if (stern == 0 || stern >= zeilen.size()) {
        throw Lesefehler(0, "no head closed by \"***\"", true);
    }
    const std::vector<std::string_view> namen = woerter(zeilen[stern - 1]);
    auto spalte = [&](std::string_view name) {
        for (std::size_t i = 0; i < namen.size(); ++i) {
            if (namen[i] == name) {
                return i;
            }
        }
        throw Lesefehler(static_cast<int>(stern), "no column \"" + std::string(name) + "\"");
    };
    const std::size_t mm = spalte("MM"), dd = spalte("DD"), hh = spalte("HH"), t = spalte("t"),
                      b = spalte("B"), dif = spalte("D");
    const std::size_t noetig = std::max({mm, dd, hh, t, b, dif}) + 1;

    double rw = 0, hw = 0;
    if (kopfwert(zeilen, stern, "Rechtswert", rw) && kopfwert(zeilen, stern, "Hochwert", hw) &&
        rw > 2e6 && rw < 6e6 && hw > 1e6 && hw < 5e6) {
        lcc_geografisch(rw, hw, d.breite, d.laenge);
        d.koordinaten = true;
    }
    d.land = "Deutschland";
    d.ortszone = 1;
    d.stempelzone = 1;

    Stundensammler sammler(false);
    for (std::size_t i = stern + 1; i < zeilen.size(); ++i) {
        const int nr = static_cast<int>(i + 1);
        const std::vector<std::string_view> w = woerter(zeilen[i]);
        if (w.empty()) {
            continue;
        }
        if (w.size() < noetig) {
            throw Lesefehler(nr, "fewer than " + std::to_string(noetig) + " columns");
        }
        const int index = stundenindex(ganz(w[mm], nr, "month"), ganz(w[dd], nr, "day"),
                                       ganz(w[hh], nr, "hour"), nr);
        if (index < 0) {
            continue;
        }
        const double direkt = zahl(w[b], nr, "direct horizontal radiation");
        const double diffus = zahl(w[dif], nr, "diffuse horizontal radiation");
        sammler.hinzu(
            index, pruefen({zahl(w[t], nr, "air temperature"), direkt + diffus, diffus}, nr), nr);
    }
    d.stunden = sammler.fertig();
}

} // namespace quellen
