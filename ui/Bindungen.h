// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>
#include <string>
#include <vector>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QLabel;
class QRadioButton;
class QScrollBar;
class QWidget;
class CheckField;
class ListField;
class OptionGroup;
class ScrollField;
struct Label;

// Binds Qt widgets to the control models of the headless planes, so that both always agree.
// A user's input goes to the model only (which fires its handler); afterwards every bound
// widget is brought up to its model's state with its signals blocked, so that a position set by
// a handler, an enabled, visible or text change reaches the screen without firing anything back.
//
// All user actions run through `ausfuehren`, which catches a fault of the calculation and hands
// it to `fehler`, so that a handler never leaves an exception in Qt's event loop. One action
// reports at most one fault: while its message is up, no other action runs.
class Bindungen : public QObject {
public:
    // `fehler` gets the text of a FatalError and of a run-time error of a handler; `nachher`
    // runs after every user action. `gueltig_nach` tells from the action's own outcome (false
    // for a fault that reached here) whether the results stand now; without it they stand
    // after every action without a fault.
    Bindungen(std::function<void(const std::string&)> fehler, std::function<void()> nachher,
              std::function<bool(bool)> gueltig_nach = nullptr);

    // Drag, arrows and page clicks of the bar move the field by its own steps: a negative large
    // step moves against the click. Min, Max, position, Enabled and Visible follow the field.
    void scroll(QScrollBar& sb, ScrollField& feld);
    // The list's rows, selected row, Enabled and Visible follow the field; the user's choice
    // selects the row of the field.
    void liste(QComboBox& cb, ListField& feld);
    void check(QCheckBox& cb, CheckField& feld);
    // The option `index` of the group.
    void option(QRadioButton& rb, OptionGroup& gruppe, int index);
    // What a label shows: the model's text; the design's text until the model has one of its
    // own; or a result, which is blanked and greyed while the results are not valid.
    enum class Art { Text, Entwurf, Ergebnis };
    // Text and visibility; with `massstab` above 0 also the place, the label's Left and Top
    // divided by it (15 for twips, 1 for pixels). A label in its background colour hides its
    // text.
    void label(QLabel& l, const Label& modell, Art art = Art::Text, int massstab = 0);
    // One binding as made: the widget, the model it follows, the option's index and, for a
    // label, how it shows its text and the scale of its place.
    struct Bindung {
        const QWidget* widget;
        const void* modell;
        int index;
        Art art;
        int massstab;
    };
    // Told of every binding when set; a tool that writes the planes' layout for another
    // front-end names the controls by their models through it.
    static inline std::function<void(const Bindung&)> gebunden;
    // Any other state of a widget that follows its model, run at each update.
    void folgen(std::function<void()> abgleich);

    // Runs a user action on the models, then brings every widget up to date. False when the
    // action was a fault, or was not run because a fault's message is still up.
    bool ausfuehren(const std::function<void()>& aktion);
    // Brings every bound widget to its model's state, without firing anything.
    void abgleichen();
    // The language of the run ("d" or "e"), in which a fault's text is reported.
    std::string sprache = "d";

    // Whether the results on the planes belong to the inputs: false from a fault of the
    // calculation until a calculation succeeds.
    bool gueltig() const { return gueltig_; }

private:
    std::function<void(const std::string&)> fehler_;
    std::function<void()> nachher_;
    std::function<bool(bool)> gueltig_nach_;
    bool meldet_ = false;
    std::vector<std::function<void()>> abgleiche_;
    int tiefe_ = 0;
    bool gueltig_ = true;
};
