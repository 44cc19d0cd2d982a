// SPDX-License-Identifier: GPL-3.0-or-later
// The screen's chart surface against the rules every chart relies on, pixel by pixel against
// the recording surface of the chart tests.
#include "charts/RecordingSurface.h"
#include "ui/QtImageSurface.h"

#include <QFontInfo>
#include <QtTest>

#include <cmath>
#include <limits>

class TestSurface : public QObject {
    Q_OBJECT

    static int unterschiede(const QtImageSurface& q, const RecordingSurface& r) {
        int n = 0;
        for (int y = 0; y < q.ScaleHeight(); ++y) {
            for (int x = 0; x < q.ScaleWidth(); ++x) {
                n += q.Point(x, y) != r.pixel(x, y) ? 1 : 0;
            }
        }
        return n;
    }

private slots:
    void linien_und_kaesten_wie_die_aufzeichnung() {
        QtImageSurface q(120, 90);
        RecordingSurface r(120, 90);
        for (Surface* s : {static_cast<Surface*>(&q), static_cast<Surface*>(&r)}) {
            s->Cls();
            // Lines in all eight directions, rounded ends, one of length zero.
            s->Line(10, 10, 60, 30, Rgb{255, 0, 0});
            s->Line(60, 40, 10, 20, Rgb{0, 0, 255});
            s->Line(20.5, 80.4, 20.5, 50, BLACK);
            s->Line(5, 5, 5, 5, BLACK);
            s->Line(100, 10, 70, 80, Rgb{0, 128, 0});
            // Corners in any order, both corner pixels covered.
            s->Box(90, 60, 70, 40, BLACK);
            s->FilledBox(30, 85, 44.6, 60, Rgb{255, 255, 0});
            s->FilledBox(-20, -20, 3, 3, Rgb{1, 2, 3});
            s->PSet(119, 89, Rgb{9, 9, 9});
        }
        QCOMPARE(unterschiede(q, r), 0);
        // The end pixel of a line stays free; a box covers both corners.
        QCOMPARE(q.Point(60, 30), WHITE);
        QCOMPARE(q.Point(10, 10), (Rgb{255, 0, 0}));
        QCOMPARE(q.Point(70, 40), BLACK);
        QCOMPARE(q.Point(90, 60), BLACK);
        QCOMPARE(q.Point(45, 85), (Rgb{255, 255, 0}));
        QCOMPARE(q.Point(-1, 3), WHITE);
    }

    // Larger, every chart pixel of boxes, fills, straight lines and points is a square of the
    // same colour, so that the hit tests read what they read at 1; a surface set larger after
    // drawing shows what one drawn at that scale shows.
    void vergroessert_gleiche_pixel_und_gleiche_zeichnung() {
        auto zeichnen = [](Surface& s, bool schraeg) {
            s.Cls();
            s.Box(90, 60, 70, 40, BLACK);
            s.FilledBox(30, 85, 44.6, 60, Rgb{255, 255, 0});
            s.FilledBox(-20, -20, 3, 3, Rgb{1, 2, 3});
            s.Line(20.5, 80.4, 20.5, 50, Rgb{0, 0, 255});
            s.Line(60, 30, 10, 30, Rgb{255, 0, 0});
            s.PSet(119, 89, Rgb{9, 9, 9});
            if (schraeg) {
                s.Line(10, 10, 60, 30, Rgb{0, 128, 0});
                s.FillStyle = FillMode::Solid;
                s.Circle(100, 20, 8, BLACK, -0.5, -2);
                s.CurrentX = 64;
                s.CurrentY = 70;
                s.Print("Jan.");
            }
        };
        QtImageSurface klein(120, 90);
        zeichnen(klein, false);
        for (double m : {1.5, 2.0, 3.0}) {
            QtImageSurface gross(120, 90);
            gross.massstab_setzen(m);
            zeichnen(gross, false);
            QCOMPARE(gross.bild().size(), QSize(static_cast<int>(std::lround(120 * m)),
                                                static_cast<int>(std::lround(90 * m))));
            for (int y = 0; y < 90; ++y) {
                for (int x = 0; x < 120; ++x) {
                    QCOMPARE(gross.Point(x, y), klein.Point(x, y));
                }
            }
            // The line's end pixel stays free; a line is one chart pixel wide, no more.
            QCOMPARE(gross.Point(10, 30), WHITE);
            QCOMPARE(gross.Point(20, 49), WHITE);
            QCOMPARE(gross.Point(22, 60), WHITE);

            QtImageSurface danach(120, 90);
            zeichnen(danach, true);
            danach.massstab_setzen(m);
            QtImageSurface direkt(120, 90);
            direkt.massstab_setzen(m);
            zeichnen(direkt, true);
            QCOMPARE(danach.bild(), direkt.bild());
            // Back at 1, every pixel is as drawn there.
            danach.massstab_setzen(1);
            QtImageSurface eins(120, 90);
            zeichnen(eins, true);
            QCOMPARE(danach.bild(), eins.bild());
        }
    }

    void fernes_und_ungueltiges_zeichnet_nichts_und_endet() {
        QtImageSurface q(50, 50);
        q.Cls();
        const double nan = std::numeric_limits<double>::quiet_NaN();
        q.Line(-1e300, 25, 1e300, 25, BLACK);
        q.Line(nan, 0, 10, 10, BLACK);
        q.Circle(25, 25, 1e200, BLACK);
        q.Circle(25, 25, nan, BLACK, -1, -2);
        q.FilledBox(-1e9, -1e9, 1e9, 2, Rgb{5, 5, 5});
        // The long line crosses the whole surface; the fill covers its top rows.
        QCOMPARE(q.Point(30, 25), BLACK);
        QCOMPARE(q.Point(49, 2), (Rgb{5, 5, 5}));
    }

    void kuchen_gefuellt_nur_mit_zwei_negativen_winkeln() {
        QtImageSurface q(60, 60);
        q.Cls();
        q.FillStyle = FillMode::Solid;
        q.FillColor = Rgb{0, 0, 255};
        // A quarter pie upward and to the right: filled inside, the opposite quarter free.
        q.Circle(30, 30, 20, BLACK, -0.0001, -3.14159 / 2);
        QCOMPARE(q.Point(38, 22), (Rgb{0, 0, 255}));
        QCOMPARE(q.Point(22, 38), WHITE);
        // An arc alone is not filled.
        QtImageSurface b(60, 60);
        b.Cls();
        b.FillStyle = FillMode::Solid;
        b.Circle(30, 30, 20, BLACK, 0.1, 1.5);
        QCOMPARE(b.Point(38, 22), WHITE);
    }

    void schriften_metrisch_gleich() {
        // Arial and Times New Roman become the Liberation faces of the same widths.
        QCOMPARE(QFontInfo(QtImageSurface::schrift("Arial", 8, false)).family(),
                 QStringLiteral("Liberation Sans"));
        QCOMPARE(QFontInfo(QtImageSurface::schrift("Times New Roman", 10, true)).family(),
                 QStringLiteral("Liberation Serif"));
        QtImageSurface q(100, 40);
        q.FontName = "MS Sans Serif";
        q.FontSize = 8.25;
        // The small system sans: a line of about 13 pixels, a month label under 24 pixels.
        QVERIFY(q.TextHeight("Jan.") >= 11 && q.TextHeight("Jan.") <= 14);
        QVERIFY(q.TextWidth("Jan.") < 24);
        q.FontBold = true;
        const double fett = q.TextWidth("Dezember");
        q.FontBold = false;
        QVERIFY(fett > q.TextWidth("Dezember"));
        // Print moves to the next line.
        q.Cls();
        q.CurrentX = 5;
        q.Print("x");
        QCOMPARE(q.CurrentX, 0.0);
        QCOMPARE(q.CurrentY, q.TextHeight("x"));
    }
};

QTEST_MAIN(TestSurface)
#include "test_surface.moc"
