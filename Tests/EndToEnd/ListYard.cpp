// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ListYard.h"

#include <NxVBLEngine/NxEmbeddedEngine.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/INxMediaLibrary.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/INxProject.h>

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

namespace {

const QString settings = QStringLiteral("data/Brevano/Brevano.ini");

/// "== Video (2)|[import]|a.mp4" for the objects of a listing, which are numbered from 0.
QString rowsIn(const ProgramResult &list)
{
    QStringList rows;
    const QVector<QJsonObject> objects = list.objects();
    for (const QJsonObject &row : objects) {
        if (row.value(QLatin1String("row")).toInt(-1) != rows.size())
            return QStringLiteral("a wrong number: ") + QString::fromUtf8(list.output);
        const QString kind = row.value(QLatin1String("kind")).toString();
        const QString title = row.value(QLatin1String("title")).toString();
        if (kind == QLatin1String("media"))
            rows.append(title);
        else if (kind == QLatin1String("group"))
            rows.append(QStringLiteral("== %1 (%2)")
                            .arg(title)
                            .arg(row.value(QLatin1String("items")).toInt(-1)));
        else
            rows.append(QLatin1Char('[') + kind + QLatin1Char(']'));
    }
    return rows.join(QLatin1Char('|'));
}

/// A file made after the one before it, as the clock of the disk tells.
void makeAfter(const Yard &yard, const QString &name, QDateTime *last)
{
    QDateTime born;
    do {
        QFile::remove(yard.footage(name));
        born = QFileInfo(yard.clip(name)).birthTime();
    } while (born.isValid() && last->isValid() && born <= *last);
    *last = born;
}

} // namespace

ListYard::ListYard()
{
    qputenv("XDG_DATA_HOME", folder().makeDir(QStringLiteral("data")).toUtf8());
    QDateTime last;
    QDateTime changed(QDate(2026, 1, 1), QTime(12, 0), Qt::UTC);
    for (const char *name : {"C 9.wav", "a.gif", "d.srt", "c 10.mp4", "b.jpg"}) {
        makeAfter(*this, QLatin1String(name), &last);
        changed = changed.addDays(1);
        QFile file(footage(QLatin1String(name)));
        QVERIFY(file.open(QFile::ReadWrite));
        QVERIFY(file.setFileTime(changed, QFile::FileModificationTime));
    }
    QStringList files;
    for (const char *name : {"c 10.mp4", "C 9.wav", "b.jpg", "a.gif", "d.srt"})
        files.append(footage(QLatin1String(name)));
    watchFootage();
    VERIFY_CODE(run("import", files), 0);
}

ProgramResult ListYard::list(const QString &rest) const
{
    return run("list", rest.split(QLatin1Char('|'), Qt::SkipEmptyParts));
}

QString ListYard::rowsOf(const QString &rest) const
{
    const ProgramResult result = list(QStringLiteral("--json|") + rest);
    return result.code == 0 ? rowsIn(result) : QString::fromUtf8(result.story());
}

void ListYard::writeSettings(const QByteArray &content) const
{
    folder().write(settings, content);
}

QString ListYard::settingsFile() const
{
    return path(settings);
}

void ListYard::makeFavourite(const QString &name) const
{
    NxEmbeddedEngine::Options options;
    options.backups = false;
    NxEmbeddedEngine engine(options);
    const NxResult<INxProject *> opened =
        engine.openProject(project(), NxProjectOpenMode::ReadWrite);
    QVERIFY2(opened, qPrintable(opened.errorText()));
    INxMediaManager *media = (*opened)->mediaLibrary()->mediaManager(NXVBLMODEL::mctMedia);
    INxFolderMedia *section = media->folderManager()->folder(NXVBLMODEL::fidRoot);
    INxAbstractMedia *item = section->findMediaByPath(footage(name), true);
    QVERIFY(media->itemManager()->setFavourite(item, true));
    const NxResult<void> closed = engine.closeProject();
    QVERIFY2(closed, qPrintable(closed.errorText()));
}

void ListYard::verifyFootage() const
{
    NX_VERIFY_UNTOUCHED(*m_guard);
}

void ListYard::watchFootage()
{
    m_guard = std::make_unique<NxFootageGuard>(footage());
}
