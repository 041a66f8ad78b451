// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxTrackEvent.h>

#include <NxVBLModel/INxMediaEngine.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>

#include <algorithm>

namespace {

bool isLongNumber(const QVariant &value)
{
    return value.userType() == QMetaType::LongLong || value.userType() == QMetaType::ULongLong;
}

QString jsonText(const QVariant &value)
{
    if (isLongNumber(value))
        return value.toString(); // Qt would round a large id to the next double.
    // A JSON object would sort its keys, so each value is written as a list of one and unwrapped.
    const QByteArray list =
        QJsonDocument(QJsonArray{QJsonValue::fromVariant(value)}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}

} // namespace

NxTrackEvent::NxTrackEvent(const QString &name) : m_name(name) {}

NxTrackEvent::~NxTrackEvent() = default;

QString NxTrackEvent::name() const
{
    return m_name;
}

void NxTrackEvent::setProperty(const QString &key, const QVariant &value)
{
    const auto place = std::find_if(m_properties.begin(), m_properties.end(),
                                    [&key](const auto &property) { return property.first == key; });
    if (place != m_properties.end())
        place->second = value;
    else
        m_properties.append({key, value});
}

void NxTrackEvent::removeProperty(const QString &key)
{
    const auto isKey = [&key](const auto &property) { return property.first == key; };
    m_properties.erase(std::remove_if(m_properties.begin(), m_properties.end(), isKey),
                       m_properties.end());
}

QVariant NxTrackEvent::property(const QString &key) const
{
    for (const auto &property : m_properties) {
        if (property.first == key)
            return property.second;
    }
    return {};
}

void NxTrackEvent::sendEvent()
{
    if (INxMediaEngine *engine = NxMediaEngineDoor::engine())
        engine->trackEvent(*this);
}

QString NxTrackEvent::toJson() const
{
    QStringList members;
    members.reserve(m_properties.size());
    for (const auto &[key, value] : m_properties)
        members += jsonText(key) + QLatin1Char(':') + jsonText(value);
    return QLatin1Char('{') + members.join(QLatin1Char(',')) + QLatin1Char('}');
}
