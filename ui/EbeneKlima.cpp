// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/klimainfo_texte.h"
#include "project/c_glob.h"
#include "ui/Bau.h"
#include "ui/Ebenen.h"
#include "ui/Stationskarte.h"

using namespace bau;

namespace {

// One row of a frame: the caption (its row in the caption table), the value field and the unit.
struct Zeile {
    QLabel* KlimaFelder::*feld;
    const char* name;
    const char* text;
    int zeile;
    const char* einheit;
    int einheit_zeile; // the unit's row in the caption table, -1 for a unit of both languages
};

constexpr int ABSTAND = 21;

void zeilen_bauen(QGroupBox* rahmen, KlimaFelder& f, const std::vector<Zeile>& zeilen, int oben) {
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        const Zeile& z = zeilen[i];
        const int y = oben + static_cast<int>(i) * ABSTAND;
        text(rahmen, nullptr, z.text, 10, y + 1)->setProperty("zeile", z.zeile);
        QLabel* wert = anzeige(rahmen, 270, y, 70);
        wert->setObjectName(QString::fromUtf8(z.name));
        wert->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        f.*z.feld = wert;
        QLabel* einheit = text(rahmen, nullptr, z.einheit, 346, y + 1);
        if (z.einheit_zeile >= 0) {
            einheit->setProperty("zeile", z.einheit_zeile);
        }
    }
}

QString qt(const std::string& s) {
    return QString::fromStdString(s);
}

} // namespace

KlimaFelder klima_bauen(QWidget& e) {
    KlimaFelder f;
    QGroupBox* klima = rahmen(&e, "Frame1", "Klima", 6, 4, 436, 214);
    klima->setProperty("zeile", 0);
    f.anz_klimaregion = text(klima, "anz_klimaregion", "", 10, 20, 410);
    QFont fett = f.anz_klimaregion->font();
    fett.setBold(true);
    f.anz_klimaregion->setFont(fett);
    zeilen_bauen(
        klima, f,
        {{&KlimaFelder::anz_MaxJahrTemp, "anz_MaxJahrTemp", "Maximale Jahrestemperatur", 1, "°C",
          -1},
         {&KlimaFelder::anz_MaxMonatTemp, "anz_MaxMonatTemp", "Maximaler Monatsmittelwert", 2, "°C",
          -1},
         {&KlimaFelder::anz_MaxMonatName, "anz_MaxMonatName",
          "Monat mit maximaler Mitteltemperatur", 3, "", -1},
         {&KlimaFelder::anz_MittelJahrTemp, "anz_MittelJahrTemp", "Jahresmitteltemperatur", 4, "°C",
          -1},
         {&KlimaFelder::anz_MinMonatTemp, "anz_MinMonatTemp", "Minimaler Monatsmittelwert", 5, "°C",
          -1},
         {&KlimaFelder::anz_MinMonatName, "anz_MinMonatName",
          "Monat mit minimaler Mitteltemperatur", 6, "", -1},
         {&KlimaFelder::anz_MinJahrTemp, "anz_MinJahrTemp", "Minimale Jahrestemperatur", 7, "°C",
          -1},
         {&KlimaFelder::anz_Heizgradtage, "anz_Heizgradtage", "Heizgradtage (12/20)", 8, "Kd", -1}},
        40);
    QGroupBox* gebaeude = rahmen(&e, "Frame2", "Gebäude", 6, 224, 436, 272);
    gebaeude->setProperty("zeile", 9);
    zeilen_bauen(
        gebaeude, f,
        {{&KlimaFelder::anz_Umittel, "anz_Umittel", "Mittlerer U-Wert", 10, "W/(m² K)", -1},
         {&KlimaFelder::anz_Tspez, "anz_Tspez", "Spez. Transmissionsverluste", 11, "W/K", -1},
         {&KlimaFelder::anz_Vspez, "anz_Vspez", "Spez. Lüftungsverluste", 12, "W/K", -1},
         {&KlimaFelder::anz_TVspez, "anz_TVspez", "Spez. Verluste", 13, "W/K", -1},
         {&KlimaFelder::anz_tau, "anz_tau", "Thermische Trägheit", 14, "Stunden", 15},
         {&KlimaFelder::anz_Heizlast, "anz_Heizlast", "Maximale Heizlast", 16, "kW", -1},
         {&KlimaFelder::anz_heizlast_spez, "anz_heizlast_spez", "Maximale spezifische Heizlast", 17,
          "W/m²", -1},
         {&KlimaFelder::anz_kuehllast, "anz_kuehllast", "Maximale Kühllast", 18, "kW", -1},
         {&KlimaFelder::anz_kuehllast_spez, "anz_kuehllast_spez", "Maximale spezifische Kühllast",
          19, "W/m²", -1},
         {&KlimaFelder::anz_Heizgrenztemp, "anz_Heizgrenztemp", "Heizgrenztemperatur", 20, "°C",
          -1},
         {&KlimaFelder::anz_Heiztage, "anz_Heiztage", "Effektive Heiztage", 21, "Tage", 22}},
        22);
    return f;
}

void klima_ausfuellen(const KlimaFelder& f, const Projekt& p, char dez) {
    const KlimainfoTexte t = klimainfo_texte(p, dez);
    name_setzen(*f.anz_klimaregion, qt(t.anz_klimaregion));
    f.anz_MaxJahrTemp->setText(qt(t.anz_MaxJahrTemp));
    f.anz_MaxMonatTemp->setText(qt(t.anz_MaxMonatTemp));
    f.anz_MaxMonatName->setText(qt(t.anz_MaxMonatName));
    f.anz_MittelJahrTemp->setText(qt(t.anz_MittelJahrTemp));
    f.anz_MinMonatTemp->setText(qt(t.anz_MinMonatTemp));
    f.anz_MinMonatName->setText(qt(t.anz_MinMonatName));
    f.anz_MinJahrTemp->setText(qt(t.anz_MinJahrTemp));
    f.anz_Heizgradtage->setText(qt(t.anz_Heizgradtage));
    f.anz_Umittel->setText(qt(t.anz_Umittel));
    f.anz_Tspez->setText(qt(t.anz_Tspez));
    f.anz_Vspez->setText(qt(t.anz_Vspez));
    f.anz_TVspez->setText(qt(t.anz_TVspez));
    f.anz_tau->setText(qt(t.anz_tau));
    f.anz_Heizlast->setText(qt(t.anz_Heizlast));
    f.anz_heizlast_spez->setText(qt(t.anz_heizlast_spez));
    f.anz_kuehllast->setText(qt(t.anz_kuehllast));
    f.anz_kuehllast_spez->setText(qt(t.anz_kuehllast_spez));
    f.anz_Heizgrenztemp->setText(qt(t.anz_Heizgrenztemp));
    f.anz_Heiztage->setText(qt(t.anz_Heiztage));
}
