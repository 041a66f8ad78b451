// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// One text of the program and how a translator put it.
struct TranslatedText
{
    QString context;
    QString source;
    QStringList translations; ///< One; of a plural one for each of the language's forms.
    bool isFinished = false;

    /// What would make the translation look wrong or say something else; empty when nothing does.
    [[nodiscard]] QString fault() const;
};

/// A file that translators work on.
namespace TranslationFile {

/// The texts of a file's content, in their order; none when it is no such file.
[[nodiscard]] QVector<TranslatedText> read(const QByteArray &content);

} // namespace TranslationFile
