// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/StartFenster.h"

#include "ui/Bau.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>
#include <QResizeEvent>

namespace {

// The about text: the program and its maker.
constexpr const char* INFO_D =
    "<h2>Velmaris</h2><p>Ein Lehrprogramm zum Energiebedarf eines Gebäudes.</p>"
    "<p>Velmaris-Projekt<br>Freie Software unter der GNU General Public License, Version 3 "
    "oder später.</p>";
constexpr const char* INFO_E =
    "<h2>Velmaris</h2><p>A teaching program on the energy use of a building.</p>"
    "<p>The Velmaris project<br>Free software under the GNU General Public License, version 3 "
    "or later.</p>";

// The least size of the window, 9750 x 6435 twips.
constexpr int MIN_BREITE = 9750 / bau::TWIPS_JE_PIXEL;
constexpr int MIN_HOEHE = 6435 / bau::TWIPS_JE_PIXEL;

} // namespace

StartFenster::StartFenster(std::function<void()> aufbau, std::function<bool()> gestartet)
    : aufbau_(std::move(aufbau)), gestartet_(std::move(gestartet)) {
    setObjectName(QStringLiteral("Start"));
    setWindowTitle(QStringLiteral("Velmaris"));
    setMinimumSize(MIN_BREITE, MIN_HOEHE);
    resize(MIN_BREITE, MIN_HOEHE);
    Info = new QLabel(this);
    Info->setObjectName(QStringLiteral("Info"));
    Info->setAlignment(Qt::AlignCenter);
    Info->setWordWrap(true);
    OK_Button = new QPushButton(QStringLiteral("OK"), this);
    OK_Button->setObjectName(QStringLiteral("OK_Button"));
    Timer1.setInterval(10000);
    Timer1.setSingleShot(true);
    connect(&Timer1, &QTimer::timeout, this, [this] { aufbau_(); });
    connect(OK_Button, &QPushButton::clicked, this, [this] {
        if (gestartet_()) {
            hide();
        } else {
            Timer1.stop();
            aufbau_();
        }
    });
}

void StartFenster::infotext_setzen(const std::string& sprache) {
    Info->setText(QString::fromUtf8(sprache == "e" ? INFO_E : INFO_D));
}

void StartFenster::closeEvent(QCloseEvent* e) {
    // The close box of the splash and of the about box asks about unsaved changes like the main
    // window's, and unless cancelled ends the program at once.
    if (schliessen_erlaubt && !schliessen_erlaubt()) {
        e->ignore();
        return;
    }
    e->accept();
    QApplication::quit();
}

void StartFenster::resizeEvent(QResizeEvent* e) {
    const QSize s = e->size();
    Info->setGeometry(20, 20, s.width() - 40, s.height() - 80);
    OK_Button->setGeometry((s.width() - 90) / 2, s.height() - 50, 90, 28);
}

Sprachwahl_Fenster::Sprachwahl_Fenster(const std::string& grafiken) {
    setObjectName(QStringLiteral("Sprachwahl"));
    setWindowTitle(QStringLiteral("Velmaris"));
    setFixedSize(260, 130);
    auto bild = [&](const char* name, const char* datei, int x, const char* buchstabe) {
        auto* b = new QPushButton(this);
        b->setObjectName(QString::fromUtf8(name));
        b->setIcon(QIcon(QString::fromStdString(grafiken + "/" + datei)));
        b->setIconSize(QSize(90, 54));
        b->setFlat(true);
        b->setGeometry(x, 16, 100, 62);
        connect(b, &QPushButton::clicked, this, [this, buchstabe] {
            gewaehlt = buchstabe;
            accept();
        });
    };
    auto text = [&](const char* name, const char* t, int x, const char* buchstabe) {
        auto* b = new QPushButton(QString::fromUtf8(t), this);
        b->setObjectName(QString::fromUtf8(name));
        b->setFlat(true);
        b->setGeometry(x, 84, 100, 24);
        connect(b, &QPushButton::clicked, this, [this, buchstabe] {
            gewaehlt = buchstabe;
            accept();
        });
    };
    bild("Image1", "deutsch.bmp", 20, "d");
    bild("Image2", "english.bmp", 140, "e");
    text("Label4", "Deutsch", 20, "d");
    text("Label5", "English", 140, "e");
}
