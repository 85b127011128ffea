// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QRectF>
#include <QWidget>

// The progress ring of the scanning page: a background ring and an arc whose span
// follows the value. Nothing is painted until the owner chooses what to draw through
// the paint flags, so a page can show the bare widget while it sets itself up.
class RoundProgressBar : public QWidget
{
    Q_OBJECT
public:
    enum PaintFlag {
        Ring = 2,
        GradientArc = 4,
        EndDot = 8,
    };

    explicit RoundProgressBar(QWidget *parent = nullptr);

    double value() const { return m_value; }
    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    int paintFlags() const { return m_flags; }
    int startAngle() const { return m_startAngle; }
    int direction() const { return m_direction; }
    double outerWidth() const { return m_outerWidth; }
    double arcWidth() const { return m_arcWidth; }
    double centreOffset() const { return m_offset; }
    double diameter() const { return m_diameter; }
    QColor ringColor() const { return m_ringColor; }
    QColor gradientStart() const { return m_gradientStart; }
    QColor gradientEnd() const { return m_gradientEnd; }

    void setRange(double minimum, double maximum);
    void setColors(const QColor &ring, const QColor &gradientStart, const QColor &gradientEnd);
    void setWidths(double outerWidth, double arcWidth);
    void setStartAngle(int degrees);
    // 1 runs clockwise, any other value counter-clockwise.
    void setDirection(int direction);
    void setPaintFlags(int flags);

    // Span of the arc in sixteenths of a degree, as QPainter::drawArc takes it.
    int spanAngle() const;
    // Whether the end dot would be painted with the current flags and widths.
    bool paintsEndDot() const;

public slots:
    void setValue(double value);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void updateGeometryValues();

    int m_startAngle = 90;
    int m_direction = 1;
    double m_outerWidth = 18.0;
    double m_arcWidth = 16.0;
    double m_minimum = 0.0;
    double m_maximum = 100.0;
    double m_value = 0.0;
    QColor m_ringColor {194, 220, 255};
    QColor m_gradientStart {69, 146, 220};
    QColor m_gradientEnd {69, 146, 220};
    // Kept with the other colours; the painting does not use it.
    QColor m_accentColor {49, 177, 190};
    int m_flags = 0;
    double m_offset = 0.0;
    double m_diameter = 0.0;
    QRectF m_arcRect;
};
