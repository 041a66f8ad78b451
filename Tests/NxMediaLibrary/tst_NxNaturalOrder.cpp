// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxNaturalOrder.h>

#include <Support/NxSeeds.h>
#include <Support/NxTestMain.h>

#include <QRandomGenerator>
#include <QTest>
#include <QVector>

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

#include "PlainNaturalOrder.h"

using PlainNaturalOrder::compareNames;
using PlainNaturalOrder::Name;
using PlainNaturalOrder::read;

namespace {

// Random names that are close to each other, so that the late rules decide, too.
class NameMaker
{
public:
    explicit NameMaker(quint32 seed) : m_random(seed) {}

    QStringList names(int count)
    {
        QStringList made{QString(),
                         QString(10000, QLatin1Char('7')),
                         QString(300, QLatin1Char('0')) + QString(9999, QLatin1Char('7')),
                         QString(300, QLatin1Char('-')) + QLatin1Char('a'),
                         QString(301, QLatin1Char('0')),
                         QString(300, QLatin1Char('0'))};
        while (made.size() < count) {
            const QString &model = made.at(below(made.size()));
            made.append(below(3) == 0 || model.size() > 100 ? fresh() : changed(model));
        }
        return made;
    }
    int below(int bound) { return int(m_random.bounded(bound)); }

private:
    QString piece()
    {
        static const QStringList pools{
            QStringLiteral("aAbBcCeEoOzZ"),
            QStringLiteral("000123456789"),
            QStringLiteral("0123456789"),
            QStringLiteral(" \t\n\v\f\r!\"#$%&()*,./:;?@[\\]^_`{|}~+<=>"),
            QStringLiteral("--''"),
            QString::fromUtf16(u"\u0001\u0002\u001F\u007F\u0085\u009F"),
            QString::fromUtf16(u"\u0300\u0301\u0308\u0323\u0335\u0345\u20DD\uFE0F"),
            QString::fromUtf16(u"\u00E9\u00C9\u00E8\u00F8\u0142\u0110\u0127\u01FE\u1EAD\u0130"),
            QString::fromUtf16(u"\u00DF\u1E9E\u00E6\u00C6\u01FD\u0153\u00DE\uFB01\uFB03\u0133"),
            QString::fromUtf16(u"\uFF21\uFF41\uFF11\uFF19\uFF71\uFF9E\uFF0D\uFF01\uFF07"),
            QString::fromUtf16(u"\u03B1\u0391\u03C2\u03C3\u0416\u0436\u05D0\u05B8\u0627\u0650"),
            QString::fromUtf16(u"\u202A\u202E\u200F\u2067\u2069\u061C\u0661\u0669\u0966"),
            QString::fromUtf16(u"\uAC00\uAC01\u1100\u1161\u4E00\u3042\u30A2\u0915\u093F\u094D"),
            QString::fromUtf16(u"\u2460\u00BD\u00B2\u2163\u2122\u20AC\u00A0\u3000\uFDFA\u0131"),
        };
        const int pool = below(pools.size() + 3);
        if (pool < pools.size())
            return pools.at(pool).at(below(pools.at(pool).size()));
        if (pool == pools.size())
            return QChar(0xD800 + below(0x800));
        if (pool == pools.size() + 1)
            return QChar(below(0x10000));
        static const QVector<uint> far{0x1F600, 0x1D7CE, 0x1D7D7, 0x10400, 0x10428, 0x1D400};
        return QString::fromUcs4(&far.at(below(far.size())), 1);
    }
    QString fresh()
    {
        QString name;
        for (int i = below(9); i > 0; --i)
            name += piece();
        return name;
    }
    QString changed(QString name)
    {
        const int at = below(name.size() + 1);
        switch (below(4)) {
        case 0:
            return name.insert(at, piece());
        case 1:
            return name.remove(at, 1);
        case 2:
            return below(2) ? name.toUpper() : name.toLower();
        default:
            return name.replace(at, 1, piece());
        }
    }

    QRandomGenerator m_random;
};

using Names = std::vector<QString>;

Names differentNames(int count)
{
    const QStringList list = NameMaker(9001).names(count);
    return Names(list.begin(), list.begin() + count);
}

Names manyEqualNames(int count)
{
    NameMaker maker(9002);
    const QStringList few = maker.names(46).mid(6); // Without the very long ones.
    Names names;
    while (int(names.size()) < count)
        names.push_back(few.at(maker.below(few.size())));
    return names;
}

// Differ only behind many equal bytes of their keys, and some are the beginnings of others.
Names namesThatBeginAlike(int count)
{
    NameMaker maker(9003);
    Names names;
    while (int(names.size()) < count) {
        QString name(QLatin1Char('a'));
        name += QString(8 * maker.below(12), QLatin1Char('a')) + QStringLiteral("100000000000000");
        if (maker.below(3) > 0)
            name +=
                QStringLiteral("-%1").arg(maker.below(400), maker.below(4), 10, QLatin1Char('0'));
        names.push_back(maker.below(2) ? name.toUpper() : name);
    }
    return names;
}

// As cameras and people name them.
Names namesOfFootage(int count)
{
    NameMaker maker(9004);
    Names names;
    while (int(names.size()) < count) {
        const int number = maker.below(3000);
        switch (maker.below(4)) {
        case 0:
            names.push_back(QStringLiteral("IMG_%1.JPG").arg(number, 4, 10, QLatin1Char('0')));
            break;
        case 1:
            names.push_back(QStringLiteral("2024-%1-%2 clip %3")
                                .arg(1 + maker.below(12))
                                .arg(1 + maker.below(28))
                                .arg(number));
            break;
        case 2:
            names.push_back(QStringLiteral("Scene %1 take %2.mov").arg(number % 90).arg(number));
            break;
        default:
            names.push_back(QString::fromUtf8("Müller Straße %1 ’t").arg(number));
        }
    }
    return names;
}

std::vector<quint32> plainlySorted(const Names &names, bool descending)
{
    std::vector<Name> readNames;
    for (const QString &name : names)
        readNames.push_back(read(name));
    std::vector<quint32> order(names.size());
    std::iota(order.begin(), order.end(), 0u);
    std::stable_sort(order.begin(), order.end(), [&](quint32 a, quint32 b) {
        const int compared = compareNames(readNames[a], readNames[b]);
        return descending ? compared > 0 : compared < 0;
    });
    return order;
}

int sign(int number)
{
    return number < 0 ? -1 : number > 0 ? 1 : 0;
}

int compareBytes(const QByteArray &a, const QByteArray &b)
{
    return a < b ? -1 : b < a ? 1 : 0;
}

QByteArray shown(const QString &a, const QString &b)
{
    const auto hex = [](const QString &text) {
        QByteArray codes;
        for (const QChar unit : text.left(40))
            codes += QByteArray::number(unit.unicode(), 16) + ' ';
        return codes;
    };
    return hex(a) + "| " + hex(b);
}

// Each name must stand before its next, equal ones by their place: only one order is so.
QByteArray faultOfOrder(const Names &names, const std::vector<quint32> &order, bool descending)
{
    std::vector<bool> seen(names.size(), false);
    for (size_t i = 0; i < order.size(); ++i) {
        const quint32 place = order[i];
        if (place >= names.size() || seen[place])
            return "not each name once";
        seen[place] = true;
        if (i == 0)
            continue;
        const quint32 before = order[i - 1];
        const int direction = descending ? -1 : 1;
        const int pairwise = direction * NxNaturalOrder::compare(names[before], names[place]);
        const int plain = direction * PlainNaturalOrder::compare(names[before], names[place]);
        if (pairwise > 0 || plain > 0)
            return "the wrong way round: " + shown(names[before], names[place]);
        if ((pairwise == 0) != (plain == 0) || (plain == 0 && before > place))
            return "equal names have changed places: " + shown(names[before], names[place]);
    }
    return order.size() == names.size() ? QByteArray() : QByteArray("names are missing");
}

} // namespace

Q_DECLARE_METATYPE(Names)

class tst_NxNaturalOrder : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void putsOneNameBeforeTheOther_data();
    void putsOneNameBeforeTheOther();
    void takesNamesForEqual_data();
    void takesNamesForEqual();
    void ranksTheSymbols();
    void ordersLongNamesByTheSameRules_data();
    void ordersLongNamesByTheSameRules();
    void agreesWithPairwiseComparison_data();
    void agreesWithPairwiseComparison();
    void isATotalOrder();
    void sortsAsPairwiseComparisonDoes_data();
    void sortsAsPairwiseComparisonDoes();
    void sortsListsOfAnyKindAndLength_data();
    void sortsListsOfAnyKindAndLength();
    void keepsTheOrderOfEqualNamesInBothDirections();
    void sortsNothing();
};

void tst_NxNaturalOrder::putsOneNameBeforeTheOther_data()
{
    QTest::addColumn<QString>("smaller");
    QTest::addColumn<QString>("larger");
    const auto row = [](const char *smaller, const char *larger) {
        QTest::addRow("%s < %s", smaller, larger)
            << QString::fromUtf8(smaller) << QString::fromUtf8(larger);
    };
    row("2string", "3string");
    row("3string", "20string");
    row("st2ring", "st3ring");
    row("foo_0", "foo0");
    row("IMG_9", "IMG_10");
    row("a001", "a01");
    row("a01", "a1");
    row("a1", "a2");
    row("a001", "a2");
    row("a2", "a10");
    row("a01b", "a1a");
    row("00", "0");
    row("0", "1");
    row("1", "2147483648");
    row("99999999999999999999", "100000000000000000000");
    row("A", "A10");
    row("A10", "A11");
    row("e", "é");
    row("é", "f");
    row("éa", "eb");
    row("Scene 2 take 9", "Scene 2 take 10");
    row("coop", "co-op");
    row("co-op", "cop");
    row("coop", "cop");
    row("X.log", "X-1.log");
    row("coop-", "co-op");
    row("co'op", "co-op");
    row("co\x01op", "co'op");
    row("co\x01op", "co\x02op");
    row("co-op", "co-op-");
    row("", " ");
    row("", "a");
    row("", "-");
    row(" ", "\t");
    row("9", "a");
    row("~", "+");
    row(">", "€");
    row("€", "0");
    row("😀", "0");
    row("strasse", "strassf");
    row("straße", "strassf");
    row("æ", "af");
    row("œ", "of");
    row("þ", "ti");
    row("o", "ø");
    row("ø", "p");
    row("l", "ł");
    row("đ", "e");
    row("ħ", "i");
    row("z", "ə");
    row("ə", "α");
    row("ω", "а");
    row("я", "א");
    row("ת", "ا");
    row("ي", "あ");
    row("a", "ａ");
    row("ａ", "b");
    row("é", "ｅ\xCC\x82");
    row("a\xCC\x80", "a\xCC\x81");
    row("aé", "éa");
    row("a٢", "a10");
    row("é-a", "ea-b");
    row("1-2", "12");
}

void tst_NxNaturalOrder::putsOneNameBeforeTheOther()
{
    QFETCH(QString, smaller);
    QFETCH(QString, larger);
    QVERIFY(NxNaturalOrder::key(smaller) < NxNaturalOrder::key(larger));
    QVERIFY(NxNaturalOrder::compare(smaller, larger) < 0);
    QVERIFY(NxNaturalOrder::compare(larger, smaller) > 0);
    QCOMPARE(PlainNaturalOrder::compare(smaller, larger), -1);
    QCOMPARE(PlainNaturalOrder::compare(larger, smaller), 1);
}

void tst_NxNaturalOrder::takesNamesForEqual_data()
{
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("other");
    const auto row = [](const char *one, const char *other) {
        QTest::addRow("%s = %s", one, other) << QString::fromUtf8(one) << QString::fromUtf8(other);
    };
    row("", "");
    row("B", "b");
    row("Clip 07.MOV", "clip 07.mov");
    row("straße", "STRASSE");
    row("ẞ", "ß");
    row("Æon", "aeon");
    row("Œuvre", "oeuvre");
    row("Þor", "thor");
    row("É", "e\xCC\x81");
    row("Ø", "ø");
    row("ﬁlm", "film");
    row("ς", "Σ");
    row("Ж", "ж");
    row("٣", "3");
    row("가", "\xE1\x84\x80\xE1\x85\xA1");
}

void tst_NxNaturalOrder::takesNamesForEqual()
{
    QFETCH(QString, one);
    QFETCH(QString, other);
    QCOMPARE(NxNaturalOrder::key(one), NxNaturalOrder::key(other));
    QCOMPARE(NxNaturalOrder::compare(one, other), 0);
    QCOMPARE(PlainNaturalOrder::compare(one, other), 0);
}

void tst_NxNaturalOrder::ranksTheSymbols()
{
    const QString symbols = QStringLiteral(" \t\n\v\f\r!\"#$%&()*,./:;?@[\\]^_`{|}~+<=>")
                            + QString::fromUtf16(u"\u00A2\u20AC") + QChar(0xD800) + QChar(0xDFFF);
    for (int i = 1; i < symbols.size(); ++i) {
        const QString smaller = symbols.at(i - 1);
        const QString larger = symbols.at(i);
        QVERIFY2(NxNaturalOrder::compare(smaller, larger) < 0, shown(smaller, larger).constData());
        QVERIFY2(NxNaturalOrder::compare(larger, QStringLiteral("0")) < 0,
                 shown(larger, {}).constData());
    }
}

void tst_NxNaturalOrder::ordersLongNamesByTheSameRules_data()
{
    QTest::addColumn<QStringList>("names");
    const QString letters(400, QLatin1Char('a'));
    QStringList hyphens;
    for (const int place : {399, 256, 255, 254, 253, 193, 192, 191, 190, 1, 0})
        hyphens.append(QString(letters).insert(place, QLatin1Char('-')));
    QTest::newRow("a later hyphen first") << hyphens;
    QStringList zeros;
    for (const int count : {70000, 300, 257, 256, 255, 254, 253, 2, 1})
        zeros.append(QString(count, QLatin1Char('0')) + QLatin1Char('5'));
    QTest::newRow("more leading zeros first") << zeros;
    QStringList digits;
    for (const int count : {1, 2, 53, 54, 55, 56, 57, 255, 256, 257, 70000}) {
        digits.append(QLatin1Char('1') + QString(count - 1, QLatin1Char('0')));
        digits.append(QString(count, QLatin1Char('9')));
    }
    digits.append(QStringLiteral("a"));
    QTest::newRow("more digits last, letters behind them") << digits;
}

void tst_NxNaturalOrder::ordersLongNamesByTheSameRules()
{
    QFETCH(QStringList, names);
    for (int i = 1; i < names.size(); ++i) {
        QVERIFY(NxNaturalOrder::compare(names.at(i - 1), names.at(i)) < 0);
        QVERIFY(NxNaturalOrder::key(names.at(i - 1)) < NxNaturalOrder::key(names.at(i)));
        QCOMPARE(PlainNaturalOrder::compare(names.at(i - 1), names.at(i)), -1);
    }
}

void tst_NxNaturalOrder::agreesWithPairwiseComparison_data()
{
    nxAddSeeds(20);
}

void tst_NxNaturalOrder::agreesWithPairwiseComparison()
{
    QFETCH(quint32, seed);
    const QStringList names = NameMaker(seed).names(200);
    QVector<Name> readNames;
    QVector<QByteArray> keys;
    for (const QString &name : names) {
        readNames.append(read(name));
        keys.append(NxNaturalOrder::key(name));
    }
    int equal = 0;
    for (int a = 0; a < names.size(); ++a) {
        for (int b = 0; b < names.size(); ++b) {
            const int plain = compareNames(readNames.at(a), readNames.at(b));
            const QByteArray pair = shown(names.at(a), names.at(b));
            QVERIFY2(compareBytes(keys.at(a), keys.at(b)) == plain, pair.constData());
            QVERIFY2(compareNames(readNames.at(b), readNames.at(a)) == -plain, pair.constData());
            if (a % 8 == 0)
                QVERIFY2(sign(NxNaturalOrder::compare(names.at(a), names.at(b))) == plain,
                         pair.constData());
            equal += plain == 0 ? 1 : 0;
        }
    }
    QVERIFY2(equal > names.size(), "the names are too far from each other to test the late rules");
}

void tst_NxNaturalOrder::isATotalOrder()
{
    QStringList names = NameMaker(4711).names(70);
    names.removeAt(1);
    QVector<Name> readNames;
    for (const QString &name : qAsConst(names))
        readNames.append(read(name));
    for (const Name &a : qAsConst(readNames)) {
        for (const Name &b : qAsConst(readNames)) {
            if (compareNames(a, b) > 0)
                continue;
            for (const Name &c : qAsConst(readNames))
                QVERIFY(compareNames(b, c) > 0 || compareNames(a, c) <= 0);
        }
    }
}

void tst_NxNaturalOrder::sortsAsPairwiseComparisonDoes_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<bool>("descending");
    for (quint32 seed = 101; seed <= 110; ++seed) {
        QTest::addRow("seed %u ascending", seed) << seed << false;
        QTest::addRow("seed %u descending", seed) << seed << true;
    }
}

void tst_NxNaturalOrder::sortsAsPairwiseComparisonDoes()
{
    QFETCH(quint32, seed);
    QFETCH(bool, descending);
    const QStringList list = NameMaker(seed).names(300);
    const Names names(list.begin(), list.end());
    QCOMPARE(NxNaturalOrder::sorted(names, descending), plainlySorted(names, descending));
}

void tst_NxNaturalOrder::sortsListsOfAnyKindAndLength_data()
{
    using MakeNames = Names (*)(int count);
    const std::pair<const char *, MakeNames> kinds[] = {
        {"different names", differentNames},
        {"many equal names", manyEqualNames},
        {"names that begin alike", namesThatBeginAlike},
        {"names of footage", namesOfFootage},
    };
    QTest::addColumn<Names>("names");
    QTest::addColumn<bool>("descending");
    for (const auto &[kind, make] : kinds) {
        for (const int count : {0, 1, 2, 3, 31, 32, 33, 34, 1000, 20000}) {
            const Names names = make(count);
            QTest::addRow("%d %s, ascending", count, kind) << names << false;
            QTest::addRow("%d %s, descending", count, kind) << names << true;
        }
    }
}

void tst_NxNaturalOrder::sortsListsOfAnyKindAndLength()
{
    QFETCH(Names, names);
    QFETCH(bool, descending);
    const std::vector<quint32> order = NxNaturalOrder::sorted(names, descending);
    QCOMPARE(faultOfOrder(names, order, descending), QByteArray());
}

void tst_NxNaturalOrder::keepsTheOrderOfEqualNamesInBothDirections()
{
    const std::vector<QString> names{QStringLiteral("b"), QStringLiteral("B"), QStringLiteral("a"),
                                     QStringLiteral("b")};
    QCOMPARE(NxNaturalOrder::sorted(names, false), (std::vector<quint32>{2, 0, 1, 3}));
    QCOMPARE(NxNaturalOrder::sorted(names, true), (std::vector<quint32>{0, 1, 3, 2}));
}

void tst_NxNaturalOrder::sortsNothing()
{
    QVERIFY(NxNaturalOrder::sorted({}, false).empty());
}

NX_TEST_MAIN(tst_NxNaturalOrder)
#include "tst_NxNaturalOrder.moc"
