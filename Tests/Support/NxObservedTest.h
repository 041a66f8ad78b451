// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NxTestLog.h"

#include <QByteArray>
#include <QMetaMethod>
#include <QMetaObject>
#include <QTest>

#include <array>

/// A test class whose functions are followed by a look at the log.
///
/// Qt Test calls private slots through the class's meta-object and offers no hook of its own, so
/// this class hands it a copy of the meta-object whose call function does the extra work.
template<typename Test>
class NxObservedTest : public Test
{
public:
    const QMetaObject *metaObject() const override
    {
        static const Chain chain;
        return &chain.copies.front();
    }

private:
    /// Copies of the meta-objects from Test up to, not including, QObject.
    struct Chain
    {
        static constexpr int Longest = 4;

        Chain()
        {
            const QMetaObject *original = &Test::staticMetaObject;
            for (int i = 0; i < Longest && original != &QObject::staticMetaObject; ++i) {
                originals()[i] = original;
                copies[i] = *original;
                copies[i].d.static_metacall = calls[i];
                original = original->superClass();
                if (i + 1 < Longest && original != &QObject::staticMetaObject)
                    copies[i].d.superdata = &copies[i + 1];
            }
        }

        std::array<QMetaObject, Longest> copies;
    };

    static std::array<const QMetaObject *, Chain::Longest> &originals()
    {
        static std::array<const QMetaObject *, Chain::Longest> list{};
        return list;
    }

    template<int Level>
    static void observedCall(QObject *object, QMetaObject::Call call, int id, void **arguments)
    {
        const QMetaObject *original = originals()[Level];
        if (call != QMetaObject::InvokeMetaMethod) {
            original->d.static_metacall(object, call, id, arguments);
            return;
        }
        NxTestLog::listenToQt();
        original->d.static_metacall(object, call, id, arguments);
        const QByteArray name = original->method(original->methodOffset() + id).name();
        if (name == "init" || name.endsWith("_data"))
            return; // Announcements made here are for the function that follows.
        const QByteArray complaints = NxTestLog::takeComplaints().toUtf8();
        if (!complaints.isEmpty())
            QTest::qFail(complaints.constData(), name.constData(), 0);
    }

    using CallFunction = void (*)(QObject *, QMetaObject::Call, int, void **);
    static constexpr std::array<CallFunction, Chain::Longest> calls{
        &observedCall<0>, &observedCall<1>, &observedCall<2>, &observedCall<3>};
};
