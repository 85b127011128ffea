// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/RoundTextButton.h"

#include <algorithm>
#include <cmath>

#include <QFontMetrics>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>

RoundTextButton::RoundTextButton(QWidget *parent) : QPushButton(parent) { }

QRect RoundTextButton::captionRect() const
{
    // Two lines of text sit close to the centre, where the circle is widest: a band
    // about 82 % of the diameter wide and 60 % high stays clear of the rim.
    const int side = std::min(width(), height());
    const int w = int(std::floor(side * 0.82));
    const int h = int(std::floor(side * 0.60));
    return QRect(rect().center().x() - w / 2 + 1, rect().center().y() - h / 2 + 1, w, h);
}

RoundTextButton::Layout RoundTextButton::layoutCaption() const
{
    const QString caption = text();
    const QRect area = captionRect();
    // Candidate breaks: none, then each space, the most even split first.
    QStringList candidates {caption};
    QList<int> spaces;
    for (int i = 0; i < caption.size(); ++i)
        if (caption.at(i) == QLatin1Char(' '))
            spaces << i;
    std::sort(spaces.begin(), spaces.end(), [&caption](int a, int b) {
        return std::abs(2 * a - int(caption.size())) < std::abs(2 * b - int(caption.size()));
    });
    for (int at : spaces)
        candidates << caption.left(at) + QLatin1Char('\n') + caption.mid(at + 1);

    QFont font = this->font();
    const bool pixels = font.pixelSize() > 0;
    const qreal start = pixels ? font.pixelSize() : font.pointSizeF();
    // Shrink to no less than 60 % of the styled size; below that the text is unreadable
    // at a glance, and every caption of the seven languages fits well before it.
    for (qreal size = start; size >= start * 0.6; size -= 1.0) {
        if (pixels)
            font.setPixelSize(int(size));
        else
            font.setPointSizeF(size);
        const QFontMetrics metrics(font);
        for (const QString &lines : candidates) {
            const QRect bounds = metrics.boundingRect(area, Qt::AlignCenter, lines);
            if (bounds.width() <= area.width() && bounds.height() <= area.height())
                return {font, lines, true};
        }
    }
    return {font, caption, false};
}

QFont RoundTextButton::captionFont() const
{
    return layoutCaption().font;
}

QString RoundTextButton::captionLines() const
{
    return layoutCaption().lines;
}

bool RoundTextButton::captionFits() const
{
    return layoutCaption().fits;
}

void RoundTextButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    // The style paints the face and the icon; the caption is painted here, laid out.
    option.text.clear();
    painter.drawControl(QStyle::CE_PushButton, option);
    if (text().isEmpty())
        return;
    const Layout layout = layoutCaption();
    painter.setFont(layout.font);
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    painter.drawText(captionRect(), Qt::AlignCenter, layout.lines);
}
