// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "TreeSession.h"

#include <QLoggingCategory>
#include <QRandomGenerator>

#include <algorithm>
#include <utility>

namespace {

QString brokenModelRule; // What the model tester said since the last event.
QtMessageHandler previousHandler = nullptr;

void takeModelRules(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (qstrcmp(context.category, "qt.modeltest") == 0 && type != QtDebugMsg)
        brokenModelRule = message;
    else if (previousHandler)
        previousHandler(type, context, message);
}

} // namespace

const QVector<TreeSession::Kind> &TreeSession::kinds()
{
    static const QVector<Kind> table{
        {"add", &TreeSession::add, 30},
        {"remove", &TreeSession::remove, 14},
        {"move", &TreeSession::move, 14},
        {"rename", &TreeSession::rename, 14},
        {"find", &TreeSession::find, 14},
        {"changeUnknown", &TreeSession::changeUnknown, 4},
        {"addElsewhere", &TreeSession::addElsewhere, 3},
        {"removeElsewhere", &TreeSession::removeElsewhere, 3},
        {"endOnly", &TreeSession::endOnly, 4},
        {"nest", &TreeSession::nest, 4},
        {"loadInside", &TreeSession::loadInside, 3},
        {"clearInside", &TreeSession::clearInside, 1},
        {"unsubscribeInside", &TreeSession::unsubscribeInside, 2},
        {"load", &TreeSession::load, 6},
        {"clear", &TreeSession::clear, 1},
    };
    return table;
}

TreeSession::TreeSession()
    : m_root(std::make_unique<ScriptedFolder>(QStringLiteral("root"))),
      m_elsewhere(std::make_unique<ScriptedFolder>(QStringLiteral("elsewhere")))
{
    previousHandler = qInstallMessageHandler(takeModelRules);
    brokenModelRule.clear();
    plant(m_root.get(), QStringLiteral("A(B C(D)) E"));
    plant(m_elsewhere.get(), QStringLiteral("P(Q) R"));
}

TreeSession::~TreeSession()
{
    qInstallMessageHandler(previousHandler);
}

QString TreeSession::play(const TreeEvent &event)
{
    m_complaint.clear();
    (this->*kinds().at(event.kind).play)(event);
    return difference();
}

QString TreeSession::difference()
{
    QStringList told = m_viewer.takeTold();
    for (const NxLogRecord &record : m_log.records())
        told += QStringLiteral("error: ") + record.text;
    m_log.clear();
    QStringList expected = m_plain.takeTold();
    std::stable_partition(expected.begin(), expected.end(), [](const QString &line) {
        return !line.startsWith(QLatin1String("error: "));
    });
    const auto compare = [this](const char *what, const QString &is, const QString &should) {
        if (is != should)
            m_complaint += QStringLiteral("%1\n  is     %2\n  should %3\n")
                               .arg(QLatin1String(what), is, should);
    };
    compare("told", told.join(QLatin1String(", ")), expected.join(QLatin1String(", ")));
    compare("rows of the model", m_viewer.modelDrawing(), m_plain.drawing());
    compare("rows as told", m_viewer.drawing(), m_plain.drawing());
    compare("rules of models", std::exchange(brokenModelRule, {}), {});
    return m_complaint;
}

QVector<ScriptedFolder *> TreeSession::folders() const
{
    QVector<ScriptedFolder *> list{m_root.get()};
    for (int i = 0; i < list.size(); ++i) {
        for (const auto &child : list.at(i)->children)
            list += child.get();
    }
    return list;
}

ScriptedFolder *TreeSession::any(int number) const
{
    const QVector<ScriptedFolder *> all = folders();
    return all.at(number % all.size());
}

bool TreeSession::isShown(INxFolderMedia *folder) const
{
    return !m_plain.placeBelow(m_plain.root(), folder).isEmpty();
}

std::unique_ptr<ScriptedFolder> TreeSession::newFolder()
{
    return std::make_unique<ScriptedFolder>(QStringLiteral("f%1").arg(++m_serial));
}

QVector<TreeEvent> TreeSession::randomEvents(quint32 seed, int count)
{
    QVector<int> lots;
    for (int kind = 0; kind < kinds().size(); ++kind)
        lots += QVector<int>(kinds().at(kind).weight, kind);
    QRandomGenerator random(seed);
    const auto number = [&random] { return random.bounded(1000); };
    QVector<TreeEvent> events;
    for (int i = 0; i < count; ++i) {
        const int kind = lots.at(random.bounded(lots.size()));
        const int a = number();
        const int b = number();
        events.append({kind, a, b, number()});
    }
    return events;
}

QString TreeSession::playAll(const QVector<TreeEvent> &events)
{
    TreeSession session;
    session.loadRoot(session.m_root.get());
    for (int i = 0; i < events.size(); ++i) {
        const QString wrong = session.play(events.at(i));
        if (!wrong.isEmpty())
            return QStringLiteral("after event %1:\n%2").arg(i + 1).arg(wrong);
    }
    return {};
}

QVector<TreeEvent> TreeSession::shrunk(QVector<TreeEvent> events,
                                       const std::function<bool(const QVector<TreeEvent> &)> &fails)
{
    for (int length = events.size(); length > 0;) {
        bool isShorter = false;
        for (int at = 0; at < events.size();) {
            QVector<TreeEvent> fewer = events;
            fewer.remove(at, std::min(length, events.size() - at));
            if (fails(fewer)) {
                events = fewer;
                isShorter = true;
            } else {
                at += length;
            }
        }
        if (length > 1 || !isShorter)
            length /= 2;
    }
    return events;
}

QString TreeSession::text(const QVector<TreeEvent> &events)
{
    QString lines;
    for (const TreeEvent &event : events)
        lines += QStringLiteral("%1 %2 %3 %4\n")
                     .arg(QLatin1String(kinds().at(event.kind).name))
                     .arg(event.a)
                     .arg(event.b)
                     .arg(event.c);
    return lines;
}
