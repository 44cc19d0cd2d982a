// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

// The folder of the running program.
std::string programmordner();

// The folder with the delivered data `name` ("klima", "Grafiken"): beside the executable, in the
// installed share folder, or in the source tree for a development build.
std::string datenordner(const std::string& name);

// The user's folders of an installed program, which may not write its own: the settings in
// $XDG_CONFIG_HOME/velmaris, imported stations in $XDG_DATA_HOME/velmaris/klima (by default
// under ~/.config and ~/.local/share). Both empty when the program runs from its build, which
// keeps everything in the delivered klima folder.
struct Benutzerordner {
    std::string einstellungen;
    std::string stationen;
};
Benutzerordner benutzerordner();
