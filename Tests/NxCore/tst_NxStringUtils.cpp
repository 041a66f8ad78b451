// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxStringUtils.h>

#include <Support/NxTestMain.h>

#include <QFont>
#include <QFontMetrics>
#include <QTest>

class tst_NxStringUtils : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void measuresTheAdvance_data();
    void measuresTheAdvance();
    void growsWithFontAndText();
};

void tst_NxStringUtils::measuresTheAdvance_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << QString();
    QTest::newRow("a word") << QStringLiteral("Holiday");
    QTest::newRow("blanks at the end count") << QStringLiteral("Holiday   ");
}

void tst_NxStringUtils::measuresTheAdvance()
{
    QFETCH(QString, text);
    QFont font;
    font.setPixelSize(14);
    QCOMPARE(NxStringUtils::calcTextLenght(font, text), QFontMetrics(font).horizontalAdvance(text));
}

void tst_NxStringUtils::growsWithFontAndText()
{
    QFont small;
    small.setPixelSize(10);
    QFont large;
    large.setPixelSize(40);
    const QString word = QStringLiteral("Holiday");
    QCOMPARE(NxStringUtils::calcTextLenght(small, QString()), 0);
    QVERIFY(NxStringUtils::calcTextLenght(small, word) > 0);
    QVERIFY(NxStringUtils::calcTextLenght(large, word)
            > 2 * NxStringUtils::calcTextLenght(small, word));
    QVERIFY(NxStringUtils::calcTextLenght(small, word + word)
            > NxStringUtils::calcTextLenght(small, word));
}

NX_TEST_MAIN(tst_NxStringUtils)
#include "tst_NxStringUtils.moc"
