// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QTimer>

#include <functional>
#include <string>

class QLabel;
class QPushButton;

// The window Start: first the splash while the program comes up, later the about box. Timer1
// runs the build-up after ten seconds unless OK_Button runs it at once; once the start is over
// the button only hides the window.
class StartFenster : public QDialog {
public:
    // `aufbau` is the handler of Timer1; `gestartet` tells whether the start is over.
    StartFenster(std::function<void()> aufbau, std::function<bool()> gestartet);
    QTimer Timer1;
    QPushButton* OK_Button = nullptr;
    QLabel* Info = nullptr; // the about text

    // The about text in German or English.
    void infotext_setzen(const std::string& sprache);

    // The close box: false keeps the window; true ends the program.
    std::function<bool()> schliessen_erlaubt;

protected:
    void resizeEvent(QResizeEvent* e) override;
    void closeEvent(QCloseEvent* e) override;

private:
    std::function<void()> aufbau_;
    std::function<bool()> gestartet_;
};

// The language choice of the first start: two pictures and two labels; returns "d", "e", or ""
// when it is closed without a choice. `grafiken` is the folder of the pictures.
class Sprachwahl_Fenster : public QDialog {
public:
    explicit Sprachwahl_Fenster(const std::string& grafiken);
    std::string gewaehlt;
};
