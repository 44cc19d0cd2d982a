// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/qt/QtDrucker.h"

#include "project/Dateizugriff.h"
#include "project/Laufzeitfehler.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPdfWriter>

#include <cmath>
#include <utility>

namespace {

constexpr double MM_JE_ZOLL = 25.4;
// Width of the thin lines of tables and diagrams, mm.
constexpr double LINIENBREITE = 0.15;

QColor farbe(Rgb c) {
    return QColor(c.r, c.g, c.b);
}

QString qs(const std::string& s) {
    return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

// A coordinate that is not a number or far off the page is held where nothing is seen.
double begrenzt(double v) {
    constexpr double GRENZE = 1.0e5;
    if (!(v > -GRENZE)) {
        return -GRENZE;
    }
    return v < GRENZE ? v : GRENZE;
}

} // namespace

QtDrucker::QtDrucker(QPagedPaintDevice& geraet, std::string name)
    : geraet_(geraet), name_(std::move(name)) {
    faktor_ = geraet_.logicalDpiX() / MM_JE_ZOLL;
    breite_ = geraet_.pageLayout().paintRect(QPageLayout::Millimeter).width();
    if (maler_.begin(&geraet_)) {
        maler_.setRenderHint(QPainter::Antialiasing, true);
    }
}

QtDrucker::~QtDrucker() {
    if (maler_.isActive()) {
        maler_.end();
    }
}

QFont QtDrucker::schrift(const std::string& name, double punkte, bool fett, bool kursiv,
                         bool unterstrichen) {
    QString familie = QStringLiteral("Liberation Sans");
    if (name == "Times New Roman") {
        familie = QStringLiteral("Liberation Serif");
    }
    QFont f(familie);
    f.setPointSizeF(punkte > 0 ? punkte : 1);
    f.setBold(fett);
    f.setItalic(kursiv);
    f.setUnderline(unterstrichen);
    return f;
}

QFont QtDrucker::aktuelle_schrift() const {
    return schrift(FontName, FontSize, FontBold, FontItalic, FontUnderline);
}

QPointF QtDrucker::punkt(double x, double y) const {
    return QPointF(begrenzt(x) * faktor_, begrenzt(y) * faktor_);
}

void QtDrucker::Line(double x1, double y1, double x2, double y2, Rgb f) {
    if (!maler_.isActive()) {
        return;
    }
    maler_.setPen(QPen(farbe(f), LINIENBREITE * faktor_));
    maler_.drawLine(punkt(x1, y1), punkt(x2, y2));
}

void QtDrucker::Box(double x1, double y1, double x2, double y2, Rgb f) {
    if (!maler_.isActive()) {
        return;
    }
    maler_.setPen(QPen(farbe(f), LINIENBREITE * faktor_));
    maler_.setBrush(Qt::NoBrush);
    maler_.drawRect(QRectF(punkt(x1, y1), punkt(x2, y2)).normalized());
}

void QtDrucker::FilledBox(double x1, double y1, double x2, double y2, Rgb f) {
    if (!maler_.isActive()) {
        return;
    }
    maler_.fillRect(QRectF(punkt(x1, y1), punkt(x2, y2)).normalized(), farbe(f));
}

double QtDrucker::TextWidth(const std::string& text) const {
    return QFontMetricsF(aktuelle_schrift(), &geraet_).horizontalAdvance(qs(text)) / faktor_;
}

double QtDrucker::TextHeight(const std::string&) const {
    return QFontMetricsF(aktuelle_schrift(), &geraet_).height() / faktor_;
}

void QtDrucker::draw_text(double x, double y, const std::string& text) {
    if (!maler_.isActive()) {
        return;
    }
    const QFont f = aktuelle_schrift();
    maler_.setFont(f);
    maler_.setPen(Qt::black);
    const QFontMetricsF m(f, &geraet_);
    maler_.drawText(punkt(x, y) + QPointF(0, m.ascent()), qs(text));
}

void QtDrucker::new_page() {
    if (maler_.isActive() && !geraet_.newPage()) {
        fehlerfrei_ = false;
    }
}

void QtDrucker::EndDoc() {
    if (maler_.isActive() && !maler_.end()) {
        fehlerfrei_ = false;
    }
}

bool pdf_ausdrucken(const std::string& pfad, const Projekt& p, const Eingabeflaechen& e,
                    const Druckauswahl& auswahl, char dezimal, std::string& fehler) {
    QBuffer dokument;
    dokument.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&dokument);
        pdf.setPageSize(QPageSize(QPageSize::A4));
        pdf.setPageMargins(QMarginsF(5, 5, 5, 5), QPageLayout::Millimeter);
        pdf.setResolution(600);
        pdf.setCreator(QStringLiteral("Velmaris"));
        QtDrucker drucker(pdf, pfad);
        const bool begonnen = drucker.aktiv();
        if (begonnen) {
            Ausdrucken(drucker, p, e, auswahl, dezimal, druckdatum());
        }
        if (!begonnen || !drucker.fehlerfrei() || dokument.data().isEmpty()) {
            fehler = "Cannot write " + pfad + ": the PDF document could not be made";
            return false;
        }
    }
    try {
        datei_ersetzen(pfad, dokument.data().toStdString());
    } catch (const Laufzeitfehler& f) {
        fehler = f.what();
        return false;
    }
    return true;
}
