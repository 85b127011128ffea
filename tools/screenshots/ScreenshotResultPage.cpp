// SPDX-License-Identifier: GPL-3.0-or-later
// Saves pictures of every state of the result page into the folder given as argument:
// each view mode, menu, question, the removal summary and the picture preview, in English
// at two window sizes, and the main state in every language. Run it through
// tools/screenshots.sh (under Xvfb) to look at the real rendering.
#include "ScreenshotSupport.h"
#include "app/LanguageSetup.h"
#include "engine/GroupItemAutoSelector.h"
#include "engine/GroupMember.h"
#include "engine/ScanTree.h"
#include "engine/TFileData.h"
#include "preferences/DFIgnoreListPreferences.h"
#include "preferences/DFPreferences.h"
#include "results/PicturePreviewDialog.h"
#include "results/ResultForm.h"
#include "results/TImageListView.h"

#include <algorithm>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {

using namespace ScreenshotSupport;

void waitLoaded(const ResultForm &page)
{
    for (int i = 0; i < 400 && !page.isDataLoaded(); ++i)
        QTest::qWait(50);
}

// A photo-like picture: a sky gradient, a sun and hills, varied by seed.
QByteArray photo(int seed, int width = 1200, int height = 800)
{
    QRandomGenerator random(seed);
    QImage image(width, height, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient sky(0, 0, 0, height);
    sky.setColorAt(0, QColor::fromHsv(random.bounded(180, 240), 120, 230));
    sky.setColorAt(1, QColor::fromHsv(random.bounded(20, 60), 80, 250));
    painter.fillRect(image.rect(), sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 214, 120));
    painter.drawEllipse(QPoint(random.bounded(width), height / 3), 70, 70);
    for (int layer = 0; layer < 3; ++layer) {
        painter.setBrush(QColor::fromHsv(random.bounded(80, 140), 140, 120 + layer * 40));
        QPolygon hill;
        hill << QPoint(0, height);
        for (int x = 0; x <= width; x += width / 8)
            hill << QPoint(x, height / 2 + layer * 80 + random.bounded(120));
        hill << QPoint(width, height);
        painter.drawPolygon(hill);
    }
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG", 88);
    return bytes;
}

void group(const QString &root, const QStringList &relatives, const QByteArray &data)
{
    QStringList paths;
    for (const QString &relative : relatives)
        paths << ScanTree::write(root, relative, data);
    TFileData::instance()->insertGroup(TFileData::groupKey(paths.first()), paths);
}

// A result of every category, as a family archive gives it.
void fillResults(const QString &root)
{
    TFileData::instance()->clear();
    const char *places[] = {"Pictures/2019/Summer", "Backup/Phone/DCIM", "Desktop/copy of photos",
        "Downloads/Shared album"};
    for (int i = 0; i < 7; ++i) {
        QStringList copies;
        for (int c = 0; c < 2 + i % 3; ++c)
            copies << QStringLiteral("%1/IMG_%2%3.jpg")
                          .arg(QLatin1String(places[c]))
                          .arg(4100 + i)
                          .arg(c == 2 ? QStringLiteral(" (1)") : QString());
        group(root, copies, photo(i));
    }
    // Near matches of one photo, as the picture comparison tags them.
    QList<GroupMember> similar;
    for (int i = 0; i < 3; ++i)
        similar.append({ScanTree::write(root, QStringLiteral("Pictures/Edits/sunset-%1.jpg").arg(i),
                            photo(40, 1200 - i * 200, 800 - i * 130)),
            100 - i * 7});
    const QStringList entries = GroupMember::entries(similar);
    TFileData::instance()->insertGroup(TFileData::groupKey(entries.first()), entries);
    // Why each copy joined, as the robust measure words it.
    TFileData::instance()->setMatchReason(entries.at(1), QStringLiteral("robust, distance 4"));
    TFileData::instance()->setMatchReason(
        entries.at(2), QStringLiteral("robust, distance 9, key points 41, pixels agree 98 %"));
    QRandomGenerator random(7);
    auto bytes = [&random](int size) {
        QByteArray data(size, Qt::Uninitialized);
        for (char &c : data)
            c = char(random.bounded(256));
        return data;
    };
    group(root,
        {QStringLiteral("Documents/Tax return 2023.pdf"),
            QStringLiteral("Downloads/Tax return 2023 (1).pdf")},
        bytes(420000));
    group(root,
        {QStringLiteral("Documents/Family budget.xlsx"),
            QStringLiteral("Backup/Documents/Family budget.xlsx")},
        bytes(61000));
    group(root,
        {QStringLiteral("Music/Album/01 Morning.mp3"),
            QStringLiteral("Music/Copies/01 Morning.mp3")},
        bytes(3900000));
    group(root,
        {QStringLiteral("Videos/Birthday.mp4"), QStringLiteral("Backup/Videos/Birthday.mp4")},
        bytes(9800000));
    group(root,
        {QStringLiteral("Downloads/installer.zip"), QStringLiteral("Desktop/installer-copy.zip")},
        bytes(2400000));
    // The summer album is the user's archive: its copies stay, drawn as protected.
    TFileData::instance()->setProtectedFolders(
        ProtectedFolders({root + QStringLiteral("/Pictures/2019")}));
    QList<QPair<QString, QStringList>> pairs;
    const TFileData::Groups groups = TFileData::instance()->groups();
    for (auto it = groups.cbegin(); it != groups.cend(); ++it)
        pairs.append({it.key(), it.value()});
    GroupItemAutoSelector::autoSelectAllEx(pairs, GroupItemAutoSelector::autoSelect);
}

// Grabs the next modal dialog that comes up, then answers it.
void grabNextModal(const QString &out, const QString &name, QMessageBox::StandardButton answer)
{
    auto *timer = new QTimer;
    timer->setInterval(50);
    QObject::connect(timer, &QTimer::timeout, [timer, out, name, answer] {
        QWidget *modal = QApplication::activeModalWidget();
        if (!modal || !modal->isVisible())
            return;
        // The progress of a removal is not answered: it closes by itself.
        if (modal->inherits("CustomProgressDialog")) {
            if (!QFileInfo::exists(QDir(out).filePath(name + QStringLiteral("-progress.png"))))
                modal->grab().save(QDir(out).filePath(name + QStringLiteral("-progress.png")));
            return;
        }
        timer->stop();
        timer->deleteLater();
        QTimer::singleShot(250, modal, [modal, out, name, answer] {
            modal->grab().save(QDir(out).filePath(name + QStringLiteral(".png")));
            if (auto *box = qobject_cast<QMessageBox *>(modal); box && box->button(answer))
                box->button(answer)->click();
            else if (auto *dialog = qobject_cast<QDialog *>(modal))
                answer == QMessageBox::Cancel ? dialog->reject() : dialog->accept();
        });
    });
    timer->start();
}

void popupAndSave(
    QMenu *menu, QWidget *page, const QPoint &at, const QString &out, const QString &name)
{
    menu->popup(page->mapToGlobal(at));
    save(menu, out, name);
    menu->hide();
}

void shootStates(const QSize &size, const QString &root, const QString &out)
{
    const QString prefix = QStringLiteral("en-%1x%2-result-").arg(size.width()).arg(size.height());
    fillResults(root);
    ResultForm page;
    page.show();
    // After the show: the page restores the size it had when last closed.
    page.resize(size);
    (void)QTest::qWaitForWindowExposed(&page);
    // The loading page, before the first groups arrive.
    save(&page, out, prefix + QStringLiteral("0-loading"));
    waitLoaded(page);
    QTest::qWait(600);
    save(&page, out, prefix + QStringLiteral("1-grid"));
    page.setViewMode(ResultForm::ListMode);
    save(&page, out, prefix + QStringLiteral("2-list"));
    page.setViewMode(ResultForm::FlowMode);
    QTest::qWait(400);
    save(&page, out, prefix + QStringLiteral("3-flow"));
    page.setViewMode(ResultForm::GridMode);

    popupAndSave(page.selectionMenu(), &page, QPoint(size.width() / 2, 120), out,
        prefix + QStringLiteral("4-select-menu"));
    popupAndSave(page.filterMenu(), &page, QPoint(size.width() / 2, 120), out,
        prefix + QStringLiteral("5-filter-menu"));
    popupAndSave(page.deleteMenu(), &page, QPoint(size.width() - 300, size.height() - 140), out,
        prefix + QStringLiteral("6-delete-menu"));

    // The similar pictures, in the grid and side by side.
    auto *groups = page.findChild<QListView *>(QStringLiteral("listView_groups"));
    for (int row = 0; row < page.groupModel()->rowCount(); ++row)
        if (GroupMember::anySimilar(
                GroupMember::fromEntries(page.groupModel()->displayedGroups().at(row).files)))
            groups->setCurrentIndex(page.groupModel()->index(row, 0));
    QTest::qWait(700);
    save(&page, out, prefix + QStringLiteral("7-similar"));
    auto *grid = page.findChild<TImageListView *>(QStringLiteral("listView_images"));
    // The smallest copy: its preview says why it matched.
    grid->openPreview(page.itemModel()->index(2, 0));
    QTest::qWait(900);
    if (grid->preview())
        save(grid->preview(), out, prefix + QStringLiteral("8-preview"));
    if (grid->preview())
        grid->preview()->close();

    // A group holding a copy in the protected archive, in both views.
    const ProtectedFolders archive = TFileData::instance()->protectedFolders();
    for (int row = 0; row < page.groupModel()->rowCount(); ++row) {
        const QStringList files = page.groupModel()->displayedGroups().at(row).files;
        if (std::any_of(files.cbegin(), files.cend(),
                [&archive](const QString &file) { return archive.protects(file); })) {
            groups->setCurrentIndex(page.groupModel()->index(row, 0));
            break;
        }
    }
    QTest::qWait(700);
    save(&page, out, prefix + QStringLiteral("14-protected-grid"));
    page.setViewMode(ResultForm::ListMode);
    save(&page, out, prefix + QStringLiteral("15-protected-list"));
    page.setViewMode(ResultForm::GridMode);

    page.on_btn_archives_clicked();
    save(&page, out, prefix + QStringLiteral("9-empty-category"));
    page.on_btn_all_clicked();

    // A removal: the question, the every-copy question, the summary.
    DFPreferences::instance()->ignoreListPreferences()->setRemovealMethod(
        DFIgnoreListPreferences::moveToTrash);
    // A group without a protected copy, so that every copy can be selected.
    QString someKey;
    const TFileData::Groups all = TFileData::instance()->groups();
    for (auto it = all.cbegin(); it != all.cend() && someKey.isEmpty(); ++it)
        if (!std::any_of(it->cbegin(), it->cend(),
                [&archive](const QString &file) { return archive.protects(file); }))
            someKey = it.key();
    TFileData::instance()->setSelected(someKey, TFileData::instance()->group(someKey));
    grabNextModal(out, prefix + QStringLiteral("10-confirm"), QMessageBox::Yes);
    QTimer::singleShot(1200, [out, prefix] {
        grabNextModal(out, prefix + QStringLiteral("11-every-copy"), QMessageBox::No);
        QTimer::singleShot(1500, [out, prefix] {
            grabNextModal(out, prefix + QStringLiteral("12-summary"), QMessageBox::Ok);
        });
    });
    page.on_btn_delete_clicked();
    QTest::qWait(3500);
    save(&page, out, prefix + QStringLiteral("13-after-removal"));

    // The folder question of a move, filled as a user left it last time.
    DFPreferences::instance()->ignoreListPreferences()->setTrashFolder(
        QDir(root).filePath(QStringLiteral("Sorted duplicates")));
    DFPreferences::instance()->ignoreListPreferences()->setKeepFolderStructure(true);
    grabNextModal(out, prefix + QStringLiteral("16-move-question"), QMessageBox::Cancel);
    for (QAction *action : page.deleteMenu()->actions())
        if (action->data().toInt() == DFIgnoreListPreferences::moveToFolder)
            action->trigger();
    page.close();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const QString out = outputFolder(argc, argv);
    useProgramStyle(app);
    QTemporaryDir root;
    useLanguage(1);
    for (const QSize &size : kSizes)
        shootStates(size, root.path(), out);
    for (const Language &language : kLanguages) {
        useLanguage(language.index);
        fillResults(root.path());
        ResultForm page;
        page.show();
        page.resize(kSizes[0]);
        waitLoaded(page);
        QTest::qWait(600);
        save(&page, out,
            QStringLiteral("%1-1366x768-result-1-grid").arg(QLatin1String(language.code)));
        page.setViewMode(ResultForm::ListMode);
        save(&page, out,
            QStringLiteral("%1-1366x768-result-2-list").arg(QLatin1String(language.code)));
    }
    TFileData::instance()->clear();
    return 0;
}
