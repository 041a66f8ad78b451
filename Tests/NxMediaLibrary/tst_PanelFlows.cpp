// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/INxUndoStack.h>
#include <NxCore/NxUndoRedoCommander.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxCompositeTimeline.h>
#include <NxVBLModel/INxSplitScreenClip.h>
#include <NxVBLModel/INxTimelineEditor.h>
#include <NxVBLModel/NxTimelineUse.h>

#include <NxWidgets/DialogUser.h>
#include <Support/NxTestMain.h>

#include <QListView>
#include <QSignalSpy>
#include <QTextEdit>

#include "PanelYard.h"
#include "TextLines.h"

using namespace NXMEDIALIBRARY;

Q_DECLARE_METATYPE(DialogUser::Deed)

namespace {

/// Five media in the project, listed as a, b, c, d, e.
struct FiveMedia : PanelYard
{
    FiveMedia()
    {
        add(lines({"c.mov", "a.mov", "e.jpg", "b.wav", "d.jpg"}));
        settleFiles();
    }

    /// Selects from b to d.
    void selectThree() const
    {
        click(QStringLiteral("b.wav"));
        click(QStringLiteral("d.jpg"), Qt::ShiftModifier);
    }
    /// b, c and d stand on a timeline, in one inside it and in a split screen, c twice.
    void useThree() const
    {
        INxTimelineEditor *editor = project->timelineEditor();
        const NxUndoRedoCommander step(undo(), QStringLiteral("FiveMedia::useThree"),
                                       QStringLiteral("cut"));
        INxTimeline *main = editor->addTimeline(QStringLiteral("Main"));
        INxTimeline *inside = editor->addComposite(main, QStringLiteral("In"), {1, 0, 50, 0});
        INxSplitScreenClip *split = editor->addSplitScreen(main, {2, 0, 50, 0});
        QVERIFY(editor->addClip(main, media(QStringLiteral("b.wav")), {0, 0, 10, 0}));
        QVERIFY(editor->addClip(main, media(QStringLiteral("a.mov")), {0, 20, 10, 0}));
        QVERIFY(editor->addClip(inside, media(QStringLiteral("c.mov")), {0, 0, 10, 0}));
        QVERIFY(editor->addInnerClip(split, media(QStringLiteral("c.mov")), 0));
        QVERIFY(editor->addInnerClip(split, media(QStringLiteral("d.jpg")), 0));
    }
    /// How often media of these ids stand on timelines, those inside others included.
    QVector<int> uses(const QStringList &ids) const
    {
        QVector<int> counts;
        for (const QString &id : ids)
            counts.append(project->timelineUses(id).size());
        return counts;
    }
    QStringList ids(const QStringList &names) const
    {
        QStringList ids;
        for (const QString &name : names)
            ids.append(media(name)->mediaId());
        return ids;
    }
};

const QStringList AllFive = lines({"a.mov", "b.wav", "c.mov", "d.jpg", "e.jpg"});
const QStringList Three = lines({"b.wav", "c.mov", "d.jpg"});
const QStringList Rest = lines({"a.mov", "e.jpg"});

/// Keeps the text of a dialog, then does what the user does.
DialogUser::Deed reading(QString *text, DialogUser::Deed deed)
{
    return [text, deed = std::move(deed)](NMessageDialog &dialog) {
        *text = dialog.findChild<QTextEdit *>(QStringLiteral("text"))->toPlainText();
        deed(dialog);
    };
}

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

} // namespace

/// What users do in the list of the panel, from the mouse and the keys to the project file.
class tst_PanelFlows : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aRangeIsSelectedWithTheMouse();
    void everythingIsSelectedByAKey();
    void deletingAsksAndTakesTheRowsAway_data();
    void deletingAsksAndTakesTheRowsAway();
    void decliningKeepsEverything_data();
    void decliningKeepsEverything();
    void asksNoMoreWhenToldSo();
    void undoBringsTheRowsBackSelected();
    void usedMediaComeBackWithTheirClips();
    void aRenamedMediaIsSortedInAndStaysSelected();
    void leavingTheNameFieldRenamesNothing();
    void anotherOrderKeepsTheSelection_data();
    void anotherOrderKeepsTheSelection();
    void whatAFilterHidesIsNotSelected_data();
    void whatAFilterHidesIsNotSelected();
    void aNameThatTheFilterHidesTakesTheRowAway();
    void theLastMediaOfAGroupComesBackIntoIt();
    void aNewStartShowsWhatWasLeft();
    void aPanelThatClosesWhileItAsksLeavesTheProjectWhole_data();
    void aPanelThatClosesWhileItAsksLeavesTheProjectWhole();
};

void tst_PanelFlows::aRangeIsSelectedWithTheMouse()
{
    const FiveMedia yard;
    QCOMPARE(yard.rows(), AllFive);
    QSignalSpy told(yard.items(), &NxMediaItemManagerPresenter::sigSelectItemsChanged);
    yard.click(QStringLiteral("b.wav"));
    QCOMPARE(yard.selection(), lines({"b.wav"}));
    QCOMPARE(told.count(), 1);
    QVERIFY(!yard.items()->multiSelected());
    yard.click(QStringLiteral("d.jpg"), Qt::ShiftModifier);
    QCOMPARE(yard.selection(), Three);
    QCOMPARE(told.count(), 2);
    QVERIFY(yard.items()->multiSelected());
    yard.click(QStringLiteral("c.mov"), Qt::ControlModifier);
    QCOMPARE(sorted(yard.selection()), lines({"b.wav", "d.jpg"}));
    QCOMPARE(told.count(), 3);
}

void tst_PanelFlows::everythingIsSelectedByAKey()
{
    const FiveMedia yard;
    yard.items()->setGroupBy({gbType, soASC, nullptr});
    yard.click(QStringLiteral("a.mov"));
    yard.press(QKeySequence::SelectAll);
    QCOMPARE(yard.selection().size(), AllFive.size()); // Neither headers nor tiles.
    yard.items()->clearSelection();
    QCOMPARE(yard.selection(), QStringList());
    yard.items()->selectAll();
    QCOMPARE(yard.selection().size(), AllFive.size());
}

void tst_PanelFlows::deletingAsksAndTakesTheRowsAway_data()
{
    QTest::addColumn<DialogUser::Deed>("deed");
    QTest::newRow("Return") << DialogUser::typing({Qt::Key_Return});
    QTest::newRow("Enter") << DialogUser::typing({Qt::Key_Enter});
    QTest::newRow("the mouse on Yes") << DialogUser::clicking(mdbAffirmative);
}

void tst_PanelFlows::deletingAsksAndTakesTheRowsAway()
{
    QFETCH(DialogUser::Deed, deed);
    FiveMedia yard;
    const int steps = yard.undo()->count();
    yard.selectThree();
    QSignalSpy told(yard.items(), &NxMediaItemManagerPresenter::sigSelectItemsChanged);
    QString text;
    const DialogUser user(reading(&text, deed));
    yard.press(QKeySequence::Delete);
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(text, QStringLiteral("Are you sure you want to delete the selected item?"));
    QCOMPARE(yard.rows(), Rest);
    QCOMPARE(yard.selection(), QStringList());
    QCOMPARE(told.count(), 1);
    QCOMPARE(yard.undo()->count(), steps + 1);
    const QByteArray dump = yard.dump();
    QCOMPARE(yard.kept(), dump);
}

void tst_PanelFlows::decliningKeepsEverything_data()
{
    QTest::addColumn<DialogUser::Deed>("deed");
    QTest::newRow("Escape") << DialogUser::typing({Qt::Key_Escape});
    QTest::newRow("No") << DialogUser::clicking(mdbNegative);
}

void tst_PanelFlows::decliningKeepsEverything()
{
    QFETCH(DialogUser::Deed, deed);
    FiveMedia yard;
    yard.selectThree();
    const QByteArray before = yard.dump();
    const int steps = yard.undo()->count();
    QSignalSpy told(yard.items(), &NxMediaItemManagerPresenter::sigSelectItemsChanged);
    const DialogUser user(deed);
    yard.press(QKeySequence::Delete);
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(yard.rows(), AllFive);
    QCOMPARE(yard.selection(), Three);
    QVERIFY(told.isEmpty());
    QCOMPARE(yard.undo()->count(), steps);
    QCOMPARE(yard.kept(), before);
}

void tst_PanelFlows::asksNoMoreWhenToldSo()
{
    const FiveMedia yard;
    const DialogUser user([](NMessageDialog &dialog) {
        QTest::keyClick(dialog.findChild<QWidget *>(QStringLiteral("checkBox")), Qt::Key_Space);
        QTest::mouseClick(DialogUser::button(dialog, mdbNegative), Qt::LeftButton);
    });
    yard.click(QStringLiteral("a.mov"));
    yard.press(QKeySequence::Delete);
    QCOMPARE(yard.rows(), AllFive);
    yard.press(QKeySequence::Delete);
    QCOMPARE(yard.rows(), AllFive.mid(1));
    QCOMPARE(user.dialogs(), 1);
}

void tst_PanelFlows::undoBringsTheRowsBackSelected()
{
    FiveMedia yard;
    const QByteArray before = yard.dump();
    yard.selectThree();
    const DialogUser user(DialogUser::typing({Qt::Key_Return}));
    yard.press(QKeySequence::Delete);
    yard.click(QStringLiteral("e.jpg"));
    QSignalSpy told(yard.items(), &NxMediaItemManagerPresenter::sigSelectItemsChanged);
    yard.press(QKeySequence::Undo);
    QCOMPARE(yard.rows(), AllFive);
    QCOMPARE(sorted(yard.selection()), Three);
    QCOMPARE(told.count(), 1);
    QCOMPARE(yard.dump(), before);
    yard.press(QKeySequence::Redo);
    QCOMPARE(yard.rows(), Rest);
    QCOMPARE(yard.selection(), QStringList());
    yard.press(QKeySequence::Undo);
    QCOMPARE(yard.kept(), before);
}

void tst_PanelFlows::usedMediaComeBackWithTheirClips()
{
    FiveMedia yard;
    yard.useThree();
    const QStringList used = yard.ids(lines({"a.mov", "b.wav", "c.mov", "d.jpg"}));
    const QVector<int> uses = yard.uses(used);
    QCOMPARE(uses, (QVector<int>{1, 1, 2, 1}));
    const QByteArray before = yard.dump();
    const int steps = yard.undo()->count();
    yard.selectThree();
    QString text;
    const DialogUser user(reading(&text, DialogUser::typing({Qt::Key_Return})));
    yard.press(QKeySequence::Delete);
    QCOMPARE(user.dialogs(), 1);
    QVERIFY2(text.startsWith(QLatin1String("One or more of your selected clips")),
             qPrintable(text));
    QCOMPARE(yard.rows(), Rest);
    QCOMPARE(yard.uses(used), (QVector<int>{1, 0, 0, 0}));
    QCOMPARE(yard.undo()->count(), steps + 1);
    const QByteArray after = yard.dump();
    yard.press(QKeySequence::Undo);
    QCOMPARE(yard.uses(used), uses);
    QCOMPARE(yard.dump(), before);
    yard.press(QKeySequence::Redo);
    QCOMPARE(yard.dump(), after);
    yard.press(QKeySequence::Undo);
    QCOMPARE(yard.kept(), before);
}

void tst_PanelFlows::aRenamedMediaIsSortedInAndStaysSelected()
{
    const FiveMedia yard;
    INxAbstractMedia *renamed = yard.media(QStringLiteral("b.wav"));
    yard.click(QStringLiteral("b.wav"));
    yard.press(Qt::Key_F2);
    yard.enter(QStringLiteral("dawn"));
    QTRY_COMPARE(renamed->name(), QStringLiteral("dawn"));
    QCOMPARE(yard.rows(), lines({"a.mov", "c.mov", "d.jpg", "dawn", "e.jpg"}));
    QCOMPARE(yard.selection(), lines({"dawn"}));
    yard.press(QKeySequence::Undo);
    QCOMPARE(renamed->name(), QStringLiteral("b.wav"));
    QCOMPARE(yard.rows(), lines({"a.mov", "b.wav", "c.mov", "d.jpg", "e.jpg"}));
    QCOMPARE(yard.selection(), lines({"b.wav"}));
}

void tst_PanelFlows::leavingTheNameFieldRenamesNothing()
{
    const FiveMedia yard;
    const int steps = yard.undo()->count();
    yard.click(QStringLiteral("b.wav"));
    yard.press(Qt::Key_F2);
    yard.press(Qt::Key_X);
    yard.press(QKeySequence::Delete); // A letter of the name, not the media.
    yard.press(Qt::Key_Escape);
    QCOMPARE(yard.rows(), AllFive);
    QCOMPARE(yard.selection(), lines({"b.wav"}));
    QCOMPARE(yard.undo()->count(), steps);
}

void tst_PanelFlows::anotherOrderKeepsTheSelection_data()
{
    QTest::addColumn<NxMediaItemViewSort>("sort");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("names backwards") << NxMediaItemViewSort{sbName, soDESC}
                                     << lines({"e.jpg", "d.jpg", "c.mov", "b.wav", "a.mov"});
    QTest::newRow("uses") << NxMediaItemViewSort{sbUsed, soDESC} << QStringList();
    QTest::newRow("types") << NxMediaItemViewSort{sbType, soASC} << QStringList();
}

void tst_PanelFlows::anotherOrderKeepsTheSelection()
{
    QFETCH(NxMediaItemViewSort, sort);
    QFETCH(QStringList, rows);
    const FiveMedia yard;
    yard.useThree();
    yard.selectThree();
    QSignalSpy told(yard.items(), &NxMediaItemManagerPresenter::sigSelectItemsChanged);
    yard.items()->setSortBy(sort);
    QVERIFY(yard.rows() != AllFive);
    if (!rows.isEmpty())
        QCOMPARE(yard.rows(), rows);
    QCOMPARE(yard.selection(), Three);
    yard.items()->setGroupBy({gbType, soASC, nullptr});
    QVERIFY(yard.panel->model()->isGrouped());
    QCOMPARE(yard.selection(), Three);
    QVERIFY(told.isEmpty());
}

void tst_PanelFlows::whatAFilterHidesIsNotSelected_data()
{
    QTest::addColumn<NxMediaTypeFilter>("type");
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QStringList>("selected");
    QTest::newRow("pictures") << mtfPhoto << QString() << lines({"d.jpg", "e.jpg"})
                              << lines({"d.jpg"});
    QTest::newRow("sound") << mtfAudio << QString() << lines({"b.wav"}) << lines({"b.wav"});
    QTest::newRow("a name") << mtfAll << QStringLiteral("MOV") << lines({"a.mov", "c.mov"})
                            << lines({"c.mov"});
    QTest::newRow("both") << mtfPhoto << QStringLiteral("e.") << lines({"e.jpg"}) << QStringList();
    QTest::newRow("nothing fits") << mtfAudio << QStringLiteral("mov") << QStringList()
                                  << QStringList();
}

void tst_PanelFlows::whatAFilterHidesIsNotSelected()
{
    QFETCH(NxMediaTypeFilter, type);
    QFETCH(QString, keyword);
    QFETCH(QStringList, rows);
    QFETCH(QStringList, selected);
    const FiveMedia yard;
    yard.selectThree();
    yard.items()->setFilterType(type);
    yard.items()->setFilterKeyword(keyword, esmKeyword);
    QCOMPARE(yard.rows(), rows);
    QCOMPARE(yard.selection(), selected);
    const DialogUser user(DialogUser::typing({Qt::Key_Return}));
    yard.press(QKeySequence::Delete);
    yard.items()->setFilterKeyword(QString(), esmNone);
    yard.items()->setFilterType(mtfAll);
    QStringList left = AllFive;
    for (const QString &name : selected)
        left.removeOne(name);
    QCOMPARE(yard.rows(), left);
}

void tst_PanelFlows::aNameThatTheFilterHidesTakesTheRowAway()
{
    const FiveMedia yard;
    yard.items()->setFilterKeyword(QStringLiteral("jpg"), esmKeyword);
    yard.click(QStringLiteral("d.jpg"));
    yard.press(Qt::Key_F2);
    yard.enter(QStringLiteral("dawn"));
    QTRY_COMPARE(yard.rows(), lines({"e.jpg"}));
    QCOMPARE(yard.selection(), QStringList());
}

void tst_PanelFlows::theLastMediaOfAGroupComesBackIntoIt()
{
    const FiveMedia yard;
    yard.items()->setGroupBy({gbType, soASC, nullptr});
    const QList<INxAbstractMedia *> shown = yard.panel->model()->getItems();
    const QStringList rows = yard.rows();
    yard.click(QStringLiteral("b.wav"));
    const DialogUser user(DialogUser::typing({Qt::Key_Return}));
    yard.press(QKeySequence::Delete);
    QVERIFY(!yard.rows().contains(QStringLiteral("b.wav")));
    yard.press(QKeySequence::Undo);
    QCOMPARE(yard.rows(), rows);
    QCOMPARE(yard.panel->model()->rowCount(), shown.size());
    QCOMPARE(yard.selection(), lines({"b.wav"}));
}

void tst_PanelFlows::aNewStartShowsWhatWasLeft()
{
    FiveMedia yard;
    yard.items()->setSortBy({sbType, soASC});
    const QStringList rows = yard.rows();
    QVERIFY(rows != AllFive);
    const QByteArray before = yard.dump();
    yard.restart();
    QCOMPARE(yard.rows(), rows);
    QCOMPARE(yard.dump(), before);
    yard.items()->setGroupBy({gbType, soASC, nullptr});
    yard.restart();
    QVERIFY(yard.panel->model()->isGrouped());
    QCOMPARE(yard.dump(), before);
}

void tst_PanelFlows::aPanelThatClosesWhileItAsksLeavesTheProjectWhole_data()
{
    QTest::addColumn<bool>("isUsed");
    QTest::addColumn<bool>("projectStays");
    QTest::addColumn<bool>("windowGoes");
    QTest::newRow("the project stays") << false << true << false;
    QTest::newRow("used, the project stays") << true << true << false;
    QTest::newRow("the window stays") << false << false << false;
    QTest::newRow("used, the window stays") << true << false << false;
    QTest::newRow("all goes") << false << false << true;
}

void tst_PanelFlows::aPanelThatClosesWhileItAsksLeavesTheProjectWhole()
{
    QFETCH(bool, isUsed);
    QFETCH(bool, projectStays);
    QFETCH(bool, windowGoes);
    FiveMedia yard;
    if (isUsed)
        yard.useThree();
    const QByteArray before = yard.dump();
    yard.selectThree();
    const DialogUser user([&](NMessageDialog &dialog) {
        if (projectStays)
            yard.leavePanel();
        else
            yard.close();
        if (windowGoes)
            yard.panel.reset();
        else
            QTest::mouseClick(DialogUser::button(dialog, mdbAffirmative), Qt::LeftButton);
    });
    yard.press(QKeySequence::Delete);
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(yard.project != nullptr, projectStays);
    QCOMPARE(yard.kept(), before);
}

NX_TEST_MAIN_WIDGETS(tst_PanelFlows)
#include "tst_PanelFlows.moc"
