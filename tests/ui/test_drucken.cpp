// SPDX-License-Identifier: GPL-3.0-or-later
// The print dialog and the Qt printer in millimetres: captions in both languages, printing to a
// PDF file where no printer is installed, and the menu entry of the main window.
#include "print/qt/QtDrucker.h"
#include "tests/print/Druckhilfe.h"
#include "ui/Drucken.h"
#include "ui/Hauptfenster.h"

#include <QAction>
#include <QCheckBox>
#include <QFontInfo>
#include <QGroupBox>
#include <QLabel>
#include <QPdfWriter>
#include <QPushButton>
#include <QtTest>

namespace {

QString titel(QObject* o) {
    if (auto* d = qobject_cast<QDialog*>(o)) {
        return d->windowTitle();
    }
    if (auto* g = qobject_cast<QGroupBox*>(o)) {
        return g->title();
    }
    if (auto* b = qobject_cast<QAbstractButton*>(o)) {
        return b->text();
    }
    return QString();
}

} // namespace

class TestDrucken : public QObject {
    Q_OBJECT

private slots:
    void drucker_in_millimetern() {
        TempOrdner ordner;
        QPdfWriter pdf(QString::fromStdString((ordner.pfad() / "mm.pdf").string()));
        pdf.setPageSize(QPageSize(QPageSize::A4));
        pdf.setPageMargins(QMarginsF(5, 5, 5, 5), QPageLayout::Millimeter);
        pdf.setResolution(600);
        QtDrucker d(pdf, "mm.pdf");
        QVERIFY(d.aktiv());
        // A4 less two margins of 5 mm: the 200 mm the pages are laid out for.
        QVERIFY(std::abs(d.ScaleWidth() - 200) < 0.1);
        QCOMPARE(d.DeviceName(), std::string("mm.pdf"));
        // Arial at 10 points is Liberation Sans: "M" is 0.833 em, an em 3.53 mm.
        d.FontSize = 10;
        const double m = d.TextWidth("MMMM");
        QVERIFY2(std::abs(m - 4 * 0.833 * 3.528) < 0.3, std::to_string(m).c_str());
        QVERIFY(d.TextHeight("M") > 3.5 && d.TextHeight("M") < 4.8);
        d.FontSize = 20;
        QVERIFY(std::abs(d.TextWidth("MMMM") - 2 * m) < 0.2);
        d.FontBold = true;
        QVERIFY(d.TextWidth("MMMM") > 2 * m);
        QCOMPARE(QFontInfo(QtDrucker::schrift("Arial", 10, false, false, false)).family(),
                 QStringLiteral("Liberation Sans"));
        QCOMPARE(QFontInfo(QtDrucker::schrift("Times New Roman", 10, false, true, false)).family(),
                 QStringLiteral("Liberation Serif"));
        d.EndDoc();
        QVERIFY(!d.aktiv());
    }

    void beschriftung_in_beiden_sprachen_und_alle_ausgaben() {
        const struct {
            const char* sprache;
            const char* name;
            QString text;
        } faelle[] = {
            {"d", "Druckausgabe(1)", QStringLiteral("Eingabedaten (2 Seiten)")},
            {"d", "Druckausgabe(5)",
             QStringLiteral("Solare Gewinne / Transmissionsverluste der Fenster (1 Seite)")},
            {"d", "Frame1", QStringLiteral("Ausgaben")},
            {"e", "Drucken", QStringLiteral("Print")},
            {"e", "Command1", QStringLiteral("Print")},
            {"e", "Command2", QStringLiteral("Cancel")},
            {"e", "Command3", QStringLiteral("Change")},
            {"e", "Frame1", QStringLiteral("Output")},
            {"e", "Frame2", QStringLiteral("Printer")},
            {"e", "Druckausgabe(1)", QStringLiteral("Input data (2 pages)")},
            {"e", "Druckausgabe(7)",
             QStringLiteral("Primary and end energy demand for cooling (1 page)")},
        };
        TempOrdner ordner;
        for (const char* sprache : {"e", "d"}) {
            Druckprojekt dp(ordner, sprache);
            Drucken dialog(*dp.p, *dp.e, sprache[0] == 'e' ? '.' : ',');
            for (const auto& f : faelle) {
                if (std::string(f.sprache) == sprache) {
                    QObject* o = dialog.objectName() == QLatin1String(f.name)
                                     ? &dialog
                                     : dialog.findChild<QObject*>(QString::fromUtf8(f.name));
                    QVERIFY2(o != nullptr && titel(o) == f.text, f.name);
                }
            }
        }
        Druckprojekt dp(ordner, "d");
        Drucken dialog(*dp.p, *dp.e, ',');
        const Druckauswahl alle{true, true, true, true, true, true, true};
        QVERIFY(dialog.auswahl() == alle);
        dialog.Druckausgabe[2]->setChecked(false);
        QVERIFY(!dialog.auswahl()[2]);
        if (!dialog.drucker_da()) {
            QCOMPARE(dialog.DruckerName->text(), QStringLiteral("PDF-Datei"));
        }
    }

    void ohne_drucker_in_eine_pdf_datei() {
        TempOrdner ordner;
        Druckprojekt dp(ordner, "d");
        Drucken dialog(*dp.p, *dp.e, ',');
        if (dialog.drucker_da()) {
            QSKIP("a printer is installed: the dialog prints on it");
        }
        std::vector<std::string> meldungen;
        dialog.melden = [&](const std::string& t) { meldungen.push_back(t); };

        // A cancelled file choice prints nothing and leaves the dialog open.
        dialog.pdf_ziel = [] { return std::optional<std::string>(); };
        dialog.Command1->click();
        QCOMPARE(dialog.result(), 0);

        const auto alle = ordner.pfad() / "alle.pdf";
        dialog.pdf_ziel = [&] { return std::optional<std::string>(alle.string()); };
        dialog.Command1->click();
        QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));
        QCOMPARE(pdf_seiten(alle), 8);

        // A file that cannot be written gives a message and keeps the dialog.
        Drucken dritter(*dp.p, *dp.e, ',');
        dritter.melden = dialog.melden;
        dritter.pdf_ziel = [&] {
            return std::optional<std::string>((ordner.pfad() / "fehlt/x.pdf").string());
        };
        dritter.Command1->click();
        QCOMPARE(dritter.result(), 0);
        QCOMPARE(meldungen.size(), std::size_t{1});
    }

    void menueeintrag_oeffnet_den_dialog() {
        Hauptfenster h;
        auto* eintrag = h.findChild<QAction*>(QStringLiteral("mnuFileDrucken"));
        QVERIFY(eintrag != nullptr);
        QVERIFY(eintrag->isEnabled());
        int geoeffnet = 0;
        h.drucken = [&] { ++geoeffnet; };
        eintrag->trigger();
        QCOMPARE(geoeffnet, 1);
    }
};

QTEST_MAIN(TestDrucken)
#include "test_drucken.moc"
