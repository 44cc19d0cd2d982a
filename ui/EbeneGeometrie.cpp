// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Bau.h"
#include "ui/Bindungen.h"
#include "ui/ChartWidget.h"
#include "ui/Ebenen.h"
#include "ui/Massstab.h"

#include "planes/E_Geometrie.h"

#include <QPixmap>

#include <algorithm>
#include <cmath>

using namespace bau;
using Art = Bindungen::Art;

namespace {

// The rows of the roof values, between the ridge frame and the house.
constexpr int DACH_ZEILE[] = {128, 148};
constexpr int DACH_TEXT_X = 6;
constexpr int DACH_WERT_X = 108;
constexpr int DACH_WERT_BREITE = 68;

// A roof caption takes the width of its text and its row.
void zeile_setzen(QLabel* l, int y) {
    if (l->size() != l->sizeHint()) {
        massstab::anpassen(*l);
    }
    if (massstab::entwurf(*l).topLeft() != QPoint(DACH_TEXT_X, y)) {
        massstab::verschieben(*l, QPoint(DACH_TEXT_X, y));
    }
}

// A two-line caption as wide as its longer line, so that it breaks before its bracket in either
// language: "Höhe" over "(ohne Dach):".
void zweizeilig_vor_klammer(QLabel* l) {
    const QString t = l->text();
    const int klammer = static_cast<int>(t.indexOf(QLatin1Char('(')));
    if (klammer < 0) {
        return;
    }
    // Blanks at the end of a line take no room; those at the start of the first line do.
    QString erste = t.left(klammer);
    while (erste.endsWith(QLatin1Char(' '))) {
        erste.chop(1);
    }
    const QFontMetrics fm = l->fontMetrics();
    const QMargins rand = l->contentsMargins();
    const int breite =
        std::max(fm.horizontalAdvance(erste), fm.horizontalAdvance(t.mid(klammer).trimmed())) +
        rand.left() + rand.right() + 1;
    if (l->width() != breite) {
        // The text is measured at the label's scale; its design width follows.
        QRect ort = massstab::entwurf(*l);
        ort.setWidth(static_cast<int>(std::ceil(breite / massstab::von(*l))));
        massstab::setzen(*l, ort);
    }
}

} // namespace

GeometrieDiagramme geometrie_bauen(QWidget& e, E_Geometrie& g, const std::string& grafiken,
                                   Ebenenbau& bau) {
    // Roof: the heated attic and its ridge.
    QCheckBox* dach = check(&e, "Check_Dachgeschoss", "Beheiztes Dachgeschoß", 6, 6, 170);
    QGroupBox* frame3 = rahmen(&e, "Frame3", "Dachfirst", 4, 26, 170, 58);
    QRadioButton* first1 = option(frame3, "Option_Dachfirst(1)", "Nord-Süd-Richtung", 8, 16, 155);
    QRadioButton* first2 = option(frame3, "Option_Dachfirst(2)", "Ost-West-Richtung", 8, 36, 155);

    // The A/V chart: the bar on a fixed scale, the value over it and the bodies of the same
    // volume beside their marks (sphere at row 90, cube 71, tetrahedron 51).
    QGroupBox* frame5 = rahmen(&e, "Frame5", "A/V - Verhältnis in 1/m", 180, 4, 168, 164);
    auto* av = new ChartWidget(60, 130, frame5);
    av->move(4, 18);
    text(frame5, "Label36", "Körper gleichen Volumens", 70, 18, 94, 30);
    QLabel* av_anz = text(frame5, nullptr, "", 2, 18, 44);
    text(frame5, "Label35", "Kugel", 70, 102);
    text(frame5, "Label34", "Würfel", 70, 83);
    text(frame5, "Label11", "Tetraeder", 70, 62);
    QLabel* kugel = text(frame5, nullptr, "", 124, 102, 40);
    QLabel* wuerfel = text(frame5, nullptr, "", 124, 83, 40);
    QLabel* tetra = text(frame5, nullptr, "", 124, 62, 40);
    av->flaeche().Cls();

    // The house with its dimensions.
    QLabel* haus = text(&e, "Picture3", "", 70, 190, 160, 120);
    text(&e, "Label1", "Anzahl Geschosse:", 4, 172, 64, 30);
    QScrollBar* ag = balken(&e, Qt::Vertical, 20, 206, 16, 100);
    QLabel* ag_anz = anzeige(&e, 40, 250, 26);
    text(&e, "Label4", "Dachhöhe:", 258, 172);
    // The house block stands 100 pixels lower than the design's twips, under the A/V frame; the
    // height field keeps its twips inside the block, and the roof field fills the room between
    // the A/V frame and the top of the height field with a roof: 58 pixels, two arrows and a
    // thumb.
    constexpr int HAUS_VERSATZ = 100;
    constexpr int HD_OBEN = 170;
    QScrollBar* hd =
        balken(&e, Qt::Vertical, 236, HD_OBEN, 16, HAUS_VERSATZ + 1920 / TWIPS_JE_PIXEL - HD_OBEN);
    QLabel* hd_anz = anzeige(&e, 258, 190, 60);
    QScrollBar* h = balken(&e, Qt::Vertical, 236, 0, 16, 0);
    QLabel* label22 = text(&e, "Label22", "   Höhe     (ohne Dach):", 258, 216, 90, 30);
    QLabel* h_anz = anzeige(&e, 258, 250, 60);
    QScrollBar* l = balken(&e, Qt::Horizontal, 70, 314, 160, 16);
    QLabel* l_anz = text(&e, "l_anz", "", 236, 314, 110);
    QScrollBar* b = balken(&e, Qt::Horizontal, 70, 334, 160, 16);
    QLabel* b_anz = text(&e, "b_anz", "", 236, 334, 110);
    // The roof area and the gable with their values, in two rows above the house: over the
    // picture they would cover its roof and facade. The ridge decides which caption names which.
    QLabel* label9 = text(&e, "Label9", "Dachfläche (West):", DACH_TEXT_X, DACH_ZEILE[0]);
    QLabel* label6 = text(&e, "Label6", "Giebel", DACH_TEXT_X, DACH_ZEILE[1]);
    QLabel* dachflaeche = text(&e, nullptr, "", DACH_WERT_X, DACH_ZEILE[0], DACH_WERT_BREITE);
    QLabel* giebel = text(&e, nullptr, "", DACH_WERT_X, DACH_ZEILE[1], DACH_WERT_BREITE);

    text(&e, "Label14", "Süd-Fassade:", 4, 352);
    QLabel* f_nfa = text(&e, nullptr, "", 84, 352, 80);
    text(&e, "Label12", "West-", 176, 352);
    text(&e, "Label15", "Fassade:", 210, 352);
    QLabel* f_wfa = text(&e, nullptr, "", 264, 352, 80);

    // Orientation: the sketch, the field and its compass letters.
    QGroupBox* frame2 = rahmen(&e, "Frame2", "Orientierung ", 4, 372, 170, 146);
    // One line high, so that it ends where the compass letter N begins.
    text(frame2, "Label23", "Auslenkung aus der Südrichtung", 6, 16, 160, 14);
    auto* lage = new ChartWidget(60, 60, frame2);
    lage->move(55, 42);
    text(frame2, "Label29", "N", 81, 30, 10, 12);
    text(frame2, "Label28", "S", 81, 102, 10, 12);
    text(frame2, "Label24", "W", 40, 66, 12, 12);
    text(frame2, "Label27", "O", 120, 66, 12, 12);
    QScrollBar* orient = balken(frame2, Qt::Horizontal, 8, 114, 140, 16);
    text(frame2, "Label31", "WEST", 8, 130);
    QLabel* orient_anz = text(frame2, nullptr, "", 70, 130, 34);
    text(frame2, "Label30", "OST", 128, 130);
    // The east end of the field, the letter that English gives as "E" too.
    text(frame2, "Label26", "O", 152, 114, 14, 16)->setProperty("zeile", 5);

    QGroupBox* frame4 = rahmen(&e, "Frame4", "Gebäudedaten", 180, 372, 168, 100);
    text(frame4, "label37", "Grundfläche", 6, 18);
    text(frame4, "Label13", "Nutzfläche", 6, 38);
    text(frame4, "Label5", "Gebäudevolumen", 6, 58);
    text(frame4, "Label18", "Luftvolumen", 6, 78);
    QLabel* f_gd = anzeige(frame4, 100, 18);
    QLabel* f_nutz = anzeige(frame4, 100, 38);
    QLabel* v_geb = anzeige(frame4, 100, 58);
    QLabel* v_luft = anzeige(frame4, 100, 78);

    bau.diagramme.push_back(av);
    bau.diagramme.push_back(lage);
    bau.binden.push_back([=, &g](Bindungen& bd) {
        bd.check(*dach, g.Check_Dachgeschoss);
        bd.option(*first1, g.Option_Dachfirst, 1);
        bd.option(*first2, g.Option_Dachfirst, 2);
        l->setObjectName(QStringLiteral("l_sb"));
        bd.scroll(*l, g.l_sb);
        b->setObjectName(QStringLiteral("b_sb"));
        bd.scroll(*b, g.b_sb);
        h->setObjectName(QStringLiteral("h_sb"));
        bd.scroll(*h, g.h_sb);
        hd->setObjectName(QStringLiteral("hd_sb"));
        bd.scroll(*hd, g.hd_sb);
        ag->setObjectName(QStringLiteral("ag_sb"));
        bd.scroll(*ag, g.ag_sb);
        orient->setObjectName(QStringLiteral("orient_sb"));
        bd.scroll(*orient, g.orient_sb);
        bd.label(*l_anz, g.l_anz, Art::Ergebnis);
        bd.label(*b_anz, g.b_anz, Art::Ergebnis);
        bd.label(*h_anz, g.h_anz, Art::Ergebnis);
        bd.label(*hd_anz, g.hd_anz, Art::Ergebnis);
        bd.label(*ag_anz, g.ag_anz, Art::Ergebnis);
        bd.label(*orient_anz, g.orient_anz);
        f_nfa->setObjectName(QStringLiteral("f_nfa_anz"));
        bd.label(*f_nfa, g.f_nfa_anz, Art::Ergebnis);
        f_wfa->setObjectName(QStringLiteral("f_wfa_anz"));
        bd.label(*f_wfa, g.f_wfa_anz, Art::Ergebnis);
        f_gd->setObjectName(QStringLiteral("f_gd_anz"));
        bd.label(*f_gd, g.f_gd_anz, Art::Ergebnis);
        bd.label(*f_nutz, g.f_nutz_anz, Art::Ergebnis);
        bd.label(*v_geb, g.v_geb_anz, Art::Ergebnis);
        bd.label(*v_luft, g.v_luft_anz, Art::Ergebnis);
        bd.label(*label9, g.Label9, Art::Entwurf);
        bd.label(*label6, g.Label6, Art::Entwurf);
        bd.label(*dachflaeche, g.dachflaeche_anz, Art::Ergebnis);
        bd.label(*giebel, g.Giebel_anz, Art::Ergebnis);
        bd.label(*av_anz, g.av_anz, Art::Ergebnis);
        bd.label(*kugel, g.AV_Kugel, Art::Ergebnis);
        bd.label(*wuerfel, g.AV_Wuerfel, Art::Ergebnis);
        bd.label(*tetra, g.AV_Tetraeder, Art::Ergebnis);
        QLabel* label4 = frame3->parentWidget()->findChild<QLabel*>("Label4");
        bd.folgen([=, &g] {
            frame3->setEnabled(g.Frame3_Enabled);
            const bool nord_sued = g.Option_Dachfirst.Value(1);
            zeile_setzen(nord_sued ? label9 : label6, DACH_ZEILE[0]);
            zeile_setzen(nord_sued ? label6 : label9, DACH_ZEILE[1]);
            zweizeilig_vor_klammer(label22);
            label4->setVisible(g.Label4.Visible);
            // The height field is shorter while the roof field stands over it.
            const QRect ort(236, HAUS_VERSATZ + g.h_sb_Top / TWIPS_JE_PIXEL, 16,
                            g.h_sb_Height / TWIPS_JE_PIXEL);
            if (massstab::entwurf(*h) != ort) {
                massstab::setzen(*h, ort);
            }
            if (haus->property("bild").toString().toStdString() != g.Picture3) {
                const std::string datei = g.Picture3.substr(g.Picture3.find('/') + 1);
                haus->setPixmap(QPixmap(QString::fromStdString(grafiken + "/" + datei)));
                haus->setProperty("bild", QString::fromStdString(g.Picture3));
            }
            // The value over the bar follows its top.
            massstab::verschieben(*av_anz, QPoint(2, 18 + g.av_anz.Top - 4));
        });
    });
    return {av, lage};
}
