// SPDX-License-Identifier: GPL-3.0-or-later
// The command line without the picture libraries: runs that compare pictures are handed
// to the companion program.
#include "cli/CliProgram.h"

int main(int argc, char *argv[])
{
    return CliProgram::run(argc, argv);
}
