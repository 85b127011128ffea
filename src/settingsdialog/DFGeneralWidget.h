// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preferences/DFGenernalPreferences.h"

#include <memory>

#include <QWidget>

namespace Ui {
class Genernal;
}

// Tab "Similar images" of the preferences dialog: the switch of the similar-image search,
// its algorithm, the two pass marks, the type and aspect-ratio filters and the rule of the
// automatic selection. Edits a private copy of the similar-image settings.
class DFGeneralWidget : public QWidget
{
    Q_OBJECT
public:
    explicit DFGeneralWidget(QWidget *parent = nullptr);
    ~DFGeneralWidget() override;

    const DFGenernalPreferences &preferences() const { return m_preferences; }
    DFGenernalPreferences &preferences() { return m_preferences; }
    void setPreferences(const DFGenernalPreferences &preferences);
    void refresh();

public slots:
    void retranslate();

private:
    // Greys out what the two switches make irrelevant.
    void updateEnabled();

    std::unique_ptr<Ui::Genernal> ui;
    DFGenernalPreferences m_preferences;
    bool m_filling = false;
};
