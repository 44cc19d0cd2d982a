// SPDX-License-Identifier: GPL-3.0-or-later
// The report window of the desktop on the offscreen platform: the two menu entries open it in
// their mode, the page buttons and the marker, the Rich Text on the screen, the saves and their
// cancel, the English captions, and the toolkit's measurer against the face's width table, so that
// window and command line wrap alike.
#include "project/c_glob.h"
#include "report/Report.h"
#include "report/Temperaturverlauf.h"
#include "tests/project/SkriptDialogs.h"
#include "tests/support/Testprojekt.h"
#include "tests/ui/Uitesthilfe.h"
#include "ui/Desktopprogramm.h"
#include "ui/ReportFenster.h"
#include "ui/RtfAnzeige.h"

#include <QAction>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>
#include <QTimer>
#include <QtTest>

#include <map>
#include <set>

class TestReportfenster : public QObject {
    Q_OBJECT

    std::unique_ptr<SkriptDialogs> dialoge;
    std::unique_ptr<Testprogramm> programm;
    std::unique_ptr<TempOrdner> klima;
    TempOrdner ablage;

    void starten(const char* sprache) {
        dialoge = std::make_unique<SkriptDialogs>();
        programm = programm_starten(dialoge.get(), *klima, sprache);
        QVERIFY(programm->haupt->isVisible());
    }

    // Opens the window by the menu entry `eintrag`, runs `pruefen` on it while it is shown and
    // closes it.
    void oeffnen(const char* eintrag, const std::function<void(ReportFenster&)>& pruefen) {
        auto* a = programm->haupt->findChild<QAction*>(QString::fromUtf8(eintrag));
        QVERIFY(a != nullptr);
        QVERIFY(a->isEnabled());
        bool gesehen = false;
        QTimer::singleShot(0, [&] {
            auto* f = dynamic_cast<ReportFenster*>(QApplication::activeModalWidget());
            if (f != nullptr) {
                gesehen = true;
                pruefen(*f);
                f->close();
            }
        });
        a->trigger();
        QVERIFY(gesehen);
    }

    Reportquelle quelle() const {
        return Reportquelle{programm->p, *programm->ebenen, dezimalzeichen(programm->p.Sprache),
                            qt_textmass()};
    }

private slots:
    void initTestCase() { klima = klima_kopie(); }
    void cleanup() {
        programm.reset();
        dialoge.reset();
    }

    void report_zeigt_seiten_und_speichert_alle() {
        starten("d");
        oeffnen("mnuBerechnungsergebnisseExportieren", [this](ReportFenster& f) {
            QVERIFY(f.Report1->isVisible());
            QVERIFY(!f.Temperaturverlauf1->isVisible());
            QVERIFY(f.Seite[6]->isVisible());
            QVERIFY(!f.Seite[7]->isVisible());
            QCOMPARE(f.AktSeite->x(), f.Seite[0]->x() + 2);
            QCOMPARE(f.report_text, report_schreiben(quelle(), 1));
            QVERIFY(f.Report1->toPlainText().contains(QStringLiteral("Länge der Nord")));
            // Page 1 opens at its head.
            QCOMPARE(f.Report1->verticalScrollBar()->value(), 0);
            QVERIFY(f.Report1->verticalScrollBar()->maximum() > 0);
            bild_speichern(f, QStringLiteral("report_d_seite1"));

            QTest::mouseClick(f.Seite[3], Qt::LeftButton);
            QCOMPARE(f.AktSeite->x(), f.Seite[3]->x() + 2);
            QVERIFY(f.AktSeite->y() < f.Seite[3]->y());
            QCOMPARE(f.report_text, report_schreiben(quelle(), 4));
            QCOMPARE(f.Report1->verticalScrollBar()->value(), 0);
            bild_speichern(f, QStringLiteral("report_d_seite4"));

            // A cancelled dialog writes nothing and keeps the page.
            const std::filesystem::path ziel = ablage.pfad() / "report.rtf";
            f.speichern_dialog = [](const std::string&, int) { return std::nullopt; };
            QTest::mouseClick(f.Command_Speichern, Qt::LeftButton);
            QVERIFY(!std::filesystem::exists(ziel));
            QCOMPARE(f.report_text, report_schreiben(quelle(), 4));

            std::string filter;
            int filterindex = 0;
            f.speichern_dialog = [&](const std::string& fl, int index) {
                filter = fl;
                filterindex = index;
                return std::optional<std::string>(ziel.string());
            };
            QTest::mouseClick(f.Command_Speichern, Qt::LeftButton);
            QCOMPARE(filter, std::string("Rich Text Format (*.rtf)|*.rtf"));
            QCOMPARE(filterindex, 1);
            const std::string alle = report_schreiben(quelle(), 0);
            QVERIFY(report_speichern(alle, (ablage.pfad() / "soll.rtf").string()));
            QCOMPARE(datei_lesen(ziel), datei_lesen(ablage.pfad() / "soll.rtf"));
            QCOMPARE(f.report_text, alle);

            // A failed write leaves the screen as it was.
            QTest::mouseClick(f.Seite[1], Qt::LeftButton);
            f.speichern_dialog = [this](const std::string&, int) {
                return std::optional<std::string>((ablage.pfad() / "fehlt" / "r.rtf").string());
            };
            QTest::mouseClick(f.Command_Speichern, Qt::LeftButton);
            QCOMPARE(f.report_text, report_schreiben(quelle(), 2));
        });
    }

    void temperaturen_zeigen_monate_und_speichern_das_jahr() {
        starten("d");
        oeffnen("mnuTemperaturExport", [this](ReportFenster& f) {
            QVERIFY(!f.Report1->isVisible());
            QVERIFY(f.Temperaturverlauf1->isVisible());
            QVERIFY(f.Seite[11]->isVisible());
            QCOMPARE(f.temperatur_text, temperaturverlauf_schreiben(programm->p, 1, ','));
            QTest::mouseClick(f.Seite[11], Qt::LeftButton);
            QCOMPARE(f.AktSeite->x(), f.Seite[11]->x() + 2);
            QVERIFY(f.Temperaturverlauf1->toPlainText().contains(
                QStringLiteral("Monat:      Dezember")));
            bild_speichern(f, QStringLiteral("temperaturen_d"));

            const std::filesystem::path ziel = ablage.pfad() / "jahr.txt";
            std::string filter;
            f.speichern_dialog = [&](const std::string& fl, int) {
                filter = fl;
                return std::optional<std::string>(ziel.string());
            };
            QTest::mouseClick(f.Command_Speichern, Qt::LeftButton);
            QCOMPARE(filter, std::string("Textdatei (*.txt)|*.txt"));
            QVERIFY(temperaturverlauf_exportieren(programm->p, ',',
                                                  (ablage.pfad() / "soll.txt").string()));
            QCOMPARE(datei_lesen(ziel), datei_lesen(ablage.pfad() / "soll.txt"));
        });
    }

    void englisch_uebersetzt_und_schreibt_englisch() {
        starten("e");
        oeffnen("mnuBerechnungsergebnisseExportieren", [this](ReportFenster& f) {
            QCOMPARE(f.Command_Speichern->text(), QStringLiteral("Save report"));
            QCOMPARE(f.Command_Schliessen->text(), QStringLiteral("Close"));
            QCOMPARE(f.report_text, report_schreiben_englisch(quelle(), 1));
            QVERIFY(f.Report1->toPlainText().contains(QStringLiteral("Data sheet")));
            bild_speichern(f, QStringLiteral("report_e_seite1"));
        });
        // Opened a second time, the window is translated the same way.
        oeffnen("mnuTemperaturExport", [](ReportFenster& f) {
            QCOMPARE(f.Command_Speichern->text(), QStringLiteral("Save report"));
            QVERIFY(f.Temperaturverlauf1->toPlainText().contains(QStringLiteral("T fret")));
            bild_speichern(f, QStringLiteral("temperaturen_e"));
        });
    }

    // Lines that open with the same blanks begin their text in one column, whatever letter
    // follows: the data sheet's "Anzahl Geschosse" and "A/V - Verhältnis" stand under "Höhe".
    void gleiche_einzuege_beginnen_in_einer_spalte() {
        starten("d");
        oeffnen("mnuBerechnungsergebnisseExportieren", [&](ReportFenster& f) {
            // By blanks and font size, in tenths of a pixel.
            std::map<std::pair<int, int>, std::set<int>> spalten;
            for (QTextBlock b = f.Report1->document()->begin(); b.isValid(); b = b.next()) {
                const int blanks = static_cast<int>(b.text().indexOf(QRegularExpression("[^ ]")));
                if (blanks > 0 && b.layout()->lineCount() > 0) {
                    const int groesse =
                        qRound(b.begin().fragment().charFormat().fontPointSize() * 2);
                    spalten[{blanks, groesse}].insert(
                        qRound(b.layout()->lineAt(0).cursorToX(blanks) * 10));
                }
            }
            QVERIFY(spalten.count({5, 20}) == 1);
            for (const auto& [art, x] : spalten) {
                QVERIFY2(
                    x.size() == 1,
                    qPrintable(
                        QStringLiteral("%1 columns after %2 blanks").arg(x.size()).arg(art.first)));
            }
        });
    }

    void messung_des_toolkits_gleicht_der_breitentabelle() {
        const Textmass qt = qt_textmass();
        for (const char* t : {"Außen oder nicht gedämmtes Dach", "U-Werte aller Umfassungsflächen",
                              "soil heat pump, buffer storage and distribution"}) {
            QVERIFY2(std::abs(qt(t) - times_breite(t)) < 0.01, t);
        }
    }
};

QTEST_MAIN(TestReportfenster)
#include "test_reportfenster.moc"
