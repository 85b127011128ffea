// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "results/PicturePreviewDialog.h"

#include <QListView>
#include <QPair>
#include <QPointer>
#include <QTimer>

class TImageItemDelegate;
class TImageModel;

// The thumbnail grid of the open group's files, on a TImageModel in IconView mode.
// Thumbnails are asked for only by painting, so only cells in view start a load; after
// scrolling or resizing, the loads of rows that left the view are cancelled. Space
// toggles the checks, Enter or a double click asks for the large preview (which the
// view opens itself unless previewRequested is disconnected from openPreview).
class TImageListView : public QListView
{
    Q_OBJECT
public:
    enum class Arrangement {
        Grid, // uniform cells, square tiles
        Flow, // cells as wide as their picture's shape, so the thumbnails show larger
    };
    static constexpr int kMinThumbnailSize = 96;
    static constexpr int kMaxThumbnailSize = 256;
    static constexpr int kDefaultThumbnailSize = 160;
    // Pause after the last scroll step before loads out of view are cancelled.
    static constexpr int kCancelDelayMs = 80;

    explicit TImageListView(QWidget *parent = nullptr);

    void setModel(QAbstractItemModel *model) override;
    // Works out the cell widths for the current width before the list places the cells.
    void doItemsLayout() override;
    void reset() override;

    void setArrangement(Arrangement arrangement);
    Arrangement arrangement() const { return m_arrangement; }
    void setThumbnailSize(int side);
    int thumbnailSize() const { return m_side; }

    TImageItemDelegate *imageDelegate() const { return m_delegate; }
    // First and last rows with any part in view; (-1, -1) when none is.
    QPair<int, int> visibleRows() const;
    // The preview opened last, while it is open.
    PicturePreviewDialog *preview() const { return m_preview; }

public slots:
    void openPreview(const QModelIndex &index);
    // Flips the current file's check; with several files selected, sets all of them to
    // the opposite of the current file's check.
    void toggleChecks();

signals:
    void previewRequested(const QModelIndex &index);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
        const QList<int> &roles = QList<int>()) override;
    void rowsInserted(const QModelIndex &parent, int start, int end) override;

private:
    // Width the list lays its lines out in.
    int lineWidth() const;
    void updateCellWidth();
    void updateFlowWidths();
    void relayout();
    void cancelLoadsOutOfView();

    TImageItemDelegate *m_delegate = nullptr;
    QPointer<TImageModel> m_images;
    Arrangement m_arrangement = Arrangement::Grid;
    int m_side = kDefaultThumbnailSize;
    QTimer m_cancelTimer;
    // Flow cells change shape as thumbnails arrive; they are laid out again in batches.
    QTimer m_relayoutTimer;
    QPointer<PicturePreviewDialog> m_preview;
};
