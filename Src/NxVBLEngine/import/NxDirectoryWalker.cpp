// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/import/NxDirectoryWalker.h>

#include <NxVBLEngine/import/NxImportRules.h>

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace {

QString below(const QString &folder, const QString &name)
{
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

QString lastName(const QString &path)
{
    return path.section(QLatin1Char('/'), -1);
}

/// Two ways to one folder give the same text.
QString identityOf(const NxFileFacts &facts, const QString &canonicalPath)
{
    if (facts.inode == 0)
        return canonicalPath;
    return QString::number(facts.device) + QLatin1Char(':') + QString::number(facts.inode);
}

} // namespace

NxDirectoryWalker::NxDirectoryWalker(QVector<Named> named, NxFileLook look)
    : m_named(std::move(named))
    , m_look(std::move(look))
{
}

NxDirectoryWalker::Named NxDirectoryWalker::named(const QString &given)
{
    if (given.isEmpty())
        return {given, QString()};
    return {given, QDir::cleanPath(QFileInfo(given).absoluteFilePath())};
}

NxDirectoryWalker::Outcome NxDirectoryWalker::walk(INxWalkListener *listener)
{
    m_listener = listener;
    while (!listener->isCancelled()) {
        if (!step())
            return Outcome::Finished;
        if (listener->wantsPause())
            return Outcome::Paused;
    }
    return Outcome::Cancelled;
}

bool NxDirectoryWalker::step()
{
    if (m_levels.empty()) {
        if (m_nextNamed == m_named.size())
            return false;
        beginNamed(m_named.at(m_nextNamed++));
        if (m_levels.empty())
            tell(NxWalkStep::NamedDone, QString());
        return true;
    }
    Level &level = m_levels.back();
    if (level.nextFile < level.listing.files.size()) {
        visitFile(level, level.listing.files[level.nextFile++]);
    } else if (level.nextFolder < level.listing.folders.size()) {
        // A copy: entering a folder moves the levels.
        const NxDirectoryEntry entry = level.listing.folders[level.nextFolder++];
        visitFolder(level, entry);
    } else {
        leave();
    }
    return true;
}

void NxDirectoryWalker::beginNamed(const Named &named)
{
    if (NxFileProbe::isTooLong(named.path)) {
        tell(NxWalkStep::Refused, named.path, NxImportRules::refusalOfLongPath(), named.given);
        return;
    }
    const NxFileFacts facts = m_look(named.path);
    if (facts.kind == NxFileKind::File) {
        beginNamedFile(named, facts);
        return;
    }
    if (facts.kind == NxFileKind::Folder) {
        enter(named.path, NxFileProbe::canonicalPath(named.path), named.given, facts);
        return;
    }
    if (facts.kind == NxFileKind::Special) {
        tell(NxWalkStep::Refused, named.path, NxImportRules::refusalOfSpecial(), named.given);
        return;
    }
    const QString reason = NxFileProbe::isLink(named.path) && facts.kind == NxFileKind::Missing
        ? NxImportRules::danglingLinkReason()
        : NxImportRules::unreadableReason(facts);
    tell(NxWalkStep::Unreadable, named.path, reason, named.given);
}

void NxDirectoryWalker::beginNamedFile(const Named &named, const NxFileFacts &facts)
{
    const QString refusal = NxImportRules::refusalOfNamed(named.path);
    if (!refusal.isEmpty())
        tell(NxWalkStep::Refused, named.path, refusal, named.given);
    else
        tellFile(named.path, NxFileProbe::canonicalPath(named.path), named.given, facts);
}

NxFileProbe::Canonical NxDirectoryWalker::canonicalOf(
    const Level &level, const NxDirectoryEntry &entry, const QString &path) const
{
    if (entry.isLink)
        return NxFileProbe::canonicalPath(path);
    return {below(level.canonicalPath, entry.name), QString()};
}

void NxDirectoryWalker::visitFile(const Level &level, const NxDirectoryEntry &entry)
{
    using Kind = NxDirectoryEntry::Kind;
    const QString path = below(level.path, entry.name);
    if (entry.isHidden)
        tell(NxWalkStep::Hidden, path);
    else if (!entry.isValidText)
        tell(NxWalkStep::Refused, path, NxImportRules::refusalOfInvalidName());
    else if (!NxImportRules::isTakenFromFolder(entry.name))
        tell(NxWalkStep::OtherSuffix, path);
    else if (entry.kind == Kind::Special)
        tell(NxWalkStep::Refused, path, NxImportRules::refusalOfSpecial());
    else if (entry.kind == Kind::Dangling)
        tell(NxWalkStep::Unreadable, path, NxImportRules::danglingLinkReason());
    else if (NxFileProbe::isTooLong(path))
        tell(NxWalkStep::Refused, path, NxImportRules::refusalOfLongPath());
    else
        tellFile(path, canonicalOf(level, entry, path), QString(), m_look(path));
}

void NxDirectoryWalker::tellFile(const QString &path, const NxFileProbe::Canonical &canonical,
    const QString &given, const NxFileFacts &facts)
{
    if (!canonical.unshowable.isEmpty()) {
        tell(NxWalkStep::Refused, canonical.unshowable, NxImportRules::refusalOfInvalidName(),
            given);
        return;
    }
    NxWalkEntry entry;
    entry.path = path;
    entry.given = given;
    entry.facts = facts;
    if (canonical.path != path)
        entry.canonicalPath = canonical.path;
    if (facts.kind == NxFileKind::Special || facts.kind == NxFileKind::Folder) {
        // It was a file a moment ago.
        entry.step = NxWalkStep::Refused;
        entry.reason = NxImportRules::refusalOfSpecial();
    } else {
        entry.reason = NxImportRules::unreadableReason(facts);
        entry.step = entry.reason.isEmpty() ? NxWalkStep::File : NxWalkStep::Unreadable;
    }
    m_listener->onWalked(std::move(entry));
}

void NxDirectoryWalker::visitFolder(const Level &level, const NxDirectoryEntry &entry)
{
    const QString path = below(level.path, entry.name);
    if (entry.isHidden) {
        tell(NxWalkStep::Hidden, path);
        return;
    }
    if (!entry.isValidText) {
        tell(NxWalkStep::Refused, path, NxImportRules::refusalOfInvalidName());
        return;
    }
    if (NxFileProbe::isTooLong(path)) {
        tell(NxWalkStep::Refused, path, NxImportRules::refusalOfLongPath());
        return;
    }
    const NxFileProbe::Canonical canonical = canonicalOf(level, entry, path);
    enter(path, canonical, QString(), m_look(path));
}

bool NxDirectoryWalker::mayEnter(const QString &path, const NxFileProbe::Canonical &canonical,
    const QString &given, const NxFileFacts &facts)
{
    if (canonical.path.isEmpty()) {
        const bool isInvalid = !canonical.unshowable.isEmpty();
        tell(isInvalid ? NxWalkStep::Refused : NxWalkStep::Unreadable, path,
            isInvalid ? NxImportRules::refusalOfInvalidName() : NxImportRules::danglingLinkReason(),
            given);
        return false;
    }
    const QString name = lastName(path);
    const bool isTop = name.isEmpty(); // Of the whole disk: it has no name to give to a folder.
    const QString refusal = isTop ? QString() : NxImportRules::refusalOfFolderName(name);
    if (!refusal.isEmpty()) {
        tell(NxWalkStep::Refused, path, refusal, given);
        return false;
    }
    const QString identity = identityOf(facts, canonical.path);
    if (m_walked.contains(identity)) {
        tell(NxWalkStep::Twice, path, QString(), given);
        return false;
    }
    m_walked.insert(identity);
    return true;
}

void NxDirectoryWalker::enter(const QString &path, const NxFileProbe::Canonical &canonical,
    const QString &given, const NxFileFacts &facts)
{
    if (!mayEnter(path, canonical, given, facts))
        return;
    Level level;
    level.path = path;
    level.canonicalPath = canonical.path;
    level.listing = NxDirectoryReader::read(path, [this] { return !m_listener->isCancelled(); });
    if (!level.listing.error.isEmpty()) {
        tell(NxWalkStep::Unreadable, path,
            NxImportRules::unreadableFolderReason(level.listing.error), given);
    }
    m_levels.push_back(std::move(level));
    NxWalkEntry entered;
    entered.step = NxWalkStep::FolderEntered;
    entered.path = path;
    entered.name = lastName(path).trimmed();
    m_listener->onWalked(std::move(entered));
}

void NxDirectoryWalker::leave()
{
    tell(NxWalkStep::FolderLeft, m_levels.back().path);
    m_levels.pop_back();
    if (m_levels.empty())
        tell(NxWalkStep::NamedDone, QString());
}

void NxDirectoryWalker::tell(
    NxWalkStep step, const QString &path, const QString &reason, const QString &given)
{
    NxWalkEntry entry;
    entry.step = step;
    entry.path = path;
    entry.given = given;
    entry.reason = reason;
    m_listener->onWalked(std::move(entry));
}
