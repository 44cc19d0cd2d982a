// SPDX-License-Identifier: GPL-3.0-or-later
// The energy plane of the desktop program on the offscreen platform: the list panel under its
// field and its choice, the English captions and the tooltip over the monthly chart.
#include "energy/energie.h"
#include "project/Zahlformat.h"
#include "project/c_glob.h"
#include "tests/project/SkriptDialogs.h"
#include "tests/support/Testprojekt.h"
#include "tests/ui/Uitesthilfe.h"
#include "ui/ChartWidget.h"
#include "ui/Desktopprogramm.h"
#include "ui/Tooltiprahmen.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include <filesystem>

class TestEnergieebene : public QObject {
    Q_OBJECT

    std::unique_ptr<SkriptDialogs> dialoge;
    std::unique_ptr<Testprogramm> programm;
    std::unique_ptr<TempOrdner> klima;

    void starten(const char* sprache) {
        dialoge = std::make_unique<SkriptDialogs>();
        programm = programm_starten(dialoge.get(), *klima, sprache);
        QVERIFY(programm->haupt->isVisible());
        QTest::mouseClick(programm->haupt->eingabe_knopf[Hauptfenster::Energie], Qt::LeftButton);
        QVERIFY(ebene()->isVisible());
    }
    QWidget* ebene() { return programm->haupt->eingabe[Hauptfenster::Energie]; }
    QLabel* label(const char* name) {
        auto* l = ebene()->findChild<QLabel*>(QString::fromUtf8(name));
        if (l == nullptr) {
            qFatal("no label %s", name);
        }
        return l;
    }
    // The button `knopf` opens the list, the entry `index` (1..9) is clicked.
    void waehlen(const char* knopf, int index) {
        QTest::mouseClick(ebene()->findChild<QPushButton*>(QString::fromUtf8(knopf)),
                          Qt::LeftButton);
        QVERIFY(programm->energie_diagramme.Frame_Auswahl->isVisible());
        QLabel* eintrag =
            programm->energie_diagramme.Label_Auswahl[static_cast<std::size_t>(index - 1)];
        QVERIFY(eintrag->isVisible());
        QTest::mouseClick(eintrag, Qt::LeftButton, Qt::NoModifier, QPoint(4, 4));
        QVERIFY(!programm->energie_diagramme.Frame_Auswahl->isVisible());
    }
    QString text(const char* name) { return label(name)->text(); }
    // Saves the main window when VELMARIS_BILDER names a folder.
    void bild(const QString& name) { bild_speichern(*programm->haupt, name); }

private slots:
    void initTestCase() { klima = klima_kopie(); }
    void cleanup() {
        programm.reset();
        dialoge.reset();
    }

    // The list panel opens under its field with each entry under its predecessor by that one's
    // own height and a gap of 8 pixels; a click on an entry reaches the plane, and a new
    // system resets the carrier.
    void liste_unter_ihrem_feld_und_ihre_wahl() {
        starten("d");
        Projekt& p = programm->p;
        const EnergieDiagramme& d = programm->energie_diagramme;
        QTest::mouseClick(ebene()->findChild<QPushButton*>(QStringLiteral("Command1")),
                          Qt::LeftButton);
        const QRect feld = label("Label_System")->geometry();
        QCOMPARE(d.Frame_Auswahl->pos(), QPoint(feld.x(), feld.y() + feld.height()));
        for (std::size_t i = 1; i < d.Label_Auswahl.size(); ++i) {
            QCOMPARE(d.Label_Auswahl[i]->y(),
                     d.Label_Auswahl[i - 1]->y() + d.Label_Auswahl[i - 1]->height() + 8);
        }
        // The long biomass texts wrap over more lines than the short electric ones.
        QVERIFY(d.Label_Auswahl[3]->height() > d.Label_Auswahl[7]->height());
        QVERIFY(d.Frame_Auswahl->geometry().bottom() < ebene()->height());
        bild(QStringLiteral("energie_liste"));
        QTest::mouseClick(ebene()->findChild<QPushButton*>(QStringLiteral("Command1")),
                          Qt::LeftButton);
        QVERIFY(!d.Frame_Auswahl->isVisible());

        waehlen("Command1", 6);
        waehlen("Command3", 3);
        QCOMPARE(p.Heizsystem, int16_t{6});
        QCOMPARE(p.Energietraeger, int16_t{3});
        waehlen("Command1", 1);
        QCOMPARE(p.Energietraeger, int16_t{1});
        // The carrier and the transfer list of system 1 offer two entries each; a second click
        // closes a list.
        for (const char* knopf : {"Command3", "Command3", "Command2"}) {
            QTest::mouseClick(ebene()->findChild<QPushButton*>(QString::fromUtf8(knopf)),
                              Qt::LeftButton);
        }
        QVERIFY(d.Label_Auswahl[1]->isVisible() && !d.Label_Auswahl[2]->isVisible());
        const QRect uebergabe = label("Label_Übergabe")->geometry();
        QCOMPARE(d.Frame_Auswahl->y(), uebergabe.y() + uebergabe.height());
    }

    // The monthly chart's tooltip comes after the rest time, left of the pointer, and not over
    // the axis.
    void tooltip_der_monatsuebersicht() {
        starten("d");
        waehlen("Command1", 7);
        QCOMPARE(programm->p.Energie.Traegername, std::string("Strom"));
        bild(QStringLiteral("energie_strom"));

        const EnergieDiagramme& d = programm->energie_diagramme;
        Tooltiprahmen& t = *d.tooltip;
        const QImage& b = d.Monatsuebersicht->flaeche().bild();
        const QPoint dezember(300, 93);
        QVERIFY(b.pixelColor(dezember) == QColor(255, 0, 0));
        const QPoint global = d.Monatsuebersicht->mapToGlobal(dezember);
        QCursor::setPos(global);
        bewegen(d.Monatsuebersicht, dezember);
        QVERIFY(t.Timer_Tip_ein.isActive());
        QTRY_VERIFY_WITH_TIMEOUT(t.Frame_ToolTip->isVisible(), 2000);
        const Energiemonate w = energie_monatswerte(programm->p);
        QCOMPARE(t.Label_Tooltip->text().split(QLatin1Char('\n')).value(1),
                 QStringLiteral("Heizenergiebedarf (Strom):: ") +
                     QString::fromStdString(format_muster(w.E[12], "0.0", ',')) +
                     QStringLiteral(" kWh / (m² Monat)"));
        QCOMPARE(t.Frame_ToolTip->pos(),
                 ebene()->mapFromGlobal(global) - QPoint(t.Frame_ToolTip->width() + 5, 20));
        bewegen(d.Monatsuebersicht, QPoint(30, 50));
        QVERIFY(!t.Frame_ToolTip->isVisible());
        QVERIFY(!t.Timer_Tip_ein.isActive());
    }

    void englische_beschriftung() {
        starten("e");
        bild(QStringLiteral("energie_e"));
        QCOMPARE(text("Label1"), QStringLiteral("heating system"));
        QCOMPARE(text("Label30"), QStringLiteral("losses of distribution and storage:"));
        QCOMPARE(text("Label_System"),
                 QStringLiteral("low temperature burner, boiler and distribution inside the "
                                "thermal zone"));
        QCOMPARE(ebene()->findChild<QGroupBox*>(QStringLiteral("Frame1"))->title(),
                 QStringLiteral("end energy demand"));
    }
};

QTEST_MAIN(TestEnergieebene)
#include "test_energieebene.moc"
