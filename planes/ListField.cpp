// SPDX-License-Identifier: GPL-3.0-or-later
#include "planes/ListField.h"

#include "project/Laufzeitfehler.h"

void ListField::setze_index(int index) {
    if (index < 0 || index >= static_cast<int>(Eintraege.size())) {
        throw Laufzeitfehler(Laufzeitfehler::UngueltigerWert,
                             "Invalid property value: list index " + std::to_string(index) +
                                 " of a list with " + std::to_string(Eintraege.size()) + " rows");
    }
    index_ = index;
    if (Click) {
        Click();
    }
}

std::string ListField::Text() const {
    return index_ < 0 ? std::string() : Eintraege[static_cast<std::size_t>(index_)];
}

void ListField::text_eingeben() {
    if (Change) {
        Change();
    }
}
