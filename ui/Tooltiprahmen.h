// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>
#include <QTimer>

#include <functional>
#include <map>
#include <string>

class ChartWidget;
class QFrame;
class QLabel;
class QWidget;

// The tooltip of a result plane: the frame Frame_ToolTip with Label_Tooltip and the timer
// Timer_Tip_ein. A move over a bar of a watched chart remembers the pointer and starts the timer
// unless the frame is up; when the timer fires and the pointer still stands where it was
// remembered, the frame comes up 5 pixels left of and 20 above it. A move off the bars, or over
// the frame itself, hides it.
class Tooltiprahmen : public QObject {
public:
    // The text of a chart at the pointer's x pixel, lines parted by carriage returns; an empty
    // text shows nothing.
    using Text = std::function<std::string(double x)>;

    // Whether the pointer at (x, y) pixels stands on a bar of the chart.
    using Treffer = std::function<bool(double x, double y)>;

    explicit Tooltiprahmen(QWidget& ebene);
    // Without `treffer` a bar is any pixel that differs from the chart's background.
    void beobachten(ChartWidget* chart, Text text, Treffer treffer = nullptr);

    QFrame* Frame_ToolTip = nullptr;
    QLabel* Label_Tooltip = nullptr;
    QTimer Timer_Tip_ein; // 1000 ms, single shot
    // Where the frame comes up for the pointer at rest, both in pixels of the plane; empty for
    // 5 pixels left of and 20 above the pointer.
    std::function<QPoint(QPoint zeiger)> lage;

protected:
    bool eventFilter(QObject* o, QEvent* e) override;

private:
    void zeigen();
    void verbergen();

    QWidget& ebene_;
    std::map<QObject*, Text> texte_;
    std::map<QObject*, Treffer> treffer_;
    QPoint gemerkt_; // the pointer on the screen at the last move over a bar
};
