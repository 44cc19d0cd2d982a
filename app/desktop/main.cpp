// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop program: the command line as one text, as the start reads it.
#include "ui/Desktopprogramm.h"

#include <QApplication>
#include <QStringList>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QStringList teile = QApplication::arguments();
    teile.removeFirst();
    Desktopprogramm programm;
    programm.starten(teile.join(QLatin1Char(' ')).toStdString());
    return QApplication::exec();
}
