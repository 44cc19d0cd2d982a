// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The controls of the input planes by their design names, so that a front-end other than the
// desktop's finds the model each of its controls follows.

#include <string>
#include <vector>

class Eingabeflaechen;

struct Steuerelement {
    enum class Art { Scroll, Liste, Check, Option, Label };
    std::string name; // "E_Gebaeude.Troom_sb", a facade's member as "E_Fenster.f_sb(2)"
    Art art;
    void* modell;          // ScrollField, ListField, CheckField, OptionGroup or Label by `art`
    unsigned optionen = 0; // an OptionGroup's options 0..3 that exist, one bit each
};

// Every bound control of the planes `e`, in a fixed order.
std::vector<Steuerelement> steuerelemente(Eingabeflaechen& e);
