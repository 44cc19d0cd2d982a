// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Drucken.h"

#include "print/qt/QtDrucker.h"
#include "project/c_glob.h"
#include "project/lebenszyklus/FILEIO.h"
#include "ui/Bau.h"
#include "ui/QtDialogs.h"
#include "ui/Uebersetzen.h"

#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinterInfo>

namespace {

QString qs(const std::string& s) {
    return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

} // namespace

Drucken::Drucken(const Projekt& p, const Eingabeflaechen& e, char dezimal, QWidget* eltern)
    : QDialog(eltern), p_(p), e_(e), dezimal_(dezimal), drucker_(QPrinter::HighResolution) {
    setObjectName(QStringLiteral("Drucken"));
    setModal(true);
    setFixedSize(440, 300);

    // The rows of the caption table: 0 Command1, 1 the printer frame, 2 the options' frame,
    // 3 Command2, 4 Command3, 5..11 the options.
    QGroupBox* ausgaben = bau::rahmen(this, "Frame1", "Ausgaben", 8, 8, 424, 182);
    ausgaben->setProperty("zeile", 2);
    for (std::size_t i = 0; i < DRUCKOPTIONEN; ++i) {
        const std::string name = "Druckausgabe(" + std::to_string(i + 1) + ")";
        Druckausgabe[i] = bau::check(ausgaben, name.c_str(), druckoptionen()[i].deutsch, 10,
                                     20 + 22 * static_cast<int>(i), 404);
        Druckausgabe[i]->setChecked(true);
        Druckausgabe[i]->setProperty("zeile", 5 + static_cast<int>(i));
    }
    QGroupBox* rahmen = bau::rahmen(this, "Frame2", "Drucker", 8, 196, 424, 54);
    rahmen->setProperty("zeile", 1);
    DruckerName = bau::text(rahmen, "DruckerName", "", 10, 22, 310);
    Command3 = bau::knopf(rahmen, "Command3", "Ändern", 330, 18, 84, 26);
    Command3->setProperty("zeile", 4);
    Command1 = bau::knopf(this, "Command1", "Drucken", 248, 262, 88, 28);
    Command1->setProperty("zeile", 0);
    Command2 = bau::knopf(this, "Command2", "Abbrechen", 344, 262, 88, 28);
    Command2->setProperty("zeile", 3);
    setWindowTitle(Command1->text());

    connect(Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
    connect(Command2, &QPushButton::clicked, this, [this] { reject(); });
    connect(Command3, &QPushButton::clicked, this, [this] { Command3_Click(); });

    if (p_.Sprache == "e") {
        fenster_uebersetzen(*this, "Drucken");
        setWindowTitle(Command1->text());
    }

    drucker_da_ = !QPrinterInfo::availablePrinterNames().isEmpty();
    if (drucker_da_) {
        drucker_.setPrinterName(QPrinterInfo::defaultPrinter().printerName());
    }
    pdf_ziel = [this]() -> std::optional<std::string> {
        return speichern_waehlen(this, "PDF (*.pdf)|*.pdf", 1, dialogordner(p_), true,
                                 windowTitle());
    };
    melden = [this](const std::string& text) {
        QMessageBox::warning(this, windowTitle(), qs(text));
    };
    name_zeigen();
}

void Drucken::name_zeigen() {
    if (drucker_da_) {
        DruckerName->setText(drucker_.printerName());
    } else {
        DruckerName->setText(p_.Sprache == "e" ? QStringLiteral("PDF file")
                                               : QStringLiteral("PDF-Datei"));
    }
}

Druckauswahl Drucken::auswahl() const {
    Druckauswahl a{};
    for (std::size_t i = 0; i < DRUCKOPTIONEN; ++i) {
        a[i] = Druckausgabe[i]->isChecked();
    }
    return a;
}

void Drucken::Command1_Click() {
    if (drucker_da_) {
        QtDrucker d(drucker_, drucker_.printerName().toStdString());
        if (!d.aktiv()) {
            melden(drucker_.printerName().toStdString());
            return;
        }
        Ausdrucken(d, p_, e_, auswahl(), dezimal_, druckdatum());
        accept();
        return;
    }
    const std::optional<std::string> ziel = pdf_ziel();
    if (!ziel) {
        return;
    }
    std::string fehler;
    if (!pdf_ausdrucken(*ziel, p_, e_, auswahl(), dezimal_, fehler)) {
        melden(fehler);
        return;
    }
    accept();
}

void Drucken::Command3_Click() {
    QPrintDialog wahl(&drucker_, this);
    if (wahl.exec() == QDialog::Accepted) {
        drucker_da_ = true;
        name_zeigen();
    }
}
