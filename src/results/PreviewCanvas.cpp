// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/PreviewCanvas.h"

#include <QPainter>

namespace {

const QColor kBackground(0xee, 0xf1, 0xf6);
const QColor kMuted(0x6b, 0x73, 0x85);
constexpr int kMargin = 12;
constexpr int kIconSide = 64;

} // namespace

PreviewCanvas::PreviewCanvas(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PreviewCanvas::showPicture(const QImage &picture)
{
    m_picture = picture;
    m_fitted = QPixmap();
    m_message.clear();
    m_icon = QIcon();
    update();
}

void PreviewCanvas::showMessage(const QString &text, const QIcon &icon)
{
    m_picture = QImage();
    m_fitted = QPixmap();
    m_message = text;
    m_icon = icon;
    update();
}

QRect PreviewCanvas::pictureArea() const
{
    return rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
}

void PreviewCanvas::resizeEvent(QResizeEvent *event)
{
    m_fitted = QPixmap();
    QWidget::resizeEvent(event);
}

void PreviewCanvas::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kBackground);
    painter.drawRoundedRect(QRectF(rect()), 10, 10);

    const QRect area = pictureArea();
    if (!m_picture.isNull()) {
        const qreal ratio = devicePixelRatioF();
        const QSize room = (QSizeF(area.size()) * ratio).toSize();
        if (m_fitted.isNull()) {
            const QSize shown
                = m_picture.width() > room.width() || m_picture.height() > room.height()
                ? m_picture.size().scaled(room, Qt::KeepAspectRatio)
                : m_picture.size();
            m_fitted = QPixmap::fromImage(
                m_picture.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
            m_fitted.setDevicePixelRatio(ratio);
        }
        QRect target(QPoint(), (QSizeF(m_fitted.size()) / ratio).toSize());
        target.moveCenter(area.center());
        painter.drawPixmap(target, m_fitted);
        return;
    }

    const bool withIcon = !m_icon.isNull();
    const QRect textArea
        = area.adjusted(0, withIcon ? area.height() / 2 + kIconSide / 2 + 8 : 0, 0, 0);
    if (withIcon) {
        QRect icon(0, 0, kIconSide, kIconSide);
        icon.moveCenter(area.center());
        if (!m_message.isEmpty())
            icon.moveBottom(area.center().y() + kIconSide / 2);
        m_icon.paint(&painter, icon);
    }
    if (!m_message.isEmpty()) {
        painter.setPen(kMuted);
        painter.drawText(textArea,
            (withIcon ? Qt::AlignTop : Qt::AlignVCenter) | Qt::AlignHCenter | Qt::TextWordWrap,
            m_message);
    }
}
