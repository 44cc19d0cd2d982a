// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ReportFenster.h"

#include "project/c_glob.h"
#include "project/lebenszyklus/FILEIO.h"
#include "report/Report.h"
#include "report/RtfLeser.h"
#include "report/Temperaturverlauf.h"
#include "ui/Bau.h"
#include "ui/QtDialogs.h"
#include "ui/RtfAnzeige.h"

#include <QFrame>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextEdit>

namespace {

constexpr int RAND = 8;
constexpr int KNOPF_BREITE = 28, KNOPF_ABSTAND = 32, KNOPF_HOEHE = 24;
constexpr int SPEICHERN_BREITE = 110, SCHLIESSEN_BREITE = 90;
// Under the display: the marker row and the button row.
constexpr int FUSS = 44;

} // namespace

ReportFenster::ReportFenster(const Projekt& p, const Eingabeflaechen& ebenen, Modus modus,
                             QWidget* eltern)
    : QDialog(eltern), p_(p), ebenen_(ebenen), modus_(modus) {
    setObjectName(QStringLiteral("A_Report"));
    setWindowTitle(QStringLiteral("Velmaris"));
    Report1 = new QTextEdit(this);
    Report1->setObjectName(QStringLiteral("Report1"));
    Report1->setReadOnly(true);
    Temperaturverlauf1 = new QPlainTextEdit(this);
    Temperaturverlauf1->setObjectName(QStringLiteral("Temperaturverlauf1"));
    Temperaturverlauf1->setReadOnly(true);
    Temperaturverlauf1->setLineWrapMode(QPlainTextEdit::NoWrap);
    QFont fest;
    fest.setFamilies({QStringLiteral("Courier New"), QStringLiteral("Liberation Mono")});
    fest.setStyleHint(QFont::Monospace);
    fest.setPointSize(10);
    Temperaturverlauf1->setFont(fest);
    const bool report = modus == Modus::Report;
    Report1->setVisible(report);
    Temperaturverlauf1->setVisible(!report);

    for (std::size_t i = 0; i < Seite.size(); ++i) {
        const int nummer = static_cast<int>(i) + 1;
        const std::string name = "Seite(" + std::to_string(nummer) + ")";
        Seite[i] = bau::knopf(this, name.c_str(), std::to_string(nummer).c_str(), 0, 0,
                              KNOPF_BREITE, KNOPF_HOEHE);
        // Months 8 to 12 have buttons only in the month mode.
        Seite[i]->setVisible(nummer <= 7 || !report);
        connect(Seite[i], &QPushButton::clicked, this, [this, nummer] { Seite_Click(nummer); });
    }
    AktSeite = new QFrame(this);
    AktSeite->setObjectName(QStringLiteral("AktSeite"));
    AktSeite->setFrameStyle(QFrame::Box | QFrame::Plain);
    AktSeite->setStyleSheet(QStringLiteral("background: black"));
    Command_Speichern = bau::knopf(this, "Command_Speichern", "Report speichern", 0, 0,
                                   SPEICHERN_BREITE, KNOPF_HOEHE);
    Command_Speichern->setProperty("zeile", 0);
    Command_Schliessen =
        bau::knopf(this, "Command_Schliessen", "Schließen", 0, 0, SCHLIESSEN_BREITE, KNOPF_HOEHE);
    Command_Schliessen->setProperty("zeile", 1);
    connect(Command_Speichern, &QPushButton::clicked, this, [this] { Command_Speichern_Click(); });
    connect(Command_Schliessen, &QPushButton::clicked, this, &QDialog::close);
    // The platform's dialog with its replace prompt, in the project's folder.
    speichern_dialog = [this](const std::string& filter, int index) {
        return speichern_waehlen(this, filter, index, dialogordner(p_), true);
    };

    // The buttons stay in one row at the bottom: the least width holds them all.
    setMinimumSize(
        RAND + 12 * KNOPF_ABSTAND + 2 * RAND + SPEICHERN_BREITE + SCHLIESSEN_BREITE + RAND, 300);
    resize(760, 620);
    anordnen();
    Seite_Click(1);
}

void ReportFenster::resizeEvent(QResizeEvent* e) {
    QDialog::resizeEvent(e);
    anordnen();
}

void ReportFenster::anordnen() {
    const QRect feld(RAND, RAND, width() - 2 * RAND, height() - RAND - FUSS);
    Report1->setGeometry(feld);
    Temperaturverlauf1->setGeometry(feld);
    const int y = height() - KNOPF_HOEHE - RAND;
    for (std::size_t i = 0; i < Seite.size(); ++i) {
        Seite[i]->move(RAND + static_cast<int>(i) * KNOPF_ABSTAND, y);
    }
    Command_Schliessen->move(width() - RAND - SCHLIESSEN_BREITE, y);
    Command_Speichern->move(width() - 2 * RAND - SCHLIESSEN_BREITE - SPEICHERN_BREITE, y);
    // The marker stands over the chosen button, two units to the right of it.
    const QPushButton* k = Seite[static_cast<std::size_t>(gewaehlt_ - 1)];
    AktSeite->setGeometry(k->x() + 2, y - 7, KNOPF_BREITE, 4);
}

void ReportFenster::Seite_Click(int i) {
    if (i < 1 || i > 12) {
        return;
    }
    gewaehlt_ = i;
    anordnen();
    const char dezimal = dezimalzeichen(p_.Sprache);
    if (modus_ == Modus::Temperaturverlauf) {
        temperatur_text = temperaturverlauf_schreiben(p_, i, dezimal);
        Temperaturverlauf1->setPlainText(QString::fromStdString(temperatur_text));
        return;
    }
    if (i > 7) {
        return;
    }
    const Reportquelle q{p_, ebenen_, dezimal, qt_textmass()};
    report_text = report_der_sprache(q, static_cast<int16_t>(i));
    rtf_darstellen(*Report1->document(), rtf_lesen(report_text));
    // A page is read from its head.
    Report1->moveCursor(QTextCursor::Start);
    Report1->verticalScrollBar()->setValue(0);
}

void ReportFenster::Command_Speichern_Click() {
    const char dezimal = dezimalzeichen(p_.Sprache);
    if (modus_ == Modus::Temperaturverlauf) {
        const auto pfad = speichern_dialog("Textdatei (*.txt)|*.txt", 1);
        if (pfad) {
            temperaturverlauf_exportieren(p_, dezimal, *pfad);
        }
        return;
    }
    const auto pfad = speichern_dialog("Rich Text Format (*.rtf)|*.rtf", 1);
    if (!pfad) {
        return;
    }
    const Reportquelle q{p_, ebenen_, dezimal, qt_textmass()};
    const std::string alle = report_der_sprache(q, 0);
    if (!report_speichern(alle, *pfad)) {
        return;
    }
    // The screen shows all pages until the next page is chosen.
    report_text = alle;
    rtf_darstellen(*Report1->document(), rtf_lesen(report_text));
}
