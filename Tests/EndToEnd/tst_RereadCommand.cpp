// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FootageYard.h"

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QtTest>

#include <sys/stat.h>

class tst_RereadCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void whatFailedIsReadWhenItsFileIsWhole();
    void whatFailsAgainSaysWhy();
    void withNothingToDoItIsDone();
    void aNamedMediaIsReadThoughItWasRead();
    void picturesThatWentAreMadeAgain();
    void aNameThatFitsNothingDoesNothing();
    void anImportLeavesReadingToLaterWhenAsked();
    void whatWasNeverReadIsReadUnlessItIsGone();
    void aFolderThatMayNotBeEnteredIsToldAndHarmsNothing();
    void copiesAreReported();

private:
    [[nodiscard]] QString source(const char *recipe) const;
    [[nodiscard]] QByteArray bytes(const char *recipe) const;
    [[nodiscard]] const Yard &yard() const { return m_footage->yard(); }

    std::unique_ptr<FootageYard> m_footage;
};

void tst_RereadCommand::init()
{
    m_footage = std::make_unique<FootageYard>();
}

void tst_RereadCommand::cleanup()
{
    m_footage.reset();
}

QString tst_RereadCommand::source(const char *recipe) const
{
    return NxFootageSet::path(NxFootageRecipes::named(QLatin1String(recipe)));
}

QByteArray tst_RereadCommand::bytes(const char *recipe) const
{
    QFile file(source(recipe));
    if (!file.open(QIODevice::ReadOnly))
        QTest::qFail(qPrintable(file.fileName()), __FILE__, __LINE__);
    return file.readAll();
}

void tst_RereadCommand::whatFailedIsReadWhenItsFileIsWhole()
{
    const QByteArray whole = bytes("avc.mp4");
    const QString clip = yard().clip(QStringLiteral("a.mp4"), whole.left(whole.size() / 3));
    const ProgramResult import = m_footage->imported(clip);
    VERIFY_CODE(import, 3);
    QVERIFY2(import.said("a.mp4: "), import.story().constData());
    QCOMPARE(import.summary().value(QLatin1String("added")).toInt(), 1);
    QCOMPARE(import.summary().value(QLatin1String("unreadable")).toInt(), 1);

    yard().clip(QStringLiteral("a.mp4"), whole);
    const ProgramResult again = yard().run("reread");
    VERIFY_CODE(again, 0);
    QCOMPARE(again.lines(), QList<QByteArray>{"1 media read, 0 failed"});
    const QJsonObject info = m_footage->info(clip);
    QCOMPARE(info.value(QLatin1String("read")).toString(), QStringLiteral("done"));
    QCOMPARE(info.value(QLatin1String("strip_state")).toString(), QStringLiteral("made"));
}

void tst_RereadCommand::whatFailsAgainSaysWhy()
{
    const QString clip = yard().clip(QStringLiteral("a.mp4"), "no film at all");
    VERIFY_CODE(m_footage->imported(clip), 3);
    const ProgramResult again = yard().run("reread", {QStringLiteral("--json")});
    VERIFY_CODE(again, 3);
    QVERIFY2(again.said("a.mp4: "), again.story().constData());
    QCOMPARE(again.objects().size(), 1);
    const QJsonObject told = again.objects().first();
    QCOMPARE(told.value(QLatin1String("read")).toString(), QStringLiteral("failed"));
    QVERIFY(!told.value(QLatin1String("reason")).toString().isEmpty());
}

void tst_RereadCommand::withNothingToDoItIsDone()
{
    VERIFY_CODE(m_footage->imported(source("avc.mp4")), 0);
    const ProgramResult result = yard().run("reread");
    VERIFY_CODE(result, 0);
    QCOMPARE(result.lines(), QList<QByteArray>{"0 media read, 0 failed"});
}

void tst_RereadCommand::aNamedMediaIsReadThoughItWasRead()
{
    const QString clip = yard().clip(QStringLiteral("a.mp4"), bytes("avc.mp4"));
    VERIFY_CODE(m_footage->imported(clip), 0);
    const QString fingerprint =
        m_footage->info(clip).value(QLatin1String("fingerprint")).toString();

    yard().clip(QStringLiteral("a.mp4"), bytes("turned 90.mp4"));
    VERIFY_CODE(yard().run("reread", {clip}), 0);
    const QJsonObject info = m_footage->info(clip);
    QCOMPARE(info.value(QLatin1String("rotation")).toInt(), 90);
    QVERIFY(info.value(QLatin1String("fingerprint")).toString() != fingerprint);
}

void tst_RereadCommand::picturesThatWentAreMadeAgain()
{
    const QString clip = source("avc.mp4");
    VERIFY_CODE(m_footage->imported(clip), 0);
    const QString cover = m_footage->info(clip).value(QLatin1String("cover")).toString();
    QVERIFY(QFile::remove(cover));
    const QJsonObject info = m_footage->info(clip);
    QCOMPARE(info.value(QLatin1String("cover")).toString(), cover);
    QVERIFY(QFile::exists(cover));
}

void tst_RereadCommand::aNameThatFitsNothingDoesNothing()
{
    VERIFY_CODE(m_footage->imported(source("avc.mp4")), 0);
    const ProgramResult result = yard().run("reread", {QStringLiteral("nobody.mp4")});
    VERIFY_CODE(result, 1);
    QVERIFY2(result.said("nobody.mp4"), result.story().constData());
    QVERIFY(result.output.isEmpty());
}

void tst_RereadCommand::anImportLeavesReadingToLaterWhenAsked()
{
    const QString clip = source("avc.mp4");
    VERIFY_CODE(yard().run("import", {clip, QStringLiteral("--no-read")}), 0);
    QVERIFY(yard().listed().first().value(QLatin1String("frames")).isNull());
    QCOMPARE(m_footage->info(clip).value(QLatin1String("read")).toString(),
             QStringLiteral("done"));
    QVERIFY(yard().listed().first().value(QLatin1String("frames")).isDouble());
}

void tst_RereadCommand::whatWasNeverReadIsReadUnlessItIsGone()
{
    const QString clip = yard().clip(QStringLiteral("a.mp4"), bytes("avc.mp4"));
    const QString gone = yard().clip(QStringLiteral("gone.mp4"), bytes("avc.mkv"));
    VERIFY_CODE(yard().run("import", {clip, gone, QStringLiteral("--no-read")}), 0);
    QVERIFY(QFile::remove(gone));
    const ProgramResult result = yard().run("reread");
    VERIFY_CODE(result, 0);
    QCOMPARE(result.lines(), QList<QByteArray>{"1 media read, 0 failed"});
    QVERIFY(yard().listed().first().value(QLatin1String("frames")).isDouble());
}

void tst_RereadCommand::aFolderThatMayNotBeEnteredIsToldAndHarmsNothing()
{
    const QString shut = yard().clip(QStringLiteral("shut/a.mp4"), bytes("avc.mp4"));
    const QString open = yard().clip(QStringLiteral("b.mp4"), bytes("hevc.mkv"));
    VERIFY_CODE(yard().run("import", {shut, open, QStringLiteral("--no-read")}), 0);
    for (const QString &path :
         {yard().folder().path(), yard().footage(), yard().project(), open})
        QCOMPARE(::chmod(QFile::encodeName(path).constData(), 0777), 0);
    const QByteArray folder = QFile::encodeName(yard().footage(QStringLiteral("shut")));
    QCOMPARE(::chmod(folder.constData(), 0), 0);
    const ProgramResult result =
        ProgramRun::run({QStringLiteral("reread"), yard().project(), QStringLiteral("--json")}, {},
                        ProgramRun::User::Nobody);
    QCOMPARE(::chmod(folder.constData(), 0755), 0);

    VERIFY_CODE(result, 3);
    QCOMPARE(result.objects().size(), 2);
    const QJsonObject refused = result.objects().first();
    QCOMPARE(refused.value(QLatin1String("path")).toString(), shut);
    QVERIFY2(result.said("a.mp4: "), result.story().constData());
    QVERIFY2(result.said("permission") || result.said("cannot be opened"),
             result.story().constData());
    QCOMPARE(result.objects().last().value(QLatin1String("frames")).isDouble(), true);
}

void tst_RereadCommand::copiesAreReported()
{
    const QString clip = yard().clip(QStringLiteral("a.mp4"), bytes("avc.mp4"));
    VERIFY_CODE(m_footage->imported(clip), 0);
    const QString copy = yard().clip(QStringLiteral("copy.mp4"), bytes("avc.mp4"));
    const ProgramResult result = m_footage->imported(copy);
    VERIFY_CODE(result, 0);
    QCOMPARE(result.values("report", "verdict"), QStringList{QStringLiteral("copy_of")});
    QVERIFY(result.values("report", "reason").first().contains(clip));
    QCOMPARE(result.summary().value(QLatin1String("added")).toInt(), 1);
}

NX_TEST_MAIN(tst_RereadCommand)
#include "tst_RereadCommand.moc"
