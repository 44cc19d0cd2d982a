// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTranslator>

#include <memory>
#include <string>

// Qt's own texts (the buttons of message boxes, the file dialogs) in the language of the run:
// the German catalogue of the installed Qt for "d", Qt's English otherwise. Returns the
// installed translator, or nothing when English or when the catalogue is missing.
std::unique_ptr<QTranslator> qt_texte_laden(const std::string& sprache);
