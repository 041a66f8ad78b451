// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// Makes files that Qt cannot make: names that are no text, pipes, paths longer than a path may be.
/// A failure ends the test program.
namespace RawFiles {

/// A file of one byte; the name is any bytes but "/" and 0.
void write(const QString &folder, const QByteArray &name);
void makeFolder(const QString &folder, const QByteArray &name);
void makePipe(const QString &path);
void makeSocket(const QString &path);
void link(const QString &target, const QString &path);
void hardLink(const QString &existing, const QString &path);
void setMode(const QString &path, unsigned mode);

/// Makes folders of long names below `folder` until the path has at least that many bytes, and
/// writes `fileName` into the last one. Answers the path of the file.
QString writeDeep(const QString &folder, int bytes, const QByteArray &fileName);

} // namespace RawFiles
