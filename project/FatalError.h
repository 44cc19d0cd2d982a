// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>
#include <string>

// A fault that ends the calculation: a missing or short station file, a negative effective heat
// capacity, a division by zero, an integer or float overflow. The text says which file, line or
// quantity and what went wrong. Desktop and command line catch it; nothing continues with
// garbage.
class FatalError : public std::runtime_error {
public:
    explicit FatalError(const std::string& text) : std::runtime_error(text) {}
    // The same fault told in English (what()) and in German.
    FatalError(const std::string& english, std::string deutsch)
        : std::runtime_error(english), deutsch_(std::move(deutsch)) {}

    // The text in the language of the run: German unless `sprache` is "e"; a fault that is told
    // in English only keeps its English text.
    std::string text(const std::string& sprache) const {
        return sprache == "e" || deutsch_.empty() ? std::string(what()) : deutsch_;
    }

private:
    std::string deutsch_;
};
