// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/ContentKeyCache.h"
#include "engine/TFileData.h"
#include "pictures/ImageData.h"

#include <atomic>
#include <memory>

#include <QElapsedTimer>
#include <QJsonObject>
#include <QList>
#include <QMutex>
#include <QPair>
#include <QStringList>
#include <QThread>
#include <QThreadPool>

// Finds groups of similar pictures among the image files of a scan: decodes every picture
// to the working size, scores every pair with a perceptual hash or a colour histogram,
// links the pairs that pass into connected groups, optionally re-checks each group with
// ORB feature points, and writes the groups into TFileData with tagged member entries.
// Runs on its own thread, with a pool of workers of its own, all below the window's
// priority; reports only through queued signals.
class ImageCompareThread : public QThread
{
    Q_OBJECT
public:
    // The values are also the picture cache's measure numbers (3 is the feature points).
    enum Measure { MeasureHistogram = 1, MeasurePHash = 2, MeasureRobust = 4 };

    explicit ImageCompareThread(QObject *parent = nullptr);
    ~ImageCompareThread() override;

    // Settings of the next run (the similar-image preference snapshot).
    void applyConfig(const QJsonObject &config);
    // Local image paths to compare.
    void setImagePaths(const QStringList &paths);
    // Groups of an earlier result whose pictures take part again; each group is
    // represented by its first member, and new pictures similar to it join that group.
    void setEarlierGroups(const TFileData::Groups &groups);
    // Whether (and where) the pictures' measures of earlier scans are reused; off unless
    // set.
    void setCacheOptions(const ContentKeyCache::Options &options) { m_cacheOptions = options; }
    // Measures (fast ones, feature points, the robust measure's verdicts of pairs) the last
    // run took from the cache instead of decoding the pictures.
    int measuresFromCache() const { return m_fromCache.load(); }
    // Raises the cancel flag: pair tasks stop at their next pair, ORB tasks at their next
    // group; the run then stores what it found.
    void cancel() { m_cancel.store(1); }
    bool isCancelled() const { return m_cancel.load() != 0; }

    // The stages, public so that tests can drive each one. loadImages keeps only the
    // pictures it could read and measure; each one left out is logged with its reason.
    void loadImages(QList<ImageData> &images);
    void hashCompare(QList<ImageData> &images, QList<QList<ImageData>> &groups);
    // The robust measure's pair stage, in place of hashCompare and the feature re-check.
    void robustCompare(QList<ImageData> &images, QList<QList<ImageData>> &groups);
    void orbFeatureMatch(QList<QList<ImageData>> &groups);
    // Writes the groups into TFileData (and their automatic selection); returns the
    // number of new files that could go (a group of new pictures keeps one) and their
    // bytes.
    QPair<int, qint64> storeGroups(const QList<QList<ImageData>> &groups);

    // Pair measures, 0..1.
    double compareFast(const ImageData &a, const ImageData &b) const;
    double compareFeatures(const cv::Mat &descriptorsA, const cv::Mat &descriptorsB) const;

    // Fast-measure matrix of one decoded picture for the given measure.
    static cv::Mat makeHistogram(const cv::Mat &bgr);
    static cv::Mat makePHash(const cv::Mat &bgr);
    // 1 / (1 + e^(6 (d / 64 - 0.25))) for a Hamming distance d of two 64-bit hashes.
    static double hashSimilarity(int distance);
    // ORB descriptors of a picture (copied, resized to at most 512 x 512); empty when the
    // picture is too small or has no key points.
    static cv::Mat computeDescriptors(const cv::Mat &bgr);
    // Whether two pictures pass the aspect-ratio filter with the given limit.
    static bool aspectRatioCompatible(int wa, int ha, int wb, int hb, double limit);

    Measure measure() const { return m_measure; }
    float similarityThreshold() const { return m_similarityValue; }
    float featuresThreshold() const { return m_featuresValue; }
    int aspectLimit() const { return m_imageMinSize; }

signals:
    void finished(int count, qint64 size);
    // progressType: 2 loading the pictures, 3 comparing them in pairs, 4 the feature
    // re-check; progress in percent. Sent while a stage runs, at most every 100 ms, and
    // with 100 at its end.
    void progressChanged(int progressType, int progress);
    // The same moments counted: pictures the stage has handled and its total.
    void progressCounted(int progressType, int done, int total);
    // Pictures found similar to another one so far and their bytes: grows while the run
    // goes on; finished() gives what was stored.
    void similarFound(int count, qint64 size);

protected:
    void run() override;

private:
    QString elapsedSeconds() const;
    // The cache of the run, or null when it is off or cannot be opened.
    std::unique_ptr<ContentKeyCache> openCache() const;
    // A picture file's stamp as the cache keys it (size -1 when it is no regular file).
    static ContentKeyCache::Stamp pictureStamp(const QString &path);
    void chooseMeasure(int imageCount);
    // Sends the stage's progress (and the pictures found so far) when 100 ms have passed
    // since the last report, or when forced.
    void reportProgress(int progressType, int done, int total, bool force = false);
    void addFound(qint64 bytes);
    // One picture of loadImages: its measure from the cache record, or decoded and
    // measured (then kept in the record when the file is still the one stamped).
    void measurePicture(ImageData &data, Measure measure, ContentKeyCache::Picture *record,
        std::atomic_int &unreadable);

    // Settings.
    float m_similarityValue = 0.0f;
    float m_featuresValue = 0.0f;
    bool m_selectedSimilar = false;
    int m_selectionHint = 0;
    int m_algorithmHint = 0;
    bool m_isAddFeatures = true;
    bool m_isImageType = true;
    bool m_isImageSize = true;
    int m_imageMinSize = 4;

    // Input.
    QStringList m_imagePaths;
    TFileData::Groups m_earlierGroups;
    ContentKeyCache::Options m_cacheOptions;
    std::atomic_int m_fromCache {0};

    // Run state.
    std::atomic_int m_cancel {0};
    QElapsedTimer m_timer;
    Measure m_measure = MeasureHistogram;
    std::atomic_int m_fileCount {0};
    std::atomic<qint64> m_fileBytes {0};
    std::atomic<qint64> m_lastReportMs {0};
    std::atomic_int m_foundCount {0};
    std::atomic<qint64> m_foundBytes {0};
    // Declared last: its threads finish before the state above goes.
    QThreadPool m_pool;
};
