// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxLogCapture.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxVBLModel/NxClipExportImportMediaMessage.h>
#include <NxVBLModel/NxMediaLibraryImportMediaMessage.h>
#include <NxVBLModel/NxMediaLibraryRemoveMediaMessage.h>
#include <NxVBLModel/NxTimelineAddMediaResponseMessage.h>
#include <NxVBLModel/NxTimelineAddProjectTemplateResponseMessage.h>

#include <NxWidgets/ScriptedUser.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QtTest>

#include "LogLines.h"
#include "ProjectDesk.h"
#include "SettingYard.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

/// A panel over a whole project, whose view side imports into the folder it is told.
struct WholePanel
{
    WholePanel()
    {
        items = panel.getMediaCategoryPresenter(mctMedia)->mediaItemManagerPresenter();
        QObject::connect(items, &NxMediaItemManagerPresenter::sigImportMedia, items,
                         [this](const NxMediaImportParam &param,
                                QList<INxAbstractMediaItem *> &medias,
                                bool) { import(param.folder, param.files, &medias); });
    }
    void import(INxFolderMedia *folder, const QStringList &files,
                QList<INxAbstractMediaItem *> *medias) const
    {
        QVector<NxMediaSeed> seeds;
        for (const QString &file : files) {
            NxMediaSeed seed;
            seed.path = file;
            seeds.append(seed);
        }
        const auto made = desk.memory()->addNewMedia(static_cast<NxEngineFolder *>(folder), seeds);
        for (NxEngineMedia *media : made)
            medias->append(media);
    }
    /// "folder/media" of everything in the project's own media.
    QStringList listed() const
    {
        QStringList texts;
        const QList<INxAbstractMedia *> medias = desk.section()->items(true, true);
        for (const INxAbstractMedia *media : medias)
            texts.append(media->parentFolder()->name() + QLatin1Char('/') + media->name());
        texts.replaceInStrings(QRegularExpression(QStringLiteral("^%1/").arg(
                                   QRegularExpression::escape(desk.section()->name()))),
                               QStringLiteral("/"));
        return texts;
    }

    const SettingYard settings;
    ProjectDesk desk{QString()};
    NxMediaLibraryPresenter panel{desk.project, nullptr};
    NxMediaItemManagerPresenter *items = nullptr;
};

struct ImportMessage : NxMediaLibraryImportMediaMessage
{
    ImportMessage(const QString &below, const char *file)
    {
        subFolderName = below;
        files = QStringList{QStringLiteral("/footage/") + QLatin1String(file)};
    }
};

struct ClipMessage : NxClipExportImportMediaMessage
{
    ClipMessage(const QString &folder, const char *file)
    {
        folderName = folder;
        files = QStringList{QStringLiteral("/footage/") + QLatin1String(file)};
    }
};

/// A clip of a service, copied to a file of its own.
struct StockCopy final : INxAbstractMediaItem
{
    explicit StockCopy(const QString &file) : path(file) {}

    NxMediaType mediaType() const override { return mtVideoAudio; }
    int kindCode() const override { return mkcStockCopy; }
    QString name() const override { return QFileInfo(path).fileName(); }
    QString sourcePath() const override { return path; }
    QString filePath() const override { return path; }
    bool isResource() const override { return true; }
    bool isSourceMedia() const override { return true; }

    const QString path;
};

} // namespace

/// Messages of the editor, and what they do to a real project.
class tst_NxMediaLibraryPresenter_engine : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyCategoryOfAProjectHasItsPresenter()
    {
        WholePanel p;
        for (int code = mctMedia; code < MediaCategoryCount; ++code) {
            const auto type = NxMediaCategoryType(code);
            NxMediaCategoryPresenter *category = p.panel.getMediaCategoryPresenter(type);
            QVERIFY(category);
            QCOMPARE(category->mediaItemManagerPresenter()->categoryType(), type);
            QCOMPARE(category->mediaManager(), p.desk.project->mediaManager(type));
        }
        QVERIFY(!p.panel.getMediaCategoryPresenter(mctNone));
    }

    void importsMakeTheirFolderOnce()
    {
        WholePanel p;
        for (const char *file : {"a", "b"}) {
            ImportMessage message(QStringLiteral(" Holiday "), file);
            QVERIFY(p.panel.dispatchMessage(&message));
            QCOMPARE(message.result.size(), 1);
            QCOMPARE(p.items->folder()->name(), QStringLiteral("Holiday"));
            QCOMPARE(message.result.first()->parentFolder(), p.items->folder());
        }
        ClipMessage message(QStringLiteral("Holiday"), "c");
        QVERIFY(p.panel.dispatchMessage(&message));
        QCOMPARE(p.desk.section()->childFolderCount(), 1);
        QCOMPARE(p.listed(), (QStringList{QStringLiteral("Holiday/a"), QStringLiteral("Holiday/b"),
                                          QStringLiteral("Holiday/c")}));
        QCOMPARE(p.panel.currentCategoryType(), mctMedia);
    }

    void aFolderNameThatIsRefusedStopsTheImport_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("blanks") << QStringLiteral("   ");
        QTest::newRow("too long") << QString(256, QLatin1Char('a'));
    }

    void aFolderNameThatIsRefusedStopsTheImport()
    {
        QFETCH(QString, name);
        NxTestLog::expectError(QStringLiteral("add srt folder error!!!"));
        NxTestLog::expectError(QStringLiteral("addFolder failure, folder name : ") + name);
        WholePanel p;
        const QByteArray before = p.desk.dump();
        ImportMessage message(name, "a");
        QVERIFY(p.panel.dispatchMessage(&message));
        ClipMessage clips(name, "a");
        QVERIFY(p.panel.dispatchMessage(&clips));
        QVERIFY(message.result.isEmpty());
        QVERIFY(clips.result.isEmpty());
        QCOMPARE(p.desk.dump(), before);
        QCOMPARE(p.desk.undo()->count(), 0);
    }

    void aRemovedMediaComesBack()
    {
        WholePanel p;
        ImportMessage import(QStringLiteral("Holiday"), "a");
        QVERIFY(p.panel.dispatchMessage(&import));
        const QByteArray before = p.desk.dump();
        NxMediaLibraryRemoveMediaMessage message;
        message.mediaId = import.result.first()->mediaId();
        ScriptedUser user;
        user.press(mdbAffirmative);
        QVERIFY(p.panel.dispatchMessage(&message));
        QCOMPARE(user.dialogs(), 1);
        QCOMPARE(p.listed(), QStringList());
        QCOMPARE(p.desk.undo()->undoText(), QStringLiteral("deleteMediaItems"));
        QVERIFY(p.desk.undo()->undo());
        QCOMPARE(p.desk.dump(), before);
        QCOMPARE(p.items->selectedItems(), QList<INxAbstractMedia *>{import.result.first()});
    }

    void usedStockClipsAreFiledAsFilesOfTheProject_data()
    {
        QTest::addColumn<bool>("isTemplate");
        QTest::newRow("clips") << false;
        QTest::newRow("template") << true;
    }

    void usedStockClipsAreFiledAsFilesOfTheProject()
    {
        QFETCH(bool, isTemplate);
        WholePanel p;
        const auto tell = [&](const QList<INxAbstractMedia *> &medias) {
            NxTimelineAddMediaResponseMessage clips;
            clips.medias = medias;
            NxTimelineAddProjectTemplateResponseMessage ofTemplate;
            ofTemplate.medias = medias;
            NxMessage *message = isTemplate ? static_cast<NxMessage *>(&ofTemplate) : &clips;
            QVERIFY(p.panel.dispatchMessage(message));
        };
        StockCopy one(QStringLiteral("/stock/one.mov"));
        StockCopy oneAgain(QStringLiteral("/stock/one.mov"));
        StockCopy two(QStringLiteral("/stock/two.mov"));
        tell({&one, &oneAgain, &two});
        const QStringList filed{QStringLiteral("/one.mov"), QStringLiteral("/two.mov")};
        QCOMPARE(p.listed(), filed);
        QCOMPARE(p.desk.undo()->count(), 1);
        INxAbstractMedia *first = p.desk.section()->items(true, true).first();
        QCOMPARE(first->kindCode(), int(mkcStockCopy));
        QCOMPARE(first->sourcePath(), QStringLiteral("/stock/one.mov"));
        tell({&oneAgain, &two, first});
        QCOMPARE(p.listed(), filed);
        QCOMPARE(p.desk.undo()->count(), 1);
        QVERIFY(p.desk.undo()->undo());
        QCOMPARE(p.listed(), QStringList());
        tell({&two});
        QCOMPARE(p.listed(), QStringList{QStringLiteral("/two.mov")});
    }

    void resourcesOfThePanelAreNotFiled()
    {
        WholePanel p;
        NxTimelineAddMediaResponseMessage message;
        message.medias =
            p.desk.project->mediaManager(mctEffect)->folderManager()->folder(fidRoot)->items(true,
                                                                                             true);
        QVERIFY(!message.medias.isEmpty());
        const NxLogCapture log;
        QVERIFY(p.panel.dispatchMessage(&message));
        QCOMPARE(linesOf(log), QStringList());
        QCOMPARE(p.listed(), QStringList());
    }
};

NX_TEST_MAIN(tst_NxMediaLibraryPresenter_engine)
#include "tst_NxMediaLibraryPresenter_engine.moc"
