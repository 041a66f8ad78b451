// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FakeLibrary.h"

#include <Brevano/commands/JsonLine.h>
#include <Brevano/commands/RowText.h>
#include <NxVBLModel/INxExtraMedia.h>
#include <NxVBLModel/INxGroupMedia.h>
#include <Support/NxTestMain.h>

#include <QtTest>

using namespace NXVBLMODEL;

namespace {

using Tile = std::unique_ptr<INxExtraMedia, void (*)(INxExtraMedia *)>;
using Group = std::unique_ptr<INxGroupMedia, void (*)(INxGroupMedia *)>;

Tile tile(NxMediaType type, const char *title)
{
    Tile made(INxExtraMedia::createExtraMedia(type), &INxExtraMedia::releaseExtraMedia);
    made->setTitle(QLatin1String(title));
    return made;
}

QByteArray jsonOf(const INxAbstractMedia &row)
{
    JsonLine line;
    RowText::addTo(&line, 7, row);
    return line.text();
}

} // namespace

class tst_RowText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTileStandsInBrackets();
    void aGroupTellsHowManyItShows();
    void aMediaIsARowToo();
};

void tst_RowText::aTileStandsInBrackets()
{
    const Tile import = tile(mtImportTile, "Import Media");
    QCOMPARE(RowText::lineOf(*import), QStringLiteral("[Import Media]"));
    QCOMPARE(jsonOf(*import), QByteArray(R"({"row":7,"kind":"import","title":"Import Media"})"));
    const Tile more = tile(mtViewMoreTile, "View More");
    QCOMPARE(RowText::lineOf(*more), QStringLiteral("[View More]"));
    QCOMPARE(jsonOf(*more), QByteArray(R"({"row":7,"kind":"more","title":"View More"})"));
}

void tst_RowText::aGroupTellsHowManyItShows()
{
    FakeFolder folder(QStringLiteral("Project Media"), fkProject);
    const Tile import = tile(mtImportTile, "Import Media");
    const Group group(INxGroupMedia::createGroup(), &INxGroupMedia::releaseGroup);
    group->setTitle(QStringLiteral("Video"));
    QCOMPARE(RowText::lineOf(*group), QStringLiteral("== Video (0)"));
    group->addMember(folder.addItem(QStringLiteral("/f/a.mp4")));
    group->addMember(folder.addItem(QStringLiteral("/f/b.mp4")));
    group->addMember(import.get());
    QCOMPARE(RowText::lineOf(*group), QStringLiteral("== Video (2)"));
    QCOMPARE(jsonOf(*group), QByteArray(R"({"row":7,"kind":"group","title":"Video","items":2})"));
    group->setTitle(QStringLiteral("100 %1 %2"));
    QCOMPARE(RowText::lineOf(*group), QStringLiteral("== 100 %1 %2 (2)"));
}

void tst_RowText::aMediaIsARowToo()
{
    FakeFolder folder(QStringLiteral("Project Media"), fkProject);
    const FakeItem *media = folder.addItem(QStringLiteral("/f/a\nb.mp4"));
    QCOMPARE(jsonOf(*media), QByteArray(R"({"row":7,"kind":"media","title":"a\nb.mp4"})"));
}

NX_TEST_MAIN(tst_RowText)
#include "tst_RowText.moc"
