// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxDataMessage.h>
#include <NxCore/NxLogCapture.h>
#include <NxCore/NxMessageType.h>
#include <NxVBLModel/NxAddCustomMediaItemMessage.h>
#include <NxVBLModel/NxClipExportImportMediaMessage.h>
#include <NxVBLModel/NxMediaLibraryFindSimilarMessage.h>
#include <NxVBLModel/NxMediaLibraryGetImportFilesMessage.h>
#include <NxVBLModel/NxMediaLibraryImportMediaMessage.h>
#include <NxVBLModel/NxMediaLibraryRemoveMediaMessage.h>
#include <NxVBLModel/NxTimelineAddMediaResponseMessage.h>
#include <NxVBLModel/NxTimelineAddProjectTemplateResponseMessage.h>

#include <NxWidgets/ScriptedUser.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QtTest>

#include <limits>

#include "LibraryStand.h"
#include "LogLines.h"

using namespace NXVBLMODEL;

namespace {

using Messages = std::vector<std::unique_ptr<NxMessage>>;

/// One message of every class that the panel knows.
Messages everyMessage()
{
    Messages all;
    all.push_back(std::make_unique<NxMediaLibraryImportMediaMessage>());
    all.push_back(std::make_unique<NxMediaLibraryRemoveMediaMessage>());
    all.push_back(std::make_unique<NxMediaLibraryGetImportFilesMessage>());
    all.push_back(std::make_unique<NxTimelineAddMediaResponseMessage>());
    all.push_back(std::make_unique<NxTimelineAddProjectTemplateResponseMessage>());
    all.push_back(std::make_unique<NxMessage>(nmtAddRandomClips));
    all.push_back(std::make_unique<NxAddCustomMediaItemMessage>());
    all.push_back(std::make_unique<NxMediaLibraryFindSimilarMessage>());
    all.push_back(std::make_unique<NxMessage>(nmtStartAudioSync));
    all.push_back(std::make_unique<NxClipExportImportMediaMessage>());
    all.push_back(std::make_unique<NxDataMessage>(true, true));
    return all;
}

/// The codes of the messages that other receivers are to see, too.
QList<int> goingOn(NxMediaLibraryPresenter *presenter)
{
    QList<int> codes;
    for (const auto &message : everyMessage()) {
        if (!presenter->dispatchMessage(message.get()))
            codes.append(message->type());
    }
    return codes;
}

const QList<int> othersSee{3011, 10009};

const QString templateMessageLine =
    QStringLiteral("error NxMediaLibraryPresenterPrivate::"
                   "processTimelineAddProjectTemplateResponse: msg is null");

} // namespace

/// What the panel answers to the rest of the editor, and the messages that need no more than an
/// answer.
class tst_NxMediaLibraryPresenter_messages : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void noMessageIsDealtWith()
    {
        LibraryStand stand;
        const NxLogCapture log;
        QVERIFY(stand.presenter.dispatchMessage(nullptr));
        QCOMPARE(linesOf(log), QStringList());
        QCOMPARE(stand.log.take(), QStringList());
    }

    void aMessageEndsItsRoadExceptTwo()
    {
        LibraryStand stand;
        stand.library[mctMedia];
        QCOMPARE(goingOn(&stand.presenter), othersSee);
    }

    void theAnswerIsTheSameWithoutALibrary()
    {
        NxTestLog::expectError(QStringLiteral("pMediaManager is null"));
        PresenterStand stand;
        NxMediaLibraryPresenter presenter(nullptr, nullptr);
        QCOMPARE(goingOn(&presenter), othersSee);
        QCOMPARE(stand.scene.types, QList<int>());
    }

    void theAnswerIsTheSameWithoutFoldersAndItems()
    {
        LibraryStand stand;
        ScriptedCategory &media = stand.library[mctMedia];
        ScriptedCategory &transitions = stand.library[mctTransition];
        media.hasFolders = media.hasItems = false;
        transitions.hasFolders = transitions.hasItems = false;
        QCOMPARE(goingOn(&stand.presenter), othersSee);
        QCOMPARE(stand.scene.types, QList<int>());
    }

    void aMessageOfTheWrongClassIsDropped_data()
    {
        QTest::addColumn<int>("code");
        for (const int code : {514, 515, 516, 3009, 3010, 3012, 3013, 3035, 10009})
            QTest::addRow("%d", code) << code;
    }

    void aMessageOfTheWrongClassIsDropped()
    {
        QFETCH(int, code);
        LibraryStand stand;
        stand.engine.proxies = &stand.proxies;
        stand.library[mctMedia].list("a");
        stand.follow(mctMedia);
        if (code == nmtTimelineAddProjectTemplateResponse)
            NxTestLog::expectError(QStringLiteral("msg is null"));
        const NxLogCapture log;
        NxMessage message(code);
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(linesOf(log), code == nmtTimelineAddProjectTemplateResponse
                                   ? QStringList{templateMessageLine}
                                   : QStringList());
        QCOMPARE(stand.log.take(), QStringList());
        QCOMPARE(stand.presenter.currentCategoryType(), mctNone);
        QCOMPARE(stand.scene.types, QList<int>());
    }

    void anUnknownMessageIsDropped_data()
    {
        QTest::addColumn<int>("code");
        for (const int code :
             {std::numeric_limits<int>::min(), -1, 0, 513, 517, 3008, 3014, 3017, 3019, 3034, 3036,
              5000, 5003, 10008, 10010, std::numeric_limits<int>::max()})
            QTest::addRow("%d", code) << code;
    }

    void anUnknownMessageIsDropped()
    {
        QFETCH(int, code);
        LibraryStand stand;
        stand.library[mctMedia];
        stand.follow(mctMedia);
        const NxLogCapture log;
        NxMessage message(code);
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(linesOf(log), QStringList());
        QCOMPARE(stand.log.take(), QStringList());
        QCOMPARE(stand.scene.types, QList<int>());
    }

    // Files to import (516)

    void filesAreAnsweredWhenOneCanBeImported_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<bool>("isAnyValid");
        QTest::newRow("no files") << QStringList() << false;
        QTest::newRow("a film") << QStringList{QStringLiteral("a.mp4")} << true;
        QTest::newRow("a program") << QStringList{QStringLiteral("a.exe")} << false;
        QTest::newRow("a film among others")
            << QStringList{QStringLiteral("a.exe"), QStringLiteral("b.mp4"),
                           QStringLiteral("c.exe")}
            << true;
        QTest::newRow("a folder with a film") << QStringList{QStringLiteral("films")} << true;
        QTest::newRow("a folder without") << QStringList{QStringLiteral("programs")} << false;
    }

    void filesAreAnsweredWhenOneCanBeImported()
    {
        QFETCH(QStringList, names);
        QFETCH(bool, isAnyValid);
        const NxTempDir dir;
        dir.write(QStringLiteral("films/deep/a.mov"));
        dir.write(QStringLiteral("programs/a.exe"));
        NxMediaLibraryGetImportFilesMessage message;
        for (const QString &name : names)
            message.files.append(dir.filePath(name));
        const QString earlier = QStringLiteral("/earlier.mov");
        message.result = QStringList{earlier};
        const QStringList files = message.files;
        LibraryStand stand;
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(message.result, QStringList{earlier} + (isAnyValid ? files : QStringList()));
        QCOMPARE(message.files, files);
    }

    // Removing a media (515)

    void aMediaIsRemovedWhenTheUserAgrees_data()
    {
        QTest::addColumn<int>("button");
        QTest::newRow("agrees") << int(mdbAffirmative);
        QTest::newRow("refuses") << int(mdbNegative);
    }

    void aMediaIsRemovedWhenTheUserAgrees()
    {
        QFETCH(int, button);
        LibraryStand stand;
        ScriptedCategory &media = stand.library[mctMedia];
        ScriptedItem *item =
            media.list(QStringLiteral("a"), media.addFolder("deep", media.section));
        stand.follow(mctMedia);
        ScriptedUser user;
        user.press(button);
        NxMediaLibraryRemoveMediaMessage message;
        message.mediaId = item->id;
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(user.dialogs(), 1);
        QCOMPARE(stand.log.take(), button == mdbAffirmative
                                       ? QStringList{QStringLiteral("remove a from section")}
                                       : QStringList());
        QCOMPARE(stand.presenter.currentCategoryType(), mctNone);
    }

    void nothingIsAskedAboutAMediaThatIsNotThere_data()
    {
        QTest::addColumn<int>("category");
        QTest::addColumn<int>("folderId");
        QTest::addColumn<QString>("mediaId");
        const QString known = QStringLiteral("id of a");
        QTest::newRow("unknown category") << int(mctEffect) << int(fidRoot) << known;
        QTest::newRow("no category") << int(mctNone) << int(fidRoot) << known;
        QTest::newRow("unknown folder") << int(mctMedia) << 4711 << known;
        QTest::newRow("other folder") << int(mctMedia) << int(fkShared) << known;
        QTest::newRow("unknown media") << int(mctMedia) << int(fidRoot) << QStringLiteral("b");
        QTest::newRow("no media") << int(mctMedia) << int(fidRoot) << QString();
    }

    void nothingIsAskedAboutAMediaThatIsNotThere()
    {
        QFETCH(int, category);
        QFETCH(int, folderId);
        QFETCH(QString, mediaId);
        LibraryStand stand;
        ScriptedCategory &media = stand.library[mctMedia];
        media.list("a");
        media.folders.addSection(QStringLiteral("shared"), fkShared);
        stand.follow(mctMedia);
        ScriptedUser user;
        NxMediaLibraryRemoveMediaMessage message;
        message.categoryType = NxMediaCategoryType(category);
        message.folderId = folderId;
        message.mediaId = mediaId;
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(user.dialogs(), 0);
        QCOMPARE(stand.log.take(), QStringList());
    }
};

NX_TEST_MAIN(tst_NxMediaLibraryPresenter_messages)
#include "tst_NxMediaLibraryPresenter_messages.moc"
