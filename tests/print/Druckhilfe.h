// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// A recalculated project with its input planes in a language, for the tests of the printed
// pages.

#include "planes/Eingabeflaechen.h"
#include "tests/support/Testprojekt.h"

#include <filesystem>
#include <memory>
#include <string>

struct Druckprojekt {
    // The new project on the synthetic station in `ordner`, with the texts of `sprache` and the
    // planes of that language, recalculated once more so that the planes show it.
    Druckprojekt(const TempOrdner& ordner, const std::string& sprache);
    std::unique_ptr<Projekt> p;
    std::unique_ptr<Eingabeflaechen> e;
};

// The pages of a PDF file: its page objects "/Type /Page" (not the tree "/Type /Pages"); -1 for a
// file that is no PDF.
int pdf_seiten(const std::filesystem::path& pfad);
