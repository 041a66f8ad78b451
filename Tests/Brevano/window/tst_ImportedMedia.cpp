// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ImportedMedia.h>

#include "ScriptedImport.h"

#include <Support/NxTestMain.h>

#include <QTest>

#include <memory>
#include <new>

namespace {

NxFootageState failed(const QString &reason)
{
    NxFootageState state;
    state.facts = NxFootageStatus::Failed;
    state.reason = reason;
    return state;
}

NxFootageState done()
{
    NxFootageState state;
    state.facts = NxFootageStatus::Done;
    return state;
}

QStringList reasonsOf(const ImportedMedia &media)
{
    NxImportReport report;
    media.appendTo(&report);
    QStringList reasons;
    for (const NxImportReportLine &line : qAsConst(report.lines))
        reasons.append(line.path + QLatin1Char(' ') + line.reason);
    return reasons;
}

} // namespace

class tst_ImportedMedia : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void mediaAreReadOnce();
    void whatWasReadBeforeIsKnownAtOnce();
    void onlyNewsAreNews();
    void anUnreadableMediaThatDiesStaysOnTheList();
    void anotherMediaInTheSamePlaceIsAnotherMedia();
};

void tst_ImportedMedia::mediaAreReadOnce()
{
    ScriptedMedia a(QStringLiteral("/a"));
    ScriptedMedia b(QStringLiteral("/b"));
    ImportedMedia media;
    media.add(&a, NxFootageState());
    media.add(&b, NxFootageState());
    QCOMPARE(media.count(), 2);
    QCOMPARE(media.readCount(), 0);
    QVERIFY(!media.noteRead(&a, done()));
    QVERIFY(media.noteRead(&b, failed(QStringLiteral("Cut off."))));
    QCOMPARE(media.readCount(), 2);
    QVERIFY(!media.noteRead(&a, failed(QStringLiteral("Gone.")))); // Read once, it is done with.
    QCOMPARE(reasonsOf(media), QStringList(QStringLiteral("/b Cut off.")));
}

void tst_ImportedMedia::whatWasReadBeforeIsKnownAtOnce()
{
    ScriptedMedia a(QStringLiteral("/a"));
    ScriptedMedia b(QStringLiteral("/b"));
    ImportedMedia media;
    media.add(&a, done());
    media.add(&b, failed(QStringLiteral("Cut off.")));
    QCOMPARE(media.readCount(), 2);
    QCOMPARE(reasonsOf(media), QStringList(QStringLiteral("/b Cut off.")));
}

void tst_ImportedMedia::onlyNewsAreNews()
{
    ScriptedMedia a(QStringLiteral("/a"));
    ImportedMedia media;
    QVERIFY(!media.noteRead(&a, failed(QStringLiteral("Cut off.")))); // Not of the import.
    media.add(&a, NxFootageState());
    QVERIFY(!media.noteRead(&a, NxFootageState()));
    QCOMPARE(media.readCount(), 0);
    QVERIFY(media.noteRead(&a, failed(QStringLiteral("Cut off."))));
    QVERIFY(!media.noteRead(&a, failed(QStringLiteral("Cut off."))));
    QVERIFY(media.noteRead(&a, failed(QStringLiteral("Empty."))));
    QVERIFY(media.noteRead(&a, done()));
    QVERIFY(reasonsOf(media).isEmpty());
}

void tst_ImportedMedia::anUnreadableMediaThatDiesStaysOnTheList()
{
    auto a = std::make_unique<ScriptedMedia>(QStringLiteral("/a"));
    ImportedMedia media;
    media.add(a.get(), failed(QStringLiteral("Cut off.")));
    a.reset();
    QCOMPARE(reasonsOf(media), QStringList(QStringLiteral("/a Cut off.")));
}

void tst_ImportedMedia::anotherMediaInTheSamePlaceIsAnotherMedia()
{
    alignas(ScriptedMedia) unsigned char place[sizeof(ScriptedMedia)];
    ImportedMedia media;
    auto *old = new (place) ScriptedMedia(QStringLiteral("/unread"));
    media.add(old, NxFootageState());
    old->~ScriptedMedia();
    auto *stranger = new (place) ScriptedMedia(QStringLiteral("/stranger"));
    QVERIFY(!media.noteRead(stranger, failed(QStringLiteral("Cut off."))));
    QVERIFY(reasonsOf(media).isEmpty());

    media.add(stranger, failed(QStringLiteral("Empty.")));
    stranger->~ScriptedMedia();
    auto *last = new (place) ScriptedMedia(QStringLiteral("/last"));
    QVERIFY(!media.noteRead(last, done()));
    QCOMPARE(reasonsOf(media), QStringList(QStringLiteral("/stranger Empty.")));
    last->~ScriptedMedia();
}

NX_TEST_MAIN_WIDGETS(tst_ImportedMedia)
#include "tst_ImportedMedia.moc"
