// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Yard.h"

#include <Support/NxFootageGuard.h>
#include <Support/NxTestMain.h>

#include <NxVBLEngine/NxEmbeddedEngine.h>

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QtTest>

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Every file with what it holds.
QMap<QString, QByteArray> filesIn(const QString &folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden | QDir::System,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        files.insert(path, contentOf(path));
    }
    return files;
}

void overwrite(const QString &path, qint64 at, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.seek(at));
    QCOMPARE(file.write(bytes), bytes.size());
}

void allowEverybody(const QString &path)
{
    const QFileDevice::Permissions all = QFileDevice::ReadOther | QFileDevice::WriteOther
                                         | QFileDevice::ReadUser | QFileDevice::WriteUser;
    const bool isFolder = QFileInfo(path).isDir();
    const QFileDevice::Permissions enter =
        isFolder ? QFileDevice::ExeOther | QFileDevice::ExeUser : QFileDevice::Permissions();
    QVERIFY(QFile::setPermissions(path, all | enter));
}

void takeWriting(const QString &path)
{
    const QFileDevice::Permissions writing = QFileDevice::WriteOwner | QFileDevice::WriteUser
                                             | QFileDevice::WriteGroup | QFileDevice::WriteOther;
    QVERIFY(QFile::setPermissions(path, QFile::permissions(path) & ~writing));
}

} // namespace

/// Projects that cannot be opened, or not be changed: a clear message, and nothing is lost.
class tst_ProjectTrouble : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void whatIsNoProjectIsLeftAlone_data();
    void whatIsNoProjectIsLeftAlone();
    void aProjectThatIsNotThereCannotBeListed();
    void aPlaceWhereNoFileCanBeIsTold_data();
    void aPlaceWhereNoFileCanBeIsTold();
    void aNameThatIsNoUtf8IsNoProject();
    void aNewerProjectIsLeftAlone();
    void aDamagedProjectShowsWhatCanBeRead_data();
    void aDamagedProjectShowsWhatCanBeRead();
    void aProjectThatIsOpenElsewhereIsOnlyLookedAt();
    void aWriteProtectedProjectIsOnlyLookedAt();
    void aProjectInAWriteProtectedFolderIsOnlyLookedAt();
    void noProjectIsMadeWithoutPermission();
    void aProjectThatMayNotBeReadIsTold();
    void footageThatVanishesDuringTheImportIsTold();

private:
    void importMany() const;

    std::unique_ptr<Yard> m_yard;
    std::unique_ptr<NxFootageGuard> m_guard;
};

void tst_ProjectTrouble::init()
{
    m_yard = std::make_unique<Yard>();
    m_yard->clip(QStringLiteral("a.mp4"));
    m_guard = std::make_unique<NxFootageGuard>(m_yard->footage());
}

void tst_ProjectTrouble::cleanup()
{
    if (m_guard)
        NX_VERIFY_UNTOUCHED(*m_guard);
    m_guard.reset();
    m_yard.reset();
}

void tst_ProjectTrouble::importMany() const
{
    constexpr int folders = 20;
    constexpr int files = 100;
    m_yard->manyClips(folders, files);
    VERIFY_CODE(m_yard->run("import", {m_yard->footage()}), 0);
}

void tst_ProjectTrouble::whatIsNoProjectIsLeftAlone_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("cause");

    QTest::newRow("a text") << QByteArray("My diary") << QByteArray("not a Brevano project");
    QTest::newRow("an empty file") << QByteArray() << QByteArray("not a Brevano project");
    QTest::newRow("only zeros") << QByteArray(40000, '\0') << QByteArray("only zeros");
    QTest::newRow("a film") << QByteArray("\0\0\0\x18") + "ftypmp42" + QByteArray(9000, 'x')
                            << QByteArray("not a Brevano project");
    QTest::newRow("a database of another program")
        << QByteArray("SQLite format 3\0", 16) + QByteArray("\x10\0\1\1\0", 5)
               + QByteArray(4075, '\0')
        << QByteArray("another program");
}

void tst_ProjectTrouble::whatIsNoProjectIsLeftAlone()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, cause);

    m_yard->folder().write(QStringLiteral("Film.brevano"), content);
    const auto before = filesIn(m_yard->folder().path());
    const QString clip = m_yard->footage(QStringLiteral("a.mp4"));
    const QVector<QPair<const char *, QStringList>> commands{
        {"list", {}},
        {"import", {clip}},
        {"mkdir", {QStringLiteral("Day")}},
        {"remove", {clip}},
        {"undo", {}},
        {"check", {}},
        {"backup", {m_yard->path(QStringLiteral("Copy.brevano"))}},
    };
    for (const auto &[command, rest] : commands) {
        const ProgramResult result = m_yard->run(command, rest);
        VERIFY_CODE(result, 4);
        QVERIFY2(result.errors.startsWith("brevano: " + m_yard->project().toUtf8() + ": "),
                 result.story().constData());
        QVERIFY2(result.said(cause.constData()), result.story().constData());
        QCOMPARE(result.output, QByteArray());
    }
    QCOMPARE(filesIn(m_yard->folder().path()), before);
}

void tst_ProjectTrouble::aProjectThatIsNotThereCannotBeListed()
{
    const auto before = filesIn(m_yard->folder().path());
    for (const char *command : {"list", "check", "undo", "redo"}) {
        const ProgramResult result = m_yard->run(command);
        VERIFY_CODE(result, 4);
        QVERIFY2(result.said("Film.brevano: "), result.story().constData());
    }
    QCOMPARE(filesIn(m_yard->folder().path()), before);
}

void tst_ProjectTrouble::aPlaceWhereNoFileCanBeIsTold_data()
{
    QTest::addColumn<QString>("project");

    QTest::newRow("a folder") << "footage";
    QTest::newRow("a folder that is not there") << "none/Film.brevano";
    QTest::newRow("below a file") << "footage/a.mp4/Film.brevano";
    QTest::newRow("a link to nowhere") << "link.brevano";
    QTest::newRow("no name") << "";
    QTest::newRow("a name that is too long") << QString(300, QLatin1Char('x'));
    QTest::newRow("a path of 4,000 characters")
        << QString(20, QLatin1Char('x')).append(QLatin1Char('/')).repeated(190)
               + QLatin1String("Film.brevano");
}

void tst_ProjectTrouble::aPlaceWhereNoFileCanBeIsTold()
{
    QFETCH(QString, project);

    QVERIFY(QFile::link(m_yard->path(QStringLiteral("none/x")),
                        m_yard->path(QStringLiteral("link.brevano"))));
    const auto before = filesIn(m_yard->folder().path());
    for (const char *command : {"import", "list"}) {
        QStringList words{QLatin1String(command), project};
        if (words.constFirst() == QLatin1String("import"))
            words.append(m_yard->footage(QStringLiteral("a.mp4")));
        const ProgramResult result = ProgramRun::run(words, m_yard->folder().path());
        VERIFY_CODE(result, 4);
        QVERIFY2(result.said(project.toUtf8().constData()), result.story().constData());
        QCOMPARE(result.errors.count('\n'), 1);
    }
    QCOMPARE(filesIn(m_yard->folder().path()), before);
}

void tst_ProjectTrouble::aNameThatIsNoUtf8IsNoProject()
{
    const auto before = filesIn(m_yard->folder().path());
    const ProgramResult result = ProgramRun::runShell(
        QStringLiteral("exec \"$BREVANO\" import --no-read \"$(printf 'caf\\351.brevano')\" "
                       "\"$1\""),
        {m_yard->footage()}, m_yard->folder().path());
    VERIFY_CODE(result, 4);
    QCOMPARE(result.errors, QByteArray("brevano: caf\\xe9.brevano: the name is not UTF-8\n"));
    QCOMPARE(filesIn(m_yard->folder().path()), before);
}

void tst_ProjectTrouble::aNewerProjectIsLeftAlone()
{
    constexpr qint64 schemaVersionAt = 60; // In the header of the file, four bytes.
    VERIFY_CODE(m_yard->run("import", {m_yard->footage()}), 0);
    overwrite(m_yard->project(), schemaVersionAt, QByteArray("\0\0\x27\x0f", 4));
    const auto before = filesIn(m_yard->folder().path());
    for (const char *command : {"list", "undo", "check"}) {
        const ProgramResult result = m_yard->run(command);
        VERIFY_CODE(result, 4);
        QVERIFY2(result.said("Film.brevano: was made by a newer version"),
                 result.story().constData());
        QVERIFY2(result.said("9999"), result.story().constData());
    }
    VERIFY_CODE(m_yard->run("import", {m_yard->footage()}), 4);
    QCOMPARE(filesIn(m_yard->folder().path()), before);
}

void tst_ProjectTrouble::aDamagedProjectShowsWhatCanBeRead_data()
{
    QTest::addColumn<bool>("cut");

    QTest::newRow("cut in half") << true;
    QTest::newRow("zeros in the middle") << false;
}

void tst_ProjectTrouble::aDamagedProjectShowsWhatCanBeRead()
{
    QFETCH(bool, cut);

    m_guard.reset(); // Footage is added first.
    importMany();
    const NxFootageGuard footage(m_yard->footage());
    const int all = m_yard->listed().size();
    const qint64 size = QFileInfo(m_yard->project()).size();
    if (cut)
        QVERIFY(QFile::resize(m_yard->project(), size / 2));
    else
        overwrite(m_yard->project(), size / 2, QByteArray(int(size / 8), '\0'));
    const QByteArray content = contentOf(m_yard->project());

    const ProgramResult list = m_yard->run("list", {QStringLiteral("--json")});
    VERIFY_CODE(list, 3);
    QVERIFY2(list.said("Film.brevano: is damaged"), list.story().constData());
    const int shown = Yard::mediaOf(list).size();
    QVERIFY(shown > 0);
    QVERIFY(shown < all);

    const ProgramResult check = m_yard->run("check", {QStringLiteral("--json")});
    VERIFY_CODE(check, 3);
    QVERIFY(check.summary().value(QLatin1String("integrity")).toInt() > 0);
    QVERIFY(check.values("problem", "problem").contains(QStringLiteral("integrity")));

    for (const char *command : {"import", "mkdir"}) {
        const ProgramResult change = m_yard->run(command, {QStringLiteral("footage")});
        VERIFY_CODE(change, 4);
        QVERIFY2(change.said("Film.brevano: is damaged"), change.story().constData());
    }
    const QString copy = m_yard->path(QStringLiteral("Copy.brevano"));
    VERIFY_CODE(m_yard->run("backup", {copy}), 4);
    QVERIFY(!QFileInfo::exists(copy));
    QCOMPARE(contentOf(m_yard->project()), content); // The original is kept as it is.
    NX_VERIFY_UNTOUCHED(footage);
}

void tst_ProjectTrouble::aProjectThatIsOpenElsewhereIsOnlyLookedAt()
{
    VERIFY_CODE(m_yard->run("import", {m_yard->footage()}), 0);
    NxEmbeddedEngine::Options options;
    options.backups = false;
    NxEmbeddedEngine engine(options); // This process is the one that holds it.
    const NxResult<INxProject *> opened =
        engine.openProject(m_yard->project(), NxProjectOpenMode::ReadWrite);
    QVERIFY2(opened, qPrintable(opened.errorText()));

    const QString holder = QString::number(QCoreApplication::applicationPid());
    const QVector<QPair<const char *, QStringList>> changes{
        {"import", {m_yard->footage()}},
        {"rename", {QStringLiteral("a.mp4"), QStringLiteral("b")}},
        {"undo", {}},
    };
    for (const auto &[command, rest] : changes) {
        const ProgramResult refused = m_yard->run(command, rest);
        VERIFY_CODE(refused, 4);
        QVERIFY2(refused.said("Film.brevano: "), refused.story().constData());
        QVERIFY2(refused.said(holder.toUtf8().constData()), refused.story().constData());
        QCOMPARE(refused.output, QByteArray());
    }
    QCOMPARE(m_yard->shown(), QStringList{QStringLiteral("footage: a.mp4")});
    VERIFY_CODE(m_yard->run("check"), 0);
    const QString copy = m_yard->path(QStringLiteral("Copy.brevano"));
    VERIFY_CODE(m_yard->run("backup", {copy}), 0);
    VERIFY_CODE(ProgramRun::run({QStringLiteral("check"), copy}), 0);

    const NxResult<void> closed = engine.closeProject();
    QVERIFY2(closed, qPrintable(closed.errorText()));
    VERIFY_CODE(m_yard->run("undo"), 0);
}

void tst_ProjectTrouble::aWriteProtectedProjectIsOnlyLookedAt()
{
    VERIFY_CODE(m_yard->run("import", {m_yard->footage()}), 0);
    allowEverybody(m_yard->folder().path());
    takeWriting(m_yard->project());
    const QByteArray content = contentOf(m_yard->project());
    const auto run = [this](const char *command, const QStringList &rest) {
        return ProgramRun::run(QStringList{QLatin1String(command), m_yard->project()} + rest, {},
                               ProgramRun::User::Nobody);
    };
    VERIFY_CODE(run("list", {}), 0);
    VERIFY_CODE(run("check", {}), 0);
    for (const char *command : {"import", "mkdir"}) {
        const ProgramResult refused = run(command, {m_yard->footage()});
        VERIFY_CODE(refused, 4);
        QVERIFY2(refused.said("Film.brevano: "), refused.story().constData());
    }
    QCOMPARE(contentOf(m_yard->project()), content);
}

void tst_ProjectTrouble::aProjectInAWriteProtectedFolderIsOnlyLookedAt()
{
    const QString folder = m_yard->folder().makeDir(QStringLiteral("archive"));
    const QString project = folder + QStringLiteral("/Film.brevano");
    VERIFY_CODE(ProgramRun::run({QStringLiteral("import"), QStringLiteral("--no-read"), project,
                                 m_yard->footage()}),
                0);
    allowEverybody(m_yard->folder().path());
    allowEverybody(folder);
    allowEverybody(project);
    takeWriting(folder);
    const NxFootageGuard archive(folder);
    const auto run = [&project](const char *command, const QStringList &rest) {
        return ProgramRun::run(QStringList{QLatin1String(command), project} + rest, {},
                               ProgramRun::User::Nobody);
    };
    VERIFY_CODE(run("list", {}), 0);
    const ProgramResult refused = run("mkdir", {QStringLiteral("Day")});
    VERIFY_CODE(refused, 4);
    QVERIFY2(refused.said("Film.brevano: "), refused.story().constData());
    NX_VERIFY_UNTOUCHED(archive);
}

void tst_ProjectTrouble::noProjectIsMadeWithoutPermission()
{
    const QString folder = m_yard->folder().makeDir(QStringLiteral("archive"));
    allowEverybody(m_yard->folder().path());
    allowEverybody(folder);
    takeWriting(folder);
    const NxFootageGuard archive(folder);
    const QString project = folder + QStringLiteral("/Film.brevano");
    const ProgramResult refused = ProgramRun::run(
        {QStringLiteral("import"), QStringLiteral("--no-read"), project, m_yard->footage()}, {},
        ProgramRun::User::Nobody);
    VERIFY_CODE(refused, 4);
    QVERIFY2(refused.said("archive/Film.brevano: cannot be made: "), refused.story().constData());
    NX_VERIFY_UNTOUCHED(archive);
}

void tst_ProjectTrouble::aProjectThatMayNotBeReadIsTold()
{
    VERIFY_CODE(m_yard->run("import", {m_yard->footage()}), 0);
    allowEverybody(m_yard->folder().path());
    QVERIFY(QFile::setPermissions(m_yard->project(), {}));
    const ProgramResult refused =
        ProgramRun::run({QStringLiteral("list"), m_yard->project()}, {}, ProgramRun::User::Nobody);
    VERIFY_CODE(refused, 4);
    QVERIFY2(refused.said("Film.brevano: cannot be opened: permission denied"),
             refused.story().constData());
}

void tst_ProjectTrouble::footageThatVanishesDuringTheImportIsTold()
{
    m_guard.reset(); // The footage goes away.
    constexpr int folders = 30;
    constexpr int files = 150;
    m_yard->manyClips(folders, files);
    ProgramRun import;
    import.begin(
        {QStringLiteral("import"), QStringLiteral("--no-read"), m_yard->project(),
         m_yard->footage(), QStringLiteral("--json")});
    QVERIFY(import.waitForLine());
    QVERIFY(QFile::rename(m_yard->footage(), m_yard->path(QStringLiteral("away"))));
    const ProgramResult result = import.end();
    QVERIFY2(result.code == 0 || result.code == 3, result.story().constData());
    const QStringList told = result.values("added", "path");
    const QJsonObject summary = result.summary();
    QCOMPARE(summary.value(QLatin1String("added")).toInt(), told.size());
    const int unreadable = summary.value(QLatin1String("unreadable")).toInt();
    QCOMPARE(result.code, unreadable > 0 ? 3 : 0);
    QCOMPARE(result.values("report", "verdict").size(), unreadable);
    QCOMPARE(m_yard->paths(), told);

    const ProgramResult check = m_yard->run("check", {QStringLiteral("--json")});
    VERIFY_CODE(check, 3);
    QCOMPARE(check.summary().value(QLatin1String("missing")).toInt(), told.size());
    QCOMPARE(check.summary().value(QLatin1String("integrity")).toInt(), 0);
    QVERIFY(QFile::rename(m_yard->path(QStringLiteral("away")), m_yard->footage()));
    VERIFY_CODE(m_yard->run("import", {m_yard->footage()}), 0);
    QCOMPARE(m_yard->paths().size(), folders * files + 1);
    VERIFY_CODE(m_yard->run("check"), 0);
}

NX_TEST_MAIN(tst_ProjectTrouble)
#include "tst_ProjectTrouble.moc"
