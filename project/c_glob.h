// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The one project record: every input, every derived quantity and the control fields of the
// program run. Widths are those of the stored project: float where a value is a 32-bit float,
// int16_t where it is a 16-bit integer. A value is rounded to float by being stored; sums and
// products in between run in double.

#include "project/OneBased.h"
#include "project/Rechenbeobachter.h"

#include <array>
#include <cstdint>
#include <string>

constexpr int MONATE = 12;
constexpr int TAGE_MAX = 31;
constexpr int STUNDEN = 24;

// One month of the month table `Monat`.
struct Monatswerte {
    std::string Name; // full month name in the current language
    std::string Kurz; // short month name with its point
    int16_t Tage = 0; // days of the month, 28..31
    // radiation on the vertical plane of the facade, MJ/m² in the month
    int16_t Strahlung_N = 0, Strahlung_S = 0, Strahlung_O = 0, Strahlung_W = 0;
    float Tmittel = 0;           // mean outdoor temperature, °C
    float Nutzgrad = 0;          // utilisation factor of the gains, 0..1
    float Qt = 0;                // transmission losses, kWh
    float Qv = 0;                // ventilation losses, kWh
    float Qs_genutzt = 0;        // usable solar gains, kWh
    float Qi_genutzt = 0;        // usable internal gains, kWh
    float Qs_brutto = 0;         // solar gains before utilisation, kWh
    float Qi_brutto = 0;         // internal gains before utilisation, kWh
    float Qh = 0;                // heat demand, kWh
    float Kuehlbedarf = 0;       // cooling energy, kWh
    float Kuehlgradstunden = 0;  // excess of the free-running temperature over Tueber, Kh
    int16_t Stunden_kalt = 0;    // hours with free-running temperature below Troom
    int16_t Stunden_heiss = 0;   // hours with free-running temperature above Tueber
    int16_t Stunden_komfort = 0; // hours from Troom up to and including Tueber
    // Kuehlbedarf shared out over its four causes, kWh
    float Kuehl_solar = 0, Kuehl_intern = 0, Kuehl_trans = 0, Kuehl_lueft = 0;
};

// One hour of the station: outdoor air °C, direct normal W/m² (derived), diffuse horizontal W/m².
struct Wetterwert {
    float Ta = 0;
    float Direkt = 0;
    float Diffus = 0;
};

// An hourly table by month 1..12, day 1..31 and hour 1..24 (the hour ending at that clock hour).
// Days a month does not have are never visited.
template <class T> class Stundentabelle {
public:
    T& operator()(int m, int d, int h) { return werte_[index(m, d, h)]; }
    const T& operator()(int m, int d, int h) const { return werte_[index(m, d, h)]; }

private:
    static std::size_t index(int m, int d, int h) {
        return (static_cast<std::size_t>(m - 1) * TAGE_MAX + static_cast<std::size_t>(d - 1)) *
                   STUNDEN +
               static_cast<std::size_t>(h - 1);
    }
    std::array<T, MONATE * TAGE_MAX * STUNDEN> werte_{};
};

// A row of the roof space table: a text cut or filled to 25 characters and the factor that
// reduces the heat flow through the flat part of the roof.
struct Dachraumzeile {
    std::string Bezeichnung;
    float Faktor = 0;
};

// The characteristic values of the chosen heat supply, as the energy plane shows them.
struct Energiekennwerte {
    float q_ce = 0;            // loss of heat transfer, kWh/(m² a)
    float q_d = 0;             // loss of distribution, kWh/(m² a)
    float q_s = 0;             // loss of storage, kWh/(m² a)
    float e_g = 0;             // expense number of heat generation
    float q_d_he = 0;          // auxiliary electricity of distribution, kWh/(m² a)
    float q_s_he = 0;          // auxiliary electricity of storage, kWh/(m² a)
    float q_g_he = 0;          // auxiliary electricity of generation, kWh/(m² a)
    float f_p = 0;             // primary energy factor of the carrier
    std::string Traegername;   // short carrier name, German; also the key of the logic
    std::string Traegername_e; // short carrier name, English
};

// The figures of the climate information plane and of the climate plane's labels.
struct Klimakennwerte {
    int MaxMonat = 0, MinMonat = 0;           // warmest and coldest month, 1..12
    float MaxMonatTemp = 0, MinMonatTemp = 0; // their Tmittel, °C
    float MittelJahrTemp = 0;                 // year mean of Tmittel, °C
    float MaxJahrTemp = 0, MinJahrTemp = 0;   // extreme hourly Ta of the year, °C
    double tau_h = 0;                         // time constant, h
    double Vspez = 0;                         // ventilation coefficient, W/K
    double Tspez = 0;                         // transmission coefficient with gables, W/K
    double Umittel = 0;                       // mean U value of the envelope, W/(m² K)
    double TVspez = 0;                        // transmission plus ventilation, W/K
    float Heizgrenztemperatur = 0;            // heating limit temperature, °C
    int Heiztage = 0;                         // days with a mean below the limit
    float Heizgradtage = 0;                   // heating degree days 20/12, Kd
    // The station as the climate plane's last load named it: "Region " + the region row in the
    // Germany scope, the station row in the others; empty before the first load.
    std::string Klimaname;
};

struct Projekt {
    // --- Geometry inputs
    float l = 0;        // building length, east-west extent, m
    float b = 0;        // building width, north-south extent, m
    float h = 0;        // height without roof, m
    float hd = 0;       // roof height, eaves to ridge, m
    float ag = 0;       // number of heated floors
    int16_t orient = 0; // deviation of the south facade from south, degrees, positive to west
    // Plane state of the roof: heated attic, and the ridge option set (1 north-south,
    // 2 east-west, 0 neither). At program start the north-south option is set.
    bool Dachgeschoss = false;
    int16_t Dachfirst = 1;

    // --- Insulation inputs, U values in W/(m² K)
    float kwn = 0, kws = 0, kwo = 0, kww = 0; // walls of each facade
    float kd = 0;                             // upper closure (roof or top ceiling)
    float kk = 0;                             // lower floor
    float ft = 0;                             // door area in the north wall, m²
    float kt = 0;                             // door
    float Waermebruecken = 0;                 // heat bridge surcharge: 0, 0.1 or 0.05
    int16_t ugd_typ = 0;                      // kind of the lower floor, 0..4
    int16_t Dachraum_typ = 0;                 // kind of the unheated roof space, 0..3
    float absfaktor = 0;                      // solar absorption of the outer walls, 0..1
    int16_t cbk_hDach = 0;                    // ventilated roof check, 0 or 1

    // --- Window inputs, per facade n, s, o (east), w
    int16_t fn = 0, fs = 0, fo = 0, fw = 0;                   // window share, percent
    float verschn = 0, verschs = 0, verscho = 0, verschw = 0; // shading reduction, 0..1
    float ran = 0, ras = 0, rao = 0, raw = 0;                 // frame share, 0..1
    int16_t fenstern_typ = 0, fensters_typ = 0, fenstero_typ = 0, fensterw_typ = 0;
    float gfn = 0, gfs = 0, gfo = 0, gfw = 0;     // g value of the glazing
    float kfn = 0, kfs = 0, kfo = 0, kfw = 0;     // U value of the whole window (not in the file)
    float kfgn = 0, kfgs = 0, kfgo = 0, kfgw = 0; // U value of the glazing
    float kfrn = 0, kfrs = 0, kfro = 0, kfrw = 0; // U value of the frame
    // Plane state of the window mode: 0 the same windows at all facades, 1 individual.
    int16_t Fenstermodus = 0;

    // --- Building inputs
    int16_t awn = 0, aws = 0, awo = 0, aww = 0; // 1 outer wall, 0 wall to a heated neighbour
    float lw = 0;                               // mechanical air change, 1/h
    float infiltration = 0;                     // infiltration air change, 1/h
    float WRG = 0;                              // heat recovery efficiency, 0..1
    float intg = 0;                             // internal gains, kWh/(m² a) of usable floor
    float Troom = 0;                            // set temperature, °C
    float Tueber = 0;                           // overheating limit and cooling set point, °C
    float Klimaeffizienz = 0; // cooling energy per electric energy of the cooling plant
    // Plane state of the two construction lists, index 0 heavy, 1 medium, 2 light.
    int16_t Aussenwandart = 1;
    int16_t Innenwandart = 1;

    // --- Climate and heat supply inputs
    std::string Klimadatei;     // station file name, no folder
    int16_t Klimaauswahl = 0;   // active climate option, 1..3
    int16_t Heizsystem = 0;     // row of the heating system catalogue, 1..9
    int16_t Uebergabe = 0;      // transfer of that row, 1..2
    int16_t Energietraeger = 0; // carrier of that row, 1..4

    // --- Derived geometry, written by the driver only (areas m², volumes m³)
    float Dachneigung = 0;                            // roof pitch, degrees; 0 without heated attic
    float f_sfa = 0, f_wfa = 0, f_nfa = 0, f_ofa = 0; // gross facade, 0 for a non-outer wall
    float f_dach_s = 0, f_dach_w = 0, f_dach_n = 0, f_dach_o = 0; // roof planes by direction
    float f_dach_flach = 0;                                       // flat upper ceiling
    float f_giebel_s = 0, f_giebel_w = 0, f_giebel_n = 0, f_giebel_o = 0; // gable triangles
    float v_geb = 0;                                                      // gross heated volume
    float v_luft = 0;                                                     // air volume
    float f_gd = 0;                                                       // ground floor area
    float f_nutz = 0;                                                     // usable floor area
    float AV = 0;                                                         // envelope to volume, 1/m
    float Fx_ugd = 0;                             // temperature correction of the lower floor
    float f_nf = 0, f_wf = 0, f_sf = 0, f_of = 0; // window areas
    float f_nw = 0, f_ww = 0, f_sw = 0, f_ow = 0; // net walls; the north one less the door
    float f_wand = 0;                             // sum of the net walls
    float f_gf = 0;                               // sum of the window areas

    // --- Building parameters
    float Cwirk = 0; // effective heat capacity of building and air, J/K
    float tau = 0;   // time constant, s

    // --- Climate of the current station
    OneBased<Monatswerte, MONATE> Monat;
    std::array<Dachraumzeile, 4> Dachraum;      // rows 0..2 from the station read, row 3 empty
    OneBased<std::string, MONATE> Regionsdatei; // station file of each German region
    float Breite = 0;                           // latitude, radians
    float Laengenkorrektur = 0; // longitude minus 15 times the zone, degrees (west positive)
    Stundentabelle<Wetterwert> Wetter;

    // --- Year sums of the monthly balance, kWh or kWh/(m² a) for the names ending in s
    float qh = 0, qhs_sum = 0, qsol = 0, qsols = 0, qi = 0, qis = 0;
    float qtr = 0, qtrs = 0, qinf = 0, qinfs = 0, qverl_s = 0;
    float Fensterverlust_N = 0, Fensterverlust_W = 0, Fensterverlust_S = 0, Fensterverlust_O = 0;
    float Fenstergewinn_N = 0, Fenstergewinn_W = 0, Fenstergewinn_S = 0, Fenstergewinn_O = 0;
    float qtr_Waende = 0, qtr_Dach = 0, qtr_Boden = 0, qtr_Fenster = 0, qtr_Tuer = 0;

    // --- Hourly simulation: °C and kWh per hour
    Stundentabelle<float> T_frei;  // free-running indoor temperature at the end of the hour
    Stundentabelle<float> T_regel; // controlled indoor temperature at the end of the hour
    Stundentabelle<float> Q_heiz;  // heating energy of the hour
    Stundentabelle<float> Q_kuehl; // cooling energy of the hour
    float Heizlast_max = 0;        // largest Q_heiz, kWh per hour
    float Kuehllast_max = 0;       // largest Q_kuehl, kWh per hour

    // --- End and primary energy, kWh/(m² a)
    float q_HE_Energietraeger = 0, q_HE_Strom = 0, q_PE_Energietraeger = 0, q_PE_Strom = 0;
    Energiekennwerte Energie; // what the energy plane shows after the last refresh
    Klimakennwerte Klimainfo; // what the climate information plane shows

    // --- Control fields of the program run (never in the project file)
    int16_t Geaendert = 0;     // 1 after any user change
    int16_t FormLoadGuard = 0; // -1 while a project is built up: geometry only
    std::string Datei;         // path of the project, or "default.vel"
    int16_t Datei_offen = 0;   // 1 while the project file is held open
    int16_t Gestartet = 0;     // 1 once the start sequence is over
    int16_t Druckerindex = 0;  // printer that was the default at start
    std::string InitDir;       // first folder of the file dialogs
    std::string AppPfad;       // folder of the program
    std::string KlimaOrdner;   // folder of the station files, normally AppPfad + "/klima"
    // The user's own folders of an installed program, empty when it runs from its build: the
    // stations the user imported (looked up before KlimaOrdner) and the language file.
    std::string EigeneStationen;
    std::string Einstellungen;
    std::string Sprache; // "d" or "e"
    int16_t Monat_Uebersicht = 7;

    // --- Shared texts of the language of the run, set once per start
    std::string txt_Aenderung, txt_Aenderung_Titel; // the prompt about unsaved changes
    std::string txt_Ersetzen;                       // the prompt before replacing a file
    std::string txt_Klima_fehlt, txt_Klima_Titel;   // a project's station file is missing
    std::string txt_Sprache;                        // a language change needs a new start
    std::string txt_Ueberwaermung, txt_Monat, txt_Jahresbilanz, txt_Raumluft, txt_Aussenluft;

    // Who is told of the driver's runs on this record.
    Beobachterliste beobachter;
};

// The one project of the running program.
Projekt& projekt();

// Sets every input to the values of a new project, the station names and the unnamed file name.
void neues_projekt(Projekt& p);
