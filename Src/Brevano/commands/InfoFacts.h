// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QVector>

class INxAbstractMediaItem;

/// One thing that is known of a media.
struct InfoFact
{
    const char *label; ///< Before it is translated.
    QString value; ///< In the user's language; never empty.
};

/// What the files of media contain, in words: for the command line and for the window.
class InfoFacts
{
    Q_DECLARE_TR_FUNCTIONS(InfoFacts)
public:
    InfoFacts() = delete;

    /// Length, picture, sound and so on; what is not known is left out. Never reaches for a disk.
    [[nodiscard]] static QVector<InfoFact> contents(const INxAbstractMediaItem &media);
    /// The fact's label in the user's language.
    [[nodiscard]] static QString label(const InfoFact &fact);
};
