// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

class INxFootageService;
class INxProject;
class NxMediaItemView;

/// Has what the user looks at read before all else.
class VisibleFirst : public QObject
{
    Q_OBJECT
public:
    /// The view is not owned, and may die.
    explicit VisibleFirst(NxMediaItemView *view, QObject *parent = nullptr);
    ~VisibleFirst() override;

    /// Not owned; null: none. Called before the project closes.
    void setProject(INxProject *project);

private:
    void want();

    const QPointer<NxMediaItemView> m_view;
    QPointer<INxFootageService> m_service;
    QTimer m_soon; // While the user scrolls, nothing is asked for.
};
