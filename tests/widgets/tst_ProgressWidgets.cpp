// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/CRotateLabel.h"
#include "widgets/CustomProgressDialog.h"
#include "widgets/RoundProgressBar.h"
#include "widgets/WaitingSpinnerWidget.h"

#include <QImage>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

static QImage render(QWidget &widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

class tst_ProgressWidgets : public QObject
{
    Q_OBJECT
private slots:
    void ringSpan_data()
    {
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("direction");
        QTest::addColumn<int>("span");
        QTest::newRow("at minimum draws nothing") << 0.0 << 100.0 << 0.0 << 1 << 0;
        QTest::newRow("maximum is a full clockwise circle") << 0.0 << 100.0 << 100.0 << 1 << -5760;
        QTest::newRow("counter-clockwise is positive") << 0.0 << 100.0 << 25.0 << -1 << 1440;
        QTest::newRow("shifted range") << 50.0 << 150.0 << 100.0 << 1 << -2880;
        QTest::newRow("empty range") << 10.0 << 10.0 << 10.0 << 1 << 0;
    }
    void ringSpan()
    {
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        QFETCH(double, value);
        QFETCH(int, direction);
        QFETCH(int, span);
        RoundProgressBar ring;
        ring.setRange(minimum, maximum);
        ring.setDirection(direction);
        ring.setValue(value);
        QCOMPARE(ring.spanAngle(), span);
    }

    void ringPaintsOnlyWithFlags()
    {
        RoundProgressBar ring;
        ring.setAttribute(Qt::WA_NoSystemBackground);
        ring.resize(160, 160);
        ring.setValue(100);
        const QImage blank = render(ring);
        for (int y = 0; y < blank.height(); ++y)
            for (int x = 0; x < blank.width(); ++x)
                QCOMPARE(qAlpha(blank.pixel(x, y)), 0);

        ring.setPaintFlags(RoundProgressBar::Ring | RoundProgressBar::GradientArc);
        const QImage painted = render(ring);
        // The arc runs through the middle of the ring's left edge.
        const QColor left = painted.pixelColor(qRound(ring.centreOffset()), 80);
        QCOMPARE(left.rgb(), QColor(69, 146, 220).rgb());
    }

    void rotateLabelWrapsAndTimer()
    {
        // A full turn wraps to 0 instead of growing without end; the timer runs only while shown.
        CRotateLabel label;
        for (int i = 0; i < 45; ++i)
            label.advance();
        QCOMPARE(label.angle(), 0.0);
        QVERIFY(!label.isTimerActive());
        label.show();
        QVERIFY(label.isTimerActive());
        label.hide();
        QVERIFY(!label.isTimerActive());
    }

    void spinnerBlocksParentWhileSpinning()
    {
        QWidget parent;
        parent.resize(200, 100);
        auto *spinner = new WaitingSpinnerWidget(&parent);
        // Stopping a spinner that never ran is harmless and leaves the parent usable.
        parent.setEnabled(false);
        spinner->stop();
        QVERIFY(parent.isEnabled());

        parent.show();
        spinner->start();
        QVERIFY(spinner->isSpinning());
        QVERIFY(!parent.isEnabled());
        spinner->stop();
        QVERIFY(!spinner->isSpinning());
        QVERIFY(parent.isEnabled());
    }

    void dialogEndPaths_data()
    {
        QTest::addColumn<int>("path");
        QTest::newRow("button") << 0;
        QTest::newRow("escape") << 1;
        QTest::newRow("window close") << 2;
        QTest::newRow("finished, not cancelled") << 3;
    }
    void dialogEndPaths()
    {
        QFETCH(int, path);
        CustomProgressDialog dialog("Working");
        QSignalSpy canceled(&dialog, &CustomProgressDialog::canceled);
        dialog.show();
        dialog.setProgress(3, 4);
        QCOMPARE(dialog.percent(), 75.0);
        if (path == 3) {
            dialog.setProgress(5, 0);
            QCOMPARE(dialog.percent(), 0.0);
            dialog.finish();
            QVERIFY(!dialog.isVisible());
            QCOMPARE(canceled.count(), 0);
            return;
        }
        for (int i = 0; i < 2; ++i) {
            if (path == 0)
                QTest::mouseClick(
                    dialog.findChild<QPushButton *>("btn_progressCancel"), Qt::LeftButton);
            else if (path == 1)
                QTest::keyClick(&dialog, Qt::Key_Escape);
            else
                dialog.close();
        }
        QCOMPARE(canceled.count(), 1);
        QVERIFY(dialog.wasCanceled());
        // The dialog waits for its owner to end the work.
        QVERIFY(dialog.isVisible());
        dialog.finish();
        QVERIFY(!dialog.isVisible());
    }
};

QTEST_MAIN(tst_ProgressWidgets)
#include "tst_ProgressWidgets.moc"
