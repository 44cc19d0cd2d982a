// SPDX-License-Identifier: GPL-3.0-or-later
// The frame of a page, the page count and the order of the printed pages.
#include "climate/klimaregionen.h"
#include "planes/Fensterfassade.h"
#include "print/Ausdrucken.h"
#include "print/RecordingPrinter.h"
#include "print/Seiten.h"
#include "tests/print/Druckhilfe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace {

using Art = RecordingPrinter::Eintrag::Art;

const Druckauswahl ALLE{true, true, true, true, true, true, true};

Druckauswahl nur(std::initializer_list<int> optionen) {
    Druckauswahl a{};
    for (int o : optionen) {
        a[static_cast<std::size_t>(o - 1)] = true;
    }
    return a;
}

bool gedruckt(const RecordingPrinter& d, const std::string& text, int seite) {
    for (const auto& e : d.prints(text)) {
        if (e.seite == seite) {
            return true;
        }
    }
    return false;
}

// The printer `d` after printing `seite` of the project with the comma as the decimal mark.
template <typename D = RecordingPrinter>
D seite_drucken(void (*seite)(Druckseite&), const Projekt& p, const Eingabeflaechen& e, D d = D()) {
    Druckseite s{d, p, e, ',', {}};
    seite(s);
    return d;
}

} // namespace

TEST(Seitenzahl, TheDataSheetCountsTwoPagesAndAllTogetherEight) {
    EXPECT_EQ(seitenzahl(ALLE), 8);
    EXPECT_EQ(seitenzahl(nur({1})), 2);
    EXPECT_EQ(seitenzahl(nur({2})), 1);
    EXPECT_EQ(seitenzahl(nur({1, 7})), 3);
    EXPECT_EQ(seitenzahl(nur({})), 0);
}

TEST(Seitenkopf, LogoRulesFootAndTitleStandAtTheirPlaces) {
    TempOrdner ordner;
    Druckprojekt dp(ordner, "d");
    dp.p->Datei = "/home/lehrer/projekte/haus.vel";
    RecordingPrinter d;
    Seitenkopf(d, *dp.p, "Ausgabe: Wärmebilanz", 3, 8, "5.3.2026");

    // "VELM" and "aris", 8 characters at size 20 (4 mm each), centred on 200 mm; the foot at
    // y 261: the file without its folder, the page in the middle, the date ending at x 175; the
    // title at size 16 (3.2 mm a character), centred.
    const struct {
        const char* text;
        double x, y, size;
        bool italic, bold, underline;
    } texte[] = {
        {"VELM", 84, 20, 20, true, true, true},
        {"aris", 100, 20, 20, false, true, true},
        {"Datei: haus.vel ", 25, 261, 10, true, false, false},
        {"- Seite 3 / 8 -", (200 - 15 * 2) / 2.0, 261, 10, true, false, false},
        {"5.3.2026", 175 - 8 * 2, 261, 10, true, false, false},
        {"Ausgabe: Wärmebilanz", (200 - 20 * 3.2) / 2, 40, 16, false, false, false},
    };
    for (const auto& t : texte) {
        const auto e = d.prints(t.text);
        ASSERT_EQ(e.size(), 1u) << t.text;
        EXPECT_DOUBLE_EQ(e[0].x1, t.x) << t.text;
        EXPECT_DOUBLE_EQ(e[0].y1, t.y) << t.text;
        EXPECT_DOUBLE_EQ(e[0].size, t.size) << t.text;
        EXPECT_EQ(e[0].italic, t.italic) << t.text;
        EXPECT_EQ(e[0].bold, t.bold) << t.text;
        EXPECT_EQ(e[0].underline, t.underline) << t.text;
    }
    const auto linien = d.von_art(Art::Line);
    ASSERT_EQ(linien.size(), 2u);
    EXPECT_EQ((std::array<double, 4>{linien[0].x1, linien[0].y1, linien[0].x2, linien[0].y2}),
              (std::array<double, 4>{25, 35, 175, 35}));
    EXPECT_EQ((std::array<double, 4>{linien[1].x1, linien[1].y1, linien[1].x2, linien[1].y2}),
              (std::array<double, 4>{25, 260, 175, 260}));
}

TEST(Seitenkopf, EnglishFootNamesFileAndPage) {
    TempOrdner ordner;
    Druckprojekt dp(ordner, "e");
    dp.p->Datei = "C:\\Daten\\haus.vel";
    RecordingPrinter d;
    Seitenkopf(d, *dp.p, "Output: Heat balance", 1, 2, "22.11.2026");
    EXPECT_EQ(d.prints("File: haus.vel ").size(), 1u);
    EXPECT_EQ(d.prints("- Page 1 / 2 -").size(), 1u);
}

TEST(Ausdrucken, TheTickedOptionsGiveTheirPagesNumberedFromOneInOrder) {
    const struct {
        const char* sprache;
        Druckauswahl auswahl;
        std::vector<std::string> titel;
    } faelle[] = {
        {"d",
         ALLE,
         {"Datenblatt (Teil 1):", "Datenblatt (Teil 2):", "Ausgabe: Heiz- und Kühlstunden",
          "Ausgabe: Wärmebilanz", "Ausgabe: Kühlbilanz", "Ausgabe: Fensterbilanz",
          "Primär- und Endenergiebedarf Heizung", "Primär- und Endenergiebedarf Kühlung"}},
        {"e", nur({1}), {"Data sheet (1):", "Data sheet (2):"}},
        {"d", nur({5, 3}), {"Ausgabe: Wärmebilanz", "Ausgabe: Fensterbilanz"}},
        // Nothing ticked: no page, but the document is ended.
        {"d", nur({}), {}},
    };
    TempOrdner ordner;
    for (const auto& f : faelle) {
        const bool de = f.sprache == std::string("d");
        const int n = static_cast<int>(f.titel.size());
        SCOPED_TRACE(std::string(f.sprache) + ", " + std::to_string(n) + " pages");
        Druckprojekt dp(ordner, f.sprache);
        RecordingPrinter d;
        Ausdrucken(d, *dp.p, *dp.e, f.auswahl, de ? ',' : '.', "1.1.2026");
        EXPECT_EQ(static_cast<int>(d.von_art(Art::NewPage).size()), std::max(n - 1, 0));
        EXPECT_EQ(d.von_art(Art::EndDoc).size(), 1u);
        EXPECT_EQ(d.log().back().art, Art::EndDoc);
        EXPECT_EQ(d.log().size() == 1, n == 0);
        for (int i = 1; i <= n; ++i) {
            const std::string fuss = (de ? "- Seite " : "- Page ") + std::to_string(i) + " / " +
                                     std::to_string(n) + " -";
            EXPECT_TRUE(gedruckt(d, f.titel[static_cast<std::size_t>(i - 1)], i)) << i;
            EXPECT_TRUE(gedruckt(d, fuss, i)) << fuss;
            EXPECT_TRUE(gedruckt(d, "VELM", i)) << i;
        }
        // Every text stays on the sheet, between the margins of the 200 mm and above the foot.
        for (const auto& e : d.von_art(Art::Print)) {
            EXPECT_LE(e.y1, 261) << e.text;
            EXPECT_GE(e.x1, 0) << e.text;
            EXPECT_LE(e.x1, 200) << e.text;
        }
    }
}

TEST(Ausdrucken, HeatRecoveryFollowsTheOverheatingLimitOutsideTheVentilationBlock) {
    TempOrdner ordner;
    Druckprojekt dp(ordner, "d");
    RecordingPrinter d;
    Ausdrucken(d, *dp.p, *dp.e, nur({1}), ',', "1.1.2026");
    const auto t = d.texte(1);
    const auto wo = [&](const char* text) {
        return std::find(t.begin(), t.end(), text) - t.begin();
    };
    ASSERT_LT(wo("Überwärmung ab:"), static_cast<long>(t.size()));
    // The limit's value stands between them.
    EXPECT_EQ(wo("Wärmerückgewinnung:"), wo("Überwärmung ab:") + 2);
    EXPECT_EQ(d.prints("Wärmerückgewinnung:").at(0).x1, d.prints("Überwärmung ab:").at(0).x1);
}

TEST(Datenblatt, ValuesStandAtX120WithTheDecimalMarkAndTheListTexts) {
    TempOrdner ordner;
    Druckprojekt dp(ordner, "d");
    Projekt& p = *dp.p;
    RecordingPrinter d = seite_drucken(Seite_Datenblatt1, p, *dp.e);

    const auto laenge = d.prints("Länge der Nord- und Südfassade:").at(0);
    EXPECT_DOUBLE_EQ(laenge.x1, 30);
    const auto wert = d.prints("10,0 m").at(0);
    EXPECT_DOUBLE_EQ(wert.x1, 120);
    EXPECT_DOUBLE_EQ(wert.y1, laenge.y1);
    const auto geometrie = d.prints("Geometrie:").at(0);
    EXPECT_DOUBLE_EQ(geometrie.x1, 25);
    EXPECT_DOUBLE_EQ(geometrie.size, 12);
    EXPECT_TRUE(geometrie.bold);
    // The lower floor's kind is the text of the insulation plane's list, wrapped at x 120.
    const std::vector<std::string> texte = d.texte();
    auto i = std::find(texte.begin(), texte.end(), "Untere Geschoßdecke:");
    ASSERT_NE(i, texte.end());
    ASSERT_EQ(*++i, "gegen:");
    std::string art;
    while (++i != texte.end() && *i != "U-Wert:") {
        art += *i;
    }
    EXPECT_EQ(art, dp.e->daemmung.ugd.Eintraege.at(static_cast<std::size_t>(p.ugd_typ)));
    // Without a heated attic there is no roof height.
    EXPECT_TRUE(d.prints("Dachhöhe:").empty());
    p.Dachgeschoss = true;
    RecordingPrinter mit_dach = seite_drucken(Seite_Datenblatt1, p, *dp.e);
    EXPECT_EQ(mit_dach.prints("Dachhöhe:").size(), 1u);
    EXPECT_EQ(mit_dach.prints("Dach:").size(), 1u);
    EXPECT_EQ(mit_dach.prints("Außenluft").size(), 1u);
}

TEST(Datenblatt, TheWindowTableHasAColumnPerFacadeAndTheHeatSupplyIsWrapped) {
    TempOrdner ordner;
    Druckprojekt dp(ordner, "d");
    Projekt& p = *dp.p;
    p.fs = 40;
    p.fn = 10;
    RecordingPrinter d = seite_drucken(Seite_Datenblatt2, p, *dp.e);
    // North, south, east, west, each ending on its anchor.
    const auto reihe = d.prints("Anteil der Fassade in %").at(0);
    std::vector<std::pair<std::string, double>> zellen;
    RecordingPrinter mass;
    for (const auto& e : d.von_art(Art::Print)) {
        if (e.y1 == reihe.y1 && e.x1 > 30) {
            mass.FontSize = e.size;
            zellen.emplace_back(e.text, e.x1 + mass.TextWidth(e.text));
        }
    }
    using Zelle = std::pair<std::string, double>;
    EXPECT_EQ(
        zellen,
        (std::vector<Zelle>{
            {"10", 100}, {"40", 125}, {std::to_string(p.fo), 150}, {std::to_string(p.fw), 175}}));
    // The heating system's text is broken into lines narrower than 55 mm at x 120.
    const auto system = d.prints("Heizungssystem:").at(0);
    const auto uebergabe = d.prints("Wärmeübergabe / Systemtemperatur:").at(0);
    std::string text;
    int zeilen = 0;
    for (const auto& e : d.von_art(Art::Print)) {
        if (e.x1 == 120 && e.y1 >= system.y1 && e.y1 < uebergabe.y1) {
            mass.FontSize = e.size;
            EXPECT_LT(mass.TextWidth(e.text), 55) << e.text;
            text += e.text;
            ++zeilen;
        }
    }
    EXPECT_GT(zeilen, 1);
    EXPECT_EQ(text, dp.e->energie.Label_System.Caption);
}

// A printer whose font runs narrower than the recording printer's, as a real one may.
class SchmaleSchrift : public RecordingPrinter {
public:
    explicit SchmaleSchrift(double faktor) : faktor_(faktor) {}
    double TextWidth(const std::string& text) const override {
        return RecordingPrinter::TextWidth(text) * faktor_;
    }

private:
    double faktor_;
};

// Every kind of window, in both languages and whatever the font's width, reads whole down its
// column, and its bracket of the U value never breaks inside the unit: the unit stands on one
// line.
TEST(Datenblatt, TheKindOfWindowKeepsItsUnitWholeInEveryLanguage) {
    TempOrdner ordner;
    for (const char* sprache : {"d", "e"}) {
        Druckprojekt dp(ordner, sprache);
        for (std::size_t typ = 0; typ < FENSTERTYPEN.size(); ++typ) {
            const std::string art = sprache == std::string("d") ? FENSTERTYPEN[typ].deutsch
                                                                : FENSTERTYPEN[typ].englisch;
            SCOPED_TRACE(art);
            dp.e->fenster.fassaden[Nord].typ_feld = static_cast<int16_t>(typ);
            for (const double faktor : {0.7, 0.85, 1.0}) {
                auto d = seite_drucken(Seite_Datenblatt2, *dp.p, *dp.e, SchmaleSchrift(faktor));
                // The north column: size 8 texts ending on the anchor at x 100.
                std::vector<std::string> zeilen;
                for (const auto& e : d.von_art(Art::Print)) {
                    d.FontSize = e.size;
                    if (e.size == 8 && std::fabs(e.x1 + d.TextWidth(e.text) - 100) < 1e-9) {
                        zeilen.push_back(e.text);
                    }
                }
                ASSERT_FALSE(zeilen.empty());
                std::string ganz;
                int einheit = 0;
                for (std::string z : zeilen) {
                    z.erase(z.find_last_not_of(' ') + 1);
                    ganz += (ganz.empty() || ganz.back() == '-' ? "" : " ") + z;
                    einheit += z.find("W/(m² K))") != std::string::npos ? 1 : 0;
                    const std::string offen = "(m²";
                    EXPECT_FALSE(z.size() >= offen.size() &&
                                 z.compare(z.size() - offen.size(), offen.size(), offen) == 0)
                        << z;
                }
                EXPECT_EQ(ganz, art) << faktor;
                EXPECT_EQ(einheit, art.find("W/(m² K)") != std::string::npos ? 1 : 0) << faktor;
            }
        }
    }
}

// The two columns of the cooling demand carry the same heading; they stay two millimetres apart
// in both languages.
TEST(Kuehlbilanz, TheTwoCoolingDemandHeadingsStandApart) {
    TempOrdner ordner;
    for (const char* sprache : {"d", "e"}) {
        Druckprojekt dp(ordner, sprache);
        RecordingPrinter d = seite_drucken(Seite_Kuehlbilanz, *dp.p, *dp.e);
        auto kopf = d.prints(sprache == std::string("d") ? "Kühlbedarf" : "Cooling demand");
        ASSERT_FALSE(kopf.empty());
        // The table's head row; the diagram's legend repeats the word further down.
        const double zeile = kopf.front().y1;
        kopf.erase(std::remove_if(kopf.begin(), kopf.end(),
                                  [zeile](const auto& e) { return e.y1 != zeile; }),
                   kopf.end());
        ASSERT_EQ(kopf.size(), 2u) << sprache;
        d.FontSize = kopf[0].size;
        EXPECT_GE(kopf[1].x1 - (kopf[0].x1 + d.TextWidth(kopf[0].text)), 2) << sprache;
    }
}

// With a heated attic the direction of the ridge is wrapped beside the sketch: whatever the
// font's width, every row beside the sketch's "W" ends two millimetres short of it.
TEST(Datenblatt, TheRidgeDirectionEndsClearOfTheSketch) {
    TempOrdner ordner;
    for (const char* sprache : {"d", "e"}) {
        Druckprojekt dp(ordner, sprache);
        Projekt& p = *dp.p;
        p.Dachgeschoss = true;
        for (const int16_t first : {1, 2}) {
            p.Dachfirst = first;
            for (const double faktor : {0.7, 0.85, 1.0}) {
                SCOPED_TRACE(std::string(sprache) + " ridge " + std::to_string(first) + " width " +
                             std::to_string(faktor));
                auto d = seite_drucken(Seite_Datenblatt1, p, *dp.e, SchmaleSchrift(faktor));
                const auto w = d.prints("W").at(0);
                const auto first_zeile =
                    d.prints(sprache == std::string("d") ? "Dachfirst:" : "Roof ridge:").at(0);
                int zeilen = 0;
                for (const auto& e : d.von_art(Art::Print)) {
                    if (e.x1 == 120 && e.y1 >= first_zeile.y1 && e.y1 < first_zeile.y1 + 12) {
                        d.FontSize = e.size;
                        EXPECT_LE(e.x1 + d.TextWidth(e.text), w.x1 - 2) << e.text;
                        ++zeilen;
                    }
                }
                EXPECT_GE(zeilen, 2);
            }
        }
    }
}

// Every region's two lines, wrapped where they are long, stand between x 120 and the frame at
// x 175 and read as the region's text; another scope names the station instead.
TEST(Datenblatt, ARegionStationShowsTheRegionsTextInsideTheFrameInBothLanguages) {
    TempOrdner ordner;
    for (const char* sprache : {"d", "e"}) {
        Druckprojekt dp(ordner, sprache);
        Projekt& p = *dp.p;
        p.Klimaauswahl = 1;
        for (int region = 1; region <= KLIMAREGIONEN; ++region) {
            SCOPED_TRACE(std::string(sprache) + " region " + std::to_string(region));
            p.Klimadatei = p.Regionsdatei[region];
            RecordingPrinter d = seite_drucken(Seite_Datenblatt1, p, *dp.e);
            const auto& log = d.log();
            const std::string kopf =
                sprache == std::string("d") ? "Klimaregion:" : "Climatic region:";
            auto i = std::find_if(log.begin(), log.end(), [&](const RecordingPrinter::Eintrag& e) {
                return e.text == kopf;
            });
            ASSERT_NE(i, log.end());
            std::string text;
            for (++i;
                 i != log.end() && i->art == RecordingPrinter::Eintrag::Art::Print && i->x1 == 120;
                 ++i) {
                d.FontSize = i->size;
                EXPECT_LE(i->x1 + d.TextWidth(i->text), 175) << i->text;
                text += i->text;
            }
            const Klimaregion& r = klimaregion(region);
            const auto ohne_blanks = [](std::string t) {
                t.erase(std::remove(t.begin(), t.end(), ' '), t.end());
                return t;
            };
            EXPECT_EQ(ohne_blanks(text), ohne_blanks(std::string(r.zeile1) + r.zeile2));
        }
        p.Klimadatei = p.Regionsdatei[4];
        p.Klimaauswahl = 2;
        RecordingPrinter europa = seite_drucken(Seite_Datenblatt1, p, *dp.e);
        EXPECT_TRUE(europa.prints("Klimaregion:").empty());
        EXPECT_EQ(europa.prints(sprache == std::string("d") ? "Klimastation:" : "Climate station:")
                      .size(),
                  1u);
    }
}

TEST(Heizenergie, TheYearRowAddsUpTheMonthsAlsoWithElectricityAsTheCarrier) {
    TempOrdner ordner;
    Druckprojekt dp(ordner, "d");
    Projekt& p = *dp.p;
    for (const char* traeger : {"Heizöl", "Strom"}) {
        p.Energie.Traegername = traeger;
        RecordingPrinter d = seite_drucken(Seite_Heizenergie, p, *dp.e);
        // The row "Jahressumme" against the twelve month rows above it, column by column.
        const std::vector<RecordingPrinter::Eintrag> zeilen = d.von_art(Art::Print);
        const auto jahr = d.prints("Jahressumme").at(0);
        const auto januar = d.prints("Januar").at(0);
        std::map<double, double> summe, wert;
        for (const auto& e : zeilen) {
            if (e.x1 <= 30 || e.y1 < januar.y1 || e.y1 > jahr.y1) {
                continue;
            }
            std::string zahl = e.text;
            std::replace(zahl.begin(), zahl.end(), ',', '.');
            const double rechts = std::round((e.x1 + 0.2 * e.size * e.text.size()) * 10) / 10;
            (e.y1 == jahr.y1 ? wert : summe)[rechts] += std::stod(zahl);
        }
        ASSERT_EQ(wert.size(), 6u) << traeger;
        for (const auto& [spalte, jahreswert] : wert) {
            EXPECT_NEAR(summe[spalte], jahreswert, 0.35) << traeger << " column " << spalte;
        }
    }
}
