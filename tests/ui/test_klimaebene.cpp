// SPDX-License-Identifier: GPL-3.0-or-later
// The climate plane of the desktop program on the offscreen platform: the post code field with
// its key filter and Enter, the German map following the region, the Europe and world maps with
// their dots, hover and clicks, the scrolled world map, the enlarged world map, the fallback of a
// missing station and the climate labels of both planes.
#include "climate/Bitmap.h"
#include "climate/ebene/E_Klima.h"
#include "climate/ebene/stationskarten.h"
#include "climate/klimaregionen.h"
#include "project/Zahlformat.h"
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

private slots:
    void initTestCase() { klima = klima_kopie(); }
    void cleanup() { beenden(); }

    void englisch_und_europa() {
        dialoge = std::make_unique<SkriptDialogs>();
        programm = programm_starten(dialoge.get(), *klima, "e");
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
        waehlen(f.Option[1]);
        Projekt& p = programm->p;
        QCOMPARE(p.Klimaauswahl, int16_t{2});
        QVERIFY(!f.Picture1->isVisible());
        QVERIFY(!f.plz->isVisible());
        QVERIFY(f.Klimaregionwahl2->isVisible());
        const E_Klima& k = programm->ebenen->klima;
        QCOMPARE(f.Klimaregionwahl2->count(),
                 static_cast<int>(k.Klimaregionwahl2.Eintraege.size()));
        QVERIFY(f.Klimaregionwahl2->count() > 1);
        programm.reset();
        dialoge.reset();
    }

    void europakarte_hover_und_klick_waehlen_die_station() {
        starten("d");
        const KlimawahlFelder& f = programm->klimawahl_felder;
        Projekt& p = programm->p;
        const E_Klima& k = programm->ebenen->klima;
        waehlen(f.Option[1]);
        QVERIFY(f.Picture2->isVisible());
        QVERIFY(!f.picture3f->isVisible());
        const Stationsliste& l = k.listen.Europa;
        const int alt = k.Klimaregionwahl2.ListIndex;
        QVERIFY(alt >= 0);
        // Yellow dots at every station, the red one at the selected station.
        QCOMPARE(f.Picture2->farbe(punkt(l, alt).x(), punkt(l, alt).y()), FARBE_GEWAEHLT);
        const int j = einzelne_station(l, alt, true, 1000);
        QVERIFY(j >= 0);
        const QPoint q = punkt(l, j);
        QCOMPARE(f.Picture2->farbe(q.x(), q.y()), FARBE_STATION);

        // Between the dots the colour is the map's: no name, and a release there does nothing.
        bewegen(f.Picture2, QPoint(2, 2));
        QCOMPARE(k.MausRegion, std::string());
        QVERIFY(!f.MausTimer1->isActive());
        QTest::mouseRelease(f.Picture2, Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
        QCOMPARE(k.Klimaregionwahl2.ListIndex, alt);

        // Two pixels beside the dot still name the station; the label comes after a second.
        p.Geaendert = 0;
        bewegen(f.Picture2, q + QPoint(1, 1));
        QCOMPARE(k.MausRegion, l.Stationsname[static_cast<std::size_t>(j)]);
        QCOMPARE(f.MausRegion->text(), QString::fromStdString(k.MausRegion));
        QCOMPARE(f.MausRegion->pos(), f.Picture2->pos() + q + QPoint(1, 21));
        QVERIFY(f.MausTimer1->isActive());
        QTRY_VERIFY_WITH_TIMEOUT(f.MausRegion->isVisible(), 2000);
        QVERIFY(f.MausTimer2->isActive());
        bild_speichern(*programm->haupt, QStringLiteral("klima_europa_hover"));

        QTest::mouseRelease(f.Picture2, Qt::LeftButton, Qt::NoModifier, q + QPoint(1, 1));
        QCOMPARE(p.Klimadatei, l.Dateiname[static_cast<std::size_t>(j)]);
        QCOMPARE(f.Klimaregionwahl2->currentIndex(), j);
        // The red dot moved to the new station, the old one is yellow again.
        QCOMPARE(f.Picture2->farbe(q.x(), q.y()), FARBE_GEWAEHLT);
        QCOMPARE(f.Picture2->farbe(punkt(l, alt).x(), punkt(l, alt).y()), FARBE_STATION);
        bild_speichern(*programm->haupt, QStringLiteral("klima_europa"));
    }

    void weltkarte_rollt_zur_station_und_klick_waehlt() {
        starten("d");
        const KlimawahlFelder& f = programm->klimawahl_felder;
        Projekt& p = programm->p;
        const E_Klima& k = programm->ebenen->klima;
        waehlen(f.Option[2]);
        QVERIFY(f.picture3f->isVisible());
        QVERIFY(f.HScroll1->isVisible());
        QVERIFY(!f.Picture2->isVisible());
        const Stationsliste& l = k.listen.Welt;
        const int breite = f.picture3f->width();
        // The bar moves the map inside its frame by whole pixels of its twips.
        QCOMPARE(f.HScroll1->maximum(), (f.Picture3->width() - breite) * 15);
        f.HScroll1->setValue(f.HScroll1->maximum());
        QCOMPARE(f.Picture3->x(), breite - f.Picture3->width());

        // A station left of the visible strip: the map goes back to the start.
        const int links = einzelne_station(l, -1, true, f.Picture3->width() - breite);
        QVERIFY(links >= 0);
        f.Klimaregionwahl2->setCurrentIndex(links);
        emit f.Klimaregionwahl2->activated(links);
        QCOMPARE(p.Klimadatei, l.Dateiname[static_cast<std::size_t>(links)]);
        QCOMPARE(f.HScroll1->value(), 0);
        QCOMPARE(f.Picture3->x(), 0);
        // One right of it: the map goes to its end.
        const int rechts = einzelne_station(l, -1, false, breite);
        QVERIFY(rechts >= 0);
        f.Klimaregionwahl2->setCurrentIndex(rechts);
        emit f.Klimaregionwahl2->activated(rechts);
        QCOMPARE(f.HScroll1->value(), f.HScroll1->maximum());
        QCOMPARE(f.Picture3->x(), breite - f.Picture3->width());
        QCOMPARE(f.Picture3->farbe(punkt(l, rechts).x(), punkt(l, rechts).y()), FARBE_GEWAEHLT);

        // A click on a dot in view picks it; the map stays where it is.
        const int ziel = einzelne_station(l, rechts, false, breite);
        QVERIFY(ziel >= 0);
        const QPoint q = punkt(l, ziel);
        bewegen(f.Picture3, q);
        QCOMPARE(k.MausRegion, l.Stationsname[static_cast<std::size_t>(ziel)]);
        QTest::mouseRelease(f.Picture3, Qt::LeftButton, Qt::NoModifier, q);
        QCOMPARE(p.Klimadatei, l.Dateiname[static_cast<std::size_t>(ziel)]);
        QCOMPARE(f.Klimaregionwahl2->currentIndex(), ziel);
        QCOMPARE(f.HScroll1->value(), f.HScroll1->maximum());
        bild_speichern(*programm->haupt, QStringLiteral("klima_welt"));
    }

    void vergroesserte_weltkarte_waehlt_erst_beim_bestaetigen() {
        starten("d");
        const KlimawahlFelder& f = programm->klimawahl_felder;
        Projekt& p = programm->p;
        E_Klima& k = programm->ebenen->klima;
        waehlen(f.Option[2]);
        ZoomKlimaFenster* z = f.E_Zoom_Klima;
        QVERIFY(!z->isVisible());
        QTest::mouseClick(f.Image1, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
        QVERIFY(z->isVisible());
        QVERIFY(z->isModal());
        QCOMPARE(z->windowTitle(), QStringLiteral("Klimastationen - Welt"));
        const int alt = k.Klimaregionwahl2.ListIndex;
        QCOMPARE(z->Klimaregionwahl2->currentIndex(), alt);
        const Stationsliste& l = k.listen.Welt;
        QCOMPARE(z->Picture1->size(), f.Picture3->size() * 1.5);
        QCOMPARE(z->Picture1->farbe(punkt(l, alt, 1.5).x(), punkt(l, alt, 1.5).y()),
                 FARBE_GEWAEHLT);

        // Hover and click at 1.5 times the position pick in the window only.
        const int j = einzelne_station(l, alt, true, 1000);
        const QPoint q = punkt(l, j, 1.5);
        k.zufall = reihum(l.anzahl());
        bewegen(z->Picture1, q);
        QCOMPARE(z->modell.MausRegion, l.Stationsname[static_cast<std::size_t>(j)]);
        QCOMPARE(z->schwebe.label->text(), QString::fromStdString(z->modell.MausRegion));
        QTest::mouseRelease(z->Picture1, Qt::LeftButton, Qt::NoModifier, q);
        QCOMPARE(z->Klimaregionwahl2->currentIndex(), j);
        QCOMPARE(z->Picture1->farbe(q.x(), q.y()), FARBE_GEWAEHLT);
        const std::string vorher = p.Klimadatei;
        bild_speichern(*z, QStringLiteral("klima_weltzoom"));

        // Command2 closes without a change.
        QTest::mouseClick(z->Command2, Qt::LeftButton);
        QVERIFY(!z->isVisible());
        QCOMPARE(p.Klimadatei, vorher);
        QCOMPARE(f.Klimaregionwahl2->currentIndex(), alt);

        // Opened again it shows the plane's row; Command1 hands the window's pick to the plane.
        QTest::mouseClick(f.Image1, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
        QCOMPARE(z->Klimaregionwahl2->currentIndex(), alt);
        z->Klimaregionwahl2->setCurrentIndex(j);
        emit z->Klimaregionwahl2->activated(j);
        QTest::mouseClick(z->Command1, Qt::LeftButton);
        QVERIFY(!z->isVisible());
        QCOMPARE(p.Klimadatei, l.Dateiname[static_cast<std::size_t>(j)]);
        QCOMPARE(f.Klimaregionwahl2->currentIndex(), j);
        QCOMPARE(a_klima(&KlimaFelder::anz_klimaregion),
                 QString::fromStdString(l.Stationsname[static_cast<std::size_t>(j)]));
    }

    // The German map: the post code field with its key filter and Enter, a click and the hover
    // of a region. Opening a project names its own station, not the one picked last on the
    // plane; the map and the region list show the same region after a pick, an open and
    // File > New, also while the new project's scope hides them.
    void deutsche_karte_und_geoeffnetes_projekt() {
        starten("d");
        const KlimawahlFelder& f = programm->klimawahl_felder;
        Projekt& p = programm->p;
        auto dieselbe_region = [&f](int region) {
            QCOMPARE(f.Klimaregionwahl->currentIndex(), region - 1);
            QCOMPARE(f.Picture1->property("bild").toString(),
                     QStringLiteral("Grafiken/klima%1.bmp").arg(region));
        };
        waehlen(f.Option[0]);
        QCOMPARE(p.Klimaauswahl, int16_t{1});
        QVERIFY(f.plz->isVisible());
        QVERIFY(!f.Klimaregionwahl2->isVisible());
        // Letters are dropped, a sixth digit is not taken; the prefix 200 lies in region 3.
        QTest::keyClicks(f.plz, QStringLiteral("2a0x0955"));
        QCOMPARE(f.plz->text(), QStringLiteral("20095"));
        QTest::keyClick(f.plz, Qt::Key_Return);
        QCOMPARE(p.Klimadatei, p.Regionsdatei[3]);
        dieselbe_region(3);
        QVERIFY(!f.Picture1->pixmap().isNull());
        TempOrdner ablage;
        const auto pfad = ablage.schreiben("region3.vel", datei_schreiben(p));
        // A press on the map at the reference pixel of region 5 picks it and clears the field.
        QTest::mouseClick(f.Picture1, Qt::LeftButton, Qt::NoModifier, QPoint(90, 220));
        QCOMPARE(p.Klimadatei, p.Regionsdatei[5]);
        QCOMPARE(f.plz->text(), QString());
        dieselbe_region(5);
        // Hovering region 5 names it after a second; between the regions nothing shows.
        QMouseEvent bewegung(QEvent::MouseMove, QPointF(90, 220),
                             QPointF(f.Picture1->mapToGlobal(QPoint(90, 220))), Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(f.Picture1, &bewegung);
        QVERIFY(f.Timer1->isActive());
        QVERIFY(!f.Label2->isVisible());
        QCOMPARE(f.Label2->text(),
                 QStringLiteral(" Klimaregion 5 : Franken und \n nördliches Baden-Württemberg "));
        QTRY_VERIFY_WITH_TIMEOUT(f.Label2->isVisible(), 2000);
        QVERIFY(f.Timer2->isActive());
        QMouseEvent leer(QEvent::MouseMove, QPointF(1, 1),
                         QPointF(f.Picture1->mapToGlobal(QPoint(1, 1))), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(f.Picture1, &leer);
        QVERIFY(!f.Label2->isVisible());
        QVERIFY(!f.Timer1->isActive());

        bild_speichern(*programm->haupt, QStringLiteral("klima"));

        dialoge->antworten.push_back(Dialogs::Antwort::Nein);
        dialoge->dateien.push_back(pfad.string());
        programm->haupt->findChild<QAction*>(QStringLiteral("mnuFileOeffnen"))->trigger();
        QCOMPARE(p.Klimadatei, p.Regionsdatei[3]);
        QCOMPARE(a_klima(&KlimaFelder::anz_klimaregion),
                 QStringLiteral("Region ") + f.Klimaregionwahl->itemText(2));
        dieselbe_region(3);

        // File > New: region 4 on the map and in the list, before and after Germany is chosen.
        dialoge->antworten.push_back(Dialogs::Antwort::Nein);
        programm->haupt->findChild<QAction*>(QStringLiteral("mnuFileNeu"))->trigger();
        QCOMPARE(p.Klimadatei, p.Regionsdatei[4]);
        dieselbe_region(4);
        waehlen(f.Option[0]);
        dieselbe_region(4);
    }

    // The hover labels stay whole inside their map (German) or plane (Europe) wherever the
    // pointer is: at the right edge, at the foot and in the corner.
    void schwebetext_bleibt_ganz_sichtbar() {
        starten("d");
        const KlimawahlFelder& f = programm->klimawahl_felder;
        const E_Klima& k = programm->ebenen->klima;
        waehlen(f.Option[0]);
        const QString bild = f.Picture1->property("bild").toString();
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
            bewegen(f.Picture1, q);
            QVERIFY(!f.Label2->text().isEmpty());
            QVERIFY2(f.Picture1->rect().contains(f.Label2->geometry()),
                     qPrintable(QStringLiteral("at %1,%2").arg(q.x()).arg(q.y())));
        }

        // Europe: the station furthest right, whose name would run past the plane.
        waehlen(f.Option[1]);
        const Stationsliste& l = k.listen.Europa;
        int ost = 0;
        for (int i = 1; i < l.anzahl(); ++i) {
            ost = l.punkt(i).first > l.punkt(ost).first ? i : ost;
        }
        bewegen(f.Picture2, punkt(l, ost));
        QVERIFY(!k.MausRegion.empty());
        QWidget* ebene = programm->haupt->eingabe[Hauptfenster::Klima];
        QVERIFY(ebene->rect().contains(f.MausRegion->geometry()));
    }

    // A station name longer than its field is shown cut, whole in the tooltip, in the station
    // list; the climate information plane names it within its field; a short name and every
    // region stand as they are.
    void lange_stationsnamen_passen_in_ihr_feld() {
        starten("d");
        const KlimawahlFelder& f = programm->klimawahl_felder;
        const E_Klima& k = programm->ebenen->klima;
        auto* stationen = static_cast<Namensliste*>(f.Klimaregionwahl2);
        auto* regionen = static_cast<Namensliste*>(f.Klimaregionwahl);
        QLabel* name = programm->klima_felder.anz_klimaregion;
        auto passt = [](const QFontMetrics& fm, const QString& text, int breite) {
            return fm.horizontalAdvance(text) <= breite;
        };
        waehlen(f.Option[1]);
        const Stationsliste& l = k.listen.Europa;
        int lang = 0, kurz = 0;
        for (int i = 1; i < l.anzahl(); ++i) {
            const auto laenge = [&l](int j) {
                return QString::fromStdString(l.Stationsname[static_cast<std::size_t>(j)]).size();
            };
            lang = laenge(i) > laenge(lang) ? i : lang;
            kurz = laenge(i) < laenge(kurz) ? i : kurz;
        }
        const QString ganz = QString::fromStdString(l.Stationsname[static_cast<std::size_t>(lang)]);
        f.Klimaregionwahl2->setCurrentIndex(lang);
        emit f.Klimaregionwahl2->activated(lang);
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
        waehlen(f.Option[0]);
        for (int i = 0; i < KLIMAREGIONEN; ++i) {
            regionen->setCurrentIndex(i);
            regionen->anpassen();
            QCOMPARE(regionen->gezeigter_text(), regionen->ganzer_text());
            QCOMPARE(regionen->toolTip(), QString());
        }

        waehlen(f.Option[1]);
        f.Klimaregionwahl2->setCurrentIndex(kurz);
        emit f.Klimaregionwahl2->activated(kurz);
        QCOMPARE(stationen->gezeigter_text(), stationen->ganzer_text());
        QCOMPARE(stationen->toolTip(), QString());
        QCOMPARE(name->toolTip(), QString());
    }

    void fehlende_station_meldet_sich_beim_oeffnen_des_bereichs() {
        for (const char* sprache : {"d", "e"}) {
            starten(sprache);
            const KlimawahlFelder& f = programm->klimawahl_felder;
            Projekt& p = programm->p;
            const E_Klima& k = programm->ebenen->klima;
            const bool englisch = std::string(sprache) == "e";
            const std::string text = englisch ? "     Climatic data not found!\rDefault climatic "
                                                "data will be loaded!"
                                              : "   Klimadatensatz nicht gefunden!\rDefault-"
                                                "Klimadatensatz wird geladen!";
            const std::string titel =
                englisch ? "Climatic data not found!" : "Klimadatensatz nicht vorhanden";
            // The project names a station that is in no list; nothing is said until a scope opens.
            p.Klimadatei = "verschwunden.met";
            const std::size_t vorher = dialoge->nachrichten.size();
            programm->haupt->eingabe_zeigen(Hauptfenster::Geometrie);
            programm->haupt->eingabe_zeigen(Hauptfenster::Klima);
            QCOMPARE(dialoge->nachrichten.size(), vorher);

            // World: the message, then a station of the world list by chance.
            waehlen(f.Option[2]);
            QCOMPARE(dialoge->nachrichten.size(), vorher + 1);
            QCOMPARE(dialoge->nachrichten.back().text, text);
            QCOMPARE(dialoge->nachrichten.back().titel, titel);
            QCOMPARE(dialoge->nachrichten.back().symbol, Dialogs::Symbol::Information);
            const int w = k.listen.Welt.suchen(p.Klimadatei);
            QVERIFY(w >= 0);
            QCOMPARE(f.Klimaregionwahl2->currentIndex(), w);
            beenden();
        }
    }

    void klimawerte_nach_einem_stationswechsel_in_beiden_sprachen() {
        for (const char* sprache : {"d", "e"}) {
            starten(sprache);
            const KlimawahlFelder& f = programm->klimawahl_felder;
            Projekt& p = programm->p;
            const E_Klima& k = programm->ebenen->klima;
            const bool englisch = std::string(sprache) == "e";
            const char dez = englisch ? '.' : ',';
            // The plane's own captions come from the caption table in English.
            QCOMPARE(f.anz_MinMonatText->text(), englisch
                                                     ? QStringLiteral("min. monthly mean value")
                                                     : QStringLiteral("min. Monatsmittelwert"));
            QCOMPARE(f.anz_MaxMonatText->text(), englisch
                                                     ? QStringLiteral("max. monthly mean value")
                                                     : QStringLiteral("max. Monatsmittelwert"));
            if (englisch) {
                QCOMPARE(
                    fenster_uebersetzen(*programm->haupt->eingabe[Hauptfenster::Klima], "E_Klima"),
                    0);
                QCOMPARE(f.E_Zoom_Klima->windowTitle(), QStringLiteral("Climate stations - World"));
                QCOMPARE(f.E_Zoom_Klima->Command2->text(), QStringLiteral("Cancel"));
            }

            // Germany: a click on region 5 names it by its row of the region list.
            waehlen(f.Option[0]);
            QTest::mouseClick(f.Picture1, Qt::LeftButton, Qt::NoModifier, QPoint(90, 220));
            QCOMPARE(p.Klimadatei, p.Regionsdatei[5]);
            QCOMPARE(a_klima(&KlimaFelder::anz_klimaregion),
                     QStringLiteral("Region   5: Franken und nördliches Baden-Württemberg"));
            auto zahl = [dez](float v) {
                return QString::fromStdString(format_muster(v, "0.0", dez));
            };
            const Klimakennwerte region5 = p.Klimainfo;
            QCOMPARE(f.anz_MittelJahrTemp->text(), zahl(region5.MittelJahrTemp));
            QCOMPARE(f.anz_MinMonatTemp->text(), zahl(region5.MinMonatTemp));
            QCOMPARE(f.anz_MaxMonatTemp->text(), zahl(region5.MaxMonatTemp));
            QVERIFY(f.anz_MittelJahrTemp->text().contains(QLatin1Char(dez)));
            QCOMPARE(a_klima(&KlimaFelder::anz_MittelJahrTemp), f.anz_MittelJahrTemp->text());
            QCOMPARE(a_klima(&KlimaFelder::anz_MinMonatTemp), f.anz_MinMonatTemp->text());
            QCOMPARE(a_klima(&KlimaFelder::anz_MaxMonatTemp), f.anz_MaxMonatTemp->text());
            QCOMPARE(a_klima(&KlimaFelder::anz_MaxMonatName),
                     englisch ? QStringLiteral("July") : QStringLiteral("Juli"));
            QCOMPARE(a_klima(&KlimaFelder::anz_MinMonatName),
                     englisch ? QStringLiteral("January") : QStringLiteral("Januar"));
            bild_speichern(*programm->haupt, QStringLiteral("klima_deutschland_%1").arg(sprache));

            // Europe: the station's row, not its file; the values follow the new station.
            waehlen(f.Option[1]);
            const Stationsliste& l = k.listen.Europa;
            int andere = -1;
            for (int i = 0; i < l.anzahl() && andere < 0; ++i) {
                if (l.Dateiname[static_cast<std::size_t>(i)].rfind("bremen", 0) != 0 &&
                    l.suchen(p.Klimadatei) != i) {
                    andere = i;
                }
            }
            f.Klimaregionwahl2->setCurrentIndex(andere);
            emit f.Klimaregionwahl2->activated(andere);
            QCOMPARE(a_klima(&KlimaFelder::anz_klimaregion),
                     QString::fromStdString(l.Stationsname[static_cast<std::size_t>(andere)]));
            QCOMPARE(f.anz_MittelJahrTemp->text(), zahl(p.Klimainfo.MittelJahrTemp));
            QVERIFY(p.Klimainfo.MittelJahrTemp != region5.MittelJahrTemp);
            QCOMPARE(a_klima(&KlimaFelder::anz_MittelJahrTemp), f.anz_MittelJahrTemp->text());

            // A recalculation without a new station keeps the name.
            programm->haupt->ausgabe_zeigen(Hauptfenster::Uebersicht);
            programm->haupt->ausgabe_zeigen(Hauptfenster::KlimaGebaeude);
            QCOMPARE(a_klima(&KlimaFelder::anz_klimaregion),
                     QString::fromStdString(l.Stationsname[static_cast<std::size_t>(andere)]));
            bild_speichern(*programm->haupt->ausgabe[Hauptfenster::KlimaGebaeude],
                           QStringLiteral("a_klima_%1").arg(sprache));
            beenden();
        }
    }
};

QTEST_MAIN(TestKlimaebene)
#include "test_klimaebene.moc"
