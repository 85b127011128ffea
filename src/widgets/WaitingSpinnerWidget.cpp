// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/WaitingSpinnerWidget.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

WaitingSpinnerWidget::WaitingSpinnerWidget(
    QWidget *parent, bool centreOnParent, bool disableParentWhenSpinning)
    : QWidget(parent)
    , m_centreOnParent(centreOnParent)
    , m_disableParentWhenSpinning(disableParentWhenSpinning)
{
    connect(&m_timer, &QTimer::timeout, this, &WaitingSpinnerWidget::rotate);
    updateSize();
    updateTimer();
    hide();
}

void WaitingSpinnerWidget::setColor(const QColor &color)
{
    m_color = color;
    update();
}

void WaitingSpinnerWidget::setRoundness(double roundness)
{
    m_roundness = std::clamp(roundness, 0.0, 100.0);
    update();
}

void WaitingSpinnerWidget::setMinimumTrailOpacity(double percent)
{
    m_minimumTrailOpacity = percent;
    update();
}

void WaitingSpinnerWidget::setTrailFadePercentage(double percent)
{
    m_trailFadePercentage = percent;
    update();
}

void WaitingSpinnerWidget::setRevolutionsPerSecond(double revolutions)
{
    m_revolutionsPerSecond = revolutions;
    updateTimer();
}

void WaitingSpinnerWidget::setNumberOfLines(int lines)
{
    m_numberOfLines = std::max(1, lines);
    m_currentCounter = 0;
    updateTimer();
}

void WaitingSpinnerWidget::setLineLength(int length)
{
    m_lineLength = length;
    updateSize();
}

void WaitingSpinnerWidget::setLineWidth(int width)
{
    m_lineWidth = width;
    updateSize();
}

void WaitingSpinnerWidget::setInnerRadius(int radius)
{
    m_innerRadius = radius;
    updateSize();
}

void WaitingSpinnerWidget::setCentreOnParent(bool centre)
{
    m_centreOnParent = centre;
    updatePosition();
}

void WaitingSpinnerWidget::setDisableParentWhenSpinning(bool disable)
{
    m_disableParentWhenSpinning = disable;
}

void WaitingSpinnerWidget::start()
{
    updatePosition();
    m_isSpinning = true;
    show();
    raise();
    if (parentWidget() && m_disableParentWhenSpinning)
        parentWidget()->setEnabled(false);
    if (!m_timer.isActive()) {
        m_timer.start();
        m_currentCounter = 0;
    }
}

void WaitingSpinnerWidget::stop()
{
    m_isSpinning = false;
    hide();
    if (parentWidget() && m_disableParentWhenSpinning)
        parentWidget()->setEnabled(true);
    if (m_timer.isActive()) {
        m_timer.stop();
        m_currentCounter = 0;
    }
    m_currentCounter = 0;
}

void WaitingSpinnerWidget::rotate()
{
    ++m_currentCounter;
    if (m_currentCounter >= m_numberOfLines)
        m_currentCounter = 0;
    update();
}

void WaitingSpinnerWidget::updateSize()
{
    const int side = (m_innerRadius + m_lineLength) * 2;
    setFixedSize(side, side);
}

void WaitingSpinnerWidget::updateTimer()
{
    m_timer.setInterval(static_cast<int>(1000 / (m_numberOfLines * m_revolutionsPerSecond)));
}

void WaitingSpinnerWidget::updatePosition()
{
    if (parentWidget() && m_centreOnParent)
        move(
            parentWidget()->width() / 2 - width() / 2, parentWidget()->height() / 2 - height() / 2);
}

QColor WaitingSpinnerWidget::lineColor(int counter, int line, int totalLines,
    double trailFadePercentage, double minimumOpacityPercent, const QColor &color)
{
    QColor result = color;
    int distance = counter - line;
    if (distance < 0)
        distance += totalLines;
    if (distance == 0)
        return result;
    const double floorAlpha = minimumOpacityPercent / 100.0;
    const int threshold
        = static_cast<int>(std::ceil((totalLines - 1) * trailFadePercentage / 100.0));
    if (distance > threshold) {
        result.setAlphaF(static_cast<float>(floorAlpha));
    } else {
        const double alpha = result.alphaF();
        const double faded = alpha - distance * (alpha - floorAlpha) / (threshold + 1);
        result.setAlphaF(static_cast<float>(std::clamp(faded, 0.0, 1.0)));
    }
    return result;
}

void WaitingSpinnerWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::transparent);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(Qt::NoPen);
    if (m_currentCounter >= m_numberOfLines)
        m_currentCounter = 0;
    for (int i = 0; i < m_numberOfLines; ++i) {
        painter.save();
        painter.translate(m_innerRadius + m_lineLength, m_innerRadius + m_lineLength);
        painter.rotate(360.0 * i / m_numberOfLines);
        painter.translate(m_innerRadius, 0);
        painter.setBrush(lineColor(m_currentCounter, i, m_numberOfLines, m_trailFadePercentage,
            m_minimumTrailOpacity, m_color));
        painter.drawRoundedRect(QRectF(0, -m_lineWidth / 2.0, m_lineLength, m_lineWidth),
            m_roundness, m_roundness, Qt::RelativeSize);
        painter.restore();
    }
}
