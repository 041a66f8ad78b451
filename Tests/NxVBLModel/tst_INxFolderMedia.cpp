// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxFolderMedia.h>

#include <Support/NxTestMain.h>

#include <QPointer>
#include <QTest>

#include <memory>

#include "memoryengine.h"

namespace {

struct SearchFolder final : INxFolderMedia
{
    explicit SearchFolder(INxFolderMedia *root) : m_root(root) {}
    int folderId() const override { return 0; }
    INxFolderMedia *parentFolder() const override { return m_root; }
    QList<INxAbstractMedia *> items(bool, bool) const override { return {}; }
    bool isSearchResult() const override { return true; }
    INxFolderMedia *const m_root;
};

struct Favourites final : INxFolderMedia
{
    int folderId() const override { return 8; }
    int kind() const override { return NXVBLMODEL::fkFavourites; }
    QList<INxAbstractMedia *> items(bool, bool) const override { return {}; }
};

} // namespace

class tst_INxFolderMedia : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void isAFolder();
    void listsItsOwnItemsThenThoseOfEachChild_data();
    void listsItsOwnItemsThenThoseOfEachChild();
    void containsFolders_data();
    void containsFolders();
    void containsMediaByTheirParents_data();
    void containsMediaByTheirParents();
    void findsMediaByIdentity();
    void findsMediaByPath();
    void findsNothingByAnEmptyText();
    void knowsItsChildren();
    void answersNoChildOutOfRange();
    void knowsItsPlaceAmongSiblings();
    void countsItsDepthFromTheHiddenRoot_data();
    void countsItsDepthFromTheHiddenRoot();
    void isOwnedByItsSection_data();
    void isOwnedByItsSection();
    void aSearchFolderStandsBesideTheTree();
    void onlyFoldersOfTheTreeTakeMedia();
    void theFixedFoldersAreSpecial();
    void isOfItsOwnKindAlone();
    void isCompleteAndSearchableByDefault();
    void showsItsNameAsToolTip();
    void isWatchedWithAQPointer();

private:
    INxFolderMedia *folder(const QString &name) const;
    INxAbstractMedia *media(const QString &name) const;
    MemoryFolder *add(int id, const QString &name, MemoryFolder *in);
    void addMedia(const QString &name, MemoryFolder *in);

    std::unique_ptr<MemoryFolder> m_root;
    std::unique_ptr<SearchFolder> m_search;
    QMap<QString, MemoryFolder *> m_folders;
    QMap<QString, MemoryMedia *> m_media;
};

// root / section (a) / day (b) / hour (c)
//                    / night (d)
void tst_INxFolderMedia::init()
{
    m_root = std::make_unique<MemoryFolder>(0, QStringLiteral("root"), nullptr);
    m_folders.clear();
    m_media.clear();
    m_folders.insert(QStringLiteral("root"), m_root.get());
    MemoryFolder *section = add(1, QStringLiteral("section"), m_root.get());
    MemoryFolder *day = add(1001, QStringLiteral("day"), section);
    MemoryFolder *hour = add(1002, QStringLiteral("hour"), day);
    MemoryFolder *night = add(1003, QStringLiteral("night"), section);
    addMedia(QStringLiteral("a"), section);
    addMedia(QStringLiteral("b"), day);
    addMedia(QStringLiteral("c"), hour);
    addMedia(QStringLiteral("d"), night);
    m_search = std::make_unique<SearchFolder>(m_root.get());
}

void tst_INxFolderMedia::cleanup()
{
    m_search.reset();
    m_root.reset();
}

MemoryFolder *tst_INxFolderMedia::add(int id, const QString &name, MemoryFolder *in)
{
    auto *made = new MemoryFolder(id, name, in);
    m_folders.insert(name, made);
    return made;
}

void tst_INxFolderMedia::addMedia(const QString &name, MemoryFolder *in)
{
    auto *made = new MemoryMedia(QStringLiteral("/clips/") + name);
    made->folder = in;
    in->media.append(made);
    m_media.insert(name, made);
}

INxFolderMedia *tst_INxFolderMedia::folder(const QString &name) const
{
    if (name == QLatin1String("search"))
        return m_search.get();
    return m_folders.value(name, nullptr);
}

INxAbstractMedia *tst_INxFolderMedia::media(const QString &name) const
{
    return m_media.value(name, nullptr);
}

void tst_INxFolderMedia::isAFolder()
{
    QCOMPARE(folder(QStringLiteral("day"))->mediaType(), NXVBLMODEL::mtFolder);
    QCOMPARE(folder(QStringLiteral("day"))->state(), 0);
    QCOMPARE(folder(QStringLiteral("day"))->sourcePath(), QString());
}

void tst_INxFolderMedia::listsItsOwnItemsThenThoseOfEachChild_data()
{
    QTest::addColumn<bool>("recursive");
    QTest::addColumn<bool>("mediaOnly");
    QTest::addColumn<QString>("listed");
    QTest::newRow("own media") << false << true << QStringLiteral("a");
    QTest::newRow("own media and folders") << false << false << QStringLiteral("a day night");
    QTest::newRow("all media") << true << true << QStringLiteral("a b c d");
    QTest::newRow("everything") << true << false << QStringLiteral("a day b hour c night d");
}

void tst_INxFolderMedia::listsItsOwnItemsThenThoseOfEachChild()
{
    QFETCH(bool, recursive);
    QFETCH(bool, mediaOnly);
    QStringList names;
    const auto items = folder(QStringLiteral("section"))->items(recursive, mediaOnly);
    for (const INxAbstractMedia *item : items)
        names += item->name();
    QTEST(names.join(QLatin1Char(' ')), "listed");
}

void tst_INxFolderMedia::containsFolders_data()
{
    QTest::addColumn<QString>("outer");
    QTest::addColumn<QString>("inner");
    QTest::addColumn<bool>("recursive");
    QTest::addColumn<bool>("contained");
    const auto row = [](const char *outer, const char *inner, bool recursive, bool contained) {
        QTest::addRow("%s in %s%s", inner, outer, recursive ? ", at any depth" : "")
            << QString::fromLatin1(outer) << QString::fromLatin1(inner) << recursive << contained;
    };
    row("section", "day", false, true);
    row("section", "day", true, true);
    row("section", "hour", false, false);
    row("section", "hour", true, true);
    row("root", "hour", true, true);
    row("night", "hour", true, false);
    row("hour", "section", true, false);
    row("day", "day", false, false);
    row("day", "day", true, false);
    row("day", "nothing", false, false);
    row("day", "nothing", true, false);
}

void tst_INxFolderMedia::containsFolders()
{
    QFETCH(QString, outer);
    QFETCH(QString, inner);
    QFETCH(bool, recursive);
    QFETCH(bool, contained);
    QCOMPARE(folder(outer)->contains(folder(inner), recursive), contained);
}

void tst_INxFolderMedia::containsMediaByTheirParents_data()
{
    QTest::addColumn<QString>("outer");
    QTest::addColumn<QString>("inner");
    QTest::addColumn<bool>("recursive");
    QTest::addColumn<bool>("contained");
    const auto row = [](const char *outer, const char *inner, bool recursive, bool contained) {
        QTest::addRow("%s in %s%s", inner, outer, recursive ? ", at any depth" : "")
            << QString::fromLatin1(outer) << QString::fromLatin1(inner) << recursive << contained;
    };
    row("hour", "c", false, true);
    row("hour", "c", true, true);
    row("day", "c", false, false);
    row("day", "c", true, true);
    row("root", "c", true, true);
    row("night", "c", true, false);
    row("hour", "b", true, false);
    row("hour", "nothing", true, false);
}

void tst_INxFolderMedia::containsMediaByTheirParents()
{
    QFETCH(QString, outer);
    QFETCH(QString, inner);
    QFETCH(bool, recursive);
    QFETCH(bool, contained);
    QCOMPARE(folder(outer)->containsMedia(media(inner), recursive), contained);
    MemoryMedia listedNowhere(QStringLiteral("/clips/x"));
    QVERIFY(!folder(outer)->containsMedia(&listedNowhere, recursive));
}

void tst_INxFolderMedia::findsMediaByIdentity()
{
    const INxFolderMedia *section = folder(QStringLiteral("section"));
    const QString ofC = media(QStringLiteral("c"))->mediaId();
    QCOMPARE(section->findMedia(ofC, true), media(QStringLiteral("c")));
    QVERIFY(!section->findMedia(ofC, false));
    QCOMPARE(folder(QStringLiteral("hour"))->findMedia(ofC, false), media(QStringLiteral("c")));
    QVERIFY(!section->findMedia(QStringLiteral("unknown"), true));
}

void tst_INxFolderMedia::findsMediaByPath()
{
    const INxFolderMedia *section = folder(QStringLiteral("section"));
    const QString path = QStringLiteral("/clips/d");
    QCOMPARE(section->findMediaByPath(path, true), media(QStringLiteral("d")));
    QVERIFY(!section->findMediaByPath(path, false));
    QVERIFY(!section->findMediaByPath(QStringLiteral("/clips/D"), true));
}

void tst_INxFolderMedia::findsNothingByAnEmptyText()
{
    m_media[QStringLiteral("a")]->folder = folder(QStringLiteral("section"));
    auto *unnamed = new MemoryMedia(QString());
    m_folders[QStringLiteral("section")]->media.append(unnamed);
    QCOMPARE(unnamed->mediaId(), QString());
    QVERIFY(!folder(QStringLiteral("section"))->findMedia(QString(), true));
    QVERIFY(!folder(QStringLiteral("section"))->findMediaByPath(QString(), true));
}

void tst_INxFolderMedia::knowsItsChildren()
{
    const INxFolderMedia *section = folder(QStringLiteral("section"));
    QCOMPARE(section->childFolderCount(), 2);
    QVERIFY(section->hasChildFolders());
    QCOMPARE(section->childFolder(0), folder(QStringLiteral("day")));
    QCOMPARE(section->childFolder(1), folder(QStringLiteral("night")));
    QVERIFY(!folder(QStringLiteral("hour"))->hasChildFolders());
    QCOMPARE(folder(QStringLiteral("hour"))->childFolderCount(), 0);
    QVERIFY(m_search->childFolders().isEmpty());
}

void tst_INxFolderMedia::answersNoChildOutOfRange()
{
    QVERIFY(!folder(QStringLiteral("section"))->childFolder(-1));
    QVERIFY(!folder(QStringLiteral("section"))->childFolder(2));
    QVERIFY(!folder(QStringLiteral("hour"))->childFolder(0));
}

void tst_INxFolderMedia::knowsItsPlaceAmongSiblings()
{
    QCOMPARE(folder(QStringLiteral("day"))->rowInParent(), 0);
    QCOMPARE(folder(QStringLiteral("night"))->rowInParent(), 1);
    QCOMPARE(folder(QStringLiteral("root"))->rowInParent(), -1);
}

void tst_INxFolderMedia::countsItsDepthFromTheHiddenRoot_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("depth");
    QTest::newRow("hidden root") << QStringLiteral("root") << 0;
    QTest::newRow("section") << QStringLiteral("section") << 1;
    QTest::newRow("user's folder") << QStringLiteral("day") << 2;
    QTest::newRow("folder in it") << QStringLiteral("hour") << 3;
}

void tst_INxFolderMedia::countsItsDepthFromTheHiddenRoot()
{
    QFETCH(QString, name);
    QFETCH(int, depth);
    QCOMPARE(folder(name)->depth(), depth);
}

void tst_INxFolderMedia::isOwnedByItsSection_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("owner");
    QTest::newRow("hidden root: nobody") << QStringLiteral("root") << QStringLiteral("nobody");
    QTest::newRow("section: itself") << QStringLiteral("section") << QStringLiteral("section");
    QTest::newRow("user's folder") << QStringLiteral("day") << QStringLiteral("section");
    QTest::newRow("folder in it") << QStringLiteral("hour") << QStringLiteral("section");
    QTest::newRow("search: nobody") << QStringLiteral("search") << QStringLiteral("nobody");
}

void tst_INxFolderMedia::isOwnedByItsSection()
{
    QFETCH(QString, name);
    QFETCH(QString, owner);
    QCOMPARE(folder(name)->owner(), folder(owner));
}

void tst_INxFolderMedia::aSearchFolderStandsBesideTheTree()
{
    QVERIFY(m_search->isSearchFolder());
    QVERIFY(!m_search->isCategoryTreeFolder());
    for (const char *name : {"section", "day", "hour", "night"}) {
        const INxFolderMedia *inTree = folder(QString::fromLatin1(name));
        QVERIFY(inTree->isCategoryTreeFolder());
        QVERIFY(!inTree->isSearchFolder());
        QVERIFY(!inTree->isSearchResult());
    }
    QVERIFY(!m_root->isCategoryTreeFolder());
}

void tst_INxFolderMedia::onlyFoldersOfTheTreeTakeMedia()
{
    QVERIFY(!m_root->canAddMedia());
    QVERIFY(!m_search->canAddMedia());
    QVERIFY(folder(QStringLiteral("section"))->canAddMedia());
    QVERIFY(folder(QStringLiteral("hour"))->canAddMedia());
}

void tst_INxFolderMedia::theFixedFoldersAreSpecial()
{
    QVERIFY(m_root->isSpecial());
    QVERIFY(folder(QStringLiteral("section"))->isSpecial());
    QVERIFY(m_search->isSpecial());
    QVERIFY(!folder(QStringLiteral("day"))->isSpecial());
    QVERIFY(!folder(QStringLiteral("hour"))->isSpecial());
}

void tst_INxFolderMedia::isOfItsOwnKindAlone()
{
    const Favourites favourites;
    QVERIFY(favourites.isKind(NXVBLMODEL::fkFavourites));
    QVERIFY(favourites.holdsMediaType(NXVBLMODEL::fkFavourites));
    QVERIFY(!favourites.isKind(NXVBLMODEL::fkOnline));
    QVERIFY(!favourites.holdsMediaType(NXVBLMODEL::fkOnline));
    QCOMPARE(folder(QStringLiteral("day"))->kind(), int(NXVBLMODEL::fkNone));
}

void tst_INxFolderMedia::isCompleteAndSearchableByDefault()
{
    INxFolderMedia *day = folder(QStringLiteral("day"));
    day->fetchMore();
    day->setFetchMoreState(INxFolderMedia::FetchMoreLoading);
    day->setSearchEnabled(true);
    QVERIFY(day->isLoaded());
    QVERIFY(!day->canFetchMore());
    QVERIFY(!day->isNewnessOrdered());
    QVERIFY(day->isSupportKeywordSearch());
    QVERIFY(!day->isSupportOnlineSearch());
    QVERIFY(!day->isSupportSimilarSearch());
    QVERIFY(!day->mediaManager());
    QVERIFY(!day->needConvert());
    QVERIFY(day->similarPackItems().isEmpty());
}

void tst_INxFolderMedia::showsItsNameAsToolTip()
{
    QCOMPARE(folder(QStringLiteral("day"))->toolTipText(), QStringLiteral("day"));
}

void tst_INxFolderMedia::isWatchedWithAQPointer()
{
    auto watched = std::make_unique<MemoryFolder>(1001, QStringLiteral("day"), nullptr);
    const QPointer<INxFolderMedia> pointer = watched.get();
    QVERIFY(!pointer.isNull());
    watched.reset();
    QVERIFY(pointer.isNull());
}

NX_TEST_MAIN(tst_INxFolderMedia)
#include "tst_INxFolderMedia.moc"
