// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/stationslisten.h"

#include "climate/numerisch.h"
#include "project/Listeneingabe.h"
#include "project/Textkanal.h"
#include "project/Zahltext.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <vector>

namespace {

// The head of a station file is far shorter than this; the rest of the file is never read here.
constexpr std::size_t KOPF_HOECHSTENS = 64 * 1024;

bool kopf_lesen(const std::filesystem::path& pfad, std::string& kopf) {
    std::ifstream datei(pfad, std::ios::binary);
    if (!datei) {
        return false;
    }
    kopf.assign(KOPF_HOECHSTENS, '\0');
    datei.read(kopf.data(), static_cast<std::streamsize>(kopf.size()));
    kopf.resize(static_cast<std::size_t>(datei.gcount()));
    return true;
}

std::string klein(std::string text) {
    for (char& c : text) {
        if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        }
    }
    return text;
}

bool ist_station(const std::string& name) {
    const std::string k = klein(name);
    return k.size() >= 4 && k.compare(k.size() - 4, 4, ".met") == 0 && k != "klima.met";
}

} // namespace

int Stationsliste::suchen(const std::string& datei) const {
    const auto it = std::find(Dateiname.begin(), Dateiname.end(), datei);
    return it == Dateiname.end() ? -1 : static_cast<int>(it - Dateiname.begin());
}

std::pair<double, double> Stationsliste::punkt(int i) const {
    const auto k = static_cast<std::size_t>(i);
    return {numerisch_lesen(Laenge.at(k)), numerisch_lesen(Breite.at(k))};
}

void Stationsliste::anhaengen(const std::string& name, const std::string& datei,
                              const std::string& y, const std::string& x) {
    Stationsname.push_back(name);
    Dateiname.push_back(datei);
    Breite.push_back(y);
    Laenge.push_back(x);
}

void Stationsliste::tauschen(int i, int j) {
    const auto a = static_cast<std::size_t>(i);
    const auto b = static_cast<std::size_t>(j);
    std::swap(Stationsname.at(a), Stationsname.at(b));
    std::swap(Dateiname.at(a), Dateiname.at(b));
    std::swap(Breite.at(a), Breite.at(b));
    std::swap(Laenge.at(a), Laenge.at(b));
}

void Stationsliste::entfernen(int i) {
    const auto a = static_cast<std::ptrdiff_t>(i);
    Stationsname.erase(Stationsname.begin() + a);
    Dateiname.erase(Dateiname.begin() + a);
    Breite.erase(Breite.begin() + a);
    Laenge.erase(Laenge.begin() + a);
}

std::pair<double, double> europa_punkt(double breite, double laenge_ost) {
    const double y = (132.0 / 30.0) * (74.104 - breite);
    const double xs = (laenge_ost + 25.203) * (92.0 / 30.0);
    const double x = xs + (y / 240.0) * (xs * (12.0 / 31.0) - 1193.0 / 31.0);
    return {x, y};
}

std::pair<double, double> welt_punkt(double breite, double laenge_ost) {
    return {laenge_ost * 1.677777778 + 325.0, 123.0 - 1.677777778 * breite};
}

Stationslisten stationslisten_bauen(const std::string& klimaordner) {
    return stationslisten_bauen(std::vector<std::string>{klimaordner});
}

Stationslisten stationslisten_bauen(const std::vector<std::string>& ordner) {
    namespace fs = std::filesystem;
    std::map<std::string, fs::path> dateien;
    for (const std::string& klimaordner : ordner) {
        std::error_code fehler;
        for (fs::directory_iterator it(klimaordner, fehler), ende; !fehler && it != ende;
             it.increment(fehler)) {
            const std::string name = it->path().filename().string();
            if (ist_station(name)) {
                dateien.emplace(name, it->path());
            }
        }
    }
    // The folder listing has no order of its own; a fixed one keeps equal station names in a
    // repeatable order through the sort below.
    std::vector<std::string> namen;
    for (const auto& d : dateien) {
        namen.push_back(d.first);
    }

    Stationslisten l;
    std::vector<std::string> sortierschluessel; // line 1 item as it stands in the file
    for (const std::string& name : namen) {
        std::string kopf;
        if (!kopf_lesen(dateien[name], kopf)) {
            continue;
        }
        Textkanal kanal(std::move(kopf));
        const std::string ort = kanal.eintrag();
        const std::string zeile_b = kanal.zeile();
        const std::string zeile_o = kanal.zeile();
        const double b = numerisch_lesen(spalten(zeile_b, 15, 24));
        const double o = -numerisch_lesen(spalten(zeile_o, 15, 24));
        const auto [x, y] = europa_punkt(b, o);
        const auto [xw, yw] = welt_punkt(b, o);
        const std::string anzeige = text_aus_datei(ort);
        l.Welt.anhaengen(anzeige, name, zahl_str(yw), zahl_str(xw));
        l.Europa.anhaengen(anzeige, name, zahl_str(y), zahl_str(x));
        sortierschluessel.push_back(ort);
    }

    const int n = l.Welt.anzahl();
    for (int i = 0; i + 1 < n; ++i) {
        int kleinster = i;
        for (int j = i + 1; j < n; ++j) {
            if (sortierschluessel[static_cast<std::size_t>(j)] <
                sortierschluessel[static_cast<std::size_t>(kleinster)]) {
                kleinster = j;
            }
        }
        if (kleinster != i) {
            std::swap(sortierschluessel[static_cast<std::size_t>(i)],
                      sortierschluessel[static_cast<std::size_t>(kleinster)]);
            l.Welt.tauschen(i, kleinster);
            l.Europa.tauschen(i, kleinster);
        }
    }

    for (int i = 0; i < l.Europa.anzahl();) {
        const auto [x, y] = l.Europa.punkt(i);
        if (x < 0 || x > 233 || y < 0 || y > 200) {
            l.Europa.entfernen(i);
        } else {
            ++i;
        }
    }
    return l;
}
