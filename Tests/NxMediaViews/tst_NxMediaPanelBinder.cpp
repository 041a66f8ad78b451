// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxMediaViews/NxFolderTreeView.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxMediaViews/NxMediaPanelBinder.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxWidgets/NxWidgetView.h>

#include <NxMediaLibrary/PanelYard.h>
#include <NxMediaLibrary/TextLines.h>
#include <NxWidgets/DialogUser.h>
#include <Support/NxBracketLanguage.h>
#include <Support/NxTestLog.h>
#include <Support/NxTestMain.h>

#include <QSignalSpy>

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;
using Binder = NxMediaPanelBinder;

namespace {

/// Three media of a project, and views which a binder connects. Each of them can go first.
struct Bound
{
    Bound()
    {
        yard.add(lines({"b.mov", "a.jpg", "c.wav"}));
        yard.leavePanel();
        yard.panel.reset();
        library = std::make_unique<NxMediaLibraryPresenter>(yard.project, nullptr);
        library->setCurrentCategoryType(mctMedia);
        binder = std::make_unique<Binder>(&panel, view.get(), tree.get());
        binder->setPresenter(library.get());
        for (QWidget *one :
             {static_cast<QWidget *>(view.get()), static_cast<QWidget *>(tree.get())}) {
            one->resize(600, 400);
            one->show();
        }
        view->viewport()->grab();
    }
    ~Bound()
    {
        if (binder)
            binder->letGo();
    }

    [[nodiscard]] QStringList rows() const
    {
        QStringList names;
        const NxMediaItemModel *model = binder->model();
        for (int row = 0; model && row < model->rowCount(); ++row) {
            INxAbstractMedia *media = model->mediaItem(row);
            if (dynamic_cast<INxAbstractMediaItem *>(media))
                names.append(media->name());
        }
        return names;
    }
    [[nodiscard]] INxAbstractMedia *media(const char *name) const
    {
        for (int row = 0; row < binder->model()->rowCount(); ++row) {
            INxAbstractMedia *one = binder->model()->mediaItem(row);
            if (dynamic_cast<INxAbstractMediaItem *>(one) && one->name() == QLatin1String(name))
                return one;
        }
        return nullptr;
    }

    PanelYard yard;
    std::unique_ptr<NxMediaLibraryPresenter> library;
    NxWidgetView panel{nullptr};
    std::unique_ptr<NxMediaItemView> view = std::make_unique<NxMediaItemView>();
    std::unique_ptr<NxFolderTreeView> tree = std::make_unique<NxFolderTreeView>();
    std::unique_ptr<Binder> binder;
};

const QStringList ByName = lines({"a.jpg", "b.mov", "c.wav"});

} // namespace

/// What connects presenters with the views of a panel.
class tst_NxMediaPanelBinder : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theShownCategoryFollowsThePresenter();
    void aCategoryComesBackAsItWasLeft();
    void anyOfThemMayDieFirst_data();
    void anyOfThemMayDieFirst();
    void withoutATreeTheMediaAreShown();
    void importsAreServedWhateverIsShown();
    void aSearchForLikesIsLeft();
    void filtersAreCleared();
    void groupsFollowTheLanguage();
    void aPlusAsksForTheTimeline();
    void aPresentFileIsOpenedAndAMissingOneLookedFor();
    void headingsTurnTheOrderRound();
    void selectionIsKnownToThePresenter();
    void aMediaIsShownInItsFolder();
    void headersAreNotCounted();
};

void tst_NxMediaPanelBinder::theShownCategoryFollowsThePresenter()
{
    const Bound bound;
    QCOMPARE(bound.rows(), ByName);
    QSignalSpy shown(bound.binder.get(), &Binder::sigShownChanged);
    bound.library->setCurrentCategoryType(mctAudio);
    QVERIFY(shown.size() > 0);
    QCOMPARE(bound.binder->items()->categoryType(), mctAudio);
    QVERIFY(bound.rows() != ByName);
    QCOMPARE(bound.tree->presenter(), bound.binder->category());
    bound.binder->letGo();
    QVERIFY(!bound.binder->items());
    QVERIFY(!bound.binder->model());
    QVERIFY(!bound.view->model());
    QVERIFY(!bound.tree->presenter());
    QCOMPARE(bound.binder->listedCount(), 0);
}

void tst_NxMediaPanelBinder::aCategoryComesBackAsItWasLeft()
{
    const Bound bound;
    bound.binder->items()->setViewMode(vmLargeThumbnail);
    bound.view->selectMedia({bound.media("b.mov")});
    QCOMPARE(bound.binder->selection(), QList<INxAbstractMedia *>{bound.media("b.mov")});
    bound.library->setCurrentCategoryType(mctAudio);
    bound.binder->items()->setViewMode(vmList);
    QCOMPARE(bound.view->viewMode(), vmList);
    QVERIFY(bound.binder->selection().isEmpty());
    bound.library->setCurrentCategoryType(mctMedia);
    QCOMPARE(bound.view->viewMode(), vmLargeThumbnail);
    QCOMPARE(bound.binder->selection(), QList<INxAbstractMedia *>{bound.media("b.mov")});
}

void tst_NxMediaPanelBinder::anyOfThemMayDieFirst_data()
{
    QTest::addColumn<QString>("order");
    for (const char *order : {"vtbp", "tvbp", "bvtp", "vbtp", "tbvp", "btvp"})
        QTest::newRow(order) << QString::fromLatin1(order);
}

void tst_NxMediaPanelBinder::anyOfThemMayDieFirst()
{
    QFETCH(const QString, order);
    Bound bound;
    for (const QChar one : order) {
        if (one == QLatin1Char('v'))
            bound.view.reset();
        if (one == QLatin1Char('t'))
            bound.tree.reset();
        if (one == QLatin1Char('b'))
            bound.binder.reset();
        if (one == QLatin1Char('p'))
            bound.library.reset();
        if (bound.binder) {
            (void)bound.binder->selection();
            bound.binder->clearFilters();
        }
        if (bound.library)
            bound.library->setCurrentCategoryType(
                bound.library->currentCategoryType() == mctMedia ? mctAudio : mctMedia);
        QCoreApplication::processEvents();
    }
    QVERIFY(!bound.binder && !bound.view && !bound.tree);
}

void tst_NxMediaPanelBinder::withoutATreeTheMediaAreShown()
{
    const Bound bound;
    bound.binder->letGo();
    NxMediaItemView alone;
    Binder other(nullptr, &alone, nullptr);
    other.setPresenter(bound.library.get());
    QVERIFY(other.items());
    QCOMPARE(other.listedCount(), 3);
    other.letGo();
}

void tst_NxMediaPanelBinder::importsAreServedWhateverIsShown()
{
    const Bound bound;
    NxMediaItemManagerPresenter *media = bound.binder->items();
    bound.library->setCurrentCategoryType(mctAudio);
    NxMediaImportParam param;
    param.files = lines({"/footage/late.mov"});
    QCOMPARE(media->importMeidas(param).size(), 1);
    bound.library->setCurrentCategoryType(mctMedia);
    QVERIFY(bound.media("late.mov"));
}

void tst_NxMediaPanelBinder::aSearchForLikesIsLeft()
{
    const Bound bound;
    NxMediaItemManagerPresenter *items = bound.binder->items();
    const NxMediaItemViewFilter before = items->getFilter();
    NxTestLog::expectError(QStringLiteral("search folder is nullptr")); // There is no service.
    items->setFilterSimilarResource(7, mctMedia, QStringLiteral("/a.png"), true, false);
    QVERIFY(items->getFilter() != before);
    items->exitSearchFolder();
    QCOMPARE(items->getFilter().similarResourceId, before.similarResourceId);
    QVERIFY(!items->getFilter().showBar);
    QCOMPARE(bound.rows(), ByName);
}

void tst_NxMediaPanelBinder::filtersAreCleared()
{
    const Bound bound;
    bound.binder->items()->setFilterType(mtfPhoto);
    QCOMPARE(bound.rows(), lines({"a.jpg"}));
    bound.binder->items()->setFilterKeyword(QStringLiteral("mov"), esmKeyword);
    QCOMPARE(bound.rows(), QStringList());
    bound.binder->clearFilters();
    QCOMPARE(bound.rows(), ByName);
}

void tst_NxMediaPanelBinder::groupsFollowTheLanguage()
{
    const Bound bound;
    bound.binder->items()->setGroupBy({gbType, soASC, nullptr});
    const QString before = bound.binder->model()->mediaItem(0)->name();
    const NxBracketLanguage language;
    QCoreApplication::sendPostedEvents();
    QCOMPARE(bound.binder->model()->mediaItem(0)->name(),
             QLatin1Char('[') + before + QLatin1Char(']'));
}

void tst_NxMediaPanelBinder::aPlusAsksForTheTimeline()
{
    const Bound bound;
    QSignalSpy wanted(bound.binder.get(), &Binder::sigAddWanted);
    INxAbstractMedia *media = bound.media("b.mov");
    const int row = bound.binder->model()->rows(media).constFirst();
    const QModelIndex index = bound.binder->model()->index(row, 0);
    Q_EMIT bound.view->sigMediaItemEvent(mueHoveredOnly, mecPress, index);
    QCOMPARE(wanted.size(), 0);
    Q_EMIT bound.view->sigMediaItemEvent(mueHoveredOnly, mecRelease, index);
    QCOMPARE(wanted.size(), 1);
    QCOMPARE(wanted.at(0).at(0).value<INxAbstractMedia *>(), media);
}

void tst_NxMediaPanelBinder::aPresentFileIsOpenedAndAMissingOneLookedFor()
{
    Bound bound;
    QSignalSpy opened(bound.binder.get(), &Binder::sigOpenWanted);
    INxAbstractMedia *media = bound.media("b.mov");
    const QString there = bound.yard.dir.write(QStringLiteral("there.mov"));
    bound.yard.lookAtFiles();
    const DialogUser user(DialogUser::clicking(mdbClosed));
    Q_EMIT bound.view->sigMediaActivated(media);
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(opened.size(), 0);
    NxMediaImportParam param;
    param.files = QStringList{there};
    QCOMPARE(bound.binder->items()->importMeidas(param).size(), 1);
    Q_EMIT bound.view->sigMediaActivated(bound.media("there.mov"));
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(opened.size(), 1);
}

void tst_NxMediaPanelBinder::headingsTurnTheOrderRound()
{
    const Bound bound;
    Q_EMIT bound.view->sigSortRequested(sbName);
    QCOMPARE(bound.binder->items()->getSortBy(), (NxMediaItemViewSort{sbName, soDESC}));
    QCOMPARE(bound.rows(), lines({"c.wav", "b.mov", "a.jpg"}));
    Q_EMIT bound.view->sigSortRequested(sbName);
    QCOMPARE(bound.rows(), ByName);
    Q_EMIT bound.view->sigSortRequested(sbType);
    QCOMPARE(bound.binder->items()->getSortBy(), (NxMediaItemViewSort{sbType, soASC}));
}

void tst_NxMediaPanelBinder::selectionIsKnownToThePresenter()
{
    const Bound bound;
    QSignalSpy changed(bound.binder.get(), &Binder::sigSelectionChanged);
    bound.view->selectAll();
    QVERIFY(changed.size() > 0);
    QCOMPARE(bound.binder->items()->selectedItems().size(), 3);
    bound.binder->items()->clearSelection();
    QVERIFY(bound.view->selectedMedia().isEmpty());
    const DialogUser user(DialogUser::clicking(mdbAffirmative));
    bound.binder->removeSelection();
    QCOMPARE(user.dialogs(), 0);
    bound.view->selectMedia({bound.media("c.wav")});
    bound.binder->removeSelection();
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(bound.rows(), lines({"a.jpg", "b.mov"}));
}

void tst_NxMediaPanelBinder::aMediaIsShownInItsFolder()
{
    const Bound bound;
    NxFolderMediaManagerPresenter *folders = bound.binder->folders();
    INxFolderMedia *section = bound.binder->items()->folder();
    INxFolderMedia *day = folders->addFolder(section, QStringLiteral("Day 1"));
    INxAbstractMedia *media = bound.media("b.mov");
    folders->setCurrentFolder(day);
    QCOMPARE(bound.rows(), QStringList());
    bound.binder->items()->setFilterKeyword(QStringLiteral("zebra"), esmKeyword);
    bound.binder->showInFolder(media);
    QCOMPARE(bound.binder->items()->folder(), section);
    QCOMPARE(bound.rows(), ByName);
    QCOMPARE(bound.binder->selection(), QList<INxAbstractMedia *>{media});
    QCOMPARE(bound.view->currentMedia(), media);
}

void tst_NxMediaPanelBinder::headersAreNotCounted()
{
    const Bound bound;
    QCOMPARE(bound.binder->listedCount(), 3);
    bound.binder->items()->setGroupBy({gbType, soASC, nullptr});
    QVERIFY(bound.binder->model()->rowCount() > 3);
    QCOMPARE(bound.binder->listedCount(), 3);
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaPanelBinder)
#include "tst_NxMediaPanelBinder.moc"
