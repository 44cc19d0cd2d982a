// SPDX-License-Identifier: GPL-3.0-or-later
// The JSON writer: floats that read back to the same 32-bit value, nesting and escaping.
#include "app/shell/JsonWriter.h"

#include <cstdlib>
#include <gtest/gtest.h>

TEST(JsonWriter, FloatsRoundTripAsThirtyTwoBitValues) {
    const float werte[] = {0.2f,  1.42f,      58880836.0f,   241441.56f,     1E-10f,
                           -0.0f, 0.7846154f, 3.4028235e38f, 1.17549435e-38f};
    for (const float v : werte) {
        JsonWriter j;
        j.value(v);
        EXPECT_EQ(std::strtof(j.text().c_str(), nullptr), v) << j.text();
    }
    JsonWriter j;
    j.value(0.2f);
    EXPECT_EQ(j.text(), "0.2");
}

TEST(JsonWriter, ObjectsArraysAndEscapes) {
    JsonWriter j;
    j.begin_object();
    j.field("a", 1);
    j.key("b");
    j.begin_array();
    j.value(2);
    j.value(3.5f);
    j.begin_object();
    j.end_object();
    j.end_array();
    j.field("c", std::string_view("Heizöl \"EL\"\n\\"));
    j.end_object();
    EXPECT_EQ(j.text(), R"({"a":1,"b":[2,3.5,{}],"c":"Heizöl \"EL\"\n\\"})");
}
