// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ScanTree.h"
#include "results/PicturePreviewDialog.h"
#include "results/PicturePreviewPane.h"
#include "results/PreviewCanvas.h"
#include "results/TImageItemDelegate.h"
#include "results/TImageListView.h"
#include "results/TImageModel.h"

#include <QCheckBox>
#include <QLabel>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class tst_TImageListView : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_dir = new QTemporaryDir;
        auto write = [this](const char *name, int width, int height) {
            QImage picture(width, height, QImage::Format_RGB32);
            picture.fill(QColor(90, 140, 200));
            QVERIFY(picture.save(m_dir->filePath(QLatin1String(name))));
        };
        write("a.png", 640, 480);
        write("b.jpg", 320, 200);
        write("c.png", 400, 200);
        m_model = new TImageModel(TImageModel::IconView, 2000);
        m_view = new TImageListView;
        m_view->resize(800, 600);
        show({item("a.png"), item("b.jpg", 93), item("c.png", 88)});
    }

    void cleanup()
    {
        delete m_view;
        delete m_model;
        delete m_dir;
    }

    void spaceTogglesChecks_data()
    {
        QTest::addColumn<QList<int>>("checkedBefore");
        QTest::addColumn<QList<int>>("selected");
        QTest::addColumn<QList<int>>("checkedAfter");
        QTest::newRow("current unchecked") << QList<int>() << QList<int>() << QList<int> {0};
        QTest::newRow("current checked") << QList<int> {0} << QList<int>() << QList<int>();
        QTest::newRow("selection follows the current")
            << QList<int> {1} << QList<int> {0, 1, 2} << QList<int> {0, 1, 2};
        QTest::newRow("selection of checked")
            << QList<int> {0, 2} << QList<int> {0, 1, 2} << QList<int>();
    }
    void spaceTogglesChecks()
    {
        QFETCH(QList<int>, checkedBefore);
        QFETCH(QList<int>, selected);
        QFETCH(QList<int>, checkedAfter);
        for (int row : checkedBefore)
            m_model->setData(m_model->index(row, 0), true, TImageModel::CheckedRole);
        for (int row : selected)
            m_view->selectionModel()->select(m_model->index(row, 0), QItemSelectionModel::Select);
        QSignalSpy reported(m_model, &TImageModel::onItemSelectedChange);
        QTest::keyClick(m_view, Qt::Key_Space);
        for (int row = 0; row < 3; ++row)
            QCOMPARE(m_model->index(row, 0).data(TImageModel::CheckedRole).toBool(),
                checkedAfter.contains(row));
        QCOMPARE(reported.count(), std::max<qsizetype>(1, selected.size()));
        for (const QList<QVariant> &signal : std::as_const(reported))
            QVERIFY(signal.at(4).toBool());
    }

    void mouseOnCell_data()
    {
        QTest::addColumn<bool>("onCheckBox");
        QTest::addColumn<bool>("doubleClick");
        QTest::addColumn<bool>("toggled");
        QTest::addColumn<bool>("previewOpened");
        QTest::newRow("click on the box") << true << false << true << false;
        QTest::newRow("click on the picture") << false << false << false << false;
        QTest::newRow("double click on the picture") << false << true << false << true;
        QTest::newRow("double click on the box") << true << true << false << false;
    }
    void mouseOnCell()
    {
        QFETCH(bool, onCheckBox);
        QFETCH(bool, doubleClick);
        QFETCH(bool, toggled);
        QFETCH(bool, previewOpened);
        const QRect cell = m_view->visualRect(m_model->index(1, 0));
        const QPoint at = onCheckBox ? m_view->imageDelegate()->checkRect(cell).center()
                                     : m_view->imageDelegate()->tileRect(cell).center();
        if (doubleClick) {
            // A double click comes as a click, then a second press delivered as a double click
            // and its release.
            QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, at);
            QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, {}, at);
            QTest::mouseRelease(m_view->viewport(), Qt::LeftButton, {}, at);
        } else {
            QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, at);
        }
        QCOMPARE(m_model->index(1, 0).data(TImageModel::CheckedRole).toBool(), toggled);
        QCOMPARE(m_view->preview() != nullptr, previewOpened);
        // Ticking a box leaves the selection alone; a click on the picture selects it.
        QCOMPARE(m_view->selectionModel()->isSelected(m_model->index(1, 0)), !onCheckBox);
    }

    void enterOpensSideBySidePreview_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<QString>("chosenResolution");
        QTest::addColumn<QStringList>("otherResolutions");
        QTest::newRow("first file")
            << 0 << QString("640 × 480") << QStringList {"320 × 200", "400 × 200", "320 × 200"};
        QTest::newRow("last file wraps")
            << 2 << QString("400 × 200") << QStringList {"640 × 480", "320 × 200", "640 × 480"};
    }
    void enterOpensSideBySidePreview()
    {
        QFETCH(int, start);
        QFETCH(QString, chosenResolution);
        QFETCH(QStringList, otherResolutions);
        m_view->setCurrentIndex(m_model->index(start, 0));
        QSignalSpy requested(m_view, &TImageListView::previewRequested);
        QTest::keyClick(m_view, Qt::Key_Return);
        QCOMPARE(requested.count(), 1);
        PicturePreviewDialog *preview = m_view->preview();
        QVERIFY(preview);
        QVERIFY(QTest::qWaitForWindowExposed(preview));
        QTRY_VERIFY(!preview->chosenPane()->isLoading());
        QCOMPARE(detail(preview->chosenPane(), "lab_previewResolution"), chosenResolution);
        QVERIFY(preview->chosenPane()->canvas()->hasPicture());
        for (const QString &resolution : otherResolutions) {
            QTRY_VERIFY(!preview->otherPane()->isLoading());
            QCOMPARE(detail(preview->otherPane(), "lab_previewResolution"), resolution);
            QVERIFY(preview->otherRow() != start);
            QTest::keyClick(preview, Qt::Key_Right);
        }

        // The box on the right marks that file, and follows changes made elsewhere.
        QSignalSpy reported(m_model, &TImageModel::onItemSelectedChange);
        const QModelIndex other = m_model->index(preview->otherRow(), 0);
        QCheckBox *remove = preview->otherPane()->removeBox();
        remove->click();
        QVERIFY(other.data(TImageModel::CheckedRole).toBool());
        QCOMPARE(reported.count(), 1);
        m_model->setData(other, false, TImageModel::CheckedRole);
        QVERIFY(!remove->isChecked());

        QTest::keyClick(preview, Qt::Key_Escape);
        QTRY_VERIFY(!m_view->preview());
    }

    void previewOfFilesWithoutPicture_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("resolution");
        const QString unreadable = "This picture cannot be shown.";
        QTest::newRow("corrupt jpeg")
            << QString("broken.jpg") << QByteArray("\xff\xd8\xff\xe0 not a picture at all")
            << unreadable << QString("—");
        QTest::newRow("empty png")
            << QString("empty.png") << QByteArray() << unreadable << QString("—");
        QTest::newRow("text file")
            << QString("notes.txt") << QByteArray("words") << QString("TXT file") << QString();
    }
    void previewOfFilesWithoutPicture()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QString, message);
        QFETCH(QString, resolution);
        QVERIFY(!ScanTree::write(m_dir->path(), name, content).isEmpty());
        show({item(name), item("a.png")});
        m_view->openPreview(m_model->index(0, 0));
        PicturePreviewPane *pane = m_view->preview()->chosenPane();
        QTRY_VERIFY(!pane->isLoading());
        QVERIFY(!pane->canvas()->hasPicture());
        QCOMPARE(pane->canvas()->message(), message);
        QCOMPARE(detail(pane, "lab_previewResolution"), resolution);
        QCOMPARE(detail(pane, "lab_previewName"), name);
    }

    void gridCellsFillTheLine_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("side");
        QTest::newRow("narrow, smallest") << 300 << TImageListView::kMinThumbnailSize;
        QTest::newRow("wide, default") << 1366 << TImageListView::kDefaultThumbnailSize;
        QTest::newRow("wide, largest") << 1920 << TImageListView::kMaxThumbnailSize;
        QTest::newRow("medium") << 1000 << 200;
    }
    void gridCellsFillTheLine()
    {
        QFETCH(int, width);
        QFETCH(int, side);
        QList<ImageItem> items;
        for (int i = 0; i < 40; ++i)
            items << item("a.png");
        show(items);
        m_view->setThumbnailSize(side);
        m_view->resize(width, 600);
        QTest::qWait(250); // the list lays out again a moment after a resize
        int perLine = 0;
        while (perLine < 40
            && m_view->visualRect(m_model->index(perLine, 0)).top()
                == m_view->visualRect(m_model->index(0, 0)).top())
            ++perLine;
        const QRect last = m_view->visualRect(m_model->index(perLine - 1, 0));
        const int cellWidth = last.width();
        QVERIFY(cellWidth >= side + 2 * TImageItemDelegate::kPadding);
        // No room for one more cell is left, and the line stays inside the view.
        QVERIFY(last.right() < m_view->viewport()->width());
        QVERIFY2(m_view->viewport()->width() - last.right() < cellWidth / 2 + 24,
            qPrintable(QString::asprintf("%d cells of %d leave %d px", perLine, cellWidth,
                m_view->viewport()->width() - last.right())));
    }

    void flowCellsTakeThePictureShape()
    {
        m_view->setArrangement(TImageListView::Arrangement::Flow);
        for (int row = 0; row < 3; ++row)
            QTRY_VERIFY(m_model->hasThumbnail(
                m_model->index(row, 0).data(TImageModel::FilePathRole).toString()));
        auto width = [this](int row) { return m_view->visualRect(m_model->index(row, 0)).width(); };
        const int side = m_view->thumbnailSize();
        const int padding = 2 * TImageItemDelegate::kPadding;
        // One line, the last: 4:3, 16:10 and 2:1 pictures at their own shapes.
        m_view->resize(1400, 600);
        QTRY_COMPARE(width(2), 2 * side + padding);
        QCOMPARE(width(0), side * 4 / 3 + padding);
        QCOMPARE(width(1), side * 16 / 10 + padding);
        // Two lines: the full one is widened to the end of the line, the last one is not.
        m_view->resize(700, 600);
        QTRY_VERIFY(m_view->visualRect(m_model->index(2, 0)).top()
            > m_view->visualRect(m_model->index(0, 0)).bottom());
        QCOMPARE(width(2), 2 * side + padding);
        QVERIFY(width(0) > side * 4 / 3 + padding);
        const int gap
            = m_view->viewport()->width() - m_view->visualRect(m_model->index(1, 0)).right();
        QVERIFY2(gap > 0 && gap < 24, qPrintable(QString::number(gap)));
    }

    void scrollingCancelsLoadsOutOfView()
    {
        show(slowItems(1000));
        QCOMPARE(m_model->rowCount(), 1000);
        QScrollBar *bar = m_view->verticalScrollBar();
        for (int step = 1; step <= 5; ++step) {
            bar->setValue(bar->maximum() * step / 5);
            QTest::qWait(30);
        }
        QTest::qWait(TImageListView::kCancelDelayMs * 2);
        const auto [first, last] = m_view->visibleRows();
        QVERIFY(first >= 0);
        QVERIFY2(m_model->pendingLoadCount() <= last - first + 1,
            qPrintable(QString::asprintf("%d loads pending for %d rows in view",
                m_model->pendingLoadCount(), last - first + 1)));
    }

    void repaintDoesNotWaitForLoads()
    {
        show(slowItems(200));
        // Painting scaled thumbnails is what the paint engine shares out among threads.
        QTRY_VERIFY(
            m_model->hasThumbnail(m_model->index(0, 0).data(TImageModel::FilePathRole).toString()));
        QTRY_COMPARE(m_model->pendingLoadCount(), 0);
        // Loads left queued, as by a fast scroll, before the view cancels them. A repaint that
        // waited for them would find the queue drained when it returns.
        for (int row = 0; row < 200; ++row)
            m_model->data(m_model->index(row, 0), TImageModel::ThumbnailRole);
        m_view->viewport()->repaint();
        QVERIFY(m_model->pendingLoadCount() > 100);
    }

private:
    ImageItem item(const QString &name, int similarity = 0) const
    {
        ImageItem item;
        item.key = "G";
        item.path = m_dir->filePath(name);
        item.size = QFileInfo(item.path).size();
        item.type = name.endsWith(QLatin1String(".txt")) ? 2 : 1;
        item.similarity = similarity;
        return item;
    }
    QList<ImageItem> slowItems(int count) const
    {
        // A large noisy picture is slow to decode, so loads stay queued for a while.
        QImage noise(2400, 1800, QImage::Format_RGB32);
        for (int y = 0; y < noise.height(); ++y)
            QRandomGenerator::global()->fillRange(
                reinterpret_cast<quint32 *>(noise.scanLine(y)), noise.width());
        const QString picture = m_dir->filePath("noise.png");
        QList<ImageItem> items;
        if (!noise.save(picture, "PNG", 50))
            return items;
        for (int i = 0; i < count; ++i) {
            const QString name = QStringLiteral("p%1.png").arg(i);
            if (QFile::link(picture, m_dir->filePath(name)))
                items << item(name);
        }
        return items;
    }
    void show(const QList<ImageItem> &items)
    {
        m_model->setItems(items);
        m_view->setModel(m_model);
        m_view->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_view));
        m_view->setCurrentIndex(m_model->index(0, 0));
    }
    static QString detail(PicturePreviewPane *pane, const char *name)
    {
        const auto *label = pane->findChild<QLabel *>(QLatin1String(name));
        return label && label->isVisibleTo(pane) ? label->text() : QString();
    }

    QTemporaryDir *m_dir = nullptr;
    TImageModel *m_model = nullptr;
    TImageListView *m_view = nullptr;
};

QTEST_MAIN(tst_TImageListView)
#include "tst_TImageListView.moc"
