// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxAbstractMedia.h>

#include <Support/NxTestMain.h>

#include <QTest>

namespace {

struct PlainMedia final : INxAbstractMedia
{
    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtVideo; }
};

} // namespace

class tst_INxAbstractMedia : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void isAsLightAsATableAndAGuard();
    void answersNothingUntilAnEngineKnowsBetter();
};

void tst_INxAbstractMedia::isAsLightAsATableAndAGuard()
{
    QCOMPARE(sizeof(INxAbstractMedia), 2 * sizeof(void *));
    if (sizeof(void *) == 8)
        QCOMPARE(sizeof(INxAbstractMedia), size_t(16));
}

void tst_INxAbstractMedia::answersNothingUntilAnEngineKnowsBetter()
{
    const PlainMedia media;
    QCOMPARE(media.subKind(), 0);
    QCOMPARE(media.state(), 0);
    QCOMPARE(media.kindCode(), 0);
    QCOMPARE(media.name(), QString());
    QCOMPARE(media.mediaId(), QString());
    QCOMPARE(media.resourceId(), qint64(0));
    QVERIFY(!media.parentFolder());
    QCOMPARE(media.sourcePath(), QString());
    QVERIFY(!media.isResource());
    QVERIFY(!media.isSourceMedia());
}

NX_TEST_MAIN(tst_INxAbstractMedia)
#include "tst_INxAbstractMedia.moc"
