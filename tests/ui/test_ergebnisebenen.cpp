// SPDX-License-Identifier: GPL-3.0-or-later
// The result planes of the desktop program on the offscreen platform: every plane draws when
// shown, the month buttons, the enlarged temperature window and the tooltip's timing.
#include "charts/A_Heizen.h"
#include "charts/Tooltiptexte.h"
#include "project/Zahlformat.h"
#include "project/c_glob.h"
#include "tests/project/SkriptDialogs.h"
#include "tests/support/Testprojekt.h"
#include "tests/ui/Uitesthilfe.h"
#include "ui/ChartWidget.h"
#include "ui/Desktopprogramm.h"
#include "ui/Tooltiprahmen.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QtTest>

#include <filesystem>

namespace {

// Pixels of one colour on a chart.
int pixel(ChartWidget* c, QColor farbe) {
    const QImage& b = c->flaeche().bild();
    int n = 0;
    for (int y = 0; y < b.height(); ++y) {
        for (int x = 0; x < b.width(); ++x) {
            n += b.pixelColor(x, y) == farbe ? 1 : 0;
        }
    }
    return n;
}

// Pixels that are not white.
int gezeichnet(ChartWidget* c) {
    const QImage& b = c->flaeche().bild();
    return b.width() * b.height() - pixel(c, Qt::white);
}

const QColor ROT(255, 0, 0), BLAU(0, 0, 255), SANKEY_KUEHLEN(180, 180, 255),
    SANKEY_HEIZEN(255, 180, 180);

double kuehlbedarf(const Projekt& p) {
    double s = 0;
    for (int m = 1; m <= 12; ++m) {
        s += p.Monat[m].Kuehlbedarf;
    }
    return s;
}

} // namespace

class TestErgebnisebenen : public QObject {
    Q_OBJECT

    std::unique_ptr<SkriptDialogs> dialoge;
    std::unique_ptr<Testprogramm> programm;
    std::unique_ptr<TempOrdner> klima;

    void starten(const char* sprache) {
        dialoge = std::make_unique<SkriptDialogs>();
        programm = programm_starten(dialoge.get(), *klima, sprache);
        QVERIFY(programm->haupt->isVisible());
    }
    // The building of the chart tests that needs cooling in summer: a low overheating limit and
    // a large south window.
    void kuehlen_lassen() {
        Projekt& p = programm->p;
        programm->bindungen->ausfuehren([&p] {
            p.Tueber = 22;
            p.fs = 80;
            alles_berechnen(p);
        });
        QVERIFY(kuehlbedarf(p) > 0);
    }
    // The same building with an overheating limit that no hour reaches: no cooling.
    void ohne_kuehlung() {
        Projekt& p = programm->p;
        programm->bindungen->ausfuehren([&p] {
            p.Tueber = 40;
            alles_berechnen(p);
        });
        QCOMPARE(kuehlbedarf(p), 0.0);
    }
    // A step on the length bar of the geometry plane: a whole recalculation by the user.
    void schritt() {
        programm->haupt->eingabe_zeigen(Hauptfenster::Geometrie);
        auto* sb = programm->haupt->eingabe[Hauptfenster::Geometrie]->findChild<QScrollBar*>(
            QStringLiteral("l_sb"));
        QVERIFY(sb != nullptr);
        sb->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    }
    void zeigen(int ebene) { programm->haupt->ausgabe_zeigen(ebene); }
    // Saves the main window when VELMARIS_BILDER names a folder.
    void bild(const QString& name) { bild_speichern(*programm->haupt, name); }

private slots:
    void initTestCase() { klima = klima_kopie(); }
    void cleanup() {
        programm.reset();
        dialoge.reset();
    }

    // Every result plane draws its charts and fills its fields when shown.
    void jede_ebene_zeichnet() {
        starten("d");
        Projekt& p = programm->p;
        kuehlen_lassen();
        zeigen(Hauptfenster::Uebersicht);
        const UebersichtDiagramme& u = programm->uebersicht_diagramme;
        QVERIFY(pixel(u.Monatsbilanz, ROT) > 100);
        QVERIFY(pixel(u.Monatsbilanz, BLAU) > 0);
        QVERIFY(pixel(u.Temperaturen, ROT) > 50);
        bild(QStringLiteral("uebersicht_kuehlen_d"));

        zeigen(Hauptfenster::Heizen);
        const HeizenDiagramme& h = programm->heizen_diagramme;
        for (ChartWidget* c : {h.Heizbilanz, h.JahrBilanz, h.NutzungsgradMonat, h.NutzungsgradJahr,
                               h.Gewinne_N, h.Verluste_N, h.Gewinne_S, h.Verluste_S, h.Gewinne_O,
                               h.Verluste_O, h.Gewinne_W, h.Verluste_W}) {
            QVERIFY(gezeichnet(c) > 0);
        }
        const HeizFelder f = HeizFelderAusfuellen(p, ',');
        QCOMPARE(h.qh_anz->text(), QString::fromStdString(f.qh_anz));
        QCOMPARE(h.qtrs_anz->text(), QString::fromStdString(f.qtrs_anz));
        bild(QStringLiteral("heizen_kuehlen_d"));

        zeigen(Hauptfenster::Kuehlen);
        QVERIFY(pixel(programm->kuehlen_diagramme.KuehlbedarfMonat, BLAU) > 0);
        bild(QStringLiteral("kuehlen_kuehlen_d"));

        zeigen(Hauptfenster::Sankey);
        QVERIFY(pixel(programm->sankey_diagramme.Sankey, SANKEY_HEIZEN) > 1000);
        QVERIFY(pixel(programm->sankey_diagramme.Sankey_Kuehlen, SANKEY_KUEHLEN) > 1000);
        bild(QStringLiteral("sankey_kuehlen_d"));

        zeigen(Hauptfenster::KlimaGebaeude);
        const KlimaFelder& kf = programm->klima_felder;
        QCOMPARE(kf.anz_Heiztage->text(), QString::number(p.Klimainfo.Heiztage));
        QCOMPARE(kf.anz_Umittel->text(),
                 QString::fromStdString(format_muster(p.Klimainfo.Umittel, "0.00", ',')));
        QCOMPARE(kf.anz_Heizlast->text(),
                 QString::fromStdString(format_muster(p.Heizlast_max, "0.0", ',')));
        QCOMPARE(kf.anz_MaxMonatName->text(),
                 QString::fromStdString(p.Monat[p.Klimainfo.MaxMonat].Name));
        QVERIFY(kf.anz_kuehllast->text() != QStringLiteral("0,0"));
        bild(QStringLiteral("klima_kuehlen_d"));
        // Without cooling the cooling chart keeps no bar and the load shows zero.
        ohne_kuehlung();
        QCOMPARE(kf.anz_kuehllast->text(), QStringLiteral("0,0"));
        zeigen(Hauptfenster::Kuehlen);
        QCOMPARE(pixel(programm->kuehlen_diagramme.KuehlbedarfMonat, BLAU), 0);
    }

    // The shown plane is drawn by the recalculation, a hidden one when it is shown.
    void verborgene_ebene_wartet_auf_das_zeigen() {
        starten("d");
        zeigen(Hauptfenster::Uebersicht);
        ChartWidget* heiz = programm->heizen_diagramme.Heizbilanz;
        ChartWidget* monat = programm->uebersicht_diagramme.Monatsbilanz;
        heiz->flaeche().Cls();
        monat->flaeche().Cls();
        schritt();
        QVERIFY(pixel(monat, ROT) > 100);
        QCOMPARE(gezeichnet(heiz), 0);
        zeigen(Hauptfenster::Heizen);
        QVERIFY(pixel(heiz, ROT) > 100);
    }

    void monatsknopf_waehlt_monat_und_markiert_ihn() {
        starten("d");
        zeigen(Hauptfenster::Uebersicht);
        UebersichtDiagramme& u = programm->uebersicht_diagramme;
        QCOMPARE(programm->p.Monat_Uebersicht, int16_t{7});
        QCOMPARE(u.AktiverMonat->geometry(), u.Monatsbutton[6]->geometry());
        const QImage juli = u.Temperaturen->flaeche().bild().copy();
        QTest::mouseClick(u.Monatsbutton[0], Qt::LeftButton);
        QCOMPARE(programm->p.Monat_Uebersicht, int16_t{1});
        QCOMPARE(u.AktiverMonat->geometry(), u.Monatsbutton[0]->geometry());
        QCOMPARE(u.AktiverMonat1->text(), QStringLiteral("Jan."));
        QVERIFY(u.AktiverMonat->isVisible());
        QVERIFY(u.Temperaturen->flaeche().bild() != juli);
    }

    void klick_auf_temperaturen_oeffnet_zoom() {
        starten("e");
        zeigen(Hauptfenster::Uebersicht);
        UebersichtDiagramme& u = programm->uebersicht_diagramme;
        QVERIFY(!programm->zoom);
        QTest::mouseClick(u.Temperaturen, Qt::LeftButton, {}, QPoint(100, 60));
        QVERIFY(programm->zoom);
        ZoomFenster& z = *programm->zoom;
        QVERIFY(z.isVisible());
        QCOMPARE(z.Temperaturen->width(), z.width() - 16);
        QCOMPARE(z.Command_Schliessen->text(), QStringLiteral("Close"));
        QVERIFY(pixel(z.Temperaturen, ROT) > 100);
        // A month chosen in the window is the overview's month.
        QTest::mouseClick(z.Monatsbutton[1], Qt::LeftButton);
        QCOMPARE(programm->p.Monat_Uebersicht, int16_t{2});
        QCOMPARE(u.AktiverMonat->geometry(), u.Monatsbutton[1]->geometry());
        // An input change while the window is open draws the new course at once.
        const QImage vorher = z.Temperaturen->flaeche().bild();
        programm->haupt->eingabe[Hauptfenster::Geometrie]
            ->findChild<QScrollBar*>(QStringLiteral("h_sb"))
            ->setSliderPosition(-300);
        QVERIFY(z.Temperaturen->flaeche().bild() != vorher);
        QTest::mouseClick(z.Command_Schliessen, Qt::LeftButton);
        QVERIFY(!z.isVisible());
    }

    void tooltip_nach_der_ruhezeit() {
        starten("d");
        zeigen(Hauptfenster::Uebersicht);
        UebersichtDiagramme& u = programm->uebersicht_diagramme;
        // A pixel of January's red bar.
        const QImage& b = u.Monatsbilanz->flaeche().bild();
        QPoint auf_balken(-1, -1);
        for (int y = 115; y > 20 && auf_balken.x() < 0; --y) {
            if (b.pixelColor(38, y) == ROT) {
                auf_balken = QPoint(38, y);
            }
        }
        QVERIFY(auf_balken.x() >= 0);
        const QPoint global = u.Monatsbilanz->mapToGlobal(auf_balken);
        QCursor::setPos(global);
        bewegen(u.Monatsbilanz, auf_balken);
        Tooltiprahmen& t = *u.tooltip;
        QVERIFY(t.Timer_Tip_ein.isActive());
        QVERIFY(!t.Frame_ToolTip->isVisible());
        QTest::qWait(500);
        QVERIFY(!t.Frame_ToolTip->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(t.Frame_ToolTip->isVisible(), 2000);
        QString erwartet = QString::fromStdString(
            tooltip_Monatsbilanz(programm->p, 1, uebersicht_legende("d"), ','));
        erwartet.replace(QLatin1Char('\r'), QLatin1Char('\n'));
        QCOMPARE(t.Label_Tooltip->text(), erwartet);
        // 5 pixels left of and 20 above the pointer on the plane.
        const QPoint auf_ebene =
            programm->haupt->ausgabe[Hauptfenster::Uebersicht]->mapFromGlobal(global);
        QCOMPARE(t.Frame_ToolTip->pos(), auf_ebene - QPoint(5, 20));

        // A move to the background hides it; a pointer that moved on shows nothing.
        bewegen(u.Monatsbilanz, QPoint(2, 2));
        QVERIFY(!t.Frame_ToolTip->isVisible());
        bewegen(u.Monatsbilanz, auf_balken);
        // Off the window, so that no move reaches the chart.
        QCursor::setPos(QPoint(-500, -500));
        QTest::qWait(1300);
        QVERIFY(!t.Frame_ToolTip->isVisible());
    }
};

QTEST_MAIN(TestErgebnisebenen)
#include "test_ergebnisebenen.moc"
