// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

// The folder of the running program.
std::string programmordner();

// The folder with the delivered data `name` ("klima", "Grafiken"): beside the executable, in the
// installed share folder, or in the source tree for a development build.
std::string datenordner(const std::string& name);
