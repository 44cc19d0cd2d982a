// SPDX-License-Identifier: GPL-3.0-or-later
// The climate plane of the desktop program on the offscreen platform: its widgets show the
// headless plane's choice: the post code field, the German map, the station maps with their
// dots, hover labels and clicks, the scrolled and the enlarged world map, and the climate
// labels of both planes.
#include "climate/Bitmap.h"
#include "climate/ebene/E_Klima.h"
#include "climate/ebene/stationskarten.h"
#include "climate/klimaregionen.h"
#include "project/c_glob.h"
#include "project/lebenszyklus/projektdatei.h"
#include "tests/project/SkriptDialogs.h"
#include "tests/support/Testprojekt.h"
#include "tests/ui/Uitesthilfe.h"
#include "ui/Desktopprogramm.h"
#include "ui/Stationskarte.h"
#include "ui/Uebersetzen.h"
#include "ui/ZoomKlima.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTimer>
#include <QtTest>

#include <cmath>
#include <filesystem>

namespace {

// A random source that walks through all rows of a list of `anzahl` in turn, so that the hover
// search finds a station under the pointer within one round.
std::function<double()> reihum(int anzahl) {
    return [anzahl, n = 0]() mutable { return (n++ % anzahl + 0.5) / anzahl; };
}

// A click on the option's circle: a radio button takes clicks on its circle and its text only.
void waehlen(QRadioButton* o) {
    QTest::mouseClick(o, Qt::LeftButton, Qt::NoModifier, QPoint(6, o->height() / 2));
}

QPoint punkt(const Stationsliste& l, int i, double faktor = 1.0) {
    const auto [x, y] = l.punkt(i);
    return QPoint(static_cast<int>(std::lround(x * faktor)),
                  static_cast<int>(std::lround(y * faktor)));
}

} // namespace

class TestKlimaebene : public QObject {
    Q_OBJECT

    std::unique_ptr<SkriptDialogs> dialoge;
    std::unique_ptr<Testprogramm> programm;
    std::unique_ptr<TempOrdner> klima;

    // The program in `sprache` on the climate plane and the climate information plane, with a
    // random source that makes the hover search find every dot.
    void starten(const char* sprache) {
        dialoge = std::make_unique<SkriptDialogs>();
        programm = programm_starten(dialoge.get(), *klima, sprache);
        programm->haupt->eingabe_zeigen(Hauptfenster::Klima);
        programm->haupt->ausgabe_zeigen(Hauptfenster::KlimaGebaeude);
        E_Klima& k = programm->ebenen->klima;
        k.zufall = reihum(k.listen.Welt.anzahl());
    }
    void beenden() {
        programm.reset();
        dialoge.reset();
    }
    QString a_klima(QLabel* KlimaFelder::*feld) const {
        return (programm->klima_felder.*feld)->text();
    }
    const KlimawahlFelder& f() const { return programm->klimawahl_felder; }
    Projekt& p() { return programm->p; }
    E_Klima& k() { return programm->ebenen->klima; }
    // Picks row `i` of the station list as the user does.
    void station_waehlen(int i) {
        f().Klimaregionwahl2->setCurrentIndex(i);
        emit f().Klimaregionwahl2->activated(i);
    }

private slots:
    void initTestCase() { klima = klima_kopie(); }
    void cleanup() { beenden(); }

    void englisch_und_europa() {
        starten("e");
        QCOMPARE(f().Option[0]->text(), QStringLiteral("Germany"));
        QCOMPARE(f().Option[1]->text(), QStringLiteral("Europe"));
        QCOMPARE(f().Option[2]->text(), QStringLiteral("World"));
        QStringList texte;
        for (QLabel* l : programm->haupt->eingabe[Hauptfenster::Klima]->findChildren<QLabel*>()) {
            texte << l->text();
        }
        QVERIFY(texte.contains(QStringLiteral("climatic region")));
        QVERIFY(texte.contains(QStringLiteral("zip code")));
        QCOMPARE(f().anz_MinMonatText->text(), QStringLiteral("min. monthly mean value"));
        QCOMPARE(f().anz_MaxMonatText->text(), QStringLiteral("max. monthly mean value"));
        QCOMPARE(fenster_uebersetzen(*programm->haupt->eingabe[Hauptfenster::Klima], "E_Klima"), 0);
        QCOMPARE(f().E_Zoom_Klima->windowTitle(), QStringLiteral("Climate stations - World"));
        QCOMPARE(f().E_Zoom_Klima->Command2->text(), QStringLiteral("Cancel"));

        // Europe shows its station list instead of the German map.
        waehlen(f().Option[1]);
        QVERIFY(!f().Picture1->isVisible());
        QVERIFY(!f().plz->isVisible());
        QVERIFY(f().Klimaregionwahl2->isVisible());
        QCOMPARE(f().Klimaregionwahl2->count(),
                 static_cast<int>(k().Klimaregionwahl2.Eintraege.size()));
    }

    // The German map: the post code field with its key filter and Enter, a click and the hover
    // of a region. Opening a project names its own station, not the one picked last on the
    // plane; the map and the region list show the same region after a pick, an open and
    // File > New, also while the new project's scope hides them.
    void deutsche_karte_und_geoeffnetes_projekt() {
        starten("d");
        auto dieselbe_region = [this](int region) {
            QCOMPARE(f().Klimaregionwahl->currentIndex(), region - 1);
            QCOMPARE(f().Picture1->property("bild").toString(),
                     QStringLiteral("Grafiken/klima%1.bmp").arg(region));
        };
        waehlen(f().Option[0]);
        QVERIFY(f().plz->isVisible());
        QVERIFY(!f().Klimaregionwahl2->isVisible());
        QTest::keyClicks(f().plz, QStringLiteral("2a0x0955"));
        QCOMPARE(f().plz->text(), QStringLiteral("20095"));
        QTest::keyClick(f().plz, Qt::Key_Return);
        QCOMPARE(p().Klimadatei, p().Regionsdatei[3]);
        dieselbe_region(3);
        QVERIFY(!f().Picture1->pixmap().isNull());
        TempOrdner ablage;
        const auto pfad = ablage.schreiben("region3.vel", datei_schreiben(p()));
        // A press on the map at the reference pixel of region 5 picks it and clears the field.
        QTest::mouseClick(f().Picture1, Qt::LeftButton, Qt::NoModifier, QPoint(90, 220));
        QCOMPARE(p().Klimadatei, p().Regionsdatei[5]);
        QCOMPARE(f().plz->text(), QString());
        dieselbe_region(5);
        QCOMPARE(a_klima(&KlimaFelder::anz_klimaregion),
                 QStringLiteral("Region   5: Franken und nördliches Baden-Württemberg"));
        QCOMPARE(a_klima(&KlimaFelder::anz_MittelJahrTemp), f().anz_MittelJahrTemp->text());
        QCOMPARE(a_klima(&KlimaFelder::anz_MaxMonatName), QStringLiteral("Juli"));
        // Hovering region 5 names it after a second; between the regions nothing shows.
        bewegen(f().Picture1, QPoint(90, 220));
        QVERIFY(f().Timer1->isActive());
        QVERIFY(!f().Label2->isVisible());
        QCOMPARE(f().Label2->text(),
                 QStringLiteral(" Klimaregion 5 : Franken und \n nördliches Baden-Württemberg "));
        QTRY_VERIFY_WITH_TIMEOUT(f().Label2->isVisible(), 2000);
        QVERIFY(f().Timer2->isActive());
        bewegen(f().Picture1, QPoint(1, 1));
        QVERIFY(!f().Label2->isVisible());
        QVERIFY(!f().Timer1->isActive());
        bild_speichern(*programm->haupt, QStringLiteral("klima"));

        dialoge->antworten.push_back(Dialogs::Antwort::Nein);
        dialoge->dateien.push_back(pfad.string());
        programm->haupt->findChild<QAction*>(QStringLiteral("mnuFileOeffnen"))->trigger();
        QCOMPARE(p().Klimadatei, p().Regionsdatei[3]);
        QCOMPARE(a_klima(&KlimaFelder::anz_klimaregion),
                 QStringLiteral("Region ") + f().Klimaregionwahl->itemText(2));
        dieselbe_region(3);
        dialoge->antworten.push_back(Dialogs::Antwort::Nein);
        programm->haupt->findChild<QAction*>(QStringLiteral("mnuFileNeu"))->trigger();
        dieselbe_region(4);
        waehlen(f().Option[0]);
        dieselbe_region(4);
    }

    // Yellow dots at every station, the red one at the chosen; a hover two pixels beside a dot
    // names it under the pointer, a release picks it and the red dot moves.
    void europakarte_hover_und_klick_waehlen_die_station() {
        starten("d");
        waehlen(f().Option[1]);
        QVERIFY(f().Picture2->isVisible());
        QVERIFY(!f().picture3f->isVisible());
        const Stationsliste& l = k().listen.Europa;
        const int alt = k().Klimaregionwahl2.ListIndex;
        QVERIFY(alt >= 0);
        const QPoint a = punkt(l, alt);
        QCOMPARE(f().Picture2->farbe(a.x(), a.y()), FARBE_GEWAEHLT);
        const int j = einzelne_station(l, alt, true, 1000);
        QVERIFY(j >= 0);
        const QPoint q = punkt(l, j);
        QCOMPARE(f().Picture2->farbe(q.x(), q.y()), FARBE_STATION);

        bewegen(f().Picture2, q + QPoint(1, 1));
        QCOMPARE(k().MausRegion, l.Stationsname[static_cast<std::size_t>(j)]);
        QCOMPARE(f().MausRegion->text(), QString::fromStdString(k().MausRegion));
        QCOMPARE(f().MausRegion->pos(), f().Picture2->pos() + q + QPoint(1, 21));
        QVERIFY(f().MausTimer1->isActive());
        bild_speichern(*programm->haupt, QStringLiteral("klima_europa_hover"));
        QTest::mouseRelease(f().Picture2, Qt::LeftButton, Qt::NoModifier, q + QPoint(1, 1));
        QCOMPARE(p().Klimadatei, l.Dateiname[static_cast<std::size_t>(j)]);
        QCOMPARE(f().Klimaregionwahl2->currentIndex(), j);
        QCOMPARE(f().Picture2->farbe(q.x(), q.y()), FARBE_GEWAEHLT);
        QCOMPARE(f().Picture2->farbe(a.x(), a.y()), FARBE_STATION);
        // The station's row names the climate, and its values follow it.
        QCOMPARE(a_klima(&KlimaFelder::anz_klimaregion),
                 QString::fromStdString(l.Stationsname[static_cast<std::size_t>(j)]));
        QCOMPARE(a_klima(&KlimaFelder::anz_MittelJahrTemp), f().anz_MittelJahrTemp->text());
        bild_speichern(*programm->haupt, QStringLiteral("klima_europa"));
    }

    // The bar moves the map inside its frame; a station out of view brings the map to it, a
    // click on a dot in view leaves it.
    void weltkarte_rollt_zur_station_und_klick_waehlt() {
        starten("d");
        waehlen(f().Option[2]);
        QVERIFY(f().picture3f->isVisible());
        QVERIFY(f().HScroll1->isVisible());
        QVERIFY(!f().Picture2->isVisible());
        const Stationsliste& l = k().listen.Welt;
        const int breite = f().picture3f->width();
        QCOMPARE(f().HScroll1->maximum(), (f().Picture3->width() - breite) * 15);
        const int links = einzelne_station(l, -1, true, f().Picture3->width() - breite);
        const int rechts = einzelne_station(l, -1, false, breite);
        QVERIFY(links >= 0 && rechts >= 0);
        station_waehlen(links);
        QCOMPARE(f().Picture3->x(), 0);
        station_waehlen(rechts);
        QCOMPARE(f().HScroll1->value(), f().HScroll1->maximum());
        QCOMPARE(f().Picture3->x(), breite - f().Picture3->width());
        QCOMPARE(f().Picture3->farbe(punkt(l, rechts).x(), punkt(l, rechts).y()), FARBE_GEWAEHLT);

        const int ziel = einzelne_station(l, rechts, false, breite);
        QVERIFY(ziel >= 0);
        const QPoint q = punkt(l, ziel);
        bewegen(f().Picture3, q);
        QTest::mouseRelease(f().Picture3, Qt::LeftButton, Qt::NoModifier, q);
        QCOMPARE(f().Klimaregionwahl2->currentIndex(), ziel);
        QCOMPARE(f().HScroll1->value(), f().HScroll1->maximum());
        bild_speichern(*programm->haupt, QStringLiteral("klima_welt"));
    }

    void vergroesserte_weltkarte_waehlt_erst_beim_bestaetigen() {
        starten("d");
        waehlen(f().Option[2]);
        ZoomKlimaFenster* z = f().E_Zoom_Klima;
        QVERIFY(!z->isVisible());
        QTest::mouseClick(f().Image1, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
        QVERIFY(z->isVisible());
        QVERIFY(z->isModal());
        QCOMPARE(z->windowTitle(), QStringLiteral("Klimastationen - Welt"));
        const int alt = k().Klimaregionwahl2.ListIndex;
        QCOMPARE(z->Klimaregionwahl2->currentIndex(), alt);
        const Stationsliste& l = k().listen.Welt;
        QCOMPARE(z->Picture1->size(), f().Picture3->size() * 1.5);
        QCOMPARE(z->Picture1->farbe(punkt(l, alt, 1.5).x(), punkt(l, alt, 1.5).y()),
                 FARBE_GEWAEHLT);

        // Hover and click at 1.5 times the position pick in the window only.
        const int j = einzelne_station(l, alt, true, 1000);
        const QPoint q = punkt(l, j, 1.5);
        bewegen(z->Picture1, q);
        QCOMPARE(z->schwebe.label->text(), QString::fromStdString(z->modell.MausRegion));
        QTest::mouseRelease(z->Picture1, Qt::LeftButton, Qt::NoModifier, q);
        QCOMPARE(z->Klimaregionwahl2->currentIndex(), j);
        QCOMPARE(z->Picture1->farbe(q.x(), q.y()), FARBE_GEWAEHLT);
        const std::string vorher = p().Klimadatei;
        bild_speichern(*z, QStringLiteral("klima_weltzoom"));
        QTest::mouseClick(z->Command2, Qt::LeftButton);
        QVERIFY(!z->isVisible());
        QCOMPARE(p().Klimadatei, vorher);
        QCOMPARE(f().Klimaregionwahl2->currentIndex(), alt);

        QTest::mouseClick(f().Image1, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
        QCOMPARE(z->Klimaregionwahl2->currentIndex(), alt);
        z->Klimaregionwahl2->setCurrentIndex(j);
        emit z->Klimaregionwahl2->activated(j);
        QTest::mouseClick(z->Command1, Qt::LeftButton);
        QVERIFY(!z->isVisible());
        QCOMPARE(f().Klimaregionwahl2->currentIndex(), j);
    }

    // The hover labels stay whole inside their map (German) or plane (Europe) wherever the
    // pointer is: at the right edge, at the foot and in the corner.
    void schwebetext_bleibt_ganz_sichtbar() {
        starten("d");
        waehlen(f().Option[0]);
        const QString bild = f().Picture1->property("bild").toString();
        const Bitmap karte = bitmap_lesen(VELMARIS_SOURCE_DIR "/" + bild.toStdString());
        // The named pixels furthest right, furthest down and furthest into the corner.
        QPoint rechts(-1, 0), unten(0, -1), ecke(0, 0);
        for (int y = 0; y < karte.hoehe; ++y) {
            for (int x = 0; x < karte.breite; ++x) {
                if (Picture1_Hover(karte, x, y).empty()) {
                    continue;
                }
                rechts = x > rechts.x() ? QPoint(x, y) : rechts;
                unten = y > unten.y() ? QPoint(x, y) : unten;
                ecke = x + y > ecke.x() + ecke.y() ? QPoint(x, y) : ecke;
            }
        }
        for (const QPoint& q : {rechts, unten, ecke}) {
            bewegen(f().Picture1, q);
            QVERIFY(!f().Label2->text().isEmpty());
            QVERIFY2(f().Picture1->rect().contains(f().Label2->geometry()),
                     qPrintable(QStringLiteral("at %1,%2").arg(q.x()).arg(q.y())));
        }

        // Europe: the station furthest right, whose name would run past the plane.
        waehlen(f().Option[1]);
        const Stationsliste& l = k().listen.Europa;
        int ost = 0;
        for (int i = 1; i < l.anzahl(); ++i) {
            ost = l.punkt(i).first > l.punkt(ost).first ? i : ost;
        }
        bewegen(f().Picture2, punkt(l, ost));
        QVERIFY(!k().MausRegion.empty());
        QVERIFY(programm->haupt->eingabe[Hauptfenster::Klima]->rect().contains(
            f().MausRegion->geometry()));
    }

    // A station name longer than its field is shown cut, whole in the tooltip, in the station
    // list; the climate information plane names it within its field; a short name and every
    // region stand as they are.
    void lange_stationsnamen_passen_in_ihr_feld() {
        starten("d");
        auto* stationen = static_cast<Namensliste*>(f().Klimaregionwahl2);
        auto* regionen = static_cast<Namensliste*>(f().Klimaregionwahl);
        QLabel* name = programm->klima_felder.anz_klimaregion;
        auto passt = [](const QFontMetrics& fm, const QString& text, int breite) {
            return fm.horizontalAdvance(text) <= breite;
        };
        waehlen(f().Option[1]);
        const Stationsliste& l = k().listen.Europa;
        int lang = 0, kurz = 0;
        for (int i = 1; i < l.anzahl(); ++i) {
            const auto laenge = [&l](int j) {
                return QString::fromStdString(l.Stationsname[static_cast<std::size_t>(j)]).size();
            };
            lang = laenge(i) > laenge(lang) ? i : lang;
            kurz = laenge(i) < laenge(kurz) ? i : kurz;
        }
        const QString ganz = QString::fromStdString(l.Stationsname[static_cast<std::size_t>(lang)]);
        station_waehlen(lang);
        QCOMPARE(stationen->ganzer_text(), ganz);
        QVERIFY(stationen->gezeigter_text() != ganz);
        QVERIFY(stationen->gezeigter_text().endsWith(QChar(0x2026)));
        QVERIFY(
            passt(stationen->fontMetrics(), stationen->gezeigter_text(), stationen->width() - 20));
        QCOMPARE(stationen->toolTip(), ganz);
        // The open list shows every name whole.
        QVERIFY(stationen->view()->minimumWidth() >
                stationen->fontMetrics().horizontalAdvance(ganz));
        QVERIFY(passt(name->fontMetrics(), name->text(), name->contentsRect().width()));
        QVERIFY(name->toolTip().isEmpty() || name->toolTip() == ganz);

        bild_speichern(*programm->haupt, QStringLiteral("klima_langer_name"));

        // The twelve regions all stand whole in the region list.
        waehlen(f().Option[0]);
        for (int i = 0; i < KLIMAREGIONEN; ++i) {
            regionen->setCurrentIndex(i);
            regionen->anpassen();
            QCOMPARE(regionen->gezeigter_text(), regionen->ganzer_text());
            QCOMPARE(regionen->toolTip(), QString());
        }

        waehlen(f().Option[1]);
        station_waehlen(kurz);
        QCOMPARE(stationen->gezeigter_text(), stationen->ganzer_text());
        QCOMPARE(stationen->toolTip(), QString());
        QCOMPARE(name->toolTip(), QString());
    }

    // A missing station is told of when a scope opens, not when the plane shows.
    void fehlende_station_meldet_sich_beim_oeffnen_des_bereichs() {
        starten("d");
        p().Klimadatei = "verschwunden.met";
        const std::size_t vorher = dialoge->nachrichten.size();
        programm->haupt->eingabe_zeigen(Hauptfenster::Geometrie);
        programm->haupt->eingabe_zeigen(Hauptfenster::Klima);
        QCOMPARE(dialoge->nachrichten.size(), vorher);
        waehlen(f().Option[2]);
        QCOMPARE(dialoge->nachrichten.size(), vorher + 1);
        QCOMPARE(f().Klimaregionwahl2->currentIndex(), k().listen.Welt.suchen(p().Klimadatei));
    }
};

QTEST_MAIN(TestKlimaebene)
#include "test_klimaebene.moc"
