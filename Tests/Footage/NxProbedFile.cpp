// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxProbedFile.h"

#include <QJsonDocument>
#include <QProcess>
#include <QtTest>

namespace {

constexpr int longestRun = 60000; // ms
constexpr double second = 1e6; // us
constexpr int fullTurn = 360;

const QString shownEntries =
    QStringLiteral("format:format_tags:stream:stream_tags:stream_disposition:stream_side_data"
                   ":frame=stream_index,key_frame,best_effort_timestamp_time");

QString taggedIn(const QJsonObject &holder, const QString &name)
{
    const QJsonObject tags = holder.value(QLatin1String("tags")).toObject();
    for (auto tag = tags.begin(); tag != tags.end(); ++tag) {
        if (tag.key().compare(name, Qt::CaseInsensitive) == 0)
            return tag.value().toString();
    }
    return {};
}

} // namespace

NxProbedFile::NxProbedFile(const QString &path)
{
    QProcess probe;
    probe.start(QStringLiteral(NX_FFPROBE),
                {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-show_entries"),
                 shownEntries, QStringLiteral("-show_frames"), QStringLiteral("-of"),
                 QStringLiteral("json"), path});
    QVERIFY2(probe.waitForFinished(longestRun), qPrintable(probe.errorString()));
    QVERIFY2(probe.exitCode() == 0, probe.readAllStandardError().constData());
    m_answer = QJsonDocument::fromJson(probe.readAllStandardOutput()).object();
}

QJsonObject NxProbedFile::stream(const char *kind, bool isAttached) const
{
    const QJsonArray streams = m_answer.value(QLatin1String("streams")).toArray();
    for (const QJsonValue &value : streams) {
        const QJsonObject stream = value.toObject();
        const QJsonObject disposition = stream.value(QLatin1String("disposition")).toObject();
        const bool attached = disposition.value(QLatin1String("attached_pic")).toInt() != 0;
        if (stream.value(QLatin1String("codec_type")) == QLatin1String(kind)
            && attached == isAttached)
            return stream;
    }
    return {};
}

QVector<NxProbedFile::Frame> NxProbedFile::frames() const
{
    QVector<Frame> result;
    double first = 0;
    const QJsonValue index = stream("video").value(QLatin1String("index"));
    const QJsonArray frames = m_answer.value(QLatin1String("frames")).toArray();
    for (const QJsonValue &value : frames) {
        const QJsonObject frame = value.toObject();
        if (frame.value(QLatin1String("stream_index")) != index)
            continue;
        Frame read;
        read.isKey = frame.value(QLatin1String("key_frame")).toInt() != 0;
        bool hasTime = false;
        const QString text = frame.value(QLatin1String("best_effort_timestamp_time")).toString();
        const double time = text.toDouble(&hasTime);
        if (result.isEmpty())
            first = time;
        if (hasTime)
            read.timeUs = qRound64((time - first) * second);
        result.append(read);
    }
    return result;
}

int NxProbedFile::rotation() const
{
    const QJsonArray all = stream("video").value(QLatin1String("side_data_list")).toArray();
    for (const QJsonValue &sideData : all) {
        const QJsonValue counterclockwise = sideData.toObject().value(QLatin1String("rotation"));
        if (!counterclockwise.isUndefined())
            return (fullTurn - counterclockwise.toInt()) % fullTurn;
    }
    return 0;
}

QString NxProbedFile::tag(const QStringList &names) const
{
    QVector<QJsonObject> holders{m_answer.value(QLatin1String("format")).toObject()};
    const QJsonArray streams = m_answer.value(QLatin1String("streams")).toArray();
    for (const QJsonValue &stream : streams)
        holders.append(stream.toObject());
    for (const QString &name : names) {
        for (const QJsonObject &holder : qAsConst(holders)) {
            const QString text = taggedIn(holder, name);
            if (!text.isEmpty())
                return text;
        }
    }
    return {};
}

double NxProbedFile::containerSeconds() const
{
    const QJsonObject format = m_answer.value(QLatin1String("format")).toObject();
    return format.value(QLatin1String("duration")).toString().toDouble();
}

NxRational NxProbedFile::rational(const QJsonValue &value, char separator)
{
    const QStringList parts = value.toString().split(QLatin1Char(separator));
    if (parts.size() != 2)
        return {};
    return {parts.first().toInt(), parts.last().toInt()};
}
