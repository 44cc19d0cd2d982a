// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "climate/import/importieren.h"

#include <QDialog>

#include <array>
#include <string>
#include <string_view>
#include <vector>

class Dialogs;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QScrollBar;
struct Projekt;

// E_Klimaimport: the climate import window. Command1 chooses a source, whose first lines show in
// Dateiansicht and whose head the window analyses; the user sets the separation, the head lines,
// the decimal mark, place and coordinates and assigns the source's columns in the preview grid;
// Command2 imports into a new station file of the klima folder and closes the window. The file
// dialog is the project's; messages and questions of the import go to `dialoge`.
class KlimaimportFenster : public QDialog {
public:
    KlimaimportFenster(Projekt& p, Dialogs& dateidialog, ImportDialoge& dialoge,
                       QWidget* eltern = nullptr);

    Klimaimport f; // the window's state
    // The last import's outcome, for the caller.
    Importergebnis ergebnis;
    // Rows of the English caption table that found no control (after an English start).
    int unuebersetzt = 0;

    QLineEdit* DateinameBox = nullptr;
    QPushButton* Command1 = nullptr;
    QPlainTextEdit* Dateiansicht = nullptr;
    std::array<QRadioButton*, 3> Datentrennung{};
    QLineEdit* Kopfzeilen = nullptr;
    QComboBox* Dezimalzeichen = nullptr;
    QLineEdit *Standortname = nullptr, *Land = nullptr;
    QLineEdit *Breitengrad = nullptr, *Laengengrad = nullptr, *Zeitzone = nullptr;
    QComboBox *Breitezusatz = nullptr, *Laengezusatz = nullptr, *GMT = nullptr;
    std::array<QLabel*, 6> Spalte{};
    std::array<QComboBox*, 6> Datenreihe{};
    std::array<QLabel*, 6> Zeilenzaehler{};
    std::array<std::array<QLabel*, 6>, 6> Zelle{}; // [row][column]
    QScrollBar *HScroll1 = nullptr, *VScroll1 = nullptr;
    QPushButton *Command2 = nullptr, *Abbrechen = nullptr;
    // The frames that come up once a source is open.
    std::array<QGroupBox*, 4> schritte{};

    // Opening a source: the file dialog, the analysis, the preview.
    void Command1_Click();
    // A source given by its path, as after the file dialog.
    void quelle_waehlen(const std::string& pfad);
    // The import; the window closes after a written station file.
    void Command2_Click();
    // The preview grid anew from the source, the scroll fields and the head lines.
    void vorschau_fuellen();

private:
    void bauen();
    void verbinden();
    // The analysed fields into the controls, while Laden_aktiv holds the handlers off.
    void felder_zeigen();
    // Command2 enabled exactly when the inputs are complete.
    void AlleEingabenTesten();

    Projekt& p_;
    Dialogs& dateidialog_;
    ImportDialoge& dialoge_;
    std::string text_;                     // the source's text
    std::vector<std::string_view> zeilen_; // its lines
};
