// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/PicturePreviewPane.h"

#include "app/FileTypeCatalogue.h"
#include "pictures/TReadImage.h"
#include "results/PreviewCanvas.h"
#include "results/TImageModel.h"

#include <QCheckBox>
#include <QDir>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QGridLayout>
#include <QImageReader>
#include <QLabel>
#include <QResizeEvent>
#include <QStyle>
#include <QVBoxLayout>
#include <QtConcurrent>

namespace {

constexpr int kHeaderHeight = 30;

// One line of text cut in the middle to the label's width; the whole text stays in the
// tooltip unless the caller gives another.
class ElidingLabel : public QLabel
{
public:
    explicit ElidingLabel(QWidget *parent) : QLabel(parent)
    {
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        setTextFormat(Qt::PlainText);
    }

    void setFullText(const QString &text)
    {
        m_full = text;
        refresh();
    }

    QSize minimumSizeHint() const override { return QSize(40, QLabel::minimumSizeHint().height()); }

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        QLabel::resizeEvent(event);
        refresh();
    }

private:
    void refresh() { setText(fontMetrics().elidedText(m_full, Qt::ElideMiddle, width())); }

    QString m_full;
};

} // namespace

PicturePreviewPane::PicturePreviewPane(const QString &caption, QWidget *parent) : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);

    // Both sides' headers keep one height, whatever controls they hold, so the two
    // pictures line up.
    auto *header = new QWidget(this);
    header->setFixedHeight(kHeaderHeight);
    m_header = new QHBoxLayout(header);
    m_header->setContentsMargins(0, 0, 0, 0);
    auto *title = new QLabel(caption, header);
    title->setObjectName(QStringLiteral("lab_previewCaption"));
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    m_header->addWidget(title);
    m_header->addStretch(1);
    layout->addWidget(header);

    m_canvas = new PreviewCanvas(this);
    m_canvas->setObjectName(QStringLiteral("canvas_preview"));
    layout->addWidget(m_canvas, 1);

    auto *name = new ElidingLabel(this);
    name->setObjectName(QStringLiteral("lab_previewName"));
    QFont larger = bold;
    if (larger.pixelSize() > 0)
        larger.setPixelSize(larger.pixelSize() + 1);
    else
        larger.setPointSizeF(larger.pointSizeF() + 1);
    name->setFont(larger);
    m_name = name;
    layout->addSpacing(4);
    layout->addWidget(m_name);
    auto *folder = new ElidingLabel(this);
    folder->setObjectName(QStringLiteral("lab_previewFolder"));
    folder->setStyleSheet(QStringLiteral("color: #6b7385;"));
    m_folder = folder;
    layout->addWidget(m_folder);

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(3);
    m_size = addDetail(grid, 0, 0, tr("Size"), "lab_previewSize");
    m_resolution = addDetail(grid, 0, 2, tr("Resolution"), "lab_previewResolution");
    m_date = addDetail(grid, 1, 0, tr("Modified"), "lab_previewDate");
    m_similarity = addDetail(grid, 1, 2, tr("Similarity"), "lab_previewSimilarity");
    m_reason = addDetail(grid, 2, 0, tr("Matched by"), "lab_previewReason");
    // The reason is the longest detail (at most some sixty characters): it takes the
    // whole row.
    grid->addWidget(m_reason, 2, 1, 1, 3);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    layout->addLayout(grid);

    m_remove = new QCheckBox(tr("Remove this copy"), this);
    m_remove->setObjectName(QStringLiteral("chk_previewRemove"));
    layout->addSpacing(2);
    layout->addWidget(m_remove);
    connect(m_remove, &QCheckBox::toggled, this, [this](bool checked) {
        if (m_model && m_index.isValid())
            m_model->setData(m_index, checked, TImageModel::CheckedRole, true);
    });
    m_decoder.setMaxThreadCount(1);
    connect(&m_watcher, &QFutureWatcher<Decoded>::finished, this, &PicturePreviewPane::showDecoded);
}

QLabel *PicturePreviewPane::addDetail(
    QGridLayout *grid, int row, int column, const QString &caption, const char *objectName)
{
    auto *title = new QLabel(caption, this);
    title->setStyleSheet(QStringLiteral("color: #6b7385;"));
    auto *value = new QLabel(this);
    value->setObjectName(QLatin1String(objectName));
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    grid->addWidget(title, row, column);
    grid->addWidget(value, row, column + 1);
    m_captions.insert(value, title);
    return value;
}

void PicturePreviewPane::setDetailVisible(QLabel *value, bool visible)
{
    value->setVisible(visible);
    m_captions.value(value)->setVisible(visible);
}

PicturePreviewPane::Decoded PicturePreviewPane::decode(const QString &file)
{
    int width = 0, height = 0;
    const cv::Mat mat = TReadImage::readImage(file, &width, &height);
    if (mat.empty())
        return {};
    Decoded decoded;
    decoded.picture = TReadImage::mat2QImage(mat);
    // The header tells the true size; the decoders may have read a reduced picture.
    const QSize header = QImageReader(file).size();
    decoded.size = header.isValid() ? header : QSize(width, height);
    return decoded;
}

void PicturePreviewPane::showRow(TImageModel *model, int row)
{
    if (m_model != model) {
        disconnect(m_modelWatch);
        m_model = model;
        m_modelWatch = connect(model, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex &topLeft, const QModelIndex &bottomRight) {
                if (m_index.isValid() && topLeft.row() <= m_index.row()
                    && m_index.row() <= bottomRight.row())
                    syncCheck();
            });
    }
    m_index = model->index(row, 0);
    const QString file = m_index.data(TImageModel::FilePathRole).toString();
    const QFileInfo info(file);
    const QString native = QDir::toNativeSeparators(info.absoluteFilePath());
    static_cast<ElidingLabel *>(m_name)->setFullText(info.fileName());
    m_name->setToolTip(info.fileName());
    static_cast<ElidingLabel *>(m_folder)->setFullText(
        QDir::toNativeSeparators(info.absolutePath()));
    m_folder->setToolTip(native);
    m_size->setText(m_index.data(TImageModel::SizeTextRole).toString());
    m_date->setText(m_index.data(TImageModel::DateRole).toString());
    const int similarity = m_index.data(TImageModel::SimilarityRole).toInt();
    const bool unverified = m_index.data(TImageModel::UnverifiedRole).toBool();
    m_similarity->setText(unverified ? tr("Not verified") : tr("%1%").arg(similarity));
    m_similarity->setToolTip(unverified
            ? tr("Only parts of these files (or only their names) were compared: they may "
                 "differ. A scan that compares whole files verifies them.")
            : QString());
    setDetailVisible(m_similarity, similarity > 0);
    const QString reason = m_index.data(TImageModel::MatchReasonRole).toString();
    m_reason->setText(reason);
    m_reason->setToolTip(reason);
    setDetailVisible(m_reason, !reason.isEmpty());
    syncCheck();

    const bool picture
        = m_index.data(TImageModel::TypeRole).toInt() == CategoryImages || isImageFile(file);
    setDetailVisible(m_resolution, picture);
    if (!picture) {
        m_loading = false;
        m_watcher.setFuture(QFuture<Decoded>());
        const QString kind
            = info.suffix().isEmpty() ? QString() : tr("%1 file").arg(info.suffix().toUpper());
        m_canvas->showMessage(kind, QFileIconProvider().icon(info));
        emit loaded();
        return;
    }
    m_loading = true;
    m_resolution->setText(QStringLiteral("…"));
    m_canvas->showMessage(tr("Loading…"));
    // Only the path crosses to the pool; the result comes back through the watcher.
    m_decoder.clear();
    m_watcher.setFuture(QtConcurrent::run(&m_decoder, [file] { return decode(file); }));
}

void PicturePreviewPane::showDecoded()
{
    const QFuture<Decoded> future = m_watcher.future();
    if (!future.isValid() || future.resultCount() == 0)
        return;
    const Decoded decoded = future.result();
    m_loading = false;
    if (decoded.picture.isNull()) {
        m_resolution->setText(QStringLiteral("—"));
        m_canvas->showMessage(tr("This picture cannot be shown."),
            style()->standardIcon(QStyle::SP_MessageBoxWarning));
    } else {
        m_resolution->setText(
            QStringLiteral("%1 × %2").arg(decoded.size.width()).arg(decoded.size.height()));
        m_canvas->showPicture(decoded.picture);
    }
    emit loaded();
}

void PicturePreviewPane::syncCheck()
{
    const QSignalBlocker quiet(m_remove);
    m_remove->setChecked(m_index.isValid() && m_index.data(TImageModel::CheckedRole).toBool());
    const bool locked = m_index.data(TImageModel::ProtectedRole).toBool();
    m_remove->setEnabled(m_index.isValid() && !locked);
    m_remove->setToolTip(locked ? TImageModel::protectedText() : QString());
}
