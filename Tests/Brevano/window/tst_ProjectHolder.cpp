// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ProjectHolder.h>
#include <Brevano/window/WindowMemory.h>
#include <NxCore/NxMemorySettingsStore.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaFolderEventObserver.h>
#include <NxVBLModel/INxMediaLibrary.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/INxProject.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QDir>
#include <QFile>
#include <QtTest>

using namespace NXVBLMODEL;

namespace {

NxEmbeddedEngine::Options options(const NxTempDir &dir)
{
    NxEmbeddedEngine::Options options;
    options.backups = false;
    options.readsFootage = false;
    options.pictureFolder = dir.filePath(QStringLiteral("pictures"));
    return options;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class tst_ProjectHolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void nothingIsOpenAtFirst();
    void aNewProjectIsOpenWithItsPresenters();
    void aProjectIsNotMadeOverAFile();
    void aProjectThatIsNotThereIsRefused();
    void anEmptyPathIsRefused();
    void theOpenProjectIsNotOpenedAgain();
    void anotherProjectTakesThePlaceOfTheOpenOne();
    void theProjectBeforeComesBackWhenTheOtherCannotBeOpened();
    void viewsLetGoWhileThePresentersAreStillThere();
    void aProjectThatIsStillObservedStaysOpen();
    void aHeldProjectIsOpenToBeLookedAt();
    void whoOnlyLooksChangesAndRemembersNothing();
    void aDamagedProjectTellsWhatIsMissing();
    void openProjectsAreRecent();
    void aCopyHoldsWhatWasDone();
    void whyThereIsNoCopyIsTold();
    void everythingIsWrittenWhenTheHolderGoes();

private:
    QString path(const char *name) const;
    static QStringList folders(const ProjectHolder &holder);
    static void addFolder(const ProjectHolder &holder, const QString &name);
    static INxFolderMediaManager *manager(const ProjectHolder &holder);
    NxResult<void> copy(const QString &to);

    std::unique_ptr<NxTempDir> m_dir;
    std::unique_ptr<WindowMemory> m_memory;
    std::unique_ptr<ProjectHolder> m_holder;
};

void tst_ProjectHolder::init()
{
    m_dir = std::make_unique<NxTempDir>();
    m_memory = std::make_unique<WindowMemory>(std::make_unique<NxMemorySettingsStore>());
    m_holder = std::make_unique<ProjectHolder>(m_memory.get(), options(*m_dir));
}

void tst_ProjectHolder::cleanup()
{
    m_holder.reset();
    m_memory.reset();
    m_dir.reset();
}

QString tst_ProjectHolder::path(const char *name) const
{
    return m_dir->filePath(QLatin1String(name));
}

INxFolderMediaManager *tst_ProjectHolder::manager(const ProjectHolder &holder)
{
    return holder.project()->mediaLibrary()->mediaManager(mctMedia)->folderManager();
}

QStringList tst_ProjectHolder::folders(const ProjectHolder &holder)
{
    QStringList names;
    for (const INxFolderMedia *folder : manager(holder)->folder(fidRoot)->childFolders())
        names.append(folder->name());
    return names;
}

void tst_ProjectHolder::addFolder(const ProjectHolder &holder, const QString &name)
{
    QVERIFY(manager(holder)->addFolder(manager(holder)->folder(fidRoot), name));
}

NxResult<void> tst_ProjectHolder::copy(const QString &to)
{
    bool isDone = false;
    NxResult<void> answer;
    m_holder->saveCopy(to, [&](const NxResult<void> &result) {
        answer = result;
        isDone = true;
    });
    const bool isTold = QTest::qWaitFor([&isDone] { return isDone; }, NxPatience);
    return isTold ? answer : NxError{QStringLiteral("?")};
}

void tst_ProjectHolder::nothingIsOpenAtFirst()
{
    QVERIFY(!m_holder->project());
    QVERIFY(!m_holder->presenter());
    QCOMPARE(m_holder->path(), QString());
    QCOMPARE(m_holder->title(), QString());
    QCOMPARE(m_holder->damage(), QString());
    QVERIFY(!m_holder->isReadOnly());
    QVERIFY(bool(m_holder->close()));
}

void tst_ProjectHolder::aNewProjectIsOpenWithItsPresenters()
{
    const QSignalSpy opened(m_holder.get(), &ProjectHolder::sigOpened);
    const NxResult<void> made = m_holder->create(path("my.film.brevano"));
    QVERIFY2(bool(made), qPrintable(made.errorText()));
    QCOMPARE(opened.size(), 1);
    QCOMPARE(m_holder->path(), path("my.film.brevano"));
    QCOMPARE(m_holder->title(), QStringLiteral("my.film"));
    QCOMPARE(m_holder->presenter()->mediaLibrary(), m_holder->project()->mediaLibrary());
    QVERIFY(!m_holder->isReadOnly());
    QCOMPARE(m_holder->readOnlyReason(), QString());
    QVERIFY(!ProjectHolder::isMissing(path("my.film.brevano")));
}

void tst_ProjectHolder::aProjectIsNotMadeOverAFile()
{
    const QString file = m_dir->write(QStringLiteral("letter.txt"), "dear");
    QVERIFY(bool(m_holder->create(path("film.brevano"))));
    const NxResult<void> made = m_holder->create(file);
    QCOMPARE(made.errorText(),
             QStringLiteral("\"%1\" exists already.").arg(QDir::toNativeSeparators(file)));
    QCOMPARE(m_holder->path(), path("film.brevano"));
    QCOMPARE(contentOf(file), QByteArray("dear"));
}

void tst_ProjectHolder::aProjectThatIsNotThereIsRefused()
{
    QVERIFY(bool(m_holder->create(path("film.brevano"))));
    const QSignalSpy leaving(m_holder.get(), &ProjectHolder::sigAboutToClose);
    const QString gone = path("gone.brevano");
    QVERIFY(ProjectHolder::isMissing(gone));
    QCOMPARE(m_holder->open(gone).errorText(),
             QStringLiteral("There is no project \"%1\".").arg(QDir::toNativeSeparators(gone)));
    QVERIFY(!QFile::exists(gone));
    QCOMPARE(leaving.size(), 0);
    QCOMPARE(m_holder->path(), path("film.brevano"));
}

void tst_ProjectHolder::anEmptyPathIsRefused()
{
    QCOMPARE(m_holder->open(QString()).errorText(), QStringLiteral("No project was named."));
    QCOMPARE(m_holder->create(QString()).errorText(), QStringLiteral("No project was named."));
}

void tst_ProjectHolder::theOpenProjectIsNotOpenedAgain()
{
    QVERIFY(bool(m_holder->create(path("film.brevano"))));
    const NxMediaLibraryPresenter *presenter = m_holder->presenter();
    QVERIFY(bool(m_holder->open(path("./film.brevano"))));
    QCOMPARE(m_holder->presenter(), presenter);
}

void tst_ProjectHolder::anotherProjectTakesThePlaceOfTheOpenOne()
{
    QVERIFY(bool(m_holder->create(path("one.brevano"))));
    addFolder(*m_holder, QStringLiteral("Beach"));
    const QSignalSpy leaving(m_holder.get(), &ProjectHolder::sigAboutToClose);
    const QSignalSpy closed(m_holder.get(), &ProjectHolder::sigClosed);
    QVERIFY(bool(m_holder->create(path("two.brevano"))));
    QCOMPARE(leaving.size(), 1);
    QCOMPARE(closed.size(), 1);
    QCOMPARE(folders(*m_holder), QStringList());
    QVERIFY(bool(m_holder->open(path("one.brevano"))));
    QCOMPARE(folders(*m_holder), QStringList(QStringLiteral("Beach")));
}

void tst_ProjectHolder::theProjectBeforeComesBackWhenTheOtherCannotBeOpened()
{
    const QString file = m_dir->write(QStringLiteral("letter.txt"), "dear");
    QVERIFY(bool(m_holder->create(path("film.brevano"))));
    addFolder(*m_holder, QStringLiteral("Beach"));
    const QSignalSpy opened(m_holder.get(), &ProjectHolder::sigOpened);
    const NxResult<void> answer = m_holder->open(file);
    QVERIFY2(answer.errorText().contains(file), qPrintable(answer.errorText()));
    QCOMPARE(opened.size(), 1);
    QCOMPARE(m_holder->path(), path("film.brevano"));
    QVERIFY(m_holder->presenter());
    QCOMPARE(folders(*m_holder), QStringList(QStringLiteral("Beach")));
    QVERIFY(!m_memory->recentProjects().contains(file));
}

void tst_ProjectHolder::viewsLetGoWhileThePresentersAreStillThere()
{
    QVERIFY(bool(m_holder->create(path("film.brevano"))));
    const QPointer<NxMediaLibraryPresenter> presenter = m_holder->presenter();
    bool wasThere = false;
    connect(m_holder.get(), &ProjectHolder::sigAboutToClose, this,
            [&] { wasThere = presenter && m_holder->project(); });
    bool wasGone = false;
    connect(m_holder.get(), &ProjectHolder::sigClosed, this,
            [&] { wasGone = !presenter && !m_holder->project(); });
    QVERIFY(bool(m_holder->close()));
    QVERIFY(wasThere);
    QVERIFY(wasGone);
}

void tst_ProjectHolder::aProjectThatIsStillObservedStaysOpen()
{
    NxTestLog::expectErrors(QStringLiteral("is still observed"));
    QVERIFY(bool(m_holder->create(path("film.brevano"))));
    INxMediaFolderEventObserver observer;
    QVERIFY(manager(*m_holder)->registerObserver(&observer));
    const NxResult<void> closed = m_holder->close();
    QVERIFY(!closed);
    QVERIFY(m_holder->project());
    QVERIFY(m_holder->presenter());
    QVERIFY(!m_holder->create(path("other.brevano")));
    QCOMPARE(m_holder->title(), QStringLiteral("film"));
    manager(*m_holder)->unregisterObserver(&observer);
    QVERIFY(bool(m_holder->close()));
}

void tst_ProjectHolder::aHeldProjectIsOpenToBeLookedAt()
{
    NxEmbeddedEngine other(options(*m_dir));
    QVERIFY(bool(other.createProject(path("film.brevano"))));
    QVERIFY(bool(m_holder->open(path("film.brevano"))));
    QVERIFY(m_holder->isReadOnly());
    QCOMPARE(m_holder->title(), QStringLiteral("film (read-only)"));
    const QString holder = QString::number(QCoreApplication::applicationPid());
    QVERIFY2(m_holder->readOnlyReason().contains(holder), qPrintable(m_holder->readOnlyReason()));
    QVERIFY(bool(m_holder->close()));
    QVERIFY(bool(other.closeProject()));
    QVERIFY(bool(m_holder->open(path("film.brevano"))));
    QVERIFY(!m_holder->isReadOnly());
}

void tst_ProjectHolder::whoOnlyLooksChangesAndRemembersNothing()
{
    QVERIFY(m_holder->create(path("film.brevano")));
    QVERIFY(m_holder->close());
    m_memory->clearRecent();
    const QByteArray before = contentOf(path("film.brevano"));

    const NxResult<void> opened = m_holder->openToLook(path("film.brevano"));
    QVERIFY2(opened, qPrintable(opened.errorText()));
    QVERIFY(m_holder->isReadOnly());
    QCOMPARE(m_holder->readOnlyReason(), QString());
    QCOMPARE(m_memory->recentProjects(), QStringList());
    NxEmbeddedEngine other(options(*m_dir));
    const NxResult<INxProject *> taken =
        other.openProject(path("film.brevano"), NxProjectOpenMode::ReadWrite);
    QVERIFY2(taken, qPrintable(taken.errorText()));
    QVERIFY(!(*taken)->isReadOnly());
    QVERIFY(other.closeProject());
    QVERIFY(m_holder->close());
    QCOMPARE(contentOf(path("film.brevano")), before);
    QVERIFY(!m_holder->openToLook(path("gone.brevano")));
}

void tst_ProjectHolder::aDamagedProjectTellsWhatIsMissing()
{
    const QString film = path("film.brevano");
    QVERIFY(bool(m_holder->create(film)));
    for (int i = 0; i < 400; ++i)
        addFolder(*m_holder, QStringLiteral("A folder with a rather long name, number %1").arg(i));
    QVERIFY(bool(m_holder->close()));
    QByteArray content = contentOf(film);
    constexpr int PageSize = 4096;
    QVERIFY(content.size() > 4 * PageSize);
    content.replace(content.size() - 2 * PageSize, 2 * PageSize, QByteArray(2 * PageSize, '\xee'));
    m_dir->write(QStringLiteral("film.brevano"), content);

    QVERIFY(bool(m_holder->open(film)));
    QVERIFY(!m_holder->damage().isEmpty());
    QVERIFY(m_holder->isReadOnly());
    QCOMPARE(m_holder->title(), QStringLiteral("film (read-only)"));
    QVERIFY(bool(m_holder->close()));
    QCOMPARE(m_holder->damage(), QString());
    QCOMPARE(contentOf(film), content);
}

void tst_ProjectHolder::openProjectsAreRecent()
{
    QVERIFY(bool(m_holder->create(path("one.brevano"))));
    QVERIFY(bool(m_holder->create(path("two.brevano"))));
    QVERIFY(!m_holder->open(path("three.brevano")));
    QVERIFY(bool(m_holder->open(path("one.brevano"))));
    QCOMPARE(m_memory->recentProjects(), (QStringList{path("one.brevano"), path("two.brevano")}));
}

void tst_ProjectHolder::aCopyHoldsWhatWasDone()
{
    QVERIFY(bool(m_holder->create(path("film.brevano"))));
    addFolder(*m_holder, QStringLiteral("Beach"));
    const NxResult<void> answer = copy(path("copy.brevano"));
    QVERIFY2(bool(answer), qPrintable(answer.errorText()));
    QCOMPARE(m_holder->path(), path("film.brevano"));
    QVERIFY(bool(m_holder->open(path("copy.brevano"))));
    QCOMPARE(folders(*m_holder), QStringList(QStringLiteral("Beach")));
}

void tst_ProjectHolder::whyThereIsNoCopyIsTold()
{
    QCOMPARE(copy(path("copy.brevano")).errorText(), QStringLiteral("No project is open."));
    m_holder->saveCopy(path("copy.brevano"), {});
    QVERIFY(bool(m_holder->create(path("film.brevano"))));
    const QString file = m_dir->write(QStringLiteral("letter.txt"), "dear");
    const NxResult<void> answer = copy(file);
    QVERIFY2(answer.errorText().contains(file), qPrintable(answer.errorText()));
    QCOMPARE(contentOf(file), QByteArray("dear"));
}

void tst_ProjectHolder::everythingIsWrittenWhenTheHolderGoes()
{
    QVERIFY(bool(m_holder->create(path("film.brevano"))));
    addFolder(*m_holder, QStringLiteral("Beach"));
    m_holder.reset();
    m_holder = std::make_unique<ProjectHolder>(m_memory.get(), options(*m_dir));
    QVERIFY(bool(m_holder->open(path("film.brevano"))));
    QCOMPARE(folders(*m_holder), QStringList(QStringLiteral("Beach")));
}

NX_TEST_MAIN_WIDGETS(tst_ProjectHolder)
#include "tst_ProjectHolder.moc"
