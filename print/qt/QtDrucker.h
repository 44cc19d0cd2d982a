// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/Ausdrucken.h"
#include "print/Drucker.h"

#include <QFont>
#include <QPainter>

#include <string>

class QPagedPaintDevice;

// The printer of the printed pages over a QPainter on a paged device: a QPrinter for a real
// printer, a QPdfWriter for a PDF file. Millimetres from the top left corner of the device's
// printable area are mapped to device units by its resolution; "Arial" and "Times New Roman"
// are drawn in the metric-compatible Liberation Sans and Serif.
class QtDrucker : public Drucker {
public:
    // Begins painting on `geraet`, which the caller has set up (page size, margins, file);
    // `name` is the DeviceName. aktiv() tells whether the device could be opened.
    QtDrucker(QPagedPaintDevice& geraet, std::string name);
    ~QtDrucker() override;
    QtDrucker(const QtDrucker&) = delete;
    QtDrucker& operator=(const QtDrucker&) = delete;

    // Whether the painter is active, i.e. the device (or its file) could be opened.
    bool aktiv() const { return maler_.isActive(); }
    // Whether the device took every page and the end of the document without a fault.
    bool fehlerfrei() const { return fehlerfrei_; }

    double ScaleWidth() const override { return breite_; }
    std::string DeviceName() const override { return name_; }
    void Line(double x1, double y1, double x2, double y2, Rgb farbe) override;
    void Box(double x1, double y1, double x2, double y2, Rgb farbe) override;
    void FilledBox(double x1, double y1, double x2, double y2, Rgb farbe) override;
    double TextWidth(const std::string& text) const override;
    double TextHeight(const std::string& text) const override;
    void EndDoc() override;

    // The Qt font of a printer font by name, size in points and style.
    static QFont schrift(const std::string& name, double punkte, bool fett, bool kursiv,
                         bool unterstrichen);

protected:
    void draw_text(double x, double y, const std::string& text) override;
    void new_page() override;

private:
    QFont aktuelle_schrift() const;
    QPointF punkt(double x, double y) const;

    QPagedPaintDevice& geraet_;
    std::string name_;
    QPainter maler_;
    double faktor_ = 1; // device units per millimetre
    double breite_ = 0; // width of the printable area, mm
    bool fehlerfrei_ = true;
};

// The ticked pages as a PDF file of A4 pages, 5 mm margins so that the printable area is 200 mm
// wide, through Ausdrucken. The document is made in memory and then put in the place of the file
// as a whole (datei_ersetzen), so that a fault leaves the former file. Returns false with
// `fehler` set when the document or the file cannot be written.
bool pdf_ausdrucken(const std::string& pfad, const Projekt& p, const Eingabeflaechen& e,
                    const Druckauswahl& auswahl, char dezimal, std::string& fehler);
