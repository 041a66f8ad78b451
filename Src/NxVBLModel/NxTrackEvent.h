// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

#include <QString>
#include <QVariant>
#include <QVector>

#include <utility>

/// A usage event: a name and properties in the order in which they were set.
///
/// May be made and turned into JSON on any thread; sendEvent() is for the GUI thread.
class NXVBLMODEL_EXPORT NxTrackEvent
{
public:
    explicit NxTrackEvent(const QString &name);
    virtual ~NxTrackEvent();

    [[nodiscard]] QString name() const;
    /// A key that is there keeps its place and gets the new value.
    void setProperty(const QString &key, const QVariant &value);
    /// A key that is not there is ignored.
    void removeProperty(const QString &key);
    /// Invalid for a key that is not there.
    [[nodiscard]] QVariant property(const QString &key) const;
    /// Hands the event to the installed engine; without one it goes nowhere.
    virtual void sendEvent();
    /// The properties as one JSON object, keys in the order in which they were set.
    [[nodiscard]] QString toJson() const;

private:
    QString m_name;
    QVector<std::pair<QString, QVariant>> m_properties;
};
