// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCoreApplication>
#include <QString>

class ProjectHolder;
class QWidget;

/// Opens and makes projects for a user, who is told and asked what is needed on the way.
class ProjectDialogs
{
    Q_DECLARE_TR_FUNCTIONS(ProjectDialogs)
public:
    ProjectDialogs() = delete;

    /// Opens a project. One that is not there is made when the user wants it; why one cannot be
    /// opened is told. True when the project is open afterwards. The parent may be null.
    static bool open(ProjectHolder *holder, const QString &path, QWidget *parent);
    /// Makes a project; why that cannot be done is told. True when it is open afterwards.
    static bool create(ProjectHolder *holder, const QString &path, QWidget *parent);
};
