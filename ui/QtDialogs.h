// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/Dialogs.h"

#include <QStringList>

#include <functional>

class QMainWindow;

// The project's dialogs answered by Qt: message boxes, the file dialogs with the filters of the
// project commands, the wait cursor and the title of the main window.
class QtDialogs : public Dialogs {
public:
    // The window the dialogs belong to and whose title they set; may be set later.
    QMainWindow* fenster = nullptr;
    // Runs when the planes go back to their first choice.
    std::function<void()> erste_ebenen;

    Antwort nachricht(const std::string& text, const std::string& titel, Symbol symbol,
                      Knoepfe knoepfe, bool standard_nein) override;
    std::optional<std::string> oeffnen_dialog(const std::string& filter, int filterindex,
                                              const std::string& ordner) override;
    std::optional<std::string> speichern_dialog(const std::string& filter, int filterindex,
                                                const std::string& ordner) override;
    void wartecursor(bool an) override;
    void titel_setzen(const std::string& titel) override;
    void erste_ebenen_zeigen() override;
};

// A filter of the project commands ("Alle Dateien (*.*)|*.*|VELM Dateien (*.vel)|*.vel") as
// Qt's name filters, one per pair: "Alle Dateien (*.*)", "VELM Dateien (*.vel)".
QStringList qt_filter(const std::string& filter);

class QWidget;

// The platform's save dialog in `ordner` with the filters of `filter` (the same form), the one
// of `filterindex` chosen. A name without extension gets the chosen filter's; Qt asks before it
// replaces a file unless the caller asks itself (`ersetzen_fragen` false).
std::optional<std::string> speichern_waehlen(QWidget* eltern, const std::string& filter,
                                             int filterindex, const std::string& ordner,
                                             bool ersetzen_fragen,
                                             const QString& titel = QString());
