// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxGroupMedia.h>

#include <NxVBLModel/INxExtraMedia.h>
#include <NxVBLModel/NxMediaRef.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <optional>

#include "memoryengine.h"

class tst_INxGroupMedia : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void isAnEmptyExpandedHeaderAtFirst();
    void isReleasedWithItsMembersAlive();
    void releasesNothingForNull();
    void keepsTitleAndKeyApart();
    void listsMembersInTheOrderOfAdding();
    void putsTheImportTileFirst();
    void keepsAViewMoreTileWhereItIsAdded();
    void ignoresANullMember();
    void countsMembersButNoTiles();
    void replacesItsMembers();
    void recountsTilesWhenMembersAreReplaced();
    void takesOutEveryOccurrence();
    void takesOutATile();
    void takesOutAMemberThatIsDead();
    void ignoresAStrangerThatIsTakenOut();
    void folds();

private:
    INxGroupMedia *m_group = nullptr;
    INxExtraMedia *m_import = nullptr;
    INxExtraMedia *m_more = nullptr;
    MemoryMedia m_a{QStringLiteral("a")};
    MemoryMedia m_b{QStringLiteral("b")};
};

using Members = QList<INxAbstractMedia *>;

void tst_INxGroupMedia::init()
{
    m_group = INxGroupMedia::createGroup();
    m_import = INxExtraMedia::createExtraMedia(NXVBLMODEL::mtImportTile);
    m_more = INxExtraMedia::createExtraMedia(NXVBLMODEL::mtViewMoreTile);
}

void tst_INxGroupMedia::cleanup()
{
    INxGroupMedia::releaseGroup(m_group);
    INxExtraMedia::releaseExtraMedia(m_import);
    INxExtraMedia::releaseExtraMedia(m_more);
}

void tst_INxGroupMedia::isAnEmptyExpandedHeaderAtFirst()
{
    QCOMPARE(m_group->mediaType(), NXVBLMODEL::mtGroup);
    QCOMPARE(m_group->name(), QString());
    QCOMPARE(m_group->groupKey(), QString());
    QVERIFY(m_group->members().isEmpty());
    QCOMPARE(m_group->itemCount(), 0);
    QVERIFY(m_group->canFold());
    QVERIFY(m_group->isExpanded());
    QVERIFY(!m_group->parentFolder());
}

void tst_INxGroupMedia::isReleasedWithItsMembersAlive()
{
    INxGroupMedia *group = INxGroupMedia::createGroup();
    const NxMediaRef watched(group);
    group->addMember(&m_a);
    INxGroupMedia::releaseGroup(group);
    QVERIFY(watched.isNull());
    QCOMPARE(m_a.name(), QStringLiteral("a"));
}

void tst_INxGroupMedia::releasesNothingForNull()
{
    INxGroupMedia::releaseGroup(nullptr);
    QCOMPARE(m_group->itemCount(), 0);
}

void tst_INxGroupMedia::keepsTitleAndKeyApart()
{
    m_group->setTitle(QStringLiteral("Sans nom"));
    m_group->setGroupKey(QStringLiteral("none"));
    QCOMPARE(m_group->name(), QStringLiteral("Sans nom"));
    QCOMPARE(m_group->groupKey(), QStringLiteral("none"));
}

void tst_INxGroupMedia::listsMembersInTheOrderOfAdding()
{
    m_group->addMember(&m_b);
    m_group->addMember(&m_a);
    QCOMPARE(m_group->members(), (Members{&m_b, &m_a}));
}

void tst_INxGroupMedia::putsTheImportTileFirst()
{
    m_group->addMember(&m_a);
    m_group->addMember(m_import);
    m_group->addMember(&m_b);
    QCOMPARE(m_group->members(), (Members{m_import, &m_a, &m_b}));
}

void tst_INxGroupMedia::keepsAViewMoreTileWhereItIsAdded()
{
    m_group->addMember(&m_a);
    m_group->addMember(m_more);
    QCOMPARE(m_group->members(), (Members{&m_a, m_more}));
    QCOMPARE(m_group->itemCount(), 1);
}

void tst_INxGroupMedia::ignoresANullMember()
{
    m_group->addMember(nullptr);
    QVERIFY(m_group->members().isEmpty());
    QCOMPARE(m_group->itemCount(), 0);
}

void tst_INxGroupMedia::countsMembersButNoTiles()
{
    m_group->addMember(m_import);
    QCOMPARE(m_group->itemCount(), 0);
    m_group->addMember(&m_a);
    m_group->addMember(&m_b);
    QCOMPARE(m_group->itemCount(), 2);
}

void tst_INxGroupMedia::replacesItsMembers()
{
    m_group->addMember(&m_a);
    m_group->setMembers({&m_b, m_import, &m_b});
    QCOMPARE(m_group->members(), (Members{&m_b, m_import, &m_b}));
    QCOMPARE(m_group->itemCount(), 2);
}

void tst_INxGroupMedia::recountsTilesWhenMembersAreReplaced()
{
    m_group->addMember(m_import);
    m_group->addMember(&m_a);
    m_group->setMembers({&m_a, &m_b});
    QCOMPARE(m_group->itemCount(), 2);
    m_group->setMembers({});
    QCOMPARE(m_group->itemCount(), 0);
}

void tst_INxGroupMedia::takesOutEveryOccurrence()
{
    m_group->setMembers({&m_a, &m_b, &m_a});
    m_group->removeMember(&m_a);
    QCOMPARE(m_group->members(), Members{&m_b});
    QCOMPARE(m_group->itemCount(), 1);
}

void tst_INxGroupMedia::takesOutATile()
{
    m_group->addMember(m_import);
    m_group->addMember(&m_a);
    m_group->removeMember(m_import);
    QCOMPARE(m_group->members(), Members{&m_a});
    QCOMPARE(m_group->itemCount(), 1);
}

void tst_INxGroupMedia::takesOutAMemberThatIsDead()
{
    struct Tile final : INxAbstractMedia
    {
        NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtImportTile; }
    };
    std::optional<Tile> tile(std::in_place);
    std::optional<MemoryMedia> item(std::in_place, QStringLiteral("c"));
    INxAbstractMedia *const deadTile = &*tile;
    INxAbstractMedia *const deadItem = &*item;
    m_group->addMember(deadTile);
    m_group->addMember(deadItem);
    m_group->addMember(&m_a);
    tile.reset();
    item.reset();

    m_group->removeMember(deadTile);
    m_group->removeMember(deadItem);
    QCOMPARE(m_group->members(), Members{&m_a});
    QCOMPARE(m_group->itemCount(), 1);
}

void tst_INxGroupMedia::ignoresAStrangerThatIsTakenOut()
{
    m_group->addMember(&m_a);
    m_group->removeMember(&m_b);
    m_group->removeMember(m_import);
    m_group->removeMember(nullptr);
    QCOMPARE(m_group->members(), Members{&m_a});
    QCOMPARE(m_group->itemCount(), 1);
}

void tst_INxGroupMedia::folds()
{
    m_group->addMember(&m_a);
    m_group->setExpanded(false);
    QVERIFY(!m_group->isExpanded());
    QCOMPARE(m_group->itemCount(), 1);
    m_group->setExpanded(true);
    QVERIFY(m_group->isExpanded());
}

NX_TEST_MAIN(tst_INxGroupMedia)
#include "tst_INxGroupMedia.moc"
