// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ScriptedFilms.h"

namespace {

constexpr std::chrono::seconds Generous{60};
constexpr std::chrono::milliseconds Short{3'000};

} // namespace

ScriptedFilms::ScriptedFilms(const QString &manner) : m_footage(manner) {}

NxPreviewSettings ScriptedFilms::settings() const
{
    NxPreviewSettings settings;
    settings.program = [] { return NxResult<QString>(QStringLiteral(NX_SCRIPTED_PLAYER)); };
    settings.cacheFolder = m_footage.cacheFolder();
    settings.startLimit = settings.answerLimit = settings.idleLimit = Generous;
    return settings;
}

NxPreviewSettings ScriptedFilms::impatient() const
{
    NxPreviewSettings settings = this->settings();
    settings.answerLimit = Short;
    return settings;
}

QString ScriptedFilms::film(const QString &name) const
{
    return QStringLiteral("/nowhere/") + name;
}

QStringList ScriptedFilms::opened() const
{
    QStringList names;
    for (const QString &line : orders()) {
        if (line.startsWith(QLatin1String("open ")))
            names.append(line.section(QLatin1Char(' '), 1, 1));
    }
    return names;
}
