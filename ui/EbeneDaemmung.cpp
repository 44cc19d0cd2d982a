// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Bau.h"
#include "ui/Bindungen.h"
#include "ui/Ebenen.h"

#include "planes/E_Daemmung.h"

using namespace bau;

void daemmung_bauen(QWidget& e, E_Daemmung& d, Ebenenbau& bau) {
    // A row of a scroll field with its display, the displays in one column at x 232 and the
    // unit beside them.
    auto reihe = [](QWidget* eltern, int x, int y, const char* einheit = nullptr) {
        constexpr int ANZEIGE = 232;
        if (einheit != nullptr) {
            text(eltern, nullptr, einheit, ANZEIGE + 54, y);
        }
        return std::make_pair(balken(eltern, Qt::Horizontal, x, y, ANZEIGE - 6 - x, 16),
                              anzeige(eltern, ANZEIGE, y - 1, 50));
    };
    const char* const U = "W/(m²K)";
    QGroupBox* frame3 = rahmen(&e, "Frame3", "U-Werte der Wände", 4, 4, 344, 98);
    text(frame3, "Label3", "Nord:", 8, 18);
    text(frame3, "Label14", "Süd:", 8, 38);
    text(frame3, "Label29", "Ost:", 8, 58);
    text(frame3, "Label32", "West:", 8, 78);
    const auto kwn = reihe(frame3, 50, 18, U), kws = reihe(frame3, 50, 38, U);
    const auto kwo = reihe(frame3, 50, 58, U), kww = reihe(frame3, 50, 78, U);

    QGroupBox* frame1 = rahmen(&e, "Frame1", "Tür (Nordfassade)", 4, 104, 344, 58);
    text(frame1, "Label1", "Fläche:", 8, 18);
    text(frame1, "Label2", "U-Wert:", 8, 38);
    const auto ft = reihe(frame1, 70, 18, "m²"), kt = reihe(frame1, 70, 38, U);

    // The upper closure: its caption is a label that the roof logic rewrites.
    QGroupBox* oben = rahmen(&e, nullptr, "", 4, 164, 344, 86);
    QLabel* liste2 = text(oben, "liste2", "Obere Geschoßdecke", 8, 2, 200);
    text(oben, "Label18", "gegen . . .", 8, 20);
    // The lists reach to the frame's right edge: their longest rows ("Unbeheizter Keller (mit
    // Perimeterdämmung)") need it.
    QComboBox* ogd = liste(oben, 70, 18, 266);
    QComboBox* ogd_dach = liste(oben, 70, 18, 266);
    text(oben, "Label19", "U-Wert:", 8, 44);
    const auto kd = reihe(oben, 70, 44, U);
    QCheckBox* hdach = check(oben, "cbk_hDach", "Hinterlüftetes Dach", 8, 64, 200);

    QGroupBox* frame2 = rahmen(&e, "Frame2", "Untere Geschoßdecke", 4, 252, 344, 62);
    text(frame2, "Label15", "gegen . . .", 8, 20);
    QComboBox* ugd = liste(frame2, 70, 18, 266);
    text(frame2, "Label16", "U-Wert:", 8, 42);
    const auto kk = reihe(frame2, 70, 42, U);

    QGroupBox* frame4 = rahmen(&e, "Frame4", "Absorptionskoeffizient der Wände", 4, 316, 344, 40);
    const auto abs = reihe(frame4, 8, 18);

    QGroupBox* frame5 = rahmen(&e, "Frame5", "Wärmebrücken", 4, 358, 344, 130);
    QRadioButton* wb1 =
        option(frame5, "Waermebruecken_opt(1)", "Wärmebrücken ignorieren", 8, 18, 330);
    QRadioButton* wb2 =
        option(frame5, "Waermebruecken_opt(2)",
               "U-Werte aller Umfassungsflächen um 0,10 W/(m² K) erhöhen", 8, 40, 330);
    text(frame5, "Label4", "(normale Konstruktion)", 26, 58);
    QRadioButton* wb3 =
        option(frame5, "Waermebruecken_opt(3)",
               "U-Werte aller Umfassungsflächen um 0,05 W/(m² K) erhöhen", 8, 80, 330);
    text(frame5, "Label5", "(möglichst wärmebrückenfreie Konstruktion)", 26, 98);

    bau.binden.push_back([=, &d](Bindungen& bd) {
        const std::pair<std::pair<QScrollBar*, QLabel*>, std::pair<ScrollField*, Label*>> felder[] =
            {
                {kwn, {&d.kwn_sb, &d.kwn_anz}},
                {kws, {&d.kws_sb, &d.kws_anz}},
                {kwo, {&d.kwo_sb, &d.kwo_anz}},
                {kww, {&d.kww_sb, &d.kww_anz}},
                {kd, {&d.kd_sb, &d.kd_anz}},
                {kk, {&d.kk_sb, &d.kk_anz}},
                {ft, {&d.ft_sb, &d.ft_anz}},
                {kt, {&d.kt_sb, &d.kt_anz}},
                {abs, {&d.absfaktor_sb, &d.absfaktor_anz}},
            };
        for (const auto& [w, m] : felder) {
            bd.scroll(*w.first, *m.first);
            bd.label(*w.second, *m.second);
        }
        bd.label(*liste2, d.liste2);
        bd.liste(*ogd, d.ogd);
        bd.liste(*ogd_dach, d.ogd_Dach);
        bd.liste(*ugd, d.ugd);
        bd.check(*hdach, d.cbk_hDach);
        bd.option(*wb1, d.Waermebruecken_opt, 1);
        bd.option(*wb2, d.Waermebruecken_opt, 2);
        bd.option(*wb3, d.Waermebruecken_opt, 3);
    });
}
