// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// A reader for the Rich Text the report writes: groups, the font table, paragraphs with their
// alignment and tab stops, page breaks, bold, italic, underline, subscript and font size, the
// escapes "\'xx" (Windows-1252), "\uN", "\\", "\{", "\}". Other control words are passed over.
// It makes a neutral model of paragraphs and runs that a display can lay out.

#include <string>
#include <string_view>
#include <vector>

// A stretch of text of one format. The text is UTF-8; "\t" stands for a tab.
struct RtfLauf {
    std::string text;
    bool fett = false;
    bool kursiv = false;
    bool unterstrichen = false;
    bool tiefgestellt = false;
    int halbpunkte = 24; // font size in half points; "\plain" gives 12 pt
    bool operator==(const RtfLauf& o) const;
};

struct RtfAbsatz {
    enum class Ausrichtung { Links, Mitte, Rechts, Block };
    Ausrichtung ausrichtung = Ausrichtung::Links;
    std::vector<int> tabs;       // tab stops, twips from the left margin, in their order
    std::vector<RtfLauf> laeufe; // the runs; none for an empty paragraph
    bool neue_seite = false;     // a page break stands before this paragraph
    // The paragraph's text without formats.
    std::string text() const;
};

struct RtfDokument {
    std::vector<RtfAbsatz> absaetze;
    // Empty when the text was read; otherwise what was wrong and at which byte. The paragraphs
    // read until then stay.
    std::string fehler;
};

// Groups nested deeper than this are refused.
constexpr int RTF_TIEFE_MAX = 64;

// Reads Rich Text. Never reads beyond `rtf`.
RtfDokument rtf_lesen(std::string_view rtf);
