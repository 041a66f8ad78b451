// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "WorkedProject.h"

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <NxVBLEngine/disk/NxFileProbe.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/reading/NxFootageReader.h>
#include <NxVBLEngine/reading/NxWorkerLocation.h>
#include <NxVBLModel/INxMediaImporter.h>

#include <QFile>
#include <QtTest>

WorkedProject::WorkedProject()
{
    const NxResult<QString> program = NxWorkerLocation::find();
    m_settings.program = program ? *program : QString();
    m_settings.whyNone = program.errorText();
    m_settings.cacheFolder = m_dir.filePath(QStringLiteral("cache"));
    m_settings.workers = 2;
    m_settings.volumeRoots = &NxFileProbe::volumeRoots;
}

WorkedProject::~WorkedProject() = default;

void WorkedProject::open()
{
    m_project.reset();
    m_project = std::make_unique<NxEngineProject>(m_settings);
    reader()->start();
}

void WorkedProject::close()
{
    m_project.reset();
}

QString WorkedProject::put(const char *recipe, const QString &name) const
{
    const QString path = m_dir.filePath(name);
    const QString source = NxFootageSet::path(NxFootageRecipes::named(QLatin1String(recipe)));
    if (!QFile::copy(source, path))
        QTest::qFail(qPrintable(source), __FILE__, __LINE__);
    return path;
}

QList<NxEngineMedia *> WorkedProject::add(const QStringList &paths)
{
    NxEngineCategory *category = m_project->memory()->category(NXVBLMODEL::mctMedia);
    const QList<INxAbstractMediaItem *> items = category->importer()->addNow(
        category->folder(NXVBLMODEL::fidRoot), paths, nullptr);
    QList<NxEngineMedia *> media;
    for (INxAbstractMediaItem *item : items)
        media.append(dynamic_cast<NxEngineMedia *>(item));
    return media;
}
