// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QLabel;
class QPushButton;
class RoundProgressBar;

// A modal progress window for long operations (batch removal, opening a project).
// The user can cancel by the button, by Escape or by closing the window: every path
// emits canceled() once and leaves the dialog open in a "cancelling" state until the
// owner calls finish(), so the work is never cut off under the owner's feet.
class CustomProgressDialog : public QDialog
{
    Q_OBJECT
public:
    explicit CustomProgressDialog(const QString &title, QWidget *parent = nullptr);

    void setText(const QString &text);
    void setCancelable(bool cancelable);
    bool wasCanceled() const { return m_canceled; }
    double percent() const;
    QString text() const;

public slots:
    // Progress as a count of done steps out of total; total 0 shows 0 %.
    void setProgress(double done, double total);
    // The work is over: the dialog closes without reporting a cancel.
    void finish();
    // Asks the owner to stop; the dialog stays until finish().
    void cancel();

signals:
    void canceled();

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    RoundProgressBar *m_ring = nullptr;
    QLabel *m_title = nullptr;
    QLabel *m_text = nullptr;
    QLabel *m_percent = nullptr;
    QPushButton *m_cancel = nullptr;
    bool m_canceled = false;
    bool m_finished = false;
};
