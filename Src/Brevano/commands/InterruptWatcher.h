// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>

#include <memory>

/// Notices that the user wants the program to stop (Ctrl-C, or a request to terminate).
///
/// The first request is a signal of this object, delivered by the event loop; a second one of the
/// same kind ends the process at once. One object at a time.
class InterruptWatcher : public QObject
{
    Q_OBJECT
public:
    explicit InterruptWatcher(QObject *parent = nullptr);
    ~InterruptWatcher() override;

Q_SIGNALS:
    void interrupted();

private:
    class Private;
    const std::unique_ptr<Private> d;
};
