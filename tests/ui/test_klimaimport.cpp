// SPDX-License-Identifier: GPL-3.0-or-later
// The climate import window of the desktop program on the offscreen platform: its widgets show
// and feed the import's record, a real source's station reaches the station lists after a
// restart, and the Qt answers to the import's questions close their own boxes.
#include "climate/import/importtexte.h"
#include "project/c_glob.h"
#include "tests/import/Importhilfe.h"
#include "tests/project/SkriptDialogs.h"
#include "tests/support/Testprojekt.h"
#include "tests/ui/Uitesthilfe.h"
#include "ui/Desktopprogramm.h"
#include "ui/QtImportDialoge.h"

#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTimer>
#include <QtTest>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <functional>

namespace fs = std::filesystem;

namespace {

const fs::path TRY_QUELLE = fs::path(VELMARIS_SOURCE_DIR) / "tests" / "daten" /
                            "DEU_TRYregion01_Bremerhaven_TRY2015_535591085872_Jahr.dat";

const std::string BEENDET = "Klimadatenimport beendet! Biite starten Sie Velmaris neu, um die "
                            "gerade importierten Daten verwenden zu können.";

// A Meteonorm hourly text of a year: place, coordinates, a free line, the column names.
std::string meteonorm() {
    std::string t = "\"Bern\"\r\n46.95,7.43,553,-1\r\nfrei\r\nm\tdm\th\tG_Gh\tTa\tG_Dh\r\n";
    for (int i = 0; i < 8760; ++i) {
        t += "1\t1\t" + std::to_string(i % 24 + 1) + "\t" + std::to_string(i % 24 * 20) + "\t" +
             std::to_string(i % 9) + ".5\t" + std::to_string(i % 24 * 5) + "\r\n";
    }
    return t;
}

// Right-aligned columns after one head line: day, Ta, total, diffuse.
std::string leerzeichenquelle() {
    std::string t = "Tag    Ta  G_Gh  G_Dh\n";
    char zeile[64];
    for (int i = 0; i < 8760; ++i) {
        std::snprintf(zeile, sizeof zeile, "%3d %5.1f %5d %5d\n", i / 24 + 1, (i % 50) * 0.5 - 10,
                      i % 24 * 30, i % 24 * 10);
        t += zeile;
    }
    return t;
}

QString texte_der_zeile(const std::array<QLabel*, 6>& zeile) {
    QStringList t;
    for (QLabel* l : zeile) {
        t << l->text();
    }
    return t.join(QLatin1Char('|'));
}

} // namespace

class TestKlimaimport : public QObject {
    Q_OBJECT

    std::unique_ptr<TempOrdner> klima;
    TempOrdner quellen;
    std::unique_ptr<SkriptDialogs> dialoge;
    std::unique_ptr<Testprogramm> programm;
    Skriptnutzer* nutzer = nullptr;

    // The program started on the copy of the klima folder, the import window opened from its
    // menu entry.
    KlimaimportFenster& oeffnen(const char* sprache) {
        programm.reset();
        dialoge = std::make_unique<SkriptDialogs>();
        programm = programm_starten(dialoge.get(), *klima, sprache);
        auto skript = std::make_unique<Skriptnutzer>();
        nutzer = skript.get();
        programm->import_dialoge = std::move(skript);
        auto* eintrag = programm->haupt->findChild<QAction*>(QStringLiteral("mnuKlimaImportieren"));
        if (eintrag == nullptr || !eintrag->isEnabled()) {
            qFatal("the menu entry of the climate import is missing or disabled");
        }
        eintrag->trigger();
        return *programm->klimaimport;
    }

    // Command1 with the file dialog answering `pfad`.
    void quelle(KlimaimportFenster& w, const fs::path& pfad) {
        dialoge->dateien.push_back(pfad.string());
        QTest::mouseClick(w.Command1, Qt::LeftButton);
    }

    // Place, country and coordinates typed as a user does.
    static void standort(KlimaimportFenster& w) {
        QTest::keyClicks(w.Standortname, QStringLiteral("Teststadt"));
        QTest::keyClicks(w.Land, QStringLiteral("Testland"));
        QTest::keyClicks(w.Breitengrad, QStringLiteral("50"));
        QTest::keyClicks(w.Laengengrad, QStringLiteral("8"));
        QTest::keyClicks(w.Zeitzone, QStringLiteral("1"));
    }

private slots:
    void initTestCase() { klima = klima_kopie(); }
    void cleanup() {
        programm.reset();
        dialoge.reset();
    }

    void menue_oeffnet_das_fenster_modal_und_ohne_quelle() {
        KlimaimportFenster& w = oeffnen("d");
        QVERIFY(w.isVisible());
        QCOMPARE(w.windowModality(), Qt::ApplicationModal);
        QCOMPARE(w.windowTitle(), QStringLiteral("Klimadaten importieren"));
        // Only the source's frame shows; the further steps come with a source.
        for (QGroupBox* r : w.schritte) {
            QVERIFY(!r->isVisible());
        }
        QVERIFY(!w.Command2->isEnabled());
        QCOMPARE(w.Datenreihe[0]->count(), 5);
        QCOMPARE(w.Datenreihe[0]->itemText(1), QStringLiteral("Außenlufttemperatur"));
        QCOMPARE(w.Dezimalzeichen->itemText(1), QStringLiteral("Komma (,)"));
        QCOMPARE(w.Breitezusatz->itemText(1), QStringLiteral("Süd"));
        QCOMPARE(w.GMT->itemText(0), QStringLiteral("GMT + "));

        // A cancelled file dialog changes nothing.
        const std::string datei = programm->p.Datei;
        QTest::mouseClick(w.Command1, Qt::LeftButton);
        QCOMPARE(dialoge->dialoge.back(), std::string("oeffnen Alle Dateien (*.*)|*.* 1"));
        QCOMPARE(w.DateinameBox->text(), QString());
        QCOMPARE(programm->p.Datei, datei);
        // An unreadable source is named in a message, and the steps stay hidden.
        quelle(w, quellen.pfad() / "fehlt.txt");
        QCOMPARE(nutzer->meldungen.size(), std::size_t{1});
        QCOMPARE(nutzer->meldungen[0].titel, std::string("Fehler"));
        QVERIFY(!w.schritte[0]->isVisible());

        QTest::mouseClick(w.Abbrechen, Qt::LeftButton);
        QVERIFY(!w.isVisible());
    }

    void vorschau_folgt_kopfzeilen_schiebern_und_trennung() {
        KlimaimportFenster& w = oeffnen("d");
        const fs::path pfad =
            quellen.schreiben("neun.txt", spaltentext(3, 20, [](int i) {
                                  std::string z;
                                  for (int c = 1; c <= 9; ++c) {
                                      z += (c > 1 ? "\t" : "") + std::to_string(100 * (i + 1) + c);
                                  }
                                  return z;
                              }));
        // As if a project file were open: its save would go to the remembered name.
        programm->p.Datei_offen = 1;
        quelle(w, pfad);
        for (QGroupBox* r : w.schritte) {
            QVERIFY(r->isVisible());
        }
        // The source's name is the project's remembered file name now, but a save asks for a
        // name and, cancelled, leaves the source as it was.
        const std::size_t dialoge_vorher = dialoge->dialoge.size();
        programm->io->datei_speichern();
        QCOMPARE(dialoge->dialoge.size(), dialoge_vorher + 1);
        QVERIFY(dialoge->dialoge.back().rfind("speichern ", 0) == 0);
        QVERIFY(datei_inhalt(pfad).rfind("Kopf 1", 0) == 0);
        QCOMPARE(w.DateinameBox->text(), QString::fromStdString(pfad.string()));

        QTest::keyClicks(w.Kopfzeilen, QStringLiteral("3"));
        QCOMPARE(w.Zeilenzaehler[0]->text(), QStringLiteral("4"));
        QCOMPARE(texte_der_zeile(w.Spalte), QStringLiteral("1|2|3|4|5|6"));
        QCOMPARE(texte_der_zeile(w.Zelle[0]), QStringLiteral("101|102|103|104|105|106"));
        QVERIFY(w.HScroll1->isEnabled());
        // Three columns on, the first list stands for column 3.
        w.HScroll1->setValue(3);
        QCOMPARE(texte_der_zeile(w.Spalte), QStringLiteral("3|4|5|6|7|8"));
        QCOMPARE(texte_der_zeile(w.Zelle[0]), QStringLiteral("103|104|105|106|107|108"));
        w.Datenreihe[0]->setCurrentIndex(SPALTE_TEMPERATUR);
        QCOMPARE(w.f.Spaltenbelegung[3], int16_t{SPALTE_TEMPERATUR});
        w.HScroll1->setValue(1);
        QCOMPARE(w.Datenreihe[2]->currentIndex(), int{SPALTE_TEMPERATUR});
        QCOMPARE(w.Datenreihe[0]->currentIndex(), int{SPALTE_UNBENUTZT});
        w.VScroll1->setValue(15);
        QCOMPARE(w.Zeilenzaehler[0]->text(), QStringLiteral("19"));
        QCOMPARE(w.Zelle[1][0]->text(), QStringLiteral("1701"));

        // A new source starts with every list unused, before its head lines are known.
        quelle(w, quellen.schreiben("drei.txt", spaltentext(1, 3, [](int) { return "a\tb\tc"; })));
        QCOMPARE(w.Datenreihe[2]->currentIndex(), int{SPALTE_UNBENUTZT});
        QCOMPARE(w.f.Spaltenbelegung[3], int16_t{SPALTE_UNBENUTZT});
        bild_speichern(w, QStringLiteral("klimaimport_vorschau"));

        // Right-aligned columns: tab-separated the whole row is one column, blank-separated
        // each field its own.
        quelle(w, quellen.schreiben("spalten.txt", leerzeichenquelle()));
        QTest::keyClicks(w.Kopfzeilen, QStringLiteral("1"));
        QCOMPARE(w.Zelle[0][0]->text(), QStringLiteral("  1 -10.0     0     0"));
        QTest::mouseClick(w.Datentrennung[2], Qt::LeftButton);
        QCOMPARE(w.f.Datentrennung, int16_t{2});
        QCOMPARE(texte_der_zeile(w.Zelle[1]), QStringLiteral("  1|  -9.5|    30|    10||"));
    }

    // The fields' keys pass the window's filters into the record; the import button waits for
    // every input.
    void eingabefilter_und_eingabentest() {
        KlimaimportFenster& w = oeffnen("d");
        quelle(w, quellen.schreiben("kurz.txt", stundenquelle(10)));
        QVERIFY(!w.Command2->isEnabled());
        QTest::keyClicks(w.Breitengrad, QStringLiteral("-5a0,5e"));
        QCOMPARE(w.Breitengrad->text(), QStringLiteral("50,5"));
        QTest::keyClicks(w.Zeitzone, QStringLiteral("1"));
        QTest::keyClicks(w.Laengengrad, QStringLiteral("8"));
        // Back-space is no digit of the head lines; Delete still works.
        QTest::keyClicks(w.Kopfzeilen, QStringLiteral("1x2."));
        QCOMPARE(w.Kopfzeilen->text(), QStringLiteral("12"));
        QTest::keyClick(w.Kopfzeilen, Qt::Key_Backspace);
        QCOMPARE(w.Kopfzeilen->text(), QStringLiteral("12"));
        QTest::keyClick(w.Kopfzeilen, Qt::Key_Home);
        QTest::keyClick(w.Kopfzeilen, Qt::Key_Delete);
        QCOMPARE(w.f.Kopfzeilen, std::string("2"));
        QCOMPARE(w.Zeilenzaehler[0]->text(), QStringLiteral("3"));

        QTest::keyClicks(w.Standortname, QStringLiteral("Ort"));
        QTest::keyClicks(w.Land, QStringLiteral("Land"));
        QVERIFY(!w.Command2->isEnabled());
        QTest::keyClick(w.Dezimalzeichen, Qt::Key_Down);
        QCOMPARE(w.f.Dezimalzeichen, int16_t{1});
        QVERIFY(w.Command2->isEnabled());
        QTest::keyClick(w.Breitezusatz, Qt::Key_Down);
        QCOMPARE(w.f.Breitezusatz, int16_t{1});
        QTest::keyClick(w.GMT, Qt::Key_Down);
        QCOMPARE(w.f.GMT, int16_t{1});
    }

    // A refused import leaves the window open for a correction.
    void zu_wenig_zeilen_werden_abgewiesen() {
        KlimaimportFenster& w = oeffnen("d");
        quelle(w, quellen.schreiben("jahr_minus_eins.txt", stundenquelle(8759)));
        QTest::keyClicks(w.Kopfzeilen, QStringLiteral("2"));
        standort(w);
        w.Datenreihe[1]->setCurrentIndex(SPALTE_TEMPERATUR);
        w.Datenreihe[2]->setCurrentIndex(SPALTE_GESAMT);
        w.Datenreihe[4]->setCurrentIndex(SPALTE_DIFFUS);
        QTest::mouseClick(w.Command2, Qt::LeftButton);
        QCOMPARE(w.ergebnis.ausgang, Importausgang::fehler);
        QVERIFY(w.isVisible());
    }

    void meteonorm_text_wird_erkannt_und_importiert() {
        KlimaimportFenster& w = oeffnen("d");
        quelle(w, quellen.schreiben("Bern.dat", meteonorm()));
        QCOMPARE(w.Standortname->text(), QStringLiteral("Bern"));
        QCOMPARE(w.Kopfzeilen->text(), QStringLiteral("4"));
        QCOMPARE(w.Breitengrad->text(), QStringLiteral("46.95"));
        QCOMPARE(w.Datenreihe[4]->currentIndex(), int{SPALTE_TEMPERATUR});
        QVERIFY(!w.Command2->isEnabled());
        QTest::keyClicks(w.Land, QStringLiteral("Schweiz"));
        QVERIFY(w.Command2->isEnabled());
        bild_speichern(w, QStringLiteral("klimaimport_d"));

        nutzer->name = "bern";
        QTest::mouseClick(w.Command2, Qt::LeftButton);
        QCOMPARE(nutzer->eingabe_vorgabe, std::string("Bern"));
        QCOMPARE(nutzer->meldungen.back().titel, std::string());
        QCOMPARE(nutzer->meldungen.back().text, BEENDET);
        QVERIFY(!w.isVisible());
        QCOMPARE(crlf_zeilen(datei_inhalt(klima->pfad() / "bern.met"))[0],
                 std::string("Bern (Schweiz)"));
    }

    void installiertes_programm_schreibt_nur_in_die_ordner_des_nutzers() {
        // An installed program: the delivered folder belongs to the system, the language and the
        // imported stations to the user's folders, which do not exist before the first start.
        TempOrdner heim;
        const fs::path einstellungen = heim.pfad() / ".config" / "velmaris";
        const fs::path stationen = heim.pfad() / ".local" / "share" / "velmaris" / "klima";
        auto inhalt = [](const fs::path& ordner) {
            std::vector<std::string> namen;
            for (const auto& e : fs::directory_iterator(ordner)) {
                namen.push_back(e.path().filename().string() + " " +
                                std::to_string(fs::file_size(e.path())));
            }
            std::sort(namen.begin(), namen.end());
            return namen;
        };
        const std::vector<std::string> geliefert = inhalt(klima->pfad());
        int gefragt = 0;
        auto starten = [&] {
            programm.reset();
            dialoge = std::make_unique<SkriptDialogs>();
            programm = std::make_unique<Testprogramm>(dialoge.get(), [&gefragt] {
                ++gefragt;
                return std::string("e");
            });
            programm->klimaordner = klima->pfad().string();
            programm->einstellungen = einstellungen.string();
            programm->eigene_stationen = stationen.string();
            programm->starten("");
            programm->Timer1_Timer();
            QVERIFY(programm->haupt->isVisible());
        };
        starten();
        QCOMPARE(gefragt, 1);
        QCOMPARE(datei_inhalt(einstellungen / "typ.dat"), std::string("e\r\n"));

        auto skript = std::make_unique<Skriptnutzer>();
        nutzer = skript.get();
        programm->import_dialoge = std::move(skript);
        programm->haupt->findChild<QAction*>(QStringLiteral("mnuKlimaImportieren"))->trigger();
        KlimaimportFenster& w = *programm->klimaimport;
        quelle(w, quellen.schreiben("Bern.dat", meteonorm()));
        QTest::keyClicks(w.Land, QStringLiteral("Schweiz"));
        nutzer->name = "bern_eigen";
        QTest::mouseClick(w.Command2, Qt::LeftButton);
        QVERIFY(fs::exists(stationen / "bern_eigen.met"));

        // The next start asks no more and lists the own station beside the delivered.
        starten();
        QCOMPARE(gefragt, 1);
        const Stationslisten& l = programm->ebenen->klima.listen;
        QVERIFY(l.Welt.suchen("bern_eigen.met") >= 0);
        QVERIFY(l.Welt.suchen("trier.met") >= 0);
        QVERIFY(inhalt(klima->pfad()) == geliefert);
    }

    // A source of a known format fills the head and needs no column choice; a column text
    // opened after it gets its controls back.
    void bekannte_formate_fuellen_den_kopf_und_brauchen_keine_spaltenwahl() {
        KlimaimportFenster& w = oeffnen("d");
        quelle(w, fs::path(VELMARIS_SOURCE_DIR) / "fuzz" / "korpus" / "fuzz_import" / "denver.epw");
        QVERIFY(!w.Standortname->text().isEmpty());
        QCOMPARE(w.Kopfzeilen->text(), QStringLiteral("0"));
        QCOMPARE(w.Laengezusatz->currentIndex(), 1);
        QVERIFY(!w.Datenreihe[0]->isEnabled());
        QVERIFY(!w.Datentrennung[1]->isEnabled());
        QVERIFY(!w.Kopfzeilen->isEnabled());
        quelle(w, quellen.schreiben("wieder.txt", stundenquelle(3)));
        QVERIFY(w.Datenreihe[0]->isEnabled());
        QVERIFY(w.Kopfzeilen->isEnabled());
        QCOMPARE(w.Standortname->text(), QString());
    }

    void echte_quelle_erscheint_nach_neustart_in_den_stationslisten() {
        KlimaimportFenster& w = oeffnen("d");
        quelle(w, TRY_QUELLE);
        QCOMPARE(w.Breitengrad->text(), QStringLiteral("53.5591"));
        QCOMPARE(w.Laengengrad->text(), QStringLiteral("8.5872"));
        QCOMPARE(w.Zeitzone->text(), QStringLiteral("1"));
        QCOMPARE(w.Land->text(), QStringLiteral("Deutschland"));
        QCOMPARE(w.Standortname->text(), QString());
        QTest::keyClicks(w.Standortname, QStringLiteral("Bremerhaven neu"));
        bild_speichern(w, QStringLiteral("klimaimport_try"));
        nutzer->name = "bremerhaven_neu";
        QTest::mouseClick(w.Command2, Qt::LeftButton);
        QCOMPARE(nutzer->eingabe_vorgabe,
                 std::string("DEU_TRYregion01_Bremerhaven_TRY2015_535591085872_Jahr"));
        // The same source and writer as the delivered station of region 1: all but the name
        // line are the same.
        std::vector<std::string> z =
            crlf_zeilen(datei_inhalt(klima->pfad() / "bremerhaven_neu.met"));
        std::vector<std::string> bremen = crlf_zeilen(datei_inhalt(klima->pfad() / "bremen.met"));
        QCOMPARE(z[0], std::string("Bremerhaven neu (Deutschland)"));
        QVERIFY(std::equal(z.begin() + 1, z.end(), bremen.begin() + 1, bremen.end()));

        // The running program's lists stay as they were built; after a restart they come from
        // the folder and hold the new station.
        QCOMPARE(programm->ebenen->klima.listen.Welt.suchen("bremerhaven_neu.met"), -1);
        programm.reset();
        dialoge = std::make_unique<SkriptDialogs>();
        programm = programm_starten(dialoge.get(), *klima, "d");
        const Stationslisten& l = programm->ebenen->klima.listen;
        const int i = l.Welt.suchen("bremerhaven_neu.met");
        QVERIFY(i >= 0);
        QCOMPARE(l.Welt.Stationsname[static_cast<std::size_t>(i)],
                 std::string("Bremerhaven neu (Deutschland)"));
        QVERIFY(l.Europa.suchen("bremerhaven_neu.met") >= 0);
    }

    void englisch() {
        KlimaimportFenster& w = oeffnen("e");
        QCOMPARE(w.windowTitle(), QStringLiteral("Import climatic data"));
        QCOMPARE(w.unuebersetzt, 0);
        QCOMPARE(w.Command1->text(), QStringLiteral("Select source file"));
        QCOMPARE(w.Command2->text(), QStringLiteral("Start climate import"));
        QCOMPARE(w.Abbrechen->text(), QStringLiteral("Abort"));
        QCOMPARE(w.schritte[3]->title(), QStringLiteral("Data assignment"));
        QCOMPARE(w.Datentrennung[2]->text(),
                 QStringLiteral("Data in columns (separated by blanks, right-aligned)"));
        QCOMPARE(w.Datenreihe[0]->itemText(0), QStringLiteral("- not used -"));
        QCOMPARE(w.Dezimalzeichen->itemText(0), QStringLiteral("Dot (.)"));
        QCOMPARE(w.Laengezusatz->itemText(0), QStringLiteral("East"));
        quelle(w, quellen.schreiben("Bern.dat", meteonorm()));
        QTest::keyClicks(w.Land, QStringLiteral("Switzerland"));
        bild_speichern(w, QStringLiteral("klimaimport_e"));
        nutzer->name = "";
        QTest::mouseClick(w.Command2, Qt::LeftButton);
        QCOMPARE(nutzer->eingabe_titel, std::string("Save climatic data as ..."));
        QCOMPARE(nutzer->eingabe_text,
                 std::string("Please input a filename for the new set 'Bern (Switzerland)' of "
                             "climatic data:"));
        // An empty name ends silently and leaves the window open.
        QVERIFY(w.isVisible());
    }

    void qt_antworten_der_importfragen() {
        QWidget eltern;
        QtImportDialoge d(&eltern);
        QString titel;
        // Answers the next modal box of type T by `antwort`.
        auto beantworten = [&titel](std::function<void(QWidget*)> antwort) {
            auto* t = new QTimer;
            t->setInterval(10);
            QObject::connect(t, &QTimer::timeout, t, [t, &titel, antwort] {
                if (QWidget* m = QApplication::activeModalWidget()) {
                    titel = m->windowTitle();
                    t->stop();
                    t->deleteLater();
                    antwort(m);
                }
            });
            t->start();
        };
        beantworten([](QWidget* m) {
            auto* box = qobject_cast<QInputDialog*>(m);
            QCOMPARE(box->textValue(), QStringLiteral("Bern"));
            bild_speichern(*box, QStringLiteral("klimaimport_name"));
            box->setTextValue(QStringLiteral("neu"));
            box->accept();
        });
        QCOMPARE(d.eingabe(text_speichern_titel("d"), text_speichern_frage("d", "Bern", "Schweiz"),
                           "Bern"),
                 std::string("neu"));
        QCOMPARE(titel, QStringLiteral("Klimadatensatz speichern unter ..."));
        beantworten([](QWidget* m) { qobject_cast<QDialog*>(m)->reject(); });
        QCOMPARE(d.eingabe("Titel", "Frage", "vorschlag"), std::string());

        // Enter keeps the existing file; Yes overwrites it.
        beantworten([](QWidget* m) { QTest::keyClick(m, Qt::Key_Return); });
        QVERIFY(!d.frage_ja_nein(text_ueberschreiben("d")));
        beantworten(
            [](QWidget* m) { qobject_cast<QMessageBox*>(m)->button(QMessageBox::Yes)->click(); });
        QVERIFY(d.frage_ja_nein(text_ueberschreiben("d")));

        // The closing message has no title of its own and carries the program's name.
        beantworten([](QWidget* m) {
            bild_speichern(*m, QStringLiteral("klimaimport_beendet"));
            qobject_cast<QMessageBox*>(m)->accept();
        });
        d.meldung("", text_beendet("d"));
        QCOMPARE(titel, QStringLiteral("Velmaris"));
        QString text;
        beantworten([&text](QWidget* m) {
            text = qobject_cast<QMessageBox*>(m)->text();
            qobject_cast<QMessageBox*>(m)->accept();
        });
        d.meldung("Fehler", text_fehler_in_zeile("d", 12));
        QCOMPARE(titel, QStringLiteral("Fehler"));
        QCOMPARE(text, QStringLiteral("Fehler in Zeile 12\nKlimadatenimport wurde abgebrochen!"));
    }
};

QTEST_MAIN(TestKlimaimport)
#include "test_klimaimport.moc"
