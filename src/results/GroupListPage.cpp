// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/GroupListPage.h"

#include "results/TImageModel.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace {

// One line per group: the name, then the number of copies and the size.
class GroupLineDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
        const QModelIndex &index) const override
    {
        // The row background and selection come from the style; the texts are drawn here.
        QStyleOptionViewItem plain(option);
        initStyleOption(&plain, index);
        plain.text.clear();
        plain.state &= ~QStyle::State_HasFocus;
        const QWidget *widget = option.widget;
        QStyle *style = widget ? widget->style() : QApplication::style();
        style->drawControl(QStyle::CE_ItemViewItem, &plain, painter, widget);
        const QRect text = option.rect.adjusted(10, 0, -10, 0);
        const QString detail = GroupListPage::tr("%1 copies, %2")
                                   .arg(index.data(TImageModel::CountRole).toInt())
                                   .arg(index.data(TImageModel::SizeTextRole).toString());
        painter->save();
        painter->drawText(text, Qt::AlignVCenter | Qt::AlignLeft,
            option.fontMetrics.elidedText(index.data(TImageModel::NameRole).toString(),
                Qt::ElideMiddle, text.width() * 2 / 3));
        painter->drawText(text, Qt::AlignVCenter | Qt::AlignRight, detail);
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QSize(QStyledItemDelegate::sizeHint(option, index).width(), 32);
    }
};

} // namespace

GroupListPage::GroupListPage(QWidget *parent)
    : QWidget(parent), m_model(new TImageModel(TImageModel::ListView, 50))
{
    setObjectName(QStringLiteral("GroupListPage"));
    setWindowTitle(tr("Scan results"));
    m_model->loadAllGroups(BySize);

    m_summary = new QLabel(this);
    m_summary->setObjectName(QStringLiteral("lab_summary"));
    qint64 total = 0;
    for (const GroupItem &group : m_model->allGroups())
        total += group.totalSize;
    m_summary->setText(tr("%n group(s) of duplicates, %1 in all", nullptr, m_model->rowCount())
                           .arg(TImageModel::sizeText(total)));

    m_list = new QListView(this);
    m_list->setObjectName(QStringLiteral("listview_groups"));
    m_list->setItemDelegate(new GroupLineDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setModel(m_model);

    auto *back = new QPushButton(tr("Back"), this);
    back->setObjectName(QStringLiteral("btn_back"));
    connect(back, &QPushButton::clicked, this, &QWidget::close);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_summary);
    layout->addWidget(m_list, 1);
    layout->addWidget(back, 0, Qt::AlignRight);
    resize(900, 600);
}

GroupListPage::~GroupListPage()
{
    delete m_model;
}

int GroupListPage::groupCount() const
{
    return m_model->rowCount();
}

void GroupListPage::closeEvent(QCloseEvent *event)
{
    emit closed(false);
    QWidget::closeEvent(event);
}
