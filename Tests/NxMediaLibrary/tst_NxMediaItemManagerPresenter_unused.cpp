// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>

#include <NxWidgets/ScriptedUser.h>
#include <Support/NxTestMain.h>

#include <QTest>

#include "FlowStand.h"
#include "TextLines.h"

namespace {

/// A folder with media in it and below it, of which main, a composite and a split screen use
/// some.
struct UnusedStand : FlowStand
{
    UnusedStand()
    {
        for (const char *name : {"A", "B", "C"})
            add(name);
        ScriptedItemFolder *below =
            folder->append(std::make_unique<ScriptedItemFolder>(QStringLiteral("below")));
        for (const char *name : {"D", "E", "F"})
            add(name, below);
        ScriptedTimeline *main = project->addTimeline(QStringLiteral("main"));
        main->add(QStringLiteral("a"), QStringLiteral("id-A"));
        project->addComposite(main, QStringLiteral("inner"))
            ->add(QStringLiteral("e"), QStringLiteral("id-E"));
        main->addSplitScreen(QStringLiteral("split"))
            ->add(QStringLiteral("c"), QStringLiteral("id-C"));
    }
    [[nodiscard]] QString unused(INxFolderMedia *of) const
    {
        QList<INxAbstractMedia *> medias;
        presenter->getUnusedMedias(of, medias);
        return namesOf(medias);
    }
};

} // namespace

/// Media that no timeline uses: found, and removed when the user agrees.
class tst_NxMediaItemManagerPresenter_unused : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void listsWhatNoTimelineUses();
    void addsToTheList();
    void listsMediaItemsAlone();
    void listsNothingWithoutAProject();
    void listsNothingOfNoFolder();

    void removesThemAfterAsking();
    void keepsThemWhenTheUserSaysNo();
    void asksNothingWhenAllAreUsed();
    void asksNothingWithoutAProject();
};

void tst_NxMediaItemManagerPresenter_unused::listsWhatNoTimelineUses()
{
    const UnusedStand stand;
    QCOMPARE(stand.unused(stand.folder), QStringLiteral("B D F"));
    QCOMPARE(stand.unused(stand.section), QStringLiteral("B D F"));
    QCOMPARE(stand.unused(stand.folder->children.front().get()), QStringLiteral("D F"));
}

void tst_NxMediaItemManagerPresenter_unused::addsToTheList()
{
    const UnusedStand stand;
    QList<INxAbstractMedia *> medias = stand.list("A");
    stand.presenter->getUnusedMedias(stand.folder, medias);
    QCOMPARE(namesOf(medias), QStringLiteral("A B D F"));
}

void tst_NxMediaItemManagerPresenter_unused::listsMediaItemsAlone()
{
    UnusedStand stand;
    UtilsMedia tile(NXVBLMODEL::mtImportTile);
    stand.folder->media.prepend(&tile);
    stand.folder->media.prepend(nullptr);
    QCOMPARE(stand.unused(stand.folder), QStringLiteral("B D F"));
}

void tst_NxMediaItemManagerPresenter_unused::listsNothingWithoutAProject()
{
    UnusedStand stand;
    stand.engine.project = nullptr;
    QCOMPARE(stand.unused(stand.folder), QString());
}

void tst_NxMediaItemManagerPresenter_unused::listsNothingOfNoFolder()
{
    const UnusedStand stand;
    QCOMPARE(stand.unused(nullptr), QString());
}

void tst_NxMediaItemManagerPresenter_unused::removesThemAfterAsking()
{
    UnusedStand stand;
    ScriptedUser user;
    user.press(mdbAffirmative);
    QVERIFY(stand.presenter->removeUnusedMedia(stand.folder));
    QCOMPARE(user.messages().first().text,
             QStringLiteral("Are you sure you want to delete the selected item?"));
    QCOMPARE(stand.journal, lines({"stop proxies B D F",
                                   "step deleteMediaItems of "
                                   "NxMediaItemManagerPresenterPrivate::removeMediaItems",
                                   "folder is emptied of B D F", "step ends"}));
    QCOMPARE(namesOf(stand.folder->items(true, true)), QStringLiteral("A C E"));
}

void tst_NxMediaItemManagerPresenter_unused::keepsThemWhenTheUserSaysNo()
{
    UnusedStand stand;
    ScriptedUser user;
    user.press(mdbNegative);
    QVERIFY(stand.presenter->removeUnusedMedia(stand.folder));
    QCOMPARE(stand.journal, QStringList());
    QCOMPARE(namesOf(stand.folder->items(true, true)), QStringLiteral("A B C D E F"));
}

void tst_NxMediaItemManagerPresenter_unused::asksNothingWhenAllAreUsed()
{
    UnusedStand stand;
    auto *main = static_cast<ScriptedTimeline *>(stand.project->held.front().get());
    for (const char *id : {"id-B", "id-D", "id-F"})
        main->add(QLatin1String(id), QLatin1String(id));
    const ScriptedUser user;
    QVERIFY(!stand.presenter->removeUnusedMedia(stand.folder));
    QCOMPARE(user.dialogs(), 0);
    QCOMPARE(stand.journal, QStringList());
}

void tst_NxMediaItemManagerPresenter_unused::asksNothingWithoutAProject()
{
    UnusedStand stand;
    stand.engine.project = nullptr;
    const ScriptedUser user;
    QVERIFY(!stand.presenter->removeUnusedMedia(stand.folder));
    QCOMPARE(user.dialogs(), 0);
}

NX_TEST_MAIN(tst_NxMediaItemManagerPresenter_unused)
#include "tst_NxMediaItemManagerPresenter_unused.moc"
