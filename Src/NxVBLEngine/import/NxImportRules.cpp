// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/import/NxImportRules.h>

#include <NxVBLModel/NxMediaFileTypes.h>

#include <QCoreApplication>

using namespace NXVBLMODEL;

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("NxImportRules", text);
}

QString suffixOf(const QString &path)
{
    const int point = path.lastIndexOf(QLatin1Char('.'));
    return point > path.lastIndexOf(QLatin1Char('/')) ? path.mid(point + 1) : QString();
}

} // namespace

QString NxImportRules::refusalOfNamed(const QString &path)
{
    const QString suffix = suffixOf(path);
    if (isImportableSuffix(suffix))
        return {};
    if (isOnSuffixList(suffix, NxSuffixList::Unsupported))
        return tr("Files of the type \"%1\" cannot be imported.").arg(suffix.toUpper());
    return tr("Its name does not tell whether it is media, and files cannot be read yet to find "
              "out.");
}

bool NxImportRules::isTakenFromFolder(const QString &fileName)
{
    const QString suffix = suffixOf(fileName);
    return isImportableSuffix(suffix) && !isOnSuffixList(suffix, NxSuffixList::Unsupported);
}

QString NxImportRules::refusalOfFolderName(const QString &name)
{
    if (name.trimmed().isEmpty())
        return tr("The name of the folder is blank.");
    if (name.trimmed().size() > LongestFolderName)
        return tr("The name of the folder is longer than 255 characters.");
    return {};
}

QString NxImportRules::unreadableReason(const NxFileFacts &facts)
{
    if (facts.kind == NxFileKind::Missing)
        return tr("It does not exist.");
    if (!facts.error.isEmpty())
        return tr("It cannot be read: %1.").arg(facts.error);
    if (!facts.readable)
        return tr("There is no permission to read it.");
    if (facts.kind == NxFileKind::File && facts.size == 0)
        return tr("The file is empty.");
    return {};
}

QString NxImportRules::refusalOfSpecial()
{
    return tr("It is a pipe, a socket or a device, not a file.");
}

QString NxImportRules::refusalOfLongPath()
{
    return tr("Its path is too long to be opened.");
}

QString NxImportRules::refusalOfInvalidName()
{
    return tr("Its name is not valid UTF-8.");
}

QString NxImportRules::danglingLinkReason()
{
    return tr("It is a link to something that does not exist.");
}

QString NxImportRules::unreadableFolderReason(const QString &systemWords)
{
    return tr("The folder cannot be read: %1.").arg(systemWords);
}
