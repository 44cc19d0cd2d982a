// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop program driven through its real widgets on the offscreen platform.
#include "language/Beschriftungen.h"
#include "planes/Eingabeflaechen.h"
#include "project/c_glob.h"
#include "tests/project/SkriptDialogs.h"
#include "tests/support/Testprojekt.h"
#include "tests/ui/Uitesthilfe.h"
#include "ui/ChartWidget.h"
#include "ui/Desktopprogramm.h"
#include "ui/StartFenster.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
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

    // The program built on the copied station folder, not yet started.
    void bauen() {
        dialoge = std::make_unique<SkriptDialogs>();
        programm = std::make_unique<Testprogramm>(dialoge.get(), [this] {
            ++gewaehlt;
            return wahl;
        });
        programm->klimaordner = klima->pfad().string();
    }
    // The program started fast in `sprache`, the main window shown.
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
    // A tall, light building on a small floor, whose effective heat capacity turns negative
    // once the building is made taller.
    void leichter_bau() {
        QWidget* geo = ebene(Hauptfenster::Geometrie);
        finden<QScrollBar>(geo, "l_sb")->setSliderPosition(20);
        finden<QScrollBar>(geo, "b_sb")->setSliderPosition(20);
        finden<QScrollBar>(geo, "ag_sb")->setSliderPosition(-1);
        for (QComboBox* liste : ebene(Hauptfenster::Gebaeude)->findChildren<QComboBox*>()) {
            liste->setCurrentIndex(2);
            emit liste->activated(2);
        }
    }
    // A chart of each result plane.
    std::vector<ChartWidget*> ergebnisdiagramme() {
        return {programm->uebersicht_diagramme.Monatsbilanz,
                programm->uebersicht_diagramme.Temperaturen,
                programm->heizen_diagramme.Heizbilanz,
                programm->kuehlen_diagramme.KuehlbedarfMonat,
                programm->sankey_diagramme.Sankey,
                programm->energie_diagramme.Monatsuebersicht};
    }

private slots:
    // Each facade panel of the windows plane names its facade; the south one the window type.
    void fassadenrahmen_tragen_ihre_namen() {
        for (const char* sprache : {"d", "e"}) {
            starten(sprache);
            QWidget* fe = programm->haupt->eingabe[Hauptfenster::Fenster];
            QCOMPARE(finden<QGroupBox>(fe, "Frame_Nord")->title(), QStringLiteral("Nord"));
            QCOMPARE(finden<QGroupBox>(fe, "Frame_Ost")->title(), QStringLiteral("Ost"));
            QCOMPARE(finden<QGroupBox>(fe, "Frame_West")->title(), QStringLiteral("West"));
            QCOMPARE(finden<QGroupBox>(fe, "Frame_Sued")->title(),
                     std::string(sprache) == "d" ? QStringLiteral("Fenstertyp")
                                                 : QStringLiteral("window type"));
            cleanup();
        }
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
    void initTestCase() { klima = klima_kopie(); }
    void cleanup() {
        programm.reset();
        dialoge.reset();
        std::filesystem::remove(klima->pfad() / "typ.dat");
        wahl.clear();
        gewaehlt = 0;
    }

    void laenge_bewegt_anzeige_und_flaechen() {
        starten("d");
        Projekt& p = programm->p;
        QWidget* geo = ebene(Hauptfenster::Geometrie);
        auto* l_sb = finden<QScrollBar>(geo, "l_sb");
        auto* l_anz = finden<QLabel>(geo, "l_anz");
        QCOMPARE(l_anz->text(), QStringLiteral("Länge: 10,0 m"));
        // The arrow moves by 1.0 m, a page click by 2.0 m.
        l_sb->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(l_sb->value(), 110);
        QCOMPARE(p.l, 11.0f);
        QCOMPARE(l_anz->text(), QStringLiteral("Länge: 11,0 m"));
        l_sb->triggerAction(QAbstractSlider::SliderPageStepAdd);
        QCOMPARE(p.l, 13.0f);
        QCOMPARE(l_anz->text(), QStringLiteral("Länge: 13,0 m"));
        // A drag to a position.
        l_sb->setSliderPosition(250);
        QCOMPARE(p.l, 25.0f);
        QCOMPARE(l_anz->text(), QStringLiteral("Länge: 25,0 m"));
        QCOMPARE(p.Geaendert, int16_t{1});
    }

    void senkrechte_seitenschritte_sind_umgekehrt() {
        starten("d");
        Projekt& p = programm->p;
        auto* h_sb = finden<QScrollBar>(ebene(Hauptfenster::Geometrie), "h_sb");
        const float h = p.h;
        // A click below the handle moves the field up: the height grows by 2.0 m.
        h_sb->triggerAction(QAbstractSlider::SliderPageStepAdd);
        QCOMPARE(p.h, h + 2.0f);
        // The arrow down makes the building lower by 0.2 m.
        h_sb->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(p.h, static_cast<float>((h_sb->value()) * -0.1));
        QVERIFY(std::abs(p.h - (h + 1.8f)) < 1e-4f);
    }

    void beheiztes_dach_zeigt_dachfelder() {
        starten("d");
        Projekt& p = programm->p;
        QWidget* geo = ebene(Hauptfenster::Geometrie);
        auto* hd_sb = finden<QScrollBar>(geo, "hd_sb");
        QVERIFY(!hd_sb->isVisible());
        QVERIFY(!finden<QLabel>(geo, "Label4")->isVisible());
        QVERIFY(!finden<QGroupBox>(geo, "Frame3")->isEnabled());
        QTest::mouseClick(finden<QCheckBox>(geo, "Check_Dachgeschoss"), Qt::LeftButton);
        QVERIFY(hd_sb->isVisible());
        QVERIFY(finden<QLabel>(geo, "Label4")->isVisible());
        QVERIFY(finden<QLabel>(geo, "Label9")->isVisible());
        QVERIFY(finden<QGroupBox>(geo, "Frame3")->isEnabled());
        QCOMPARE(hd_sb->value(), -10);
        // The insulation plane's upper closure is now the roof.
        QCOMPARE(finden<QLabel>(ebene(Hauptfenster::Daemmung), "liste2")->text(),
                 QStringLiteral("Dach"));
        // The ridge east-west swaps the captions: the roof area keeps its row beside its value,
        // the gable its own.
        const QPoint flaeche = finden<QLabel>(geo, "Label9")->pos();
        const QPoint giebel = finden<QLabel>(geo, "Label6")->pos();
        QVERIFY(flaeche.y() != giebel.y());
        QTest::mouseClick(finden<QRadioButton>(geo, "Option_Dachfirst(2)"), Qt::LeftButton);
        QCOMPARE(finden<QLabel>(geo, "Label6")->text(), QStringLiteral("Dachfläche (Süd):"));
        QCOMPARE(finden<QLabel>(geo, "Label6")->pos(), flaeche);
        QCOMPARE(finden<QLabel>(geo, "Label9")->pos(), giebel);
        QVERIFY(finden<QRadioButton>(geo, "Option_Dachfirst(2)")->isChecked());
        QVERIFY(!finden<QRadioButton>(geo, "Option_Dachfirst(1)")->isChecked());
        QTest::mouseClick(finden<QCheckBox>(geo, "Check_Dachgeschoss"), Qt::LeftButton);
        QVERIFY(!p.Dachgeschoss);
        QVERIFY(!hd_sb->isVisible());
    }

    void suedfassade_bewegt_alle_im_modus_gleiche_fenster() {
        starten("d");
        Projekt& p = programm->p;
        programm->haupt->eingabe_knopf[Hauptfenster::Fenster]->click();
        QWidget* fe = ebene(Hauptfenster::Fenster);
        QTest::mouseClick(finden<QRadioButton>(fe, "Option1(0)"), Qt::LeftButton);
        QVERIFY(finden<QRadioButton>(fe, "Option1(0)")->isChecked());
        // The frame share of the south panel goes to every facade, on the screen too.
        auto* sued = finden<QScrollBar>(fe, "ra_sb(1)");
        const int vorher = sued->value();
        sued->triggerAction(QAbstractSlider::SliderPageStepAdd);
        QCOMPARE(sued->value(), vorher + 20);
        for (int i = 0; i < 4; ++i) {
            const QString name = QStringLiteral("ra_sb(%1)").arg(i);
            QCOMPARE(fe->findChild<QScrollBar*>(name)->value(), vorher + 20);
        }
        QCOMPARE(p.rao, static_cast<float>((vorher + 20) / 100.0));
        // The window share belongs to its facade in every mode.
        auto* anteil = finden<QScrollBar>(fe, "f_sb(1)");
        const int nord = finden<QScrollBar>(fe, "f_sb(0)")->value();
        anteil->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(finden<QScrollBar>(fe, "f_sb(0)")->value(), nord);
        // The glazing U value of the south panel goes to every facade too.
        auto* kfg = finden<QScrollBar>(fe, "kfg_sb(1)");
        kfg->triggerAction(QAbstractSlider::SliderPageStepSub);
        QCOMPARE(finden<QScrollBar>(fe, "kfg_sb(3)")->value(), kfg->value());
    }

    // A U value moved by hand makes the facade's type "Sonstiges"; a chosen type sets its values.
    void verschobener_wert_macht_typ_sonstiges() {
        starten("d");
        programm->haupt->eingabe_knopf[Hauptfenster::Fenster]->click();
        QWidget* fe = ebene(Hauptfenster::Fenster);
        QTest::mouseClick(finden<QRadioButton>(fe, "Option1(1)"), Qt::LeftButton);
        programm->haupt->findChildren<QPushButton*>("Command_HR(2)").first()->click();
        auto* typ = finden<QGroupBox>(fe, "Frame_Ost")->findChild<QComboBox*>();
        QVERIFY(typ->isVisible());
        typ->setCurrentIndex(1);
        emit typ->activated(1);
        QCOMPARE(programm->p.fenstero_typ, int16_t{1});
        finden<QScrollBar>(fe, "kfg_sb(2)")->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(typ->currentIndex(), 7);
        QCOMPARE(programm->p.fenstero_typ, int16_t{7});
        // The south facade keeps its own type in the individual mode.
        QVERIFY(finden<QGroupBox>(fe, "Frame_Sued")->findChild<QComboBox*>()->currentIndex() != 7);
    }

    void wand_gegen_beheizt_sperrt_fensteranteil() {
        starten("d");
        QWidget* fe = ebene(Hauptfenster::Fenster);
        QWidget* geb = ebene(Hauptfenster::Gebaeude);
        programm->haupt->eingabe_knopf[Hauptfenster::Gebaeude]->click();
        QVERIFY(finden<QScrollBar>(fe, "f_sb(2)")->isEnabled());
        QTest::mouseClick(finden<QCheckBox>(geb, "awo_cb"), Qt::LeftButton);
        QVERIFY(!finden<QScrollBar>(fe, "f_sb(2)")->isEnabled());
        QVERIFY(finden<QScrollBar>(fe, "f_sb(0)")->isEnabled());
        QTest::mouseClick(finden<QCheckBox>(geb, "awo_cb"), Qt::LeftButton);
        QVERIFY(finden<QScrollBar>(fe, "f_sb(2)")->isEnabled());
    }

    void schliessen_fragt_nach_aenderungen() {
        starten("d");
        TempOrdner ordner;
        auto* l_sb = finden<QScrollBar>(ebene(Hauptfenster::Geometrie), "l_sb");
        Hauptfenster& haupt = *programm->haupt;
        // Unchanged: no question.
        QVERIFY(haupt.close());
        QVERIFY(dialoge->nachrichten.empty());
        haupt.show();
        l_sb->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        // Cancel keeps the window.
        dialoge->antworten = {Dialogs::Antwort::Abbrechen};
        QVERIFY(!haupt.close());
        QVERIFY(haupt.isVisible());
        QCOMPARE(dialoge->nachrichten.back().titel, std::string("Änderungen speichern ?"));
        QCOMPARE(dialoge->nachrichten.back().knoepfe, Dialogs::Knoepfe::JaNeinAbbrechen);
        // Yes asks for a name and saves there before the window goes.
        const std::string datei = (ordner.pfad() / "haus.vel").string();
        dialoge->antworten = {Dialogs::Antwort::Ja};
        dialoge->dateien = {datei};
        QVERIFY(haupt.close());
        QVERIFY(std::filesystem::exists(datei));
        QCOMPARE(programm->p.Geaendert, int16_t{0});
    }

    void englischer_start_uebersetzt_jedes_fenster() {
        starten("e");
        QCOMPARE(programm->unuebersetzt, 0);
        Hauptfenster& haupt = *programm->haupt;
        QCOMPARE(dialoge->titel, std::string("Velmaris - [no name]"));
        // The captions as they stand, each with an access key of its own letters.
        QCOMPARE(haupt.findChild<QAction*>("mnuFile")->text(), QStringLiteral("&File"));
        QCOMPARE(haupt.findChild<QAction*>("mnuQuestInfo")->text(), QStringLiteral("&Info"));
        QCOMPARE(haupt.eingabe_knopf[Hauptfenster::Daemmung]->text(), QStringLiteral("Insulation"));
        QCOMPARE(haupt.ausgabe_knopf[Hauptfenster::Uebersicht]->text(), QStringLiteral("Preview"));
        QVERIFY(haupt.mnuSpracheEnglisch->isChecked());
        QVERIFY(!haupt.mnuSpracheDeutsch->isChecked());
        QCOMPARE(finden<QLabel>(ebene(Hauptfenster::Geometrie), "l_anz")->text(),
                 QStringLiteral("length: 10.0 m"));
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
        for (const auto& [name, w] : fenster) {
            QStringList uebrig;
            // Controls whose English caption is their German one by design.
            QStringList gleich;
            for (const Beschriftung& b : beschriftungen(name)) {
                if (!b.Steuerelement.empty() && b.Deutsch == b.Englisch) {
                    gleich << QString::fromUtf8(b.Steuerelement.data(),
                                                static_cast<int>(b.Steuerelement.size()));
                }
            }
            for (const Beschriftung& b : beschriftungen(name)) {
                // A caption the same in both languages but for its access key ("&Report" and
                // "Report") gets the same key in English.
                const QString englisch = QString::fromStdString(std::string(b.Englisch));
                if (b.Deutsch.empty() ||
                    QString::fromStdString(std::string(b.Deutsch)).remove(QLatin1Char('&')) ==
                        QString(englisch).remove(QLatin1Char('&'))) {
                    continue;
                }
                const QString deutsch =
                    QString::fromUtf8(b.Deutsch.data(), static_cast<int>(b.Deutsch.size()));
                for (QObject* o : w->findChildren<QObject*>()) {
                    if (gleich.contains(o->objectName())) {
                        continue;
                    }
                    const auto* l = qobject_cast<QLabel*>(o);
                    const auto* k = qobject_cast<QAbstractButton*>(o);
                    const auto* g = qobject_cast<QGroupBox*>(o);
                    const auto* a = qobject_cast<QAction*>(o);
                    if ((l && l->text() == deutsch) || (k && k->text() == deutsch) ||
                        (g && g->title() == deutsch) || (a && a->text() == deutsch)) {
                        uebrig << deutsch;
                    }
                }
            }
            QVERIFY2(uebrig.isEmpty(), qPrintable(QString::fromUtf8(name) + ": " +
                                                  uebrig.join(QStringLiteral(", "))));
        }
    }

    void sprachmenue_wirkt_beim_naechsten_start() {
        starten("d");
        Hauptfenster& haupt = *programm->haupt;
        haupt.mnuSpracheEnglisch->trigger();
        QVERIFY(haupt.mnuSpracheEnglisch->isChecked());
        QVERIFY(!haupt.mnuSpracheDeutsch->isChecked());
        QCOMPARE(dialoge->nachrichten.size(), std::size_t{1});
        std::string buchstabe;
        std::ifstream(klima->pfad() / "typ.dat") >> buchstabe;
        QCOMPARE(buchstabe, std::string("e"));
        // The captions stay German for this run; the checked entry again does nothing.
        QCOMPARE(haupt.eingabe_knopf[Hauptfenster::Daemmung]->text(), QStringLiteral("Dämmung"));
        haupt.mnuSpracheEnglisch->trigger();
        QVERIFY(haupt.mnuSpracheEnglisch->isChecked());
        QCOMPARE(dialoge->nachrichten.size(), std::size_t{1});
        // The next start without a letter reads it: English, without the choice window.
        cleanup();
        std::ofstream(klima->pfad() / "typ.dat") << "e\n";
        bauen();
        programm->starten(std::string());
        QCOMPARE(gewaehlt, 0);
        QCOMPARE(programm->p.Sprache, std::string("e"));
    }

    // Without a language file the choice window asks; the splash waits for Timer1 or OK_Button,
    // which then opens the project the command line names in quotes.
    void start_mit_wahl_splash_und_projekt() {
        starten("d");
        const std::string datei = (klima->pfad() / "haus.vel").string();
        QVERIFY(QString::fromStdString(datei) == QString::fromStdString(datei).toLower());
        finden<QScrollBar>(ebene(Hauptfenster::Geometrie), "l_sb")->setSliderPosition(123);
        dialoge->dateien = {datei};
        programm->haupt->speichern_unter();
        QVERIFY(std::filesystem::exists(datei));
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
        QCOMPARE(dialoge->titel, std::string("Velmaris - HAUS.VEL"));
        QCOMPARE(finden<QLabel>(ebene(Hauptfenster::Geometrie), "l_anz")->text(),
                 QStringLiteral("Länge: 12,3 m"));
        // Later the same button closes the about box only.
        start.show();
        start.OK_Button->click();
        QVERIFY(!start.isVisible());
        QCOMPARE(programm->p.l, 12.3f);
        // Its close box asks about unsaved changes as the main window's does.
        finden<QScrollBar>(ebene(Hauptfenster::Geometrie), "l_sb")
            ->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        start.show();
        dialoge->antworten = {Dialogs::Antwort::Abbrechen};
        QVERIFY(!start.close());
        QCOMPARE(dialoge->nachrichten.back().titel, std::string("Änderungen speichern ?"));
    }

    // F1 opens the help of the language of the run at the plane last worked on, input or
    // output; the menu entry opens the start page.
    void hilfe_zur_ebene() {
        starten("e");
        Hauptfenster& haupt = *programm->haupt;
        haupt.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&haupt));
        haupt.eingabe_knopf[Hauptfenster::Daemmung]->click();
        QTest::keyClick(&haupt, Qt::Key_F1);
        QVERIFY(programm->hilfe != nullptr);
        QVERIFY(programm->hilfe->isVisible());
        QVERIFY(programm->hilfe->source().toString().endsWith("velmaris_e.html#daemmung"));
        QVERIFY(programm->hilfe->toPlainText().size() > 1000);

        haupt.ausgabe_knopf[Hauptfenster::Heizen]->click();
        QTest::keyClick(&haupt, Qt::Key_F1);
        QVERIFY(programm->hilfe->source().toString().endsWith("velmaris_e.html#heizen"));
        // A click into the input plane makes it the one F1 explains again.
        QTest::mouseClick(ebene(Hauptfenster::Daemmung), Qt::LeftButton, {}, QPoint(5, 5));
        QTest::keyClick(&haupt, Qt::Key_F1);
        QVERIFY(programm->hilfe->source().toString().endsWith("velmaris_e.html#daemmung"));
        QTest::mouseClick(haupt.ausgabe[Hauptfenster::Heizen], Qt::LeftButton, {}, QPoint(5, 5));
        QTest::keyClick(&haupt, Qt::Key_F1);
        QVERIFY(programm->hilfe->source().toString().endsWith("velmaris_e.html#heizen"));

        haupt.findChild<QAction*>("mnuQuestHilfe")->trigger();
        QVERIFY(programm->hilfe->source().toString().endsWith("velmaris_e.html"));
        programm->hilfe->resize(800, 700);
        programm->hilfe->scrollToAnchor(QStringLiteral("beispiel"));
        bild_speichern(*programm->hilfe, QStringLiteral("hilfe_beispiel_e"));
    }

    void ebenenknopf_gesperrt_solange_ebene_gezeigt() {
        starten("d");
        Hauptfenster& haupt = *programm->haupt;
        QVERIFY(!haupt.eingabe_knopf[Hauptfenster::Geometrie]->isEnabled());
        haupt.findChild<QAction*>("mnuWinDaem")->trigger();
        QVERIFY(ebene(Hauptfenster::Daemmung)->isVisible());
        QVERIFY(!ebene(Hauptfenster::Geometrie)->isVisible());
        QVERIFY(!haupt.eingabe_knopf[Hauptfenster::Daemmung]->isEnabled());
        QVERIFY(haupt.eingabe_knopf[Hauptfenster::Geometrie]->isEnabled());
        // The same entry again: the plane stays, its button stays disabled.
        haupt.findChild<QAction*>("mnuWinDaem")->trigger();
        QVERIFY(ebene(Hauptfenster::Daemmung)->isVisible());
        QVERIFY(!haupt.eingabe_knopf[Hauptfenster::Daemmung]->isEnabled());
        haupt.ausgabe_knopf[Hauptfenster::Heizen]->click();
        QVERIFY(haupt.ausgabe[Hauptfenster::Heizen]->isVisible());
        QVERIFY(!haupt.ausgabe[Hauptfenster::Uebersicht]->isVisible());
    }

    // A fault of the calculation is shown, greys the results and leaves the project editable;
    // the next change calculates again. Opening a project whose calculation fails greys them
    // as well.
    void rechenfehler_macht_ergebnisse_ungueltig() {
        starten("d");
        QWidget* geo = ebene(Hauptfenster::Geometrie);
        leichter_bau();
        QVERIFY(programm->fehler.empty());
        finden<QScrollBar>(geo, "h_sb")->setSliderPosition(-500);
        QVERIFY2(!programm->fehler.empty(), "no fault");
        QCOMPARE(dialoge->nachrichten.back().text, programm->fehler);
        QVERIFY(dialoge->nachrichten.back().text.find("negativ") != std::string::npos);
        auto* f_gd = finden<QLabel>(geo, "f_gd_anz");
        QVERIFY(f_gd->text().isEmpty());
        QVERIFY(!f_gd->isEnabled());
        QVERIFY(!programm->geometrie_diagramme.AV_Picture->gueltig());
        // No report, temperature table or printout of old results beside the new inputs.
        const char* const dokumente[] = {"mnuFileDrucken", "mnuBerechnungsergebnisseExportieren",
                                         "mnuTemperaturExport"};
        for (const char* name : dokumente) {
            QVERIFY2(!programm->haupt->findChild<QAction*>(name)->isEnabled(), name);
        }
        const std::string datei = (klima->pfad() / "hoch.vel").string();
        dialoge->dateien = {datei};
        programm->haupt->speichern_unter();
        // Still editable: the field moved, and a lower building calculates again.
        QVERIFY(finden<QScrollBar>(geo, "h_sb")->isEnabled());
        QCOMPARE(programm->p.h, 50.0f);
        finden<QScrollBar>(geo, "h_sb")->setSliderPosition(-30);
        QVERIFY(programm->fehler.empty());
        QCOMPARE(f_gd->text(), QStringLiteral(" 4,0"));
        QVERIFY(f_gd->isEnabled());
        QVERIFY(programm->geometrie_diagramme.AV_Picture->gueltig());
        for (const char* name : dokumente) {
            QVERIFY2(programm->haupt->findChild<QAction*>(name)->isEnabled(), name);
        }

        const std::size_t vorher = dialoge->nachrichten.size();
        dialoge->antworten = {Dialogs::Antwort::Nein};
        dialoge->dateien = {datei};
        programm->haupt->oeffnen();
        QCOMPARE(dialoge->nachrichten.size(), vorher + 2);
        QVERIFY(dialoge->nachrichten.back().text.rfind("Dateifehler!", 0) == 0);
        QVERIFY(!programm->bindungen->gueltig());
        QVERIFY(!programm->uebersicht_diagramme.Monatsbilanz->gueltig());
        std::filesystem::remove(datei);
    }

    // One press on an arrow that trips the calculation, held while the message is up (a modal
    // box runs the event loop, and with it the arrow's auto-repeat): one message, one step, and
    // the fault state on every plane until a calculation succeeds.
    void fehler_beim_pfeil_meldet_einmal() {
        for (const char* sprache : {"d", "e"}) {
            starten(sprache);
            QWidget* geo = ebene(Hauptfenster::Geometrie);
            auto* h_sb = finden<QScrollBar>(geo, "h_sb");
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
            QCOMPARE(h_sb->value(), hoehe - 2);
            QCOMPARE(programm->p.h, static_cast<float>(-(hoehe - 2)) / 10.0f);
            const std::string ursache = std::string(sprache) == "e"
                                            ? "effective heat capacity comes out negative"
                                            : "wirksame Wärmekapazität wird negativ";
            QVERIFY(dialoge->nachrichten.back().text.find(ursache) != std::string::npos);

            // Every result plane stays greyed, and showing a plane reports nothing again.
            Hauptfenster& haupt = *programm->haupt;
            for (int a = 0; a < 5; ++a) {
                haupt.ausgabe_knopf[static_cast<std::size_t>(a)]->click();
                QVERIFY(!haupt.ausgabe[static_cast<std::size_t>(a)]->isEnabled());
            }
            for (ChartWidget* c : ergebnisdiagramme()) {
                QVERIFY(!c->gueltig());
            }
            haupt.eingabe_knopf[Hauptfenster::Gebaeude]->click();
            haupt.eingabe_knopf[Hauptfenster::Geometrie]->click();
            QCOMPARE(dialoge->nachrichten.size(), vorher + 1);
            QVERIFY(finden<QLabel>(geo, "f_gd_anz")->text().isEmpty());
            bild_speichern(haupt, QStringLiteral("rechenfehler_%1").arg(sprache));

            // A change that calculates ends the fault state everywhere.
            h_sb->setSliderPosition(hoehe);
            QVERIFY(programm->fehler.empty());
            for (int a = 0; a < 5; ++a) {
                QVERIFY(haupt.ausgabe[static_cast<std::size_t>(a)]->isEnabled());
            }
            for (ChartWidget* c : ergebnisdiagramme()) {
                QVERIFY(c->gueltig());
            }
            cleanup();
        }
    }

    // Every input plane paints in both languages; with VELMARIS_BILDER set, the pictures of
    // the main window go to that folder for a look by eye.
    void ebenen_zeichnen_sich() {
        for (const char* sprache : {"d", "e"}) {
            starten(sprache);
            Hauptfenster& haupt = *programm->haupt;
            const QString ordner = qEnvironmentVariable("VELMARIS_BILDER");
            for (int i = 0; i < 4; ++i) {
                haupt.eingabe_knopf[static_cast<std::size_t>(i)]->click();
                const QImage bild = haupt.grab().toImage();
                QCOMPARE(bild.width(), haupt.width());
                const QImage ebene_bild = ebene(i)->grab().toImage();
                const QRgb ecke = ebene_bild.pixel(0, 0);
                int anders = 0;
                for (int y = 0; y < ebene_bild.height(); y += 3) {
                    for (int x = 0; x < ebene_bild.width(); x += 3) {
                        anders += ebene_bild.pixel(x, y) != ecke ? 1 : 0;
                    }
                }
                QVERIFY(anders > 500);
                if (!ordner.isEmpty()) {
                    bild.save(ordner + QStringLiteral("/ebene_%1_%2.png").arg(sprache).arg(i));
                }
            }
            cleanup();
        }
    }
};

QTEST_MAIN(TestHauptfenster)
#include "test_hauptfenster.moc"
