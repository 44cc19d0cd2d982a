// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/shell/JsonWriter.h"

#include "project/zahlwandlung.h"

#include <cmath>
#include <cstdio>

void JsonWriter::before_value() {
    if (after_key_) {
        after_key_ = false;
        return;
    }
    if (!first_.empty()) {
        if (!first_.back()) {
            text_ += ',';
        }
        first_.back() = false;
    }
}

void JsonWriter::begin_object() {
    before_value();
    text_ += '{';
    first_.push_back(true);
}

void JsonWriter::end_object() {
    text_ += '}';
    first_.pop_back();
}

void JsonWriter::begin_array() {
    before_value();
    text_ += '[';
    first_.push_back(true);
}

void JsonWriter::end_array() {
    text_ += ']';
    first_.pop_back();
}

void JsonWriter::key(std::string_view name) {
    before_value();
    write_string(name);
    text_ += ':';
    after_key_ = true;
}

void JsonWriter::value(float v) {
    before_value();
    if (!std::isfinite(v)) {
        text_ += "null";
        return;
    }
    char puffer[32];
    const auto ende = zahlwandlung::schreiben(puffer, puffer + sizeof puffer, v).ptr;
    text_.append(puffer, ende);
}

void JsonWriter::value(int v) {
    before_value();
    text_ += std::to_string(v);
}

void JsonWriter::value(std::string_view text) {
    before_value();
    write_string(text);
}

void JsonWriter::write_string(std::string_view text) {
    text_ += '"';
    for (const char c : text) {
        switch (c) {
        case '"':
            text_ += "\\\"";
            break;
        case '\\':
            text_ += "\\\\";
            break;
        case '\n':
            text_ += "\\n";
            break;
        case '\r':
            text_ += "\\r";
            break;
        case '\t':
            text_ += "\\t";
            break;
        default:
            if (static_cast<unsigned char>(c) < 0x20) {
                char puffer[8];
                std::snprintf(puffer, sizeof puffer, "\\u%04x", static_cast<unsigned>(c));
                text_ += puffer;
            } else {
                text_ += c;
            }
        }
    }
    text_ += '"';
}
