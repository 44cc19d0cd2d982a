// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QtImportDialoge.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>

namespace {

const QString PROGRAMM = QStringLiteral("Velmaris");

// The import's texts break their lines with CR LF.
QString zeilen(const std::string& text) {
    QString t = QString::fromStdString(text);
    t.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return t;
}

} // namespace

QWidget* QtImportDialoge::oben() const {
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : eltern_;
}

void QtImportDialoge::meldung(const std::string& titel, const std::string& text) {
    QMessageBox box(oben());
    box.setWindowTitle(titel.empty() ? PROGRAMM : QString::fromStdString(titel));
    box.setText(zeilen(text));
    box.setIcon(titel.empty() ? QMessageBox::Information : QMessageBox::Warning);
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

std::string QtImportDialoge::eingabe(const std::string& titel, const std::string& text,
                                     const std::string& vorgabe) {
    QInputDialog box(oben());
    box.setWindowTitle(QString::fromStdString(titel));
    box.setLabelText(zeilen(text));
    box.setTextValue(QString::fromStdString(vorgabe));
    if (box.exec() != QDialog::Accepted) {
        return {};
    }
    return box.textValue().toStdString();
}

bool QtImportDialoge::frage_ja_nein(const std::string& text) {
    QMessageBox box(oben());
    box.setWindowTitle(PROGRAMM);
    box.setText(zeilen(text));
    box.setIcon(QMessageBox::Question);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    // Keeping the existing station is the safe answer to a hasty Enter.
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}
