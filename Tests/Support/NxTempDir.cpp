// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxTempDir.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace {

fs::path native(const QString &path)
{
    return fs::path(QFile::encodeName(path).toStdString());
}

void makeWritable(const fs::path &root)
{
    std::error_code error;
    fs::permissions(root, fs::perms::owner_all, fs::perm_options::add, error);
    for (fs::recursive_directory_iterator it(root, error), end; it != end; it.increment(error)) {
        if (it->is_directory(error) && !it->is_symlink(error))
            fs::permissions(it->path(), fs::perms::owner_all, fs::perm_options::add, error);
    }
}

} // namespace

NxTempDir::NxTempDir()
{
    QTemporaryDir directory;
    if (!directory.isValid())
        qFatal("no temporary folder: %s", qUtf8Printable(directory.errorString()));
    directory.setAutoRemove(false);
    m_path = QFileInfo(directory.path()).canonicalFilePath();
}

NxTempDir::~NxTempDir()
{
    makeWritable(native(m_path));
    std::error_code error;
    fs::remove_all(native(m_path), error);
    if (error)
        qWarning("%s: %s", qUtf8Printable(m_path), error.message().c_str());
}

QString NxTempDir::filePath(const QString &name) const
{
    return m_path + QLatin1Char('/') + name;
}

QString NxTempDir::makeDir(const QString &name) const
{
    const QString path = filePath(name);
    if (!QDir().mkpath(path))
        qFatal("cannot make %s", qUtf8Printable(path));
    return path;
}

QString NxTempDir::write(const QString &name, const QByteArray &content) const
{
    const QString path = filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s: %s", qUtf8Printable(path), qUtf8Printable(file.errorString()));
    return path;
}
