// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Bau.h"

namespace bau {

namespace {

template <class W> W* platz(W* w, const char* name, int x, int y, int breite, int hoehe) {
    if (name != nullptr) {
        w->setObjectName(QString::fromUtf8(name));
    }
    if (breite <= 0) {
        w->adjustSize();
        breite = w->width();
    }
    if (hoehe <= 0) {
        hoehe = w->sizeHint().height();
    }
    w->setGeometry(x, y, breite, hoehe);
    return w;
}

} // namespace

QLabel* text(QWidget* eltern, const char* name, const char* t, int x, int y, int w, int h) {
    auto* l = new QLabel(QString::fromUtf8(t), eltern);
    if (w > 0) {
        l->setWordWrap(h > 20);
    }
    return platz(l, name, x, y, w, h);
}

QGroupBox* rahmen(QWidget* eltern, const char* name, const char* titel, int x, int y, int w,
                  int h) {
    return platz(new QGroupBox(QString::fromUtf8(titel), eltern), name, x, y, w, h);
}

QScrollBar* balken(QWidget* eltern, Qt::Orientation richtung, int x, int y, int w, int h) {
    auto* b = new QScrollBar(richtung, eltern);
    // A scroll field is an input of its own: it takes the focus by Tab and click and moves on
    // the arrow and page keys.
    b->setFocusPolicy(Qt::StrongFocus);
    return platz(b, nullptr, x, y, w, h);
}

QCheckBox* check(QWidget* eltern, const char* name, const char* t, int x, int y, int w) {
    return platz(new QCheckBox(QString::fromUtf8(t), eltern), name, x, y, w, 18);
}

QRadioButton* option(QWidget* eltern, const char* name, const char* t, int x, int y, int w) {
    return platz(new QRadioButton(QString::fromUtf8(t), eltern), name, x, y, w, 18);
}

QComboBox* liste(QWidget* eltern, int x, int y, int w) {
    return platz(new QComboBox(eltern), nullptr, x, y, w, 22);
}

QPushButton* knopf(QWidget* eltern, const char* name, const char* t, int x, int y, int w, int h) {
    return platz(new QPushButton(QString::fromUtf8(t), eltern), name, x, y, w, h);
}

QLabel* anzeige(QWidget* eltern, int x, int y, int w) {
    auto* l = new QLabel(eltern);
    l->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    l->setGeometry(x, y, w, 18);
    return l;
}

QLabel* legende(QWidget* eltern, int x, int y, QColor farbe, const char* t, int zeile) {
    auto* f = new QFrame(eltern);
    f->setAutoFillBackground(true);
    QPalette pal = f->palette();
    pal.setColor(QPalette::Window, farbe);
    f->setPalette(pal);
    f->setGeometry(x, y + 3, 10, 10);
    QLabel* l = text(eltern, nullptr, t, x + 14, y);
    l->setProperty("zeile", zeile);
    return l;
}

} // namespace bau
