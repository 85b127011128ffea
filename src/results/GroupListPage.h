// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QListView;
class TImageModel;

// A plain window listing the groups of the last scan (name, copies, size), opened when
// a scan ends with results. It reads the groups through a group model of its own.
class GroupListPage : public QWidget
{
    Q_OBJECT
public:
    explicit GroupListPage(QWidget *parent = nullptr);
    ~GroupListPage() override;

    TImageModel *model() const { return m_model; }
    int groupCount() const;

signals:
    // update: whether the results changed while the page was open.
    void closed(bool update);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    TImageModel *m_model = nullptr;
    QListView *m_list = nullptr;
    QLabel *m_summary = nullptr;
};
