// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>

#include <array>
#include <functional>

class Massstab;
class QAction;
class QPushButton;

// The main window Haupt: the menu, the input planes under the bar E_Menue on the left, the
// output planes over the bar A_Menue on the right, all at the fixed places of the design. One
// plane of each side is shown; a plane's button is disabled while its plane is shown. Below the
// menu bar the whole design scales with the window, proportions kept; the zoom of the menu sets
// the window's size in steps of the design's.
class Hauptfenster : public QMainWindow {
public:
    // The input planes by their buttons' order on E_Menue and the output planes by A_Menue's.
    enum Eingabe { Geometrie, Fenster, Daemmung, Gebaeude, Klima, Energie };
    enum Ausgabe { Uebersicht, KlimaGebaeude, Heizen, Kuehlen, Sankey };

    Hauptfenster();

    QWidget* E_Menue = nullptr;
    QWidget* A_Menue = nullptr;
    std::array<QWidget*, 6> eingabe{}; // E_Geometrie ... E_Energie
    std::array<QWidget*, 5> ausgabe{}; // A_Uebersicht ... A_Sankey
    std::array<QPushButton*, 6> eingabe_knopf{};
    std::array<QPushButton*, 5> ausgabe_knopf{};
    QAction* mnuSpracheDeutsch = nullptr;
    QAction* mnuSpracheEnglisch = nullptr;
    QAction *mnuZoomGroesser = nullptr, *mnuZoomKleiner = nullptr, *mnuZoomOriginal = nullptr;

    // The zoom steps, the design's size times 1 to 3.
    static constexpr std::array<double, 7> ZOOMSTUFEN{1.0, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0};
    // The step `stufe` (0 for the design's size): the window's client area grows or shrinks to
    // the design times the step, as far as the screen allows, and cannot be made smaller.
    void zoom_setzen(int stufe);
    int zoomstufe() const { return zoomstufe_; }
    // The scale the planes are shown at.
    const Massstab& massstab() const { return *massstab_; }
    // The captions of the zoom entries in the language of the run.
    void zoom_beschriften(bool englisch);

    // A button's click: every plane of its bar hidden and its buttons enabled, then the plane
    // shown and its button disabled.
    void eingabe_zeigen(int ebene);
    void ausgabe_zeigen(int ebene);
    // The input plane shown.
    int eingabe_gezeigt() const { return eingabe_gezeigt_; }
    // The output plane shown.
    int ausgabe_gezeigt() const { return ausgabe_gezeigt_; }
    // Whether the plane last worked on (its button, a click or the keyboard focus in it) is the
    // output plane; otherwise it is the input plane. F1 opens the help of that plane.
    bool ausgabe_aktiv() const { return ausgabe_aktiv_; }

    // The menu's actions; each is set by the program.
    std::function<void()> neu, oeffnen, speichern, speichern_unter, beenden, hilfe, info;
    // F1: the help at the section of the plane last worked on.
    std::function<void()> hilfe_zur_ebene;
    // The report window with the report, or with the temperature course.
    std::function<void()> report_anzeigen, temperaturen_anzeigen;
    // The print dialog, modal.
    std::function<void()> drucken;
    std::function<void(const char*)> sprache;
    // Extras, the climate import window.
    std::function<void()> klimaimport;
    // The close box: true lets the window close.
    std::function<bool()> schliessen_erlaubt;
    // After a plane came up.
    std::function<void()> ebene_gezeigt;

protected:
    void closeEvent(QCloseEvent* e) override;
    bool eventFilter(QObject* ziel, QEvent* e) override;

private:
    void menue_bauen();
    Massstab* massstab_ = nullptr;
    int zoomstufe_ = 0;
    int eingabe_gezeigt_ = Geometrie;
    int ausgabe_gezeigt_ = Uebersicht;
    bool ausgabe_aktiv_ = false;
};
