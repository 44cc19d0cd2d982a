// SPDX-License-Identifier: GPL-3.0-or-later
// velmaris-drucken: the command drucken of velmaris-cli, which starts it in its own place. The
// printed pages go to a PDF file through the same composer as the print dialog, with Qt's PDF
// writer on the offscreen platform; only this program loads Qt.
#include "app/cli/cli_drucken_argumente.h"
#include "app/shell/cli_programm.h"
#include "print/qt/QtDrucker.h"
#include "project/FatalError.h"
#include "project/c_glob.h"
#include "project/pfade.h"

#include <QGuiApplication>

#include <iostream>
#include <ostream>
#include <string>
#include <vector>

namespace {

int drucken(Projekt& projekt, const std::vector<std::string>& args, std::ostream& fehler) {
    Druckargumente a;
    if (!druckargumente_lesen(args, a, fehler)) {
        return 1;
    }
    if (a.klima.empty()) {
        a.klima = datenordner("klima");
    }

    KonsolenProgramm programm(projekt, a.klima, a.sprache);
    if (programm.oeffnen(a.projekt, fehler) != 0) {
        fehler << "velmaris-cli drucken: cannot read the project \"" << a.projekt << "\"\n";
        return 2;
    }

    // Fonts need a GUI application; without a display it runs on the offscreen platform.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    int argc = 1;
    char name[] = "velmaris-cli";
    char* argv[] = {name, nullptr};
    QGuiApplication anwendung(argc, argv);

    const Projekt& p = programm.p;
    std::string text;
    if (!pdf_ausdrucken(a.ziel, p, *programm.ebenen, a.auswahl, p.Sprache == "e" ? '.' : ',',
                        text)) {
        fehler << "velmaris-cli drucken: " << text << "\n";
        return 2;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    Projekt& p = projekt();
    try {
        return drucken(p, std::vector<std::string>(argv + 1, argv + argc), std::cerr);
    } catch (const FatalError& fehler) {
        std::cerr << "velmaris-cli: " << fehler.text(p.Sprache) << "\n";
        return 2;
    }
}
