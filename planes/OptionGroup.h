// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <vector>

// A group of option fields with indices erster..erster + anzahl - 1. Setting an option that is
// not set clears the others and fires the click handler with its index; setting an option that
// is set already fires nothing. Clearing an option fires nothing.
class OptionGroup {
public:
    OptionGroup(int erster, int anzahl)
        : erster_(erster), werte_(static_cast<std::size_t>(anzahl), false),
          enabled_(static_cast<std::size_t>(anzahl), true) {}

    // Whether the option `index` is set.
    bool Value(int index) const { return werte_.at(pos(index)); }
    // The index of the set option, or -1 if none is set.
    int gesetzt() const {
        for (std::size_t i = 0; i < werte_.size(); ++i) {
            if (werte_[i]) {
                return erster_ + static_cast<int>(i);
            }
        }
        return -1;
    }
    // Sets the option `index`; fires Click only if it was not set.
    void setzen(int index) {
        if (werte_.at(pos(index))) {
            return;
        }
        werte_.assign(werte_.size(), false);
        werte_[pos(index)] = true;
        if (Click) {
            Click(index);
        }
    }
    // Clears the option `index` without firing.
    void loeschen(int index) { werte_.at(pos(index)) = false; }
    // Whether the user may choose the option `index`, and setting it.
    bool Enabled(int index) const { return enabled_.at(pos(index)); }
    void Enabled(int index, bool an) { enabled_.at(pos(index)) = an; }

    std::function<void(int)> Click; // the click handler, given the option's index

private:
    std::size_t pos(int index) const { return static_cast<std::size_t>(index - erster_); }
    int erster_;
    std::vector<bool> werte_;
    std::vector<bool> enabled_;
};
