// SPDX-License-Identifier: GPL-3.0-or-later
// The result planes of the desktop program on the offscreen platform: every plane draws for a
// building with and without cooling, hidden planes wait for their repaint, the month buttons, the
// enlarged temperature window and the tooltips.
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

    void jede_ebene_zeichnet_mit_und_ohne_kuehlung() {
        for (const char* sprache : {"d", "e"}) {
            starten(sprache);
            Projekt& p = programm->p;
            for (bool kuehlung : {false, true}) {
                if (kuehlung) {
                    kuehlen_lassen();
                } else {
                    ohne_kuehlung();
                }
                const QString art = QString::fromLatin1(kuehlung ? "kuehlen" : "ohne_kuehlung");
                zeigen(Hauptfenster::Uebersicht);
                const UebersichtDiagramme& u = programm->uebersicht_diagramme;
                QVERIFY(pixel(u.Monatsbilanz, ROT) > 100);
                QCOMPARE(pixel(u.Monatsbilanz, BLAU) > 0, kuehlung);
                QVERIFY(pixel(u.Temperaturen, ROT) > 50);
                bild(QStringLiteral("uebersicht_%1_%2").arg(art, sprache));

                zeigen(Hauptfenster::Heizen);
                const HeizenDiagramme& h = programm->heizen_diagramme;
                for (ChartWidget* c :
                     {h.Heizbilanz, h.JahrBilanz, h.NutzungsgradMonat, h.NutzungsgradJahr}) {
                    QVERIFY(gezeichnet(c) > 20);
                }
                for (ChartWidget* c : {h.Gewinne_N, h.Verluste_N, h.Gewinne_S, h.Verluste_S,
                                       h.Gewinne_O, h.Verluste_O, h.Gewinne_W, h.Verluste_W}) {
                    QVERIFY(gezeichnet(c) > 0);
                }
                const HeizFelder f =
                    HeizFelderAusfuellen(p, programm->p.Sprache == "e" ? '.' : ',');
                QCOMPARE(h.qh_anz->text(), QString::fromStdString(f.qh_anz));
                QCOMPARE(h.qtrs_anz->text(), QString::fromStdString(f.qtrs_anz));
                QVERIFY(!h.qh_anz->text().trimmed().isEmpty());
                bild(QStringLiteral("heizen_%1_%2").arg(art, sprache));

                zeigen(Hauptfenster::Kuehlen);
                const KuehlenDiagramme& k = programm->kuehlen_diagramme;
                QVERIFY(gezeichnet(k.KuehlbedarfMonat) > 100); // the axes at least
                QCOMPARE(pixel(k.KuehlbedarfMonat, BLAU) > 0, kuehlung);
                bild(QStringLiteral("kuehlen_%1_%2").arg(art, sprache));

                zeigen(Hauptfenster::Sankey);
                const SankeyDiagramme& s = programm->sankey_diagramme;
                QVERIFY(pixel(s.Sankey, SANKEY_HEIZEN) > 1000);
                QCOMPARE(pixel(s.Sankey_Kuehlen, SANKEY_KUEHLEN) > 1000, kuehlung);
                QVERIFY(gezeichnet(s.Sankey_Kuehlen) > 50);
                bild(QStringLiteral("sankey_%1_%2").arg(art, sprache));

                zeigen(Hauptfenster::KlimaGebaeude);
                const KlimaFelder& kf = programm->klima_felder;
                QCOMPARE(kf.anz_Heiztage->text(), QString::number(p.Klimainfo.Heiztage));
                const char dez = programm->p.Sprache == "e" ? '.' : ',';
                QCOMPARE(kf.anz_Umittel->text(),
                         QString::fromStdString(format_muster(p.Klimainfo.Umittel, "0.00", dez)));
                QCOMPARE(kf.anz_Heizlast->text(),
                         QString::fromStdString(format_muster(p.Heizlast_max, "0.0", dez)));
                const int warm = p.Klimainfo.MaxMonat;
                QCOMPARE(kf.anz_MaxMonatName->text(),
                         warm >= 1 && warm <= 12 ? QString::fromStdString(p.Monat[warm].Name)
                                                 : QString());
                QCOMPARE(kf.anz_kuehllast->text() !=
                             QStringLiteral("0") + QLatin1Char(dez) + QStringLiteral("0"),
                         kuehlung);
                bild(QStringLiteral("klima_%1_%2").arg(art, sprache));
            }
            QCOMPARE(programm->unuebersetzt, 0);
            cleanup();
        }
    }

    void verborgene_ebene_wartet_auf_das_zeigen() {
        starten("d");
        zeigen(Hauptfenster::Uebersicht);
        ChartWidget* heiz = programm->heizen_diagramme.Heizbilanz;
        ChartWidget* monat = programm->uebersicht_diagramme.Monatsbilanz;
        heiz->flaeche().Cls();
        monat->flaeche().Cls();
        schritt();
        // The shown plane is drawn by the recalculation, the hidden one keeps its surface.
        QVERIFY(pixel(monat, ROT) > 100);
        QCOMPARE(gezeichnet(heiz), 0);
        zeigen(Hauptfenster::Heizen);
        QVERIFY(pixel(heiz, ROT) > 100);
        // Now shown, the next step draws it while the overview is left as it was.
        heiz->flaeche().Cls();
        monat->flaeche().Cls();
        schritt();
        QVERIFY(pixel(heiz, ROT) > 100);
        QCOMPARE(gezeichnet(monat), 0);
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
        QCOMPARE(z.Temperaturen->height(), z.height() - 56);
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
        QMouseEvent bewegung(QEvent::MouseMove, QPointF(auf_balken), QPointF(global), Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(u.Monatsbilanz, &bewegung);
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
        QVERIFY(erwartet.startsWith(QStringLiteral("Monat: Januar\n")));
        // 5 pixels left of and 20 above the pointer on the plane.
        const QPoint auf_ebene =
            programm->haupt->ausgabe[Hauptfenster::Uebersicht]->mapFromGlobal(global);
        QCOMPARE(t.Frame_ToolTip->pos(), auf_ebene - QPoint(5, 20));

        // A move to the background hides it; a pointer that moved on shows nothing.
        QMouseEvent weg(QEvent::MouseMove, QPointF(2, 2),
                        QPointF(u.Monatsbilanz->mapToGlobal(QPoint(2, 2))), Qt::NoButton,
                        Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(u.Monatsbilanz, &weg);
        QVERIFY(!t.Frame_ToolTip->isVisible());
        QApplication::sendEvent(u.Monatsbilanz, &bewegung);
        // Off the window, so that no move reaches the chart.
        QCursor::setPos(QPoint(-500, -500));
        QTest::qWait(1300);
        QVERIFY(!t.Frame_ToolTip->isVisible());
    }
};

QTEST_MAIN(TestErgebnisebenen)
#include "test_ergebnisebenen.moc"
