// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextBrowser>

#include <string>

// The help window of the program: the HTML help of the language of the run, opened at its start
// page or at the anchor of a plane.
class Hilfefenster : public QTextBrowser {
public:
    // `datei` is the help file, help/velmaris_<Sprache>.html.
    explicit Hilfefenster(const std::string& datei);
    // Shows the window at `anker` ("geometrie", "fenster", ...), or at the start page if empty.
    void zeigen(const std::string& anker);

private:
    QUrl adresse_;
};
