// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class CliOptions;

// The command line's remove and restore: a saved project's selection removed through the
// same worker and checks as the window's, and the journal's last batch put back.
namespace RemovalCommands {

// Exit status: 0 every item handled, 5 some skipped or failed, 6 the journal cannot be
// written, 1 the batch is refused before it starts, 3 the project cannot be read, 128 plus
// the signal's number when SIGINT or SIGTERM stopped it.
int remove(const CliOptions &options);
int restore(const CliOptions &options);

} // namespace RemovalCommands
