// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ReadableProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr QFile::Permissions readableByAll = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                             | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther
                                             | QFile::ExeOther;

} // namespace

ReadableProgram::ReadableProgram()
{
    m_isComplete =
        m_folder.isValid() && QFile::setPermissions(m_folder.path(), readableByAll) && copyAll();
}

QString ReadableProgram::path() const
{
    const QString name = QFileInfo(QStringLiteral(NX_BREVANO)).fileName();
    return m_isComplete ? m_folder.filePath(name) : QString();
}

void ReadableProgram::addLibrariesTo(QProcessEnvironment *environment) const
{
    environment->insert(QStringLiteral("LD_LIBRARY_PATH"), m_folder.path());
}

bool ReadableProgram::copyHere(const QString &file) const
{
    const QString copy = m_folder.filePath(QFileInfo(file).fileName());
    return QFile::copy(file, copy) && QFile::setPermissions(copy, readableByAll);
}

bool ReadableProgram::copyAll() const
{
    const QFileInfoList libraries =
        QDir(QStringLiteral(NX_LIBRARY_DIR))
            .entryInfoList({QStringLiteral("libNx*.so.*")}, QDir::Files);
    const auto isCopied = [this](const QFileInfo &library) { return copyHere(library.filePath()); };
    return !libraries.isEmpty() && copyHere(QStringLiteral(NX_BREVANO))
           && copyHere(QStringLiteral(NX_LIBRARY_DIR "/brevano-worker"))
           && std::all_of(libraries.begin(), libraries.end(), isCopied);
}
