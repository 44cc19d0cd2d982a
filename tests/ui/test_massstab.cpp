// SPDX-License-Identifier: GPL-3.0-or-later
// The main window at a larger scale: charts drawn at the screen's resolution, not enlarged
// bitmaps; pointers on charts and maps hit what they hit at the design's size; the zoom of the
// menu and its keys.
#include "climate/ebene/E_Klima.h"
#include "climate/ebene/stationskarten.h"
#include "project/c_glob.h"
#include "tests/project/SkriptDialogs.h"
#include "tests/support/Testprojekt.h"
#include "tests/ui/Uitesthilfe.h"
#include "ui/ChartWidget.h"
#include "ui/Desktopprogramm.h"
#include "ui/Massstab.h"
#include "ui/Stationskarte.h"
#include "ui/Tooltiprahmen.h"

#include <QAction>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTimer>
#include <QtTest>

#include <cmath>

namespace {

const QColor ROT(255, 0, 0);

// The window resized so that its client area holds the design `s` times.
void vergroessern(Hauptfenster& h, double s) {
    h.resize(static_cast<int>(std::lround(800 * s)),
             static_cast<int>(std::lround(546 * s)) + h.menuBar()->sizeHint().height());
    QCoreApplication::processEvents();
}

// The middle of design pixel p on a widget shown at scale s.
QPoint mitte(QPoint p, double s) {
    return QPoint(static_cast<int>((p.x() + 0.5) * s), static_cast<int>((p.y() + 0.5) * s));
}

} // namespace

class TestMassstab : public QObject {
    Q_OBJECT

    std::unique_ptr<TempOrdner> klima;
    std::unique_ptr<SkriptDialogs> dialoge;
    std::unique_ptr<Testprogramm> programm;

    Hauptfenster& starten(const char* sprache = "d") {
        dialoge = std::make_unique<SkriptDialogs>();
        programm = programm_starten(dialoge.get(), *klima, sprache);
        return *programm->haupt;
    }

private slots:
    void initTestCase() { klima = klima_kopie(); }
    void cleanup() {
        programm.reset();
        dialoge.reset();
    }

    // The chart has twice the pixels at 2, drawn there directly, not a copy of the small one.
    void diagramm_in_bildschirmaufloesung() {
        Hauptfenster& h = starten();
        h.ausgabe_zeigen(Hauptfenster::Uebersicht);
        ChartWidget* c = programm->uebersicht_diagramme.Temperaturen;
        const QImage klein = c->flaeche().bild();
        const QSize entwurf(c->flaeche().ScaleWidth(), c->flaeche().ScaleHeight());
        QCOMPARE(klein.size(), entwurf);

        vergroessern(h, 2.0);
        const QImage gross = c->flaeche().bild();
        QCOMPARE(gross.size(), entwurf * 2);
        QCOMPARE(c->size(), entwurf * 2);
        // What the widget shows is that image, pixel for pixel.
        QCOMPARE(c->grab().toImage().convertToFormat(QImage::Format_RGB32), gross);
        // Drawn anew from the record at this scale, the chart is the same.
        c->zeichnen();
        QCOMPARE(c->flaeche().bild(), gross);
        // An enlarged copy of the small chart would repeat every pixel twice; the curves and
        // texts have their own pixels.
        const QImage kopie = klein.scaled(klein.size() * 2);
        int anders = 0;
        for (int y = 0; y < gross.height(); ++y) {
            for (int x = 0; x < gross.width(); ++x) {
                anders += gross.pixel(x, y) != kopie.pixel(x, y) ? 1 : 0;
            }
        }
        QVERIFY2(anders > 1000, qPrintable(QString::number(anders)));
        // Back at the design's size the chart is what it was.
        vergroessern(h, 1.0);
        QCOMPARE(c->flaeche().bild(), klein);
    }

    void treffer_data() {
        QTest::addColumn<double>("s");
        QTest::newRow("1") << 1.0;
        QTest::newRow("1.5") << 1.5;
        QTest::newRow("2") << 2.0;
        QTest::newRow("2.5") << 2.5;
    }

    // A bar's tooltip, a region of the German map and a station dot are hit at the same design
    // pixel at every scale, and the labels they bring up stand where the pointer is.
    void treffer() {
        QFETCH(double, s);
        Hauptfenster& h = starten();
        h.ausgabe_zeigen(Hauptfenster::Uebersicht);
        UebersichtDiagramme& u = programm->uebersicht_diagramme;
        // January's red bar, found in the design's pixels before the window grows.
        const QImage& b = u.Monatsbilanz->flaeche().bild();
        QPoint balken(-1, -1);
        for (int y = 115; y > 20 && balken.x() < 0; --y) {
            if (b.pixelColor(38, y) == ROT) {
                balken = QPoint(38, y);
            }
        }
        QVERIFY(balken.x() >= 0);
        vergroessern(h, s);
        QCOMPARE(h.massstab().faktor(), s);

        Tooltiprahmen& t = *u.tooltip;
        bewegen(u.Monatsbilanz, mitte(balken, s));
        QVERIFY(t.Timer_Tip_ein.isActive());
        QVERIFY(t.Label_Tooltip->text().startsWith(QStringLiteral("Monat: Januar\n")));
        // Beside the bar, on the chart's white, nothing is hit.
        bewegen(u.Monatsbilanz, mitte(QPoint(balken.x() - 12, balken.y()), s));
        QVERIFY(!t.Timer_Tip_ein.isActive());
        // The tooltip's text has the plane's font and its frame holds it.
        QCOMPARE(t.Label_Tooltip->font().pixelSize(), h.ausgabe[0]->font().pixelSize());
        QVERIFY(QRect(QPoint(), t.Frame_ToolTip->size()).contains(t.Label_Tooltip->geometry()));

        // The German map: the reference pixel of region 5 picks it; its hover label stands 20
        // design pixels below the pointer, moved left only as far as keeps it whole in the map.
        h.eingabe_zeigen(Hauptfenster::Klima);
        const KlimawahlFelder& f = programm->klimawahl_felder;
        QTest::mouseClick(f.Option[0], Qt::LeftButton, Qt::NoModifier,
                          QPoint(static_cast<int>(6 * s), f.Option[0]->height() / 2));
        Projekt& p = programm->p;
        QTest::mouseClick(f.Picture1, Qt::LeftButton, Qt::NoModifier, mitte(QPoint(90, 220), s));
        QCOMPARE(p.Klimadatei, p.Regionsdatei[5]);
        bewegen(f.Picture1, mitte(QPoint(90, 220), s));
        QVERIFY(f.Label2->text().contains(QStringLiteral("Klimaregion 5")));
        QCOMPARE(f.Label2->y(), static_cast<int>(std::lround(240 * s)));
        QVERIFY(f.Label2->x() <= static_cast<int>(std::lround(90 * s)));
        QCOMPARE(f.Label2->geometry().right(),
                 std::min(f.Picture1->width() - 1,
                          static_cast<int>(std::lround(90 * s)) + f.Label2->width() - 1));

        // A station dot of the Europe map: named on hover, chosen on release.
        QTest::mouseClick(f.Option[1], Qt::LeftButton, Qt::NoModifier,
                          QPoint(static_cast<int>(6 * s), f.Option[1]->height() / 2));
        E_Klima& k = programm->ebenen->klima;
        k.zufall = [n = 0, a = k.listen.Europa.anzahl()]() mutable { return (n++ % a + 0.5) / a; };
        const Stationsliste& l = k.listen.Europa;
        const int j = einzelne_station(l, k.Klimaregionwahl2.ListIndex, true, 1e9);
        QVERIFY(j >= 0);
        const auto [x, y] = l.punkt(j);
        const QPoint dot(static_cast<int>(std::lround(x)), static_cast<int>(std::lround(y)));
        QCOMPARE(f.Picture2->size(), (QSize(234, 201) * s));
        bewegen(f.Picture2, mitte(dot + QPoint(1, 1), s));
        QCOMPARE(k.MausRegion, l.Stationsname[static_cast<std::size_t>(j)]);
        QTest::mouseRelease(f.Picture2, Qt::LeftButton, Qt::NoModifier,
                            mitte(dot + QPoint(1, 1), s));
        QCOMPARE(p.Klimadatei, l.Dateiname[static_cast<std::size_t>(j)]);
    }

    // A month chosen while the window is enlarged: the marker lies on its button, also after
    // the window went back to the design's size.
    void spaeter_gesetzte_lage_folgt_dem_massstab() {
        Hauptfenster& h = starten();
        h.ausgabe_zeigen(Hauptfenster::Uebersicht);
        UebersichtDiagramme& u = programm->uebersicht_diagramme;
        vergroessern(h, 1.5);
        QTest::mouseClick(u.Monatsbutton[2], Qt::LeftButton);
        QCOMPARE(u.AktiverMonat->geometry(), u.Monatsbutton[2]->geometry());
        vergroessern(h, 1.0);
        QCOMPARE(u.AktiverMonat->geometry(), u.Monatsbutton[2]->geometry());
        QCOMPARE(u.AktiverMonat->geometry(), massstab::entwurf(*u.Monatsbutton[2]));
    }

    // The zoom steps by menu and keys: the window's client area is the design times the step
    // as far as the screen's free area allows, and no smaller; Ctrl+0 gives the design's size.
    void zoom() {
        Hauptfenster& h = starten();
        auto client = [&h] { return h.centralWidget()->size(); };
        QCOMPARE(client(), QSize(800, 546));
        QVERIFY(!h.mnuZoomKleiner->isEnabled());
        const QRect frei = h.screen()->availableGeometry();
        h.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&h));
        for (int stufe = 1; stufe < static_cast<int>(Hauptfenster::ZOOMSTUFEN.size()); ++stufe) {
            QTest::keyClick(&h, Qt::Key_Plus, Qt::ControlModifier);
            QCoreApplication::processEvents();
            QCOMPARE(h.zoomstufe(), stufe);
            const double z = Hauptfenster::ZOOMSTUFEN[static_cast<std::size_t>(stufe)];
            const QSize gewollt(static_cast<int>(std::lround(800 * z)),
                                static_cast<int>(std::lround(546 * z)));
            // The step's size, or smaller where the window reaches the screen's edge.
            QVERIFY(client().width() <= gewollt.width() && client().height() <= gewollt.height());
            QVERIFY(client().width() >= 800 && client().height() >= 546);
            QVERIFY(client() == gewollt || h.frameGeometry().width() >= frei.width() - 8 ||
                    h.frameGeometry().height() >= frei.height() - 8);
            QCOMPARE(h.massstab().faktor(),
                     std::min(client().width() / 800.0, client().height() / 546.0));
        }
        QVERIFY(!h.mnuZoomGroesser->isEnabled());
        QTest::keyClick(&h, Qt::Key_Minus, Qt::ControlModifier);
        QCOMPARE(h.zoomstufe(), 5);
        // Ctrl+= is the plus key without shift.
        QTest::keyClick(&h, Qt::Key_Equal, Qt::ControlModifier);
        QCOMPARE(h.zoomstufe(), 6);
        QTest::keyClick(&h, Qt::Key_0, Qt::ControlModifier);
        QCoreApplication::processEvents();
        QCOMPARE(h.zoomstufe(), 0);
        QCOMPARE(client(), QSize(800, 546));
        QCOMPARE(h.massstab().faktor(), 1.0);
        // A client area larger than the step is the user's: the whole design fills it.
        h.zoom_setzen(2);
        h.resize(2000, 1200);
        QCoreApplication::processEvents();
        QCOMPARE(h.massstab().faktor(), std::min(2000 / 800.0, client().height() / 546.0));
        // Centred where the window is wider than the design.
        const QRect ebenen(h.E_Menue->mapTo(h.centralWidget(), QPoint()),
                           h.A_Menue->geometry().bottomRight());
        QVERIFY(std::abs(ebenen.left() - (client().width() - ebenen.right() - 1)) <= 1);
    }

    void zoom_auf_englisch() {
        Hauptfenster& h = starten("e");
        auto text = [](QAction* a) { return a->text().remove(QLatin1Char('&')); };
        QCOMPARE(text(h.mnuZoomGroesser), QStringLiteral("Zoom in"));
        QCOMPARE(text(h.mnuZoomKleiner), QStringLiteral("Zoom out"));
        QCOMPARE(text(h.mnuZoomOriginal), QStringLiteral("Actual size"));
    }
};

QTEST_MAIN(TestMassstab)
#include "test_massstab.moc"
