// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/INxUndoStack.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMissingMediaRelinker.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFootageService.h>
#include <NxVBLModel/INxMediaInfo.h>

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <NxWidgets/DialogUser.h>
#include <NxWidgets/FileDialogUser.h>
#include <Support/NxFootageGuard.h>
#include <Support/NxTestMain.h>

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTextEdit>

#include "PanelYard.h"
#include "TextLines.h"

namespace {

constexpr int Patience = 60'000; // ms

/// A film and a sound that were read, and whose folder was then moved from "old" to "new"; another
/// film of other length lies there, too, and something that is no film.
struct MovedFootage : PanelYard
{
    MovedFootage()
    {
        const QString old = dir.makeDir(QStringLiteral("old"));
        copy("30.mov", old + QStringLiteral("/film.mov"));
        copy("tone.wav", old + QStringLiteral("/tone.wav"));
        add({old + QStringLiteral("/film.mov"), old + QStringLiteral("/tone.wav")});
        film = dynamic_cast<INxAbstractMediaItem *>(media(QStringLiteral("film.mov")));
        tone = dynamic_cast<INxAbstractMediaItem *>(media(QStringLiteral("tone.wav")));
        readAll();
        QVERIFY(QFile::rename(old, place));
        copy("prores.mov", place + QStringLiteral("/longer.mov"));
        dir.write(QStringLiteral("new/notes.mov"), "no film at all");
        lookAtFiles();
    }

    QStringList paths() const
    {
        QStringList list{film->sourcePath(), tone->sourcePath()};
        return list.replaceInStrings(dir.path() + QLatin1Char('/'), QString());
    }

    const QString place = dir.filePath(QStringLiteral("new"));
    INxAbstractMediaItem *film = nullptr; // Not owned, like the other.
    INxAbstractMediaItem *tone = nullptr;

private:
    static void copy(const char *recipe, const QString &to)
    {
        for (const NxFootageRecipe &one : NxFootageRecipes::all()) {
            if (one.name == QLatin1String(recipe))
                QVERIFY(QFile::copy(NxFootageSet::path(one), to));
        }
        QVERIFY2(QFile::exists(to), recipe);
    }
    void readAll() const
    {
        INxFootageService *service = project->footageService();
        service->read({film, tone}, INxFootageService::wFacts | INxFootageService::wFingerprint);
        const auto isRead = [](const INxAbstractMediaItem *one) {
            return one->mediaInfo() && one->mediaInfo()->duration() > 0;
        };
        // A machine that stands still may have a file tried again later.
        QTRY_VERIFY_WITH_TIMEOUT(isRead(film) && isRead(tone) && service->isIdle(), Patience);
    }
};

} // namespace

/// Media whose files were moved, and how users find them again: with real footage and workers.
class tst_PanelFlows_missing : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theUserShowsWhereAMissingFilmIs();
    void aFileThatCannotTakeThePlaceIsRefused_data();
    void aFileThatCannotTakeThePlaceIsRefused();
    void leavingTheFileDialogChangesNothing();
    void aPanelThatClosesMeanwhileLeavesTheProjectWhole_data();
    void aPanelThatClosesMeanwhileLeavesTheProjectWhole();
    void missingMediaAreDeletedOnDemand();
    void allMissingMediaAreFoundInAFolder();
};

void tst_PanelFlows_missing::theUserShowsWhereAMissingFilmIs()
{
    MovedFootage yard;
    const QByteArray before = yard.dump();
    const int steps = yard.undo()->count();
    const NxFootageGuard guard(yard.place);
    const DialogUser asked(DialogUser::clicking(mdbAffirmative));
    const FileDialogUser shown(FileDialogUser::choosing(yard.place + QStringLiteral("/film.mov")));
    yard.doubleClick(QStringLiteral("film.mov"));
    QCOMPARE(asked.dialogs(), 1);
    QCOMPARE(shown.dialogs(), 1);
    QCOMPARE(yard.paths(), lines({"new/film.mov", "old/tone.wav"}));
    QCOMPARE(yard.undo()->count(), steps + 1);
    QCOMPARE(yard.rows(), lines({"film.mov", "tone.wav"}));
    QCOMPARE(yard.selection(), lines({"film.mov"}));
    NX_VERIFY_UNTOUCHED(guard);
    yard.press(QKeySequence::Undo);
    QCOMPARE(yard.paths(), lines({"old/film.mov", "old/tone.wav"}));
    QCOMPARE(yard.kept(), before);
}

void tst_PanelFlows_missing::aFileThatCannotTakeThePlaceIsRefused_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    QTest::newRow("longer") << QStringLiteral("longer.mov") << QStringLiteral("different");
    QTest::newRow("no film") << QStringLiteral("notes.mov") << QStringLiteral("cannot be read");
}

void tst_PanelFlows_missing::aFileThatCannotTakeThePlaceIsRefused()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);
    MovedFootage yard;
    const QByteArray before = yard.dump();
    const int steps = yard.undo()->count();
    QStringList texts;
    const DialogUser told([&texts](NMessageDialog &dialog) {
        texts += dialog.findChild<QTextEdit *>(QStringLiteral("text"))->toPlainText();
        DialogUser::clicking(mdbAffirmative)(dialog);
    });
    const FileDialogUser shown(FileDialogUser::choosing(yard.place + QLatin1Char('/') + file));
    yard.doubleClick(QStringLiteral("film.mov"));
    QCOMPARE(texts.size(), 2);
    QVERIFY2(texts.last().contains(reason), qPrintable(texts.last()));
    QCOMPARE(yard.undo()->count(), steps);
    QCOMPARE(yard.kept(), before);
}

void tst_PanelFlows_missing::leavingTheFileDialogChangesNothing()
{
    MovedFootage yard;
    const QByteArray before = yard.dump();
    yard.click(QStringLiteral("tone.wav"));
    yard.press(QKeySequence::SelectAll);
    const FileDialogUser shown(FileDialogUser::typing({Qt::Key_Escape}));
    QCOMPARE(yard.items()->relinkMedia(yard.items()->selectedItems()), 0);
    QCOMPARE(shown.dialogs(), 1);
    QCOMPARE(yard.selection().size(), 2);
    QCOMPARE(yard.kept(), before);
}

void tst_PanelFlows_missing::aPanelThatClosesMeanwhileLeavesTheProjectWhole_data()
{
    QTest::addColumn<bool>("whileChoosing");
    QTest::addColumn<int>("button");
    QTest::newRow("a file is being chosen") << true << int(mdbAffirmative);
    QTest::newRow("RELOCATE is pressed") << false << int(mdbAffirmative);
    QTest::newRow("DELETE is pressed") << false << int(mdbNegative);
}

void tst_PanelFlows_missing::aPanelThatClosesMeanwhileLeavesTheProjectWhole()
{
    QFETCH(bool, whileChoosing);
    QFETCH(int, button);
    MovedFootage yard;
    const QByteArray before = yard.dump();
    const DialogUser asked([&](NMessageDialog &dialog) {
        if (!whileChoosing)
            yard.close();
        DialogUser::clicking(button)(dialog);
    });
    const FileDialogUser shown([&](QFileDialog &dialog) {
        yard.close();
        FileDialogUser::choose(dialog, yard.place + QStringLiteral("/film.mov"));
    });
    yard.doubleClick(QStringLiteral("film.mov"));
    QCOMPARE(asked.dialogs(), 1);
    QCOMPARE(shown.dialogs(), whileChoosing ? 1 : 0);
    QVERIFY(!yard.project);
    QCOMPARE(yard.kept(), before);
}

void tst_PanelFlows_missing::missingMediaAreDeletedOnDemand()
{
    MovedFootage yard;
    const QByteArray before = yard.dump();
    const DialogUser asked(DialogUser::clicking(mdbNegative));
    yard.doubleClick(QStringLiteral("film.mov"));
    QCOMPARE(yard.rows(), lines({"tone.wav"}));
    QCOMPARE(yard.selection(), QStringList());
    yard.press(QKeySequence::Undo);
    QCOMPARE(yard.selection(), lines({"film.mov"}));
    QCOMPARE(yard.kept(), before);
}

void tst_PanelFlows_missing::allMissingMediaAreFoundInAFolder()
{
    MovedFootage yard;
    const QByteArray before = yard.dump();
    const int steps = yard.undo()->count();
    const NxFootageGuard guard(yard.place);
    yard.click(QStringLiteral("film.mov"));
    NxMissingMediaRelinker relinker(yard.items());
    QSignalSpy finished(&relinker, &NxMissingMediaRelinker::finished);
    const auto missing = NxMissingMediaRelinker::missingMedia(yard.section());
    QCOMPARE(missing.size(), 2);
    QVERIFY(relinker.start(missing, yard.place));
    QVERIFY(finished.wait(Patience));
    QCOMPARE(finished.first().at(1).toInt(), 2);
    QCOMPARE(yard.paths(), lines({"new/film.mov", "new/tone.wav"}));
    QCOMPARE(yard.undo()->count(), steps + 1);
    QCOMPARE(yard.rows(), lines({"film.mov", "tone.wav"}));
    QCOMPARE(yard.selection(), lines({"film.mov"}));
    NX_VERIFY_UNTOUCHED(guard);
    yard.press(QKeySequence::Undo);
    QCOMPARE(yard.paths(), lines({"old/film.mov", "old/tone.wav"}));
    QCOMPARE(yard.kept(), before);
}

NX_TEST_MAIN_WIDGETS(tst_PanelFlows_missing)
#include "tst_PanelFlows_missing.moc"
