// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaViews/NxMediaRowMemory_p.h>

#include <Support/NxTestMain.h>

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

#include <NxMediaLibrary/ItemStand.h>

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

using Medias = QList<INxAbstractMedia *>;

namespace {

/// A folder's media without tiles, in the order in which they are listed.
struct Remembered
{
    explicit Remembered(const char *words)
    {
        stand.list(words);
        model.load(stand.folder);
    }
    [[nodiscard]] Medias medias(const char *names) const
    {
        Medias found;
        for (const QString &name : QString::fromLatin1(names).split(QLatin1Char(' ')))
            found.append(stand.item(name.toLatin1().constData()));
        return found;
    }
    /// "2-4 0" are the rows 2 to 4, and then row 0.
    [[nodiscard]] QString ranges() const
    {
        QStringList texts;
        const QItemSelection selection = memory.selection(model);
        for (const QItemSelectionRange &range : selection)
            texts.append(range.top() == range.bottom()
                             ? QString::number(range.top())
                             : QStringLiteral("%1-%2").arg(range.top()).arg(range.bottom()));
        return texts.join(QLatin1Char(' '));
    }
    void find() { memory.find(model); }

    ItemStand stand{fkOnline};
    NxMediaItemModel model{mctMedia, nullptr};
    NxMediaRowMemory memory;
};

} // namespace

/// What is remembered of media, and the rows in which it is found again.
class tst_NxMediaRowMemory : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void mediaAreFoundInTheOrderInWhichTheyWereSelected_data();
    void mediaAreFoundInTheOrderInWhichTheyWereSelected();
    void wholeRowsAreSelected();
    void aSelectionInAnyOrderHasFewRanges_data();
    void aSelectionInAnyOrderHasFewRanges();
    void aMediaThatStandsTwiceIsFoundTwice();
    void whatIsNotListedIsLeftOut();
    void forgottenMediaAreNotFound();
    void aMediaThatDiesIsForgotten();
    void anotherMediaAtTheSameAddressIsNotFound();
    void eachRoleHasItsMedia();
    void aRoleIsFoundWhereItsMediaStandsFirst();
    void findingAnewForgetsTheRowsBefore();
    void aClearedMemoryFindsNothing();
};

void tst_NxMediaRowMemory::mediaAreFoundInTheOrderInWhichTheyWereSelected_data()
{
    QTest::addColumn<QByteArray>("selected");
    QTest::addColumn<QString>("ranges");
    QTest::newRow("as they stand") << QByteArray("A B C") << "0-2";
    QTest::newRow("backwards") << QByteArray("C B A") << "2 1 0";
    QTest::newRow("with a gap") << QByteArray("A B D E") << "0-1 3-4";
    QTest::newRow("the last first") << QByteArray("E A B") << "4 0-1";
    QTest::newRow("one twice") << QByteArray("E A E B") << "4 0-1";
    QTest::newRow("all") << QByteArray("A B C D E") << "0-4";
    QTest::newRow("one") << QByteArray("C") << "2";
}

void tst_NxMediaRowMemory::mediaAreFoundInTheOrderInWhichTheyWereSelected()
{
    QFETCH(QByteArray, selected);
    Remembered f("A B C D E");
    f.memory.setSelected(f.medias(selected.constData()));
    QVERIFY(f.memory.hasSelection());
    QCOMPARE(f.ranges(), QString()); // Not looked for yet.
    f.find();
    QTEST(f.ranges(), "ranges");
}

void tst_NxMediaRowMemory::wholeRowsAreSelected()
{
    Remembered f("A B C");
    f.memory.setSelected(f.medias("B C"));
    f.find();
    const QItemSelection selection = f.memory.selection(f.model);
    QCOMPARE(selection.size(), 1);
    QCOMPARE(selection.constFirst().left(), 0);
    QCOMPARE(selection.constFirst().right(), f.model.columnCount() - 1);
}

void tst_NxMediaRowMemory::aSelectionInAnyOrderHasFewRanges_data()
{
    QTest::addColumn<bool>("isShuffled");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("isInOrder");
    QTest::newRow("many as they stand") << false << 5000 << true;
    QTest::newRow("many in any order") << true << 5000 << false;
    QTest::newRow("some in any order") << true << 60 << true;
}

void tst_NxMediaRowMemory::aSelectionInAnyOrderHasFewRanges()
{
    QFETCH(bool, isShuffled);
    QFETCH(int, count);
    QFETCH(bool, isInOrder);
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(QString::number(i));
    Remembered f(names.join(QLatin1Char(' ')).toLatin1().constData());
    Medias selected = f.model.getItems();
    QRandomGenerator dice(7);
    if (isShuffled)
        std::shuffle(selected.begin(), selected.end(), dice);
    f.memory.setSelected(selected);
    f.find();
    const QItemSelection selection = f.memory.selection(f.model);
    QVERIFY2(selection.size() <= 64, qPrintable(QString::number(selection.size())));
    Medias found;
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            found.append(f.model.mediaItem(row));
    }
    QVERIFY(found == (isInOrder ? selected : f.model.getItems()));
}

void tst_NxMediaRowMemory::aMediaThatStandsTwiceIsFoundTwice()
{
    Remembered f("A:x B:x");
    f.stand.section->itsKind = fkProject;
    f.model.load(f.stand.folder);
    f.model.setGroupBy({gbCategory, soASC, nullptr});
    f.model.expandStateToggle(0, true);
    QCOMPARE(rowsText(f.model.getItems()), QStringLiteral("[x] + A B + A B"));
    f.memory.setSelected(f.medias("B A"));
    f.find();
    QCOMPARE(f.ranges(), QStringLiteral("3 6 2 5"));
    f.memory.setSelected(f.medias("A B"));
    f.find();
    QCOMPARE(f.ranges(), QStringLiteral("2 5 3 6"));
}

void tst_NxMediaRowMemory::whatIsNotListedIsLeftOut()
{
    Remembered f("A B C");
    ScriptedItem elsewhere;
    f.memory.setSelected({f.stand.item("C"), &elsewhere, nullptr, f.stand.item("A")});
    f.memory.setMedia(NxMediaRowMemory::Current, &elsewhere);
    f.find();
    QCOMPARE(f.ranges(), QStringLiteral("2 0"));
    QCOMPARE(f.memory.row(NxMediaRowMemory::Current), -1);
    QCOMPARE(f.memory.media(NxMediaRowMemory::Current), &elsewhere);
}

void tst_NxMediaRowMemory::forgottenMediaAreNotFound()
{
    Remembered f("A B C");
    f.memory.setSelected(f.medias("A B C"));
    f.memory.setMedia(NxMediaRowMemory::Current, f.stand.item("B"));
    f.memory.setMedia(NxMediaRowMemory::Hovered, f.stand.item("B"));
    f.memory.setMedia(NxMediaRowMemory::Anchor, f.stand.item("A"));
    f.memory.forget(f.stand.item("B"));
    f.memory.forget(nullptr);
    QVERIFY(!f.memory.media(NxMediaRowMemory::Current));
    f.find();
    QCOMPARE(f.ranges(), QStringLiteral("0 2"));
    QCOMPARE(f.memory.row(NxMediaRowMemory::Current), -1);
    QCOMPARE(f.memory.row(NxMediaRowMemory::Hovered), -1);
    QCOMPARE(f.memory.row(NxMediaRowMemory::Anchor), 0);
}

void tst_NxMediaRowMemory::aMediaThatDiesIsForgotten()
{
    Remembered f("A B");
    auto dying = std::make_unique<ScriptedItem>();
    f.memory.setSelected({dying.get(), f.stand.item("B")});
    f.memory.setMedia(NxMediaRowMemory::Edited, dying.get());
    QCOMPARE(f.memory.media(NxMediaRowMemory::Edited), dying.get());
    dying.reset();
    QVERIFY(!f.memory.media(NxMediaRowMemory::Edited));
    f.find();
    QCOMPARE(f.ranges(), QStringLiteral("1"));
}

void tst_NxMediaRowMemory::anotherMediaAtTheSameAddressIsNotFound()
{
    Remembered f("A B");
    ScriptedItem *place = f.stand.items.front().get();
    f.memory.setSelected(f.medias("A B"));
    f.memory.setMedia(NxMediaRowMemory::Current, place);
    place->~ScriptedItem();
    new (place) ScriptedItem(mtVideo, QStringLiteral("A"));
    f.find();
    QCOMPARE(f.ranges(), QStringLiteral("1"));
    QCOMPARE(f.memory.row(NxMediaRowMemory::Current), -1);
}

void tst_NxMediaRowMemory::eachRoleHasItsMedia()
{
    Remembered f("A B C D");
    const Medias medias = f.medias("D C B A");
    for (int role = 0; role < NxMediaRowMemory::RoleCount; ++role)
        f.memory.setMedia(NxMediaRowMemory::Role(role), medias.at(role));
    f.find();
    for (int role = 0; role < NxMediaRowMemory::RoleCount; ++role) {
        QCOMPARE(f.memory.media(NxMediaRowMemory::Role(role)), medias.at(role));
        QCOMPARE(f.memory.row(NxMediaRowMemory::Role(role)), 3 - role);
    }
    QVERIFY(!f.memory.hasSelection());
    QCOMPARE(f.ranges(), QString());
}

void tst_NxMediaRowMemory::aRoleIsFoundWhereItsMediaStandsFirst()
{
    Remembered f("A:x");
    f.stand.section->itsKind = fkProject;
    f.model.load(f.stand.folder);
    f.model.setGroupBy({gbCategory, soASC, nullptr});
    f.model.expandStateToggle(0, true);
    QCOMPARE(f.model.rows(f.stand.item("A")), QList<int>({2, 4}));
    f.memory.setMedia(NxMediaRowMemory::Anchor, f.stand.item("A"));
    f.find();
    QCOMPARE(f.memory.row(NxMediaRowMemory::Anchor), 2);
}

void tst_NxMediaRowMemory::findingAnewForgetsTheRowsBefore()
{
    Remembered f("A B C");
    f.memory.setSelected(f.medias("B C"));
    f.memory.setMedia(NxMediaRowMemory::Current, f.stand.item("C"));
    f.find();
    f.stand.folder->media = f.medias("C A");
    f.model.load(f.stand.folder);
    f.find();
    QCOMPARE(f.ranges(), QStringLiteral("0"));
    QCOMPARE(f.memory.row(NxMediaRowMemory::Current), 0);
}

void tst_NxMediaRowMemory::aClearedMemoryFindsNothing()
{
    Remembered f("A B C");
    f.memory.setSelected(f.medias("B C"));
    f.memory.setMedia(NxMediaRowMemory::Current, f.stand.item("C"));
    f.find();
    f.memory.clear();
    QVERIFY(!f.memory.hasSelection());
    QVERIFY(!f.memory.media(NxMediaRowMemory::Current));
    QCOMPARE(f.memory.row(NxMediaRowMemory::Current), -1);
    f.find();
    QCOMPARE(f.ranges(), QString());
}

NX_TEST_MAIN(tst_NxMediaRowMemory)
#include "tst_NxMediaRowMemory.moc"
