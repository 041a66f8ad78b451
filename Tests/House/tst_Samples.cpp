// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "Command.h"

#include <Support/NxTestMain.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString maker = QStringLiteral(NX_SOURCE_DIR "/Packaging/make-samples");

QStringList filesUnder(const QString &folder)
{
    QStringList files;
    QDirIterator walk(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files += QDir(folder).relativeFilePath(walk.next());
    files.sort();
    return files;
}

bool hasUnfinishedFile(const QString &folder)
{
    const QStringList unfinished =
        QDir(folder).entryList({QStringLiteral("footage.making.*")}, QDir::Dirs);
    return !unfinished.isEmpty() && !filesUnder(folder).isEmpty();
}

/// Surroundings in which the first picture is half written when the script is killed.
QProcessEnvironment killedByItsEncoder(const QString &folder)
{
    QDir(folder).mkdir(QStringLiteral("fake"));
    QFile fake(folder + QStringLiteral("/fake/ffmpeg"));
    if (!fake.open(QIODevice::WriteOnly))
        qFatal("%s cannot be written", qUtf8Printable(fake.fileName()));
    fake.write("#!/bin/bash\n"
               "last=${!#}; printf half >\"${last#file:}\"; kill -KILL \"$PPID\"\n");
    fake.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PATH"), folder + QStringLiteral("/fake:")
                                                   + environment.value(QStringLiteral("PATH")));
    return environment;
}

} // namespace

class tst_Samples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aWholeSetIsMade();
    void clipsTellTheirDateAndCamera();
    void aFinishedSetIsLeftAlone();
    void anInterruptedSetIsMadeAnew();
    void withoutAFolderItTellsItsUsage();

private:
    QTemporaryDir m_folder;
    QString m_footage;
};

void tst_Samples::initTestCase()
{
    m_footage = m_folder.filePath(QStringLiteral("deep/footage"));
    const CommandResult made = runCommand(maker, {m_footage});
    QVERIFY2(made.code == 0, qPrintable(made.errors));
}

void tst_Samples::aWholeSetIsMade()
{
    const QStringList files = filesUnder(m_footage);
    QVERIFY2(files.size() >= 38 && files.size() <= 45, qPrintable(QString::number(files.size())));
    for (const char *name :
         {"Holiday/Day 1/IMG_10.MOV", "Holiday/Day 1/Möwen über dem Hafen.mp4",
          "Holiday/Day 2/海辺の夕日.mp4", "Holiday/Day 2/🎉 Feier.mp4", "Interviews/Interview 1.srt",
          "Music/Lied.lrc", "Stills/Web/Spinner.gif", "Stills/Web/Button.gif"})
        QVERIFY2(files.contains(QString::fromUtf8(name)), name);
    for (const QString &file : files)
        QVERIFY2(QFileInfo(QDir(m_footage).filePath(file)).size() > 0, qPrintable(file));
    QCOMPARE(QDir(m_folder.filePath(QStringLiteral("deep")))
                 .entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList(QStringLiteral("footage")));
}

void tst_Samples::clipsTellTheirDateAndCamera()
{
    const QString clip = m_footage + QStringLiteral("/Holiday/Day 1/IMG_9.MOV");
    const CommandResult facts =
        runCommand(QStringLiteral("ffprobe"),
                   {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-show_entries"),
                    QStringLiteral("format_tags"), clip});
    QVERIFY(facts.output.contains(QLatin1String("com.apple.quicktime.model=Nordlicht 100")));
    QVERIFY(facts.output.contains(QLatin1String("creation_time=2023-07-14T09:15:00")));

    const QString photo = m_footage + QStringLiteral("/Holiday/Day 1/DSC_9.JPG");
    const CommandResult exif = runCommand(QStringLiteral("exiv2"), {QStringLiteral("-pa"), photo});
    QVERIFY(exif.output.contains(QLatin1String("Nordlicht 100")));
    QVERIFY(exif.output.contains(QLatin1String("2023:07:14 11:20:00")));
}

void tst_Samples::aFinishedSetIsLeftAlone()
{
    const QStringList before = filesUnder(m_footage);
    QVERIFY(QFile::remove(m_footage + QStringLiteral("/Stills/Logo.bmp")));

    const CommandResult again = runCommand(maker, {m_footage});

    QCOMPARE(again.code, 0);
    QCOMPARE(again.output + again.errors, QString());
    QCOMPARE(filesUnder(m_footage).size(), before.size() - 1);
}

void tst_Samples::anInterruptedSetIsMadeAnew()
{
    QTemporaryDir folder;
    const QString footage = folder.filePath(QStringLiteral("footage"));

    QCOMPARE(runCommand(maker, {footage}, {}, killedByItsEncoder(folder.path())).code, -1);

    QVERIFY(hasUnfinishedFile(folder.path()));
    QVERIFY(!QFileInfo::exists(footage));
    QCOMPARE(runCommand(maker, {footage}).code, 0);
    QVERIFY(filesUnder(footage).size() >= 38);
}

void tst_Samples::withoutAFolderItTellsItsUsage()
{
    const CommandResult result = runCommand(maker, {});

    QCOMPARE(result.code, 2);
    QVERIFY(result.errors.startsWith(QLatin1String("Usage: make-samples")));
}

NX_TEST_MAIN(tst_Samples)
#include "tst_Samples.moc"
