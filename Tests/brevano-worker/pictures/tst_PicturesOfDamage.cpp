// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PictureRun.h"

#include <Footage/NxFootageMutations.h>
#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Support/NxTestMain.h>

#include <QDirIterator>
#include <QFile>
#include <QLoggingCategory>
#include <QTest>

namespace {

/// Complains unless the outcome is a whole picture, or none with a reason.
QString complaint(const NxPictureAnswer &answer, const QImage &picture)
{
    switch (answer.outcome) {
    case NxPictureOutcome::Made:
        return picture.isNull() ? QStringLiteral("there is no whole picture") : QString();
    case NxPictureOutcome::Failed:
        return answer.reason.isEmpty() ? QStringLiteral("it failed without a reason") : QString();
    case NxPictureOutcome::NoneThere:
        return {};
    case NxPictureOutcome::NotAsked:
        break;
    }
    return QStringLiteral("it was not answered");
}

bool hasHalfFiles(const QString &folder)
{
    QDirIterator walk(folder, {QStringLiteral("*.part")}, QDir::Files,
                      QDirIterator::Subdirectories);
    return walk.hasNext();
}

/// Lets readers of pictures complain of what they are fed as they like.
class Unheard
{
public:
    Unheard() : m_before(qInstallMessageHandler(&drop)) {}
    ~Unheard() { qInstallMessageHandler(m_before); }

private:
    Q_DISABLE_COPY_MOVE(Unheard)
    static void drop(QtMsgType, const QMessageLogContext &, const QString &) {}
    const QtMessageHandler m_before;
};

} // namespace

/// Whatever a decoder is fed, it ends with a picture or a reason.
class tst_PicturesOfDamage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void damagedFilesGivePicturesOrReasons_data();
    void damagedFilesGivePicturesOrReasons();
};

void tst_PicturesOfDamage::damagedFilesGivePicturesOrReasons_data()
{
    QTest::addColumn<QString>("recipe");
    QTest::addColumn<int>("damage");
    QTest::addColumn<quint32>("seed");
    for (const NxFootageMutation &mutation : NxFootageMutations::all()) {
        const NxFootageKind kind = NxFootageRecipes::named(mutation.recipe).truth.kind;
        if (kind != NxFootageKind::Subtitle && mutation.damage != NxFootageDamage::Empty)
            QTest::newRow(qUtf8Printable(mutation.name()))
                << mutation.recipe << int(mutation.damage) << mutation.seed;
    }
}

void tst_PicturesOfDamage::damagedFilesGivePicturesOrReasons()
{
    QFETCH(QString, recipe);
    QFETCH(int, damage);
    QFETCH(quint32, seed);
    const NxTempDir dir;
    const NxFootageRecipe &whole = NxFootageRecipes::named(recipe);
    QFile file(NxFootageSet::path(whole));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes =
        NxFootageMutation{recipe, NxFootageDamage(damage), seed}.applied(file.readAll());
    if (bytes.isEmpty())
        return;
    PictureRun run(dir.write(recipe, bytes));
    {
        const Unheard unheard;
        if (whole.truth.kind == NxFootageKind::Image && !recipe.endsWith(QLatin1String(".gif")))
            run.makeOfStill();
        else
            run.makeOfStream(whole.truth.durationUs);
    }
    if (run.answer().failure.isEmpty()) {
        QCOMPARE(complaint(run.answer().cover, run.cover()), QString());
        QCOMPARE(complaint(run.answer().strip, run.strip()), QString());
    }
    QVERIFY(!hasHalfFiles(run.cacheFolder()));
}

NX_TEST_MAIN(tst_PicturesOfDamage)
#include "tst_PicturesOfDamage.moc"
