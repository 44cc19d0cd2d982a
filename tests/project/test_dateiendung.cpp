// SPDX-License-Identifier: GPL-3.0-or-later
// The save dialogs complete a name without extension by the chosen filter's.
#include "project/Dateiendung.h"

#include <gtest/gtest.h>

TEST(Dateiendung, NameWithoutExtensionGetsTheChosenFiltersOne) {
    struct Fall {
        const char *pfad, *filter, *ergebnis;
    };
    for (const Fall& f : {
             Fall{"/home/a/Haus", "VELM Dateien (*.vel)", "/home/a/Haus.vel"},
             Fall{"/home/a/Bericht", "Rich Text Format (*.rtf)", "/home/a/Bericht.rtf"},
             Fall{"/home/a/Stunden", "Textdatei (*.txt)", "/home/a/Stunden.txt"},
             Fall{"/home/a/Seiten", "PDF (*.pdf)", "/home/a/Seiten.pdf"},
             // A name with a point keeps it, as the project's own rule does.
             Fall{"/home/a/Haus.alt", "VELM Dateien (*.vel)", "/home/a/Haus.alt"},
             Fall{"/home/a/Haus.VEL", "VELM Dateien (*.vel)", "/home/a/Haus.VEL"},
             // A point in a folder name is no extension of the file.
             Fall{"/home/a.b/Haus", "VELM Dateien (*.vel)", "/home/a.b/Haus.vel"},
             Fall{"/home/a/Haus", "Alle Dateien (*.*)", "/home/a/Haus"},
             Fall{"/home/a/Haus", "Alles", "/home/a/Haus"},
         }) {
        EXPECT_EQ(endung_ergaenzen(f.pfad, f.filter), f.ergebnis) << f.pfad << " " << f.filter;
    }
}

TEST(Dateiendung, FolderOfAPath) {
    EXPECT_EQ(ordner_von("/home/Klasse 7b/Haus Süd.vel", "/doc"), "/home/Klasse 7b");
    EXPECT_EQ(ordner_von("/Haus.vel", "/doc"), "/");
    EXPECT_EQ(ordner_von("Haus.vel", "/doc"), "/doc");
}
