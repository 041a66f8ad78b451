// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ImportYard.h"

#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaLibrary.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/INxProject.h>

#include <QImage>
#include <QTest>

namespace {

constexpr int Patience = 30'000; // ms

NxEmbeddedEngine::Options options(const NxTempDir &dir, ImportYard::Reading reading)
{
    NxEmbeddedEngine::Options options;
    options.backups = false;
    options.readsFootage = reading == ImportYard::Reading::Everything;
    options.pictureFolder = dir.filePath(QStringLiteral("pictures"));
    return options;
}

} // namespace

ImportYard::ImportYard(Reading reading) : m_engine(options(dir, reading))
{
    open(m_engine.createProject(path(QStringLiteral("film.brevano"))));
}

ImportYard::~ImportYard()
{
    desk.setProject(nullptr);
    const NxResult<void> closed = m_engine.closeProject();
    QVERIFY2(bool(closed), qPrintable(closed.errorText()));
}

void ImportYard::open(const NxResult<INxProject *> &opened)
{
    QVERIFY2(bool(opened), qPrintable(opened.errorText()));
    project = *opened;
    desk.setProject(project);
}

void ImportYard::reopen(NxProjectOpenMode mode)
{
    const QString file = project->path();
    desk.setProject(nullptr);
    const NxResult<void> closed = m_engine.closeProject();
    QVERIFY2(bool(closed), qPrintable(closed.errorText()));
    open(m_engine.openProject(file, mode));
}

INxFolderMedia *ImportYard::section() const
{
    INxMediaManager *manager = project->mediaLibrary()->mediaManager(NXVBLMODEL::mctMedia);
    return manager->folderManager()->folder(NXVBLMODEL::fidRoot);
}

void ImportYard::start(const QStringList &paths)
{
    QVERIFY(desk.start(section(), paths, NXVBLMODEL::mitFiles) != 0);
}

void ImportYard::import(const QStringList &paths)
{
    start(paths);
    QTRY_VERIFY_WITH_TIMEOUT(!desk.isBusy(), Patience);
}

QString ImportYard::picture(const QString &name) const
{
    const QString file = dir.write(name);
    QImage image(16, 12, QImage::Format_RGB32);
    image.fill(qHash(name) | 0xff000000U); // No two have the same contents.
    return image.save(file, "PNG") ? file : QString();
}

QString ImportYard::rubbish(const QString &name) const
{
    return dir.write(name, QByteArray("These are words about ") + name.toUtf8());
}

QStringList linesOf(const NxImportReport &report)
{
    QStringList lines;
    for (const NxImportReportLine &line : report.lines) {
        lines.append(QString::number(int(line.verdict)) + QLatin1Char(' ')
                     + line.path.section(QLatin1Char('/'), -1));
    }
    return lines;
}
