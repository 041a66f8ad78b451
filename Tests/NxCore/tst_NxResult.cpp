// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxResult.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <memory>

namespace {

NxResult<int> half(int number)
{
    if (number % 2 != 0)
        return NxError{QStringLiteral("%1 is odd").arg(number)};
    return number / 2;
}

NxResult<void> demandEven(int number)
{
    if (number % 2 != 0)
        return NxError{QStringLiteral("%1 is odd").arg(number)};
    return {};
}

} // namespace

class tst_NxResult : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void holdsAValue();
    void holdsAReason();
    void holdsDoneOrAReason();
    void movesItsValueOut();
    void tellsAnErrorFromAValueOfTheSameType();
};

void tst_NxResult::holdsAValue()
{
    const NxResult<int> result = half(8);
    QVERIFY(result);
    QCOMPARE(*result, 4);
    QCOMPARE(result.errorText(), QString());
}

void tst_NxResult::holdsAReason()
{
    const NxResult<int> result = half(7);
    QVERIFY(!result);
    QCOMPARE(result.error().message, QStringLiteral("7 is odd"));
    QCOMPARE(result.errorText(), QStringLiteral("7 is odd"));
}

void tst_NxResult::holdsDoneOrAReason()
{
    QVERIFY(demandEven(2));
    QCOMPARE(demandEven(2).errorText(), QString());
    const NxResult<void> refused = demandEven(3);
    QVERIFY(!refused);
    QCOMPARE(refused.error().message, QStringLiteral("3 is odd"));
    QCOMPARE(refused.errorText(), QStringLiteral("3 is odd"));
}

void tst_NxResult::movesItsValueOut()
{
    NxResult<std::unique_ptr<int>> result = std::make_unique<int>(5);
    QCOMPARE(**result, 5);
    const std::unique_ptr<int> taken = result.take();
    QCOMPARE(*taken, 5);
    QVERIFY(result);
}

void tst_NxResult::tellsAnErrorFromAValueOfTheSameType()
{
    const NxResult<QString> value = QStringLiteral("a text");
    QVERIFY(value);
    QCOMPARE(value->size(), 6);
}

NX_TEST_MAIN(tst_NxResult)
#include "tst_NxResult.moc"
