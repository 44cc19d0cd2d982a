// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

// A small streaming JSON writer: objects and arrays in order, floats in the shortest text that
// reads back to the same 32-bit value, integers as integers.
class JsonWriter {
public:
    void begin_object();
    void end_object();
    void begin_array();
    void end_array();
    void key(std::string_view name);
    void value(float v);
    void value(int v);
    void value(std::string_view text);

    template <class T> void field(std::string_view name, const T& v) {
        key(name);
        value(v);
    }

    const std::string& text() const { return text_; }

private:
    void before_value();
    void write_string(std::string_view text);

    std::string text_;
    std::vector<bool> first_; // per open container: no element written yet
    bool after_key_ = false;
};
