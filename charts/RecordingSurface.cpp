// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/RecordingSurface.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>

namespace {

constexpr double ZWEI_PI = 6.283185307179586;

// A coordinate as a pixel index: nearest, half away from zero; far-off and not-a-number values
// are pulled to a place well outside any surface, so that no conversion overflows.
long pixel_index(double v) {
    if (std::isnan(v)) {
        return -1000000;
    }
    return std::lround(std::clamp(v, -1.0e6, 1.0e6));
}

// An angle of the pie convention reduced to 0..2 pi.
double winkel(double a) {
    double w = std::fmod(std::fabs(a), ZWEI_PI);
    return w < 0 ? w + ZWEI_PI : w;
}

} // namespace

RecordingSurface::RecordingSurface(int width, int height, Rgb background)
    : width_(std::max(width, 0)), height_(std::max(height, 0)), background_(background),
      pixels_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), background) {}

void RecordingSurface::set(long x, long y, Rgb colour) {
    if (x >= 0 && y >= 0 && x < width_ && y < height_) {
        pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                static_cast<std::size_t>(x)] = colour;
    }
}

void RecordingSurface::brush(long x, long y, Rgb colour) {
    const long w = std::max(DrawWidth, 1);
    const long von = -(w - 1) / 2;
    for (long dy = von; dy < von + w; ++dy) {
        for (long dx = von; dx < von + w; ++dx) {
            set(x + dx, y + dy, colour);
        }
    }
}

void RecordingSurface::raster_line(long x1, long y1, long x2, long y2, Rgb colour, bool with_end) {
    // Bresenham; both ends lie within +-1e6, so the loop is bounded, and it stops early once it
    // has left the surface for good.
    const long dx = std::labs(x2 - x1), sx = x1 < x2 ? 1 : -1;
    const long dy = -std::labs(y2 - y1), sy = y1 < y2 ? 1 : -1;
    long fehler = dx + dy;
    long x = x1, y = y1;
    const long rand = std::max(DrawWidth, 1) + 1;
    while (true) {
        if (x == x2 && y == y2) {
            if (with_end) {
                brush(x, y, colour);
            }
            return;
        }
        brush(x, y, colour);
        if ((sx > 0 && x > width_ + rand) || (sx < 0 && x < -rand) ||
            (sy > 0 && y > height_ + rand) || (sy < 0 && y < -rand)) {
            return;
        }
        const long e2 = 2 * fehler;
        if (e2 >= dy) {
            fehler += dy;
            x += sx;
        }
        if (e2 <= dx) {
            fehler += dx;
            y += sy;
        }
    }
}

void RecordingSurface::Line(double x1, double y1, double x2, double y2, Rgb colour) {
    Primitive p;
    p.kind = Primitive::Kind::Line;
    p.x1 = x1, p.y1 = y1, p.x2 = x2, p.y2 = y2, p.colour = colour;
    log_.push_back(p);
    raster_line(pixel_index(x1), pixel_index(y1), pixel_index(x2), pixel_index(y2), colour, false);
}

void RecordingSurface::Box(double x1, double y1, double x2, double y2, Rgb colour) {
    Primitive p;
    p.kind = Primitive::Kind::Box;
    p.x1 = x1, p.y1 = y1, p.x2 = x2, p.y2 = y2, p.colour = colour;
    log_.push_back(p);
    const long l = pixel_index(std::min(x1, x2)), r = pixel_index(std::max(x1, x2));
    const long o = pixel_index(std::min(y1, y2)), u = pixel_index(std::max(y1, y2));
    raster_line(l, o, r, o, colour, true);
    raster_line(l, u, r, u, colour, true);
    raster_line(l, o, l, u, colour, true);
    raster_line(r, o, r, u, colour, true);
}

void RecordingSurface::FilledBox(double x1, double y1, double x2, double y2, Rgb colour) {
    Primitive p;
    p.kind = Primitive::Kind::FilledBox;
    p.x1 = x1, p.y1 = y1, p.x2 = x2, p.y2 = y2, p.colour = colour;
    log_.push_back(p);
    const long l = std::max(pixel_index(std::min(x1, x2)), 0L);
    const long r = std::min(pixel_index(std::max(x1, x2)), static_cast<long>(width_) - 1);
    const long o = std::max(pixel_index(std::min(y1, y2)), 0L);
    const long u = std::min(pixel_index(std::max(y1, y2)), static_cast<long>(height_) - 1);
    for (long y = o; y <= u; ++y) {
        for (long x = l; x <= r; ++x) {
            set(x, y, colour);
        }
    }
}

void RecordingSurface::raster_circle(double cx, double cy, double radius, Rgb colour, bool pie,
                                     double start, double end) {
    if (!(radius >= 0.5) || std::isnan(cx) || std::isnan(cy)) {
        return;
    }
    const double s = winkel(start);
    double bogen = std::fmod(winkel(end) - s + ZWEI_PI, ZWEI_PI);
    if (!pie || bogen == 0) {
        bogen = ZWEI_PI;
    }
    const bool gefuellt = FillStyle == FillMode::Solid && (!pie || (start < 0 && end < 0));
    const double R = std::min(radius, 1.0e6);
    const long x0 = std::max(pixel_index(cx - R) - 1, 0L);
    const long x1 = std::min(pixel_index(cx + R) + 1, static_cast<long>(width_) - 1);
    const long y0 = std::max(pixel_index(cy - R) - 1, 0L);
    const long y1 = std::min(pixel_index(cy + R) + 1, static_cast<long>(height_) - 1);
    for (long y = y0; y <= y1; ++y) {
        for (long x = x0; x <= x1; ++x) {
            const double dx = static_cast<double>(x) - cx;
            const double dy = cy - static_cast<double>(y);
            const double d = std::sqrt(dx * dx + dy * dy);
            if (d > R + 0.5) {
                continue;
            }
            double a = d == 0 ? s : std::atan2(dy, dx);
            a = a < 0 ? a + ZWEI_PI : a;
            const double ab = std::fmod(a - s + ZWEI_PI, ZWEI_PI);
            if (ab > bogen + 1e-9) {
                continue;
            }
            if (d >= R - 0.5) {
                set(x, y, colour);
            } else if (gefuellt) {
                set(x, y, FillColor);
            }
        }
    }
    if (pie) {
        const long mx = pixel_index(cx), my = pixel_index(cy);
        for (const double a : {start, end}) {
            if (a < 0) {
                const double w = winkel(a);
                raster_line(mx, my, pixel_index(cx + R * std::cos(w)),
                            pixel_index(cy - R * std::sin(w)), colour, true);
            }
        }
    }
}

void RecordingSurface::Circle(double cx, double cy, double radius, Rgb colour) {
    Primitive p;
    p.kind = Primitive::Kind::Circle;
    p.x1 = cx, p.y1 = cy, p.radius = radius, p.colour = colour;
    p.filled = FillStyle == FillMode::Solid;
    p.fill = FillColor;
    log_.push_back(p);
    raster_circle(cx, cy, radius, colour, false, 0, 0);
}

void RecordingSurface::Circle(double cx, double cy, double radius, Rgb colour, double start,
                              double end) {
    Primitive p;
    p.kind = Primitive::Kind::Pie;
    p.x1 = cx, p.y1 = cy, p.radius = radius, p.colour = colour, p.start = start, p.end = end;
    p.filled = FillStyle == FillMode::Solid && start < 0 && end < 0;
    p.fill = FillColor;
    log_.push_back(p);
    raster_circle(cx, cy, radius, colour, true, start, end);
}

void RecordingSurface::PSet(double x, double y, Rgb colour) {
    Primitive p;
    p.kind = Primitive::Kind::PSet;
    p.x1 = x, p.y1 = y, p.colour = colour;
    log_.push_back(p);
    brush(pixel_index(x), pixel_index(y), colour);
}

Rgb RecordingSurface::Point(double x, double y) const {
    return pixel(pixel_index(x), pixel_index(y));
}

Rgb RecordingSurface::pixel(int x, int y) const {
    if (x < 0 || y < 0 || x >= width_ || y >= height_) {
        return background_;
    }
    return pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                   static_cast<std::size_t>(x)];
}

double RecordingSurface::TextWidth(const std::string& text) const {
    std::size_t zeichen = 0;
    for (const unsigned char c : text) {
        if ((c & 0xC0) != 0x80) {
            ++zeichen;
        }
    }
    return static_cast<double>(zeichen) * std::round(0.75 * FontSize);
}

double RecordingSurface::TextHeight(const std::string&) const {
    return std::round(4.0 / 3.0 * FontSize);
}

void RecordingSurface::clear_pixels() {
    Primitive p;
    p.kind = Primitive::Kind::Cls;
    log_.push_back(p);
    std::fill(pixels_.begin(), pixels_.end(), background_);
}

void RecordingSurface::draw_text(double x, double y, const std::string& text) {
    Primitive p;
    p.kind = Primitive::Kind::Print;
    p.x1 = x, p.y1 = y, p.text = text, p.font = FontName, p.font_size = FontSize;
    p.bold = FontBold;
    log_.push_back(p);
}

std::vector<RecordingSurface::Primitive> RecordingSurface::of_kind(Primitive::Kind kind) const {
    std::vector<Primitive> r;
    for (const auto& p : log_) {
        if (p.kind == kind) {
            r.push_back(p);
        }
    }
    return r;
}

std::vector<RecordingSurface::Primitive> RecordingSurface::prints(const std::string& text) const {
    std::vector<Primitive> r;
    for (const auto& p : log_) {
        if (p.kind == Primitive::Kind::Print && p.text == text) {
            r.push_back(p);
        }
    }
    return r;
}

std::vector<std::string> RecordingSurface::printed_texts() const {
    std::vector<std::string> r;
    for (const auto& p : log_) {
        if (p.kind == Primitive::Kind::Print) {
            r.push_back(p.text);
        }
    }
    return r;
}

void RecordingSurface::save_ppm(const std::string& path) const {
    std::ofstream aus(path, std::ios::binary);
    aus << "P6\n" << width_ << ' ' << height_ << "\n255\n";
    for (const Rgb& c : pixels_) {
        const char rgb[3] = {static_cast<char>(c.r), static_cast<char>(c.g),
                             static_cast<char>(c.b)};
        aus.write(rgb, 3);
    }
}
