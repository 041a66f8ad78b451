// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FakeLibrary.h"

#include <Brevano/commands/MediaResolver.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QDir>
#include <QFile>
#include <QtTest>

namespace {

ProgramArguments words(const QStringList &texts)
{
    ProgramArguments result;
    for (const QString &text : texts)
        result.append({text, true});
    return result;
}

QStringList paths(const MediaResolver::Answer &answer)
{
    QStringList result;
    for (const INxAbstractMedia *media : answer.media)
        result.append(media->sourcePath());
    return result;
}

QStringList headlines(const MediaResolver::Answer &answer)
{
    QStringList result;
    for (const QStringList &complaint : answer.complaints)
        result.append(complaint.constFirst());
    return result;
}

} // namespace

class tst_MediaResolver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void wordsNameMedia_data();
    void wordsNameMedia();
    void anAmbiguousNameListsAllThatFit();
    void aPathIsTakenFromTheCurrentFolder();
    void aPathThroughALinkIsTheFileBehindIt();
    void everyWordThatDoesNotFitIsToldAtOnce();
    void aWordThatIsNoTextFitsNothing();

private:
    [[nodiscard]] QList<INxFolderMedia *> sections() const
    {
        return {m_project.get(), m_shared.get()};
    }

    std::unique_ptr<FakeFolder> m_project;
    std::unique_ptr<FakeFolder> m_shared;
};

void tst_MediaResolver::init()
{
    m_project = std::make_unique<FakeFolder>(QStringLiteral("Project"), NXVBLMODEL::fkProject);
    m_shared = std::make_unique<FakeFolder>(QStringLiteral("Shared"), NXVBLMODEL::fkShared);
    m_project->addItem(QStringLiteral("/v/top.mp4"));
    FakeFolder *day = m_project->addFolder(QStringLiteral("Day/1"));
    day->addItem(QStringLiteral("/v/1/clip.mp4"));
    day->addItem(QStringLiteral("/v/1/own.mp4"));
    m_shared->addItem(QStringLiteral("/s/clip.mp4"));
}

void tst_MediaResolver::wordsNameMedia_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QStringList>("found");

    const auto list = [](const char *text) {
        return QString::fromLatin1(text).split(QLatin1Char(' '));
    };
    QTest::newRow("a name") << list("own.mp4") << list("/v/1/own.mp4");
    QTest::newRow("a path") << list("/s/clip.mp4") << list("/s/clip.mp4");
    QTest::newRow("a path that is not tidy")
        << list("/s/../v/./1//clip.mp4") << list("/v/1/clip.mp4");
    QTest::newRow("several, in their order")
        << list("own.mp4 top.mp4") << list("/v/1/own.mp4 /v/top.mp4");
    QTest::newRow("the same one twice") << list("own.mp4 /v/1/own.mp4") << list("/v/1/own.mp4");
}

void tst_MediaResolver::wordsNameMedia()
{
    QFETCH(QStringList, given);
    QFETCH(QStringList, found);

    const MediaResolver::Answer answer = MediaResolver(sections()).resolve(words(given));
    QCOMPARE(headlines(answer), QStringList());
    QCOMPARE(paths(answer), found);
}

void tst_MediaResolver::anAmbiguousNameListsAllThatFit()
{
    const MediaResolver::Answer answer =
        MediaResolver(sections()).resolve(words({QStringLiteral("clip.mp4")}));
    QCOMPARE(answer.complaints.size(), 1);
    const QStringList expected{
        QStringLiteral("clip.mp4: 2 media have this name; tell which by its path"),
        QStringLiteral("Day\\/1 (project): /v/1/clip.mp4"),
        QStringLiteral("section shared: /s/clip.mp4"),
    };
    QCOMPARE(answer.complaints.constFirst(), expected);
    QVERIFY(answer.media.isEmpty());
}

void tst_MediaResolver::aPathIsTakenFromTheCurrentFolder()
{
    const QString path = QDir::current().absoluteFilePath(QStringLiteral("here.mp4"));
    m_project->addItem(path);
    MediaResolver resolver(sections());
    QCOMPARE(paths(resolver.resolve(words({QStringLiteral("./here.mp4")}))), QStringList{path});
}

void tst_MediaResolver::aPathThroughALinkIsTheFileBehindIt()
{
    const NxTempDir folder;
    const QString file = folder.write(QStringLiteral("real/a.mp4"));
    QVERIFY(QFile::link(folder.filePath(QStringLiteral("real")),
                        folder.filePath(QStringLiteral("link"))));
    m_project->addItem(file);
    MediaResolver resolver(sections());
    const MediaResolver::Answer answer =
        resolver.resolve(words({folder.filePath(QStringLiteral("link/a.mp4"))}));
    QCOMPARE(paths(answer), QStringList{file});
}

void tst_MediaResolver::everyWordThatDoesNotFitIsToldAtOnce()
{
    const MediaResolver::Answer answer =
        MediaResolver(sections())
            .resolve(words({QStringLiteral("none.mp4"), QStringLiteral("own.mp4"),
                            QStringLiteral("/v/no.mp4"), QStringLiteral("OWN.mp4")}));
    const QStringList expected{
        QStringLiteral("none.mp4: the project has no such media"),
        QStringLiteral("/v/no.mp4: the project has no such media"),
        QStringLiteral("OWN.mp4: the project has no such media"),
    };
    QCOMPARE(headlines(answer), expected);
}

void tst_MediaResolver::aWordThatIsNoTextFitsNothing()
{
    m_project->addItem(QStringLiteral("/v/caf\\xe9.mp4"));
    const MediaResolver::Answer answer =
        MediaResolver(sections()).resolve({{QStringLiteral("caf\\xe9.mp4"), false}});
    QCOMPARE(headlines(answer),
             QStringList{QStringLiteral("caf\\xe9.mp4: the project has no such media")});
}

NX_TEST_MAIN(tst_MediaResolver)
#include "tst_MediaResolver.moc"
