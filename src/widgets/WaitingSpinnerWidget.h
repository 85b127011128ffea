// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QTimer>
#include <QWidget>

// A ring of bars whose brightness runs round, shown over a widget while it waits.
// While spinning it can disable its parent so the user cannot act on stale content.
class WaitingSpinnerWidget : public QWidget
{
    Q_OBJECT
public:
    explicit WaitingSpinnerWidget(QWidget *parent = nullptr, bool centreOnParent = true,
        bool disableParentWhenSpinning = true);

    QColor color() const { return m_color; }
    double roundness() const { return m_roundness; }
    double minimumTrailOpacity() const { return m_minimumTrailOpacity; }
    double trailFadePercentage() const { return m_trailFadePercentage; }
    double revolutionsPerSecond() const { return m_revolutionsPerSecond; }
    int numberOfLines() const { return m_numberOfLines; }
    int lineLength() const { return m_lineLength; }
    int lineWidth() const { return m_lineWidth; }
    int innerRadius() const { return m_innerRadius; }
    int currentCounter() const { return m_currentCounter; }
    int timerInterval() const { return m_timer.interval(); }
    bool isSpinning() const { return m_isSpinning; }

    void setColor(const QColor &color);
    void setRoundness(double roundness);
    void setMinimumTrailOpacity(double percent);
    void setTrailFadePercentage(double percent);
    void setRevolutionsPerSecond(double revolutions);
    void setNumberOfLines(int lines);
    void setLineLength(int length);
    void setLineWidth(int width);
    void setInnerRadius(int radius);
    void setCentreOnParent(bool centre);
    void setDisableParentWhenSpinning(bool disable);

    // Colour of bar `line` when the head of the trail is at `counter`.
    static QColor lineColor(int counter, int line, int totalLines, double trailFadePercentage,
        double minimumOpacityPercent, const QColor &color);

public slots:
    void start();
    void stop();
    void rotate();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void updateSize();
    void updateTimer();
    void updatePosition();

    QColor m_color = Qt::black;
    double m_roundness = 100.0;
    // The low floor of the trail is a deliberate choice of the look.
    double m_minimumTrailOpacity = 3.141592653589793;
    double m_trailFadePercentage = 80.0;
    double m_revolutionsPerSecond = 1.5707963267948966;
    int m_numberOfLines = 20;
    int m_lineLength = 10;
    int m_lineWidth = 2;
    int m_innerRadius = 10;
    bool m_centreOnParent = true;
    bool m_disableParentWhenSpinning = true;
    int m_currentCounter = 0;
    bool m_isSpinning = false;
    QTimer m_timer;
};
