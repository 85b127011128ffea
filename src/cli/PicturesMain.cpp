// SPDX-License-Identifier: GPL-3.0-or-later
// The command line's companion: the same program with the similar-picture stage.
#include "cli/CliProgram.h"
#include "pictures/ImageCompareStage.h"

int main(int argc, char *argv[])
{
    ImageCompareStage::install();
    return CliProgram::run(argc, argv);
}
