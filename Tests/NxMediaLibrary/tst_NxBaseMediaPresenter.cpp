// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxMessage.h>
#include <NxCore/NxMessageType.h>
#include <NxCore/NxUIView.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxFolderMediaManagerPresenterPrivate.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxMediaCategoryPresenterPrivate.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxMediaItemManagerPresenterPrivate.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxMediaLibraryPresenterPrivate.h>
#include <NxVBLModel/INxAbstractMedia.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include "PresenterStand.h"
#include "ScriptedProject.h"

namespace {

int deletions = 0;

/// A private half as an application derives it.
template<typename Private>
struct OwnHalf : Private
{
    using Private::Private;
    ~OwnHalf() override { ++deletions; }
    int ownNumber = 17;
};

/// A presenter as an application derives it.
template<typename Presenter, typename Private>
class OwnPresenter : public Presenter
{
public:
    OwnPresenter(OwnHalf<Private> &half, QObject *parent) : Presenter(half, parent) {}

    OwnHalf<Private> *half() const
    {
        return static_cast<OwnHalf<Private> *>(this->NxBaseMediaPresenter::d_func());
    }
};

/// What a derived presenter handed over is the one private half there is, and goes with it.
template<typename Presenter, typename Private>
void deriveFrom(OwnHalf<Private> *half)
{
    deletions = 0;
    QObject parent;
    auto *presenter = new OwnPresenter<Presenter, Private>(*half, &parent);
    QCOMPARE(presenter->parent(), &parent);
    QCOMPARE(presenter->half(), half);
    QCOMPARE(presenter->half()->ownNumber, 17);
    QCOMPARE(half->q_ptr, static_cast<NxBaseMediaPresenter *>(presenter));
    QCOMPARE(deletions, 0);
    delete presenter;
    QCOMPARE(deletions, 1);
}

class View final : public NxUIView
{
public:
    QWidget *widget() override { return &m_widget; }

private:
    QWidget m_widget;
};

} // namespace

/// What all presenters of the panel share, and what deriving from each of them means.
class tst_NxBaseMediaPresenter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void mediaTravelInQueuedSignals()
    {
        QCOMPARE(QMetaType::type("INxAbstractMedia*"), int(QMetaType::UnknownType));
        QCOMPARE(QMetaType::type("QList<INxAbstractMedia*>"), int(QMetaType::UnknownType));
        const NxBaseMediaPresenter presenter;
        QVERIFY(QMetaType::type("INxAbstractMedia*") != QMetaType::UnknownType);
        QVERIFY(QMetaType::type("QList<INxAbstractMedia*>") != QMetaType::UnknownType);
    }

    void aPlainPresenterHasAPrivateHalfOfItsOwn()
    {
        struct Plain : NxBaseMediaPresenter
        {
            using NxBaseMediaPresenter::NxBaseMediaPresenter;
            NxBaseMediaPresenterPrivate *half() const { return d_func(); }
        };
        QObject parent;
        const Plain presenter(&parent);
        QCOMPARE(presenter.parent(), &parent);
        QVERIFY(presenter.half());
        QCOMPARE(presenter.half()->q_ptr, static_cast<const NxBaseMediaPresenter *>(&presenter));
        QVERIFY(!presenter.view());
    }

    void takesNoMessages()
    {
        NxBaseMediaPresenter presenter;
        NxMessage message(nmtStartAudioSync);
        QVERIFY(!presenter.dispatchMessage(&message));
    }

    void theBaseIsDerived()
    {
        deriveFrom<NxBaseMediaPresenter>(new OwnHalf<NxBaseMediaPresenterPrivate>);
    }

    void theLibraryPresenterIsDerived()
    {
        ScriptedLibrary library;
        auto *half = new OwnHalf<NxMediaLibraryPresenterPrivate>(&library);
        QCOMPARE(half->library, static_cast<INxMediaLibrary *>(&library));
        QCOMPARE(half->currentCategory, int(NXVBLMODEL::mctNone));
        QVERIFY(half->categories.isEmpty());
        deriveFrom<NxMediaLibraryPresenter>(half);
    }

    void theCategoryPresenterIsDerived()
    {
        ScriptedCategory category(NXVBLMODEL::mctMedia);
        auto *half = new OwnHalf<NxMediaCategoryPresenterPrivate>(&category);
        QCOMPARE(half->manager, static_cast<INxMediaManager *>(&category));
        deriveFrom<NxMediaCategoryPresenter>(half);
    }

    void theFolderPresenterIsDerived()
    {
        ScriptedCategory category(NXVBLMODEL::mctMedia);
        auto *half = new OwnHalf<NxFolderMediaManagerPresenterPrivate>(&category.folders);
        QCOMPARE(half->manager(), static_cast<INxFolderMediaManager *>(&category.folders));
        deriveFrom<NxFolderMediaManagerPresenter>(half);
    }

    void theItemPresenterIsDerived()
    {
        ScriptedCategory category(NXVBLMODEL::mctMedia);
        auto *half = new OwnHalf<NxMediaItemManagerPresenterPrivate>(&category.items);
        QCOMPARE(half->manager(), static_cast<INxMediaItemManager *>(&category.items));
        QVERIFY(half->connector->isConnected());
        deriveFrom<NxMediaItemManagerPresenter>(half);
    }

    void goesWithItsParent()
    {
        deletions = 0;
        {
            QObject parent;
            new OwnPresenter<NxBaseMediaPresenter, NxBaseMediaPresenterPrivate>(
                *new OwnHalf<NxBaseMediaPresenterPrivate>, &parent);
        }
        QCOMPARE(deletions, 1);
    }

    void showsDialogsAboveItsView()
    {
        View view;
        auto *half = new OwnHalf<NxBaseMediaPresenterPrivate>;
        OwnPresenter<NxBaseMediaPresenter, NxBaseMediaPresenterPrivate> presenter(*half, nullptr);
        QVERIFY(!half->viewWidget());
        presenter.setView(&view);
        QCOMPARE(half->viewWidget(), view.widget());
        presenter.setView(nullptr);
        QVERIFY(!half->viewWidget());
    }

    void knowsTheOpenProjectAndItsHistory()
    {
        QVERIFY(!NxBaseMediaPresenterPrivate::currentProject());
        QVERIFY(!NxBaseMediaPresenterPrivate::undoStack());
        PresenterStand stand;
        QVERIFY(!NxBaseMediaPresenterPrivate::currentProject());
        QVERIFY(!NxBaseMediaPresenterPrivate::undoStack());
        ScriptedProject project(&stand.log.lines);
        stand.engine.project = &project;
        QCOMPARE(NxBaseMediaPresenterPrivate::currentProject(),
                 static_cast<INxProject *>(&project));
        QCOMPARE(NxBaseMediaPresenterPrivate::undoStack(),
                 static_cast<INxUndoStack *>(&project.stack));
        project.hasUndo = false;
        QVERIFY(!NxBaseMediaPresenterPrivate::undoStack());
    }
};

NX_TEST_MAIN_WIDGETS(tst_NxBaseMediaPresenter)
#include "tst_NxBaseMediaPresenter.moc"
