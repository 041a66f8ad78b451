// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxMediaRef.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <cstdlib>
#include <memory>
#include <new>
#include <type_traits>

#include "memoryengine.h"

namespace {

int allocations = 0;

struct PlainMedia final : INxAbstractMedia
{
    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtVideo; }
};

} // namespace

// Counts what the whole program, the libraries included, takes from the heap.
void *operator new(std::size_t size)
{
    ++allocations;
    if (void *memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

class tst_NxMediaRef : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void isOnePointerWide();
    void isNullUntilItNamesAMedia();
    void namesItsMedia();
    void isNullAfterTheDeathOfItsMedia();
    void outlivesItsMediaInEveryCopy();
    void mayDieBeforeItsMedia();
    void copies();
    void moves();
    void isAssigned();
    void isAssignedToItself();
    void comparesByTheLivingMedia();
    void isNotRevivedByAnotherMediaAtTheSameAddress();
    void costsAMediaNothingUntilItIsMade();
    void sharesOneGuardAMedia();
    void watchesAFolderLikeAnyMedia();
    void travelsInAVariant();
};

void tst_NxMediaRef::isOnePointerWide()
{
    QCOMPARE(sizeof(NxMediaRef), sizeof(void *));
    if (sizeof(void *) == 8)
        QCOMPARE(sizeof(NxMediaRef), size_t(8));
    QVERIFY(std::is_nothrow_move_constructible<NxMediaRef>::value);
}

void tst_NxMediaRef::isNullUntilItNamesAMedia()
{
    const NxMediaRef made;
    QVERIFY(made.isNull());
    QVERIFY(!made.get());
    const NxMediaRef ofNothing(nullptr);
    QVERIFY(ofNothing.isNull());
}

void tst_NxMediaRef::namesItsMedia()
{
    PlainMedia media;
    const NxMediaRef ref(&media);
    QVERIFY(!ref.isNull());
    QCOMPARE(ref.get(), static_cast<INxAbstractMedia *>(&media));
}

void tst_NxMediaRef::isNullAfterTheDeathOfItsMedia()
{
    auto media = std::make_unique<PlainMedia>();
    const NxMediaRef ref(media.get());
    media.reset();
    QVERIFY(ref.isNull());
    QVERIFY(!ref.get());
}

void tst_NxMediaRef::outlivesItsMediaInEveryCopy()
{
    auto media = std::make_unique<PlainMedia>();
    const NxMediaRef first(media.get());
    const NxMediaRef second(media.get());
    NxMediaRef copy = first;
    media.reset();
    QVERIFY(first.isNull());
    QVERIFY(second.isNull());
    QVERIFY(copy.isNull());
    const NxMediaRef lateCopy = copy;
    QVERIFY(lateCopy.isNull());
}

void tst_NxMediaRef::mayDieBeforeItsMedia()
{
    PlainMedia media;
    {
        const NxMediaRef ref(&media);
        QVERIFY(!ref.isNull());
    }
    const NxMediaRef again(&media);
    QCOMPARE(again.get(), static_cast<INxAbstractMedia *>(&media));
}

void tst_NxMediaRef::copies()
{
    PlainMedia media;
    const NxMediaRef ref(&media);
    const NxMediaRef copy = ref;
    QCOMPARE(copy.get(), ref.get());
    QCOMPARE(ref.get(), static_cast<INxAbstractMedia *>(&media));
}

void tst_NxMediaRef::moves()
{
    PlainMedia media;
    NxMediaRef ref(&media);
    const NxMediaRef moved = std::move(ref);
    QCOMPARE(moved.get(), static_cast<INxAbstractMedia *>(&media));
    QVERIFY(ref.isNull());
}

void tst_NxMediaRef::isAssigned()
{
    PlainMedia first;
    PlainMedia second;
    NxMediaRef ref(&first);
    ref = NxMediaRef(&second);
    QCOMPARE(ref.get(), static_cast<INxAbstractMedia *>(&second));
    const NxMediaRef other(&first);
    ref = other;
    QCOMPARE(ref.get(), static_cast<INxAbstractMedia *>(&first));
    ref = nullptr;
    QVERIFY(ref.isNull());
}

void tst_NxMediaRef::isAssignedToItself()
{
    PlainMedia media;
    NxMediaRef ref(&media);
    const NxMediaRef &same = ref;
    ref = same;
    QCOMPARE(ref.get(), static_cast<INxAbstractMedia *>(&media));
}

void tst_NxMediaRef::comparesByTheLivingMedia()
{
    PlainMedia one;
    auto other = std::make_unique<PlainMedia>();
    const NxMediaRef ofOne(&one);
    const NxMediaRef alsoOfOne(&one);
    const NxMediaRef ofOther(other.get());
    QVERIFY(ofOne == alsoOfOne);
    QVERIFY(!(ofOne != alsoOfOne));
    QVERIFY(ofOne != ofOther);
    other.reset();
    QVERIFY(ofOther == NxMediaRef());
}

void tst_NxMediaRef::isNotRevivedByAnotherMediaAtTheSameAddress()
{
    alignas(PlainMedia) unsigned char place[sizeof(PlainMedia)];
    auto *first = new (place) PlainMedia;
    const NxMediaRef ofFirst(first);
    first->~PlainMedia();
    auto *second = new (place) PlainMedia;
    const NxMediaRef ofSecond(second);

    QCOMPARE(static_cast<void *>(second), static_cast<void *>(first));
    QVERIFY(ofFirst.isNull());
    QCOMPARE(ofSecond.get(), static_cast<INxAbstractMedia *>(second));
    QVERIFY(ofFirst != ofSecond);

    second->~PlainMedia();
    QVERIFY(ofSecond.isNull());
}

void tst_NxMediaRef::costsAMediaNothingUntilItIsMade()
{
    const int before = allocations;
    {
        const PlainMedia media;
        const NxMediaRef ofNothing;
        Q_UNUSED(media)
        Q_UNUSED(ofNothing)
    }
    QCOMPARE(allocations - before, 0);
}

void tst_NxMediaRef::sharesOneGuardAMedia()
{
    PlainMedia media;
    const int before = allocations;
    const NxMediaRef first(&media);
    const int afterTheFirst = allocations;
    const NxMediaRef second(&media);
    const NxMediaRef copy = second;
    const int afterAll = allocations;
    QCOMPARE(afterTheFirst - before, 1);
    QCOMPARE(afterAll - afterTheFirst, 0);
}

void tst_NxMediaRef::watchesAFolderLikeAnyMedia()
{
    auto folder = std::make_unique<MemoryFolder>(1, QStringLiteral("Media"), nullptr);
    const NxMediaRef ref(folder.get());
    QCOMPARE(ref.get(), static_cast<INxAbstractMedia *>(folder.get()));
    folder.reset();
    QVERIFY(ref.isNull());
}

void tst_NxMediaRef::travelsInAVariant()
{
    auto media = std::make_unique<PlainMedia>();
    const QVariant packed = QVariant::fromValue(NxMediaRef(media.get()));
    QCOMPARE(packed.value<NxMediaRef>().get(), static_cast<INxAbstractMedia *>(media.get()));
    media.reset();
    QVERIFY(packed.value<NxMediaRef>().isNull());
}

NX_TEST_MAIN(tst_NxMediaRef)
#include "tst_NxMediaRef.moc"
