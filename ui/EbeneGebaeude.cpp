// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Bau.h"
#include "ui/Bindungen.h"
#include "ui/Ebenen.h"
#include "ui/Massstab.h"

#include "planes/E_Gebaeude.h"

#include <QFrame>

using namespace bau;
using Art = Bindungen::Art;

namespace {

// One of the weight shapes: a block whose height shows the heat capacity; the upper one is
// narrower, so that the two read as a stacked weight.
QFrame* gewicht(QWidget* eltern, int x, QColor farbe) {
    auto* f = new QFrame(eltern);
    f->setAutoFillBackground(true);
    QPalette pal = f->palette();
    pal.setColor(QPalette::Window, farbe);
    f->setPalette(pal);
    f->setGeometry(x, 0, 44 - 2 * (x - 10), 0);
    return f;
}

} // namespace

void gebaeude_bauen(QWidget& e, E_Gebaeude& g, Ebenenbau& bau) {
    QGroupBox* frame3 = rahmen(&e, "Frame3", "Soll-Raumlufttemperatur", 4, 4, 170, 44);
    QScrollBar* troom = balken(frame3, Qt::Horizontal, 8, 20, 84, 16);
    QLabel* troom_anz = anzeige(frame3, 98, 19, 44);
    text(frame3, nullptr, "°C", 146, 20);
    QGroupBox* frame7 = rahmen(&e, "Frame7", "Überwärmungsgrenze", 178, 4, 170, 110);
    text(frame7, "Label19", "Überwärmung bei einer Raumtemperatur größer als . . .", 8, 18, 156,
         44);
    QScrollBar* tueber = balken(frame7, Qt::Horizontal, 8, 66, 84, 16);
    QLabel* tueber_anz = anzeige(frame7, 98, 65, 44);
    text(frame7, nullptr, "°C", 146, 66);
    // The gains as a yearly sum and as a mean power, each with its unit, in a row under the
    // scroll field: beside it there is no room for both.
    QGroupBox* frame2 = rahmen(&e, "Frame2", "Interne Gewinne", 4, 52, 170, 62);
    QScrollBar* intg = balken(frame2, Qt::Horizontal, 8, 18, 154, 16);
    QLabel* intg_anz = anzeige(frame2, 8, 37, 34);
    text(frame2, nullptr, "kWh/(m² a)", 44, 38);
    QLabel* intg_anz2 = anzeige(frame2, 102, 37, 30);
    text(frame2, nullptr, "W/m²", 134, 38);

    QGroupBox* frame4 = rahmen(&e, "Frame4", "Lüftung", 4, 118, 344, 82);
    text(frame4, "Label5", "Freie Lüftung:", 8, 18);
    text(frame4, "Label1", "Mechanische Lüftung:", 8, 38);
    text(frame4, "Label4", "Wärmerückgewinnung:", 8, 58);
    QScrollBar* inf = balken(frame4, Qt::Horizontal, 140, 18, 110, 16);
    QScrollBar* lw = balken(frame4, Qt::Horizontal, 140, 38, 110, 16);
    QScrollBar* wrg = balken(frame4, Qt::Horizontal, 140, 58, 110, 16);
    QLabel* inf_anz = anzeige(frame4, 256, 17, 50);
    QLabel* lw_anz = anzeige(frame4, 256, 37, 50);
    QLabel* wrg_anz = anzeige(frame4, 256, 57, 50);
    text(frame4, nullptr, "1/h", 310, 18);
    text(frame4, nullptr, "1/h", 310, 38);
    text(frame4, nullptr, "%", 310, 58);

    QGroupBox* frame6 = rahmen(&e, "Frame6", "Art der Außenwände", 4, 204, 170, 48);
    QComboBox* aussen = liste(frame6, 8, 18, 154);
    QGroupBox* frame5 = rahmen(&e, "Frame5", "Art der Innenwände", 178, 204, 170, 48);
    QComboBox* innen = liste(frame5, 8, 18, 154);

    QGroupBox* frame1 = rahmen(&e, "Frame1", "Wand gegen beheizt", 4, 256, 170, 62);
    QCheckBox* awn = check(frame1, "awn_cb", "N", 66, 18, 36);
    QCheckBox* aww = check(frame1, "aww_cb", "W", 20, 30, 36);
    QCheckBox* awo = check(frame1, "awo_cb", "O", 112, 30, 36);
    QCheckBox* aws = check(frame1, "aws_cb", "S", 66, 42, 36);

    QGroupBox* frame9 = rahmen(&e, "Frame9", "Effizienzfaktor Klimaanlage", 4, 322, 170, 70);
    text(frame9, "Label9", "Kühl", 8, 18);
    text(frame9, "Label10", "Strom", 8, 34);
    // The unit of both parts of the fraction.
    text(frame9, nullptr, "kWh", 48, 18);
    text(frame9, nullptr, "kWh", 48, 34);
    QScrollBar* klima = balken(frame9, Qt::Horizontal, 8, 50, 100, 16);
    QLabel* klima_anz = anzeige(frame9, 114, 49, 48);

    // The heat storage: two stacked weights over a base line at 1500 twips of the frame.
    QGroupBox* traeg = rahmen(&e, "Traegheit", "Wärmespeicherung", 178, 256, 170, 136);
    QFrame* gewicht1 = gewicht(traeg, 10, QColor(64, 64, 64));
    QFrame* gewicht2 = gewicht(traeg, 18, QColor(128, 128, 128));
    QGroupBox* frame8 = rahmen(traeg, "Frame8", "Wirksame ", 62, 18, 102, 110);
    text(frame8, "Label7", "Speicherfähigkeit", 6, 18);
    // Each value with its unit under it.
    QLabel* cwirk = anzeige(frame8, 6, 36, 88);
    text(frame8, nullptr, "Wh/(m³ K)", 6, 54);
    QLabel* cges = anzeige(frame8, 6, 72, 88);
    text(frame8, nullptr, "kWh/K", 6, 90);

    bau.binden.push_back([=, &g](Bindungen& bd) {
        bd.scroll(*troom, g.Troom_sb);
        bd.label(*troom_anz, g.troom_anz);
        bd.scroll(*tueber, g.Tueber_sb);
        bd.label(*tueber_anz, g.Tueber_anz);
        bd.scroll(*intg, g.intg_sb);
        bd.label(*intg_anz, g.intg_anz);
        bd.label(*intg_anz2, g.intg_anz2);
        bd.scroll(*inf, g.infiltration_sb);
        bd.label(*inf_anz, g.infiltration_anz);
        bd.scroll(*lw, g.lw_sb);
        bd.label(*lw_anz, g.lw_anz);
        bd.scroll(*wrg, g.WRG_Sb);
        bd.label(*wrg_anz, g.WRG_anz);
        bd.scroll(*klima, g.Klimaeffizienz_sb);
        bd.label(*klima_anz, g.KlimaEffizienz_anz);
        bd.liste(*aussen, g.Aussenwandart);
        bd.liste(*innen, g.Innenwandart);
        bd.check(*awn, g.awn_cb);
        bd.check(*aws, g.aws_cb);
        bd.check(*awo, g.awo_cb);
        bd.check(*aww, g.aww_cb);
        bd.label(*cwirk, g.Cwirk_anz, Art::Ergebnis);
        bd.label(*cges, g.cges_anz, Art::Ergebnis);
        bd.folgen([=, &g, &bd] {
            // Twips of the frame to pixels: the base line at 1500 is row 100 of the frame.
            auto setzen = [](QFrame* f, int top, int hoehe) {
                const QRect alt = massstab::entwurf(*f);
                const QRect ort(alt.x(), top / TWIPS_JE_PIXEL, alt.width(), hoehe / TWIPS_JE_PIXEL);
                if (alt != ort) {
                    massstab::setzen(*f, ort);
                }
            };
            setzen(gewicht1, g.Gewicht1_Top, g.Gewicht1_Height);
            setzen(gewicht2, g.Gewicht2_Top, g.Gewicht2_Height);
            gewicht1->setVisible(bd.gueltig());
            gewicht2->setVisible(bd.gueltig());
        });
    });
}
