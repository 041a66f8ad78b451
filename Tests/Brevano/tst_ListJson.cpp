// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FakeLibrary.h"

#include <Brevano/commands/ListJson.h>
#include <Brevano/commands/ListedRows.h>
#include <Brevano/commands/ViewChoice.h>
#include <Support/NxTestMain.h>

#include <QtTest>

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

class tst_ListJson : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyKindOfRowHasItsKeys();
    void columnsAreTheLastKey();
    void whatAResourceDoesNotHaveIsNull();
};

void tst_ListJson::everyKindOfRowHasItsKeys()
{
    FakeFolder folder(QStringLiteral("Project Media"), fkProject);
    FakeItem *media = folder.addItem(QStringLiteral("/nowhere/a.mp4"));
    media->size = 3;
    media->info.rate = {25, 1};
    media->info.frames = 50;
    media->info.video.frameSize = QSize(640, 360);
    media->camera = QStringLiteral("X 9");
    ViewChoice choice;
    choice.group.groupBy = gbType;
    const ListedRows rows({&folder}, choice);
    QCOMPARE(rows.rows().size(), 3);
    const ListJson json(mctMedia, ListJson::Columns::Without);
    QCOMPARE(json.lineOf(rows, 0),
             QByteArray(R"({"row":0,"kind":"group","title":"Video","items":1})"));
    QCOMPARE(json.lineOf(rows, 1),
             QByteArray(R"({"row":1,"kind":"import","title":"Import Media"})"));
    const QByteArray expected =
        R"({"row":2,"kind":"media","title":"a.mp4","name":"a.mp4","path":"/nowhere/a.mp4",)"
        R"("section":"project","folder":"","type":"video","size":3,"created":null,"missing":true,)"
        R"("unreadable":null,"duration_ms":2000,"frames":50,"fps":"25/1","width":640,"height":360,)"
        R"("rotation":0,"codec":null,"sample_rate":null,"channels":null,"camera":"X 9",)"
        R"("timecode":null,"variable_rate":false})";
    QCOMPARE(json.lineOf(rows, 2), expected);
}

void tst_ListJson::columnsAreTheLastKey()
{
    FakeFolder folder(QStringLiteral("Project Media"), fkProject);
    FakeItem *media = folder.addItem(QStringLiteral("/nowhere/a.mp4"));
    media->info.rate = {25, 1};
    media->info.frames = 50;
    const ListedRows rows({&folder}, ViewChoice());
    const QByteArray line = ListJson(mctMedia, ListJson::Columns::With).lineOf(rows, 1);
    const QByteArray end =
        R"(,"variable_rate":null,"columns":{"Name":"a.mp4","Used":"0","Type":"video",)"
        R"("Frame Rate":"25","In Point":"00:00:00:00","Out Point":"00:00:00:00",)"
        R"("Duration":"00:00:02:00","Resolution":null,"Audio Info":null,"Date Created":null}})";
    QVERIFY2(line.endsWith(end), line.constData());
    QCOMPARE(ListJson(mctMedia, ListJson::Columns::With).lineOf(rows, 0),
             QByteArray(R"({"row":0,"kind":"import","title":"Import Media"})"));
}

void tst_ListJson::whatAResourceDoesNotHaveIsNull()
{
    FakeFolder all(QStringLiteral("All"), fkUserSection);
    FakeItem *title =
        all.addFolder(QStringLiteral("Mine"), fkCustom)->addItem(QStringLiteral("Opener 1"));
    title->resource = true;
    title->type = mtTitle;
    ViewChoice choice;
    choice.category = mctTitle;
    const ListedRows rows({&all}, choice);
    const QByteArray begin =
        R"({"row":0,"kind":"media","title":"Opener 1","name":"Opener 1","path":null,)"
        R"("section":"All","folder":"Mine","type":"title","size":null,"created":null,)"
        R"("missing":false,"unreadable":null,)";
    const QByteArray line = ListJson(mctTitle, ListJson::Columns::Without).lineOf(rows, 0);
    QVERIFY2(line.startsWith(begin), line.constData());
}

NX_TEST_MAIN(tst_ListJson)
#include "tst_ListJson.moc"
