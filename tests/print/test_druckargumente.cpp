// SPDX-License-Identifier: GPL-3.0-or-later
// The arguments of velmaris-cli drucken.
#include "app/cli/cli_drucken_argumente.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

Druckauswahl nur(std::initializer_list<int> optionen) {
    Druckauswahl a{};
    for (int o : optionen) {
        a[static_cast<std::size_t>(o - 1)] = true;
    }
    return a;
}

} // namespace

TEST(Druckargumente, FilesLanguageAndTheOptionNumbersOfTheDialog) {
    Druckargumente a;
    std::ostringstream fehler;
    ASSERT_TRUE(druckargumente_lesen({"haus.vel", "aus.pdf"}, a, fehler));
    EXPECT_EQ(a.projekt, "haus.vel");
    EXPECT_EQ(a.ziel, "aus.pdf");
    EXPECT_EQ(a.sprache, "");
    EXPECT_EQ(a.auswahl, nur({1, 2, 3, 4, 5, 6, 7}));

    Druckargumente b;
    ASSERT_TRUE(druckargumente_lesen(
        {"--seiten", "7,1,3", "haus.vel", "--sprache", "e", "aus.pdf", "--klima", "k"}, b, fehler));
    EXPECT_EQ(b.auswahl, nur({1, 3, 7}));
    EXPECT_EQ(b.sprache, "e");
    EXPECT_EQ(b.klima, "k");
    EXPECT_EQ(b.ziel, "aus.pdf");
    EXPECT_TRUE(fehler.str().empty());
}

TEST(Druckargumente, AnythingElseIsRefusedWithAMessage) {
    const std::vector<std::vector<std::string>> falsch = {
        {},
        {"haus.vel"},
        {"haus.vel", "aus.pdf", "drei.pdf"},
        {"haus.vel", "aus.pdf", "--seiten"},
        {"haus.vel", "aus.pdf", "--seiten", "8"},
        {"haus.vel", "aus.pdf", "--seiten", "0"},
        {"haus.vel", "aus.pdf", "--seiten", "1,,2"},
        {"haus.vel", "aus.pdf", "--seiten", "1,"},
        {"haus.vel", "aus.pdf", "--seiten", "12"},
        {"haus.vel", "aus.pdf", "--seiten", "2,2"},
        {"haus.vel", "aus.pdf", "--seiten", ""},
        {"haus.vel", "aus.pdf", "--sprache", "x"},
        {"haus.vel", "aus.pdf", "-v"},
    };
    for (const auto& args : falsch) {
        Druckargumente a;
        std::ostringstream fehler;
        EXPECT_FALSE(druckargumente_lesen(args, a, fehler)) << args.size();
        EXPECT_FALSE(fehler.str().empty());
    }
}
