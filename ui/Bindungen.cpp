// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Bindungen.h"
#include "ui/Massstab.h"

#include "planes/CheckField.h"
#include "planes/ListField.h"
#include "planes/OptionGroup.h"
#include "planes/ScrollField.h"
#include "project/FatalError.h"
#include "project/Label.h"
#include "project/Laufzeitfehler.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>

#include <cstdlib>

namespace {

void sichtbar_setzen(QWidget& w, bool sichtbar) {
    // Only a widget's own flag: a hidden plane keeps the flags of its children.
    if (w.isHidden() == sichtbar) {
        w.setVisible(sichtbar);
    }
}

void aktiv_setzen(QWidget& w, bool aktiv) {
    // The widget's own flag, as for visibility: under a disabled frame isEnabled() is false
    // whatever the model says, and the flag would be left behind for when the frame comes back.
    if (w.testAttribute(Qt::WA_ForceDisabled) == aktiv) {
        w.setEnabled(aktiv);
    }
}

void melden(const QWidget& w, const void* modell, int index = 0,
            Bindungen::Art art = Bindungen::Art::Text, int massstab = 0) {
    if (Bindungen::gebunden) {
        Bindungen::gebunden({&w, modell, index, art, massstab});
    }
}

} // namespace

Bindungen::Bindungen(std::function<void(const std::string&)> fehler, std::function<void()> nachher,
                     std::function<bool(bool)> gueltig_nach)
    : fehler_(std::move(fehler)), nachher_(std::move(nachher)),
      gueltig_nach_(std::move(gueltig_nach)) {}

bool Bindungen::ausfuehren(const std::function<void()>& aktion) {
    // A fault's message box runs the event loop: an arrow's auto-repeat, a timer or a queued
    // click would otherwise run the action again and stack up one message on the other.
    if (meldet_) {
        return false;
    }
    // A handler may run another bound action (a list's selection moves scroll fields); only the
    // outermost one reports and updates.
    ++tiefe_;
    bool fehlerfrei = true;
    std::string text;
    try {
        aktion();
    } catch (const FatalError& f) {
        fehlerfrei = false;
        text = f.text(sprache);
    } catch (const Laufzeitfehler& f) {
        fehlerfrei = false;
        text = f.what();
    }
    --tiefe_;
    if (tiefe_ > 0) {
        return fehlerfrei;
    }
    gueltig_ = gueltig_nach_ ? gueltig_nach_(fehlerfrei) : fehlerfrei;
    abgleichen();
    if (nachher_) {
        nachher_();
    }
    if (!fehlerfrei) {
        meldet_ = true;
        fehler_(text);
        meldet_ = false;
    }
    return fehlerfrei;
}

void Bindungen::abgleichen() {
    for (const auto& a : abgleiche_) {
        a();
    }
}

void Bindungen::folgen(std::function<void()> abgleich) {
    abgleiche_.push_back(std::move(abgleich));
}

void Bindungen::scroll(QScrollBar& sb, ScrollField& feld) {
    melden(sb, &feld);
    abgleiche_.push_back([&sb, &feld] {
        const QSignalBlocker sperre(sb);
        if (sb.minimum() != feld.Min || sb.maximum() != feld.Max) {
            sb.setRange(feld.Min, feld.Max);
        }
        sb.setSingleStep(std::abs(feld.SmallChange));
        sb.setPageStep(std::max(1, std::abs(static_cast<int>(feld.LargeChange))));
        if (sb.value() != feld.Value()) {
            sb.setValue(feld.Value());
        }
        aktiv_setzen(sb, feld.Enabled);
        sichtbar_setzen(sb, feld.Visible);
    });
    // Arrow and page clicks: the field moves by its own signed steps; the bar then shows the
    // field's position before it passes it on.
    connect(&sb, &QAbstractSlider::actionTriggered, this, [this, &sb, &feld](int aktion) {
        int richtung = 0;
        bool seite = false;
        switch (aktion) {
        case QAbstractSlider::SliderSingleStepAdd:
            richtung = 1;
            break;
        case QAbstractSlider::SliderSingleStepSub:
            richtung = -1;
            break;
        case QAbstractSlider::SliderPageStepAdd:
            richtung = 1;
            seite = true;
            break;
        case QAbstractSlider::SliderPageStepSub:
            richtung = -1;
            seite = true;
            break;
        default:
            return;
        }
        const bool gelungen = ausfuehren([&feld, richtung, seite] {
            if (seite) {
                feld.seite(richtung);
            } else {
                feld.pfeil(richtung);
            }
        });
        // A fault ends a held press: a bar that is disabled, if only for a moment, stops
        // repeating its step.
        if (!gelungen) {
            sb.setEnabled(false);
            sb.setEnabled(feld.Enabled);
        }
        sb.setSliderPosition(feld.Value());
    });
    // Dragging, the wheel and the ends: the position the bar reached.
    connect(&sb, &QAbstractSlider::valueChanged, this, [this, &feld](int wert) {
        if (wert != feld.Value()) {
            ausfuehren([&feld, wert] { feld.setze(wert); });
        }
    });
}

void Bindungen::liste(QComboBox& cb, ListField& feld) {
    melden(cb, &feld);
    abgleiche_.push_back([&cb, &feld] {
        const QSignalBlocker sperre(cb);
        bool gleich = cb.count() == static_cast<int>(feld.Eintraege.size());
        for (int i = 0; gleich && i < cb.count(); ++i) {
            gleich = cb.itemText(i).toStdString() == feld.Eintraege[static_cast<std::size_t>(i)];
        }
        if (!gleich) {
            cb.clear();
            for (const std::string& e : feld.Eintraege) {
                cb.addItem(QString::fromStdString(e));
            }
        }
        if (cb.currentIndex() != feld.ListIndex()) {
            cb.setCurrentIndex(feld.ListIndex());
        }
        aktiv_setzen(cb, feld.Enabled);
        sichtbar_setzen(cb, feld.Visible);
    });
    connect(&cb, QOverload<int>::of(&QComboBox::activated), this,
            [this, &feld](int zeile) { ausfuehren([&feld, zeile] { feld.setze_index(zeile); }); });
}

void Bindungen::check(QCheckBox& cb, CheckField& feld) {
    melden(cb, &feld);
    abgleiche_.push_back([&cb, &feld] {
        const QSignalBlocker sperre(cb);
        if (cb.isChecked() != (feld.Value() == 1)) {
            cb.setChecked(feld.Value() == 1);
        }
        aktiv_setzen(cb, feld.Enabled);
        sichtbar_setzen(cb, feld.Visible);
    });
    connect(&cb, &QAbstractButton::clicked, this,
            [this, &feld](bool an) { ausfuehren([&feld, an] { feld.setze(an ? 1 : 0); }); });
}

void Bindungen::option(QRadioButton& rb, OptionGroup& gruppe, int index) {
    melden(rb, &gruppe, index);
    // The group decides which option is set; Qt's own exclusivity would fight it.
    rb.setAutoExclusive(false);
    abgleiche_.push_back([&rb, &gruppe, index] {
        const QSignalBlocker sperre(rb);
        if (rb.isChecked() != gruppe.Value(index)) {
            rb.setChecked(gruppe.Value(index));
        }
        aktiv_setzen(rb, gruppe.Enabled(index));
    });
    connect(&rb, &QAbstractButton::clicked, this, [this, &gruppe, index](bool) {
        ausfuehren([&gruppe, index] { gruppe.setzen(index); });
    });
}

void Bindungen::label(QLabel& l, const Label& modell, Art art, int massstab) {
    melden(l, &modell, 0, art, massstab);
    const QPalette normal = l.palette();
    abgleiche_.push_back([this, &l, &modell, art, massstab, normal] {
        const bool leer = art == Art::Ergebnis && !gueltig_;
        const QString text = leer ? QString() : QString::fromStdString(modell.Caption);
        if (l.text() != text && !(art == Art::Entwurf && modell.Caption.empty())) {
            l.setText(text);
            // A caption that the plane places takes the width of its text.
            if (art == Art::Entwurf && massstab > 0) {
                massstab::anpassen(l);
            }
        }
        if (art == Art::Ergebnis) {
            aktiv_setzen(l, gueltig_);
        }
        sichtbar_setzen(l, modell.Visible);
        if (massstab > 0) {
            const QPoint ort(modell.Left / massstab, modell.Top / massstab);
            if (massstab::entwurf(l).topLeft() != ort) {
                massstab::verschieben(l, ort);
            }
        }
        QPalette pal = normal;
        if (modell.ForeColor == Label::Farbe::Hintergrund) {
            pal.setColor(QPalette::WindowText, pal.color(QPalette::Window));
        }
        if (l.palette() != pal) {
            l.setPalette(pal);
        }
    });
}
