// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Headless front end of the scan engine: the same controller, scanner and finder as the
// window, configured from the command line, printing the groups as text or JSON. Two
// programs run it: the plain one, which links no picture library and starts fast, and
// its companion, which installs the picture stage first.
class CliProgram
{
public:
    static int run(int argc, char *argv[]);
};
