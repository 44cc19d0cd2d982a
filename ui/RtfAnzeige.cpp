// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/RtfAnzeige.h"

#include <QFontMetricsF>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <memory>

namespace {

constexpr double TWIPS_JE_PIXEL = 15.0;

QFont reportschrift() {
    QFont f;
    f.setFamilies({QStringLiteral("Times New Roman"), QStringLiteral("Liberation Serif")});
    f.setStyleHint(QFont::Serif);
    // Without kerning: a blank before "A" would draw closer than before other letters, and the
    // lines of the data sheet that open with the same blanks would not begin in one column.
    f.setKerning(false);
    return f;
}

} // namespace

void rtf_darstellen(QTextDocument& dokument, const RtfDokument& rtf) {
    dokument.clear();
    dokument.setDefaultFont(reportschrift());
    QTextCursor c(&dokument);
    bool erster = true;
    for (const RtfAbsatz& a : rtf.absaetze) {
        QTextBlockFormat block;
        switch (a.ausrichtung) {
        case RtfAbsatz::Ausrichtung::Mitte:
            block.setAlignment(Qt::AlignHCenter);
            break;
        case RtfAbsatz::Ausrichtung::Rechts:
            block.setAlignment(Qt::AlignRight);
            break;
        case RtfAbsatz::Ausrichtung::Block:
            block.setAlignment(Qt::AlignJustify);
            break;
        case RtfAbsatz::Ausrichtung::Links:
            block.setAlignment(Qt::AlignLeft);
            break;
        }
        QList<QTextOption::Tab> tabs;
        for (const int t : a.tabs) {
            tabs.append(QTextOption::Tab(t / TWIPS_JE_PIXEL, QTextOption::LeftTab));
        }
        block.setTabPositions(tabs);
        if (a.neue_seite) {
            block.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        }
        if (erster) {
            c.setBlockFormat(block);
            erster = false;
        } else {
            c.insertBlock(block);
        }
        for (const RtfLauf& l : a.laeufe) {
            QTextCharFormat f;
            f.setFont(reportschrift());
            f.setFontPointSize(l.halbpunkte / 2.0);
            f.setFontWeight(l.fett ? QFont::Bold : QFont::Normal);
            f.setFontItalic(l.kursiv);
            f.setFontUnderline(l.unterstrichen);
            f.setVerticalAlignment(l.tiefgestellt ? QTextCharFormat::AlignSubScript
                                                  : QTextCharFormat::AlignNormal);
            c.insertText(QString::fromStdString(l.text), f);
        }
    }
}

Textmass qt_textmass() {
    // Measured at 2048 pixels, where the face's widths are its design widths, and scaled to
    // 10 pt at 96 dpi: small sizes round the pixel size and would shrink every width. Without
    // kerning, as the command line's width table measures, so that both wrap alike.
    constexpr int GROSS = 2048;
    constexpr double PIXEL_10PT = 10.0 * 96.0 / 72.0;
    QFont f = reportschrift();
    f.setPixelSize(GROSS);
    f.setHintingPreference(QFont::PreferNoHinting);
    f.setKerning(false);
    auto metrik = std::make_shared<QFontMetricsF>(f);
    return [metrik](const std::string& text) {
        return metrik->horizontalAdvance(QString::fromStdString(text)) * PIXEL_10PT / GROSS;
    };
}
