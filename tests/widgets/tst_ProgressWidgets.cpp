// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/CRotateLabel.h"
#include "widgets/CustomProgressDialog.h"
#include "widgets/RoundProgressBar.h"
#include "widgets/WaitingSpinnerWidget.h"

#include <QImage>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

class tst_ProgressWidgets : public QObject
{
    Q_OBJECT
private slots:
    void ringGeometry();
    void ringSpan_data();
    void ringSpan();
    void ringPaintsOnlyWithFlags();
    void ringEndDot_data();
    void ringEndDot();
    void rotateLabelWrapsAndTimer();
    void spinnerDefaultsAndParent();
    void spinnerLineColor_data();
    void spinnerLineColor();
    void dialogCancelPaths_data();
    void dialogCancelPaths();
    void dialogFinishCloses();
};

void tst_ProgressWidgets::ringGeometry()
{
    RoundProgressBar ring;
    QCOMPARE(ring.minimumSize(), QSize(144, 144));
    ring.resize(200, 240);
    ring.show();
    QCOMPARE(ring.centreOffset(), 10.0);
    QCOMPARE(ring.diameter(), 180.0);
    ring.setWidths(4, 30);
    QCOMPARE(ring.minimumSize(), QSize(240, 240));
}

void tst_ProgressWidgets::ringSpan_data()
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

void tst_ProgressWidgets::ringSpan()
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

static QImage render(QWidget &widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

void tst_ProgressWidgets::ringPaintsOnlyWithFlags()
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

void tst_ProgressWidgets::ringEndDot_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<double>("arcWidth");
    QTest::addColumn<bool>("dot");
    QTest::newRow("flag and wide arc") << int(RoundProgressBar::EndDot) << 16.0 << true;
    QTest::newRow("arc of exactly 3") << int(RoundProgressBar::EndDot) << 3.0 << true;
    QTest::newRow("arc below 3") << int(RoundProgressBar::EndDot) << 2.0 << false;
    QTest::newRow("no flag") << int(RoundProgressBar::Ring) << 16.0 << false;
}

void tst_ProgressWidgets::ringEndDot()
{
    QFETCH(int, flags);
    QFETCH(double, arcWidth);
    QFETCH(bool, dot);
    RoundProgressBar ring;
    ring.setPaintFlags(flags);
    ring.setWidths(18.0, arcWidth);
    QCOMPARE(ring.paintsEndDot(), dot);
}

void tst_ProgressWidgets::rotateLabelWrapsAndTimer()
{
    CRotateLabel label;
    double largest = 0;
    for (int i = 0; i < 100; ++i) {
        label.advance();
        largest = qMax(largest, label.angle());
    }
    QCOMPARE(largest, 352.0);
    // 45 steps make a full turn, which wraps to 0.
    CRotateLabel fresh;
    for (int i = 0; i < 45; ++i)
        fresh.advance();
    QCOMPARE(fresh.angle(), 0.0);

    QVERIFY(!label.isTimerActive());
    label.show();
    QVERIFY(label.isTimerActive());
    label.hide();
    QVERIFY(!label.isTimerActive());
}

void tst_ProgressWidgets::spinnerDefaultsAndParent()
{
    QWidget parent;
    parent.resize(200, 100);
    auto *spinner = new WaitingSpinnerWidget(&parent);
    QCOMPARE(spinner->size(), QSize(40, 40));
    QVERIFY(spinner->isHidden());

    // Stopping a spinner that never ran is harmless and leaves the parent usable.
    parent.setEnabled(false);
    spinner->stop();
    QVERIFY(parent.isEnabled());

    parent.show();
    spinner->start();
    QVERIFY(spinner->isSpinning());
    QVERIFY(!parent.isEnabled());
    QCOMPARE(spinner->pos(), QPoint(80, 30));
    for (int i = 0; i < 25; ++i)
        spinner->rotate();
    QCOMPARE(spinner->currentCounter(), 5);
    spinner->stop();
    QVERIFY(!spinner->isSpinning());
    QVERIFY(parent.isEnabled());
    QCOMPARE(spinner->currentCounter(), 0);
}

void tst_ProgressWidgets::spinnerLineColor_data()
{
    QTest::addColumn<int>("counter");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("alpha");
    // 20 lines, 80 % fade: threshold ceil(19 * 0.8) = 16, floor 0.0314...
    QTest::newRow("head") << 5 << 5 << 255;
    QTest::newRow("one behind") << 5 << 4 << qRound((1.0 - 1 * (1.0 - M_PI / 100) / 17) * 255);
    QTest::newRow("wraps round") << 2 << 19 << qRound((1.0 - 3 * (1.0 - M_PI / 100) / 17) * 255);
    QTest::newRow("at threshold") << 16 << 0 << qRound((1.0 - 16 * (1.0 - M_PI / 100) / 17) * 255);
    QTest::newRow("past threshold") << 17 << 0 << qRound(M_PI / 100 * 255);
}

void tst_ProgressWidgets::spinnerLineColor()
{
    QFETCH(int, counter);
    QFETCH(int, line);
    QFETCH(int, alpha);
    const QColor c
        = WaitingSpinnerWidget::lineColor(counter, line, 20, 80.0, M_PI, QColor(Qt::black));
    QVERIFY2(qAbs(c.alpha() - alpha) <= 1, qPrintable(QString::number(c.alpha())));
}

void tst_ProgressWidgets::dialogCancelPaths_data()
{
    QTest::addColumn<int>("path");
    QTest::newRow("button") << 0;
    QTest::newRow("escape") << 1;
    QTest::newRow("window close") << 2;
}

void tst_ProgressWidgets::dialogCancelPaths()
{
    QFETCH(int, path);
    CustomProgressDialog dialog(QStringLiteral("Working"));
    QSignalSpy canceled(&dialog, &CustomProgressDialog::canceled);
    dialog.show();
    dialog.setProgress(3, 4);
    QCOMPARE(dialog.percent(), 75.0);
    for (int i = 0; i < 2; ++i) {
        if (path == 0)
            QTest::mouseClick(dialog.findChild<QPushButton *>(QStringLiteral("btn_progressCancel")),
                Qt::LeftButton);
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

void tst_ProgressWidgets::dialogFinishCloses()
{
    CustomProgressDialog dialog(QStringLiteral("Working"));
    QSignalSpy canceled(&dialog, &CustomProgressDialog::canceled);
    dialog.show();
    dialog.setProgress(5, 0);
    QCOMPARE(dialog.percent(), 0.0);
    dialog.finish();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(canceled.count(), 0);
}

QTEST_MAIN(tst_ProgressWidgets)
#include "tst_ProgressWidgets.moc"
