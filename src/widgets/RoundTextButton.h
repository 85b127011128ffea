// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

// A round push button whose caption always fits inside the circle: a caption too wide
// for one line breaks onto two at a space, and the font shrinks step by step when that
// is not enough, so long translations ("Nouvelle analyse", "Nuova scansione") are never
// cut off. Captions without spaces (Japanese) only shrink: breaking them anywhere would
// split a word. The face (background, border, radius) still comes from the style sheet.
class RoundTextButton : public QPushButton
{
    Q_OBJECT
public:
    explicit RoundTextButton(QWidget *parent = nullptr);

    // The font the caption is painted with at the current size; smaller than font()
    // when the caption needs it.
    QFont captionFont() const;
    // The caption as painted: text(), or text() broken onto two lines.
    QString captionLines() const;
    // The rectangle inside the circle that the caption may use.
    QRect captionRect() const;
    // True when the caption, painted with captionFont(), fits captionRect().
    bool captionFits() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Layout
    {
        QFont font;
        QString lines;
        bool fits = false;
    };
    Layout layoutCaption() const;
};
