// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/TImageListView.h"

#include "results/PicturePreviewDialog.h"
#include "results/TImageItemDelegate.h"
#include "results/TImageModel.h"

#include <algorithm>

#include <QKeyEvent>
#include <QScrollBar>

namespace {

constexpr int kSpacing = 4;
constexpr int kRelayoutDelayMs = 150;

} // namespace

TImageListView::TImageListView(QWidget *parent)
    : QListView(parent), m_delegate(new TImageItemDelegate(this))
{
    setObjectName(QStringLiteral("listview_images"));
    setItemDelegate(m_delegate);
    setViewMode(IconMode);
    // Icon mode lets the user drag cells about; the cells here keep the model's order.
    setMovement(Static);
    setFlow(LeftToRight);
    setWrapping(true);
    setResizeMode(Adjust);
    setSpacing(kSpacing);
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setMouseTracking(true);
    m_delegate->setThumbnailSize(m_side);

    m_cancelTimer.setSingleShot(true);
    m_cancelTimer.setInterval(kCancelDelayMs);
    connect(&m_cancelTimer, &QTimer::timeout, this, &TImageListView::cancelLoadsOutOfView);
    m_relayoutTimer.setSingleShot(true);
    m_relayoutTimer.setInterval(kRelayoutDelayMs);
    connect(&m_relayoutTimer, &QTimer::timeout, this, [this] { scheduleDelayedItemsLayout(); });
    connect(this, &TImageListView::previewRequested, this, &TImageListView::openPreview);
}

void TImageListView::setModel(QAbstractItemModel *model)
{
    QListView::setModel(model);
    m_images = qobject_cast<TImageModel *>(model);
    m_delegate->forgetDimensions();
    m_cancelTimer.start();
}

void TImageListView::setArrangement(Arrangement arrangement)
{
    if (m_arrangement == arrangement)
        return;
    m_arrangement = arrangement;
    m_delegate->setFollowAspectRatio(arrangement == Arrangement::Flow);
    setUniformItemSizes(arrangement == Arrangement::Grid);
    relayout();
}

void TImageListView::setThumbnailSize(int side)
{
    side = std::clamp(side, kMinThumbnailSize, kMaxThumbnailSize);
    if (m_side == side)
        return;
    m_side = side;
    m_delegate->setThumbnailSize(side);
    relayout();
}

void TImageListView::relayout()
{
    scheduleDelayedItemsLayout();
    m_cancelTimer.start();
}

int TImageListView::lineWidth() const
{
    // The list keeps room for the scroll bar whether or not the bar shows, so the lines
    // do not change when it comes and goes.
    int width = maximumViewportSize().width();
    if (verticalScrollBarPolicy() == Qt::ScrollBarAsNeeded)
        width -= style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, verticalScrollBar());
    return width;
}

void TImageListView::doItemsLayout()
{
    updateCellWidth();
    updateFlowWidths();
    QListView::doItemsLayout();
}

void TImageListView::updateCellWidth()
{
    if (m_arrangement != Arrangement::Grid) {
        m_delegate->setCellWidth(0);
        return;
    }
    // The cells share out the whole width of a line instead of leaving a ragged gap on
    // the right. A cell fits while its right edge plus the spacing stays short of the
    // line's end.
    const int natural = m_side + 2 * TImageItemDelegate::kPadding;
    const int room = lineWidth() - kSpacing - 1;
    const int columns = std::max(1, room / (natural + kSpacing));
    m_delegate->setCellWidth(std::max(natural, room / columns - kSpacing));
}

void TImageListView::updateFlowWidths()
{
    QList<int> widths;
    if (m_arrangement != Arrangement::Flow || !model()) {
        m_delegate->setFlowWidths(widths);
        return;
    }
    // Lines are broken where the list will break them, then every full line is widened
    // to end at the same place; the last line keeps its natural widths.
    const int rows = model()->rowCount(rootIndex());
    widths.reserve(rows);
    for (int row = 0; row < rows; ++row)
        widths << m_delegate->naturalWidth(model()->index(row, 0, rootIndex()));
    const int room = lineWidth() - kSpacing - 1;
    int start = 0;
    while (start < rows) {
        int end = start;
        int used = 0;
        while (end < rows && (end == start || used + widths.at(end) + kSpacing <= room)) {
            used += widths.at(end) + kSpacing;
            ++end;
        }
        if (end < rows) {
            const int count = end - start;
            const int extra = std::max(0, room - used);
            for (int i = 0; i < count; ++i)
                widths[start + i] += extra / count + (i < extra % count ? 1 : 0);
        }
        start = end;
    }
    m_delegate->setFlowWidths(widths);
}

void TImageListView::resizeEvent(QResizeEvent *event)
{
    QListView::resizeEvent(event);
    m_cancelTimer.start();
}

void TImageListView::scrollContentsBy(int dx, int dy)
{
    QListView::scrollContentsBy(dx, dy);
    m_cancelTimer.start();
}

void TImageListView::dataChanged(
    const QModelIndex &topLeft, const QModelIndex &bottomRight, const QList<int> &roles)
{
    QListView::dataChanged(topLeft, bottomRight, roles);
    if (m_arrangement == Arrangement::Flow
        && (roles.isEmpty() || roles.contains(TImageModel::ThumbnailRole)))
        m_relayoutTimer.start();
}

void TImageListView::rowsInserted(const QModelIndex &parent, int start, int end)
{
    QListView::rowsInserted(parent, start, end);
    m_cancelTimer.start();
}

void TImageListView::reset()
{
    QListView::reset();
    m_delegate->forgetDimensions();
    m_cancelTimer.start();
}

QPair<int, int> TImageListView::visibleRows() const
{
    const int rows = model() ? model()->rowCount(rootIndex()) : 0;
    if (rows == 0)
        return {-1, -1};
    const int height = viewport()->height();
    auto rectOf = [this](int row) { return visualRect(model()->index(row, 0, rootIndex())); };
    // Lines of cells run top to bottom in row order, so both ends are found by halving.
    int low = 0, high = rows;
    while (low < high) {
        const int middle = (low + high) / 2;
        if (rectOf(middle).bottom() < 0)
            low = middle + 1;
        else
            high = middle;
    }
    const int first = low;
    high = rows;
    while (low < high) {
        const int middle = (low + high) / 2;
        if (rectOf(middle).top() < height)
            low = middle + 1;
        else
            high = middle;
    }
    const int last = low - 1;
    if (first >= rows || last < first)
        return {-1, -1};
    return {first, last};
}

void TImageListView::cancelLoadsOutOfView()
{
    if (!m_images)
        return;
    const auto [first, last] = visibleRows();
    m_images->cancelPendingLoads(first, last);
}

void TImageListView::toggleChecks()
{
    if (!m_images)
        return;
    QModelIndex current = currentIndex();
    QModelIndexList targets
        = selectionModel() ? selectionModel()->selectedIndexes() : QModelIndexList();
    if (targets.size() < 2)
        targets = {current};
    if (!current.isValid())
        current = targets.first();
    if (!current.isValid())
        return;
    // One value for all, so a mixed selection ends up all checked or all unchecked.
    const bool next = !current.data(TImageModel::CheckedRole).toBool();
    for (const QModelIndex &index : std::as_const(targets))
        m_images->setData(index, next, TImageModel::CheckedRole, true);
}

void TImageListView::keyPressEvent(QKeyEvent *event)
{
    // With a modifier, Space keeps its list meaning (Ctrl+Space selects or deselects).
    const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
    switch (plain ? event->key() : 0) {
    case Qt::Key_Space:
        toggleChecks();
        event->accept();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (currentIndex().isValid())
            emit previewRequested(currentIndex());
        event->accept();
        return;
    default:
        QListView::keyPressEvent(event);
    }
}

void TImageListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPoint position = event->position().toPoint();
    const QModelIndex index = indexAt(position);
    if (index.isValid() && m_delegate->checkHitRect(visualRect(index)).contains(position)) {
        // A quick second click on the check box: the box takes it as a click of its own.
        mousePressEvent(event);
        return;
    }
    QListView::mouseDoubleClickEvent(event);
    if (index.isValid() && event->button() == Qt::LeftButton)
        emit previewRequested(index);
}

void TImageListView::openPreview(const QModelIndex &index)
{
    if (!m_images || !index.isValid() || index.model() != m_images.data())
        return;
    if (m_preview)
        m_preview->close();
    m_preview = new PicturePreviewDialog(m_images, index.row(), window());
    m_preview->setAttribute(Qt::WA_DeleteOnClose);
    m_preview->open();
}
