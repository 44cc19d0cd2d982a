// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/Ausdrucken.h"

#include <QDialog>
#include <QPrinter>

#include <array>
#include <functional>
#include <optional>
#include <string>

class QCheckBox;
class QLabel;
class QPushButton;
class Eingabeflaechen;
struct Projekt;

// The print dialog: seven check fields Druckausgabe in the frame "Ausgaben", the printer's name
// in DruckerName, Command1 prints the ticked pages and closes, Command2 closes, Command3 opens
// the printer choice. With no printer installed the pages go to a PDF file named in a save
// dialog.
class Drucken : public QDialog {
public:
    // `dezimal` is the decimal mark of the printed values.
    Drucken(const Projekt& p, const Eingabeflaechen& e, char dezimal, QWidget* eltern = nullptr);

    std::array<QCheckBox*, DRUCKOPTIONEN> Druckausgabe{}; // options 1..7 at index 0..6
    QLabel* DruckerName = nullptr;
    QPushButton* Command1 = nullptr;
    QPushButton* Command2 = nullptr;
    QPushButton* Command3 = nullptr;

    // The PDF file of a run without a printer; empty for a cancelled choice. By default a save
    // dialog asks.
    std::function<std::optional<std::string>()> pdf_ziel;
    // The message of a file that could not be written; by default a message box.
    std::function<void(const std::string&)> melden;

    // The ticked options.
    Druckauswahl auswahl() const;
    // Whether a printer is there to print on; otherwise a PDF file is written.
    bool drucker_da() const { return drucker_da_; }

    void Command1_Click();
    void Command3_Click();

private:
    void name_zeigen();

    const Projekt& p_;
    const Eingabeflaechen& e_;
    char dezimal_;
    QPrinter drucker_;
    bool drucker_da_ = false;
};
