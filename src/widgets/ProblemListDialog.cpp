// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ProblemListDialog.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

ProblemListDialog::ProblemListDialog(const QList<Section> &sections, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("ProblemListDialog"));
    setWindowTitle(tr("Not Scanned"));
    auto *layout = new QVBoxLayout(this);
    auto *intro = new QLabel(
        tr("These items were left out of the scan. Duplicates among them were not looked for."),
        this);
    intro->setObjectName(QStringLiteral("lab_problemIntro"));
    intro->setWordWrap(true);
    layout->addWidget(intro);

    m_list = new QPlainTextEdit(this);
    m_list->setObjectName(QStringLiteral("text_problemList"));
    m_list->setReadOnly(true);
    m_list->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_list->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_list->setPlainText(textFor(sections));
    layout->addWidget(m_list, 1);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton *copy = buttons->addButton(tr("Copy List"), QDialogButtonBox::ActionRole);
    copy->setObjectName(QStringLiteral("btn_copyProblems"));
    connect(copy, &QPushButton::clicked, this, &ProblemListDialog::copyAll);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    resize(720, 440);
}

QString ProblemListDialog::textFor(const QList<Section> &sections)
{
    QStringList lines;
    for (const Section &section : sections) {
        if (section.count <= 0)
            continue;
        if (!lines.isEmpty())
            lines << QString();
        lines << QStringLiteral("%1 (%2)").arg(section.title).arg(section.count);
        for (const QString &path : section.paths)
            lines << QStringLiteral("    ") + QDir::toNativeSeparators(path);
        const qint64 more = section.count - section.paths.size();
        if (more > 0)
            lines << QStringLiteral("    ")
                    + tr("... and %n more", nullptr, int(qMin<qint64>(more, INT_MAX)));
    }
    return lines.join(QLatin1Char('\n'));
}

QString ProblemListDialog::text() const
{
    return m_list->toPlainText();
}

void ProblemListDialog::copyAll()
{
    QApplication::clipboard()->setText(text());
}
