// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include <array>
#include <functional>
#include <optional>
#include <string>

class Eingabeflaechen;
class QFrame;
class QPlainTextEdit;
class QPushButton;
class QTextEdit;
struct Projekt;

// A_Report: the report one page at a time in the rich text field Report1, or the hourly
// temperatures one month at a time in the plain field Temperaturverlauf1; the buttons Seite(1..12)
// choose, the marker AktSeite stands over the chosen one. Command_Speichern saves all pages as
// ".rtf", or the year's temperatures as ".txt".
class ReportFenster : public QDialog {
public:
    enum class Modus { Report, Temperaturverlauf };

    // `p` and `ebenen` are what the report reads; their texts must be those of the last run.
    ReportFenster(const Projekt& p, const Eingabeflaechen& ebenen, Modus modus,
                  QWidget* eltern = nullptr);

    QTextEdit* Report1 = nullptr;
    QPlainTextEdit* Temperaturverlauf1 = nullptr;
    std::array<QPushButton*, 12> Seite{}; // index 0 is Seite(1)
    QFrame* AktSeite = nullptr;
    QPushButton* Command_Speichern = nullptr;
    QPushButton* Command_Schliessen = nullptr;
    std::string report_text;     // the Rich Text on the screen
    std::string temperatur_text; // the temperature text on the screen
    // The save dialog: filter "Name (*.ext)|*.ext", filter index; the chosen path, or nothing
    // when cancelled. Qt's dialog with the replace prompt unless set otherwise.
    std::function<std::optional<std::string>(const std::string& filter, int index)>
        speichern_dialog;

    // Seite(i): the marker over the button, then page i of the report or month i.
    void Seite_Click(int i);
    // The save of the mode shown. A cancel or a failed write ends it without a message.
    void Command_Speichern_Click();

protected:
    void resizeEvent(QResizeEvent* e) override;

private:
    void anordnen();
    const Projekt& p_;
    const Eingabeflaechen& ebenen_;
    Modus modus_;
    int gewaehlt_ = 1;
};
