// SPDX-License-Identifier: GPL-3.0-or-later
// The climate plane of the desktop program on the offscreen platform: the post code field with
// its key filter and Enter, and the German map following the region.
#include "climate/E_Klima.h"
#include "project/c_glob.h"
#include "tests/project/SkriptDialogs.h"
#include "tests/support/Testprojekt.h"
#include "tests/ui/Uitesthilfe.h"
#include "ui/Desktopprogramm.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTimer>
#include <QtTest>

#include <filesystem>

class TestKlimaebene : public QObject {
    Q_OBJECT

    std::unique_ptr<SkriptDialogs> dialoge;
    std::unique_ptr<Desktopprogramm> programm;
    std::unique_ptr<TempOrdner> klima;

private slots:
    void initTestCase() { klima = klima_kopie(); }

    void fuenfstellige_postleitzahl_waehlt_die_region_ihres_praefixes() {
        dialoge = std::make_unique<SkriptDialogs>();
        programm = std::make_unique<Desktopprogramm>(dialoge.get(), [] { return std::string(); });
        programm->klimaordner = klima->pfad().string();
        programm->starten("d");
        programm->haupt->eingabe_zeigen(Hauptfenster::Klima);
        const KlimawahlFelder& f = programm->klimawahl_felder;
        QTest::mouseClick(f.Option[0], Qt::LeftButton);
        Projekt& p = programm->p;
        QCOMPARE(p.Klimaauswahl, int16_t{1});
        QVERIFY(f.plz->isVisible());
        QVERIFY(!f.Klimaregionwahl2->isVisible());

        // Letters are dropped, a sixth digit is not taken.
        QTest::keyClicks(f.plz, QStringLiteral("2a0x0955"));
        QCOMPARE(f.plz->text(), QStringLiteral("20095"));
        QTest::keyClick(f.plz, Qt::Key_Return);
        // The prefix 200 lies in region 3.
        QCOMPARE(p.Klimadatei, p.Regionsdatei[3]);
        QCOMPARE(f.Klimaregionwahl->currentIndex(), 2);
        QCOMPARE(f.Picture1->property("bild").toString(), QStringLiteral("Grafiken/klima3.bmp"));
        QVERIFY(!f.Picture1->pixmap().isNull());

        // Back-space takes the last digit.
        QTest::keyClick(f.plz, Qt::Key_Backspace);
        QCOMPARE(f.plz->text(), QStringLiteral("2009"));

        // A press on the map at the reference pixel of region 5 picks it and clears the field.
        QTest::mouseClick(f.Picture1, Qt::LeftButton, Qt::NoModifier, QPoint(90, 220));
        QCOMPARE(p.Klimadatei, p.Regionsdatei[5]);
        QCOMPARE(f.Klimaregionwahl->currentIndex(), 4);
        QCOMPARE(f.plz->text(), QString());
        QCOMPARE(f.Picture1->property("bild").toString(), QStringLiteral("Grafiken/klima5.bmp"));
        // Hovering region 5 names it after a second; between the regions nothing shows.
        QMouseEvent bewegung(QEvent::MouseMove, QPointF(90, 220),
                             QPointF(f.Picture1->mapToGlobal(QPoint(90, 220))), Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(f.Picture1, &bewegung);
        QVERIFY(f.Timer1->isActive());
        QVERIFY(!f.Label2->isVisible());
        QCOMPARE(f.Label2->text(),
                 QStringLiteral(" Klimaregion 5 : Franken und \n nördliches Baden-Württemberg "));
        QCOMPARE(f.Label2->pos(), QPoint(90, 240));
        QTRY_VERIFY_WITH_TIMEOUT(f.Label2->isVisible(), 2000);
        QVERIFY(f.Timer2->isActive());
        QMouseEvent leer(QEvent::MouseMove, QPointF(1, 1),
                         QPointF(f.Picture1->mapToGlobal(QPoint(1, 1))), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(f.Picture1, &leer);
        QVERIFY(!f.Label2->isVisible());
        QVERIFY(!f.Timer1->isActive());

        // A prefix of region 0 is no valid post code: the message, and the field is emptied.
        QTest::keyClicks(f.plz, QStringLiteral("00123"));
        QTest::keyClick(f.plz, Qt::Key_Enter);
        QCOMPARE(dialoge->nachrichten.back().text, std::string("  Keine gültige Postleitzahl!  "));
        QCOMPARE(f.plz->text(), QString());
        QCOMPARE(p.Klimadatei, p.Regionsdatei[5]);

        bild_speichern(*programm->haupt, QStringLiteral("klima"));
        programm.reset();
        dialoge.reset();
    }

    void englisch_und_europa() {
        dialoge = std::make_unique<SkriptDialogs>();
        programm = std::make_unique<Desktopprogramm>(dialoge.get(), [] { return std::string(); });
        programm->klimaordner = klima->pfad().string();
        programm->starten("e");
        programm->haupt->eingabe_zeigen(Hauptfenster::Klima);
        const KlimawahlFelder& f = programm->klimawahl_felder;
        QCOMPARE(f.Option[0]->text(), QStringLiteral("Germany"));
        QCOMPARE(f.Option[1]->text(), QStringLiteral("Europe"));
        QCOMPARE(f.Option[2]->text(), QStringLiteral("World"));
        QWidget* ebene = programm->haupt->eingabe[Hauptfenster::Klima];
        QStringList texte;
        for (QLabel* l : ebene->findChildren<QLabel*>()) {
            texte << l->text();
        }
        QVERIFY(texte.contains(QStringLiteral("climatic region")));
        QVERIFY(texte.contains(QStringLiteral("zip code")));

        // Europe shows its station list instead of the German map.
        QTest::mouseClick(f.Option[1], Qt::LeftButton);
        Projekt& p = programm->p;
        QCOMPARE(p.Klimaauswahl, int16_t{2});
        QVERIFY(!f.Picture1->isVisible());
        QVERIFY(!f.plz->isVisible());
        QVERIFY(f.Klimaregionwahl2->isVisible());
        const E_Klima& k = programm->ebenen->klima;
        QCOMPARE(f.Klimaregionwahl2->count(),
                 static_cast<int>(k.Klimaregionwahl2.Eintraege.size()));
        QVERIFY(f.Klimaregionwahl2->count() > 1);
        // Picking the second station loads its file.
        f.Klimaregionwahl2->setCurrentIndex(1);
        emit f.Klimaregionwahl2->activated(1);
        QCOMPARE(p.Klimadatei, k.listen.Europa.Dateiname[1]);
        QCOMPARE(f.Klimaregionwahl2->currentIndex(), 1);
        programm.reset();
        dialoge.reset();
    }
};

QTEST_MAIN(TestKlimaebene)
#include "test_klimaebene.moc"
