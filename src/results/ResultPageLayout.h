// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Ui {
class ResultForm;
}

class QWidget;
class TImageModel;

// How the result page's widgets from its form are set up beyond what the form says: the
// button groups and icons, the group list, the tool buttons, the splitter and the group's
// title. The page makes the connections itself.
namespace ResultPageLayout {

void arrangeButtons(QWidget *page, Ui::ResultForm *ui);
void arrangeGroupList(Ui::ResultForm *ui, TImageModel *groupModel);
void arrangeTools(QWidget *page, Ui::ResultForm *ui);

} // namespace ResultPageLayout
