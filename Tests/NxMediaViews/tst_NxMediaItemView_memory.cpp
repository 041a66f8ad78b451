// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MediaViewStand.h"

#include <NxMediaLibrary/PreviewStand.h>
#include <Support/NxTestMain.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

using Medias = QList<INxAbstractMedia *>;

namespace {

/// "1 2 3 ...": ten lines of them, more than the window shows.
QByteArray manyWords(int count = 30)
{
    QByteArray words;
    for (int i = 1; i <= count; ++i)
        words += (i > 1 ? " " : "") + QByteArray::number(i);
    return words;
}

/// A view over media whose model is reset.
struct Memory : MediaViewStand
{
    explicit Memory(const QByteArray &words = manyWords(), int sectionKind = fkOnline)
        : MediaViewStand(words.constData(), sectionKind)
    {
    }

    /// The same rows, made anew.
    void reset() { model.load(folder); }
    void reverse()
    {
        std::reverse(folder->media.begin(), folder->media.end());
        reset();
    }
    void paint() { view.viewport()->grab(); }
    void select(const char *names)
    {
        view.selectMedia(named(names));
        QCOMPARE(selected(), QString::fromLatin1(names));
        paint();
    }
    [[nodiscard]] Medias named(const char *names) const
    {
        Medias found;
        for (const QString &name : QString::fromLatin1(names).split(QLatin1Char(' ')))
            found.append(media(name));
        return found;
    }
    void take(const char *name)
    {
        INxAbstractMedia *leaving = media(QLatin1String(name));
        model.onBeforeRemoveItemEvent(folder, leaving);
        folder->media.removeAll(leaving);
        model.onAfterRemoveItemEvent(folder, leaving);
    }
    void insert(int place, INxAbstractMedia *coming)
    {
        model.onBeforeAddItemEvent(folder, coming);
        folder->media.insert(place, coming);
        model.onAfterAddItemEvent(folder, coming);
    }
    void scrollTo(int value)
    {
        view.verticalScrollBar()->setValue(value);
        QCOMPARE(view.verticalScrollBar()->value(), value);
    }
    [[nodiscard]] int top(const char *text) const { return rect(QLatin1String(text)).top(); }
    [[nodiscard]] QLineEdit *field() const
    {
        const QList<QLineEdit *> fields = view.findChildren<QLineEdit *>();
        for (QLineEdit *line : fields) {
            if (line->isVisible())
                return line;
        }
        return nullptr;
    }
    [[nodiscard]] INxPreviewFrameHelper *player() const
    {
        return view.mediaDelegate()->previewFrameHelper();
    }
    /// The number of the frame that plays.
    [[nodiscard]] int frame() const
    {
        QImage image;
        return player()->getCurIndexPlayThumbnail(image) ? frameShown(image) : -1;
    }
    /// Rests on a media until its second frame plays.
    void hover(const char *name)
    {
        move(at(QLatin1String(name)));
        QCOMPARE(player()->getMedia(), media(QLatin1String(name)));
        player()->setPlayThumbnail(filmStrip(810));
        QVERIFY(player()->playPreviewFrame());
        QVERIFY(QMetaObject::invokeMethod(player(), "slotPlayThumbnailTimeout"));
        QCOMPARE(frame(), 1);
    }

    QSignalSpy told{&view, &NxMediaItemView::sigSelectedMediaChanged};
};

/// Groups "[x]" and "[y]" of ten media each, without tiles.
struct Grouped : Memory
{
    Grouped() : Memory(words(), fkDownloaded)
    {
        group();
        paint();
        QCOMPARE(model.wholeLineRows(), QVector<int>({0, 11}));
    }
    static QByteArray words()
    {
        QByteArray all;
        for (int i = 0; i < 10; ++i)
            all += "x" + QByteArray::number(i) + ":x y" + QByteArray::number(i) + ":y ";
        return all.trimmed();
    }
};

/// Counts what views ask about rows.
struct CountingModel final : NxMediaItemModel
{
    using NxMediaItemModel::NxMediaItemModel;
    int rowCount(const QModelIndex &parent = {}) const override
    {
        ++questions;
        return NxMediaItemModel::rowCount(parent);
    }
    mutable int questions = 0;
};

using Choose = void (*)(Memory &f);

} // namespace

Q_DECLARE_METATYPE(Choose)

/// What a view shows again after its model was reset.
class tst_NxMediaItemView_memory : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aResetAsksForNoRows();
    void aHiddenViewAsksForNoRows();
    void tenResetsAreMadeUpForOnce();
    void resetsAreToldOnceAfterAPaint();
    void whoAsksAfterAPaintIsToldBefore();
    void whoIsToldMayResetAgain();

    void theSelectionComesBack_data();
    void theSelectionComesBack();
    void aSelectionBeforeThePaintStands_data();
    void aSelectionBeforeThePaintStands();
    void theCurrentMediaComesBack();
    void aCurrentMediaChosenBeforeThePaintStands();
    void theFocusBeforeThePaintMovesNothing();
    void theCurrentHeaderComesBack();
    void theNeighbourOfARemovedMediaBecomesCurrent_data();
    void theNeighbourOfARemovedMediaBecomesCurrent();
    void removedMediaDoNotComeBackSelected();
    void mediaThatDieAreForgotten();
    void selectedMediaAreThoseThatHaveRows();
    void aShownMediaIsCurrentAndSeen();
    void whatIsChosenWhileAMediaComesIsKept();

    void theMediaOnTopStays();
    void theCurrentMediaStaysWhereItIsSeen();
    void anotherFolderBeginsAtItsTop();
    void withoutTheMediaOnTopItIsTheTop();
    void scrollingBeforeThePaintCounts();
    void aResizedViewKeepsItsTop();
    void anotherViewModeKeepsItsTop_data();
    void anotherViewModeKeepsItsTop();

    void whatPlaysUnderThePointerGoesOn();
    void anotherMediaUnderThePointerPlaysInstead();
    void aNameThatIsEditedComesBack_data();
    void aNameThatIsEditedComesBack();
    void keysTypedBeforeThePaintReachTheName();
    void aNameIsNotEditedWithoutItsMedia();
    void aNameThatWasTypedIsNotEditedAgain();
    void aRubberBandGoesOn();
    void aDragGoesOn();

    void foldedGroupsStayFolded();
    void anotherFolderIsUnfolded();
    void aFoldedHeaderStaysWhereItIsSeen();
    void foldingWhatIsOnTopShowsItsHeader();
};

void tst_NxMediaItemView_memory::aResetAsksForNoRows()
{
    Memory f;
    CountingModel model(mctMedia, nullptr);
    model.load(f.folder);
    f.view.setModel(&model);
    f.paint();
    QVERIFY(model.questions > 0);
    model.questions = 0;
    model.load(f.folder);
    QCOMPARE(model.questions, 0);
    QVERIFY(f.view.visibleRows().second > 0);
    QVERIFY(model.questions > 0);
    model.load(f.folder);
    model.questions = 0;
    f.paint();
    QVERIFY(model.questions > 0);
    f.view.setModel(&f.model);
}

void tst_NxMediaItemView_memory::aHiddenViewAsksForNoRows()
{
    Memory f;
    CountingModel model(mctMedia, nullptr);
    model.load(f.folder);
    f.view.setModel(&model);
    f.select("3 5");
    f.view.hide();
    model.questions = 0;
    const int paints = f.view.paints.size();
    for (int i = 0; i < 5; ++i) {
        model.load(f.folder);
        QCoreApplication::processEvents();
    }
    QCOMPARE(model.questions, 0);
    QCOMPARE(f.view.paints.size(), paints);
    f.view.show();
    QTRY_VERIFY(f.view.paints.size() > paints);
    QCOMPARE(f.selected(), QStringLiteral("3 5"));
    f.view.setModel(&f.model);
}

void tst_NxMediaItemView_memory::tenResetsAreMadeUpForOnce()
{
    Memory f;
    f.select("3 5");
    f.told.clear();
    for (int i = 0; i < 10; ++i)
        f.reset();
    QCOMPARE(f.told.size(), 0);
    QCOMPARE(f.selected(), QStringLiteral("3 5"));
    QCOMPARE(f.told.size(), 1);
    f.paint();
    QCoreApplication::processEvents();
    QCOMPARE(f.told.size(), 1);
}

void tst_NxMediaItemView_memory::resetsAreToldOnceAfterAPaint()
{
    Memory f;
    f.select("3 5");
    QCoreApplication::processEvents();
    f.told.clear();
    for (int i = 0; i < 10; ++i)
        f.reset();
    f.paint();
    QCOMPARE(f.told.size(), 0); // Not while it paints.
    QTRY_COMPARE(f.told.size(), 1);
    f.paint();
    QCoreApplication::processEvents();
    QCOMPARE(f.told.size(), 1);
}

void tst_NxMediaItemView_memory::whoAsksAfterAPaintIsToldBefore()
{
    Memory f;
    f.select("3 5");
    QCoreApplication::processEvents();
    f.told.clear();
    f.model.setFilter(filterOf("nobody"));
    f.paint();
    QCOMPARE(f.told.size(), 0);
    QCOMPARE(f.selected(), QString());
    QCOMPARE(f.told.size(), 1);
    QCoreApplication::processEvents();
    QCOMPARE(f.told.size(), 1);
}

void tst_NxMediaItemView_memory::whoIsToldMayResetAgain()
{
    Memory f;
    f.select("3 5");
    QCoreApplication::processEvents();
    QStringList seen;
    const auto connection =
        connect(&f.view, &NxMediaItemView::sigSelectedMediaChanged, &f.view, [&] {
            seen.append(f.selected());
            if (seen.size() == 1)
                f.reverse();
        });
    f.reset();
    QCOMPARE(f.selected(), QStringLiteral("3 5"));
    QTRY_COMPARE(seen, QStringList({QStringLiteral("3 5"), QStringLiteral("3 5")}));
    disconnect(connection);
}

void tst_NxMediaItemView_memory::theSelectionComesBack_data()
{
    QTest::addColumn<QByteArray>("selected");
    QTest::newRow("none") << QByteArray();
    QTest::newRow("one") << QByteArray("7");
    QTest::newRow("as they stand") << QByteArray("2 3 4");
    QTest::newRow("in another order") << QByteArray("9 2 30 4");
}

void tst_NxMediaItemView_memory::theSelectionComesBack()
{
    QFETCH(QByteArray, selected);
    Memory f;
    if (!selected.isEmpty())
        f.select(selected.constData());
    f.reverse();
    QCOMPARE(f.selected(), QString::fromLatin1(selected));
    f.reverse();
    f.reset();
    f.paint();
    QCOMPARE(f.selected(), QString::fromLatin1(selected));
    const QItemSelection chosen = f.view.selectionModel()->selection();
    for (const QItemSelectionRange &range : chosen)
        QCOMPARE(range.width(), f.model.columnCount());
}

void tst_NxMediaItemView_memory::aSelectionBeforeThePaintStands_data()
{
    using Choose = void (*)(Memory & f);
    QTest::addColumn<Choose>("choose");
    QTest::addColumn<QString>("selected");
    const auto add = [](const char *name, Choose choose, const char *selected) {
        QTest::newRow(name) << choose << QString::fromLatin1(selected);
    };
    add(
        "nothing is done", [](Memory &) {}, "3 2");
    add(
        "all", [](Memory &f) { f.view.selectAll(); }, "1 2 3 4");
    add(
        "none", [](Memory &f) { f.view.clearSelection(); }, "");
    add(
        "other media", [](Memory &f) { f.view.selectMedia(f.named("4 1")); }, "4 1");
    add(
        "no media", [](Memory &f) { f.view.selectMedia({}); }, "");
    add(
        "a row", [](Memory &f) { f.choose(QStringLiteral("4")); }, "4");
    add(
        "one more row",
        [](Memory &f) {
            f.view.mediaSelection()->select(f.index(QStringLiteral("4")),
                                            QItemSelectionModel::Select
                                                | QItemSelectionModel::Rows);
        },
        "3 2 4");
}

void tst_NxMediaItemView_memory::aSelectionBeforeThePaintStands()
{
    using Choose = void (*)(Memory & f);
    QFETCH(Choose, choose);
    QFETCH(QString, selected);
    Memory f(manyWords(4));
    f.select("3 2");
    f.reset();
    choose(f);
    f.paint();
    QCOMPARE(f.selected(), selected);
    f.reset();
    QCOMPARE(f.selected(), selected);
}

void tst_NxMediaItemView_memory::theCurrentMediaComesBack()
{
    Memory f;
    f.choose(QStringLiteral("4"));
    f.reverse();
    QCOMPARE(f.view.currentMedia(), f.media(QStringLiteral("4")));
    f.reset();
    f.paint();
    QCOMPARE(f.current(), QStringLiteral("4"));
    QCOMPARE(f.view.currentIndex().row(), 26);
}

void tst_NxMediaItemView_memory::aCurrentMediaChosenBeforeThePaintStands()
{
    Memory f;
    f.choose(QStringLiteral("4"));
    f.reset();
    f.choose(QStringLiteral("6"));
    f.reset();
    QCOMPARE(f.view.currentMedia(), f.media(QStringLiteral("6")));
    f.view.resize(f.view.width() + 7, f.view.height());
    f.choose(QStringLiteral("2"));
    f.paint();
    QCOMPARE(f.current(), QStringLiteral("2"));
}

void tst_NxMediaItemView_memory::theFocusBeforeThePaintMovesNothing()
{
    Memory f;
    f.choose(QStringLiteral("4"));
    f.view.clearFocus();
    QVERIFY(!f.view.hasFocus());
    f.reset();
    f.view.setFocus();
    QVERIFY(f.view.hasFocus());
    QCOMPARE(f.current(), QStringLiteral("4"));
}

void tst_NxMediaItemView_memory::theCurrentHeaderComesBack()
{
    Grouped f;
    f.view.setCurrentIndex(f.index(QStringLiteral("[y]")));
    QCOMPARE(f.current(), QStringLiteral("[y]"));
    for (int i = 0; i < 3; ++i) {
        f.reverse();
        f.paint();
        QCOMPARE(f.current(), QStringLiteral("[y]"));
    }
    f.model.setGroupBy({gbCategory, soDESC, f.folder});
    f.paint();
    QCOMPARE(f.current(), QStringLiteral("[y]"));
    QCOMPARE(f.view.currentIndex().row(), 0);
}

void tst_NxMediaItemView_memory::theNeighbourOfARemovedMediaBecomesCurrent_data()
{
    QTest::addColumn<QByteArray>("removed");
    QTest::addColumn<QString>("current");
    QTest::newRow("first") << QByteArray("1") << "2";
    QTest::newRow("in the middle") << QByteArray("3") << "4";
    QTest::newRow("last") << QByteArray("5") << "4";
}

void tst_NxMediaItemView_memory::theNeighbourOfARemovedMediaBecomesCurrent()
{
    QFETCH(QByteArray, removed);
    QFETCH(QString, current);
    Memory f(manyWords(5));
    f.choose(QString::fromLatin1(removed));
    f.take(removed.constData());
    QCOMPARE(f.view.currentMedia(), f.media(current));
    QCOMPARE(f.selected(), QString());
    f.paint();
    QCOMPARE(f.current(), current);
}

void tst_NxMediaItemView_memory::removedMediaDoNotComeBackSelected()
{
    Memory f;
    f.select("3 5 7");
    f.reset();
    f.take("5");
    f.insert(0, f.media(QStringLiteral("5")));
    QVERIFY(f.row(QStringLiteral("5")) >= 0);
    QCOMPARE(f.selected(), QStringLiteral("3 7"));
    f.view.selectMedia(f.named("3 5 7"));
    f.take("3");
    f.insert(0, f.media(QStringLiteral("3")));
    QCOMPARE(f.selected(), QStringLiteral("5 7"));
}

void tst_NxMediaItemView_memory::mediaThatDieAreForgotten()
{
    Memory f(manyWords(3));
    ScriptedItemFolder *other = f.above->append(std::make_unique<ScriptedItemFolder>());
    alignas(ShownMedia) std::byte place[sizeof(ShownMedia)];
    auto *first = new (place) ShownMedia(QStringLiteral("first"));
    f.insert(0, first);
    f.choose(QStringLiteral("first"));
    f.paint();
    f.model.load(other);
    f.folder->media.removeAll(first);
    first->~ShownMedia();
    auto *second = new (place) ShownMedia(QStringLiteral("second")); // Where the first one was.
    f.folder->media.prepend(second);
    f.model.load(f.folder);
    QCOMPARE(f.selected(), QString());
    QVERIFY(f.view.currentMedia() != second);
    f.folder->media.removeAll(second);
    f.model.load(f.folder);
    second->~ShownMedia();
}

void tst_NxMediaItemView_memory::selectedMediaAreThoseThatHaveRows()
{
    Memory f;
    ShownMedia elsewhere(QStringLiteral("elsewhere"));
    f.view.selectMedia(
        {f.media(QStringLiteral("9")), &elsewhere, nullptr, f.media(QStringLiteral("2"))});
    QCOMPARE(f.selected(), QStringLiteral("9 2"));
    f.view.selectMedia({&elsewhere});
    QCOMPARE(f.selected(), QString());
}

void tst_NxMediaItemView_memory::aShownMediaIsCurrentAndSeen()
{
    Memory f;
    f.view.showMedia(f.media(QStringLiteral("28")));
    f.paint();
    QCOMPARE(f.current(), QStringLiteral("28"));
    QVERIFY(f.view.viewport()->rect().contains(f.rect(QStringLiteral("28"))));
    f.view.showMedia(f.media(QStringLiteral("2")));
    f.reset();
    f.paint();
    QCOMPARE(f.current(), QStringLiteral("2"));
    QVERIFY(f.view.viewport()->rect().contains(f.rect(QStringLiteral("2"))));
    ScriptedItemFolder *other = f.above->append(std::make_unique<ScriptedItemFolder>());
    other->media = f.folder->media;
    f.model.load(other);
    f.view.showMedia(f.media(QStringLiteral("30")));
    f.paint();
    QVERIFY(f.view.viewport()->rect().contains(f.rect(QStringLiteral("30"))));
}

void tst_NxMediaItemView_memory::whatIsChosenWhileAMediaComesIsKept()
{
    Memory f;
    f.choose(QStringLiteral("4"));
    const auto connection =
        connect(&f.model, &NxMediaItemModel::sigAfterAddItem, &f.view,
                [&](INxFolderMedia *, INxAbstractMedia *coming) { f.view.selectMedia({coming}); });
    f.insert(0, f.append(QStringLiteral("new")));
    QCOMPARE(f.selected(), QStringLiteral("new"));
    QCOMPARE(f.current(), QStringLiteral("4"));
    disconnect(connection);
}

void tst_NxMediaItemView_memory::theMediaOnTopStays()
{
    Memory f;
    f.scrollTo(f.top("10") + 13);
    QCOMPARE(f.top("10"), -13);
    for (int i = 0; i < 2 * MediaViewStand::PerLine; ++i)
        f.folder->media.prepend(f.append(QStringLiteral("new%1").arg(i)));
    for (int i = 0; i < 2 * MediaViewStand::PerLine; ++i)
        f.folder->media.removeLast();
    f.reset();
    f.paint();
    QCOMPARE(f.top("10"), -13);
}

void tst_NxMediaItemView_memory::theCurrentMediaStaysWhereItIsSeen()
{
    Memory f;
    f.scrollTo(f.top("10"));
    f.choose(QStringLiteral("17"));
    const int top = f.top("17");
    QVERIFY(top > 0);
    f.reverse();
    f.paint();
    QCOMPARE(f.top("17"), top);
}

void tst_NxMediaItemView_memory::anotherFolderBeginsAtItsTop()
{
    Memory f;
    f.scrollTo(200);
    ScriptedItemFolder *other = f.above->append(std::make_unique<ScriptedItemFolder>());
    other->media = f.folder->media;
    f.model.load(other);
    f.paint();
    QCOMPARE(f.view.verticalScrollBar()->value(), 0);
}

void tst_NxMediaItemView_memory::withoutTheMediaOnTopItIsTheTop()
{
    Memory f;
    f.scrollTo(f.top("16"));
    f.model.setFilter(filterOf("2"));
    f.paint();
    QCOMPARE(f.view.verticalScrollBar()->value(), 0);
}

void tst_NxMediaItemView_memory::scrollingBeforeThePaintCounts()
{
    Memory f;
    f.scrollTo(100);
    f.reset();
    f.view.verticalScrollBar()->setValue(160);
    f.paint();
    QCOMPARE(f.view.verticalScrollBar()->value(), 160);
}

void tst_NxMediaItemView_memory::aResizedViewKeepsItsTop()
{
    Memory f;
    f.scrollTo(f.top("13") + 5);
    QCOMPARE(f.view.itemsPerLine(), 3);
    QCOMPARE(f.model.itemCountPerLine(), 3);
    f.fit(4);
    QCOMPARE(f.view.itemsPerLine(), 4);
    QCOMPARE(f.model.itemCountPerLine(), 4);
    QCOMPARE(f.top("13"), -5);
    f.fit(2, 3);
    QCOMPARE(f.model.itemCountPerLine(), 2);
    QCOMPARE(f.top("13"), -5);
}

void tst_NxMediaItemView_memory::anotherViewModeKeepsItsTop_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("list") << int(vmList);
    QTest::newRow("middle") << int(vmMiddleThumbnail);
    QTest::newRow("large") << int(vmLargeThumbnail);
}

void tst_NxMediaItemView_memory::anotherViewModeKeepsItsTop()
{
    QFETCH(int, mode);
    Memory f;
    f.scrollTo(f.top("13"));
    f.select("14 4");
    f.view.setViewMode(NxMediaItemViewMode(mode));
    f.paint();
    QCOMPARE(f.top("13"), 0);
    QCOMPARE(f.selected(), QStringLiteral("14 4"));
    QCOMPARE(f.model.itemCountPerLine(), f.view.itemsPerLine());
    f.view.setViewMode(vmSmallThumbnail);
    f.paint();
    QCOMPARE(f.top("13"), 0);
}

void tst_NxMediaItemView_memory::whatPlaysUnderThePointerGoesOn()
{
    Memory f;
    f.hover("5");
    f.reset();
    f.paint();
    QCOMPARE(f.player()->getMedia(), f.media(QStringLiteral("5")));
    QVERIFY(f.frame() >= 1); // Not from its first one.
    QVERIFY(!f.player()->getPlayThumbnail().isNull());
    f.view.paints.clear();
    QVERIFY(QMetaObject::invokeMethod(f.player(), "slotPlayThumbnailTimeout"));
    QTRY_VERIFY(!f.view.paints.isEmpty());
    QVERIFY(f.view.paints.constLast().intersects(f.rect(QStringLiteral("5"))));
}

void tst_NxMediaItemView_memory::anotherMediaUnderThePointerPlaysInstead()
{
    Memory f;
    f.hover("5");
    f.take("5");
    f.paint();
    QCOMPARE(f.player()->getMedia(), f.media(QStringLiteral("6")));
    QVERIFY(f.player()->getPlayThumbnail().isNull());
    f.hover("8");
    f.model.load(nullptr);
    f.paint();
    QVERIFY(!f.player()->getMedia());
}

void tst_NxMediaItemView_memory::aNameThatIsEditedComesBack_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("length");
    QTest::newRow("a cursor") << 3 << 0;
    QTest::newRow("forward") << 1 << 2;
    QTest::newRow("backward") << 4 << -3;
}

void tst_NxMediaItemView_memory::aNameThatIsEditedComesBack()
{
    QFETCH(int, from);
    QFETCH(int, length);
    Memory f;
    QSignalSpy renamed(&f.view, &NxMediaItemView::sigRenameWanted);
    f.view.editName(f.media(QStringLiteral("5")));
    QVERIFY(f.field());
    f.field()->setText(QStringLiteral("half a name"));
    f.field()->setCursorPosition(from);
    if (length != 0)
        f.field()->setSelection(from, length);
    for (int i = 0; i < 3; ++i)
        f.reverse();
    f.paint();
    QVERIFY(f.field());
    QCOMPARE(f.field()->text(), QStringLiteral("half a name"));
    QCOMPARE(f.field()->cursorPosition(), from + length);
    QCOMPARE(f.field()->selectedText().size(), qAbs(length));
    QVERIFY(f.field()->hasFocus());
    QVERIFY(f.rect(QStringLiteral("5")).contains(f.field()->geometry().center()));
    QCOMPARE(renamed.size(), 0);
    QTest::keyClick(f.field(), Qt::Key_Return);
    QTRY_COMPARE(renamed.size(), 1);
    QCOMPARE(renamed.constFirst().at(1).toString(), QStringLiteral("half a name"));
    f.reset();
    f.paint();
    QVERIFY(!f.field());
}

void tst_NxMediaItemView_memory::keysTypedBeforeThePaintReachTheName()
{
    Memory f;
    f.view.editName(f.media(QStringLiteral("5")));
    QVERIFY(f.field());
    f.field()->setText(QStringLiteral("ac"));
    f.field()->setCursorPosition(1);
    f.reset();
    QVERIFY(!f.field()); // Not before the rows are asked for.
    QVERIFY(QApplication::focusWidget());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_B);
    QVERIFY(f.field());
    QCOMPARE(f.field()->text(), QStringLiteral("abc"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_X);
    QCOMPARE(f.field()->text(), QStringLiteral("abxc"));
    QSignalSpy renamed(&f.view, &NxMediaItemView::sigRenameWanted);
    f.reset();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    f.paint();
    QVERIFY(!f.field());
    QCOMPARE(renamed.size(), 0);
}

void tst_NxMediaItemView_memory::aNameIsNotEditedWithoutItsMedia()
{
    Memory f;
    f.view.editName(f.media(QStringLiteral("5")));
    QVERIFY(f.field());
    f.take("5");
    f.paint();
    QVERIFY(!f.field());
    f.insert(0, f.media(QStringLiteral("5")));
    f.paint();
    QVERIFY(!f.field());
}

void tst_NxMediaItemView_memory::aNameThatWasTypedIsNotEditedAgain()
{
    Memory f;
    QStringList renamed;
    connect(&f.view, &NxMediaItemView::sigRenameWanted, &f.view,
            [&](INxAbstractMedia *media, const QString &name) {
                static_cast<ShownMedia *>(media)->title = name;
                renamed.append(name);
                f.reverse(); // It may stand elsewhere now.
            });
    f.view.editName(f.media(QStringLiteral("5")));
    QVERIFY(f.field());
    f.field()->setText(QStringLiteral("five"));
    QTest::keyClick(f.field(), Qt::Key_Return);
    QTRY_COMPARE(renamed, QStringList(QStringLiteral("five")));
    QVERIFY(f.view.hasFocus());
    f.paint();
    QVERIFY(!f.field());
    QCOMPARE(f.current(), QStringLiteral("five"));
}

void tst_NxMediaItemView_memory::aRubberBandGoesOn()
{
    Memory f;
    const QPoint start(1, 1); // Beside the first media.
    f.press(start);
    f.move(f.at(QStringLiteral("2")), Qt::LeftButton);
    QCOMPARE(f.selected(), QStringLiteral("1 2"));
    f.reset();
    f.paint();
    f.move(f.at(QStringLiteral("5")), Qt::LeftButton);
    QStringList names = f.selected().split(QLatin1Char(' '));
    names.sort();
    QCOMPARE(names.join(QLatin1Char(' ')), QStringLiteral("1 2 4 5"));
    f.release(f.at(QStringLiteral("5")));
    QCOMPARE(f.selected().split(QLatin1Char(' ')).size(), 4);
}

void tst_NxMediaItemView_memory::aDragGoesOn()
{
    Memory f;
    const QPoint start = f.at(QStringLiteral("5"));
    f.press(start);
    f.move(start + QPoint(1, 0), Qt::LeftButton);
    f.reset();
    f.paint();
    f.move(start + QPoint(60, 0), Qt::LeftButton);
    QCOMPARE(f.view.dragged, QStringList(QStringLiteral("5|5")));
    f.release(start);
    f.view.dragged.clear();
    f.press(start);
    f.reset();
    f.move(start + QPoint(60, 0), Qt::LeftButton);
    QCOMPARE(f.view.dragged, QStringList(QStringLiteral("5|5")));
}

void tst_NxMediaItemView_memory::foldedGroupsStayFolded()
{
    Grouped f;
    f.view.setCurrentIndex(f.index(QStringLiteral("[x]")));
    QTest::keyClick(&f.view, Qt::Key_Left);
    f.paint();
    QCOMPARE(f.model.wholeLineRows(), QVector<int>({0, 1}));
    QCOMPARE(f.current(), QStringLiteral("[x]"));
    f.reset();
    QCOMPARE(f.model.rowCount(), 22); // Made as if nobody had folded anything.
    f.paint();
    QCOMPARE(f.model.wholeLineRows(), QVector<int>({0, 1}));
    f.reverse();
    QVERIFY(f.view.visibleRows().second > 0);
    QCOMPARE(f.model.wholeLineRows(), QVector<int>({0, 1}));
    QTest::keyClick(&f.view, Qt::Key_Right);
    f.reset();
    f.paint();
    QCOMPARE(f.model.rowCount(), 22);
    f.view.setAllExpanded(false);
    f.reset();
    f.paint();
    QCOMPARE(f.model.rowCount(), 2);
}

void tst_NxMediaItemView_memory::anotherFolderIsUnfolded()
{
    Grouped f;
    f.view.setAllExpanded(false);
    f.paint();
    QCOMPARE(f.model.rowCount(), 2);
    ScriptedItemFolder *other = f.above->append(std::make_unique<ScriptedItemFolder>());
    other->media = f.folder->media;
    f.model.load(other);
    f.paint();
    QCOMPARE(f.model.rowCount(), 22);
    f.model.load(f.folder);
    f.paint();
    QCOMPARE(f.model.rowCount(), 22);
}

void tst_NxMediaItemView_memory::aFoldedHeaderStaysWhereItIsSeen()
{
    Grouped f;
    f.fit(3, 2); // What is left when it is folded fills the window still.
    f.scrollTo(f.top("[y]") - 40);
    f.model.setGroupBy({gbCategory, soDESC, f.folder});
    f.paint();
    f.scrollTo(20);
    const int top = f.top("[y]");
    f.view.setCurrentIndex(f.index(QStringLiteral("[y]")));
    f.scrollTo(20);
    QTest::keyClick(&f.view, Qt::Key_Left);
    f.paint();
    QCOMPARE(f.top("[y]"), top);
    QTest::keyClick(&f.view, Qt::Key_Right);
    f.paint();
    QCOMPARE(f.top("[y]"), top);
}

void tst_NxMediaItemView_memory::foldingWhatIsOnTopShowsItsHeader()
{
    Grouped f;
    f.fit(3, 1);
    f.view.setCurrentIndex(f.index(QStringLiteral("[y]")));
    f.scrollTo(f.top("y6") + f.view.verticalScrollBar()->value());
    QVERIFY(f.rect(QStringLiteral("[y]")).bottom() < 0);
    QTest::keyClick(&f.view, Qt::Key_Left);
    f.paint();
    QCOMPARE(f.model.rowCount(), 12);
    QVERIFY(f.view.viewport()->rect().contains(f.rect(QStringLiteral("[y]"))));
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaItemView_memory)
#include "tst_NxMediaItemView_memory.moc"
