// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFutureWatcher>
#include <QHash>
#include <QImage>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QThreadPool>
#include <QWidget>

class PreviewCanvas;
class QCheckBox;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class TImageModel;

// One side of the large preview: a file of the open group shown large, its details
// under it, and the check box that marks it for removal in the model. Pictures are
// decoded on the thread pool; the pane says "Loading…" until the picture is there.
class PicturePreviewPane : public QWidget
{
    Q_OBJECT
public:
    struct Decoded
    {
        QImage picture;
        // The size of the picture in the file, which the shown copy may be smaller than.
        QSize size;
    };

    explicit PicturePreviewPane(const QString &caption, QWidget *parent = nullptr);

    void showRow(TImageModel *model, int row);
    int row() const { return m_index.isValid() ? m_index.row() : -1; }
    bool isLoading() const { return m_loading; }

    PreviewCanvas *canvas() const { return m_canvas; }
    QCheckBox *removeBox() const { return m_remove; }
    // Room on the right of the caption, for controls that belong to this side.
    QHBoxLayout *headerLayout() const { return m_header; }

    // Reads the picture at the size kept for comparing; runs on any thread.
    static Decoded decode(const QString &file);

signals:
    void loaded();

private:
    void showDecoded();
    void syncCheck();
    QLabel *addDetail(
        QGridLayout *grid, int row, int column, const QString &caption, const char *objectName);
    void setDetailVisible(QLabel *value, bool visible);

    QPointer<TImageModel> m_model;
    QMetaObject::Connection m_modelWatch;
    QPersistentModelIndex m_index;
    bool m_loading = false;
    QHBoxLayout *m_header = nullptr;
    PreviewCanvas *m_canvas = nullptr;
    QLabel *m_name = nullptr;
    QLabel *m_folder = nullptr;
    QLabel *m_size = nullptr;
    QLabel *m_resolution = nullptr;
    QLabel *m_date = nullptr;
    QLabel *m_similarity = nullptr;
    QLabel *m_reason = nullptr;
    QCheckBox *m_remove = nullptr;
    QHash<QLabel *, QLabel *> m_captions;
    // The decoding runs off the global pool, where the paint engine's own work would
    // wait behind it. One at a time: stepping on drops what has not started yet.
    QThreadPool m_decoder;
    QFutureWatcher<Decoded> m_watcher;
};
