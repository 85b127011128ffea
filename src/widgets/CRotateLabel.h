// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QTimer>

// A label that spins its pixmap around its centre: the scan animation. The timer runs
// only while the label is shown; with rotation off the label paints nothing.
class CRotateLabel : public QLabel
{
    Q_OBJECT
public:
    explicit CRotateLabel(QWidget *parent = nullptr);

    double angle() const { return m_angle; }
    bool isRotating() const { return m_rotating; }
    bool isTimerActive() const { return m_timer.isActive(); }

public slots:
    void setRotating(bool rotating);
    // One animation step: 8 degrees further, wrapping to 0 at a full turn.
    void advance();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    double m_angle = 0.0;
    bool m_rotating = false;
    QTimer m_timer;
};
