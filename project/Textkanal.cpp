// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/Textkanal.h"

bool Textkanal::zeilenende() const {
    return pos_ < text_.size() && (text_[pos_] == '\r' || text_[pos_] == '\n');
}

void Textkanal::zeilenende_ueberspringen() {
    const std::size_t vorher = pos_;
    if (pos_ < text_.size() && text_[pos_] == '\r') {
        ++pos_;
    }
    if (pos_ < text_.size() && text_[pos_] == '\n') {
        ++pos_;
    }
    if (pos_ != vorher) {
        ++zeilenenden_;
    }
}

std::string Textkanal::eintrag() {
    begonnen_ = zeilenenden_ + 1;
    while (pos_ < text_.size() && (text_[pos_] == ' ' || text_[pos_] == '\t')) {
        ++pos_;
    }
    std::string wert;
    if (pos_ < text_.size() && text_[pos_] == '"') {
        const std::size_t anfang = ++pos_;
        while (pos_ < text_.size() && text_[pos_] != '"' && !zeilenende()) {
            ++pos_;
        }
        wert = text_.substr(anfang, pos_ - anfang);
        if (pos_ < text_.size() && text_[pos_] == '"') {
            ++pos_;
        }
        // What stands between the closing quote and the delimiter is dropped.
        while (pos_ < text_.size() && text_[pos_] != ',' && !zeilenende()) {
            ++pos_;
        }
    } else {
        const std::size_t anfang = pos_;
        while (pos_ < text_.size() && text_[pos_] != ',' && !zeilenende()) {
            ++pos_;
        }
        wert = text_.substr(anfang, pos_ - anfang);
        while (!wert.empty() && (wert.back() == ' ' || wert.back() == '\t')) {
            wert.pop_back();
        }
    }
    if (pos_ < text_.size() && text_[pos_] == ',') {
        ++pos_;
    } else {
        zeilenende_ueberspringen();
    }
    return wert;
}

std::string Textkanal::zeile() {
    begonnen_ = zeilenenden_ + 1;
    const std::size_t anfang = pos_;
    while (pos_ < text_.size() && !zeilenende()) {
        ++pos_;
    }
    std::string wert = text_.substr(anfang, pos_ - anfang);
    zeilenende_ueberspringen();
    return wert;
}
