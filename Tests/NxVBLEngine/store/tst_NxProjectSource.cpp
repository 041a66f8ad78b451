// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectStore.h>

#include "StoreSamples.h"

#include <NxVBLEngine/Support/NxAsNobody.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <sqlite3.h>

#include <functional>

#include <sys/stat.h>

using namespace StoreSamples;

using Change = std::function<QByteArray(QByteArray)>;
Q_DECLARE_METATYPE(Change)

namespace {

constexpr int MediaCount = 3000;

QByteArray databaseOfAnotherProgram()
{
    const NxTempDir folder;
    const QString path = folder.filePath(QStringLiteral("other.db"));
    sqlite3 *database = nullptr;
    sqlite3_open(QFile::encodeName(path).constData(), &database);
    sqlite3_exec(database, "CREATE TABLE media(id)", nullptr, nullptr, nullptr);
    sqlite3_close(database);
    return readFile(path);
}

QByteArray withVersion(QByteArray project, quint32 version)
{
    constexpr int userVersionOffset = 60;
    qToBigEndian(version, project.data() + userVersionOffset);
    return project;
}

/// Opens, loads and closes a project and tells how that went: "why read-only / media".
QString tellOpening(const QString &path)
{
    auto store = NxProjectStore::open(path, {});
    if (!store)
        return store.errorText();
    const NxResult<NxProjectContents> contents = (*store)->load();
    if (!contents)
        return contents.errorText();
    return QStringLiteral("%1 / %2").arg((*store)->readOnlyReason()).arg(contents->media.size());
}

} // namespace

class tst_NxProjectSource : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void whatIsNoProjectIsRefusedAndLeftAlone_data();
    void whatIsNoProjectIsRefusedAndLeftAlone();
    void whatIsNoFileIsRefused();
    void aDamagedProjectIsReadAsFarAsItGoesAndLeftAlone_data();
    void aDamagedProjectIsReadAsFarAsItGoesAndLeftAlone();
    void aDamagedProjectWithALogIsLeftAlone();
    void aDamagedProjectIsNotCopied();
    void aWriteProtectedFileIsReadWithTheReason();
    void aFileInAWriteProtectedFolderIsReadWithTheReason();
    void aWriteProtectedFolderWithALogIsRead();
    void aWriteProtectedFolderTakesNoNewProject();
    void aFileThatMayNotBeReadTellsSo();
    void aFolderThatMayNotBeEnteredTellsSo();

private:
    NxTempDir m_sampleFolder;
    QByteArray m_sample; ///< A sound project of some thousand media.
    QScopedPointer<NxTempDir> m_folder;
    QString m_path;
};

void tst_NxProjectSource::initTestCase()
{
    const QString path = m_sampleFolder.filePath(QStringLiteral("sample.brevano"));
    std::vector<NxStoreBatch> batches = session();
    batches.push_back(addMedia(1001, MediaCount));
    makeProject(path, batches);
    m_sample = readFile(path);
    QVERIFY(m_sample.size() > 300000);
}

void tst_NxProjectSource::init()
{
    m_folder.reset(new NxTempDir);
    m_path = m_folder->filePath(QStringLiteral("Media.brevano"));
}

void tst_NxProjectSource::whatIsNoProjectIsRefusedAndLeftAlone_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("empty") << QByteArray()
                           << QStringLiteral("is not a Brevano project: the file is empty");
    QTest::newRow("zeros") << QByteArray(100000, '\0')
                           << QStringLiteral("is damaged: its beginning holds only zeros");
    QTest::newRow("a few zeros") << QByteArray(7, '\0')
                                 << QStringLiteral("is damaged: its beginning holds only zeros");
    QTest::newRow("a text") << QByteArray(
        "Dear diary,\n") << QStringLiteral("is not a Brevano project: it is another kind of file");
    QTest::newRow("cut within the header")
        << m_sample.left(60)
        << QStringLiteral("is not a Brevano project: it is another kind of file");
    QTest::newRow("a database of another program")
        << databaseOfAnotherProgram()
        << QStringLiteral("is not a Brevano project: it is a database of another program");
    QTest::newRow("a newer version")
        << withVersion(m_sample, 7)
        << QStringLiteral("was made by a newer version (schema 7, this program knows 3)");
    QTest::newRow("nothing but the header")
        << m_sample.left(100) << QStringLiteral("is damaged: its structure cannot be read");
    QByteArray noSchema = m_sample;
    noSchema.replace(100, 3996, QByteArray(3996, '\0'));
    QTest::newRow("no structure") << noSchema
                                  << QStringLiteral("is damaged: its structure cannot be read");
}

void tst_NxProjectSource::whatIsNoProjectIsRefusedAndLeftAlone()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, sentence);
    writeFile(m_path, content);
    const auto before = filesIn(m_folder->path());
    for (const bool readOnly : {false, true}) {
        NxProjectStoreOptions options;
        options.readOnly = readOnly;
        const auto store = NxProjectStore::open(m_path, options);
        QVERIFY(!store);
        QCOMPARE(store.errorText(), m_path + QStringLiteral(": ") + sentence);
        QCOMPARE(filesIn(m_folder->path()), before);
    }
}

void tst_NxProjectSource::whatIsNoFileIsRefused()
{
    const auto refusal = [](const QString &path) {
        return NxProjectStore::open(path, {}).errorText().mid(path.size());
    };
    QCOMPARE(refusal(m_path), QStringLiteral(": cannot be opened: there is no such file"));
    QCOMPARE(refusal(m_folder->path()), QStringLiteral(": cannot be opened: it is a folder"));
    QCOMPARE(refusal(QLatin1Char('/') + QString(4000, QLatin1Char('a'))),
             QStringLiteral(": cannot be opened: its path is too long"));
    const QString pipe = m_folder->filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QCOMPARE(refusal(pipe), QStringLiteral(": cannot be opened: it is not a file"));
    const QString circle = m_folder->filePath(QStringLiteral("circle"));
    QVERIFY(QFile::link(circle, circle));
    QVERIFY(!refusal(circle).isEmpty());
}

void tst_NxProjectSource::aDamagedProjectIsReadAsFarAsItGoesAndLeftAlone_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("leastMedia");
    const auto cutAt = [](double part) {
        return Change(
            [part](const QByteArray &whole) { return whole.left(int(whole.size() * part)); });
    };
    QTest::newRow("cut at a third") << cutAt(0.33) << 500;
    QTest::newRow("cut in half") << cutAt(0.5) << 1000;
    QTest::newRow("cut shortly before its end") << cutAt(0.98) << 2000;
    QTest::newRow("its last byte missing")
        << Change([](const QByteArray &whole) { return whole.chopped(1); }) << 2000;
    QTest::newRow("zeros from the middle on") << Change([](QByteArray whole) {
        const int half = whole.size() / 2;
        return whole.replace(half, whole.size() - half, QByteArray(whole.size() - half, '\0'));
    }) << 1000;
    QTest::newRow("zeros in the middle: both sides are kept") << Change([](QByteArray whole) {
        return whole.replace(whole.size() / 2 / 4096 * 4096, 8192, QByteArray(8192, '\0'));
    }) << MediaCount - 200;
}

void tst_NxProjectSource::aDamagedProjectIsReadAsFarAsItGoesAndLeftAlone()
{
    QFETCH(Change, change);
    QFETCH(int, leastMedia);
    writeFile(m_path, change(m_sample));
    const auto before = filesIn(m_folder->path());
    {
        auto store = NxProjectStore::open(m_path, {});
        QVERIFY2(store, qUtf8Printable(store.errorText()));
        const NxResult<NxProjectContents> contents = (*store)->load();
        QVERIFY2(contents, qUtf8Printable(contents.errorText()));
        QVERIFY2(contents->damage.startsWith(m_path + QStringLiteral(": is damaged: ")),
                 qUtf8Printable(contents->damage));
        QVERIFY((*store)->isReadOnly());
        QCOMPARE(
            (*store)->readOnlyReason().section(QLatin1Char(';'), 0, 0).left(m_path.size() + 12),
            contents->damage.left(m_path.size() + 12));
        QVERIFY2(int(contents->media.size()) >= leastMedia,
                 qPrintable(QString::number(contents->media.size())));
        QVERIFY(int(contents->media.size()) <= MediaCount + 56);
        QCOMPARE(filesIn(m_folder->path()), before);

        (*store)->write(addMedia(9001, 5));
        QVERIFY(!commitAndWait(store->get()));
        QVERIFY(!(*store)->integrityProblems().isEmpty());
        QVERIFY((*store)->close());
    }
    QCOMPARE(filesIn(m_folder->path()), before);
}

void tst_NxProjectSource::aDamagedProjectWithALogIsLeftAlone()
{
    makeProject(m_path, {addMedia(1, MediaCount)});
    // As a killed writer leaves it: the log beside a file that does not know of it yet.
    const QString folder = m_folder->makeDir(QStringLiteral("killed"));
    const QString killed = folder + QLatin1String("/Media.brevano");
    {
        auto store = NxProjectStore::open(m_path, {});
        QVERIFY2(store, qUtf8Printable(store.errorText()));
        (*store)->write(addMedia(MediaCount + 1, 10));
        QVERIFY(commitAndWait(store->get()));
        QVERIFY(QFile::copy(m_path + QLatin1String("-wal"), killed + QLatin1String("-wal")));
        QVERIFY((*store)->close());
    }
    const QString whole = m_folder->filePath(QStringLiteral("whole"));
    makeProject(whole, {addMedia(1, MediaCount)});
    QByteArray broken = readFile(whole);
    broken.replace(broken.size() / 2 / 4096 * 4096, 4096, QByteArray(4096, '\xAB'));
    writeFile(killed, broken);
    const auto before = filesIn(folder);
    QVERIFY(before.value(QStringLiteral("Media.brevano-wal")).size() > 0);
    {
        auto store = NxProjectStore::open(killed, {});
        QVERIFY2(store, qUtf8Printable(store.errorText()));
        const NxResult<NxProjectContents> contents = (*store)->load();
        QVERIFY2(contents, qUtf8Printable(contents.errorText()));
        QVERIFY(!contents->damage.isEmpty());
        QVERIFY((*store)->isReadOnly());
        // The log was read: its media come on top of what the file gives.
        QVERIFY(contents->media.size() > MediaCount / 2);
        QCOMPARE(contents->media.back().id, qint64(MediaCount + 10));
        (*store)->write(addMedia(9001, 5));
        QVERIFY((*store)->close());
    }
    QCOMPARE(filesIn(folder), before);
}

void tst_NxProjectSource::aDamagedProjectIsNotCopied()
{
    writeFile(m_path, m_sample.left(m_sample.size() / 2));
    auto store = NxProjectStore::open(m_path, {});
    QVERIFY2(store, qUtf8Printable(store.errorText()));
    const QString copy = m_folder->filePath(QStringLiteral("Copy.brevano"));
    const NxResult<void> saved = saveCopyAndWait(store->get(), copy);
    QVERIFY2(saved.errorText().contains(QLatin1String("is damaged")),
             qUtf8Printable(saved.errorText()));
    QVERIFY(!QFileInfo::exists(copy));
}

void tst_NxProjectSource::aWriteProtectedFileIsReadWithTheReason()
{
    makeProject(m_path, {addMedia(1, 9)});
    QVERIFY(QFile::setPermissions(m_path, QFile::ReadOwner));
    NxAsNobody::give(m_folder->path());
    const auto before = filesIn(m_folder->path());
    QCOMPARE(NxAsNobody::run([this] { return tellOpening(m_path); }),
             m_path + QStringLiteral(": is write-protected / 9"));
    QCOMPARE(filesIn(m_folder->path()), before);
}

void tst_NxProjectSource::aFileInAWriteProtectedFolderIsReadWithTheReason()
{
    makeProject(m_path, {addMedia(1, 9)});
    NxAsNobody::give(m_folder->path());
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::ExeOwner));
    const auto before = filesIn(m_folder->path());
    QCOMPARE(NxAsNobody::run([this] { return tellOpening(m_path); }),
             m_path + QStringLiteral(": stands in a folder that cannot be written / 9"));
    QCOMPARE(filesIn(m_folder->path()), before);
}

void tst_NxProjectSource::aWriteProtectedFolderWithALogIsRead()
{
    const QString folder = m_folder->makeDir(QStringLiteral("card"));
    const QString path = folder + QLatin1String("/Media.brevano");
    {
        auto store = NxProjectStore::create(m_path, {});
        QVERIFY2(store, qUtf8Printable(store.errorText()));
        (*store)->write(addMedia(1, 9));
        QVERIFY(commitAndWait(store->get()));
        QVERIFY(QFile::copy(m_path, path));
        QVERIFY(QFile::copy(m_path + QLatin1String("-wal"), path + QLatin1String("-wal")));
    }
    NxAsNobody::give(m_folder->path());
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    const auto before = filesIn(folder);
    QCOMPARE(NxAsNobody::run([path] { return tellOpening(path); }),
             path + QStringLiteral(": stands in a folder that cannot be written / 9"));
    QCOMPARE(filesIn(folder), before);
}

void tst_NxProjectSource::aWriteProtectedFolderTakesNoNewProject()
{
    NxAsNobody::give(m_folder->path());
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::ExeOwner));
    QCOMPARE(NxAsNobody::run([this] { return NxProjectStore::create(m_path, {}).errorText(); }),
             m_path + QStringLiteral(": cannot be made: its folder is write-protected"));
    QVERIFY(filesIn(m_folder->path()).isEmpty());
}

void tst_NxProjectSource::aFileThatMayNotBeReadTellsSo()
{
    makeProject(m_path, {});
    QVERIFY(QFile::setPermissions(m_path, QFile::Permissions()));
    NxAsNobody::give(m_folder->path());
    QCOMPARE(NxAsNobody::run([this] { return tellOpening(m_path); }),
             m_path + QStringLiteral(": cannot be opened: permission denied"));
    QVERIFY(QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner));
}

void tst_NxProjectSource::aFolderThatMayNotBeEnteredTellsSo()
{
    const QString folder = m_folder->makeDir(QStringLiteral("closed"));
    const QString path = folder + QLatin1String("/Media.brevano");
    makeProject(path, {});
    NxAsNobody::give(m_folder->path());
    QVERIFY(QFile::setPermissions(folder, QFile::Permissions()));
    QCOMPARE(NxAsNobody::run([path] { return tellOpening(path); }),
             path + QStringLiteral(": cannot be opened: permission denied"));
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

NX_TEST_MAIN(tst_NxProjectSource)
#include "tst_NxProjectSource.moc"
