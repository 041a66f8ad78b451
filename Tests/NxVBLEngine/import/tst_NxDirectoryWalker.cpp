// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/import/NxDirectoryWalker.h>

#include "../Support/NxAsNobody.h"
#include "RawFiles.h"

#include <Support/NxFootageGuard.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QDir>
#include <QTest>

namespace {

/// Writes down a walk, a line an entry, with paths as seen from a folder.
class Transcript : public INxWalkListener
{
public:
    explicit Transcript(const QString &base) : m_base(base + QLatin1Char('/')) {}

    void onWalked(NxWalkEntry entry) override
    {
        entries.append(entry);
        static const char *const words[] = {"file", "enter", "leave", "hidden", "other", "twice",
                                            "refused", "unreadable", "done"};
        QString path = entry.path;
        if (path.startsWith(m_base))
            path.remove(0, m_base.size());
        QString line = QLatin1String(words[int(entry.step)]) + QLatin1Char(' ') + path;
        if (!entry.reason.isEmpty())
            line += QLatin1String(": ") + entry.reason;
        if (pauseAfterEach || entry.step != NxWalkStep::NamedDone)
            lines.append(line.trimmed());
    }
    bool isCancelled() override { return ++m_asked > cancelAfter; }
    bool wantsPause() override { return pauseAfterEach; }

    QStringList lines;
    QVector<NxWalkEntry> entries;
    bool pauseAfterEach = false;
    int cancelAfter = 1'000'000;

private:
    const QString m_base;
    int m_asked = 0;
};

NxDirectoryWalker walkerFor(const QStringList &paths)
{
    QVector<NxDirectoryWalker::Named> named;
    for (const QString &path : paths)
        named.append(NxDirectoryWalker::named(path));
    return NxDirectoryWalker(named);
}

QStringList walk(const NxTempDir &dir, const QStringList &paths)
{
    Transcript transcript(dir.path());
    NxDirectoryWalker walker = walkerFor(paths);
    if (walker.walk(&transcript) != NxDirectoryWalker::Outcome::Finished)
        transcript.lines.append(QStringLiteral("not finished"));
    return transcript.lines;
}

QStringList lines(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char('\n'));
}

} // namespace

class tst_NxDirectoryWalker : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void filesComeInOrderAndBeforeFolders();
    void hiddenAndOtherNamesArePassedOver();
    void namedPathsAreTakenAsNamed_data();
    void namedPathsAreTakenAsNamed();
    void namedPathsKeepTheirOrderAndWriting();
    void uncommonNamesAreFound_data();
    void uncommonNamesAreFound();
    void namesThatAreNoTextAreShownEscaped();
    void linksAreFollowedOnce();
    void linkCyclesEnd();
    void danglingLinksAreReported();
    void hardLinksAreFilesOfTheirOwn();
    void canonicalPathsHaveAllLinksFollowed();
    void foldersNamedTwiceAreWalkedOnce();
    void pipesAndSocketsAreNeverOpened();
    void pathsOf4000CharactersAreWalked();
    void pathsThatNobodyCanOpenAreRefused();
    void blankFolderNamesAreRefused();
    void foldersWithoutPermissionAreReported();
    void factsComeWithTheFiles();
    void aPausedWalkGoesOnWhereItWas();
    void aCancelledWalkStopsAtOnce();
    void nothingIsTouched();
};

void tst_NxDirectoryWalker::filesComeInOrderAndBeforeFolders()
{
    const NxTempDir dir;
    for (const char *name : {"b.mp4", "A.mp4", "a.mp4", "C.mp4", "sub/z.mp4", "Alpha/y.mp4"})
        dir.write(QStringLiteral("in/") + QLatin1String(name));
    QCOMPARE(walk(dir, {dir.filePath(QStringLiteral("in"))}),
             lines("enter in\nfile in/A.mp4\nfile in/a.mp4\nfile in/b.mp4\nfile in/C.mp4\n"
                   "enter in/Alpha\nfile in/Alpha/y.mp4\nleave in/Alpha\n"
                   "enter in/sub\nfile in/sub/z.mp4\nleave in/sub\nleave in"));
}

void tst_NxDirectoryWalker::hiddenAndOtherNamesArePassedOver()
{
    const NxTempDir dir;
    for (const char *name : {".h.mp4", ".hidden/a.mp4", "a.txt", "b.xyz", "c.dat", "noSuffix"})
        dir.write(QStringLiteral("in/") + QLatin1String(name));
    QCOMPARE(walk(dir, {dir.filePath(QStringLiteral("in"))}),
             lines("enter in\nhidden in/.h.mp4\nother in/a.txt\nother in/b.xyz\nother in/c.dat\n"
                   "other in/noSuffix\nhidden in/.hidden\nleave in"));
}

void tst_NxDirectoryWalker::namedPathsAreTakenAsNamed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("line");
    QTest::newRow("hidden file") << QStringLiteral(".h.mp4") << QStringLiteral("file .h.mp4");
    QTest::newRow("importable and unwanted") << QStringLiteral("v.dat")
                                             << QStringLiteral("file v.dat");
    QTest::newRow("unwanted")
        << QStringLiteral("notes.txt")
        << QStringLiteral(
               "refused notes.txt: Files of the type \"TXT\" cannot be imported.");
    QTest::newRow("missing") << QStringLiteral("missing.mp4")
                             << QStringLiteral("unreadable missing.mp4: It does not exist.");
    QTest::newRow("missing folder") << QStringLiteral("away/a.mp4")
                                    << QStringLiteral("unreadable away/a.mp4: It does not exist.");
    QTest::newRow("file as folder") << QStringLiteral("v.dat/a.mp4")
                                    << QStringLiteral("unreadable v.dat/a.mp4: It does not exist.");
    QTest::newRow("empty file") << QStringLiteral("empty.mp4")
                                << QStringLiteral("unreadable empty.mp4: The file is empty.");
    QTest::newRow("empty folder, ending in a separator")
        << QStringLiteral("folder/") << QStringLiteral("enter folder\nleave folder");
    QTest::newRow("hidden folder") << QStringLiteral(".folder")
                                   << QStringLiteral("enter .folder\nleave .folder");
    QTest::newRow("with dots") << QStringLiteral("folder/../v.dat") << QStringLiteral("file v.dat");
}

void tst_NxDirectoryWalker::namedPathsAreTakenAsNamed()
{
    const NxTempDir dir;
    for (const char *name : {".h.mp4", "v.dat", "notes.txt"})
        dir.write(QLatin1String(name));
    dir.write(QStringLiteral("empty.mp4"), QByteArray());
    dir.makeDir(QStringLiteral("folder"));
    dir.makeDir(QStringLiteral(".folder"));
    QFETCH(QString, name);
    QFETCH(QString, line);
    QCOMPARE(walk(dir, {dir.filePath(name)}), line.split(QLatin1Char('\n')));
}

void tst_NxDirectoryWalker::namedPathsKeepTheirOrderAndWriting()
{
    const NxTempDir dir;
    dir.write(QStringLiteral("b.mp4"));
    dir.write(QStringLiteral("a.mp4"));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(dir.path()));
    Transcript transcript(dir.path());
    NxDirectoryWalker walker = walkerFor({QStringLiteral("./b.mp4"), QStringLiteral("a.mp4"), {}});
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(walker.walk(&transcript), NxDirectoryWalker::Outcome::Finished);
    QCOMPARE(transcript.lines,
             lines("file b.mp4\nfile a.mp4\nunreadable : It does not exist."));
    QCOMPARE(transcript.entries.at(0).given, QStringLiteral("./b.mp4"));
    QCOMPARE(transcript.entries.at(0).path, dir.filePath(QStringLiteral("b.mp4")));
    QCOMPARE(transcript.entries.at(1).step, NxWalkStep::NamedDone);
}

void tst_NxDirectoryWalker::uncommonNamesAreFound_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("emoji") << QByteArray("\xf0\x9f\x8e\xac.mp4");
    QTest::newRow("line break") << QByteArray("a\nb.mp4");
    QTest::newRow("umlaut") << QByteArray("\xc3\xbc.mp4");
    QTest::newRow("umlaut in two") << QByteArray("u\xcc\x88.mp4");
    QTest::newRow("blanks") << QByteArray("  .mp4");
    QTest::newRow("backslash") << QByteArray("a\\b.mp4");
    QTest::newRow("quotes and percent") << QByteArray("%1\"'.mp4");
    QTest::newRow("control character") << QByteArray("\x01.mp4");
    QTest::newRow("255 bytes") << QByteArray(251, 'n') + ".mp4";
    QTest::newRow("right to left") << QByteArray("\xd7\xa9\xd7\x9c.mp4");
}

void tst_NxDirectoryWalker::uncommonNamesAreFound()
{
    QFETCH(QByteArray, name);
    const NxTempDir dir;
    const QString folder = dir.makeDir(QStringLiteral("in"));
    RawFiles::write(folder, name);
    const QString path = folder + QLatin1Char('/') + QString::fromUtf8(name);

    Transcript inside(dir.path());
    QCOMPARE(walkerFor({folder}).walk(&inside), NxDirectoryWalker::Outcome::Finished);
    QCOMPARE(inside.entries.at(1).step, NxWalkStep::File);
    QCOMPARE(inside.entries.at(1).path, path);
    Transcript named(dir.path());
    QCOMPARE(walkerFor({path}).walk(&named), NxDirectoryWalker::Outcome::Finished);
    QCOMPARE(named.entries.at(0).step, NxWalkStep::File);
    QCOMPARE(named.entries.at(0).path, path);
}

void tst_NxDirectoryWalker::namesThatAreNoTextAreShownEscaped()
{
    const NxTempDir dir;
    const QString folder = dir.makeDir(QStringLiteral("in"));
    RawFiles::write(folder, "caf\xe9.mp4");
    RawFiles::makeFolder(folder, "stra\xdf" "e");
    RawFiles::write(folder, "good.mp4");
    RawFiles::write(folder, ".\xff.mp4");
    QCOMPARE(walk(dir, {folder}),
             lines("enter in\nhidden in/.\\xff.mp4\n"
                   "refused in/caf\\xe9.mp4: Its name is not valid UTF-8.\nfile in/good.mp4\n"
                   "refused in/stra\\xdfe: Its name is not valid UTF-8.\nleave in"));
}

void tst_NxDirectoryWalker::linksAreFollowedOnce()
{
    const NxTempDir dir;
    dir.write(QStringLiteral("real/a.mp4"));
    const QString in = dir.makeDir(QStringLiteral("in"));
    RawFiles::link(dir.filePath(QStringLiteral("real")), in + QStringLiteral("/first"));
    RawFiles::link(dir.filePath(QStringLiteral("real")), in + QStringLiteral("/second"));
    RawFiles::link(dir.filePath(QStringLiteral("real/a.mp4")), in + QStringLiteral("/link.mp4"));
    QCOMPARE(walk(dir, {in}),
             lines("enter in\nfile in/link.mp4\nenter in/first\nfile in/first/a.mp4\n"
                   "leave in/first\ntwice in/second\nleave in"));
}

void tst_NxDirectoryWalker::linkCyclesEnd()
{
    const NxTempDir dir;
    dir.write(QStringLiteral("in/sub/a.mp4"));
    RawFiles::link(QStringLiteral(".."), dir.filePath(QStringLiteral("in/sub/up")));
    RawFiles::link(QStringLiteral("."), dir.filePath(QStringLiteral("in/sub/self")));
    RawFiles::link(QStringLiteral("loop.mp4"), dir.filePath(QStringLiteral("in/loop.mp4")));
    QCOMPARE(walk(dir, {dir.filePath(QStringLiteral("in"))}),
             lines("enter in\nunreadable in/loop.mp4: It is a link to something that does not "
                   "exist.\nenter in/sub\nfile in/sub/a.mp4\ntwice in/sub/self\ntwice in/sub/up\n"
                   "leave in/sub\nleave in"));
}

void tst_NxDirectoryWalker::danglingLinksAreReported()
{
    const NxTempDir dir;
    const QString in = dir.makeDir(QStringLiteral("in"));
    RawFiles::link(QStringLiteral("nowhere.mp4"), in + QStringLiteral("/a.mp4"));
    RawFiles::link(QStringLiteral("nowhere"), in + QStringLiteral("/folder"));
    const QString reason = QStringLiteral(": It is a link to something that does not exist.");
    QCOMPARE(
        walk(dir, {in}),
        QStringList({QStringLiteral("enter in"), QStringLiteral("unreadable in/a.mp4") + reason,
                     QStringLiteral("other in/folder"), QStringLiteral("leave in")}));
    QCOMPARE(walk(dir, {in + QStringLiteral("/a.mp4")}),
             QStringList(QStringLiteral("unreadable in/a.mp4") + reason));
}

void tst_NxDirectoryWalker::hardLinksAreFilesOfTheirOwn()
{
    const NxTempDir dir;
    const QString a = dir.write(QStringLiteral("in/a.mp4"));
    RawFiles::hardLink(a, dir.filePath(QStringLiteral("in/b.mp4")));
    QCOMPARE(walk(dir, {dir.filePath(QStringLiteral("in"))}),
             lines("enter in\nfile in/a.mp4\nfile in/b.mp4\nleave in"));
}

void tst_NxDirectoryWalker::canonicalPathsHaveAllLinksFollowed()
{
    const NxTempDir dir;
    const QString real = dir.write(QStringLiteral("real/sub/a.mp4"));
    RawFiles::link(dir.filePath(QStringLiteral("real")), dir.filePath(QStringLiteral("way")));
    RawFiles::link(real, dir.filePath(QStringLiteral("file.mp4")));
    const QString plain = dir.write(QStringLiteral("plain.mp4"));
    Transcript transcript(dir.path());
    NxDirectoryWalker walker = walkerFor({dir.filePath(QStringLiteral("way")),
                                          dir.filePath(QStringLiteral("file.mp4")), plain});
    QCOMPARE(walker.walk(&transcript), NxDirectoryWalker::Outcome::Finished);
    QVector<NxWalkEntry> files;
    for (const NxWalkEntry &entry : std::as_const(transcript.entries)) {
        if (entry.step == NxWalkStep::File)
            files.append(entry);
    }
    QCOMPARE(files.size(), 3);
    QCOMPARE(files.at(0).path, dir.filePath(QStringLiteral("way/sub/a.mp4")));
    QCOMPARE(files.at(0).canonicalPath, real);
    QCOMPARE(files.at(1).canonicalPath, real);
    QCOMPARE(files.at(2).canonicalPath, QString());
}

void tst_NxDirectoryWalker::foldersNamedTwiceAreWalkedOnce()
{
    const NxTempDir dir;
    dir.write(QStringLiteral("in/sub/a.mp4"));
    const QString in = dir.filePath(QStringLiteral("in"));
    QCOMPARE(walk(dir, {in + QStringLiteral("/sub"), in, in}),
             lines("enter in/sub\nfile in/sub/a.mp4\nleave in/sub\nenter in\ntwice in/sub\n"
                   "leave in\ntwice in"));
}

void tst_NxDirectoryWalker::pipesAndSocketsAreNeverOpened()
{
    const NxTempDir dir;
    const QString in = dir.makeDir(QStringLiteral("in"));
    RawFiles::makePipe(in + QStringLiteral("/pipe.mp4"));
    RawFiles::makeSocket(in + QStringLiteral("/socket.mp4"));
    RawFiles::link(QStringLiteral("/dev/zero"), in + QStringLiteral("/device.mp4"));
    const QString reason
        = QStringLiteral(": It is a pipe, a socket or a device, not a file.");
    QCOMPARE(walk(dir, {in}),
             QStringList(
                 {QStringLiteral("enter in"), QStringLiteral("refused in/device.mp4") + reason,
                  QStringLiteral("refused in/pipe.mp4") + reason,
                  QStringLiteral("refused in/socket.mp4") + reason, QStringLiteral("leave in")}));
    QCOMPARE(walk(dir, {in + QStringLiteral("/pipe.mp4"), QStringLiteral("/dev/zero")}),
             QStringList({QStringLiteral("refused in/pipe.mp4") + reason,
                          QStringLiteral("refused /dev/zero") + reason}));
}

void tst_NxDirectoryWalker::pathsOf4000CharactersAreWalked()
{
    const NxTempDir dir;
    const QString in = dir.makeDir(QStringLiteral("in"));
    const QString deep = RawFiles::writeDeep(in, 4'000, "a.mp4");
    QVERIFY(deep.size() >= 4'000);
    Transcript transcript(dir.path());
    QCOMPARE(walkerFor({in}).walk(&transcript), NxDirectoryWalker::Outcome::Finished);
    const auto file = std::find_if(transcript.entries.cbegin(), transcript.entries.cend(),
        [](const NxWalkEntry &entry) { return entry.step == NxWalkStep::File; });
    QVERIFY(file != transcript.entries.cend());
    QCOMPARE(file->path, deep);
    QCOMPARE(walk(dir, {deep}).size(), 1);
}

void tst_NxDirectoryWalker::pathsThatNobodyCanOpenAreRefused()
{
    const NxTempDir dir;
    const QString in = dir.makeDir(QStringLiteral("in"));
    const QString tooDeep = RawFiles::writeDeep(in, 4'096, "a.mp4");
    const QString reason = QStringLiteral("Its path is too long to be opened.");
    const QStringList inside = walk(dir, {in});
    QCOMPARE(inside.filter(QStringLiteral("file ")), QStringList());
    QCOMPARE(inside.filter(reason).size(), 1);
    QCOMPARE(walk(dir, {tooDeep}).filter(reason).size(), 1);
}

void tst_NxDirectoryWalker::blankFolderNamesAreRefused()
{
    const NxTempDir dir;
    dir.write(QStringLiteral("in/  /a.mp4"));
    dir.write(QStringLiteral("in/ b /a.mp4"));
    Transcript transcript(dir.path());
    QCOMPARE(walkerFor({dir.filePath(QStringLiteral("in"))}).walk(&transcript),
             NxDirectoryWalker::Outcome::Finished);
    QCOMPARE(transcript.lines,
             lines("enter in\nrefused in/  : The name of the folder is blank.\nenter in/ b\n"
                   "file in/ b /a.mp4\nleave in/ b\nleave in"));
    QCOMPARE(transcript.entries.at(2).name, QStringLiteral("b"));
}

void tst_NxDirectoryWalker::foldersWithoutPermissionAreReported()
{
    const NxTempDir dir;
    dir.write(QStringLiteral("in/a.mp4"));
    const QString closedFile = dir.write(QStringLiteral("in/closed.mp4"));
    dir.write(QStringLiteral("in/locked/b.mp4"));
    dir.write(QStringLiteral("in/noEntry/c.mp4"));
    NxAsNobody::give(dir.path());
    RawFiles::setMode(closedFile, 0);
    RawFiles::setMode(dir.filePath(QStringLiteral("in/locked")), 0);
    RawFiles::setMode(dir.filePath(QStringLiteral("in/noEntry")), 0444);
    const QString in = dir.filePath(QStringLiteral("in"));
    const QString found
        = NxAsNobody::run([&dir, in] { return walk(dir, {in}).join(QLatin1Char('\n')); });
    QCOMPARE(found.split(QLatin1Char('\n')),
             lines("enter in\nfile in/a.mp4\n"
                   "unreadable in/closed.mp4: There is no permission to read it.\n"
                   "unreadable in/locked: The folder cannot be read: Permission denied.\n"
                   "enter in/locked\nleave in/locked\nenter in/noEntry\n"
                   "unreadable in/noEntry/c.mp4: It cannot be read: Permission denied.\n"
                   "leave in/noEntry\nleave in"));
}

void tst_NxDirectoryWalker::factsComeWithTheFiles()
{
    const NxTempDir dir;
    const QString path = dir.write(QStringLiteral("in/a.mp4"), QByteArray(1'234, 'x'));
    const QDateTime changed = QDateTime::fromMSecsSinceEpoch(1'600'000'000'123, Qt::UTC);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(changed, QFileDevice::FileModificationTime));
    file.close();
    Transcript transcript(dir.path());
    QCOMPARE(walkerFor({path}).walk(&transcript), NxDirectoryWalker::Outcome::Finished);
    const NxFileFacts facts = transcript.entries.first().facts;
    QCOMPARE(facts.size, 1'234);
    QCOMPARE(facts.modified, changed.toMSecsSinceEpoch());
    const QDateTime born = QFileInfo(path).birthTime();
    QCOMPARE(facts.created, born.isValid() ? born.toMSecsSinceEpoch() : NxNoTime);
}

void tst_NxDirectoryWalker::aPausedWalkGoesOnWhereItWas()
{
    const NxTempDir dir;
    for (const char *name : {"in/a.mp4", "in/b.mp4", "in/s/c.mp4", "in/t/d.mp4"})
        dir.write(QLatin1String(name));
    const QStringList paths{dir.filePath(QStringLiteral("in")), dir.filePath(QStringLiteral("x"))};
    Transcript whole(dir.path());
    QCOMPARE(walkerFor(paths).walk(&whole), NxDirectoryWalker::Outcome::Finished);

    Transcript halting(dir.path());
    halting.pauseAfterEach = true;
    NxDirectoryWalker walker = walkerFor(paths);
    int pauses = 0;
    while (walker.walk(&halting) == NxDirectoryWalker::Outcome::Paused)
        ++pauses;
    QVERIFY(pauses >= 10);
    halting.lines.removeAll(QStringLiteral("done"));
    QCOMPARE(halting.lines, whole.lines);
}

void tst_NxDirectoryWalker::aCancelledWalkStopsAtOnce()
{
    const NxTempDir dir;
    for (int i = 0; i < 100; ++i)
        dir.write(QStringLiteral("in/%1.mp4").arg(i));
    Transcript transcript(dir.path());
    transcript.cancelAfter = 3; // While the folder is read.
    QCOMPARE(walkerFor({dir.filePath(QStringLiteral("in"))}).walk(&transcript),
             NxDirectoryWalker::Outcome::Cancelled);
    QCOMPARE(transcript.lines, QStringList(QStringLiteral("enter in")));
}

void tst_NxDirectoryWalker::nothingIsTouched()
{
    const NxTempDir dir;
    dir.write(QStringLiteral("in/a.mp4"));
    dir.write(QStringLiteral("in/sub/.h.mp4"));
    RawFiles::makePipe(dir.filePath(QStringLiteral("in/p.mp4")));
    RawFiles::link(QStringLiteral(".."), dir.filePath(QStringLiteral("in/sub/up")));
    const NxFootageGuard guard(dir.path());
    QVERIFY(!walk(dir, {dir.filePath(QStringLiteral("in"))}).isEmpty());
    NX_VERIFY_UNTOUCHED(guard);
}

NX_TEST_MAIN(tst_NxDirectoryWalker)
#include "tst_NxDirectoryWalker.moc"
