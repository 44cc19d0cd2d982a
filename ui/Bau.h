// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Small helpers that put the controls of a plane at fixed pixel places, as the planes' fixed
// layout wants (15 twips to the pixel), each with the control name of the design as its object
// name, so that the caption tables find it.

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

namespace bau {

// Twips of the design to pixels of the screen.
constexpr int TWIPS_JE_PIXEL = 15;

QLabel* text(QWidget* eltern, const char* name, const char* text, int x, int y, int w = 0,
             int h = 16);
QGroupBox* rahmen(QWidget* eltern, const char* name, const char* titel, int x, int y, int w, int h);
QScrollBar* balken(QWidget* eltern, Qt::Orientation richtung, int x, int y, int w, int h);
QCheckBox* check(QWidget* eltern, const char* name, const char* text, int x, int y, int w = 0);
QRadioButton* option(QWidget* eltern, const char* name, const char* text, int x, int y, int w = 0);
QComboBox* liste(QWidget* eltern, int x, int y, int w);
QPushButton* knopf(QWidget* eltern, const char* name, const char* text, int x, int y, int w, int h);
// A display: a sunken field for a value written by the plane.
QLabel* anzeige(QWidget* eltern, int x, int y, int w = 60);
// A small colour key at (x, y) beside its text; `zeile` is the text's row in the plane's caption
// table.
QLabel* legende(QWidget* eltern, int x, int y, QColor farbe, const char* text, int zeile);

} // namespace bau
