// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ZoomKlima.h"

#include "climate/ebene/stationskarten.h"
#include "ui/Bau.h"

#include <QComboBox>
#include <QPushButton>

namespace {

// The world map picture, 650 x 250 pixels before the enlargement.
constexpr int WELT_BREITE = 650;
constexpr int WELT_HOEHE = 250;

} // namespace

ZoomKlimaFenster::ZoomKlimaFenster(E_Klima& e, const std::string& welt, QWidget* eltern)
    : QDialog(eltern), e_(e) {
    setObjectName(QStringLiteral("E_Zoom_Klima"));
    setWindowModality(Qt::ApplicationModal);
    setWindowTitle(QStringLiteral("Klimastationen - Welt"));
    Picture1 = new Stationskarte(this, welt, WELT_BREITE, WELT_HOEHE, ZOOM_FAKTOR);
    Picture1->setObjectName(QStringLiteral("Picture1"));
    Picture1->move(8, 8);
    const int unten = Picture1->y() + Picture1->height() + 8;
    Klimaregionwahl2 = new Namensliste(this);
    Klimaregionwahl2->setGeometry(8, unten, 336, 22);
    Klimaregionwahl2->setObjectName(QStringLiteral("Klimaregionwahl2"));
    ueberschrift = bau::text(this, nullptr, "Klimastationen - Welt", 352, unten + 3);
    ueberschrift->setProperty("zeile", 10);
    const int rechts = Picture1->x() + Picture1->width();
    Command1 = bau::knopf(this, "Command1", "OK", rechts - 208, unten, 100, 24);
    Command2 = bau::knopf(this, "Command2", "Abbrechen", rechts - 100, unten, 100, 24);
    Command2->setProperty("zeile", 11);
    setFixedSize(rechts + 8, unten + 32);
    schwebe = Schwebetext::bauen(Picture1, "MausRegion");

    Picture1->bewegung = [this](int32_t farbe, int x, int y) {
        E_Zoom_Klima_hover(modell, e_, farbe, x, y);
        schwebe.bewegt(x, y, modell.MausRegion);
    };
    Picture1->loslassen = [this](int32_t farbe, int x, int y) {
        E_Zoom_Klima_klick(modell, e_, farbe, x, y);
        zeigen();
    };
    connect(Klimaregionwahl2, QOverload<int>::of(&QComboBox::activated), this, [this](int i) {
        modell.Klimaregionwahl2.waehlen(i);
        zeigen();
    });
    connect(Command1, &QPushButton::clicked, this, [this] {
        if (bestaetigt) {
            bestaetigt(modell);
        }
        close();
    });
    connect(Command2, &QPushButton::clicked, this, &QDialog::close);
}

void ZoomKlimaFenster::oeffnen() {
    modell = E_Zoom_Klima_oeffnen(e_);
    Klimaregionwahl2->clear();
    for (const std::string& z : modell.Klimaregionwahl2.Eintraege) {
        Klimaregionwahl2->addItem(QString::fromStdString(z));
    }
    zeigen();
    show();
    raise();
}

void ZoomKlimaFenster::zeigen() {
    const Klimaliste& l = modell.Klimaregionwahl2;
    const QSignalBlocker still(Klimaregionwahl2);
    Klimaregionwahl2->setPlaceholderText(QString::fromStdString(l.Text));
    Klimaregionwahl2->setCurrentIndex(l.ListIndex);
    Klimaregionwahl2->anpassen();
    Picture1->punkte_setzen(kartenpunkte(e_.listen.Welt, l.ListIndex, ZOOM_FAKTOR));
}
