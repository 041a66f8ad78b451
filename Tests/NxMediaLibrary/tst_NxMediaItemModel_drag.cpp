// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxFile.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxVBLModel/INxVCGClassifyMediaItem.h>
#include <NxVBLModel/INxVCGMediaItem.h>
#include <NxVBLModel/NxMediaItemMimeData.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include "ItemStand.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;
using SharedMedia = std::shared_ptr<INxAbstractMedia>;
Q_DECLARE_METATYPE(SharedMedia)

namespace {

/// Where the media of a test are, or are not.
struct Place
{
    bool resource = false;
    bool hasFile = false;
};

/// "/here/NAME" is there, "/gone/NAME" is not.
template<typename Base>
struct Placed : Base
{
    Placed(const char *called, const Place &where) : title(QLatin1String(called)), place(where) {}
    NxMediaType mediaType() const override { return mtVideo; }
    QString name() const override { return title; }
    bool isResource() const override { return place.resource; }
    QString filePath() const override
    {
        return (place.hasFile ? QStringLiteral("/here/") : QStringLiteral("/gone/")) + title;
    }
    QString title;
    Place place;
};

struct Entry final : Placed<INxVCGClassifyMediaItem>
{
    using Placed::Placed;
    qint64 classifyId() const override { return 1; }
};

struct Clip final : Placed<INxVCGMediaItem>
{
    Clip(const char *called, bool isFromTheProvider, bool isAway)
        : Placed(called, {true, false}),
          online(isFromTheProvider),
          away(isAway)
    {
    }
    bool isOnline() const override { return online; }
    bool isNotAvailable() const override { return away; }
    bool online;
    bool away;
};

/// Answers for the files of the tests, and remembers which were asked for.
struct Disk
{
    Disk()
    {
        NxFile::setAnswerer([this](const QString &path) {
            asked.append(path);
            return std::optional<bool>(path.startsWith(QLatin1String("/here/")));
        });
    }
    ~Disk() { NxFile::setAnswerer({}); }
    QStringList asked;
};

QString draggedText(const NxMediaItemModel &model, const QModelIndexList &indexes)
{
    const std::unique_ptr<QMimeData> data(model.mimeData(indexes));
    const auto *media = qobject_cast<NxMediaItemMimeData *>(data.get());
    return media ? rowsText(media->items()) : QStringLiteral("no media data");
}

QModelIndexList rowsOf(const NxMediaItemModel &model, std::initializer_list<int> rows)
{
    QModelIndexList indexes;
    for (const int row : rows)
        indexes.append(model.index(row, 0));
    return indexes;
}

} // namespace

/// What is dragged out of the model.
class tst_NxMediaItemModel_drag : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void onlyWhatCanBeUsedIsDragged_data()
    {
        QTest::addColumn<SharedMedia>("media");
        QTest::addColumn<bool>("isDragged");
        QTest::addColumn<bool>("isFileLookedFor");
        const auto row = [](const char *name, const SharedMedia &media, bool dragged, bool looked) {
            QTest::newRow(name) << media << dragged << looked;
        };
        using Item = Placed<INxAbstractMediaItem>;
        row("file", std::make_shared<Item>("a", Place{false, true}), true, true);
        row("missing file", std::make_shared<Item>("a", Place{false, false}), false, true);
        row("resource", std::make_shared<Item>("a", Place{true, true}), true, false);
        row("resource without a file", std::make_shared<Item>("a", Place{true, false}), true,
            false);
        row("folder", std::make_shared<ScriptedPlain>(mtFolder), false, false);
        row("no item", std::make_shared<ScriptedPlain>(mtVideo), false, false);
        row("classification", std::make_shared<Entry>("a", Place{true, true}), false, false);
        row("classification with a file", std::make_shared<Entry>("a", Place{false, true}), false,
            true);
        row("clip at the provider", std::make_shared<Clip>("a", true, true), false, false);
        row("online clip that is here", std::make_shared<Clip>("a", true, false), true, false);
        row("other clip that is not here", std::make_shared<Clip>("a", false, true), true, false);
        row("other clip", std::make_shared<Clip>("a", false, false), true, false);
    }

    void onlyWhatCanBeUsedIsDragged()
    {
        QFETCH(SharedMedia, media);
        QFETCH(bool, isDragged);
        QFETCH(bool, isFileLookedFor);
        const Disk disk;
        ItemStand stand(fkOnline);
        stand.folder->media.append(media.get());
        NxMediaItemModel model(mctVCGStock, nullptr);
        model.load(stand.folder);
        QCOMPARE(model.rowCount(), 1);
        const std::unique_ptr<QMimeData> data(model.mimeData({model.index(0, 0)}));
        const auto *dragged = qobject_cast<NxMediaItemMimeData *>(data.get());
        QVERIFY(dragged);
        QCOMPARE(dragged->items(), isDragged ? ItemStand::Items{media.get()} : ItemStand::Items());
        QCOMPARE(disk.asked.size(), isFileLookedFor ? 1 : 0);
    }

    void headersAndTilesStay()
    {
        ItemStand stand(fkProject, "A:x B:y");
        for (const auto &item : stand.items)
            item->resource = true;
        NxMediaItemModel model(mctMedia, nullptr);
        model.load(stand.folder);
        model.setGroupBy({gbCategory, soASC, nullptr});
        QCOMPARE(rowsText(model.getItems()), QStringLiteral("[x] + A [y] + B"));
        QCOMPARE(draggedText(model, rowsOf(model, {0, 1, 2, 3, 4, 5})), QStringLiteral("A B"));
        model.setItemCountPerLine(2, false);
        model.setItemCountPerLine(4, true); // One line of each pack.
        model.setItemCountPerLine(1, false);
        model.updateSimilarMediaItems();
        QCOMPARE(rowsText(model.getItems()), QStringLiteral("A ..."));
        QCOMPARE(draggedText(model, rowsOf(model, {0, 1})), QStringLiteral("A"));
    }

    void mediaStandInTheOrderOfTheIndexes()
    {
        ItemStand stand(fkOnline, "A B C");
        for (const auto &item : stand.items)
            item->resource = true;
        NxMediaItemModel model(mctAudio, nullptr);
        model.load(stand.folder);
        QCOMPARE(draggedText(model, rowsOf(model, {2, 0, 1})), QStringLiteral("C A B"));
        QCOMPARE(draggedText(model, {model.index(1, 0), model.index(1, 3)}), QStringLiteral("B B"));
    }

    void rowsThatAreNotThereAreLeftOut()
    {
        ItemStand stand(fkOnline, "A");
        stand.item("A")->resource = true;
        NxMediaItemModel model(mctAudio, nullptr);
        model.load(stand.folder);
        QModelIndexList indexes = rowsOf(model, {-1, 0, 1, 7});
        indexes.append(QModelIndex());
        QCOMPARE(draggedText(model, indexes), QStringLiteral("A"));
    }

    void thereIsAlwaysData()
    {
        NxMediaItemModel model(mctAudio, nullptr);
        QCOMPARE(draggedText(model, {}), QString());
        QCOMPARE(draggedText(model, {QModelIndex()}), QString());
    }
};

NX_TEST_MAIN(tst_NxMediaItemModel_drag)
#include "tst_NxMediaItemModel_drag.moc"
