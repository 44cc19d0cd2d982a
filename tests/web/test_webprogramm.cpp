// SPDX-License-Identifier: GPL-3.0-or-later
// The browser page's program, run natively: a wrong control name or option index from the page
// is refused without a fault, and every chart of a plane that comes up is drawn into its command
// list, starting with the clearing of the surface.
#include "web/Webprogramm.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

const std::vector<std::string> DIAGRAMME{"AV_Picture",
                                         "Picture1",
                                         "Monatsbilanz",
                                         "JahrBilanz_Uebersicht",
                                         "UeberGrafik",
                                         "UeberJahr",
                                         "Temperaturen",
                                         "Heizbilanz",
                                         "JahrBilanz_Heizen",
                                         "NutzungsgradMonat",
                                         "NutzungsgradJahr",
                                         "Gewinne_N",
                                         "Verluste_N",
                                         "Gewinne_S",
                                         "Verluste_S",
                                         "Gewinne_O",
                                         "Verluste_O",
                                         "Gewinne_W",
                                         "Verluste_W",
                                         "StundenProTagMonat",
                                         "StundenProTagJahr",
                                         "KuehlbedarfMonat",
                                         "KuehlbedarfJahr",
                                         "KuehlGradStundenMonat",
                                         "KuehlGradStundenJahr",
                                         "Sankey",
                                         "Sankey_Kuehlen",
                                         "Monatsuebersicht",
                                         "Picture2",
                                         "Picture3"};

struct Lauf {
    Seitendialoge dialoge;
    Webprogramm w{"d", VELMARIS_SOURCE_DIR "/klima",
                  [](const std::string&, const std::string& t) { return 6.0 * t.size(); },
                  [](const std::string&, const std::string&) { return 13.0; }, dialoge};
    Lauf() {
        for (const std::string& n : DIAGRAMME) {
            w.flaeche_anlegen(n, 330, 140, WHITE);
        }
        EXPECT_TRUE(w.starten()) << w.fehler();
    }
};

TEST(Webprogramm, RefusesWhatThePlanesDoNotHave) {
    Lauf l;
    const std::string vorher = l.w.ergebnis();
    struct Fall {
        const char* name;
        int wert;
    };
    // The ridge options are 1 and 2, the thermal bridge options 1 to 3, the windows' 0 and 1.
    for (const Fall& f :
         {Fall{"E_Geometrie.Option_Dachfirst", 0}, Fall{"E_Geometrie.Option_Dachfirst", 3},
          Fall{"E_Daemmung.Waermebruecken_opt", 4}, Fall{"E_Fenster.Option1", -1},
          Fall{"E_Gebaeude.keiner", 1}, Fall{"E_Gebaeude.troom_anz", 1}}) {
        EXPECT_FALSE(l.w.setzen(f.name, f.wert)) << f.name << " " << f.wert;
    }
    EXPECT_FALSE(l.w.pfeil("E_Gebaeude.Aussenwandart", 1));
    EXPECT_FALSE(l.w.klicken("Command_HR(4)"));
    EXPECT_TRUE(l.w.gueltig());
    EXPECT_EQ(l.w.ergebnis(), vorher);
}

TEST(Webprogramm, DrawsEveryChartOfThePlaneShown) {
    Lauf l;
    // The charts each output plane shows, by its button's order.
    const std::vector<std::vector<std::string>> ebenen{
        {"Monatsbilanz", "JahrBilanz_Uebersicht", "UeberGrafik", "UeberJahr", "Temperaturen"},
        {},
        {"Heizbilanz", "JahrBilanz_Heizen", "NutzungsgradMonat", "Gewinne_S", "Verluste_W"},
        {"StundenProTagMonat", "KuehlbedarfJahr", "KuehlGradStundenJahr"},
        {"Sankey", "Sankey_Kuehlen"}};
    for (std::size_t e = 0; e < ebenen.size(); ++e) {
        l.w.ausgabe_zeigen(static_cast<int>(e));
        for (const std::string& n : ebenen[e]) {
            const CanvasFlaeche* f = l.w.flaeche(n);
            ASSERT_NE(f, nullptr) << n;
            ASSERT_GT(f->befehle().size(), 2u) << n;
            EXPECT_EQ(f->befehle()[0], static_cast<double>(CanvasFlaeche::Befehl::Leeren)) << n;
            EXPECT_GT(f->fassung(), 1) << n;
        }
    }
}

} // namespace
