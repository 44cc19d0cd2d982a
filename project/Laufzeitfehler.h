// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>
#include <string>

// A run-time error of the user interface platform: an invalid property value set on a control,
// a cancelled file dialog, a short project file, a failed file operation. The handlers of
// opening and saving a project catch it; the number says which error it is.
class Laufzeitfehler : public std::runtime_error {
public:
    // The platform's error numbers that the project commands meet.
    enum Nummer : int {
        Ueberlauf = 6,             // a value that does not fit its field
        IndexAusserhalb = 9,       // an index outside a table
        Typfehler = 13,            // a text where a number is expected
        DateiNichtGefunden = 53,   // a file that cannot be opened for input
        EingabeNachDateiende = 62, // reading past the end of a file
        DateiZugriff = 75,         // a file that cannot be written or replaced
        UngueltigerWert = 380,     // a property value outside the control's range
        DialogAbgebrochen = 32755, // the file dialog was cancelled
    };
    Laufzeitfehler(Nummer nummer, const std::string& text)
        : std::runtime_error(text), nummer_(nummer) {}
    Nummer nummer() const { return nummer_; }

private:
    Nummer nummer_;
};
