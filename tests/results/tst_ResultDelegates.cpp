// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/CListViewDelegate.h"
#include "results/TImageModel.h"
#include "results/TTableViewDelegate.h"

#include <QHeaderView>
#include <QListView>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>

class tst_ResultDelegates : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_model = new TImageModel(TImageModel::IconView, 300);
        QList<ImageItem> items;
        for (int i = 0; i < 3; ++i) {
            ImageItem item;
            item.key = QStringLiteral("K");
            item.path = QStringLiteral("/files/%1.jpg").arg(i);
            item.groupIndex = 7;
            item.checked = i == 1;
            items << item;
        }
        m_model->setItems(items);
        m_view = new QTableView;
        m_delegate = new TTableViewDelegate(m_view);
        m_view->setItemDelegate(m_delegate);
        m_view->setModel(m_model);
        m_view->setMouseTracking(true);
        m_view->resize(700, 300);
        for (int c = 0; c < 6; ++c)
            m_view->setColumnWidth(c, 100);
        m_view->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_view));
    }

    void cleanup()
    {
        delete m_view;
        delete m_model;
    }

    void iconClick_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<bool>("dragOut");
        QTest::addColumn<int>("hides");
        QTest::addColumn<int>("opens");
        QTest::newRow("hide icon") << 4 << false << 1 << 0;
        QTest::newRow("open icon") << 5 << false << 0 << 1;
        QTest::newRow("hide icon, dragged out") << 4 << true << 0 << 0;
        QTest::newRow("open icon, dragged out") << 5 << true << 0 << 0;
    }
    void iconClick()
    {
        QFETCH(int, column);
        QFETCH(bool, dragOut);
        QFETCH(int, hides);
        QFETCH(int, opens);
        QSignalSpy hide(m_delegate, &TTableViewDelegate::hideClicked);
        QSignalSpy open(m_delegate, &TTableViewDelegate::openClicked);
        QWidget *viewport = m_view->viewport();
        const QPoint start = centreOf(0, column);
        QTest::mousePress(viewport, Qt::LeftButton, {}, start);
        QCOMPARE(m_delegate->pressedIndex(), m_model->index(0, column));
        QPoint end = start;
        if (dragOut) {
            // Out of the icon's cell and down onto the same column of the next row.
            end = centreOf(1, column);
            QTest::mouseMove(viewport, centreOf(0, 2));
            QTest::mouseMove(viewport, end);
        }
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, end);
        QCOMPARE(hide.count(), hides);
        QCOMPARE(open.count(), opens);
        QVERIFY(!m_delegate->pressedIndex().isValid());
        if (hides + opens == 1) {
            const QModelIndex fired = (hides ? hide : open).at(0).at(0).value<QModelIndex>();
            QCOMPARE(fired, m_model->index(0, column));
        }
    }

    void checkBoxToggles()
    {
        QSignalSpy selected(m_model, &TImageModel::onItemSelectedChange);
        QWidget *viewport = m_view->viewport();
        QTest::mouseClick(viewport, Qt::LeftButton, {}, centreOf(1, 0));
        QCOMPARE(m_model->index(1, 0).data(Qt::CheckStateRole).toInt(), 0);
        QCOMPARE(selected.count(), 1);
        QCOMPARE(selected.at(0).at(2).toBool(), false);
        QCOMPARE(selected.at(0).at(3).toInt(), 7);
        QCOMPARE(selected.at(0).at(4).toBool(), true);

        // The value already changed elsewhere: the click still reports it.
        m_model->setData(m_model->index(0, 0), 2, Qt::CheckStateRole);
        selected.clear();
        QTest::mouseClick(viewport, Qt::LeftButton, {}, centreOf(0, 0));
        QCOMPARE(m_model->index(0, 0).data(Qt::CheckStateRole).toInt(), 0);
        QCOMPARE(selected.count(), 1);
    }

    void doubleClickIsSwallowed()
    {
        QSignalSpy selected(m_model, &TImageModel::onItemSelectedChange);
        QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, {}, centreOf(2, 0));
        // However the events of a double click arrive, the box toggles at most once.
        QVERIFY(selected.count() <= 1);
        QCOMPARE(m_model->index(2, 0).data(Qt::CheckStateRole).toInt(), selected.count() ? 2 : 0);
    }

    void listDeleteHitArea_data()
    {
        QTest::addColumn<int>("fromRight");
        QTest::addColumn<bool>("deletes");
        // The picture covers the last 20 pixels; the press area is 5 pixels further left.
        QTest::newRow("rightmost pixel of the picture") << 0 << false;
        QTest::newRow("within the last five pixels") << 4 << false;
        QTest::newRow("inside both") << 10 << true;
        QTest::newRow("left of the picture by five") << 24 << true;
        QTest::newRow("left of the press area") << 25 << false;
    }
    void listDeleteHitArea()
    {
        QFETCH(int, fromRight);
        QFETCH(bool, deletes);
        QStandardItemModel folders;
        folders.appendRow(new QStandardItem(QStringLiteral("/home/a")));
        folders.appendRow(new QStandardItem(QStringLiteral("/home/b")));
        QListView list;
        auto *delegate = new CListViewDelegate(&list);
        list.setItemDelegate(delegate);
        list.setModel(&folders);
        list.resize(300, 200);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        QSignalSpy deleted(delegate, &CListViewDelegate::deleteItem);
        const QRect row = list.visualRect(folders.index(1, 0));
        const QPoint at(row.right() - fromRight, row.top() + 5);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
        QCOMPARE(deleted.count(), deletes ? 1 : 0);
        if (deletes)
            QCOMPARE(deleted.at(0).at(0).value<QModelIndex>(), folders.index(1, 0));
    }

private:
    QPoint centreOf(int row, int column) const
    {
        return m_view->visualRect(m_model->index(row, column)).center();
    }
    TImageModel *m_model = nullptr;
    QTableView *m_view = nullptr;
    TTableViewDelegate *m_delegate = nullptr;
};

QTEST_MAIN(tst_ResultDelegates)
#include "tst_ResultDelegates.moc"
