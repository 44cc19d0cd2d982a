// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop program: the command line as one text, as the start reads it.
#include "project/FatalError.h"
#include "project/c_glob.h"
#include "ui/Desktopprogramm.h"

#include <QApplication>
#include <QMessageBox>
#include <QStringList>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QStringList teile = QApplication::arguments();
    teile.removeFirst();
    Desktopprogramm programm(projekt());
    try {
        programm.starten(befehlszeile_aus(teile));
    } catch (const FatalError& f) {
        // Before any project is open (the language file cannot be written): the message, then
        // the end of the program.
        QMessageBox::critical(nullptr, QStringLiteral("Velmaris"),
                              QString::fromStdString(f.what()));
        return 2;
    }
    return QApplication::exec();
}
