// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "climate/import/importieren.h"

class QWidget;

// The climate import's messages, input box and yes/no question answered by Qt. Each box belongs
// to the modal window that is open (the import window), else to `eltern`.
class QtImportDialoge : public ImportDialoge {
public:
    explicit QtImportDialoge(QWidget* eltern = nullptr) : eltern_(eltern) {}

    // A message without a title carries the program's name, as the platform's message box did.
    void meldung(const std::string& titel, const std::string& text) override;
    std::string eingabe(const std::string& titel, const std::string& text,
                        const std::string& vorgabe) override;
    bool frage_ja_nein(const std::string& text) override;

private:
    QWidget* oben() const;
    QWidget* eltern_;
};
