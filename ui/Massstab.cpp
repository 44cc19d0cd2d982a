// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Massstab.h"

#include "ui/ChartWidget.h"
#include "ui/Stationskarte.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace {

// The properties a widget carries its design in.
constexpr const char* ENTWURF = "massstab_entwurf";
constexpr const char* FEST = "massstab_fest";
constexpr const char* SCHRIFT = "massstab_schrift";
constexpr const char* PASSEND = "massstab_passend";
constexpr const char* EIGENE_LAGE = "massstab_eigene_lage";
// On the root: the scale and where the centred design begins.
constexpr const char* FAKTOR = "massstab_faktor";
constexpr const char* VERSATZ = "massstab_versatz";

// A font's size at scale s. Rounded down, so that a text never needs more room than its field,
// which grows exactly by s.
QFont schrift_bei(QFont f, double entwurf, bool pixel, double s) {
    if (pixel) {
        f.setPixelSize(std::max(1, static_cast<int>(std::floor(entwurf * s + 1e-9))));
    } else {
        f.setPointSizeF(std::max(1.0, entwurf * s));
    }
    return f;
}

// Widgets that place their own parts.
bool zusammengesetzt(const QWidget& w) {
    return qobject_cast<const QComboBox*>(&w) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(&w) != nullptr ||
           qobject_cast<const QAbstractScrollArea*>(&w) != nullptr ||
           qobject_cast<const QLineEdit*>(&w) != nullptr;
}

QPoint versatz_fuer(const QWidget& w) {
    const QWidget* eltern = w.parentWidget();
    if (eltern != nullptr && eltern->property(VERSATZ).isValid()) {
        return eltern->property(VERSATZ).toPoint();
    }
    return {};
}

} // namespace

// The application's style with the parts it draws at a fixed size (the boxes of check boxes and
// options, the arrows of scroll bars, the gaps beside them) grown by the scale.
class SkalierterStil : public QProxyStyle {
public:
    SkalierterStil() : QProxyStyle(QStyleFactory::create(QApplication::style()->name())) {}
    double faktor = 1.0;

    int pixelMetric(PixelMetric m, const QStyleOption* o, const QWidget* w) const override {
        const int wert = QProxyStyle::pixelMetric(m, o, w);
        switch (m) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
        case PM_CheckBoxLabelSpacing:
        case PM_RadioButtonLabelSpacing:
        case PM_ScrollBarExtent:
        case PM_ScrollBarSliderMin:
            return static_cast<int>(std::lround(wert * faktor));
        default:
            return wert;
        }
    }
};

namespace {

void platzieren(QWidget& w, const QRect& entwurf, double s) {
    const QRect r = massstab::skaliert(entwurf, s).translated(versatz_fuer(w));
    if (w.property(FEST).toBool()) {
        w.setFixedSize(r.size());
    }
    w.setGeometry(r);
}

} // namespace

Massstab::Massstab(QWidget& wurzel, QSize entwurf, bool folgen)
    : QObject(&wurzel), wurzel_(wurzel), entwurf_(entwurf), stil_(new SkalierterStil) {
    stil_->setParent(this);
    wurzel_.setProperty(FAKTOR, 1.0);
    if (folgen) {
        wurzel_.installEventFilter(this);
    }
}

double Massstab::passend(QSize flaeche) const {
    return std::max(0.25, std::min(static_cast<double>(flaeche.width()) / entwurf_.width(),
                                   static_cast<double>(flaeche.height()) / entwurf_.height()));
}

bool Massstab::eventFilter(QObject* o, QEvent* e) {
    if (o == &wurzel_ && e->type() == QEvent::Resize) {
        setzen(passend(wurzel_.size()));
    }
    return QObject::eventFilter(o, e);
}

void Massstab::setzen(double s) {
    if (schrift_pixel_ == 0 && schrift_punkte_ == 0) {
        const QFont f = wurzel_.font();
        schrift_pixel_ = f.pixelSize() > 0 ? f.pixelSize() : -1;
        schrift_punkte_ = f.pointSizeF();
    }
    const QList<QWidget*> kinder =
        wurzel_.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* k : kinder) {
        aufnehmen(*k, versatz_fuer(*k));
    }
    faktor_ = s;
    stil_->faktor = s;
    wurzel_.setProperty(FAKTOR, s);
    const QSize gross = massstab::skaliert(QRect(QPoint(), entwurf_), s).size();
    wurzel_.setProperty(VERSATZ, QPoint(std::max(0, (wurzel_.width() - gross.width()) / 2),
                                        std::max(0, (wurzel_.height() - gross.height()) / 2)));
    wurzel_.setFont(schrift_pixel_ > 0 ? schrift_bei(wurzel_.font(), schrift_pixel_, true, s)
                                       : schrift_bei(wurzel_.font(), schrift_punkte_, false, s));
    for (QWidget* k : kinder) {
        anwenden(*k);
    }
}

void Massstab::aufnehmen(QWidget& w, const QPoint& versatz) {
    if (w.isWindow()) {
        return;
    }
    if (!w.property(ENTWURF).isValid()) {
        w.setProperty(ENTWURF, w.geometry().translated(-versatz));
        w.setProperty(FEST, w.minimumSize() == w.maximumSize() && !w.minimumSize().isEmpty());
        if (w.testAttribute(Qt::WA_SetFont)) {
            const QFont f = w.font();
            w.setProperty(SCHRIFT,
                          f.pixelSize() > 0 ? QVariant(f.pixelSize()) : QVariant(f.pointSizeF()));
        }
        w.setStyle(stil_);
        // A picture is drawn smoothly from its source at any size.
        if (auto* l = qobject_cast<QLabel*>(&w)) {
            l->setScaledContents(true);
        }
    }
    if (w.property(EIGENE_LAGE).toBool() || zusammengesetzt(w)) {
        return;
    }
    for (QWidget* k : w.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        aufnehmen(*k, QPoint());
    }
}

void Massstab::anwenden(QWidget& w) {
    if (w.isWindow() || w.property(EIGENE_LAGE).toBool()) {
        return;
    }
    const QVariant schrift = w.property(SCHRIFT);
    if (schrift.isValid()) {
        const bool pixel = schrift.typeId() == QMetaType::Int;
        w.setFont(schrift_bei(w.font(), schrift.toDouble(), pixel, faktor_));
    }
    platzieren(w, w.property(ENTWURF).toRect(), faktor_);
    if (w.property(PASSEND).toBool()) {
        w.adjustSize();
    }
    if (auto* c = dynamic_cast<ChartWidget*>(&w)) {
        c->massstab_setzen(faktor_);
    } else if (auto* k = dynamic_cast<Stationskarte*>(&w)) {
        k->massstab_setzen(faktor_);
    }
    if (zusammengesetzt(w)) {
        return;
    }
    for (QWidget* k : w.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        anwenden(*k);
    }
}

namespace massstab {

double von(const QWidget& w) {
    for (const QWidget* p = &w; p != nullptr; p = p->isWindow() ? nullptr : p->parentWidget()) {
        const QVariant f = p->property(FAKTOR);
        if (f.isValid()) {
            return f.toDouble();
        }
    }
    return 1.0;
}

QRect entwurf(const QWidget& w) {
    const QVariant e = w.property(ENTWURF);
    return e.isValid() ? e.toRect() : w.geometry();
}

void setzen(QWidget& w, const QRect& e) {
    w.setProperty(ENTWURF, e);
    platzieren(w, e, von(w));
}

void verschieben(QWidget& w, const QPoint& e) {
    setzen(w, QRect(e, entwurf(w).size()));
}

void anpassen(QWidget& w) {
    w.adjustSize();
    const double s = von(w);
    const QSize groesse(static_cast<int>(std::ceil(w.width() / s - 1e-9)),
                        static_cast<int>(std::ceil(w.height() / s - 1e-9)));
    w.setProperty(ENTWURF, QRect(entwurf(w).topLeft(), groesse));
    w.setProperty(PASSEND, true);
}

QPoint entwurfspunkt(const QWidget& w, const QPointF& punkt) {
    const double s = von(w);
    return QPoint(static_cast<int>(std::floor(punkt.x() / s)),
                  static_cast<int>(std::floor(punkt.y() / s)));
}

QRect skaliert(const QRect& r, double s) {
    if (s == 1.0) {
        return r;
    }
    auto rund = [s](int v) { return static_cast<int>(std::lround(v * s)); };
    const int x = rund(r.x()), y = rund(r.y());
    return QRect(x, y, rund(r.x() + r.width()) - x, rund(r.y() + r.height()) - y);
}

void eigene_lage(QWidget& w) {
    w.setProperty(EIGENE_LAGE, true);
}

} // namespace massstab
