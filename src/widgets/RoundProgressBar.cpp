// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/RoundProgressBar.h"

#include <algorithm>

#include <QLinearGradient>
#include <QPainter>

RoundProgressBar::RoundProgressBar(QWidget *parent) : QWidget(parent)
{
    updateGeometryValues();
}

void RoundProgressBar::setRange(double minimum, double maximum)
{
    m_minimum = minimum;
    m_maximum = maximum;
    update();
}

void RoundProgressBar::setColors(
    const QColor &ring, const QColor &gradientStart, const QColor &gradientEnd)
{
    m_ringColor = ring;
    m_gradientStart = gradientStart;
    m_gradientEnd = gradientEnd;
    update();
}

void RoundProgressBar::setWidths(double outerWidth, double arcWidth)
{
    m_outerWidth = outerWidth;
    m_arcWidth = arcWidth;
    updateGeometryValues();
    update();
}

void RoundProgressBar::setStartAngle(int degrees)
{
    m_startAngle = degrees;
    update();
}

void RoundProgressBar::setDirection(int direction)
{
    m_direction = direction;
    update();
}

void RoundProgressBar::setPaintFlags(int flags)
{
    m_flags = flags;
    update();
}

void RoundProgressBar::setValue(double value)
{
    m_value = value;
    update();
}

int RoundProgressBar::spanAngle() const
{
    const double range = m_maximum - m_minimum;
    if (range == 0.0)
        return 0;
    double span = (m_value - m_minimum) / range * 360.0 * 16.0;
    if (m_direction > 0)
        span = -span;
    return static_cast<int>(span);
}

bool RoundProgressBar::paintsEndDot() const
{
    return (m_flags & EndDot) && m_arcWidth >= 3.0;
}

void RoundProgressBar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    updateGeometryValues();
}

void RoundProgressBar::updateGeometryValues()
{
    const double widest = std::max(m_outerWidth, m_arcWidth);
    const int side = static_cast<int>(widest * 8);
    setMinimumSize(side, side);
    m_offset = widest / 2 + 1;
    m_diameter = std::min(width(), height()) - widest - 2;
    m_arcRect = QRectF(m_offset, m_offset, m_diameter, m_diameter);
}

void RoundProgressBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    if (m_flags & (Ring | GradientArc | EndDot)) {
        painter.setPen(QPen(m_ringColor, m_outerWidth));
        painter.setBrush(Qt::NoBrush);
        const int halfArc = static_cast<int>(m_arcWidth / 2);
        painter.drawEllipse(QRectF(m_offset - halfArc, m_offset - halfArc, m_diameter + m_arcWidth,
            m_diameter + m_arcWidth));

        QPen arcPen;
        if (m_flags & GradientArc) {
            QLinearGradient gradient(0, 0, 0, m_diameter);
            gradient.setColorAt(0.0, m_gradientStart);
            gradient.setColorAt(1.0, m_gradientEnd);
            arcPen = QPen(QBrush(gradient), m_arcWidth);
        } else {
            arcPen = QPen(m_gradientStart, m_arcWidth);
        }
        arcPen.setStyle(Qt::SolidLine);
        arcPen.setCapStyle(Qt::RoundCap);
        arcPen.setJoinStyle(Qt::RoundJoin);
        painter.setPen(arcPen);
        painter.drawArc(m_arcRect, m_startAngle * 16, spanAngle());
    }

    if (paintsEndDot()) {
        const double dot = m_arcWidth / 3;
        const QPointF centre(m_diameter / 2 + m_offset, m_offset);
        painter.setPen(Qt::white);
        painter.setBrush(Qt::white);
        painter.drawEllipse(
            QRectF(centre.x() - m_arcWidth / 6, centre.y() - m_arcWidth / 6, dot, dot));
    }
}
