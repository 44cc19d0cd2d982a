// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

// The usage of velmaris-cli, one table for the overview, each command's --help and the message
// of a wrong call, so that the three never disagree.

// The forms of one command, each line beginning "usage: velmaris-cli" or aligned below it;
// empty for a command that does not exist.
std::string aufruf(const std::string& befehl);

// Every command with its forms and what it does, and how to see one command's usage.
std::string gesamtaufruf();
