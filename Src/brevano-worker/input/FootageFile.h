// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxWorkerProtocol/NxFootageFacts.h>

#include <QByteArray>
#include <QFile>

#include <memory>

/// A file of the user, open to be read and nothing else.
class FootageFile
{
    Q_DISABLE_COPY_MOVE(FootageFile)
public:
    /// The error is a sentence without the path: whoever shows it names the file.
    [[nodiscard]] static NxResult<std::unique_ptr<FootageFile>> open(const QByteArray &path);
    ~FootageFile();

    /// As it was when it was opened.
    [[nodiscard]] const NxFileStamp &stamp() const { return m_stamp; }
    [[nodiscard]] qint64 size() const { return m_stamp.size; }
    [[nodiscard]] QByteArray path() const { return m_path; }
    /// True when it was written, or put in another's place, since it was opened.
    [[nodiscard]] bool hasChanged() const;

    /// Reads at a place without moving the device; fewer bytes at the end, -1 when the disk fails.
    [[nodiscard]] qint64 readAt(qint64 place, char *bytes, qint64 most) const;
    /// A name by which this very file can be opened once more, whatever lies at its path by now;
    /// for readers that know nothing but names.
    [[nodiscard]] QByteArray openName() const;
    /// The file as a device, for whoever reads by one. Owned by this.
    [[nodiscard]] QIODevice *device();

private:
    FootageFile(int descriptor, QByteArray path, NxFileStamp stamp);

    const int m_descriptor;
    const QByteArray m_path;
    const NxFileStamp m_stamp;
    QFile m_device;
};
