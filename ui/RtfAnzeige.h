// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "report/RtfLeser.h"
#include "report/Textmass.h"

class QTextDocument;

// Lays the paragraphs and runs of a Rich Text model into a document: alignment, tab stops
// (twips at 15 to the pixel), page breaks before a paragraph, and the report font (Times New
// Roman by its metric-compatible face) with size, bold, italic, underline and subscript.
void rtf_darstellen(QTextDocument& dokument, const RtfDokument& rtf);

// The measurer of the report: the width in pixels of a text in Times New Roman 10 pt on a
// 96 dpi surface, by the toolkit's font metrics.
Textmass qt_textmass();
