// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxTestHome.h"

#include <QByteArray>

#include <array>
#include <utility>

NxTestHome::NxTestHome()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsEmpty("XDG_DATA_HOME"))
        return;

    m_home.emplace();
    const std::array<std::pair<const char *, const char *>, 5> folders{{
        {"HOME", "home"},
        {"XDG_DATA_HOME", "data"},
        {"XDG_CACHE_HOME", "cache"},
        {"XDG_CONFIG_HOME", "config"},
        {"XDG_RUNTIME_DIR", "runtime"},
    }};
    for (const auto &[variable, name] : folders)
        qputenv(variable, m_home->makeDir(QLatin1String(name)).toUtf8());
}
