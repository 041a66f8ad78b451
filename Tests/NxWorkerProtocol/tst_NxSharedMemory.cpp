// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWorkerProtocol/NxSharedMemory.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr qint64 Bytes = 1'000'000;

std::unique_ptr<NxSharedMemory> made()
{
    NxResult<std::unique_ptr<NxSharedMemory>> memory = NxSharedMemory::create(Bytes);
    return memory ? memory.take() : nullptr;
}

/// The same memory once more, as a worker has it.
QString nameOfCopy(const NxSharedMemory &memory)
{
    return QString::number(::dup(memory.name().toInt()));
}

} // namespace

class tst_NxSharedMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsNewAndEmpty();
    void bothSidesSeeTheSame();
    void itOutlivesEitherSide();
    void nobodyChangesItsSize();
    void onlyTheChildThatItIsMeantForKeepsIt();
    void whatIsNoMemoryIsRefused_data();
    void whatIsNoMemoryIsRefused();
    void aSmallerOneIsRefused();
};

void tst_NxSharedMemory::itIsNewAndEmpty()
{
    const auto memory = made();
    QVERIFY(memory);
    QCOMPARE(memory->size(), Bytes);
    QCOMPARE(std::count(memory->bytes(), memory->bytes() + Bytes, uchar(0)), Bytes);
    const auto other = made();
    QVERIFY(other);
    QVERIFY(other->name() != memory->name());
}

void tst_NxSharedMemory::bothSidesSeeTheSame()
{
    const auto editors = made();
    const auto workers = NxSharedMemory::attach(nameOfCopy(*editors), Bytes);
    QVERIFY2(workers, qPrintable(workers.errorText()));
    (*workers)->bytes()[Bytes - 1] = 7;
    QCOMPARE(editors->bytes()[Bytes - 1], uchar(7));
    editors->bytes()[0] = 9;
    QCOMPARE((*workers)->bytes()[0], uchar(9));
}

void tst_NxSharedMemory::itOutlivesEitherSide()
{
    auto editors = made();
    const auto workers = NxSharedMemory::attach(nameOfCopy(*editors), Bytes);
    QVERIFY(workers);
    (*workers)->bytes()[5] = 5;
    editors.reset();
    QCOMPARE((*workers)->bytes()[5], uchar(5));
}

void tst_NxSharedMemory::nobodyChangesItsSize()
{
    const auto memory = made();
    const int descriptor = memory->name().toInt();
    for (const qint64 size : {qint64(0), Bytes - 1, Bytes + 1}) {
        QCOMPARE(::ftruncate(descriptor, size), -1);
        QCOMPARE(errno, EPERM);
    }
    QCOMPARE(::ftruncate(descriptor, Bytes), 0);
}

void tst_NxSharedMemory::onlyTheChildThatItIsMeantForKeepsIt()
{
    const auto memory = made();
    const int descriptor = memory->name().toInt();
    QCOMPARE(::fcntl(descriptor, F_GETFD) & FD_CLOEXEC, FD_CLOEXEC);
    memory->passOn();
    QCOMPARE(::fcntl(descriptor, F_GETFD) & FD_CLOEXEC, 0);
}

void tst_NxSharedMemory::whatIsNoMemoryIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no name") << QString();
    QTest::newRow("no number") << QStringLiteral("memory");
    QTest::newRow("the output") << QStringLiteral("1");
    QTest::newRow("a descriptor that is not open") << QStringLiteral("1000000");
    QTest::newRow("less than nothing") << QStringLiteral("-1");
}

void tst_NxSharedMemory::whatIsNoMemoryIsRefused()
{
    QFETCH(QString, name);
    const auto memory = NxSharedMemory::attach(name, Bytes);
    QVERIFY(!memory);
    QVERIFY(!memory.errorText().isEmpty());
}

void tst_NxSharedMemory::aSmallerOneIsRefused()
{
    const auto memory = made();
    const QString name = nameOfCopy(*memory);
    QVERIFY(!NxSharedMemory::attach(name, Bytes + 1));
    QVERIFY(NxSharedMemory::attach(name, Bytes));
}

NX_TEST_MAIN(tst_NxSharedMemory)
#include "tst_NxSharedMemory.moc"
