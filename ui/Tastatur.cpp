// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Tastatur.h"

#include <QAction>
#include <QApplication>
#include <QFocusFrame>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QScrollBar>
#include <QSet>

#include <algorithm>

namespace {

// Controls less than this many pixels apart in height count as one row.
constexpr int ZEILE = 8;

// The focusable controls under `w` in screen order, a container's ones where it stands.
void sammeln(QWidget* w, std::vector<QWidget*>& aus) {
    std::vector<QWidget*> kinder;
    for (QObject* o : w->children()) {
        auto* k = qobject_cast<QWidget*>(o);
        if (k != nullptr && !k->isWindow()) {
            kinder.push_back(k);
        }
    }
    std::stable_sort(kinder.begin(), kinder.end(), [](const QWidget* a, const QWidget* b) {
        if (std::abs(a->y() - b->y()) >= ZEILE) {
            return a->y() < b->y();
        }
        return a->x() < b->x();
    });
    for (QWidget* k : kinder) {
        if ((k->focusPolicy() & Qt::TabFocus) != 0 && k->focusProxy() == nullptr) {
            aus.push_back(k);
        }
        // A control's own parts (a combo box's line edit) keep the order Qt gives them.
        if ((k->focusPolicy() & Qt::TabFocus) == 0) {
            sammeln(k, aus);
        }
    }
}

QString mit_zugriffstaste(const QString& text, QSet<QChar>& belegt) {
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text[i].toLower();
        if (c.isLetterOrNumber() && !belegt.contains(c)) {
            belegt.insert(c);
            QString neu = text;
            neu.insert(i, QLatin1Char('&'));
            return neu;
        }
    }
    return text;
}

void menue_versehen(const QList<QAction*>& eintraege) {
    QSet<QChar> belegt;
    for (const QAction* a : eintraege) {
        const QKeySequence taste = QKeySequence::mnemonic(a->text());
        if (!taste.isEmpty()) {
            belegt.insert(QChar(taste[0].key()).toLower());
        }
    }
    for (QAction* a : eintraege) {
        if (!a->isSeparator() && QKeySequence::mnemonic(a->text()).isEmpty()) {
            a->setText(mit_zugriffstaste(a->text(), belegt));
        }
        if (a->menu() != nullptr) {
            menue_versehen(a->menu()->actions());
        }
    }
}

} // namespace

void tab_reihenfolge(const std::vector<QWidget*>& bereiche) {
    std::vector<QWidget*> kette;
    for (QWidget* b : bereiche) {
        sammeln(b, kette);
    }
    for (std::size_t i = 1; i < kette.size(); ++i) {
        QWidget::setTabOrder(kette[i - 1], kette[i]);
    }
}

void zugriffstasten_setzen(QMenuBar& leiste) {
    menue_versehen(leiste.actions());
}

void fokus_sichtbar_machen(QWidget& fenster) {
    auto* rahmen = new QFocusFrame(&fenster);
    rahmen->setObjectName(QStringLiteral("Fokusrahmen"));
    QObject::connect(qApp, &QApplication::focusChanged, rahmen,
                     [rahmen, f = QPointer<QWidget>(&fenster)](QWidget*, QWidget* jetzt) {
                         const bool zeigen = f != nullptr && qobject_cast<QScrollBar*>(jetzt) &&
                                             f->isAncestorOf(jetzt);
                         rahmen->setWidget(zeigen ? jetzt : nullptr);
                     });
}
