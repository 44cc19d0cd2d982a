// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Tooltiprahmen.h"

#include "charts/Ebenenlage.h"
#include "charts/Tooltiptexte.h"
#include "ui/ChartWidget.h"
#include "ui/Massstab.h"

#include <QCursor>
#include <QFrame>
#include <QLabel>
#include <QMouseEvent>

#include <algorithm>
#include <cmath>

Tooltiprahmen::Tooltiprahmen(QWidget& ebene) : QObject(&ebene), ebene_(ebene) {
    Frame_ToolTip = new QFrame(&ebene);
    Frame_ToolTip->setObjectName(QStringLiteral("Frame_ToolTip"));
    Frame_ToolTip->setFrameStyle(QFrame::Box | QFrame::Plain);
    Frame_ToolTip->setAutoFillBackground(true);
    QPalette pal = Frame_ToolTip->palette();
    pal.setColor(QPalette::Window, QColor(255, 255, 225));
    Frame_ToolTip->setPalette(pal);
    Label_Tooltip = new QLabel(QStringLiteral("Infos"), Frame_ToolTip);
    Label_Tooltip->setObjectName(QStringLiteral("Label_Tooltip"));
    Label_Tooltip->move(4, 3);
    Label_Tooltip->setMouseTracking(true);
    Label_Tooltip->installEventFilter(this);
    Frame_ToolTip->setMouseTracking(true);
    Frame_ToolTip->installEventFilter(this);
    massstab::eigene_lage(*Frame_ToolTip);
    Frame_ToolTip->hide();
    Timer_Tip_ein.setObjectName(QStringLiteral("Timer_Tip_ein"));
    Timer_Tip_ein.setInterval(1000);
    Timer_Tip_ein.setSingleShot(true);
    connect(&Timer_Tip_ein, &QTimer::timeout, this, [this] { zeigen(); });
}

void Tooltiprahmen::beobachten(ChartWidget* chart, Text text, Treffer treffer) {
    chart->setMouseTracking(true);
    chart->installEventFilter(this);
    texte_[chart] = std::move(text);
    if (!treffer) {
        treffer = [chart](double x, double y) { return auf_balken(chart->flaeche(), x, y); };
    }
    treffer_[chart] = std::move(treffer);
}

bool Tooltiprahmen::eventFilter(QObject* o, QEvent* e) {
    if (e->type() != QEvent::MouseMove) {
        return false;
    }
    if (o == Label_Tooltip || o == Frame_ToolTip) {
        verbergen();
        return false;
    }
    const auto t = texte_.find(o);
    if (t == texte_.end()) {
        return false;
    }
    // The charts' texts and hit tests go by the chart's own pixels.
    const QPoint punkt = massstab::entwurfspunkt(*static_cast<QWidget*>(o),
                                                 static_cast<QMouseEvent*>(e)->position());
    const std::string text = t->second(punkt.x());
    if (!treffer_[o](punkt.x(), punkt.y()) || text.empty()) {
        verbergen();
        return false;
    }
    gemerkt_ = QCursor::pos();
    if (!Frame_ToolTip->isVisible()) {
        Timer_Tip_ein.start();
    }
    QString zeilen = QString::fromStdString(text);
    zeilen.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    Label_Tooltip->setText(zeilen);
    const double s = massstab::von(ebene_);
    auto px = [s](int v) { return static_cast<int>(std::lround(v * s)); };
    Label_Tooltip->move(px(4), px(3));
    Label_Tooltip->adjustSize();
    Frame_ToolTip->resize(Label_Tooltip->width() + px(8), Label_Tooltip->height() + px(6));
    return false;
}

void Tooltiprahmen::zeigen() {
    // Only a pointer at rest since the last move brings the frame up.
    if (QCursor::pos() != gemerkt_) {
        return;
    }
    const QPoint auf_ebene = ebene_.mapFromGlobal(gemerkt_);
    if (lage) {
        Frame_ToolTip->move(lage(auf_ebene));
    } else {
        const Lagepunkt ort =
            tooltip_lage({auf_ebene.x(), auf_ebene.y()}, Frame_ToolTip->width(),
                         Frame_ToolTip->height(), ebene_.width(), ebene_.height());
        Frame_ToolTip->move(ort.x, ort.y);
    }
    Frame_ToolTip->raise();
    Frame_ToolTip->show();
}

void Tooltiprahmen::verbergen() {
    Frame_ToolTip->hide();
    Timer_Tip_ein.stop();
}
