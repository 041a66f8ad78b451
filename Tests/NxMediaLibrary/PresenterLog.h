// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>

#include <QHash>
#include <QMetaMethod>
#include <QObject>
#include <QStringList>

/// Writes down every signal of the objects it follows, in the order of their emission, each as
/// "name: signal(arguments)". Others may append lines of their own.
///
/// Receivers that were connected before follow() hear a signal first: what they emit stands before
/// the line of that signal.
class PresenterLog : public QObject
{
public:
    void follow(const QObject *sender, const QString &name)
    {
        m_names.insert(sender, name);
        const QMetaObject *meta = sender->metaObject();
        for (int i = firstMethod(); i < meta->methodCount(); ++i) {
            if (meta->method(i).methodType() == QMetaMethod::Signal)
                QMetaObject::connect(sender, i, this, firstMethod(), Qt::DirectConnection);
        }
    }
    /// What was written since the last call.
    QStringList take()
    {
        QStringList taken;
        taken.swap(lines);
        return taken;
    }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
    {
        const int own = QObject::qt_metacall(call, id, arguments);
        if (own < 0 || call != QMetaObject::InvokeMetaMethod)
            return own;
        const QMetaMethod signal = sender()->metaObject()->method(senderSignalIndex());
        QStringList texts;
        for (int i = 0; i < signal.parameterCount(); ++i)
            texts.append(text(signal.parameterTypes().at(i), arguments[i + 1]));
        lines.append(QStringLiteral("%1: %2(%3)")
                         .arg(m_names.value(sender()), QString::fromLatin1(signal.name()),
                              texts.join(QStringLiteral(", "))));
        return -1;
    }

    QStringList lines;

private:
    static int firstMethod() { return QObject::staticMetaObject.methodCount(); }

    template<typename Value>
    static const Value &as(const void *argument)
    {
        return *static_cast<const Value *>(argument);
    }
    static QString nameOf(const INxAbstractMedia *media)
    {
        return media ? media->name() : QStringLiteral("null");
    }
    template<typename Medias>
    static QString namesOf(const Medias &medias)
    {
        QStringList names;
        for (const INxAbstractMedia *media : medias)
            names.append(nameOf(media));
        return QStringLiteral("[%1]").arg(names.join(QLatin1Char(' ')));
    }
    static QString paramText(const NXMEDIALIBRARY::NxMediaImportParam &param)
    {
        return QStringLiteral("kind %1 [%2] to %3, %4 %5")
            .arg(param.kind)
            .arg(param.files.join(QLatin1Char(' ')), nameOf(param.folder),
                 flagText(param.firstFlag), flagText(param.secondFlag));
    }
    static QString flagText(bool flag)
    {
        return flag ? QStringLiteral("true") : QStringLiteral("false");
    }
    static QString text(const QByteArray &type, const void *argument)
    {
        if (type == "bool")
            return flagText(as<bool>(argument));
        if (type == "QString")
            return as<QString>(argument);
        if (type == "INxFolderMedia*")
            return nameOf(as<INxFolderMedia *>(argument));
        if (type == "INxAbstractMediaItem*&")
            return nameOf(as<INxAbstractMediaItem *>(argument));
        if (type == "QList<INxAbstractMedia*>")
            return namesOf(as<QList<INxAbstractMedia *>>(argument));
        if (type == "QList<INxAbstractMediaItem*>&")
            return namesOf(as<QList<INxAbstractMediaItem *>>(argument));
        if (type == "NXVBLMODEL::NxMediaCategoryType")
            return QString::number(as<NXVBLMODEL::NxMediaCategoryType>(argument));
        if (type == "NXMEDIALIBRARY::NxMediaImportParam")
            return paramText(as<NXMEDIALIBRARY::NxMediaImportParam>(argument));
        if (type == "NXMEDIALIBRARY::NxMediaAddCustomParam") {
            const auto &param = as<NXMEDIALIBRARY::NxMediaAddCustomParam>(argument);
            return QStringLiteral("kind %1 %2").arg(param.kind).arg(param.value.toString());
        }
        qCritical("nobody taught this log to write a %s", type.constData());
        return {};
    }

    QHash<const QObject *, QString> m_names;
};
