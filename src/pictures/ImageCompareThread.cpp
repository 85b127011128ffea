// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/ImageCompareThread.h"

#include "app/FileTypeCatalogue.h"
#include "app/LogTags.h"
#include "app/SnapshotKeys.h"
#include "app/TLogger.h"
#include "engine/GroupItemAutoSelector.h"
#include "engine/GroupMember.h"
#include "pictures/BackgroundWork.h"
#include "pictures/GreyPictureReader.h"
#include "pictures/PictureMeasures.h"
#include "pictures/RobustCheckCache.h"
#include "pictures/RobustMatcher.h"
#include "pictures/RobustSignature.h"
#include "pictures/SimilarityLinks.h"
#include "pictures/TReadImage.h"
#include "preferences/SettingsTable.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <numeric>
#include <vector>

#include <QDateTime>
#include <QFileInfo>
#include <QHash>
#include <QtConcurrent>

namespace {

// The log tags of this file.
const QString &kTag = LogTags::imageCompare;
const QString &kOpenCvTag = LogTags::openCv;

// The preference value that means "no automatic selection".
constexpr int kNoSelectedHint = 8;
// Above this many pictures the automatic choice takes the cheaper 64-bit hash.
constexpr int kSmartHashThreshold = 10000;
// The cache's measure number of the feature points (the fast measures are 1 and 2).
constexpr int kFeatureMeasure = 3;

QString what(const std::exception &e)
{
    return QString::fromLocal8Bit(e.what()).simplified();
}

// One line per picture that takes no part, through the held-back log: a folder of
// thousands of broken files writes the first of each reason and then a count.
void logSkipped(const QString &path, const char *reason)
{
    const QByteArray kind = QByteArrayLiteral("[TImageCompareThread]: Picture skipped, ") + reason;
    splog_repeated(
        kind.constData(), QStringLiteral("%1. File: %2").arg(QString::fromUtf8(kind), path));
}

} // namespace

ImageCompareThread::ImageCompareThread(QObject *parent) : QThread(parent)
{
    qRegisterMetaType<ImageData>("ImageData");
    m_pool.setMaxThreadCount(QThread::idealThreadCount());
}

void ImageCompareThread::reportProgress(int progressType, int done, int total, bool force)
{
    const qint64 now = m_timer.isValid() ? m_timer.elapsed() : 0;
    qint64 last = m_lastReportMs.load();
    if (!force && (now - last < 100 || !m_lastReportMs.compare_exchange_strong(last, now)))
        return;
    if (force)
        m_lastReportMs.store(now);
    const int percent = total > 0 ? int(qint64(done) * 100 / total) : 100;
    emit progressChanged(progressType, percent);
    emit progressCounted(progressType, done, total);
    emit similarFound(m_foundCount.load(), m_foundBytes.load());
}

void ImageCompareThread::addFound(qint64 bytes)
{
    m_foundCount.fetch_add(1);
    m_foundBytes.fetch_add(bytes);
}

ImageCompareThread::~ImageCompareThread()
{
    cancel();
    wait();
}

void ImageCompareThread::applyConfig(const QJsonObject &config)
{
    // The pass marks are kept as float on purpose: the percent slider values are small
    // integers and the comparisons below are made against exactly these values.
    m_similarityValue = float(config.value(SnapshotKeys::similarityValue).toDouble() / 100.0);
    m_featuresValue = float(config.value(SnapshotKeys::featuresValue).toDouble() / 100.0);
    m_selectedSimilar = config.value(SnapshotKeys::selectedSimilar).toBool();
    m_selectionHint = config.value(SnapshotKeys::selectionHint).toInt();
    m_algorithmHint = config.value(SnapshotKeys::algorithmHint).toInt();
    m_isAddFeatures = config.value(SnapshotKeys::isAddFeatures).toBool();
    m_isImageType = config.value(SnapshotKeys::isImageType).toBool();
    m_isImageSize = config.value(SnapshotKeys::isImageSize).toBool();
    m_imageMinSize = config.value(SnapshotKeys::imageMinSize).toInt();
    if (m_imageMinSize > SettingsTable::imageMinSize.maximum)
        m_imageMinSize = int(SettingsTable::imageMinSize.byDefault);
    // A limit below 1 would leave no ratio interval at all; 1 compares equal ratios only.
    if (m_imageMinSize < 1)
        m_imageMinSize = 1;
    m_cancel.store(0);
}

void ImageCompareThread::setImagePaths(const QStringList &paths)
{
    m_imagePaths = paths;
}

void ImageCompareThread::setEarlierGroups(const TFileData::Groups &groups)
{
    m_earlierGroups = groups;
}

QString ImageCompareThread::elapsedSeconds() const
{
    return QString::number(m_timer.elapsed() / 1000.0, 'f', 3);
}

void ImageCompareThread::chooseMeasure(int imageCount)
{
    if (m_algorithmHint == 3)
        m_measure = MeasureRobust;
    else if (m_algorithmHint == 2)
        m_measure = MeasurePHash;
    else if (m_algorithmHint == 1)
        m_measure = MeasureHistogram;
    else
        m_measure = imageCount > kSmartHashThreshold ? MeasurePHash : MeasureHistogram;
}

double ImageCompareThread::compareFast(const ImageData &a, const ImageData &b) const
{
    return PictureMeasures::compareFast(a, b, m_measure == MeasurePHash);
}

double ImageCompareThread::compareFeatures(
    const cv::Mat &descriptorsA, const cv::Mat &descriptorsB) const
{
    return PictureMeasures::compareFeatures(descriptorsA, descriptorsB);
}

cv::Mat ImageCompareThread::makeHistogram(const cv::Mat &bgr)
{
    return PictureMeasures::makeHistogram(bgr);
}

cv::Mat ImageCompareThread::makePHash(const cv::Mat &bgr)
{
    return PictureMeasures::makePHash(bgr);
}

double ImageCompareThread::hashSimilarity(int distance)
{
    return PictureMeasures::hashSimilarity(distance);
}

cv::Mat ImageCompareThread::computeDescriptors(const cv::Mat &bgr)
{
    return PictureMeasures::computeDescriptors(bgr);
}

bool ImageCompareThread::aspectRatioCompatible(int wa, int ha, int wb, int hb, double limit)
{
    return PictureMeasures::aspectRatioCompatible(wa, ha, wb, hb, limit);
}

std::unique_ptr<ContentKeyCache> ImageCompareThread::openCache() const
{
    if (!m_cacheOptions.enabled)
        return nullptr;
    auto cache = std::make_unique<ContentKeyCache>(
        m_cacheOptions.path.isEmpty() ? ContentKeyCache::defaultPath() : m_cacheOptions.path);
    if (!cache->isOpen())
        return nullptr;
    return cache;
}

ContentKeyCache::Stamp ImageCompareThread::pictureStamp(const QString &path)
{
    const FileStamp file = FileStamp::of(path);
    return ContentKeyCache::Stamp {
        file.device, file.inode, file.size, file.modifiedNs, file.changedNs};
}

void ImageCompareThread::measurePicture(
    ImageData &data, Measure measure, ContentKeyCache::Picture *record, std::atomic_int &unreadable)
{
    if (record && record->found) {
        data.width = record->width;
        data.height = record->height;
        data.hash = cv::Mat(
            record->rows, record->cols, record->type, const_cast<char *>(record->data.constData()))
                        .clone();
        if (measure == MeasurePHash && data.hash.total() == 8 && data.hash.type() == CV_8UC1)
            std::memcpy(&data.hashBits, data.hash.ptr(), sizeof(data.hashBits));
        record->data.clear();
        m_fromCache.fetch_add(1);
        return;
    }
    try {
        int w = 0;
        int h = 0;
        TReadImage::Failure failure = TReadImage::Failure::None;
        const cv::Mat picture = measure == MeasureRobust
            ? GreyPictureReader::read(data.path, RobustSignature::kHashSide, &w, &h, &failure)
            : TReadImage::readImage(data.path, &w, &h, &failure);
        if (picture.empty()) {
            unreadable.fetch_add(1);
            logSkipped(data.path, TReadImage::failureText(failure));
            return;
        }
        data.width = w;
        data.height = h;
        if (measure == MeasureRobust) {
            data.hash = RobustSignature::toMat(RobustSignature::of(picture));
            if (data.hash.total() == 0)
                data.hash.release();
        } else if (measure == MeasurePHash) {
            data.hash = makePHash(picture);
            if (data.hash.total() == 8 && data.hash.type() == CV_8UC1)
                std::memcpy(&data.hashBits, data.hash.ptr(), sizeof(data.hashBits));
        } else {
            data.hash = makeHistogram(picture);
        }
        if (data.hash.empty()) {
            unreadable.fetch_add(1);
            logSkipped(data.path, "could not be measured");
        } else if (record && record->stamp.size >= 0 && data.hash.isContinuous()
            && pictureStamp(data.path) == record->stamp) {
            // Still the file stamped before the read: its measure may be kept.
            record->width = data.width;
            record->height = data.height;
            record->rows = data.hash.rows;
            record->cols = data.hash.cols;
            record->type = data.hash.type();
            record->data = QByteArray(reinterpret_cast<const char *>(data.hash.data),
                qsizetype(data.hash.total() * data.hash.elemSize()));
            record->fresh = true;
        }
    } catch (const cv::Exception &e) {
        data.hash.release();
        unreadable.fetch_add(1);
        splog_d(kOpenCvTag + QStringLiteral("OpenCV exception: %1").arg(what(e)));
        logSkipped(data.path, "could not be measured");
    } catch (const std::bad_alloc &) {
        data.hash.release();
        unreadable.fetch_add(1);
        logSkipped(data.path, TReadImage::failureText(TReadImage::Failure::OutOfMemory));
    } catch (const std::exception &e) {
        data.hash.release();
        unreadable.fetch_add(1);
        splog_d(kTag + QStringLiteral("std::exception: [%1].").arg(what(e)));
        logSkipped(data.path, "could not be measured");
    } catch (...) {
        data.hash.release();
        unreadable.fetch_add(1);
        splog_d(kOpenCvTag + QStringLiteral("Unknown exception occurred."));
        logSkipped(data.path, "could not be measured");
    }
}

void ImageCompareThread::loadImages(QList<ImageData> &images)
{
    images.clear();
    for (auto it = m_earlierGroups.cbegin(); it != m_earlierGroups.cend(); ++it) {
        if (it.value().isEmpty())
            continue;
        ImageData data;
        data.path = GroupMember::fromEntry(it.value().first()).path;
        data.fromEarlierResult = true;
        data.key = it.key();
        images.append(data);
    }
    for (const QString &path : std::as_const(m_imagePaths)) {
        ImageData data;
        data.path = path;
        images.append(data);
    }
    chooseMeasure(int(images.size()));
    splog_d(kTag
        + QStringLiteral("Start loading image data, number of images "
                         "[%1]...")
              .arg(images.size()));
    const Measure measure = m_measure;
    std::atomic_int unreadable {0};
    // With the cache, each picture is stamped before anything is read; a picture whose
    // stamp and measure are stored is not decoded, and one decoded from the file it was
    // stamped from is stored afterwards.
    m_fromCache.store(0);
    std::unique_ptr<ContentKeyCache> cache = openCache();
    const qint64 readNs = QDateTime::currentMSecsSinceEpoch() * 1'000'000LL;
    std::vector<ContentKeyCache::Picture> records(cache ? size_t(images.size()) : 0);
    if (cache) {
        QtConcurrent::blockingMap(&m_pool, records, [&](ContentKeyCache::Picture &record) {
            BackgroundWork::lower();
            const ImageData &data = images.at(qsizetype(&record - records.data()));
            record.stamp = pictureStamp(data.path);
            record.measure = measure;
        });
        cache->lookupPictures(records);
    }
    ImageData *first = images.data();
    const int total = int(images.size());
    std::atomic_int handled {0};
    reportProgress(2, 0, total, true);
    QtConcurrent::blockingMap(&m_pool, images, [&, this, measure](ImageData &data) {
        BackgroundWork::lower();
        const auto counted
            = qScopeGuard([&] { reportProgress(2, handled.fetch_add(1) + 1, total); });
        const QString suffix = QFileInfo(data.path).suffix();
        data.fileType = pictureFormatOf(suffix);
        if (isCancelled() || isSimilarExcludedFormat(suffix))
            return;
        ContentKeyCache::Picture *record = cache ? &records[size_t(&data - first)] : nullptr;
        data.bytes = record ? record->stamp.size : QFileInfo(data.path).size();
        measurePicture(data, measure, record, unreadable);
    });
    if (cache && !isCancelled())
        cache->storePictures(records, readNs);
    decltype(records)().swap(records);
    const qsizetype loaded = images.size();
    // A picture without a measure leaves the run here: compared, two such pictures would
    // score alike (nothing against nothing), and a pass mark of 0 would group them all.
    images.erase(std::remove_if(images.begin(), images.end(),
                     [](const ImageData &data) { return data.hash.empty(); }),
        images.end());
    if (!isCancelled())
        reportProgress(2, total, total, true);
    splog_d(kTag
        + QStringLiteral("Image data loading completed. Time taken: [%1] "
                         "seconds. Quantity: [%2]")
              .arg(elapsedSeconds())
              .arg(loaded));
    if (images.size() < loaded)
        splog_d(kTag
            + QStringLiteral("Pictures left out of the comparison: [%1], "
                             "unreadable: [%2].")
                  .arg(loaded - images.size())
                  .arg(unreadable.load()));
}

void ImageCompareThread::hashCompare(QList<ImageData> &images, QList<QList<ImageData>> &groups)
{
    const int n = int(images.size());
    SimilarityLinks links(n);
    std::atomic_int finishedIndexes {0};

    // The 64-bit hashes are compared as integers: the same Hamming distance as the matrix
    // norm of compareFast, without a matrix operation per pair.
    double hashTable[65];
    for (int d = 0; d <= 64; ++d)
        hashTable[d] = hashSimilarity(d);
    const bool fastHash = m_measure == MeasurePHash;
    const double passMark = double(m_similarityValue);
    const double limit = double(m_imageMinSize);

    // The hashes and the flags the inner loop reads first, side by side in memory: with
    // the hash measure most pairs fail on the distance alone, and this way they are
    // decided without touching the pictures' records. Every test is a plain condition of
    // the pair, so their order does not change which pairs pass.
    std::vector<quint64> bits(size_t(std::max(n, 0)));
    std::vector<char> hasBits(size_t(std::max(n, 0)));
    std::vector<char> earlier(size_t(std::max(n, 0)));
    // Entries without a measure (loadImages drops them; a caller's own list may not).
    std::vector<char> measured(size_t(std::max(n, 0)));
    for (int k = 0; k < n; ++k) {
        const ImageData &image = images.at(k);
        hasBits[size_t(k)] = fastHash && image.hash.total() == 8;
        bits[size_t(k)] = image.hashBits;
        earlier[size_t(k)] = image.fromEarlierResult;
        measured[size_t(k)] = !image.hash.empty();
    }

    QList<int> indexes(n);
    std::iota(indexes.begin(), indexes.end(), 0);
    // Without the feature re-check a picture counts as found once it is linked.
    const bool foundWhenLinked = !m_isAddFeatures;
    reportProgress(3, 0, n, true);
    QtConcurrent::blockingMap(&m_pool, indexes, [&](int i) {
        BackgroundWork::lower();
        const auto counted
            = qScopeGuard([&] { reportProgress(3, finishedIndexes.fetch_add(1) + 1, n); });
        const ImageData &a = images.at(i);
        if (!measured[size_t(i)])
            return;
        const bool aHash = hasBits[size_t(i)];
        const bool aEarlier = earlier[size_t(i)];
        const quint64 aBits = bits[size_t(i)];
        // At most one entry per later picture: bounded by the pictures, not the pairs.
        std::vector<int> local;
        for (int j = i + 1; j < n; ++j) {
            if (isCancelled())
                break;
            if ((aEarlier && earlier[size_t(j)]) || !measured[size_t(j)])
                continue;
            const bool pairHash = aHash && hasBits[size_t(j)];
            double similarity = 0.0;
            if (pairHash) {
                similarity = hashTable[qPopulationCount(aBits ^ bits[size_t(j)])];
                if (similarity < passMark)
                    continue;
            }
            const ImageData &b = images.at(j);
            if (m_isImageType && a.fileType != b.fileType)
                continue;
            if (m_isImageSize
                && !aspectRatioCompatible(a.width, a.height, b.width, b.height, limit))
                continue;
            if (!pairHash)
                similarity = compareFast(a, b);
            if (similarity < passMark)
                continue;
            double percent = similarity * 100.0;
            // A picture is never shown as 100 % similar to another one.
            if (percent >= 100.0)
                percent = 99.0;
            links.recordSimilarity(i, j, int(percent));
            local.push_back(j);
        }
        if (!local.empty()) {
            links.link(i, local, [&](int j) {
                // Each join is one more picture that could go.
                if (foundWhenLinked && !earlier[size_t(j)])
                    addFound(images.at(j).bytes);
            });
        }
    });
    links.collect(images, groups);

    if (!isCancelled())
        reportProgress(3, n, n, true);
    if (m_measure == MeasurePHash)
        splog_d(kTag
            + QStringLiteral("Hash matching process completed. Time taken: "
                             "[%1] seconds. Quantity: [%2]")
                  .arg(elapsedSeconds())
                  .arg(groups.size()));
    else
        splog_d(kTag
            + QStringLiteral("Histogram matching process completed. Time "
                             "taken: [%1] seconds. Quantity: [%2]")
                  .arg(elapsedSeconds())
                  .arg(groups.size()));
}

void ImageCompareThread::robustCompare(QList<ImageData> &images, QList<QList<ImageData>> &groups)
{
    const int n = int(images.size());
    RobustMatcher::Options options;
    options.sameType = m_isImageType;
    options.sameRatio = m_isImageSize;
    options.ratioLimit = double(m_imageMinSize);
    options.passPercent = int(std::lround(double(m_similarityValue) * 100.0));
    RobustMatcher matcher(options, m_cancel);
    reportProgress(3, 0, n, true);
    // The verdicts of pairs of unchanged pictures come from the cache; those of the pairs
    // this run checks are kept after.
    std::unique_ptr<ContentKeyCache> cache = openCache();
    const qint64 readNs = QDateTime::currentMSecsSinceEpoch() * 1'000'000LL;
    std::unique_ptr<RobustCheckCache> kept;
    if (cache) {
        kept = std::make_unique<RobustCheckCache>(*cache, images, &m_pool);
        matcher.setRecall([&kept](RobustMatcher::Pair &pair) { return kept->recall(pair); });
    }
    const std::vector<RobustMatcher::Pair> pairs = matcher.match(
        images, &m_pool, [this](int done, int total) { reportProgress(3, done, total); });
    if (kept && !isCancelled()) {
        kept->store(matcher, readNs);
        m_fromCache.fetch_add(kept->recalled());
    }
    // The pairs come sorted by their first picture: recorded in that order, each picture
    // keeps the similarity and reason of its last pair, as the all-pairs loop does.
    SimilarityLinks links(n);
    for (const RobustMatcher::Pair &pair : pairs) {
        links.recordSimilarity(pair.a, pair.b, pair.percent());
        images[pair.b].reason = pair.reason();
    }
    for (size_t k = 0; k < pairs.size();) {
        const int a = pairs[k].a;
        std::vector<int> others;
        for (; k < pairs.size() && pairs[k].a == a; ++k)
            others.push_back(pairs[k].b);
        links.link(a, others, [&](int j) {
            if (!images.at(j).fromEarlierResult)
                addFound(images.at(j).bytes);
        });
    }
    if (!isCancelled())
        links.collect(images, groups);
    if (!isCancelled())
        reportProgress(3, n, n, true);
    splog_d(kTag
        + QStringLiteral("Robust matching process completed. Time taken: [%1] seconds. "
                         "Quantity: [%2]. Candidate pairs: [%3], checked by key points: [%4], "
                         "verdicts kept from earlier scans: [%5], matched: [%6].")
              .arg(elapsedSeconds())
              .arg(groups.size())
              .arg(matcher.candidateCount())
              .arg(matcher.checkedCount())
              .arg(kept ? kept->recalled() : 0)
              .arg(pairs.size()));
}

void ImageCompareThread::orbFeatureMatch(QList<QList<ImageData>> &groups)
{
    splog_d(kTag
        + QStringLiteral("Start OBR special symptom point deduplication. "
                         "Quantity: [%1]...")
              .arg(groups.size()));
    int total = 0;
    for (const auto &group : std::as_const(groups))
        total += int(group.size());
    std::atomic_int done {0};
    const double passMark = double(m_featuresValue);
    auto step = [&] { reportProgress(4, done.fetch_add(1) + 1, total); };
    reportProgress(4, 0, total, true);
    // The feature points of each picture come from the cache where its stamp is stored,
    // under a measure of their own; those computed from the file stamped are stored after.
    std::unique_ptr<ContentKeyCache> cache = openCache();
    const qint64 readNs = QDateTime::currentMSecsSinceEpoch() * 1'000'000LL;
    std::vector<ContentKeyCache::Picture> records;
    QHash<QString, size_t> recordOf;
    if (cache) {
        for (const auto &group : std::as_const(groups))
            for (const ImageData &image : group)
                if (!recordOf.contains(image.path))
                    recordOf.insert(image.path, size_t(recordOf.size()));
        records.resize(size_t(recordOf.size()));
        for (auto it = recordOf.cbegin(); it != recordOf.cend(); ++it) {
            records[it.value()].stamp = pictureStamp(it.key());
            records[it.value()].measure = kFeatureMeasure;
        }
        cache->lookupPictures(records);
    }
    QMutex recordMutex;
    const auto descriptorsOf = [&](const QString &path) {
        ContentKeyCache::Picture *record = nullptr;
        if (cache) {
            const auto at = recordOf.constFind(path);
            if (at != recordOf.constEnd())
                record = &records[at.value()];
        }
        if (record && record->found) {
            m_fromCache.fetch_add(1);
            return cv::Mat(record->rows, record->cols, record->type,
                const_cast<char *>(record->data.constData()))
                .clone();
        }
        cv::Mat descriptors = computeDescriptors(TReadImage::readImage(path));
        if (record && !descriptors.empty() && descriptors.isContinuous() && record->stamp.size >= 0
            && pictureStamp(path) == record->stamp) {
            QMutexLocker locker(&recordMutex);
            record->rows = descriptors.rows;
            record->cols = descriptors.cols;
            record->type = descriptors.type();
            record->data = QByteArray(reinterpret_cast<const char *>(descriptors.data),
                qsizetype(descriptors.total() * descriptors.elemSize()));
            record->fresh = true;
        }
        return descriptors;
    };
    QtConcurrent::blockingMap(&m_pool, groups, [&](QList<ImageData> &group) {
        BackgroundWork::lower();
        if (isCancelled() || group.isEmpty())
            return;
        try {
            ImageData reference = group.first();
            reference.descriptors = descriptorsOf(reference.path);
            if (reference.descriptors.empty())
                return;
            step();
            QList<ImageData> kept {reference};
            for (int k = 1; k < group.size(); ++k) {
                if (isCancelled())
                    return; // the group stays as it was
                ImageData candidate = group.at(k);
                candidate.descriptors = descriptorsOf(candidate.path);
                if (candidate.descriptors.empty())
                    continue;
                step();
                if (compareFeatures(reference.descriptors, candidate.descriptors) < passMark)
                    continue;
                kept.append(candidate);
                // Counted as they are confirmed; the reference is the one that stays.
                if (!candidate.fromEarlierResult)
                    addFound(candidate.bytes);
            }
            group = kept;
        } catch (const cv::Exception &e) {
            splog_d(kTag + QStringLiteral("OpenCV Exception: [%1].").arg(what(e)));
        } catch (const std::exception &e) {
            splog_d(kTag + QStringLiteral("std::exception: [%1].").arg(what(e)));
        } catch (...) {
            splog_d(kTag + QStringLiteral("Unknown exception caught."));
        }
    });
    if (cache && !isCancelled())
        cache->storePictures(records, readNs);
    // A picture left alone by the re-check is no longer similar to anything.
    groups.erase(std::remove_if(groups.begin(), groups.end(),
                     [](const QList<ImageData> &g) { return g.size() < 2; }),
        groups.end());
    if (!isCancelled())
        reportProgress(4, total, total, true);
    splog_d(kTag
        + QStringLiteral("OBR special point deduplication completed. Time "
                         "taken: [%1] seconds. Quantity: [%2]")
              .arg(elapsedSeconds())
              .arg(groups.size()));
}

QPair<int, qint64> ImageCompareThread::storeGroups(const QList<QList<ImageData>> &groups)
{
    QMutex newGroupsMutex;
    QList<GroupItemAutoSelector::KeyedGroup> newGroups;
    TFileData *store = TFileData::instance();
    auto entryOf = [](const ImageData &image) {
        return GroupMember {image.path, image.similarity}.entry();
    };
    QtConcurrent::blockingMap(&m_pool, groups, [&](const QList<ImageData> &group) {
        BackgroundWork::lower();
        QList<ImageData> earlier;
        QStringList entries;
        qint64 firstBytes = -1;
        for (const ImageData &image : group) {
            if (image.fromEarlierResult) {
                earlier.append(image);
                continue;
            }
            const qint64 bytes = QFileInfo(image.path).size();
            if (firstBytes < 0)
                firstBytes = bytes;
            m_fileCount.fetch_add(1);
            m_fileBytes.fetch_add(bytes);
            entries.append(entryOf(image));
            if (!image.reason.isEmpty())
                store->setMatchReason(entries.constLast(), image.reason);
        }
        if (entries.isEmpty())
            return;
        if (earlier.isEmpty()) {
            // A group of new pictures keeps one of them: the others could go.
            m_fileCount.fetch_sub(1);
            m_fileBytes.fetch_sub(firstBytes);
            if (entries.size() < 2)
                return;
            const QString key = TFileData::groupKey(entries.first());
            store->insertGroup(key, entries);
            QMutexLocker locker(&newGroupsMutex);
            newGroups.append(qMakePair(key, entries));
            return;
        }
    });
    // New pictures similar to an earlier group of identical files join that group (the
    // first earlier member's group); other earlier groups keep their own members. The
    // merges run one at a time, so two groups joining one earlier group cannot overwrite
    // each other's additions.
    for (const QList<ImageData> &group : groups) {
        auto firstEarlier = std::find_if(
            group.cbegin(), group.cend(), [](const ImageData &i) { return i.fromEarlierResult; });
        if (firstEarlier == group.cend())
            continue;
        QStringList members = store->group(firstEarlier->key);
        if (members.isEmpty())
            continue;
        bool changed = false;
        for (const ImageData &image : group) {
            if (image.fromEarlierResult)
                continue;
            const QString entry = entryOf(image);
            if (!members.contains(entry)) {
                members.append(entry);
                changed = true;
                if (!image.reason.isEmpty())
                    store->setMatchReason(entry, image.reason);
            }
        }
        if (changed)
            store->replaceGroup(firstEarlier->key, members);
    }
    if (m_selectedSimilar && m_selectionHint != kNoSelectedHint && !newGroups.isEmpty())
        GroupItemAutoSelector::autoSelectAllEx(newGroups, m_selectionHint);
    return qMakePair(m_fileCount.load(), m_fileBytes.load());
}

void ImageCompareThread::run()
{
    BackgroundWork::lower();
    m_timer.restart();
    m_lastReportMs.store(0);
    m_fileCount.store(0);
    m_fileBytes.store(0);
    m_foundCount.store(0);
    m_foundBytes.store(0);
    QList<ImageData> images;
    QList<QList<ImageData>> groups;
    auto guarded = [](const auto &stage) {
        try {
            stage();
        } catch (const cv::Exception &e) {
            splog_d(kTag + QStringLiteral("OpenCV Exception: [%1].").arg(what(e)));
        } catch (const std::exception &e) {
            splog_d(kTag + QStringLiteral("std::exception: [%1].").arg(what(e)));
        } catch (...) {
            splog_d(kTag + QStringLiteral("Unknown exception caught."));
        }
    };
    guarded([&] { loadImages(images); });
    if (m_measure == MeasureRobust) {
        // The robust measure checks its own pairs by their geometry.
        guarded([&] { robustCompare(images, groups); });
        images.clear();
    } else {
        guarded([&] { hashCompare(images, groups); });
        images.clear();
        if (m_isAddFeatures)
            guarded([&] { orbFeatureMatch(groups); });
    }
    guarded([&] { storeGroups(groups); });
    emit finished(m_fileCount.load(), m_fileBytes.load());
}
