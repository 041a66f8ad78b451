// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Opens a project in a process of its own, until it is killed or its input ends:
//   nxStoreHolder hold PROJECT     says "held", or why the project is read-only
//   nxStoreHolder write PROJECT    adds batches of seven media and says how many are committed
#include "StoreSamples.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

constexpr int BatchSize = 7;

void say(const QString &text)
{
    std::puts(qUtf8Printable(text));
    std::fflush(stdout);
}

int hold(NxProjectStore *store)
{
    say(store->isReadOnly() ? store->readOnlyReason() : QStringLiteral("held"));
    std::getchar();
    const NxResult<void> closed = store->close();
    return closed ? 0 : 1;
}

int write(NxProjectStore *store)
{
    const NxResult<NxProjectContents> contents = store->load();
    if (!contents)
        return 1;
    qint64 written = qint64(contents->media.size());
    while (true) {
        store->write(StoreSamples::addMedia(written + 1, BatchSize));
        written += BatchSize;
        if (const NxResult<void> committed = StoreSamples::commitAndWait(store); !committed)
            return 1;
        say(QString::number(written));
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    auto store = NxProjectStore::open(arguments.value(2), {});
    if (!store) {
        say(store.errorText());
        return 1;
    }
    return arguments.value(1) == QLatin1String("write") ? write(store->get()) : hold(store->get());
}
