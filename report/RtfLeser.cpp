// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/RtfLeser.h"

#include <cstdint>

bool RtfLauf::operator==(const RtfLauf& o) const {
    return fett == o.fett && kursiv == o.kursiv && unterstrichen == o.unterstrichen &&
           tiefgestellt == o.tiefgestellt && halbpunkte == o.halbpunkte;
}

std::string RtfAbsatz::text() const {
    std::string t;
    for (const RtfLauf& l : laeufe) {
        t += l.text;
    }
    return t;
}

namespace {

// The Windows-1252 characters 0x80..0x9F; 0 where the code page has none.
constexpr uint16_t CP1252_80[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

void utf8_anhaengen(std::string& s, uint32_t c) {
    if (c < 0x80) {
        s += static_cast<char>(c);
    } else if (c < 0x800) {
        s += static_cast<char>(0xC0 | (c >> 6));
        s += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        s += static_cast<char>(0xE0 | (c >> 12));
        s += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        s += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        s += static_cast<char>(0xF0 | (c >> 18));
        s += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        s += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        s += static_cast<char>(0x80 | (c & 0x3F));
    }
}

uint32_t cp1252_zeichen(unsigned char b) {
    if (b >= 0x80 && b < 0xA0) {
        const uint16_t c = CP1252_80[b - 0x80];
        return c != 0 ? c : 0xFFFD;
    }
    return b;
}

int hexwert(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    return -1;
}

bool buchstabe(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool ziffer(char c) {
    return c >= '0' && c <= '9';
}

struct Zustand {
    RtfLauf format;
    bool auslassen = false; // inside a destination whose text is not shown
    int ueberspringen = 1;  // characters after "\uN" that stand in for it
};

class Leser {
public:
    explicit Leser(std::string_view rtf) : rtf_(rtf) { stapel_.push_back(Zustand{}); }

    RtfDokument lesen() {
        while (pos_ < rtf_.size() && doc_.fehler.empty()) {
            const char c = rtf_[pos_];
            if (c == '{') {
                if (static_cast<int>(stapel_.size()) > RTF_TIEFE_MAX) {
                    fehler("groups nested deeper than " + std::to_string(RTF_TIEFE_MAX));
                    break;
                }
                stapel_.push_back(stapel_.back());
                ++pos_;
            } else if (c == '}') {
                if (stapel_.size() <= 1) {
                    fehler("a group closes that was never opened");
                    break;
                }
                stapel_.pop_back();
                ++pos_;
            } else if (c == '\\') {
                steuerung();
            } else if (c == '\r' || c == '\n') {
                ++pos_;
            } else {
                roh();
            }
        }
        if (doc_.fehler.empty() && stapel_.size() > 1) {
            fehler(std::to_string(stapel_.size() - 1) + " group(s) not closed at the end");
        }
        if (!absatz_.laeufe.empty()) {
            absatz_beenden();
        }
        return std::move(doc_);
    }

private:
    void fehler(const std::string& was) {
        doc_.fehler = "Rich Text: " + was + " (byte " + std::to_string(pos_) + ")";
    }

    Zustand& z() { return stapel_.back(); }

    void text(uint32_t c) {
        if (z().auslassen) {
            return;
        }
        std::string s;
        utf8_anhaengen(s, c);
        if (absatz_.laeufe.empty() || !(absatz_.laeufe.back() == z().format)) {
            RtfLauf l = z().format;
            l.text.clear();
            absatz_.laeufe.push_back(l);
        }
        absatz_.laeufe.back().text += s;
    }

    void absatz_beenden() {
        doc_.absaetze.push_back(absatz_);
        absatz_.laeufe.clear();
        absatz_.neue_seite = false;
    }

    // A byte of text: UTF-8 when it starts a valid sequence, else Windows-1252.
    void roh() {
        const auto b = static_cast<unsigned char>(rtf_[pos_]);
        std::size_t folge = b >= 0xF0 && b < 0xF8   ? 3
                            : b >= 0xE0 && b < 0xF0 ? 2
                            : b >= 0xC2 && b < 0xE0 ? 1
                                                    : 0;
        if (folge > 0 && pos_ + folge < rtf_.size()) {
            uint32_t c = b & (folge == 3 ? 0x07u : folge == 2 ? 0x0Fu : 0x1Fu);
            bool gut = true;
            for (std::size_t k = 1; k <= folge && gut; ++k) {
                const auto f = static_cast<unsigned char>(rtf_[pos_ + k]);
                gut = (f & 0xC0) == 0x80;
                c = (c << 6) | (f & 0x3Fu);
            }
            if (gut && c <= 0x10FFFF) {
                text(c);
                pos_ += folge + 1;
                return;
            }
        }
        text(cp1252_zeichen(b));
        ++pos_;
    }

    void steuerung() {
        ++pos_;
        if (pos_ >= rtf_.size()) {
            fehler("a backslash ends the text");
            return;
        }
        const char c = rtf_[pos_];
        if (!buchstabe(c)) {
            symbol(c);
            return;
        }
        const std::size_t anfang = pos_;
        while (pos_ < rtf_.size() && buchstabe(rtf_[pos_]) && pos_ - anfang < 32) {
            ++pos_;
        }
        const std::string wort(rtf_.substr(anfang, pos_ - anfang));
        bool hat_wert = false;
        bool negativ = false;
        long wert = 0;
        if (pos_ < rtf_.size() && rtf_[pos_] == '-') {
            negativ = true;
            ++pos_;
        }
        for (int stellen = 0; pos_ < rtf_.size() && ziffer(rtf_[pos_]); ++stellen, ++pos_) {
            hat_wert = true;
            if (stellen < 9) {
                wert = wert * 10 + (rtf_[pos_] - '0');
            }
        }
        if (negativ) {
            wert = -wert;
        }
        if (pos_ < rtf_.size() && rtf_[pos_] == ' ') {
            ++pos_;
        }
        wort_ausfuehren(wort, hat_wert, wert);
    }

    void symbol(char c) {
        ++pos_;
        switch (c) {
        case '\\':
        case '{':
        case '}':
            text(static_cast<unsigned char>(c));
            break;
        case '~':
            text(0xA0);
            break;
        case '_':
            text('-');
            break;
        case '*':
            z().auslassen = true;
            break;
        case '\'': {
            if (pos_ + 2 > rtf_.size()) {
                fehler("\\' needs two hex digits");
                return;
            }
            const int hoch = hexwert(rtf_[pos_]);
            const int tief = hexwert(rtf_[pos_ + 1]);
            if (hoch < 0 || tief < 0) {
                fehler("\\' needs two hex digits");
                return;
            }
            pos_ += 2;
            text(cp1252_zeichen(static_cast<unsigned char>(hoch * 16 + tief)));
            break;
        }
        case '\r':
        case '\n':
            absatz_beenden();
            break;
        default:
            // An optional hyphen and the other control symbols show nothing.
            break;
        }
    }

    void wort_ausfuehren(const std::string& w, bool hat_wert, long wert) {
        RtfLauf& f = z().format;
        const bool an = !hat_wert || wert != 0;
        if (w == "par") {
            absatz_beenden();
        } else if (w == "page") {
            if (!absatz_.laeufe.empty()) {
                absatz_beenden();
            }
            absatz_.neue_seite = true;
        } else if (w == "tab") {
            text('\t');
        } else if (w == "line") {
            text('\n');
        } else if (w == "pard") {
            absatz_.ausrichtung = RtfAbsatz::Ausrichtung::Links;
            absatz_.tabs.clear();
        } else if (w == "tx" && hat_wert) {
            if (absatz_.tabs.size() < 64) {
                absatz_.tabs.push_back(static_cast<int>(wert));
            }
        } else if (w == "ql") {
            absatz_.ausrichtung = RtfAbsatz::Ausrichtung::Links;
        } else if (w == "qc") {
            absatz_.ausrichtung = RtfAbsatz::Ausrichtung::Mitte;
        } else if (w == "qr") {
            absatz_.ausrichtung = RtfAbsatz::Ausrichtung::Rechts;
        } else if (w == "qj") {
            absatz_.ausrichtung = RtfAbsatz::Ausrichtung::Block;
        } else if (w == "plain") {
            f = RtfLauf{};
        } else if (w == "b") {
            f.fett = an;
        } else if (w == "i") {
            f.kursiv = an;
        } else if (w == "ul") {
            f.unterstrichen = an;
        } else if (w == "ulnone") {
            f.unterstrichen = false;
        } else if (w == "sub") {
            f.tiefgestellt = true;
        } else if (w == "nosupersub") {
            f.tiefgestellt = false;
        } else if (w == "fs" && hat_wert && wert > 0 && wert <= 3276) {
            f.halbpunkte = static_cast<int>(wert);
        } else if (w == "fonttbl" || w == "colortbl" || w == "stylesheet" || w == "info") {
            z().auslassen = true;
        } else if (w == "uc" && hat_wert && wert >= 0 && wert <= 8) {
            z().ueberspringen = static_cast<int>(wert);
        } else if (w == "u" && hat_wert) {
            const long c = wert < 0 ? wert + 65536 : wert;
            text(c >= 0 && c <= 0xFFFF ? static_cast<uint32_t>(c) : 0xFFFD);
            // The stand-in characters for readers without Unicode; an escape "\'xx" is one.
            for (int k = 0; k < z().ueberspringen && pos_ < rtf_.size(); ++k) {
                if (rtf_[pos_] == '\\' && pos_ + 3 < rtf_.size() && rtf_[pos_ + 1] == '\'') {
                    pos_ += 4;
                } else if (rtf_[pos_] == '\\' || rtf_[pos_] == '{' || rtf_[pos_] == '}') {
                    break;
                } else {
                    ++pos_;
                }
            }
        }
    }

    std::string_view rtf_;
    std::size_t pos_ = 0;
    std::vector<Zustand> stapel_;
    RtfAbsatz absatz_;
    RtfDokument doc_;
};

} // namespace

RtfDokument rtf_lesen(std::string_view rtf) {
    return Leser(rtf).lesen();
}
