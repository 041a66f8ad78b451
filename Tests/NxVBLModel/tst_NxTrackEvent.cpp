// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxTrackEvent.h>

#include <Support/NxTestMain.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <thread>
#include <vector>

class tst_NxTrackEvent : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void hasAName();
    void keepsTheOrderOfItsProperties();
    void replacesAPropertyInItsPlace();
    void answersAnInvalidPropertyForAnUnknownKey();
    void takesAPropertyAway();
    void isAnEmptyObjectWithoutProperties();
    void writesValuesAsJson_data();
    void writesValuesAsJson();
    void escapesKeys();
    void staysValidJsonWhateverTheText_data();
    void staysValidJsonWhateverTheText();
    void isMadeOnAnyThread();
};

void tst_NxTrackEvent::hasAName()
{
    QCOMPARE(NxTrackEvent(QStringLiteral("effect_tab_click")).name(),
             QStringLiteral("effect_tab_click"));
}

void tst_NxTrackEvent::keepsTheOrderOfItsProperties()
{
    NxTrackEvent event(QStringLiteral("click"));
    event.setProperty(QStringLiteral("zebra"), 1);
    event.setProperty(QStringLiteral("ape"), QStringLiteral("two"));
    event.setProperty(QStringLiteral("mole"), 3);
    QCOMPARE(event.toJson(), QStringLiteral(R"({"zebra":1,"ape":"two","mole":3})"));
}

void tst_NxTrackEvent::replacesAPropertyInItsPlace()
{
    NxTrackEvent event(QStringLiteral("click"));
    event.setProperty(QStringLiteral("b"), 1);
    event.setProperty(QStringLiteral("a"), 2);
    event.setProperty(QStringLiteral("b"), QStringLiteral("new"));
    QCOMPARE(event.toJson(), QStringLiteral(R"({"b":"new","a":2})"));
    QCOMPARE(event.property(QStringLiteral("b")), QVariant(QStringLiteral("new")));
}

void tst_NxTrackEvent::answersAnInvalidPropertyForAnUnknownKey()
{
    NxTrackEvent event(QStringLiteral("click"));
    event.setProperty(QStringLiteral("b"), 1);
    QVERIFY(!event.property(QStringLiteral("B")).isValid());
    QVERIFY(!event.property(QString()).isValid());
}

void tst_NxTrackEvent::takesAPropertyAway()
{
    NxTrackEvent event(QStringLiteral("click"));
    event.setProperty(QStringLiteral("a"), 1);
    event.setProperty(QStringLiteral("b"), 2);
    event.removeProperty(QStringLiteral("a"));
    event.removeProperty(QStringLiteral("unknown"));
    QCOMPARE(event.toJson(), QStringLiteral(R"({"b":2})"));
    event.setProperty(QStringLiteral("a"), 3);
    QCOMPARE(event.toJson(), QStringLiteral(R"({"b":2,"a":3})"));
}

void tst_NxTrackEvent::isAnEmptyObjectWithoutProperties()
{
    QCOMPARE(NxTrackEvent(QStringLiteral("click")).toJson(), QStringLiteral("{}"));
}

void tst_NxTrackEvent::writesValuesAsJson_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("json");
    const auto text = [](const char *utf8) { return QVariant(QString::fromUtf8(utf8)); };

    QTest::newRow("number") << QVariant(-5) << QStringLiteral("-5");
    QTest::newRow("fraction") << QVariant(1.5) << QStringLiteral("1.5");
    QTest::newRow("number beyond a double's precision")
        << QVariant(Q_INT64_C(9007199254740993)) << QStringLiteral("9007199254740993");
    QTest::newRow("largest number")
        << QVariant(~Q_UINT64_C(0)) << QStringLiteral("18446744073709551615");
    QTest::newRow("yes") << QVariant(true) << QStringLiteral("true");
    QTest::newRow("nothing") << QVariant() << QStringLiteral("null");
    QTest::newRow("empty text") << text("") << QStringLiteral(R"("")");
    QTest::newRow("quotes") << text("say \"no\"") << QStringLiteral(R"("say \"no\"")");
    QTest::newRow("backslash") << text("C:\\clips") << QStringLiteral(R"("C:\\clips")");
    QTest::newRow("line feed") << text("a\nb") << QStringLiteral(R"("a\nb")");
    QTest::newRow("tab") << text("a\tb") << QStringLiteral(R"("a\tb")");
    QTest::newRow("control character") << text("a\x01") << QStringLiteral(R"("a\u0001")");
    QTest::newRow("other scripts")
        << text("\xc3\xa9\xe6\xbc\xa2") << QString::fromUtf8("\"\xc3\xa9\xe6\xbc\xa2\"");
    QTest::newRow("emoji") << text("\xf0\x9f\x8e\xac") << QString::fromUtf8("\"\xf0\x9f\x8e\xac\"");
    QTest::newRow("list") << QVariant(QVariantList{1, QStringLiteral("a")})
                          << QStringLiteral(R"([1,"a"])");
}

void tst_NxTrackEvent::writesValuesAsJson()
{
    QFETCH(QVariant, value);
    QFETCH(QString, json);
    NxTrackEvent event(QStringLiteral("click"));
    event.setProperty(QStringLiteral("v"), value);
    QCOMPARE(event.toJson(), QStringLiteral("{\"v\":%1}").arg(json));
}

void tst_NxTrackEvent::escapesKeys()
{
    NxTrackEvent event(QStringLiteral("click"));
    event.setProperty(QStringLiteral("a\"b"), 1);
    QCOMPARE(event.toJson(), QStringLiteral(R"({"a\"b":1})"));
}

void tst_NxTrackEvent::staysValidJsonWhateverTheText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("every control character") << [] {
        QString all;
        for (ushort code = 0; code < 0x20; ++code)
            all += QChar(code);
        return all;
    }();
    QTest::newRow("line separators") << QString(QChar(0x2028)) + QChar(0x2029);
    QTest::newRow("placeholders") << QStringLiteral("%1 %2 %%");
    QTest::newRow("end of an object") << QStringLiteral("\"}],{");
}

void tst_NxTrackEvent::staysValidJsonWhateverTheText()
{
    QFETCH(QString, text);
    NxTrackEvent event(QStringLiteral("click"));
    event.setProperty(QStringLiteral("first"), text);
    event.setProperty(QStringLiteral("second"), text);
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(event.toJson().toUtf8(), &error);
    QCOMPARE(error.error, QJsonParseError::NoError);
    QCOMPARE(document.object().size(), 2);
    QCOMPARE(document.object().value(QStringLiteral("first")).toString(), text);
    QCOMPARE(document.object().value(QStringLiteral("second")).toString(), text);
}

void tst_NxTrackEvent::isMadeOnAnyThread()
{
    constexpr size_t threadCount = 4;
    std::vector<QString> made(threadCount);
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (size_t i = 0; i < threadCount; ++i) {
        threads.emplace_back([&made, i] {
            for (int round = 0; round < 200; ++round) {
                NxTrackEvent event(QStringLiteral("file_import"));
                event.setProperty(QStringLiteral("file"), QStringLiteral("clip %1").arg(i));
                event.setProperty(QStringLiteral("size"), int(i));
                made[i] = event.toJson();
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    for (size_t i = 0; i < threadCount; ++i)
        QCOMPARE(made[i], QStringLiteral(R"({"file":"clip %1","size":%1})").arg(i));
}

NX_TEST_MAIN(tst_NxTrackEvent)
#include "tst_NxTrackEvent.moc"
