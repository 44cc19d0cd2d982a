// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QtDialogs.h"

#include "project/Dateiendung.h"

#include <QApplication>
#include <QFileDialog>
#include <QMainWindow>
#include <QMessageBox>
#include <QObject>

Dialogs::Antwort QtDialogs::nachricht(const std::string& text, const std::string& titel,
                                      Symbol symbol, Knoepfe knoepfe, bool standard_nein) {
    QMessageBox box(fenster);
    // The platform's line breaks: CR and CR LF end a line as LF does.
    QString t = QString::fromStdString(text);
    t.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    t.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    box.setText(t);
    box.setWindowTitle(QString::fromStdString(titel));
    box.setIcon(symbol == Symbol::Ausrufezeichen ? QMessageBox::Warning
                : symbol == Symbol::Information  ? QMessageBox::Information
                                                 : QMessageBox::NoIcon);
    switch (knoepfe) {
    case Knoepfe::OK:
        box.setStandardButtons(QMessageBox::Ok);
        break;
    case Knoepfe::JaNein:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(standard_nein ? QMessageBox::No : QMessageBox::Yes);
        break;
    case Knoepfe::JaNeinAbbrechen:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        box.setEscapeButton(QMessageBox::Cancel);
        break;
    }
    const bool wartend = QApplication::overrideCursor() != nullptr;
    if (wartend) {
        QApplication::restoreOverrideCursor();
    }
    const int antwort = box.exec();
    if (wartend) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    }
    switch (antwort) {
    case QMessageBox::Yes:
        return Antwort::Ja;
    case QMessageBox::No:
        return Antwort::Nein;
    case QMessageBox::Cancel:
        return Antwort::Abbrechen;
    default:
        return knoepfe == Knoepfe::JaNeinAbbrechen ? Antwort::Abbrechen : Antwort::OK;
    }
}

QStringList qt_filter(const std::string& filter) {
    const QStringList teile = QString::fromStdString(filter).split(QLatin1Char('|'));
    QStringList namen;
    for (int i = 0; i + 1 < teile.size(); i += 2) {
        namen << teile[i];
    }
    return namen;
}

std::optional<std::string> speichern_waehlen(QWidget* eltern, const std::string& filter,
                                             int filterindex, const std::string& ordner,
                                             bool ersetzen_fragen, const QString& titel) {
    QFileDialog d(eltern, titel, QString::fromStdString(ordner));
    const QStringList namen = qt_filter(filter);
    d.setNameFilters(namen);
    if (filterindex >= 1 && filterindex <= namen.size()) {
        d.selectNameFilter(namen[filterindex - 1]);
    }
    d.setAcceptMode(QFileDialog::AcceptSave);
    d.setFileMode(QFileDialog::AnyFile);
    d.setOption(QFileDialog::DontConfirmOverwrite, !ersetzen_fragen);
    // Qt's own dialog adds the extension before it asks about replacing; a native one may not,
    // so the name is completed once more after it.
    auto endung = [&d](const QString& name) {
        d.setDefaultSuffix(QString::fromStdString(filterendung(name.toStdString())).mid(1));
    };
    endung(d.selectedNameFilter());
    QObject::connect(&d, &QFileDialog::filterSelected, &d, endung);
    if (d.exec() != QDialog::Accepted || d.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return endung_ergaenzen(d.selectedFiles().first().toStdString(),
                            d.selectedNameFilter().toStdString());
}

std::optional<std::string> QtDialogs::oeffnen_dialog(const std::string& filter, int filterindex,
                                                     const std::string& ordner) {
    QFileDialog d(fenster, QString(), QString::fromStdString(ordner));
    const QStringList namen = qt_filter(filter);
    d.setNameFilters(namen);
    if (filterindex >= 1 && filterindex <= namen.size()) {
        d.selectNameFilter(namen[filterindex - 1]);
    }
    d.setAcceptMode(QFileDialog::AcceptOpen);
    d.setFileMode(QFileDialog::ExistingFile);
    if (d.exec() != QDialog::Accepted || d.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return d.selectedFiles().first().toStdString();
}

std::optional<std::string> QtDialogs::speichern_dialog(const std::string& filter, int filterindex,
                                                       const std::string& ordner) {
    // The replace prompt is the project commands' own.
    return speichern_waehlen(fenster, filter, filterindex, ordner, false);
}

void QtDialogs::wartecursor(bool an) {
    if (an) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        while (QApplication::overrideCursor() != nullptr) {
            QApplication::restoreOverrideCursor();
        }
    }
}

void QtDialogs::titel_setzen(const std::string& titel) {
    if (fenster != nullptr) {
        fenster->setWindowTitle(QString::fromStdString(titel));
    }
}

void QtDialogs::erste_ebenen_zeigen() {
    if (erste_ebenen) {
        erste_ebenen();
    }
}
