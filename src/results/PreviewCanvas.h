// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QWidget>

// The picture area of the large preview: the picture fitted to the area with its shape
// kept, never enlarged (so a small copy looks small beside a large one), or a message
// under an icon while there is no picture to show.
class PreviewCanvas : public QWidget
{
public:
    explicit PreviewCanvas(QWidget *parent = nullptr);

    void showPicture(const QImage &picture);
    void showMessage(const QString &text, const QIcon &icon = QIcon());

    bool hasPicture() const { return !m_picture.isNull(); }
    QString message() const { return m_message; }

    QSize sizeHint() const override { return QSize(480, 360); }
    QSize minimumSizeHint() const override { return QSize(200, 150); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QRect pictureArea() const;

    QImage m_picture;
    // The picture at its shown size, made again only when the area changes.
    QPixmap m_fitted;
    QString m_message;
    QIcon m_icon;
};
