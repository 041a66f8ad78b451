// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/WindowMemory.h>

#include <NxCore/INxSettingsStore.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

using namespace NXVBLMODEL;

namespace {

const QString RecentKey = QStringLiteral("Window/RecentProjects");
const QString ProjectsKey = QStringLiteral("Window/Projects");

const QString PathField = QStringLiteral("path");
const QString CategoryField = QStringLiteral("category");
const QString FoldersField = QStringLiteral("folders");
const QString ExpandedField = QStringLiteral("expanded");

QString cleanPath(const QString &path)
{
    return QDir::cleanPath(QDir::fromNativeSeparators(path));
}

QString categoryKey(NxMediaCategoryType category)
{
    return QString::number(int(category));
}

// One entry of a category in a project's object of them.
QJsonObject withEntry(QJsonObject project, const QString &field, NxMediaCategoryType category,
                      const QJsonValue &value)
{
    QJsonObject entries = project.value(field).toObject();
    entries.insert(categoryKey(category), value);
    project.insert(field, entries);
    return project;
}

} // namespace

QStringList WindowMemory::recentProjects() const
{
    QStringList paths;
    for (const QString &stored : m_store->value(RecentKey).toStringList()) {
        if (QDir::isAbsolutePath(stored) && !paths.contains(cleanPath(stored)))
            paths.append(cleanPath(stored));
    }
    return paths.mid(0, LongestRecentList);
}

void WindowMemory::noteRecent(const QString &path)
{
    QStringList paths = recentProjects();
    paths.removeAll(cleanPath(path));
    paths.prepend(cleanPath(path));
    setRecent(paths.mid(0, LongestRecentList));
}

void WindowMemory::forgetRecent(const QString &path)
{
    QStringList paths = recentProjects();
    if (paths.removeAll(cleanPath(path)) > 0)
        setRecent(paths);
}

void WindowMemory::clearRecent()
{
    m_store->remove(RecentKey);
}

void WindowMemory::setRecent(const QStringList &paths)
{
    m_store->setValue(RecentKey, paths);
}

void WindowMemory::loadProjects()
{
    const QJsonArray stored = QJsonDocument::fromJson(text(ProjectsKey).toUtf8()).array();
    for (const QJsonValue &value : stored) {
        const QJsonObject project = value.toObject();
        if (!project.value(PathField).toString().isEmpty() && m_projects.size() < MostProjects)
            m_projects.append(project);
    }
}

QJsonObject WindowMemory::project(const QString &path) const
{
    const QString clean = cleanPath(path);
    const auto found =
        std::find_if(m_projects.begin(), m_projects.end(), [&clean](const QJsonObject &known) {
            return known.value(PathField).toString() == clean;
        });
    return found == m_projects.end() ? QJsonObject{{PathField, clean}} : *found;
}

void WindowMemory::setProject(const QJsonObject &changed)
{
    const auto isTheSame = [&changed](const QJsonObject &known) {
        return known.value(PathField) == changed.value(PathField);
    };
    m_projects.erase(std::remove_if(m_projects.begin(), m_projects.end(), isTheSame),
                     m_projects.end());
    m_projects.prepend(changed);
    m_projects = m_projects.mid(0, MostProjects);
    m_writing.start();
}

void WindowMemory::flush()
{
    m_writing.stop();
    QJsonArray all;
    for (const QJsonObject &one : qAsConst(m_projects))
        all.append(one);
    m_store->setValue(ProjectsKey,
                      QString::fromUtf8(QJsonDocument(all).toJson(QJsonDocument::Compact)));
}

NxMediaCategoryType WindowMemory::category(const QString &path) const
{
    const int stored = project(path).value(CategoryField).toInt(mctMedia);
    const bool isCategory = stored >= 0 && stored < MediaCategoryCount;
    return isCategory ? NxMediaCategoryType(stored) : mctMedia;
}

void WindowMemory::setCategory(const QString &path, NxMediaCategoryType category)
{
    QJsonObject changed = project(path);
    changed.insert(CategoryField, int(category));
    setProject(changed);
}

QString WindowMemory::folder(const QString &path, NxMediaCategoryType category) const
{
    return project(path).value(FoldersField).toObject().value(categoryKey(category)).toString();
}

void WindowMemory::setFolder(const QString &path, NxMediaCategoryType category,
                             const QString &folderId)
{
    setProject(withEntry(project(path), FoldersField, category, folderId));
}

std::optional<QStringList> WindowMemory::expandedFolders(const QString &path,
                                                         NxMediaCategoryType category) const
{
    const QJsonValue stored =
        project(path).value(ExpandedField).toObject().value(categoryKey(category));
    if (!stored.isArray())
        return std::nullopt;
    QStringList ids;
    const QJsonArray all = stored.toArray();
    for (const QJsonValue &id : all) {
        if (id.isString())
            ids.append(id.toString());
    }
    const bool isDamaged = ids.isEmpty() && !all.isEmpty();
    return isDamaged ? std::nullopt : std::make_optional(ids);
}

void WindowMemory::setExpandedFolders(const QString &path, NxMediaCategoryType category,
                                      const QStringList &folderIds)
{
    setProject(
        withEntry(project(path), ExpandedField, category, QJsonArray::fromStringList(folderIds)));
}
