// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop program driven through its real widgets on the offscreen platform: every bound
// widget shows its model and passes the user's input to it; the main window's commands, the
// start, the help and the fault state.
#include "language/Beschriftungen.h"
#include "planes/CheckField.h"
#include "planes/Eingabeflaechen.h"
#include "planes/ListField.h"
#include "planes/OptionGroup.h"
#include "planes/ScrollField.h"
#include "project/Label.h"
#include "project/c_glob.h"
#include "tests/project/SkriptDialogs.h"
#include "tests/support/Testprojekt.h"
#include "tests/ui/Uitesthilfe.h"
#include "ui/Bindungen.h"
#include "ui/ChartWidget.h"
#include "ui/Desktopprogramm.h"
#include "ui/Massstab.h"
#include "ui/StartFenster.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QtTest>

#include <filesystem>
#include <fstream>

class TestHauptfenster : public QObject {
    Q_OBJECT

    std::unique_ptr<SkriptDialogs> dialoge;
    std::unique_ptr<Testprogramm> programm;
    // A copy of the delivered station folder, so that the language file of a test stays its own.
    std::unique_ptr<TempOrdner> klima;
    // The language the window of the first start chooses; "" closes it without a choice.
    std::string wahl;
    int gewaehlt = 0;
    // Every binding of a widget to its model, as the program made them.
    std::vector<Bindungen::Bindung> gebunden;

    // The widgets that differ from their models; the enabled state compared is the widget's own
    // flag, which a disabled parent does not change.
    QStringList abweichungen() {
        QStringList aus;
        const bool gueltig = programm->bindungen->gueltig();
        for (const Bindungen::Bindung& b : gebunden) {
            const QWidget* w = b.widget;
            const bool eigen_aktiv = !w->testAttribute(Qt::WA_ForceDisabled);
            auto pruefen = [&](bool gleich, const char* was) {
                if (!gleich) {
                    aus << QStringLiteral("%1 %2").arg(w->objectName(), QLatin1String(was));
                }
            };
            auto zustand = [&](bool aktiv, bool sichtbar) {
                pruefen(eigen_aktiv == aktiv, "enabled");
                pruefen(w->isHidden() != sichtbar, "visible");
            };
            if (const auto* sb = qobject_cast<const QScrollBar*>(w)) {
                const auto& f = *static_cast<const ScrollField*>(b.modell);
                pruefen(sb->minimum() == f.Min && sb->maximum() == f.Max, "range");
                pruefen(sb->value() == f.Value(), "value");
                zustand(f.Enabled, f.Visible);
            } else if (const auto* cb = qobject_cast<const QComboBox*>(w)) {
                const auto& f = *static_cast<const ListField*>(b.modell);
                QStringList zeilen;
                for (const std::string& e : f.Eintraege) {
                    zeilen << QString::fromStdString(e);
                }
                QStringList gezeigt;
                for (int i = 0; i < cb->count(); ++i) {
                    gezeigt << cb->itemText(i);
                }
                pruefen(gezeigt == zeilen, "rows");
                pruefen(cb->currentIndex() == f.ListIndex(), "row");
                zustand(f.Enabled, f.Visible);
            } else if (const auto* ch = qobject_cast<const QCheckBox*>(w)) {
                const auto& f = *static_cast<const CheckField*>(b.modell);
                pruefen(ch->isChecked() == (f.Value() == 1), "checked");
                zustand(f.Enabled, f.Visible);
            } else if (const auto* rb = qobject_cast<const QRadioButton*>(w)) {
                const auto& g = *static_cast<const OptionGroup*>(b.modell);
                pruefen(rb->isChecked() == g.Value(b.index), "checked");
                pruefen(eigen_aktiv == g.Enabled(b.index), "enabled");
            } else if (const auto* l = qobject_cast<const QLabel*>(w)) {
                const auto& m = *static_cast<const Label*>(b.modell);
                const bool leer = b.art == Bindungen::Art::Ergebnis && !gueltig;
                if (!(b.art == Bindungen::Art::Entwurf && m.Caption.empty())) {
                    pruefen(l->text() == (leer ? QString() : QString::fromStdString(m.Caption)),
                            "text");
                }
                if (b.art == Bindungen::Art::Ergebnis) {
                    pruefen(eigen_aktiv == gueltig, "enabled");
                }
                pruefen(l->isHidden() != m.Visible, "visible");
                if (b.massstab > 0) {
                    pruefen(massstab::entwurf(*l).topLeft() ==
                                QPoint(m.Left / b.massstab, m.Top / b.massstab),
                            "place");
                }
            }
        }
        return aus;
    }

    // The program built on the copied station folder, not yet started.
    void bauen() {
        dialoge = std::make_unique<SkriptDialogs>();
        programm = std::make_unique<Testprogramm>(dialoge.get(), [this] {
            ++gewaehlt;
            return wahl;
        });
        programm->klimaordner = klima->pfad().string();
    }
    void starten(const char* sprache) {
        bauen();
        programm->starten(sprache);
        QVERIFY(programm->haupt->isVisible());
    }
    template <class W> W* finden(QWidget* in, const char* name) {
        W* w = in->findChild<W*>(QString::fromUtf8(name));
        if (w == nullptr) {
            qFatal("no widget %s", name);
        }
        return w;
    }
    QWidget* ebene(int i) { return programm->haupt->eingabe[static_cast<std::size_t>(i)]; }
    QScrollBar* balken(int e, const char* name) { return finden<QScrollBar>(ebene(e), name); }
    // A tall, light building on a small floor, whose effective heat capacity turns negative
    // once the building is made taller.
    void leichter_bau() {
        balken(Hauptfenster::Geometrie, "l_sb")->setSliderPosition(20);
        balken(Hauptfenster::Geometrie, "b_sb")->setSliderPosition(20);
        balken(Hauptfenster::Geometrie, "ag_sb")->setSliderPosition(-1);
        for (QComboBox* liste : ebene(Hauptfenster::Gebaeude)->findChildren<QComboBox*>()) {
            liste->setCurrentIndex(2);
            emit liste->activated(2);
        }
    }
    // Every result plane and chart is valid, or none is.
    void ergebnisse_gueltig(bool gueltig) {
        for (QWidget* a : programm->haupt->ausgabe) {
            QCOMPARE(a->isEnabled(), gueltig);
        }
        for (ChartWidget* c :
             {programm->uebersicht_diagramme.Monatsbilanz,
              programm->uebersicht_diagramme.Temperaturen, programm->heizen_diagramme.Heizbilanz,
              programm->kuehlen_diagramme.KuehlbedarfMonat, programm->sankey_diagramme.Sankey,
              programm->energie_diagramme.Monatsuebersicht,
              programm->geometrie_diagramme.AV_Picture}) {
            QCOMPARE(c->gueltig(), gueltig);
        }
        // No report, temperature table or printout of old results beside the new inputs.
        for (const char* name :
             {"mnuFileDrucken", "mnuBerechnungsergebnisseExportieren", "mnuTemperaturExport"}) {
            QVERIFY2(programm->haupt->findChild<QAction*>(name)->isEnabled() == gueltig, name);
        }
    }

private slots:
    void initTestCase() {
        klima = klima_kopie();
        Bindungen::gebunden = [this](const Bindungen::Bindung& b) { gebunden.push_back(b); };
    }
    void cleanupTestCase() { Bindungen::gebunden = nullptr; }
    void cleanup() {
        programm.reset();
        dialoge.reset();
        gebunden.clear();
        std::filesystem::remove(klima->pfad() / "typ.dat");
        wahl.clear();
        gewaehlt = 0;
    }

    // After every kind of user action, in both languages and through a fault of the
    // calculation, each bound widget shows its model: range, position, rows, checks, texts,
    // enabled and visible state and place.
    void jedes_gebundene_element_zeigt_sein_modell() {
        for (const char* sprache : {"d", "e"}) {
            starten(sprache);
            QVERIFY(gebunden.size() > 150);
            QWidget* geo = ebene(Hauptfenster::Geometrie);
            QWidget* fe = ebene(Hauptfenster::Fenster);
            const std::function<void()> schritte[] = {
                [] {},
                [&] {
                    QTest::mouseClick(finden<QCheckBox>(geo, "Check_Dachgeschoss"), Qt::LeftButton);
                },
                [&] {
                    QTest::mouseClick(finden<QRadioButton>(geo, "Option_Dachfirst(2)"),
                                      Qt::LeftButton);
                },
                [&] {
                    QTest::mouseClick(finden<QCheckBox>(ebene(Hauptfenster::Gebaeude), "awo_cb"),
                                      Qt::LeftButton);
                },
                [&] {
                    finden<QScrollBar>(fe, "ra_sb(1)")
                        ->triggerAction(QAbstractSlider::SliderPageStepAdd);
                },
                [&] { QTest::mouseClick(finden<QRadioButton>(fe, "Option1(1)"), Qt::LeftButton); },
                [&] {
                    finden<QScrollBar>(fe, "kfg_sb(2)")
                        ->triggerAction(QAbstractSlider::SliderSingleStepAdd);
                },
                [&] {
                    programm->haupt->eingabe_knopf[Hauptfenster::Energie]->click();
                    QTest::mouseClick(
                        ebene(Hauptfenster::Energie)->findChild<QPushButton*>("Command1"),
                        Qt::LeftButton);
                },
                [&] {
                    QTest::mouseClick(programm->energie_diagramme.Label_Auswahl[6], Qt::LeftButton,
                                      {}, QPoint(4, 4));
                },
                [&] { leichter_bau(); },
                [&] { balken(Hauptfenster::Geometrie, "h_sb")->setSliderPosition(-500); },
                [&] { balken(Hauptfenster::Geometrie, "h_sb")->setSliderPosition(-30); },
            };
            for (std::size_t i = 0; i < std::size(schritte); ++i) {
                schritte[i]();
                // Step 10 trips the calculation: the results are blank and greyed.
                QCOMPARE(programm->bindungen->gueltig(), i != 10);
                const QStringList fehler = abweichungen();
                QVERIFY2(fehler.isEmpty(),
                         qPrintable(QStringLiteral("%1 step %2: ").arg(sprache).arg(i) +
                                    fehler.join(QStringLiteral(", "))));
            }
            cleanup();
        }
    }

    // The bars step the field by its own steps; a vertical bar's steps run against Qt's.
    void balken_schritte() {
        starten("d");
        Projekt& p = programm->p;
        const struct {
            const char* balken;
            QAbstractSlider::SliderAction aktion;
            float* wert;
            float erwartet;
        } faelle[] = {
            {"l_sb", QAbstractSlider::SliderSingleStepAdd, &p.l, 11.0f},
            {"l_sb", QAbstractSlider::SliderPageStepAdd, &p.l, 13.0f},
            {"h_sb", QAbstractSlider::SliderPageStepAdd, &p.h, 7.2f},
            {"h_sb", QAbstractSlider::SliderSingleStepAdd, &p.h, 7.0f},
        };
        for (std::size_t i = 0; i < std::size(faelle); ++i) {
            const auto& f = faelle[i];
            balken(Hauptfenster::Geometrie, f.balken)->triggerAction(f.aktion);
            QVERIFY2(
                std::abs(*f.wert - f.erwartet) < 1e-4f,
                qPrintable(QStringLiteral("row %1, %2: %3").arg(i).arg(f.balken).arg(*f.wert)));
        }
        balken(Hauptfenster::Geometrie, "l_sb")->setSliderPosition(250);
        QCOMPARE(p.l, 25.0f);
        QCOMPARE(p.Geaendert, int16_t{1});
    }

    // Check boxes, options and lists reach their models; a U value moved by the user makes the
    // facade's type "Sonstiges", a chosen type sets its values.
    void schalter_und_listen_erreichen_ihr_modell() {
        starten("d");
        Projekt& p = programm->p;
        QWidget* geo = ebene(Hauptfenster::Geometrie);
        QTest::mouseClick(finden<QCheckBox>(geo, "Check_Dachgeschoss"), Qt::LeftButton);
        QVERIFY(p.Dachgeschoss);
        QTest::mouseClick(finden<QRadioButton>(geo, "Option_Dachfirst(2)"), Qt::LeftButton);
        QCOMPARE(p.Dachfirst, int16_t{2});
        QCOMPARE(finden<QLabel>(geo, "Label6")->text(), QStringLiteral("Dachfläche (Süd):"));

        QWidget* fe = ebene(Hauptfenster::Fenster);
        programm->haupt->eingabe_knopf[Hauptfenster::Fenster]->click();
        QTest::mouseClick(finden<QRadioButton>(fe, "Option1(1)"), Qt::LeftButton);
        QCOMPARE(p.Fenstermodus, int16_t{1});
        programm->haupt->findChildren<QPushButton*>("Command_HR(2)").first()->click();
        auto* typ = finden<QGroupBox>(fe, "Frame_Ost")->findChild<QComboBox*>();
        QVERIFY(typ->isVisible());
        typ->setCurrentIndex(1);
        emit typ->activated(1);
        QCOMPARE(p.fenstero_typ, int16_t{1});
        finden<QScrollBar>(fe, "kfg_sb(2)")->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(p.fenstero_typ, int16_t{7});
        QVERIFY(p.fensters_typ != 7);
    }

    // The controls' texts are drawn smoothed: a word in the program's font leaves grey pixels
    // between black and white, at 1x and at 2x.
    void texte_sind_geglaettet() {
        starten("d");
        for (const qreal faktor : {1.0, 2.0}) {
            QImage bild(QSize(80, 20) * faktor, QImage::Format_RGB32);
            bild.setDevicePixelRatio(faktor);
            bild.fill(Qt::white);
            {
                QPainter maler(&bild);
                maler.setFont(QApplication::font());
                maler.setPen(Qt::black);
                maler.drawText(2, 14, QStringLiteral("Dämmung"));
            }
            int grau = 0;
            for (int y = 0; y < bild.height(); ++y) {
                for (int x = 0; x < bild.width(); ++x) {
                    const int g = qGray(bild.pixel(x, y));
                    grau += g > 40 && g < 215 ? 1 : 0;
                }
            }
            QVERIFY2(grau > 10, qPrintable(QStringLiteral("at %1x").arg(faktor)));
        }
    }

    void schliessen_fragt_nach_aenderungen() {
        starten("d");
        TempOrdner ordner;
        Hauptfenster& haupt = *programm->haupt;
        QVERIFY(haupt.close());
        haupt.show();
        balken(Hauptfenster::Geometrie, "l_sb")
            ->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        dialoge->antworten = {Dialogs::Antwort::Abbrechen};
        QVERIFY(!haupt.close());
        QVERIFY(haupt.isVisible());
        const std::string datei = (ordner.pfad() / "haus.vel").string();
        dialoge->antworten = {Dialogs::Antwort::Ja};
        dialoge->dateien = {datei};
        QVERIFY(haupt.close());
        QVERIFY(std::filesystem::exists(datei));
    }

    void englischer_start_uebersetzt_jedes_fenster() {
        starten("e");
        QCOMPARE(programm->unuebersetzt, 0);
        Hauptfenster& haupt = *programm->haupt;
        // The captions as they stand, each with an access key of its own letters.
        QCOMPARE(haupt.findChild<QAction*>("mnuFile")->text(), QStringLiteral("&File"));
        QCOMPARE(haupt.findChild<QAction*>("mnuQuestInfo")->text(), QStringLiteral("&Info"));
        QCOMPARE(haupt.eingabe_knopf[Hauptfenster::Daemmung]->text(), QStringLiteral("Insulation"));
        QCOMPARE(haupt.ausgabe_knopf[Hauptfenster::Uebersicht]->text(), QStringLiteral("Preview"));
        QCOMPARE(finden<QGroupBox>(ebene(Hauptfenster::Fenster), "Frame_Sued")->title(),
                 QStringLiteral("window type"));
        // No German caption of a translated window is left on the screen.
        const std::array<std::pair<const char*, QWidget*>, 7> fenster{{
            {"Haupt", &haupt},
            {"E_Menue", haupt.E_Menue},
            {"A_Menue", haupt.A_Menue},
            {"E_Geometrie", ebene(Hauptfenster::Geometrie)},
            {"E_Fenster", ebene(Hauptfenster::Fenster)},
            {"E_Daemmung", ebene(Hauptfenster::Daemmung)},
            {"E_Gebaeude", ebene(Hauptfenster::Gebaeude)},
        }};
        auto text = [](std::string_view s) {
            return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
        };
        for (const auto& [name, w] : fenster) {
            QStringList uebrig;
            // Controls whose English caption is their German one by design.
            QStringList gleich;
            for (const Beschriftung& b : beschriftungen(name)) {
                if (!b.Steuerelement.empty() && b.Deutsch == b.Englisch) {
                    gleich << text(b.Steuerelement);
                }
            }
            for (const Beschriftung& b : beschriftungen(name)) {
                const QString deutsch = text(b.Deutsch);
                // A caption the same in both languages but for its access key ("&Report" and
                // "Report") gets the same key in English.
                if (b.Deutsch.empty() || QString(deutsch).remove(QLatin1Char('&')) ==
                                             text(b.Englisch).remove(QLatin1Char('&'))) {
                    continue;
                }
                for (QObject* o : w->findChildren<QObject*>()) {
                    const auto* l = qobject_cast<QLabel*>(o);
                    const auto* k = qobject_cast<QAbstractButton*>(o);
                    const auto* g = qobject_cast<QGroupBox*>(o);
                    const auto* a = qobject_cast<QAction*>(o);
                    if (!gleich.contains(o->objectName()) &&
                        ((l && l->text() == deutsch) || (k && k->text() == deutsch) ||
                         (g && g->title() == deutsch) || (a && a->text() == deutsch))) {
                        uebrig << deutsch;
                    }
                }
            }
            QVERIFY2(uebrig.isEmpty(), qPrintable(QString::fromUtf8(name) + ": " +
                                                  uebrig.join(QStringLiteral(", "))));
        }
    }

    // The menu's language is written for the next start; this run keeps its own.
    void sprachmenue_wirkt_beim_naechsten_start() {
        starten("d");
        Hauptfenster& haupt = *programm->haupt;
        haupt.mnuSpracheEnglisch->trigger();
        QVERIFY(haupt.mnuSpracheEnglisch->isChecked());
        QVERIFY(!haupt.mnuSpracheDeutsch->isChecked());
        std::string buchstabe;
        std::ifstream(klima->pfad() / "typ.dat") >> buchstabe;
        QCOMPARE(buchstabe, std::string("e"));
        QCOMPARE(haupt.eingabe_knopf[Hauptfenster::Daemmung]->text(), QStringLiteral("Dämmung"));
    }

    // Without a language file the choice window asks; the splash waits for Timer1 or OK_Button,
    // which then opens the project the command line names in quotes.
    void start_mit_wahl_splash_und_projekt() {
        starten("d");
        const std::string datei = (klima->pfad() / "haus.vel").string();
        balken(Hauptfenster::Geometrie, "l_sb")->setSliderPosition(123);
        dialoge->dateien = {datei};
        programm->haupt->speichern_unter();
        cleanup();

        wahl = "d";
        bauen();
        programm->starten("\"" + datei + "\"");
        QCOMPARE(gewaehlt, 1);
        QVERIFY(std::filesystem::exists(klima->pfad() / "typ.dat"));
        StartFenster& start = *programm->start;
        QVERIFY(start.isVisible());
        QVERIFY(start.Timer1.isActive());
        QCOMPARE(start.Timer1.interval(), 10000);
        QVERIFY(!programm->haupt->isVisible());
        start.OK_Button->click();
        QVERIFY(!start.isVisible());
        QVERIFY(!start.Timer1.isActive());
        QVERIFY(programm->haupt->isVisible());
        QCOMPARE(programm->p.l, 12.3f);
        // Later the same button closes the about box only.
        start.show();
        start.OK_Button->click();
        QVERIFY(!start.isVisible());
        QCOMPARE(programm->p.l, 12.3f);
        // Its close box asks about unsaved changes as the main window's does.
        balken(Hauptfenster::Geometrie, "l_sb")
            ->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        start.show();
        dialoge->antworten = {Dialogs::Antwort::Abbrechen};
        QVERIFY(!start.close());
    }

    // F1 opens the help of the language of the run at the plane last worked on, input or
    // output; the menu entry opens the start page.
    void hilfe_zur_ebene() {
        starten("e");
        Hauptfenster& haupt = *programm->haupt;
        haupt.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&haupt));
        const std::function<void()> schritte[] = {
            [&] { haupt.eingabe_knopf[Hauptfenster::Daemmung]->click(); },
            [&] { haupt.ausgabe_knopf[Hauptfenster::Heizen]->click(); },
            [&] {
                QTest::mouseClick(ebene(Hauptfenster::Daemmung), Qt::LeftButton, {}, {5, 5});
            },
            [&] {
                QTest::mouseClick(haupt.ausgabe[Hauptfenster::Heizen], Qt::LeftButton, {}, {5, 5});
            },
        };
        const char* const anker[] = {"#daemmung", "#heizen", "#daemmung", "#heizen"};
        for (std::size_t i = 0; i < std::size(schritte); ++i) {
            schritte[i]();
            QTest::keyClick(&haupt, Qt::Key_F1);
            QVERIFY(programm->hilfe != nullptr && programm->hilfe->isVisible());
            const QString quelle = programm->hilfe->source().toString();
            QVERIFY2(quelle.endsWith(QStringLiteral("velmaris_e.html") + anker[i]),
                     qPrintable(QString::number(i) + ": " + quelle));
        }
        QVERIFY(programm->hilfe->toPlainText().size() > 1000);
        haupt.findChild<QAction*>("mnuQuestHilfe")->trigger();
        QVERIFY(programm->hilfe->source().toString().endsWith("velmaris_e.html"));
        programm->hilfe->resize(800, 700);
        programm->hilfe->scrollToAnchor(QStringLiteral("beispiel"));
        bild_speichern(*programm->hilfe, QStringLiteral("hilfe_beispiel_e"));
    }

    // A plane's button is disabled while its plane shows, and every input plane paints.
    void ebenenknopf_gesperrt_solange_ebene_gezeigt() {
        starten("d");
        Hauptfenster& haupt = *programm->haupt;
        QVERIFY(!haupt.eingabe_knopf[Hauptfenster::Geometrie]->isEnabled());
        haupt.findChild<QAction*>("mnuWinDaem")->trigger();
        haupt.findChild<QAction*>("mnuWinDaem")->trigger();
        QVERIFY(ebene(Hauptfenster::Daemmung)->isVisible());
        QVERIFY(!ebene(Hauptfenster::Geometrie)->isVisible());
        QVERIFY(!haupt.eingabe_knopf[Hauptfenster::Daemmung]->isEnabled());
        QVERIFY(haupt.eingabe_knopf[Hauptfenster::Geometrie]->isEnabled());
        haupt.ausgabe_knopf[Hauptfenster::Heizen]->click();
        QVERIFY(haupt.ausgabe[Hauptfenster::Heizen]->isVisible());
        QVERIFY(!haupt.ausgabe[Hauptfenster::Uebersicht]->isVisible());
        for (int i = 0; i < 4; ++i) {
            haupt.eingabe_knopf[static_cast<std::size_t>(i)]->click();
            const QImage bild = ebene(i)->grab().toImage();
            int anders = 0;
            for (int y = 0; y < bild.height(); y += 3) {
                for (int x = 0; x < bild.width(); x += 3) {
                    anders += bild.pixel(x, y) != bild.pixel(0, 0) ? 1 : 0;
                }
            }
            QVERIFY2(anders > 500, qPrintable(QString::number(i)));
            bild_speichern(haupt, QStringLiteral("ebene_d_%1").arg(i));
        }
    }

    // One press on an arrow that trips the calculation, held while the message is up (a modal
    // box runs the event loop, and with it the arrow's auto-repeat): one message, one step, the
    // results greyed on every plane but the project still editable, until a calculation
    // succeeds. Opening a project whose calculation fails greys them as well.
    void rechenfehler_meldet_einmal_und_sperrt_die_ergebnisse() {
        starten("d");
        auto* h_sb = balken(Hauptfenster::Geometrie, "h_sb");
        leichter_bau();
        // The last height that still calculates: one step taller fails.
        int hoehe = h_sb->value();
        while (hoehe - 2 >= h_sb->minimum()) {
            h_sb->setSliderPosition(hoehe - 2);
            if (!programm->fehler.empty()) {
                break;
            }
            hoehe -= 2;
        }
        h_sb->setSliderPosition(hoehe);
        QVERIFY2(programm->fehler.empty(), "no height that calculates");
        QVERIFY(hoehe - 2 >= h_sb->minimum());

        const std::size_t vorher = dialoge->nachrichten.size();
        dialoge->beim_melden = [] { QTest::qWait(1500); };
        QStyleOptionSlider opt;
        opt.initFrom(h_sb);
        opt.subControls = QStyle::SC_All;
        opt.orientation = h_sb->orientation();
        opt.minimum = h_sb->minimum();
        opt.maximum = h_sb->maximum();
        opt.sliderPosition = opt.sliderValue = h_sb->value();
        opt.singleStep = h_sb->singleStep();
        opt.pageStep = h_sb->pageStep();
        opt.upsideDown = h_sb->invertedAppearance();
        const QRect pfeil = h_sb->style()->subControlRect(QStyle::CC_ScrollBar, &opt,
                                                          QStyle::SC_ScrollBarSubLine, h_sb);
        QVERIFY(!pfeil.isEmpty());
        QTest::mousePress(h_sb, Qt::LeftButton, {}, pfeil.center());
        QTest::mouseRelease(h_sb, Qt::LeftButton, {}, pfeil.center());
        QTest::qWait(300);
        dialoge->beim_melden = nullptr;

        QCOMPARE(dialoge->nachrichten.size(), vorher + 1);
        QCOMPARE(dialoge->nachrichten.back().text, programm->fehler);
        QCOMPARE(h_sb->value(), hoehe - 2);
        QCOMPARE(programm->p.h, static_cast<float>(-(hoehe - 2)) / 10.0f);
        // Showing the planes reports nothing again.
        Hauptfenster& haupt = *programm->haupt;
        for (QPushButton* k : haupt.ausgabe_knopf) {
            k->click();
        }
        haupt.eingabe_knopf[Hauptfenster::Gebaeude]->click();
        haupt.eingabe_knopf[Hauptfenster::Geometrie]->click();
        QCOMPARE(dialoge->nachrichten.size(), vorher + 1);
        ergebnisse_gueltig(false);
        bild_speichern(haupt, QStringLiteral("rechenfehler_d"));

        const std::string datei = (klima->pfad() / "hoch.vel").string();
        dialoge->dateien = {datei};
        haupt.speichern_unter();
        QVERIFY(h_sb->isEnabled());
        h_sb->setSliderPosition(hoehe);
        QVERIFY(programm->fehler.empty());
        ergebnisse_gueltig(true);

        dialoge->antworten = {Dialogs::Antwort::Nein};
        dialoge->dateien = {datei};
        haupt.oeffnen();
        QVERIFY(dialoge->nachrichten.back().text.rfind("Dateifehler!", 0) == 0);
        QVERIFY(!programm->bindungen->gueltig());
        QVERIFY(!programm->uebersicht_diagramme.Monatsbilanz->gueltig());
        std::filesystem::remove(datei);
    }
};

QTEST_MAIN(TestHauptfenster)
#include "test_hauptfenster.moc"
