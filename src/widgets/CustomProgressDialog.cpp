// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/CustomProgressDialog.h"

#include "widgets/RoundProgressBar.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

CustomProgressDialog::CustomProgressDialog(const QString &title, QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("CustomProgressDialog"));
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setModal(true);
    setWindowTitle(title);

    m_title = new QLabel(title, this);
    m_title->setObjectName(QStringLiteral("lab_progressTitle"));
    m_ring = new RoundProgressBar(this);
    m_ring->setWidths(10.0, 8.0);
    m_ring->setPaintFlags(
        RoundProgressBar::Ring | RoundProgressBar::GradientArc | RoundProgressBar::EndDot);
    m_ring->setFixedSize(96, 96);
    m_percent = new QLabel(QStringLiteral("0%"), this);
    m_percent->setObjectName(QStringLiteral("lab_progressPercent"));
    m_percent->setAlignment(Qt::AlignCenter);
    m_text = new QLabel(this);
    m_text->setObjectName(QStringLiteral("lab_progressText"));
    m_text->setWordWrap(true);
    m_text->setAlignment(Qt::AlignCenter);
    m_cancel = new QPushButton(tr("Cancel"), this);
    m_cancel->setObjectName(QStringLiteral("btn_progressCancel"));
    connect(m_cancel, &QPushButton::clicked, this, &CustomProgressDialog::cancel);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->addWidget(m_title, 0, Qt::AlignHCenter);
    layout->addWidget(m_ring, 0, Qt::AlignHCenter);
    layout->addWidget(m_percent);
    layout->addWidget(m_text);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_cancel);
    buttons->addStretch();
    layout->addLayout(buttons);
    setMinimumWidth(320);
}

void CustomProgressDialog::setText(const QString &text)
{
    m_text->setText(text);
}

QString CustomProgressDialog::text() const
{
    return m_text->text();
}

void CustomProgressDialog::setCancelable(bool cancelable)
{
    m_cancel->setVisible(cancelable);
}

double CustomProgressDialog::percent() const
{
    return m_ring->value();
}

void CustomProgressDialog::setProgress(double done, double total)
{
    const double value = total > 0 ? qBound(0.0, done * 100.0 / total, 100.0) : 0.0;
    m_ring->setValue(value);
    m_percent->setText(QString::number(value, 'f', 0) + QLatin1Char('%'));
}

void CustomProgressDialog::finish()
{
    m_finished = true;
    accept();
}

void CustomProgressDialog::cancel()
{
    if (m_canceled || m_finished)
        return;
    m_canceled = true;
    m_cancel->setEnabled(false);
    m_text->setText(tr("Cancelling..."));
    emit canceled();
}

void CustomProgressDialog::closeEvent(QCloseEvent *event)
{
    if (m_finished) {
        event->accept();
        return;
    }
    // Closing while work runs means "stop": the owner ends the dialog when it stopped.
    event->ignore();
    if (m_cancel->isVisible())
        cancel();
}

void CustomProgressDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        if (m_cancel->isVisible())
            cancel();
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}
