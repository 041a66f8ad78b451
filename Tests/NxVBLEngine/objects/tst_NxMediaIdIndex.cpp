// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxMediaIdIndex.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include <map>
#include <random>

namespace {

// The index never looks into a media, so an address is enough.
NxEngineMedia *addressOf(qint64 id)
{
    return reinterpret_cast<NxEngineMedia *>(quintptr(id) * 16);
}

} // namespace

class tst_NxMediaIdIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsWhatWasInsertedInAnyOrder()
    {
        NxMediaIdIndex index;
        for (const qint64 id : {5, 2, 9, 1})
            index.insert(id, addressOf(id));
        QCOMPARE(index.find(9), addressOf(9));
        QCOMPARE(index.find(1), addressOf(1));
        QCOMPARE(index.find(3), nullptr);
        QCOMPARE(index.all(), (std::vector<NxEngineMedia *>{addressOf(1), addressOf(2),
                                                            addressOf(5), addressOf(9)}));
    }

    void forgetsWhatWasRemoved()
    {
        NxMediaIdIndex index;
        index.insert(1, addressOf(1));
        index.insert(2, addressOf(2));
        index.remove(1);
        index.remove(1);
        index.remove(7);
        QCOMPARE(index.find(1), nullptr);
        QCOMPARE(index.find(2), addressOf(2));
        QCOMPARE(index.all(), std::vector<NxEngineMedia *>{addressOf(2)});
    }

    void agreesWithAMapOverManyChanges()
    {
        std::mt19937 random(7);
        NxMediaIdIndex index;
        std::map<qint64, NxEngineMedia *> reference;
        qint64 next = 1;
        for (int i = 0; i < 20000; ++i) {
            if (random() % 3 != 0 || reference.empty()) {
                index.insert(next, addressOf(next));
                reference.emplace(next, addressOf(next));
                ++next;
            } else {
                const qint64 id = qint64(random() % quint64(next));
                index.remove(id);
                reference.erase(id);
            }
            const qint64 asked = qint64(random() % quint64(next + 1));
            const auto known = reference.find(asked);
            QCOMPARE(index.find(asked), known == reference.end() ? nullptr : known->second);
        }
        QCOMPARE(index.all().size(), reference.size());
    }
};

NX_TEST_MAIN(tst_NxMediaIdIndex)
#include "tst_NxMediaIdIndex.moc"
