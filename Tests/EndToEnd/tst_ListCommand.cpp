// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ListYard.h"

#include <Support/NxTestMain.h>

#include <QDateTime>
#include <QFileInfo>
#include <QtTest>

/// list: which rows there are, and in which order.
class tst_ListCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everySortKeyOrdersTheMedia_data();
    void everySortKeyOrdersTheMedia();
    void everyGroupKeyMakesItsGroups_data();
    void everyGroupKeyMakesItsGroups();
    void mediaAreGroupedByTheDayOfTheirFootage();
    void whatIsGroupedIsSortedToo();
    void aTypeNarrowsTheList_data();
    void aTypeNarrowsTheList();
    void aKeywordNarrowsTheListAndUngroupsIt();
    void theUsersChoiceHoldsWhereNothingIsSaid();
    void theSettingsAreReadAndNeverWritten();
    void damagedSettingsAreTheDefaults();

private:
    std::unique_ptr<ListYard> m_yard;
};

void tst_ListCommand::init()
{
    m_yard = std::make_unique<ListYard>();
}

void tst_ListCommand::cleanup()
{
    m_yard->verifyFootage();
    m_yard.reset();
}

void tst_ListCommand::everySortKeyOrdersTheMedia_data()
{
    QTest::addColumn<QString>("ascending");
    QTest::addColumn<QString>("descending");

    const QString none = QStringLiteral("c 10.mp4|C 9.wav|b.jpg|a.gif|d.srt");
    const QString favourite = QStringLiteral("b.jpg|c 10.mp4|C 9.wav|a.gif|d.srt");
    const QString favouriteLast = QStringLiteral("c 10.mp4|C 9.wav|a.gif|d.srt|b.jpg");
    const QString made = QStringLiteral("C 9.wav|a.gif|d.srt|c 10.mp4|b.jpg");
    const QString madeLast = QStringLiteral("b.jpg|c 10.mp4|d.srt|a.gif|C 9.wav");
    QTest::newRow("none") << none << none;
    QTest::newRow("name") << "a.gif|b.jpg|C 9.wav|c 10.mp4|d.srt"
                          << "d.srt|c 10.mp4|C 9.wav|b.jpg|a.gif";
    QTest::newRow("datecreated") << made << madeLast;
    QTest::newRow("new") << madeLast << made;
    QTest::newRow("type") << "c 10.mp4|a.gif|b.jpg|C 9.wav|d.srt"
                          << "d.srt|C 9.wav|b.jpg|c 10.mp4|a.gif";
    QTest::newRow("favourite") << favourite << favouriteLast;
    QTest::newRow("favouritetime") << favouriteLast << favourite;
    // Nothing tells these media apart, so each stays where its folder has it.
    for (const char *key : {"duration", "used", "framerate", "inpoint", "outpoint", "downloadtime",
                            "resolution", "audioinfo", "category", "listorder", "sale"})
        QTest::newRow(key) << none << none;
}

void tst_ListCommand::everySortKeyOrdersTheMedia()
{
    QFETCH(QString, ascending);
    QFETCH(QString, descending);

    m_yard->makeFavourite(QStringLiteral("b.jpg"));
    const QString key =
        QStringLiteral("--group=none|--sort=") + QLatin1String(QTest::currentDataTag());
    QCOMPARE(m_yard->rowsOf(key), QStringLiteral("[import]|") + ascending);
    QCOMPARE(m_yard->rowsOf(key + QStringLiteral("|--desc")),
             QStringLiteral("[import]|") + descending);
}

void tst_ListCommand::everyGroupKeyMakesItsGroups_data()
{
    QTest::addColumn<QString>("ascending");
    QTest::addColumn<QString>("descending");

    const QString none = QStringLiteral("[import]|c 10.mp4|C 9.wav|b.jpg|a.gif|d.srt");
    const QString one = QStringLiteral("== %1 (5)|") + none;
    QTest::newRow("none") << none << none;
    QTest::newRow("type") << "== Video (2)|[import]|c 10.mp4|a.gif|== Photo (1)|[import]|b.jpg"
                             "|== Audio (1)|[import]|C 9.wav|== Subtitle (1)|[import]|d.srt"
                          << "== Subtitle (1)|[import]|d.srt|== Audio (1)|[import]|C 9.wav"
                             "|== Photo (1)|[import]|b.jpg|== Video (2)|[import]|c 10.mp4|a.gif";
    for (const char *key : {"cameraname", "category"})
        QTest::newRow(key) << one.arg(QLatin1String("None")) << one.arg(QLatin1String("None"));
    QTest::newRow("duration") << one.arg(QLatin1String("less than 1min"))
                              << one.arg(QLatin1String("less than 1min"));
}

void tst_ListCommand::everyGroupKeyMakesItsGroups()
{
    QFETCH(QString, ascending);
    QFETCH(QString, descending);

    const QString key =
        QStringLiteral("--sort=none|--group=") + QLatin1String(QTest::currentDataTag());
    QCOMPARE(m_yard->rowsOf(key), ascending);
    QCOMPARE(m_yard->rowsOf(key + QStringLiteral("|--group-desc")), descending);
}

void tst_ListCommand::mediaAreGroupedByTheDayOfTheirFootage()
{
    const ProgramResult result = m_yard->list(QStringLiteral("--json|--group=datecreated"));
    VERIFY_CODE(result, 0);
    QString day;
    int left = 0;
    int media = 0;
    const QVector<QJsonObject> rows = result.objects();
    for (const QJsonObject &row : rows) {
        const QString kind = row.value(QLatin1String("kind")).toString();
        if (kind == QLatin1String("group")) {
            QCOMPARE(left, 0);
            left = row.value(QLatin1String("items")).toInt();
            QVERIFY(row.value(QLatin1String("title")).toString() > day);
            day = row.value(QLatin1String("title")).toString();
        } else if (kind == QLatin1String("media")) {
            const QDateTime created = QDateTime::fromString(
                row.value(QLatin1String("created")).toString(), Qt::ISODateWithMs);
            QCOMPARE(created.toLocalTime().toString(QStringLiteral("yyyy/MM/dd")), day);
            --left;
            ++media;
        }
    }
    QCOMPARE(left, 0);
    QCOMPARE(media, 5);
}

void tst_ListCommand::whatIsGroupedIsSortedToo()
{
    QCOMPARE(m_yard->rowsOf(QStringLiteral("--group=type|--sort=name|--type=video")),
             QStringLiteral("== Video (2)|[import]|a.gif|c 10.mp4"));
    QCOMPARE(m_yard->rowsOf(QStringLiteral("--group=type|--sort=name|--desc|--type=video")),
             QStringLiteral("== Video (2)|[import]|c 10.mp4|a.gif"));
}

void tst_ListCommand::aTypeNarrowsTheList_data()
{
    QTest::addColumn<QString>("expected");

    const QString all = QStringLiteral("[import]|a.gif|b.jpg|C 9.wav|c 10.mp4|d.srt");
    QTest::newRow("all") << all;
    QTest::newRow("video") << "[import]|a.gif|c 10.mp4";
    QTest::newRow("photo") << "[import]|b.jpg";
    QTest::newRow("audio") << "[import]|C 9.wav";
    QTest::newRow("subtitle") << "[import]|d.srt";
    QTest::newRow("premium") << "";
    QTest::newRow("standard") << "";
    // The user's own files have no licence: they cost nothing, and none is given for free either.
    QTest::newRow("free") << all;
    QTest::newRow("paid") << all;
}

void tst_ListCommand::aTypeNarrowsTheList()
{
    QFETCH(QString, expected);

    QCOMPARE(m_yard->rowsOf(QStringLiteral("--type=") + QLatin1String(QTest::currentDataTag())),
             expected);
}

void tst_ListCommand::aKeywordNarrowsTheListAndUngroupsIt()
{
    QCOMPARE(m_yard->rowsOf(QStringLiteral("--search=C |--group=type")),
             QStringLiteral("[import]|C 9.wav|c 10.mp4"));
    QCOMPARE(m_yard->rowsOf(QStringLiteral("--search=nothing like this")), QString());
    QCOMPARE(m_yard->list(QStringLiteral("--search|nothing like this")).output,
             QByteArray("0 media in 0 folders, 0 bytes\n"));
    QCOMPARE(m_yard->rowsOf(QStringLiteral("--search=")),
             QStringLiteral("[import]|a.gif|b.jpg|C 9.wav|c 10.mp4|d.srt"));
}

void tst_ListCommand::theUsersChoiceHoldsWhereNothingIsSaid()
{
    const QString byName = QStringLiteral("[import]|a.gif|b.jpg|C 9.wav|c 10.mp4|d.srt");
    QCOMPARE(m_yard->rowsOf(QString()), byName);
    QCOMPARE(m_yard->rowsOf(QStringLiteral("--desc")),
             QStringLiteral("[import]|d.srt|c 10.mp4|C 9.wav|b.jpg|a.gif"));
    m_yard->writeSettings("[NMatterViewMenu]\nMedia_SortBy=sbDateCreated\nMedia_GroupBy=gbType\n");
    const QString chosen =
        QStringLiteral("== Video (2)|[import]|a.gif|c 10.mp4|== Photo (1)|[import]|b.jpg"
                       "|== Audio (1)|[import]|C 9.wav|== Subtitle (1)|[import]|d.srt");
    QCOMPARE(m_yard->rowsOf(QString()), chosen);
    QCOMPARE(m_yard->rowsOf(QStringLiteral("--desc|--group-desc")),
             QStringLiteral("== Subtitle (1)|[import]|d.srt|== Audio (1)|[import]|C 9.wav"
                            "|== Photo (1)|[import]|b.jpg|== Video (2)|[import]|c 10.mp4|a.gif"));
    QCOMPARE(m_yard->rowsOf(QStringLiteral("--group=none")),
             QStringLiteral("[import]|C 9.wav|a.gif|d.srt|c 10.mp4|b.jpg"));
    QCOMPARE(m_yard->rowsOf(QStringLiteral("--group=none|--sort=name")), byName);
}

void tst_ListCommand::theSettingsAreReadAndNeverWritten()
{
    VERIFY_CODE(m_yard->list(QStringLiteral("--sort=type|--desc|--group=type|--type=video")), 0);
    VERIFY_CODE(m_yard->list(QStringLiteral("--category=4|--group=category")), 0);
    QVERIFY(!QFileInfo::exists(m_yard->settingsFile()));

    m_yard->writeSettings("; mine\n[NMatterViewMenu]\nMedia_SortBy=sbNoSuch\nOther=1\n");
    const NxFootageGuard data(m_yard->path(QStringLiteral("data")));
    VERIFY_CODE(m_yard->list(QStringLiteral("--sort=type|--desc|--group=type|--type=video")), 0);
    VERIFY_CODE(m_yard->list(QStringLiteral("--category=4|--group=category")), 0);
    NX_VERIFY_UNTOUCHED(data);
}

void tst_ListCommand::damagedSettingsAreTheDefaults()
{
    m_yard->writeSettings(QByteArray(4000, '\xff') + "\nMedia_SortBy=\n");
    QCOMPARE(m_yard->rowsOf(QString()),
             QStringLiteral("[import]|a.gif|b.jpg|C 9.wav|c 10.mp4|d.srt"));
}

NX_TEST_MAIN(tst_ListCommand)
#include "tst_ListCommand.moc"
