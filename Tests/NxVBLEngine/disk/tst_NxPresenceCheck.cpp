// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/disk/NxPresenceCheck.h>

#include <NxVBLEngine/disk/NxDiskThread.h>

#include <Support/NxTestMain.h>

#include <QDateTime>
#include <QHash>
#include <QTest>

Q_DECLARE_METATYPE(NxFileKind)
Q_DECLARE_METATYPE(NxPresence)

namespace {

/// A disk of the test's making that counts the looks at it.
struct MadeUpDisk
{
    void add(const char *path, NxFileKind kind, qint64 modified = 1'000)
    {
        NxFileFacts made;
        made.kind = kind;
        made.readable = kind == NxFileKind::File || kind == NxFileKind::Folder;
        made.modified = modified;
        made.device = 1;
        made.inode = quint64(facts.size()) + 1;
        facts.insert(QLatin1String(path), made);
    }
    NxPresenceDisk disk()
    {
        NxPresenceDisk made;
        made.look = [this](const QString &path) {
            looks.append(path);
            return facts.value(path);
        };
        return made;
    }
    QHash<QString, NxFileFacts> facts;
    QStringList looks;
};

NxFolderQuestion question(const QString &folder, const QStringList &names)
{
    NxFolderQuestion question;
    question.path = folder;
    qint64 id = 0;
    for (const QString &name : names)
        question.files.append({++id, folder + QLatin1Char('/') + name, QString()});
    return question;
}

} // namespace

class tst_NxPresenceCheck : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyKindHasItsPresence_data();
    void everyKindHasItsPresence();
    void filesWithoutRightsAreDenied();
    void aMissingFolderCostsOneLookForAllItsFiles();
    void theHighestMissingFolderIsFound();
    void movedFilesAreFoundBesideTheProject();
    void aFolderChangedJustNowIsNotSettled();
    void anAnswerIsAsWholeAsItsQuestion();
    void changesAreSeenByTimeAndIdentity_data();
    void changesAreSeenByTimeAndIdentity();
};

void tst_NxPresenceCheck::everyKindHasItsPresence_data()
{
    QTest::addColumn<NxFileKind>("kind");
    QTest::addColumn<NxPresence>("presence");
    QTest::newRow("missing") << NxFileKind::Missing << NxPresence::Missing;
    QTest::newRow("file") << NxFileKind::File << NxPresence::Present;
    QTest::newRow("folder in its place") << NxFileKind::Folder << NxPresence::Missing;
    QTest::newRow("pipe in its place") << NxFileKind::Special << NxPresence::Unreadable;
    QTest::newRow("hidden by rights") << NxFileKind::Denied << NxPresence::Denied;
    QTest::newRow("disk error") << NxFileKind::Failed << NxPresence::Unreachable;
}

void tst_NxPresenceCheck::everyKindHasItsPresence()
{
    QFETCH(NxFileKind, kind);
    MadeUpDisk made;
    made.add("/f", NxFileKind::Folder);
    made.add("/f/a", kind);
    NxDiskPulse pulse;
    const NxFolderAnswer answer = NxPresenceCheck::answer(
        question(QStringLiteral("/f"), {QStringLiteral("a")}), made.disk(), pulse);
    QTEST(answer.files.first().presence, "presence");
    QCOMPARE(answer.files.first().path, QStringLiteral("/f/a"));
    QVERIFY(answer.state.exists);
}

void tst_NxPresenceCheck::filesWithoutRightsAreDenied()
{
    MadeUpDisk made;
    made.add("/f", NxFileKind::Folder);
    made.add("/f/a", NxFileKind::File);
    made.facts[QStringLiteral("/f/a")].readable = false;
    NxDiskPulse pulse;
    const NxFolderAnswer answer = NxPresenceCheck::answer(
        question(QStringLiteral("/f"), {QStringLiteral("a")}), made.disk(), pulse);
    QCOMPARE(answer.files.first().presence, NxPresence::Denied);
}

void tst_NxPresenceCheck::aMissingFolderCostsOneLookForAllItsFiles()
{
    MadeUpDisk made;
    made.add("/", NxFileKind::Folder);
    QStringList names;
    for (int i = 0; i < 1'000; ++i)
        names.append(QString::number(i));
    NxDiskPulse pulse;
    const NxFolderAnswer answer
        = NxPresenceCheck::answer(question(QStringLiteral("/f"), names), made.disk(), pulse);
    QCOMPARE(answer.files.size(), 1'000);
    QCOMPARE(answer.files.last().presence, NxPresence::Missing);
    QVERIFY2(made.looks.size() <= 2, qUtf8Printable(made.looks.join(QLatin1Char(' '))));
}

void tst_NxPresenceCheck::theHighestMissingFolderIsFound()
{
    MadeUpDisk made;
    made.add("/", NxFileKind::Folder);
    made.add("/mnt", NxFileKind::Folder);
    NxDiskPulse pulse;
    const NxFolderAnswer answer = NxPresenceCheck::answer(
        question(QStringLiteral("/mnt/usb/day/one"), {QStringLiteral("a")}), made.disk(), pulse);
    QCOMPARE(answer.state.missingAncestor, QStringLiteral("/mnt/usb"));
    QVERIFY(!answer.state.exists);
}

void tst_NxPresenceCheck::movedFilesAreFoundBesideTheProject()
{
    MadeUpDisk made;
    made.add("/", NxFileKind::Folder);
    made.add("/new/a.mp4", NxFileKind::File);
    made.add("/new/folder", NxFileKind::Folder);
    NxFolderQuestion asked =
        question(QStringLiteral("/old"),
                 {QStringLiteral("a.mp4"), QStringLiteral("b"), QStringLiteral("c")});
    asked.files[0].movedPath = QStringLiteral("/new/a.mp4");
    asked.files[1].movedPath = QStringLiteral("/new/b");
    asked.files[2].movedPath = QStringLiteral("/new/folder");
    NxDiskPulse pulse;
    const NxFolderAnswer answer = NxPresenceCheck::answer(asked, made.disk(), pulse);
    QCOMPARE(answer.files.at(0).presence, NxPresence::Present);
    QCOMPARE(answer.files.at(0).movedPath, QStringLiteral("/new/a.mp4"));
    QCOMPARE(answer.files.at(1).presence, NxPresence::Missing);
    QCOMPARE(answer.files.at(1).movedPath, QString());
    QCOMPARE(answer.files.at(2).presence, NxPresence::Missing);
}

void tst_NxPresenceCheck::aFolderChangedJustNowIsNotSettled()
{
    MadeUpDisk made;
    made.add("/old", NxFileKind::Folder, 1'000);
    constexpr qint64 hour = 3'600'000; // ms
    made.add("/new", NxFileKind::Folder, QDateTime::currentMSecsSinceEpoch() + hour);
    NxDiskPulse pulse;
    QVERIFY(NxPresenceCheck::answer(question(QStringLiteral("/old"), {}), made.disk(), pulse)
                .state.settled);
    QVERIFY(!NxPresenceCheck::answer(question(QStringLiteral("/new"), {}), made.disk(), pulse)
                 .state.settled);
}

void tst_NxPresenceCheck::anAnswerIsAsWholeAsItsQuestion()
{
    MadeUpDisk made;
    made.add("/f", NxFileKind::Folder);
    NxDiskPulse pulse;
    NxFolderQuestion asked = question(QStringLiteral("/f"), {QStringLiteral("a")});
    for (const bool isWhole : {true, false}) {
        asked.isWhole = isWhole;
        QCOMPARE(NxPresenceCheck::answer(asked, made.disk(), pulse).isWhole, isWhole);
    }
}

void tst_NxPresenceCheck::changesAreSeenByTimeAndIdentity_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<bool>("changed");
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("time") << QStringLiteral("time") << true;
    QTest::newRow("another volume in its place") << QStringLiteral("device") << true;
    QTest::newRow("another folder in its place") << QStringLiteral("inode") << true;
    QTest::newRow("gone") << QStringLiteral("gone") << true;
}

void tst_NxPresenceCheck::changesAreSeenByTimeAndIdentity()
{
    QFETCH(QString, what);
    MadeUpDisk made;
    made.add("/f", NxFileKind::Folder);
    NxDiskPulse pulse;
    NxFolderPoll poll;
    poll.path = QStringLiteral("/f");
    poll.known
        = NxPresenceCheck::answer(question(poll.path, {}), made.disk(), pulse).state;
    NxFileFacts &facts = made.facts[poll.path];
    if (what == QLatin1String("time"))
        ++facts.modified;
    if (what == QLatin1String("device"))
        ++facts.device;
    if (what == QLatin1String("inode"))
        ++facts.inode;
    if (what == QLatin1String("gone"))
        facts = NxFileFacts();
    QTEST(NxPresenceCheck::hasChanged(poll, made.disk()), "changed");
}

NX_TEST_MAIN(tst_NxPresenceCheck)
#include "tst_NxPresenceCheck.moc"
