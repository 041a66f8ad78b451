// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>

#include <QHash>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

/// The ini file in which the library remembers how its categories are shown.
///
/// Every reading and every writing opens the file anew and is over when the call, or the batch,
/// ends: what was chosen survives a killed program, and nothing that another program wrote in
/// between is lost. A file that is missing, cannot be read or cannot be written changes nothing and
/// is not reported. What could hang or exhaust the program, or destroy the file, is left alone,
/// with one error line for each object of this class: something that is no regular file, a file far
/// larger than settings are or with values that are no texts, a file that another program keeps
/// locked, any writing on a full disk. GUI thread only.
class NXMEDIALIBRARY_TEST_EXPORT NxMatterMenuFile
{
public:
    /// "Brevano.ini" in the application's folder of the user's data.
    NxMatterMenuFile();

    /// The texts of these keys; what the file does not have is empty or missing.
    [[nodiscard]] QHash<QString, QString> texts(const QStringList &keys);
    /// Sets one text; in a batch, when that ends.
    void write(const QString &key, const QString &text);

    /// While it lives texts are gathered, to be written at once. The outermost of several counts.
    class NXMEDIALIBRARY_TEST_EXPORT Batch
    {
        Q_DISABLE_COPY_MOVE(Batch)
    public:
        /// @param file not owned; must outlive the batch.
        explicit Batch(NxMatterMenuFile *file);
        ~Batch();

    private:
        NxMatterMenuFile *const m_file; // Not owned.
    };

private:
    void writeWaiting();
    /// Why the file is left alone altogether; empty when it is not.
    [[nodiscard]] QString readingTrouble() const;
    /// Whether there is a trouble; the first one is reported.
    [[nodiscard]] bool isBarredBy(const QString &trouble);

    const QString m_path;
    QVector<QPair<QString, QString>> m_waiting; // In the order in which they were set.
    int m_batches = 0;
    bool m_isReported = false;
};
