// SPDX-License-Identifier: GPL-3.0-or-later
#include "energy/katalog.h"

namespace {

const char* const RADIATOREN_70 = "Heizflächen (Außenwand), Thermostatventile, Auslegungs- "
                                  "proportionalbereich: 1K, Systemtemperatur: 70/55°C";
const char* const RADIATOREN_55 = "Heizflächen (Außenwand), Thermostatventile, Auslegungs- "
                                  "proportionalbereich: 1K, Systemtemperatur: 55/45°C";
const char* const FUSSBODEN = "Integrierte Heizflächen (z.B. Fußbodenheizung), Schaltdifferenz: "
                              "1 K, Systemtemperatur: 35/28°C";
const char* const RADIATORS_70 = "radiators (outside walls), thermostatic valves (layout "
                                 "temperature: 1K), system temperature: 70/55°C";
const char* const RADIATORS_55 = "radiators (outside walls), thermostatic valves (layout "
                                 "temperature: 1K), system temperature: 55/45°C";
const char* const UNDERFLOOR =
    "underfloor heating (switch difference : 1K), system temperature: 35/28°C";

std::array<Heizsystemzeile, 9> deutsch() {
    const std::array<std::string, 4> oel_gas = {"Heizöl EL", "Erdgas H", "", ""};
    return {{
        {"Niedertemperaturkessel, Kessel und Verteilleitungen innerhalb der thermischen Hülle",
         {RADIATOREN_70, FUSSBODEN},
         oel_gas},
        {"Brennwertkessel, Kessel und Verteilleitungen innerhalb der thermischen Hülle",
         {RADIATOREN_70, FUSSBODEN},
         oel_gas},
        {"Brennwertkessel (hocheffektiv), Kessel und Verteilleitungen innerhalb der thermischen "
         "Hülle",
         {RADIATOREN_70, FUSSBODEN},
         oel_gas},
        {"Biomasse-Heizkessel, direkte und indirekte Wärmeabgabe, Kessel und Verteilleitungen "
         "innerhalb der thermischen Hülle",
         {RADIATOREN_70, FUSSBODEN},
         {"Holzpellets", "Stückholz", "", ""}},
        {"Biomasse-Heizkessel, indirekte Wärmeabgabe, Kessel und Verteilleitungen innerhalb der "
         "thermischen Hülle",
         {RADIATOREN_70, FUSSBODEN},
         {"Holzpellets", "", "", ""}},
        {"Nah- oder Fernwärme, Übergabe und Verteilleitungen innerhalb der thermischen Hülle",
         {RADIATOREN_70, FUSSBODEN},
         {"Wärme aus Kraftwärmekopplung, fossiler Brennstoff",
          "Wärme aus Kraftwärmekopplung, erneuerbarer Brennstoff",
          "Wärme aus Heizkraftwerken, fossiler Brennstoff",
          "Wärme aus Heizkraftwerken, erneuerbarer Brennstoff"}},
        {"Erdreich-Wärmepumpe, Pufferspeicher und Verteilleitungen innerhalb der thermischen "
         "Hülle",
         {RADIATOREN_55, FUSSBODEN},
         {"Strom", "", "", ""}},
        {"Elektro-Direktheizung", {"", ""}, {"Strom", "", "", ""}},
        {"Elektro-Speicherheizung", {"", ""}, {"Strom", "", "", ""}},
    }};
}

std::array<Heizsystemzeile, 9> englisch() {
    const std::array<std::string, 4> oil_gas = {"fuel oil", "natural gas", "", ""};
    return {{
        {"low temperature burner, boiler and distribution inside the thermal zone",
         {RADIATORS_70, UNDERFLOOR},
         oil_gas},
        {"condensing boiler, boiler and distribution inside the thermal zone",
         {RADIATORS_70, UNDERFLOOR},
         oil_gas},
        {"condensing boiler (high efficiency), boiler and distribution inside the thermal zone",
         {RADIATORS_70, UNDERFLOOR},
         oil_gas},
        {"biomass boiler, direct and indirect thermal output, boiler and distribution inside the "
         "thermal zone",
         {RADIATORS_70, UNDERFLOOR},
         {"wool pellets", "firewood", "", ""}},
        {"biomass boiler, indirect thermal output, boiler and distribution inside the thermal "
         "zone",
         {RADIATORS_70, UNDERFLOOR},
         {"wool pellets", "", "", ""}},
        {"district heat, boiler and distribution inside the thermal zone",
         {RADIATORS_70, UNDERFLOOR},
         {"heat from combined heat and power system, fossil fuels",
          "heat from combined heat and power system, renew. energy",
          "heat from thermal power station, fossil fuels",
          "heat from thermal power station, renewable energy"}},
        {"soil heat pump, buffer storage and distribution inside the thermal zone",
         {RADIATORS_55, UNDERFLOOR},
         {"electricity", "", "", ""}},
        {"electric direct heating", {"", ""}, {"electricity", "", "", ""}},
        {"electric storage heating", {"", ""}, {"electricity", "", "", ""}},
    }};
}

} // namespace

std::array<Heizsystemzeile, 9> katalog_laden(const std::string& sprache) {
    // "wool pellets" is the program's own English text and stays as it is.
    return sprache == "e" ? englisch() : deutsch();
}
