// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Station files are ANSI text (Windows-1252); the program holds its texts in UTF-8.

#include <string>
#include <string_view>

// UTF-8 text in Windows-1252. A character without a Windows-1252 byte becomes "?"; a byte that
// starts no valid UTF-8 sequence is taken as a Windows-1252 byte already.
std::string utf8_nach_cp1252(std::string_view text);
