// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

// A text file read in sequence, as the project reader, the station list builder and the post code
// search read their files: comma-delimited items and whole lines may follow each other, each read
// going on where the last one stopped, so two items may share a line. Every read is bounded by
// the text; nothing reads past its end.
class Textkanal {
public:
    explicit Textkanal(std::string text) : text_(std::move(text)) {}

    // True when nothing is left to read.
    bool ende() const { return pos_ >= text_.size(); }

    // One comma-delimited item: leading blanks are skipped; a quoted item runs to its closing
    // quote, any other to the next comma or line end, without trailing blanks. The comma or the
    // line end after the item is consumed. At the end of the text the item is empty.
    std::string eintrag();

    // The rest of the current line, without its line end (CR LF, LF or CR), which is consumed.
    std::string zeile();

    // The number of the line, from 1, on which the last item or line began.
    int zeilennummer() const { return begonnen_; }

private:
    bool zeilenende() const;
    void zeilenende_ueberspringen();

    std::string text_;
    std::size_t pos_ = 0;
    int zeilenenden_ = 0; // line ends consumed so far
    int begonnen_ = 0;
};
