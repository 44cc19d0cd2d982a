// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

// What the project commands need of the desktop: message boxes, the project file dialogs, the
// wait cursor, the title of the main window and the planes' first choice. The desktop answers
// with Qt; tests and the command line answer with a script.
class Dialogs {
public:
    enum class Symbol { Keins, Ausrufezeichen, Information };
    enum class Knoepfe { OK, JaNein, JaNeinAbbrechen };
    enum class Antwort { OK, Ja, Nein, Abbrechen };

    virtual ~Dialogs() = default;

    // A message box; `standard_nein` makes No the default button of Yes/No.
    virtual Antwort nachricht(const std::string& text, const std::string& titel, Symbol symbol,
                              Knoepfe knoepfe, bool standard_nein = false) = 0;
    // The open dialog: filter text, filter index from 1, first folder. The chosen path, or
    // nothing when cancelled.
    virtual std::optional<std::string> oeffnen_dialog(const std::string& filter, int filterindex,
                                                      const std::string& ordner) = 0;
    // The save dialog, the same way.
    virtual std::optional<std::string> speichern_dialog(const std::string& filter, int filterindex,
                                                        const std::string& ordner) = 0;
    // The wait cursor on or off.
    virtual void wartecursor(bool) {}
    // The title of the main window.
    virtual void titel_setzen(const std::string&) {}
    // The planes go to their first choice: geometry and overview.
    virtual void erste_ebenen_zeigen() {}
};
