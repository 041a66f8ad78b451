// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxReadingOrder.h>

#include <Support/NxTestMain.h>

#include <QStringList>
#include <QTest>

#include <algorithm>
#include <random>
#include <vector>

namespace {

constexpr auto Facts = NxReadWave::Facts;
constexpr auto Pictures = NxReadWave::Pictures;

/// The same order, written down as plainly as can be.
class PlainOrder
{
public:
    void add(qint64 media, NxReadWave wave)
    {
        if (!contains(media, wave))
            line(false, wave).push_back(media);
    }
    void addVisible(qint64 media, NxReadWave wave)
    {
        drop(&line(false, wave), media);
        if (!contains(media, wave))
            line(true, wave).push_back(media);
    }
    void forgetVisible()
    {
        for (const NxReadWave wave : {Facts, Pictures}) {
            std::vector<qint64> &seen = line(true, wave);
            std::vector<qint64> &others = line(false, wave);
            others.insert(others.begin(), seen.begin(), seen.end());
            seen.clear();
        }
    }
    void remove(qint64 media)
    {
        for (std::vector<qint64> &each : m_lines)
            drop(&each, media);
    }
    std::optional<NxReadingOrder::Item> take()
    {
        for (size_t i = 0; i < m_lines.size(); ++i) {
            if (m_lines[i].empty())
                continue;
            const NxReadingOrder::Item item{m_lines[i].front(), NxReadWave(i % 2)};
            m_lines[i].erase(m_lines[i].begin());
            return item;
        }
        return std::nullopt;
    }
    [[nodiscard]] bool contains(qint64 media, NxReadWave wave)
    {
        const auto holds = [media](const std::vector<qint64> &each) {
            return std::find(each.begin(), each.end(), media) != each.end();
        };
        return holds(line(true, wave)) || holds(line(false, wave));
    }
    [[nodiscard]] qint64 waiting(NxReadWave wave)
    {
        return qint64(line(true, wave).size() + line(false, wave).size());
    }

private:
    std::vector<qint64> &line(bool visible, NxReadWave wave)
    {
        return m_lines[(visible ? 0 : 2) + size_t(wave)];
    }
    static void drop(std::vector<qint64> *line, qint64 media)
    {
        line->erase(std::remove(line->begin(), line->end(), media), line->end());
    }
    std::array<std::vector<qint64>, 4> m_lines; // Visible facts, pictures; other facts, pictures.
};

/// "f1" for facts, "p1" for pictures.
template<typename Order>
QString taken(Order *order)
{
    const std::optional<NxReadingOrder::Item> item = order->take();
    const QString letter = QStringLiteral("fp");
    return item ? letter.at(int(item->wave)) + QString::number(item->media) : QString();
}

QString allTaken(NxReadingOrder *order)
{
    QStringList items;
    for (QString item = taken(order); !item.isEmpty(); item = taken(order))
        items.append(item);
    return items.join(QLatin1Char(' '));
}

/// "f1 F2 p3 P4": facts, visible facts, pictures, visible pictures; "-5" removes, "." forgets
/// what is visible, "!" forgets everything.
void perform(NxReadingOrder *order, const QString &script)
{
    for (const QString &step : script.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const qint64 media = step.mid(1).toLongLong();
        const QChar what = step.at(0);
        const NxReadWave wave = what.toLower() == QLatin1Char('f') ? Facts : Pictures;
        if (what == QLatin1Char('-'))
            order->remove(media);
        else if (what == QLatin1Char('.'))
            order->forgetVisible();
        else if (what == QLatin1Char('!'))
            order->clear();
        else if (what.isUpper())
            order->addVisible(media, wave);
        else
            order->add(media, wave);
    }
}

} // namespace

class tst_NxReadingOrder : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theNextIsChosenByWhoWaits_data();
    void theNextIsChosenByWhoWaits();
    void itIsKnownWhoWaits();
    void anyHistoryGivesThePlainOrder_data();
    void anyHistoryGivesThePlainOrder();
    void scrollingToAndFroCostsNoMemory();
};

void tst_NxReadingOrder::theNextIsChosenByWhoWaits_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("order");
    const auto row = [](const char *name, const char *script, const char *order) {
        QTest::newRow(name) << QString::fromLatin1(script) << QString::fromLatin1(order);
    };
    row("nothing", "", "");
    row("as they came", "f3 f1 f2", "f3 f1 f2");
    row("facts before pictures", "p1 f2 p3 f4", "f2 f4 p1 p3");
    row("one that waits keeps its place", "f1 f2 f1", "f1 f2");
    row("facts and pictures of one file", "f1 p1", "f1 p1");
    row("visible ones first", "f1 f2 p3 F2", "f2 f1 p3");
    row("visible pictures before other facts", "f1 P2 F3", "f3 p2 f1");
    row("visible ones as they were looked at", "F2 F1 F2", "f2 f1");
    row("visible ones are not added behind", "F1 f2 f1", "f1 f2");
    row("no longer visible ones are next", "f1 F2 F3 .", "f2 f3 f1");
    row("looked at, left, looked at", "f1 f2 F2 . F1", "f1 f2");
    row("removed ones are not taken", "f1 F2 p1 p3 -1 -2", "p3");
    row("removed and added ones are the last", "f1 f2 -1 f1", "f2 f1");
    row("cleared", "f1 F2 p3 P4 !", "");
    row("added after clearing", "f1 ! f2 f1", "f2 f1");
}

void tst_NxReadingOrder::theNextIsChosenByWhoWaits()
{
    QFETCH(QString, script);
    NxReadingOrder order;
    perform(&order, script);
    QTEST(allTaken(&order), "order");
    QCOMPARE(order.waiting(Facts), 0);
    QCOMPARE(order.waiting(Pictures), 0);
}

void tst_NxReadingOrder::itIsKnownWhoWaits()
{
    NxReadingOrder order;
    perform(&order, QStringLiteral("f1 F2 p2"));
    QCOMPARE(order.waiting(Facts), 2);
    QCOMPARE(order.waiting(Pictures), 1);
    QVERIFY(order.contains(1, Facts));
    QVERIFY(!order.contains(1, Pictures));
    QVERIFY(order.contains(2, Facts));
    QVERIFY(order.contains(2, Pictures));
    QCOMPARE(taken(&order), QStringLiteral("f2"));
    QVERIFY(!order.contains(2, Facts));
    QCOMPARE(order.waiting(Facts), 1);
}

void tst_NxReadingOrder::anyHistoryGivesThePlainOrder_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= 20; ++seed)
        QTest::newRow(qPrintable(QStringLiteral("seed %1").arg(seed))) << seed;
}

void tst_NxReadingOrder::anyHistoryGivesThePlainOrder()
{
    QFETCH(unsigned, seed);
    std::mt19937 random(seed);
    NxReadingOrder order;
    PlainOrder plain;
    for (int step = 0; step < 5'000; ++step) {
        const qint64 media = qint64(random() % 30);
        const NxReadWave wave = NxReadWave(random() % 2);
        const unsigned what = random() % 16;
        if (what < 6) {
            order.add(media, wave);
            plain.add(media, wave);
        } else if (what < 10) {
            order.addVisible(media, wave);
            plain.addVisible(media, wave);
        } else if (what < 11) {
            order.forgetVisible();
            plain.forgetVisible();
        } else if (what < 12) {
            order.remove(media);
            plain.remove(media);
        } else {
            QCOMPARE(taken(&order), taken(&plain));
        }
        QCOMPARE(order.waiting(wave), plain.waiting(wave));
        QCOMPARE(order.contains(media, wave), plain.contains(media, wave));
    }
}

void tst_NxReadingOrder::scrollingToAndFroCostsNoMemory()
{
    NxReadingOrder order;
    constexpr qint64 many = 200;
    constexpr int times = 20'000;
    for (qint64 media = 0; media < many; ++media)
        order.add(media, Facts);
    for (int time = 0; time < times; ++time) {
        order.addVisible(time % many, Facts);
        order.forgetVisible();
    }
    QCOMPARE(order.waiting(Facts), many);
    QVERIFY2(order.placesKept() < size_t(many) * 4, "places that were left are dropped");
}

NX_TEST_MAIN(tst_NxReadingOrder)
#include "tst_NxReadingOrder.moc"
