// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ImportReportView.h>

#include "ImportYard.h"
#include "ScriptedImport.h"

#include <Support/NxBracketLanguage.h>
#include <Support/NxTestMain.h>

#include <NxWidgets/NxSkinStyle.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLocale>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>

namespace {

constexpr int Patience = 30'000; // ms

NxImportReportLine lineOf(const QString &path, NxImportVerdict verdict, const QString &reason = {})
{
    return {path, verdict, reason, QString()};
}

NxImportReport mixedReport()
{
    NxImportReport report;
    report.lines = {
        lineOf(QStringLiteral("/in/there.mp4"), NxImportVerdict::AlreadyThere),
        lineOf(QStringLiteral("/in/notes.txt"), NxImportVerdict::Refused,
               QStringLiteral("Not a film.")),
        lineOf(QStringLiteral("/in/away.mp4"), NxImportVerdict::Unreadable,
               QStringLiteral("It is gone.")),
    };
    report.found = 303;
    report.added = 300;
    report.alreadyThere = 1;
    report.refused = 1;
    report.unreadable = 1;
    return report;
}

/// The widget in a window, over a project that does what the test says.
struct Stand
{
    Stand()
    {
        desk.setProject(&project);
        window.resize(600, 300);
        view.resize(window.size());
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
    void finish(const NxImportReport &report)
    {
        Q_EMIT project.files.finished(++job, report);
        list()->setFocus();
    }
    [[nodiscard]] QTreeView *list() const { return view.findChild<QTreeView *>(); }
    [[nodiscard]] QString cell(int row, int column) const
    {
        return list()->model()->index(row, column).data().toString();
    }
    void select(const QList<int> &rows) const
    {
        list()->clearSelection();
        for (const int row : rows) {
            const QModelIndex index = list()->model()->index(row, 0);
            list()->selectionModel()->setCurrentIndex(index, QItemSelectionModel::Select
                                                                 | QItemSelectionModel::Rows);
        }
    }
    [[nodiscard]] QList<int> selection() const
    {
        QList<int> rows;
        const QModelIndexList indexes = list()->selectionModel()->selectedRows();
        for (const QModelIndex &index : indexes)
            rows.append(index.row());
        std::sort(rows.begin(), rows.end());
        return rows;
    }
    [[nodiscard]] QToolButton *button(const QString &name) const
    {
        const QList<QToolButton *> buttons = view.findChildren<QToolButton *>();
        for (QToolButton *one : buttons) {
            if (one->text() == name)
                return one;
        }
        return nullptr;
    }
    /// The texts above the list and in its place, as far as they are visible.
    [[nodiscard]] QStringList texts() const
    {
        QStringList texts;
        const QList<QLabel *> labels = view.findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (label->isVisible())
                texts.append(label->text());
        }
        return texts;
    }

    ScriptedProject project;
    ImportDesk desk;
    QWidget window;
    ImportReportView view{&desk, &window};
    quint64 job = 0;
    const QString show = QStringLiteral("Show");
    const QString again = QStringLiteral("Try Again");
    const QString copy = QStringLiteral("Copy");
};

} // namespace

class tst_ImportReportView : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); }
    void beforeAnImportItSaysWhatItIsFor();
    void anImportThatWentWellSaysSo();
    void sumsStandAboveTheLines();
    void theNextReportTakesTheOldOnesPlace();
    void namesAreOneLineAndNoRichText();
    void failuresStandOutInBothSkins();
    void showFindsTheMediaOrTheFile_data();
    void showFindsTheMediaOrTheFile();
    void tryAgainActsOnTheSelectedLines();
    void buttonsActOnlyWhereTheyCan_data();
    void buttonsActOnlyWhereTheyCan();
    void theListsKeysAreNotTheWindows();
    void copyTakesTheWholeReport();
    void copyingInTheListTakesTheSelectedLines();
    void theSelectionOutlivesAChangedReport();
    void manyLinesAreShown();
    void aRealImportIsReportedAndRepaired();
    void theTextsAreThoseOfTheLanguageOfNow();
};

void tst_ImportReportView::beforeAnImportItSaysWhatItIsFor()
{
    const Stand stand;
    QVERIFY(!stand.list()->isVisible());
    QCOMPARE(stand.texts().size(), 1);
    QVERIFY(stand.texts().first().startsWith(QStringLiteral("After an import")));
    QVERIFY(!stand.button(stand.copy)->isEnabled());
}

void tst_ImportReportView::anImportThatWentWellSaysSo()
{
    Stand stand;
    NxImportReport report;
    report.added = 1'300;
    stand.finish(report);
    QVERIFY(!stand.list()->isVisible());
    QCOMPARE(stand.texts(),
             QStringList({QStringLiteral("1,300 added"), QStringLiteral("All files were added.")}));
}

void tst_ImportReportView::sumsStandAboveTheLines()
{
    Stand stand;
    stand.finish(mixedReport());
    QCOMPARE(stand.texts(), QStringList(QStringLiteral(
                                "300 added, 1 already there, 1 refused, 1 cannot be read")));
    QVERIFY(stand.list()->isVisible());
    QCOMPARE(stand.list()->model()->rowCount(), 3);
    QCOMPARE(stand.cell(0, 0), QStringLiteral("Already there"));
    QCOMPARE(stand.cell(1, 0), QStringLiteral("Refused"));
    QCOMPARE(stand.cell(1, 1), QStringLiteral("notes.txt"));
    QCOMPARE(stand.cell(1, 2), QStringLiteral("Not a film."));
    QVERIFY(stand.list()
                ->model()
                ->index(1, 1)
                .data(Qt::ToolTipRole)
                .toString()
                .contains(QStringLiteral("/in/notes.txt")));
}

void tst_ImportReportView::theNextReportTakesTheOldOnesPlace()
{
    Stand stand;
    stand.finish(mixedReport());
    NxImportReport report;
    report.lines = {lineOf(QStringLiteral("/x.mp4"), NxImportVerdict::Cancelled)};
    stand.finish(report);
    QCOMPARE(stand.list()->model()->rowCount(), 1);
    QCOMPARE(stand.cell(0, 1), QStringLiteral("x.mp4"));
    stand.desk.setProject(nullptr);
    QCOMPARE(stand.list()->model()->rowCount(), 0);
    QVERIFY(stand.texts().first().startsWith(QStringLiteral("After an import")));
}

void tst_ImportReportView::namesAreOneLineAndNoRichText()
{
    Stand stand;
    NxImportReport report;
    report.lines = {lineOf(QStringLiteral("/in/<b>one\ntwo</b>.mp4"), NxImportVerdict::Refused)};
    stand.finish(report);
    QCOMPARE(stand.cell(0, 1), QStringLiteral("b>.mp4"));
    const QString tip = stand.list()->model()->index(0, 1).data(Qt::ToolTipRole).toString();
    QVERIFY(tip.contains(QStringLiteral("&lt;b&gt;one\\ntwo&lt;/b&gt;")));
}

void tst_ImportReportView::failuresStandOutInBothSkins()
{
    Stand stand;
    stand.finish(mixedReport());
    NxSkinStyle *style = NxSkinStyle::instance();
    const NxSkin before = style->skin();
    for (const NxSkin skin : {NxSkin::Light, NxSkin::Dark}) {
        style->setSkin(skin);
        const QColor warning = style->GetColor(NxSkinColor::Warning);
        const QAbstractItemModel *model = stand.list()->model();
        QVERIFY(!model->index(0, 0).data(Qt::ForegroundRole).isValid());
        QCOMPARE(model->index(1, 0).data(Qt::ForegroundRole).value<QColor>(), warning);
        QCOMPARE(model->index(2, 0).data(Qt::ForegroundRole).value<QColor>(), warning);
    }
    style->setSkin(before);
}

void tst_ImportReportView::showFindsTheMediaOrTheFile_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("isMedia");
    QTest::newRow("a media of the project") << 0 << true;
    QTest::newRow("a file that was refused") << 1 << false;
}

void tst_ImportReportView::showFindsTheMediaOrTheFile()
{
    QFETCH(int, row);
    QFETCH(bool, isMedia);
    Stand stand;
    ScriptedMedia there(QStringLiteral("/in/there.mp4"));
    stand.project.section.media = {&there};
    stand.finish(mixedReport());
    const QSignalSpy shown(&stand.view, &ImportReportView::sigShowMedia);
    const QSignalSpy revealed(&stand.view, &ImportReportView::sigRevealFile);
    stand.select({row == 0 ? 2 : 0, row}); // The row that the keyboard is at counts.
    QTest::keyClick(stand.list(), Qt::Key_Return);
    stand.button(stand.show)->click();
    const QModelIndex index = stand.list()->model()->index(row, 1);
    const QPoint place = stand.list()->visualRect(index).center();
    QTest::mouseClick(stand.list()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(stand.list()->viewport(), Qt::LeftButton, Qt::NoModifier, place);

    const QSignalSpy &heard = isMedia ? shown : revealed;
    QCOMPARE(heard.size(), 3);
    QCOMPARE((isMedia ? revealed : shown).size(), 0);
    for (const QList<QVariant> &arguments : heard)
        QCOMPARE(arguments.first().toString(), mixedReport().lines.at(row).path);
}

void tst_ImportReportView::tryAgainActsOnTheSelectedLines()
{
    Stand stand;
    stand.finish(mixedReport());
    stand.select({0, 1, 2});
    QTest::keyClick(stand.list(), Qt::Key_F5);
    QCOMPARE(stand.project.files.started,
             QList<QStringList>{
                 QStringList({QStringLiteral("/in/notes.txt"), QStringLiteral("/in/away.mp4")})});
    stand.select({2});
    stand.button(stand.again)->click();
    QCOMPARE(stand.project.files.started.last(), QStringList(QStringLiteral("/in/away.mp4")));
}

void tst_ImportReportView::buttonsActOnlyWhereTheyCan_data()
{
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<bool>("shows");
    QTest::addColumn<bool>("triesAgain");
    QTest::newRow("nothing is selected") << QList<int>() << false << false;
    QTest::newRow("what is there already") << QList<int>{0} << true << false;
    QTest::newRow("a failure") << QList<int>{1} << true << true;
    QTest::newRow("both") << QList<int>{0, 2} << true << true;
}

void tst_ImportReportView::buttonsActOnlyWhereTheyCan()
{
    QFETCH(QList<int>, rows);
    QFETCH(bool, shows);
    QFETCH(bool, triesAgain);
    Stand stand;
    stand.finish(mixedReport());
    stand.select({0, 1, 2});
    stand.select(rows);
    QCOMPARE(stand.button(stand.show)->isEnabled(), shows);
    QCOMPARE(stand.button(stand.again)->isEnabled(), triesAgain);
    QVERIFY(stand.button(stand.copy)->isEnabled());
}

void tst_ImportReportView::theListsKeysAreNotTheWindows()
{
    Stand stand;
    QAction readAgain(&stand.window);
    readAgain.setShortcut(QKeySequence(Qt::Key_F5));
    stand.window.addAction(&readAgain);
    const QSignalSpy readingAgain(&readAgain, &QAction::triggered);
    stand.finish(mixedReport());
    stand.select({1});
    QTest::keyClick(stand.list(), Qt::Key_F5);
    QCOMPARE(readingAgain.size(), 0);
    QCOMPARE(stand.project.files.started.size(), 1);
    stand.button(stand.copy)->setFocus();
    QTest::keyClick(stand.button(stand.copy), Qt::Key_F5);
    QCOMPARE(readingAgain.size(), 1);
}

void tst_ImportReportView::copyTakesTheWholeReport()
{
    Stand stand;
    stand.finish(mixedReport());
    stand.select({1});
    stand.button(stand.copy)->click();
    QCOMPARE(QApplication::clipboard()->text(),
             QStringLiteral("300 added, 1 already there, 1 refused, 1 cannot be read\n"
                            "Already there\t/in/there.mp4\t\n"
                            "Refused\t/in/notes.txt\tNot a film.\n"
                            "Cannot be read\t/in/away.mp4\tIt is gone.\n"));
}

void tst_ImportReportView::copyingInTheListTakesTheSelectedLines()
{
    Stand stand;
    stand.finish(mixedReport());
    stand.select({2, 1});
    QTest::keyClick(stand.list(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(),
             QStringLiteral("Refused\t/in/notes.txt\tNot a film.\n"
                            "Cannot be read\t/in/away.mp4\tIt is gone.\n"));
}

void tst_ImportReportView::theSelectionOutlivesAChangedReport()
{
    Stand stand;
    ScriptedMedia media(QStringLiteral("/late.mp4"));
    Q_EMIT stand.project.files.added(1, {&media});
    stand.finish(mixedReport());
    stand.select({0, 2});
    stand.project.reader.tell(&media, QStringLiteral("Cut off."));
    QTRY_COMPARE(stand.list()->model()->rowCount(), 4); // One more at the end.
    QCOMPARE(stand.selection(), QList<int>({0, 2}));

    stand.desk.tryAgain({mixedReport().lines.at(1)});
    Q_EMIT stand.project.files.finished(1, NxImportReport());
    QTRY_COMPARE(stand.list()->model()->rowCount(), 3); // One less in between.
    QCOMPARE(stand.selection(), QList<int>({0, 1}));
    QCOMPARE(stand.list()->currentIndex().row(), 1);
}

void tst_ImportReportView::manyLinesAreShown()
{
    constexpr int count = 100'000;
    Stand stand;
    NxImportReport report;
    for (int i = 0; i < count; ++i) {
        report.lines.append(
            lineOf(QStringLiteral("/in/%1.mp4").arg(i), NxImportVerdict::AlreadyThere));
    }
    report.lines.append(lineOf(QStringLiteral("/in/last.mp4"), NxImportVerdict::Refused));
    stand.finish(report);
    QTest::keyClick(stand.list(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(stand.list(), Qt::Key_F5);
    QCOMPARE(stand.project.files.started.last(), QStringList(QStringLiteral("/in/last.mp4")));
    Q_EMIT stand.project.files.finished(1, NxImportReport());
    QCOMPARE(stand.list()->model()->rowCount(), count);
    QCOMPARE(stand.selection().size(), count);
}

void tst_ImportReportView::aRealImportIsReportedAndRepaired()
{
    ImportYard yard(ImportYard::Reading::Everything);
    ImportReportView view(&yard.desk);
    const QAbstractItemModel *lines = view.findChild<QTreeView *>()->model();
    const QString bad = yard.rubbish(QStringLiteral("bad.png"));
    yard.import({bad, yard.rubbish(QStringLiteral("notes.xyz"))});
    QTRY_COMPARE_WITH_TIMEOUT(lines->rowCount(), 2, Patience);
    QCOMPARE(lines->index(0, 1).data().toString(), QStringLiteral("notes.xyz"));
    QCOMPARE(lines->index(1, 1).data().toString(), QStringLiteral("bad.png"));
    QVERIFY(!lines->index(1, 2).data().toString().isEmpty());

    QCOMPARE(yard.picture(QStringLiteral("bad.png")), bad);
    yard.desk.tryAgain(yard.desk.report().lines.mid(1));
    QTRY_COMPARE_WITH_TIMEOUT(lines->rowCount(), 1, Patience);
    QCOMPARE(lines->index(0, 1).data().toString(), QStringLiteral("notes.xyz"));
}

void tst_ImportReportView::theTextsAreThoseOfTheLanguageOfNow()
{
    Stand stand;
    stand.finish(mixedReport());
    {
        NxBracketLanguage language;
        QTRY_VERIFY(stand.button(QStringLiteral("[Show]")));
        QVERIFY(stand.button(QStringLiteral("[Try Again]")));
        QCOMPARE(stand.cell(1, 0), QStringLiteral("[Refused]"));
        QCOMPARE(stand.list()->model()->headerData(0, Qt::Horizontal).toString(),
                 QStringLiteral("[Result]"));
        QVERIFY(stand.texts().first().contains(QStringLiteral("[1 refused]")));
        QVERIFY(!stand.list()->accessibleName().isEmpty());
    }
    QTRY_VERIFY(stand.button(stand.show));
}

NX_TEST_MAIN_WIDGETS(tst_ImportReportView)
#include "tst_ImportReportView.moc"
