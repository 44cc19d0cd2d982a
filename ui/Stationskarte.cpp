// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Stationskarte.h"

#include "ui/Massstab.h"

#include <QAbstractItemView>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QStylePainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int RADIUS = 2;

QRgb rgb(int32_t farbe) {
    return qRgb(farbe & 0xff, (farbe >> 8) & 0xff, (farbe >> 16) & 0xff);
}

} // namespace

Stationskarte::Stationskarte(QWidget* eltern, const std::string& bild, int breite, int hoehe,
                             double faktor)
    : QWidget(eltern) {
    QImage roh(QString::fromStdString(bild));
    if (roh.isNull()) {
        roh = QImage(breite, hoehe, QImage::Format_RGB32);
        roh.fill(Qt::white);
    }
    roh_ = roh.convertToFormat(QImage::Format_RGB32);
    faktor_ = faktor;
    const QSize groesse(static_cast<int>(std::lround(roh.width() * faktor)),
                        static_cast<int>(std::lround(roh.height() * faktor)));
    grund_ = roh_.scaled(groesse, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    bild_ = grund_;
    anzeige_ = bild_;
    setFixedSize(groesse);
    setMouseTracking(true);
}

void Stationskarte::punkte_setzen(const std::vector<Kartenpunkt>& punkte) {
    punkte_ = punkte;
    bild_ = grund_;
    for (const Kartenpunkt& k : punkte) {
        const int cx = static_cast<int>(std::lround(k.x));
        const int cy = static_cast<int>(std::lround(k.y));
        for (int dy = -RADIUS; dy <= RADIUS; ++dy) {
            for (int dx = -RADIUS; dx <= RADIUS; ++dx) {
                if (dx * dx + dy * dy <= RADIUS * RADIUS && bild_.valid(cx + dx, cy + dy)) {
                    bild_.setPixel(cx + dx, cy + dy, rgb(k.farbe));
                }
            }
        }
    }
    anzeige_zeichnen();
}

void Stationskarte::massstab_setzen(double massstab) {
    if (massstab != massstab_) {
        massstab_ = massstab;
        anzeige_zeichnen();
    }
}

void Stationskarte::anzeige_zeichnen() {
    if (massstab_ == 1.0) {
        anzeige_ = bild_;
        update();
        return;
    }
    const double s = faktor_ * massstab_ * devicePixelRatioF();
    anzeige_ = roh_.scaled(QSize(static_cast<int>(std::lround(roh_.width() * s)),
                                 static_cast<int>(std::lround(roh_.height() * s))),
                           Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPainter maler(&anzeige_);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(Qt::NoPen);
    // A dot's disc covers its centre pixel and two more each way.
    const double m = massstab_ * devicePixelRatioF();
    for (const Kartenpunkt& k : punkte_) {
        maler.setBrush(QColor(rgb(k.farbe)));
        maler.drawEllipse(QPointF((std::lround(k.x) + 0.5) * m, (std::lround(k.y) + 0.5) * m),
                          (RADIUS + 0.5) * m, (RADIUS + 0.5) * m);
    }
    update();
}

int32_t Stationskarte::farbe(int x, int y) const {
    if (!bild_.valid(x, y)) {
        return -1;
    }
    const QRgb c = bild_.pixel(x, y);
    return qRed(c) | qGreen(c) << 8 | qBlue(c) << 16;
}

void Stationskarte::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    if (massstab_ == 1.0) {
        maler.drawImage(0, 0, anzeige_);
        return;
    }
    maler.drawImage(QRectF(rect()), anzeige_);
}

void Stationskarte::mouseMoveEvent(QMouseEvent* e) {
    const QPoint p = massstab::entwurfspunkt(*this, e->position());
    if (bewegung) {
        bewegung(farbe(p.x(), p.y()), p.x(), p.y());
    }
    QWidget::mouseMoveEvent(e);
}

void Stationskarte::mouseReleaseEvent(QMouseEvent* e) {
    const QPoint p = massstab::entwurfspunkt(*this, e->position());
    if (loslassen) {
        loslassen(farbe(p.x(), p.y()), p.x(), p.y());
    }
    QWidget::mouseReleaseEvent(e);
}

Schwebetext Schwebetext::bauen(QWidget* karte, const char* name) {
    Schwebetext s;
    s.label = new QLabel(karte);
    s.label->setObjectName(QString::fromUtf8(name));
    s.label->setFrameStyle(QFrame::Box | QFrame::Plain);
    s.label->setAutoFillBackground(true);
    massstab::eigene_lage(*s.label);
    s.label->hide();
    s.Timer1 = new QTimer(karte);
    s.Timer1->setObjectName(QStringLiteral("Timer1"));
    s.Timer1->setInterval(1000);
    s.Timer2 = new QTimer(karte);
    s.Timer2->setObjectName(QStringLiteral("Timer2"));
    s.Timer2->setInterval(3000);
    QObject::connect(s.Timer1, &QTimer::timeout, karte, [s] {
        s.label->show();
        s.label->raise();
        s.Timer1->stop();
        s.Timer2->start();
    });
    QObject::connect(s.Timer2, &QTimer::timeout, karte, [s] {
        s.label->hide();
        s.Timer2->stop();
    });
    return s;
}

void Schwebetext::bewegt(int x, int y, const std::string& text) const {
    const double s = massstab::von(*label);
    label->move(static_cast<int>(std::lround(x * s)), static_cast<int>(std::lround((y + 20) * s)));
    label->hide();
    Timer1->start();
    if (text.empty()) {
        Timer1->stop();
        label->clear();
        return;
    }
    label->setText(QString::fromStdString(text));
    label->adjustSize();
    // A label cut by the map's edge reads as a different name ("Westde"): it stays whole.
    const QSize karte = label->parentWidget()->size();
    QPoint ort = label->pos();
    if (ort.y() + label->height() > karte.height()) {
        ort.setY(static_cast<int>(std::lround((y - 4) * s)) - label->height());
    }
    ort.setX(std::max(0, std::min(ort.x(), karte.width() - label->width())));
    ort.setY(std::max(0, std::min(ort.y(), karte.height() - label->height())));
    label->move(ort);
}

QString Namensliste::ganzer_text() const {
    return currentIndex() < 0 ? placeholderText() : currentText();
}

int Namensliste::textbreite() const {
    QStyleOptionComboBox opt;
    initStyleOption(&opt);
    const QRect feld =
        style()->subControlRect(QStyle::CC_ComboBox, &opt, QStyle::SC_ComboBoxEditField, this);
    // The style draws the text a pixel or two inside the field.
    return std::max(0, feld.width() - 4);
}

QString Namensliste::gezeigter_text() const {
    return fontMetrics().elidedText(ganzer_text(), Qt::ElideRight, textbreite());
}

void Namensliste::anpassen() {
    const QString ganz = ganzer_text();
    setToolTip(gezeigter_text() != ganz ? ganz : QString());
    QAbstractItemView* liste = view();
    int breit = 0;
    for (int i = 0; i < count(); ++i) {
        breit = std::max(breit, liste->fontMetrics().horizontalAdvance(itemText(i)));
    }
    // Beside the text: the row's margins, the list's frame and its scroll bar.
    constexpr int RAND = 16;
    liste->setMinimumWidth(breit + RAND + 2 * liste->frameWidth() +
                           liste->verticalScrollBar()->sizeHint().width());
}

void Namensliste::paintEvent(QPaintEvent*) {
    // As the combo box paints itself, with the name cut to the field.
    QStylePainter maler(this);
    maler.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox opt;
    initStyleOption(&opt);
    maler.drawComplexControl(QStyle::CC_ComboBox, opt);
    if (currentIndex() < 0) {
        opt.palette.setBrush(QPalette::ButtonText, opt.palette.placeholderText());
    }
    opt.currentText = gezeigter_text();
    maler.drawControl(QStyle::CE_ComboBoxLabel, opt);
}

void Namensliste::resizeEvent(QResizeEvent* e) {
    QComboBox::resizeEvent(e);
    anpassen();
}

void name_setzen(QLabel& label, const QString& name) {
    const QString gezeigt =
        label.fontMetrics().elidedText(name, Qt::ElideRight, label.contentsRect().width());
    label.setText(gezeigt);
    label.setToolTip(gezeigt != name ? name : QString());
}
