// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planes/CheckField.h"
#include "planes/OptionGroup.h"
#include "planes/ScrollField.h"
#include "project/Label.h"

#include <string>

struct Projekt;
class E_Daemmung;

// The geometry plane: length, width, height, floors, roof and orientation of the building. Each
// scroll handler marks the project changed, stores its value by the field's factor and runs the
// driver; the roof check and the ridge options carry the roof logic.
// The row of the top of the A/V bar: the compactness AV * v_geb^(1/3) on a scale of 0.06 per
// pixel with 2.88 (a sphere's value less one) at row 123, rounded half to even, at least 7.
int av_balken_y(const Projekt& p);

class E_Geometrie {
public:
    // `daemmung` is the insulation plane whose upper closure follows the roof; `dezimal` the
    // decimal mark of the displays.
    E_Geometrie(Projekt& p, E_Daemmung& daemmung, char dezimal);
    E_Geometrie(const E_Geometrie&) = delete;
    E_Geometrie& operator=(const E_Geometrie&) = delete;

    // Position x factor = value: l, b 0.1 m; h, hd -0.1 m; ag -1 floor; orient -1 degree.
    ScrollField l_sb{20, 500, 10, 20};
    ScrollField b_sb{20, 500, 10, 20};
    ScrollField h_sb{-500, -20, 2, -20};
    ScrollField hd_sb{-50, 0, 2, -10};
    ScrollField ag_sb{-20, -1, 1, -2};
    ScrollField orient_sb{-45, 45, 5, 1};
    CheckField Check_Dachgeschoss;      // heated attic
    OptionGroup Option_Dachfirst{1, 2}; // 1 ridge north-south, 2 east-west
    bool Frame3_Enabled = false;        // the ridge frame follows the heated attic

    // Displays written after each driver run, and orient_anz by its handler.
    Label l_anz, b_anz, h_anz, hd_anz, ag_anz, orient_anz;
    Label f_nfa_anz, f_wfa_anz, Giebel_anz, f_nutz_anz, f_gd_anz, v_luft_anz, v_geb_anz;
    Label dachflaeche_anz;        // the plane's "dachfläche_anz": the size of one roof plane
    Label Label9, Label6, Label4; // roof labels over the house picture
    // The A/V chart: the red bar from y = 123 up to av_balken_y (pixels, 7..123), its label and
    // the ratios of a sphere, a cube and a tetrahedron of the same volume.
    int av_balken_y = 123;
    Label av_anz, AV_Kugel, AV_Wuerfel, AV_Tetraeder;

    std::string Picture3 = "Grafiken/haus0.bmp"; // house picture, relative to the program
    int h_sb_Top = 1665, h_sb_Height = 1455;     // place of h_sb in twips, shorter with a roof
    bool Visible = false;                        // whether the plane is on the screen

    // The displays of the driver, from the record.
    void anzeigen();
    // The A/V chart's bar and labels, from v_geb and AV.
    void AV_diagramm();

    // The roof logic; the check's click handler, also run by the project reader.
    void Check_Dachgeschoss_Click();
    // The ridge logic for the option `index`; the options' click handler, also run by the
    // project reader with the value of its line, which may be neither option.
    void Option_Dachfirst_Click(int index);

private:
    // Captions and places of the labels over the house picture for ridge `index`.
    void dachbeschriftung(int index);
    void groesse_geaendert(float& feld, double wert);
    void orient_geaendert();

    Projekt& p_;
    E_Daemmung& daemmung_;
    char dezimal_;
};
