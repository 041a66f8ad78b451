// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// The ini file in which the library remembers how its categories are shown.
///
/// Every reading and every single write opens the file anew and is over when the call returns:
/// what was chosen survives a killed program, and nothing that another program wrote in between
/// is lost. A file that is missing, cannot be read or cannot be written changes nothing and is
/// not reported. What could hang or exhaust the program, or destroy the file, is left alone, with
/// one error line for each object of this class: something that is no regular file, a file far
/// larger than settings are or with values that are no texts, a file that another program keeps
/// locked, any writing on a full disk. GUI thread only.
class NxMatterMenuFile
{
public:
    /// "Brevano.ini" in the application's folder of the user's data.
    NxMatterMenuFile();

    /// The texts of these keys; what the file does not have is empty or missing.
    [[nodiscard]] QHash<QString, QString> texts(const QStringList &keys);
    /// Sets one text.
    void write(const QString &key, const QString &text);

private:
    /// Why the file is left alone altogether; empty when it is not.
    [[nodiscard]] QString readingTrouble() const;
    /// Whether there is a trouble; the first one is reported.
    [[nodiscard]] bool isBarredBy(const QString &trouble);

    const QString m_path;
    bool m_isReported = false;
};
