// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MovedProject.h"

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Support/NxTestMain.h>

#include <QTest>

namespace {

QByteArray bytesOf(const NxFootageRecipe &recipe)
{
    QFile file(NxFootageSet::path(recipe));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s", qUtf8Printable(file.fileName()));
    return file.readAll();
}

const NxFootageRecipe &first(NxFootageKind kind)
{
    for (const NxFootageRecipe &recipe : NxFootageRecipes::all()) {
        if (recipe.truth.kind == kind && recipe.name.endsWith(QLatin1String(".mov")))
            return recipe;
    }
    qFatal("there is no such film");
}

} // namespace

/// Moved films, as cameras write them, with the workers that users have.
class tst_RelinkOfFootage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyKindOfFileIsFoundByItsContents();
    void aRepairedFilmOfTheSameLengthWillDo_data();
    void aRepairedFilmOfTheSameLengthWillDo();
};

void tst_RelinkOfFootage::everyKindOfFileIsFoundByItsContents()
{
    MovedProject f;
    QVector<NxEngineMedia *> media;
    QStringList expected;
    for (const NxFootageRecipe &recipe : NxFootageRecipes::all())
        media.append(f.add(QStringLiteral("old/") + recipe.name, bytesOf(recipe)));
    f.identify(media);
    for (const NxEngineMedia *one : media) {
        const QString moved = QStringLiteral("new/%1/moved %2").arg(one->id()).arg(one->name());
        f.move(QStringLiteral("old/") + one->name(), moved);
        expected.append(one->name() + QStringLiteral(": contents ") + moved);
    }
    QVERIFY(media.size() > 10);
    QCOMPARE(f.found(media), expected);
}

void tst_RelinkOfFootage::aRepairedFilmOfTheSameLengthWillDo_data()
{
    QTest::addColumn<bool>("isFilm");
    QTest::newRow("one byte differs") << true;
    QTest::newRow("something else of that size") << false;
}

void tst_RelinkOfFootage::aRepairedFilmOfTheSameLengthWillDo()
{
    QFETCH(bool, isFilm);
    MovedProject f;
    const NxFootageRecipe &recipe = first(NxFootageKind::Video);
    const QByteArray bytes = bytesOf(recipe);
    NxEngineMedia *media = f.add(QStringLiteral("old/a.mov"), bytes);
    f.identify({media});
    QCOMPARE(media->mediaInfo()->duration(), recipe.truth.frames);
    f.lose(media);
    QByteArray other = isFilm ? bytes : QByteArray(bytes.size(), '?');
    const int inPictures = other.indexOf("mdat") + 64;
    QVERIFY(!isFilm || inPictures > 64);
    other[inPictures] = char(other.at(inPictures) ^ 1);
    f.write(QStringLiteral("new/a.mov"), other);
    const NxRelinkReport report = f.find({media});
    if (isFilm) {
        QCOMPARE(f.lines(report), QStringList(QStringLiteral("a.mov: name new/a.mov")));
        QCOMPARE(report.unreadable, QStringList());
    } else {
        QCOMPARE(f.lines(report), QStringList(QStringLiteral("a.mov: none")));
        QCOMPARE(report.unreadable.size(), 1); // It is no film.
    }
}

NX_TEST_MAIN(tst_RelinkOfFootage)
#include "tst_RelinkOfFootage.moc"
