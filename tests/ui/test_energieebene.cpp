// SPDX-License-Identifier: GPL-3.0-or-later
// The energy plane of the desktop program on the offscreen platform: the list panel under its
// field, a new system resetting the carrier, electricity hiding its lines, the captions in both
// languages and the tooltip over the monthly chart.
#include "energy/energie.h"
#include "project/Zahlformat.h"
#include "project/c_glob.h"
#include "tests/project/SkriptDialogs.h"
#include "tests/support/Testprojekt.h"
#include "tests/ui/Uitesthilfe.h"
#include "ui/ChartWidget.h"
#include "ui/Desktopprogramm.h"
#include "ui/Tooltiprahmen.h"

#include <QFrame>
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

    void liste_steht_unter_ihrem_feld_und_stapelt_die_eintraege() {
        starten("d");
        QTest::mouseClick(ebene()->findChild<QPushButton*>(QStringLiteral("Command1")),
                          Qt::LeftButton);
        const EnergieDiagramme& d = programm->energie_diagramme;
        QVERIFY(d.Frame_Auswahl->isVisible());
        const QRect feld = label("Label_System")->geometry();
        QCOMPARE(d.Frame_Auswahl->y(), feld.y() + feld.height());
        QCOMPARE(d.Frame_Auswahl->x(), feld.x());
        // Each entry under its predecessor by that one's own height and the gap of 8 pixels;
        // the long biomass texts wrap over more lines than the short electric ones.
        for (std::size_t i = 1; i < d.Label_Auswahl.size(); ++i) {
            QVERIFY(d.Label_Auswahl[i]->isVisible());
            QCOMPARE(d.Label_Auswahl[i]->y(),
                     d.Label_Auswahl[i - 1]->y() + d.Label_Auswahl[i - 1]->height() + 8);
        }
        QVERIFY(d.Label_Auswahl[3]->height() > d.Label_Auswahl[7]->height());
        QCOMPARE(d.Label_Auswahl[7]->text(), QStringLiteral("Elektro-Direktheizung"));
        QVERIFY(d.Frame_Auswahl->geometry().bottom() < ebene()->height());
        bild(QStringLiteral("energie_liste"));
        // The same button closes it; the transfer list of system 1 has two entries.
        QTest::mouseClick(ebene()->findChild<QPushButton*>(QStringLiteral("Command1")),
                          Qt::LeftButton);
        QVERIFY(!d.Frame_Auswahl->isVisible());
        QTest::mouseClick(ebene()->findChild<QPushButton*>(QStringLiteral("Command2")),
                          Qt::LeftButton);
        QVERIFY(d.Label_Auswahl[1]->isVisible());
        QVERIFY(!d.Label_Auswahl[2]->isVisible());
        const QRect feld2 = label("Label_Übergabe")->geometry();
        QCOMPARE(d.Frame_Auswahl->y(), feld2.y() + feld2.height());
    }

    void system_6_dann_1_setzt_den_traeger_zurueck() {
        starten("d");
        Projekt& p = programm->p;
        waehlen("Command1", 6);
        waehlen("Command3", 3);
        QCOMPARE(p.Heizsystem, int16_t{6});
        QCOMPARE(p.Energietraeger, int16_t{3});
        QCOMPARE(text("Label_Energieträger"),
                 QStringLiteral("Wärme aus Heizkraftwerken, fossiler Brennstoff"));
        QCOMPARE(text("Label27"), QStringLiteral("Nah-/Fernwärme:"));
        QCOMPARE(text("anz_Primärenergiefaktor_Energieträger"), QStringLiteral("1,3"));

        waehlen("Command1", 1);
        QCOMPARE(p.Energietraeger, int16_t{1});
        QCOMPARE(text("Label_Energieträger"), QStringLiteral("Heizöl EL"));
        QCOMPARE(text("Label8"), QStringLiteral("Heizenergiebedarf (Heizöl):"));
        QCOMPARE(text("Label21"), QStringLiteral("Primärenergiebedarf (Heizöl):"));
        QCOMPARE(text("anz_Primärenergiefaktor_Energieträger"), QStringLiteral("1,1"));
        QCOMPARE(text("anz_e_g"), QStringLiteral("1,08"));
        QCOMPARE(text("anz_q_HE_Energieträger"),
                 QString::fromStdString(format_muster(p.q_HE_Energietraeger, "0.0", ',')));
        // The carrier list of system 1 offers two carriers only.
        QTest::mouseClick(ebene()->findChild<QPushButton*>(QStringLiteral("Command3")),
                          Qt::LeftButton);
        QVERIFY(programm->energie_diagramme.Label_Auswahl[1]->isVisible());
        QVERIFY(!programm->energie_diagramme.Label_Auswahl[2]->isVisible());
    }

    void strom_verbirgt_seine_zeilen_und_der_tooltip_hat_zwei() {
        starten("d");
        Projekt& p = programm->p;
        const std::array<const char*, 5> strom{"Label14", "anz_q_PE_Strom", "Label34",
                                               "anz_Primärenergiefaktor_Strom", "Label33"};
        for (const char* name : strom) {
            QVERIFY(label(name)->isVisible());
        }
        waehlen("Command1", 7);
        QCOMPARE(p.Energie.Traegername, std::string("Strom"));
        for (std::size_t i = 0; i < 4; ++i) {
            QVERIFY2(!label(strom[i])->isVisible(), strom[i]);
        }
        // The auxiliary end energy keeps its line; the primary line shows the sum.
        QVERIFY(label("Label33")->isVisible());
        QCOMPARE(text("anz_q_PE_Energieträger"),
                 QString::fromStdString(
                     format_muster(p.q_PE_Strom + p.q_PE_Energietraeger, "0.0", ',')));
        QCOMPARE(text("Label8"), QStringLiteral("Heizenergiebedarf (Strom):"));
        bild(QStringLiteral("energie_strom"));

        // The auxiliary pictogram stays blank, the carrier's shows its flash.
        const EnergieDiagramme& d = programm->energie_diagramme;
        const QImage& b3 = d.Picture3->flaeche().bild();
        const QColor grund = b3.pixelColor(0, 0);
        bool leer = true;
        for (int y = 0; y < b3.height(); ++y) {
            for (int x = 0; x < b3.width(); ++x) {
                leer = leer && b3.pixelColor(x, y) == grund;
            }
        }
        QVERIFY(leer);

        // A pixel of January's end energy column, red from the axis up.
        const QImage& b = d.Monatsuebersicht->flaeche().bild();
        QVERIFY(b.pixelColor(38, 93) == QColor(255, 0, 0));
        const QPoint auf_saeule(38, 93);
        const QPoint global = d.Monatsuebersicht->mapToGlobal(auf_saeule);
        QCursor::setPos(global);
        QMouseEvent bewegung(QEvent::MouseMove, QPointF(auf_saeule), QPointF(global), Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(d.Monatsuebersicht, &bewegung);
        Tooltiprahmen& t = *d.tooltip;
        QVERIFY(t.Timer_Tip_ein.isActive());
        QTRY_VERIFY_WITH_TIMEOUT(t.Frame_ToolTip->isVisible(), 2000);
        const QStringList zeilen = t.Label_Tooltip->text().split(QLatin1Char('\n'));
        QCOMPARE(zeilen.size(), 3);
        QCOMPARE(zeilen[0], QStringLiteral("Monat: Januar"));
        const Energiemonate w = energie_monatswerte(p);
        QCOMPARE(zeilen[1], QStringLiteral("Heizenergiebedarf (Strom):: ") +
                                QString::fromStdString(format_muster(w.E[1], "0.0", ',')) +
                                QStringLiteral(" kWh / (m² Monat)"));
        QVERIFY(zeilen[2].startsWith(QStringLiteral("Primärenergiebedarf (Strom):: ")));
        // Left of the pointer by the frame's width and 5, 20 above it; over January that
        // would lie left of the plane, so the frame starts at its edge.
        const QPoint auf_ebene = ebene()->mapFromGlobal(global);
        QVERIFY(auf_ebene.x() < t.Frame_ToolTip->width() + 5);
        QCOMPARE(t.Frame_ToolTip->pos(), QPoint(0, auf_ebene.y() - 20));

        // The axis is black: no tooltip there.
        QMouseEvent achse(QEvent::MouseMove, QPointF(30, 50),
                          QPointF(d.Monatsuebersicht->mapToGlobal(QPoint(30, 50))), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(d.Monatsuebersicht, &achse);
        QVERIFY(!t.Frame_ToolTip->isVisible());
        QVERIFY(!t.Timer_Tip_ein.isActive());

        // Over December the frame has room left of the pointer.
        const QPoint dezember(300, 93);
        QVERIFY(b.pixelColor(dezember) == QColor(255, 0, 0));
        const QPoint global12 = d.Monatsuebersicht->mapToGlobal(dezember);
        QCursor::setPos(global12);
        QMouseEvent bewegung12(QEvent::MouseMove, QPointF(dezember), QPointF(global12),
                               Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(d.Monatsuebersicht, &bewegung12);
        QTRY_VERIFY_WITH_TIMEOUT(t.Frame_ToolTip->isVisible(), 2000);
        QVERIFY(t.Label_Tooltip->text().startsWith(QStringLiteral("Monat: Dezember\n")));
        QCOMPARE(t.Frame_ToolTip->pos(),
                 ebene()->mapFromGlobal(global12) - QPoint(t.Frame_ToolTip->width() + 5, 20));

        // Back to oil: the lines come back.
        waehlen("Command1", 1);
        for (const char* name : strom) {
            QVERIFY(label(name)->isVisible());
        }
    }

    void englische_beschriftung() {
        starten("e");
        QCOMPARE(programm->unuebersetzt, 0);
        bild(QStringLiteral("energie_e"));
        QCOMPARE(text("Label1"), QStringLiteral("heating system"));
        QCOMPARE(text("Label30"), QStringLiteral("losses of distribution and storage:"));
        QCOMPARE(text("Label8"), QStringLiteral("heating energy demand (fuel oil):"));
        QCOMPARE(text("Label21"), QStringLiteral("primary energy demand (fuel oil):"));
        QCOMPARE(text("Label27"), QStringLiteral("fuel oil:"));
        QCOMPARE(text("Label_System"),
                 QStringLiteral("low temperature burner, boiler and distribution inside the "
                                "thermal zone"));
        QCOMPARE(text("anz_Primärenergiefaktor_Strom"), QStringLiteral("3.0"));
        QCOMPARE(ebene()->findChild<QGroupBox*>(QStringLiteral("Frame1"))->title(),
                 QStringLiteral("end energy demand"));
    }
};

QTEST_MAIN(TestEnergieebene)
#include "test_energieebene.moc"
