// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Bau.h"
#include "ui/Bindungen.h"
#include "ui/Ebenen.h"

#include "planes/E_Fenster.h"

#include <array>

using namespace bau;
using Art = Bindungen::Art;

namespace {

// The rows of the share frame and the order of the facade buttons: north, south, east, west.
constexpr std::array<const char*, 4> ZEILEN_NAMEN{"Label64", "Label58", "Label49", "Label41"};
constexpr std::array<const char*, 4> FASSADEN{"Nord", "Süd", "Ost", "West"};
constexpr std::array<const char*, 4> RAHMEN_NAMEN{"Frame_Nord", "Frame_Sued", "Frame_Ost",
                                                  "Frame_West"};
constexpr std::array<const char*, 4> KNOPF_NAMEN{"Command_HR(0)", "Command_HR(1)", "Command_HR(2)",
                                                 "Command_HR(3)"};

} // namespace

void fenster_bauen(QWidget& e, E_Fenster& f, Ebenenbau& bau) {
    QGroupBox* frame10 = rahmen(&e, "Frame10", "Fensterflächen", 4, 4, 344, 110);
    text(frame10, "Label16", "   Wandanteil   Fensterfläche", 60, 14);
    QRadioButton* gleich =
        option(&e, "Option1(0)", "Gleiche Fenster an allen Fassaden", 6, 118, 340);
    QRadioButton* einzeln =
        option(&e, "Option1(1)", "Fenstereigenschaften für jede Fassade individuell", 6, 136, 340);

    struct Zeile {
        QScrollBar* f_sb;
        QLabel *f_anz, *flaeche;
        QPushButton* knopf;
        QGroupBox* panel;
        QComboBox* typ;
        std::array<QScrollBar*, 5> sb;
        std::array<QLabel*, 5> anz;
    };
    auto zeilen = std::make_shared<std::array<Zeile, 4>>();
    for (int i = 0; i < 4; ++i) {
        Zeile& z = (*zeilen)[static_cast<std::size_t>(i)];
        const int y = 32 + 19 * i;
        text(frame10, ZEILEN_NAMEN[static_cast<std::size_t>(i)],
             FASSADEN[static_cast<std::size_t>(i)], 8, y);
        z.f_sb = balken(frame10, Qt::Horizontal, 50, y, 170, 16);
        z.f_anz = anzeige(frame10, 226, y, 40);
        z.flaeche = anzeige(frame10, 272, y, 64);
        z.knopf = knopf(&e, KNOPF_NAMEN[static_cast<std::size_t>(i)],
                        FASSADEN[static_cast<std::size_t>(i)], 6 + 86 * i, 158, 84, 22);
        // One panel per facade, all at the same place; the south one, which stands for all
        // facades alike, is titled by the window type, the others by their facade.
        z.panel = rahmen(&e, RAHMEN_NAMEN[static_cast<std::size_t>(i)],
                         i == Sued ? "Fenstertyp" : FASSADEN[static_cast<std::size_t>(i)], 4, 182,
                         344, 214);
        z.typ = liste(z.panel, 8, 18, 328);
        const std::array<const char*, 5> titel{"U-Wert Glas", "U-Wert Rahmen", "g-Wert",
                                               "Rahmenanteil", "Verschattung"};
        for (std::size_t k = 0; k < titel.size(); ++k) {
            const int yk = 46 + 33 * static_cast<int>(k);
            text(z.panel, nullptr, titel[k], 8, yk);
            z.sb[k] = balken(z.panel, Qt::Horizontal, 8, yk + 15, 260, 16);
            z.anz[k] = anzeige(z.panel, 276, yk + 14, 60);
        }
    }
    QGroupBox* frame6 = rahmen(&e, "Frame6", "Gesamtfläche aller Fenster", 4, 400, 170, 44);
    QGroupBox* frame5 = rahmen(&e, "Frame5", "Glasfläche aller Fenster", 178, 400, 170, 44);
    QGroupBox* frame7 = rahmen(&e, "Frame7", "mittlerer U-Wert aller Fenster", 4, 448, 170, 44);
    QGroupBox* frame8 = rahmen(&e, "Frame8", "mittlerer g-Wert aller Fenster", 178, 448, 170, 44);
    QLabel* gf = anzeige(frame6, 10, 20, 80);
    QLabel* vf = anzeige(frame5, 10, 20, 80);
    QLabel* kf = anzeige(frame7, 10, 20, 80);
    QLabel* gfm = anzeige(frame8, 10, 20, 80);

    bau.binden.push_back([=, &f](Bindungen& bd) {
        bd.option(*gleich, f.Option1, 0);
        bd.option(*einzeln, f.Option1, 1);
        for (int i = 0; i < 4; ++i) {
            Zeile& z = (*zeilen)[static_cast<std::size_t>(i)];
            Fensterfassade& x = f.fassaden[static_cast<std::size_t>(i)];
            z.f_sb->setObjectName(QStringLiteral("f_sb(%1)").arg(i));
            // The field the user works on holds the focus, which the type logic asks; the
            // focus is taken before the field's own handler runs.
            const auto fokus = [&f](QScrollBar* sb, const ScrollField* feld) {
                QObject::connect(sb, &QAbstractSlider::sliderPressed, sb,
                                 [&f, feld] { f.Fokus = feld; });
                QObject::connect(sb, &QAbstractSlider::actionTriggered, sb,
                                 [&f, feld](int) { f.Fokus = feld; });
            };
            fokus(z.f_sb, &x.f_sb);
            bd.scroll(*z.f_sb, x.f_sb);
            bd.label(*z.f_anz, x.f_anz);
            bd.label(*z.flaeche, x.f_flaeche_anz, Art::Ergebnis);
            QObject::connect(z.typ, QOverload<int>::of(&QComboBox::activated), z.typ,
                             [&f](int) { f.Fokus = nullptr; });
            bd.liste(*z.typ, x.typ);
            const std::array<ScrollField*, 5> felder{&x.kfg_sb, &x.kfr_sb, &x.gf_sb, &x.ra_sb,
                                                     &x.versch_sb};
            const std::array<const char*, 5> namen{"kfg_sb", "kfr_sb", "gf_sb", "ra_sb",
                                                   "versch_sb"};
            const std::array<Label*, 5> anzeigen{&x.kfg_anz, &x.kfr_anz, &x.gf_anz, &x.ra_anz,
                                                 &x.versch_anz};
            for (std::size_t k = 0; k < felder.size(); ++k) {
                z.sb[k]->setObjectName(QStringLiteral("%1(%2)").arg(namen[k]).arg(i));
                fokus(z.sb[k], felder[k]);
                bd.scroll(*z.sb[k], *felder[k]);
                bd.label(*z.anz[k], *anzeigen[k]);
            }
            QObject::connect(z.knopf, &QPushButton::clicked, &bd,
                             [&bd, &f, i] { bd.ausfuehren([&f, i] { f.Command_HR_Click(i); }); });
            bd.folgen([z, &f, i] {
                const auto s = static_cast<std::size_t>(i);
                z.knopf->setVisible(f.Command_HR[s].Visible);
                z.knopf->setEnabled(f.Command_HR[s].Enabled);
                z.panel->setVisible(f.Frame_Visible[s]);
            });
        }
        bd.label(*gf, f.f_gf_anz, Art::Ergebnis);
        bd.label(*vf, f.f_vf_anz, Art::Ergebnis);
        bd.label(*kf, f.kf_anz, Art::Ergebnis);
        bd.label(*gfm, f.gfm_anz, Art::Ergebnis);
    });
}
