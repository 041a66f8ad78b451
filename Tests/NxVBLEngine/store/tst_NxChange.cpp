// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/records/NxChange.h>

#include <Support/NxTestMain.h>

#include <limits>

Q_DECLARE_METATYPE(NxChangeState)

namespace {

constexpr qint64 Lowest = std::numeric_limits<qint64>::min();
constexpr qint64 Highest = std::numeric_limits<qint64>::max();

QVector<qint64> upTo(int count)
{
    QVector<qint64> ids;
    for (int id = 1; id <= count; ++id)
        ids.append(id);
    return ids;
}

} // namespace

class tst_NxChange : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void idsComeBackAsTheyWere_data();
    void idsComeBackAsTheyWere();
    void aWholeImportPacksIntoAFewBytes();
    void damagedIdsAreRefused_data();
    void damagedIdsAreRefused();
    void statesComeBackAsTheyWere_data();
    void statesComeBackAsTheyWere();
    void aNeutralStateTakesNoBytes();
    void damagedStatesAreRefused_data();
    void damagedStatesAreRefused();
    void theInverseTakesAChangeBack();
    void invertingTwiceIsTheChangeItself();
    void everyKindIsAboutOneObject_data();
    void everyKindIsAboutOneObject();
    void numbersThatStandForNothingAreNoKinds_data();
    void numbersThatStandForNothingAreNoKinds();
};

void tst_NxChange::idsComeBackAsTheyWere_data()
{
    QTest::addColumn<QVector<qint64>>("ids");
    QTest::newRow("none") << QVector<qint64>();
    QTest::newRow("one") << QVector<qint64>{42};
    QTest::newRow("ascending") << upTo(1000);
    QTest::newRow("scattered") << QVector<qint64>{5, 9, 8, 8, 1, 700000, 3};
    QTest::newRow("descending") << QVector<qint64>{9, 8, 7, 3, 2, 1};
    QTest::newRow("extremes") << QVector<qint64>{Highest, Lowest, 0, -1, Highest, Highest, Lowest};
}

void tst_NxChange::idsComeBackAsTheyWere()
{
    QFETCH(QVector<qint64>, ids);
    QVector<qint64> back{1, 2, 3};
    QVERIFY(unpackIds(packedIds(ids), &back));
    QCOMPARE(back, ids);
}

void tst_NxChange::aWholeImportPacksIntoAFewBytes()
{
    QVERIFY(packedIds(upTo(100000)).size() < 16);
}

void tst_NxChange::damagedIdsAreRefused_data()
{
    QTest::addColumn<QByteArray>("packed");
    const QByteArray good = packedIds({5, 9, 8});
    QTest::newRow("nothing at all") << QByteArray();
    QTest::newRow("cut off") << good.chopped(1);
    QTest::newRow("something after the end") << good + 'x';
    QTest::newRow("a run of none") << QByteArray("\x01\x02\x00", 3);
    QTest::newRow("a run longer than the whole") << QByteArray("\x01\x02\x05", 3);
    QTest::newRow("more than memory has")
        << QByteArray("\xff\xff\xff\xff\xff\xff\x7f\x02\xff\xff\xff\x7f");
    QTest::newRow("a number that never ends") << QByteArray(20, '\xff');
}

void tst_NxChange::damagedIdsAreRefused()
{
    QFETCH(QByteArray, packed);
    QVector<qint64> ids;
    QVERIFY(!unpackIds(packed, &ids));
}

void tst_NxChange::statesComeBackAsTheyWere_data()
{
    QTest::addColumn<NxChangeState>("state");
    const QString odd = QStringLiteral("a\u00e9\u20ac") + QChar(0xD83C) + QChar(0xDFAC) + QChar(0)
                        + QChar(0xDC00) + QChar(0xD800);
    QTest::newRow("neutral") << NxChangeState();
    QTest::newRow("a folder") << NxChangeState{1001, 0, {}, {}, 0};
    QTest::newRow("a place") << NxChangeState{0, -5, {}, {}, 0};
    QTest::newRow("a text") << NxChangeState{0, 0, odd, {}, 0};
    QTest::newRow("a second text") << NxChangeState{0, 0, {}, odd, 0};
    QTest::newRow("no time") << NxChangeState{0, 0, {}, {}, NxNoTime};
    QTest::newRow("everything") << NxChangeState{std::numeric_limits<int>::min(), Lowest, odd,
                                                 odd + odd, Highest};
}

void tst_NxChange::statesComeBackAsTheyWere()
{
    QFETCH(NxChangeState, state);
    NxChangeState back{1, 2, QStringLiteral("x"), QStringLiteral("y"), 3};
    QVERIFY(unpackState(packedState(state), &back));
    QVERIFY(back == state);
}

void tst_NxChange::aNeutralStateTakesNoBytes()
{
    QCOMPARE(packedState({}), QByteArray());
}

void tst_NxChange::damagedStatesAreRefused_data()
{
    QTest::addColumn<QByteArray>("packed");
    const QByteArray good = packedState({7, 8, QStringLiteral("name"), {}, 9});
    QTest::newRow("cut off") << good.chopped(1);
    QTest::newRow("something after the end") << good + 'x';
    QTest::newRow("fields nobody knows") << QByteArray("\x60");
    QTest::newRow("a text longer than the whole") << QByteArray("\x04\x7f"
                                                                "ab");
    QTest::newRow("a folder beyond int") << QByteArray("\x01\xff\xff\xff\xff\xff\x7f");
}

void tst_NxChange::damagedStatesAreRefused()
{
    QFETCH(QByteArray, packed);
    NxChangeState state;
    QVERIFY(!unpackState(packed, &state));
}

void tst_NxChange::theInverseTakesAChangeBack()
{
    NxChange change;
    change.what = NxChangeKind::MediaAdd;
    change.category = 3;
    change.ids = {1, 2, 3};
    change.before.text = QStringLiteral("old");
    change.after.text = QStringLiteral("new");
    const NxChange inverse = inverted(change);
    QCOMPARE(int(inverse.what), int(NxChangeKind::MediaRemove));
    QCOMPARE(inverse.category, 3);
    QCOMPARE(inverse.ids, (QVector<qint64>{3, 2, 1}));
    QCOMPARE(inverse.before.text, QStringLiteral("new"));
    QCOMPARE(inverse.after.text, QStringLiteral("old"));
}

void tst_NxChange::invertingTwiceIsTheChangeItself()
{
    for (int kind = int(NxChangeKind::FolderAdd); kind <= int(NxChangeKind::ClipMove); ++kind) {
        if (!isChangeKind(kind))
            continue;
        NxChange change;
        change.what = NxChangeKind(kind);
        change.ids = {4, 5};
        change.after.number = 8;
        const NxChange back = inverted(inverted(change));
        QCOMPARE(int(back.what), kind);
        QCOMPARE(back.ids, change.ids);
        QVERIFY(back.before == change.before);
        QVERIFY(back.after == change.after);
    }
}

void tst_NxChange::everyKindIsAboutOneObject_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("object");
    QTest::addColumn<int>("opposite");
    using Kind = NxChangeKind;
    const auto row = [](const char *name, Kind kind, NxObjectKind object, Kind opposite) {
        QTest::newRow(name) << int(kind) << int(object) << int(opposite);
    };
    row("folder added", Kind::FolderAdd, NxObjectKind::Folder, Kind::FolderRemove);
    row("folder removed", Kind::FolderRemove, NxObjectKind::Folder, Kind::FolderAdd);
    row("folder moved", Kind::FolderMove, NxObjectKind::Folder, Kind::FolderMove);
    row("media added", Kind::MediaAdd, NxObjectKind::Media, Kind::MediaRemove);
    row("media relinked", Kind::MediaRelink, NxObjectKind::Media, Kind::MediaRelink);
    row("resource", Kind::ResourceRename, NxObjectKind::Resource, Kind::ResourceRename);
    row("timeline added", Kind::TimelineAdd, NxObjectKind::Timeline, Kind::TimelineRemove);
    row("timeline removed", Kind::TimelineRemove, NxObjectKind::Timeline, Kind::TimelineAdd);
    row("timeline renamed", Kind::TimelineRename, NxObjectKind::Timeline, Kind::TimelineRename);
    row("clip added", Kind::ClipAdd, NxObjectKind::Clip, Kind::ClipRemove);
    row("clip removed", Kind::ClipRemove, NxObjectKind::Clip, Kind::ClipAdd);
    row("clip moved", Kind::ClipMove, NxObjectKind::Clip, Kind::ClipMove);
}

void tst_NxChange::everyKindIsAboutOneObject()
{
    QFETCH(int, kind);
    QFETCH(int, opposite);
    NxChange change;
    change.what = NxChangeKind(kind);
    QTEST(int(objectOf(change.what)), "object");
    QCOMPARE(int(inverted(change).what), opposite);
    QCOMPARE(isAddOrRemoval(change.what), kind != opposite);
}

void tst_NxChange::numbersThatStandForNothingAreNoKinds_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("isKind");
    for (const int value : {0, 11, 20, -1})
        QTest::addRow("%d", value) << value << false;
    for (const int value : {1, 10, 12, 14, 19})
        QTest::addRow("%d", value) << value << true;
}

void tst_NxChange::numbersThatStandForNothingAreNoKinds()
{
    QFETCH(int, value);
    QTEST(isChangeKind(value), "isKind");
    QVERIFY(!isAddOrRemoval(NxChangeKind(11)));
}

NX_TEST_MAIN(tst_NxChange)
#include "tst_NxChange.moc"
