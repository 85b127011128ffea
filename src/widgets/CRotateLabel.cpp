// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/CRotateLabel.h"

#include <QPainter>

CRotateLabel::CRotateLabel(QWidget *parent) : QLabel(parent)
{
    m_timer.setInterval(20);
    connect(&m_timer, &QTimer::timeout, this, &CRotateLabel::advance);
}

void CRotateLabel::setRotating(bool rotating)
{
    m_rotating = rotating;
    update();
}

void CRotateLabel::advance()
{
    m_angle += 8.0;
    if (m_angle >= 360.0)
        m_angle = 0.0;
    update();
}

void CRotateLabel::showEvent(QShowEvent *event)
{
    QLabel::showEvent(event);
    if (!m_timer.isActive())
        m_timer.start();
}

void CRotateLabel::hideEvent(QHideEvent *event)
{
    QLabel::hideEvent(event);
    m_timer.stop();
}

void CRotateLabel::paintEvent(QPaintEvent *)
{
    if (!m_rotating)
        return;
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const int w = width();
    const int h = height();
    painter.translate(w / 2, h / 2);
    painter.rotate(m_angle);
    const QPixmap picture = pixmap();
    if (!picture.isNull())
        painter.drawImage(
            QRect(QPoint(-w / 2, -h / 2), QPoint(w - w / 2, h - h / 2)), picture.toImage());
}
