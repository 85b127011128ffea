// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

// What the window tells once it is up about the start itself: an argument that is no
// project file, a settings file it could not use, a removal that the last run left
// unfinished.
namespace StartNotices {

// The one optional argument names something that is not a project file.
void explainBadProjectArgument(QWidget *over, const QString &path);
// The last batch removal ended before its end; the journal tells how far it got.
void showAbnormalExit(QWidget *over);

// The settings file could not be used; problem says why.
void explainSettingsNotLoaded(QWidget *over, const QString &problem);

} // namespace StartNotices
