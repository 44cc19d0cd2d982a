// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Uebersetzen.h"

#include "language/Beschriftungen.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include <set>

namespace {

QString text_von(QObject* o) {
    if (auto* l = qobject_cast<QLabel*>(o)) {
        return l->text();
    }
    if (auto* b = qobject_cast<QAbstractButton*>(o)) {
        return b->text();
    }
    if (auto* g = qobject_cast<QGroupBox*>(o)) {
        return g->title();
    }
    if (auto* a = qobject_cast<QAction*>(o)) {
        return a->text();
    }
    return QString();
}

// A control on a fixed place grows to the right where the English text is longer; a wrapped
// label keeps its box.
void breiter_machen(QWidget* w) {
    const int noetig = w->sizeHint().width();
    if (w->width() < noetig) {
        w->resize(noetig, w->height());
    }
}

bool text_setzen(QObject* o, const QString& t) {
    if (auto* l = qobject_cast<QLabel*>(o)) {
        l->setText(t);
        if (!l->wordWrap()) {
            breiter_machen(l);
        }
    } else if (auto* b = qobject_cast<QAbstractButton*>(o)) {
        b->setText(t);
        if (qobject_cast<QPushButton*>(o) == nullptr) {
            breiter_machen(b);
        }
    } else if (auto* g = qobject_cast<QGroupBox*>(o)) {
        g->setTitle(t);
    } else if (auto* a = qobject_cast<QAction*>(o)) {
        a->setText(t);
    } else {
        return false;
    }
    return true;
}

QString qt(std::string_view s) {
    return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
}

} // namespace

int fenster_uebersetzen(QWidget& fenster, std::string_view name) {
    const std::vector<Beschriftung>& tabelle = beschriftungen(name);
    const QList<QObject*> kinder = fenster.findChildren<QObject*>();
    std::set<QObject*> erledigt;
    int fehlend = 0;
    for (std::size_t zeile = 0; zeile < tabelle.size(); ++zeile) {
        const Beschriftung& b = tabelle[zeile];
        QObject* ziel = nullptr;
        for (QObject* k : kinder) {
            if (erledigt.count(k) != 0) {
                continue;
            }
            if (!b.Steuerelement.empty()) {
                if (k->objectName() == qt(b.Steuerelement)) {
                    ziel = k;
                }
            } else if (!b.Deutsch.empty()) {
                if (text_von(k) == qt(b.Deutsch) && k->objectName().isEmpty()) {
                    ziel = k;
                }
            } else if (k->property("zeile").isValid() &&
                       k->property("zeile").toInt() == static_cast<int>(zeile)) {
                ziel = k;
            }
            if (ziel != nullptr) {
                break;
            }
        }
        if (ziel != nullptr && text_setzen(ziel, qt(b.Englisch))) {
            erledigt.insert(ziel);
        } else {
            ++fehlend;
        }
    }
    return fehlend;
}
