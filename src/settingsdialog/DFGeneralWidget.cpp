// SPDX-License-Identifier: GPL-3.0-or-later
#include "settingsdialog/DFGeneralWidget.h"

#include "preferences/SettingsTable.h"
#include "ui_Genernal.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>

namespace {

QString percent(int value)
{
    return QStringLiteral("%1%").arg(value);
}

} // namespace

DFGeneralWidget::DFGeneralWidget(QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::Genernal>())
{
    ui->setupUi(this);
    ui->hsSimilarity->setRange(
        int(SettingsTable::SimilarityValue.minimum), int(SettingsTable::SimilarityValue.maximum));
    ui->hsFeatures->setRange(
        int(SettingsTable::FeaturesValue.minimum), int(SettingsTable::FeaturesValue.maximum));
    ui->sbImageWH->setRange(
        int(SettingsTable::imageMinSize.minimum), int(SettingsTable::imageMinSize.maximum));
    // Each slider shows its range at its two ends.
    for (QSlider *slider : {ui->hsSimilarity, ui->hsFeatures}) {
        auto *grid = qobject_cast<QGridLayout *>(slider->parentWidget()->layout());
        const int at = grid ? grid->indexOf(slider) : -1;
        if (at < 0)
            continue;
        int row = 0, column = 0, rows = 0, columns = 0;
        grid->getItemPosition(at, &row, &column, &rows, &columns);
        grid->removeWidget(slider);
        auto *line = new QHBoxLayout;
        line->setSpacing(6);
        const auto end = [slider](int value, const char *name) {
            auto *label = new QLabel(percent(value), slider->parentWidget());
            label->setObjectName(QString::fromLatin1(name) + slider->objectName());
            label->setProperty("rangeEnd", true);
            return label;
        };
        line->addWidget(end(slider->minimum(), "lblMin_"));
        line->addWidget(slider, 1);
        line->addWidget(end(slider->maximum(), "lblMax_"));
        grid->addLayout(line, row, column, rows, columns);
        slider->setToolTip(
            tr("From %1 to %2").arg(percent(slider->minimum()), percent(slider->maximum())));
    }

    const auto flag = [this](QCheckBox *box, void (DFGenernalPreferences::*set)(bool)) {
        connect(box, &QCheckBox::toggled, this, [this, set](bool on) {
            if (m_filling)
                return;
            (m_preferences.*set)(on);
            updateEnabled();
        });
    };
    flag(ui->chkEnableSimilar, &DFGenernalPreferences::setHasSimilar);
    flag(ui->chkFeatures, &DFGenernalPreferences::setIsAddFeatures);
    flag(ui->chkImageType, &DFGenernalPreferences::setIsImageType);
    flag(ui->chkImageWH, &DFGenernalPreferences::setIsImageSize);
    flag(ui->chkSelectedSimilar, &DFGenernalPreferences::setSelectedSimilar);

    const auto algorithm
        = [this](QRadioButton *button, DFSelectionPreferences::DFAlgorithmsHint value) {
              connect(button, &QRadioButton::toggled, this, [this, value](bool on) {
                  if (on && !m_filling)
                      m_preferences.setAlgorithmHint(value);
                  if (on)
                      updateEnabled();
              });
          };
    algorithm(ui->rbSmart, DFSelectionPreferences::rbSmart);
    algorithm(ui->rbHistogram, DFSelectionPreferences::rbHistogram);
    algorithm(ui->rbPhash, DFSelectionPreferences::rbPhash);
    algorithm(ui->rbRobust, DFSelectionPreferences::rbRobust);

    // "Follow the duplicates removal rule" stands for every value without a button of
    // its own; choosing it stores the rule's default.
    const auto rule = [this](QRadioButton *button, DFSelectionPreferences::DFSelectionHint value) {
        connect(button, &QRadioButton::toggled, this, [this, value](bool on) {
            if (on && !m_filling)
                m_preferences.setSelectionHint(value);
        });
    };
    rule(ui->rbFollowDuplicateRules, DFSelectionPreferences::autoSelect);
    rule(ui->rbHighResolution, DFSelectionPreferences::selectHighResolution);
    rule(ui->rbLowResolution, DFSelectionPreferences::selectLowResolution);
    rule(ui->rbHighQuality, DFSelectionPreferences::selectHighQuality);
    rule(ui->rbLowQuality, DFSelectionPreferences::selectLowQuality);

    connect(ui->hsSimilarity, &QSlider::valueChanged, this, [this](int value) {
        ui->lblSimilarityValue->setText(percent(value));
        if (!m_filling)
            m_preferences.setSimilarityValue(value);
    });
    connect(ui->hsFeatures, &QSlider::valueChanged, this, [this](int value) {
        ui->lblFeaturesValue->setText(percent(value));
        if (!m_filling)
            m_preferences.setFeaturesValue(value);
    });
    connect(ui->sbImageWH, &QSpinBox::valueChanged, this, [this](int value) {
        if (!m_filling)
            m_preferences.setImageMinSize(value);
    });
    refresh();
}

DFGeneralWidget::~DFGeneralWidget() = default;

void DFGeneralWidget::setPreferences(const DFGenernalPreferences &preferences)
{
    m_preferences = preferences;
    refresh();
}

void DFGeneralWidget::refresh()
{
    m_filling = true;
    ui->chkEnableSimilar->setChecked(m_preferences.hasSimilar());
    switch (m_preferences.algorithmHint()) {
    case DFSelectionPreferences::rbHistogram:
        ui->rbHistogram->setChecked(true);
        break;
    case DFSelectionPreferences::rbPhash:
        ui->rbPhash->setChecked(true);
        break;
    case DFSelectionPreferences::rbRobust:
        ui->rbRobust->setChecked(true);
        break;
    default:
        ui->rbSmart->setChecked(true);
        break;
    }
    // The slider clamps a value outside its range; the label shows what the slider holds.
    ui->hsSimilarity->setValue(m_preferences.SimilarityValue());
    ui->lblSimilarityValue->setText(percent(ui->hsSimilarity->value()));
    ui->chkFeatures->setChecked(m_preferences.isAddFeatures());
    ui->hsFeatures->setValue(m_preferences.FeaturesValue());
    ui->lblFeaturesValue->setText(percent(ui->hsFeatures->value()));
    ui->chkImageType->setChecked(m_preferences.isImageType());
    ui->chkImageWH->setChecked(m_preferences.isImageSize());
    ui->sbImageWH->setValue(m_preferences.imageMinSize());
    ui->chkSelectedSimilar->setChecked(m_preferences.selectedSimilar());
    switch (m_preferences.selectionHint()) {
    case DFSelectionPreferences::selectHighResolution:
        ui->rbHighResolution->setChecked(true);
        break;
    case DFSelectionPreferences::selectLowResolution:
        ui->rbLowResolution->setChecked(true);
        break;
    case DFSelectionPreferences::selectHighQuality:
        ui->rbHighQuality->setChecked(true);
        break;
    case DFSelectionPreferences::selectLowQuality:
        ui->rbLowQuality->setChecked(true);
        break;
    default:
        ui->rbFollowDuplicateRules->setChecked(true);
        break;
    }
    updateEnabled();
    m_filling = false;
}

void DFGeneralWidget::updateEnabled()
{
    const bool on = ui->chkEnableSimilar->isChecked();
    for (QWidget *widget : findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        if (widget != ui->chkEnableSimilar)
            widget->setEnabled(on);
    }
    if (!on)
        return;
    // The robust comparison checks its pairs by their key points itself.
    const bool robust = ui->rbRobust->isChecked();
    ui->chkFeatures->setEnabled(!robust);
    ui->chkFeatures->setToolTip(robust
            ? tr("The robust comparison checks every uncertain pair by its key points itself.")
            : QString());
    ui->hsFeatures->setEnabled(!robust && ui->chkFeatures->isChecked());
    ui->lblFeaturesValue->setEnabled(!robust && ui->chkFeatures->isChecked());
    ui->lblFeaturesTip->setEnabled(!robust);
    // Under the robust measure the pass mark is the lowest similarity a match may show.
    if (robust) {
        ui->lblSimilarity->setText(tr("Lowest similarity"));
        ui->lblSimilarityTip->setText(tr("The robust comparison shows a match only when the "
                                         "pictures are at least this similar."));
    } else {
        // The form's own texts, in the form's translation context.
        ui->lblSimilarity->setText(QCoreApplication::translate("Genernal", "Histogram similarity"));
        ui->lblSimilarityTip->setText(QCoreApplication::translate("Genernal",
            "The basic algorithm detects similar images quickly but vaguely, the larger the "
            "value, the higher the similarty."));
    }
    ui->sbImageWH->setEnabled(ui->chkImageWH->isChecked());
    const bool rules = ui->chkSelectedSimilar->isChecked();
    for (QRadioButton *button : {ui->rbFollowDuplicateRules, ui->rbHighResolution,
             ui->rbLowResolution, ui->rbHighQuality, ui->rbLowQuality})
        button->setEnabled(rules);
}

void DFGeneralWidget::retranslate()
{
    ui->retranslateUi(this);
    refresh();
}
