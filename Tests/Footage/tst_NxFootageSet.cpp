// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QDir>
#include <QtTest>

#include <thread>
#include <vector>

namespace {

std::vector<NxFootageRecipe> few()
{
    std::vector<NxFootageRecipe> recipes = NxFootageRecipes::texts();
    recipes.push_back(NxFootageRecipes::named(QStringLiteral("picture.png")));
    return recipes;
}

QStringList names(const std::vector<NxFootageRecipe> &recipes)
{
    QStringList result;
    for (const NxFootageRecipe &recipe : recipes)
        result += recipe.name;
    result.sort();
    return result;
}

} // namespace

class tst_NxFootageSet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFilesAreMadeOnce();
    void whoeverComesAtTheSameTimeGetsTheSame();
    void otherRecipesAreMadeAnew();
    void whatFailsLeavesNoFolderThatLooksWhole();
    void whatSomebodyLeftBehindIsRemoved();
};

void tst_NxFootageSet::theFilesAreMadeOnce()
{
    const NxTempDir place;
    const NxResult<QString> first = NxFootageSet::make(place.path(), few());
    QVERIFY2(first, qPrintable(first.errorText()));
    QCOMPARE(QDir(*first).entryList(QDir::Files, QDir::Name), names(few()));
    const QFileInfo file(*first + QStringLiteral("/utf-8.srt"));
    QVERIFY(file.dir().remove(file.fileName()));
    const NxResult<QString> second = NxFootageSet::make(place.path(), few());
    QVERIFY2(second, qPrintable(second.errorText()));
    QCOMPARE(*second, *first);
    QVERIFY(!QFileInfo::exists(file.filePath()));
}

void tst_NxFootageSet::whoeverComesAtTheSameTimeGetsTheSame()
{
    constexpr int comers = 6;
    const NxTempDir place;
    std::vector<QString> folders(comers);
    std::vector<std::thread> threads;
    for (QString &folder : folders) {
        threads.emplace_back([&place, &folder] {
            const NxResult<QString> made = NxFootageSet::make(place.path(), few());
            folder = made ? *made : made.errorText();
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    for (const QString &folder : folders)
        QCOMPARE(folder, place.filePath(NxFootageRecipes::version(few())));
    QCOMPARE(QDir(folders.front()).entryList(QDir::Files, QDir::Name), names(few()));
    QCOMPARE(QDir(place.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
}

void tst_NxFootageSet::otherRecipesAreMadeAnew()
{
    const NxTempDir place;
    std::vector<NxFootageRecipe> recipes = few();
    const NxResult<QString> before = NxFootageSet::make(place.path(), recipes);
    QVERIFY2(before, qPrintable(before.errorText()));
    recipes.front().content += "\n";
    const NxResult<QString> after = NxFootageSet::make(place.path(), recipes);
    QVERIFY2(after, qPrintable(after.errorText()));
    QVERIFY(*after != *before);
    QVERIFY(!QFileInfo::exists(*before));
}

void tst_NxFootageSet::whatFailsLeavesNoFolderThatLooksWhole()
{
    const NxTempDir place;
    std::vector<NxFootageRecipe> recipes = few();
    recipes.back().steps.front().arguments.prepend(QStringLiteral("-no-such-option"));
    const NxResult<QString> made = NxFootageSet::make(place.path(), recipes);
    QVERIFY(!made);
    QVERIFY2(made.errorText().startsWith(QLatin1String("picture.png: ")),
             qPrintable(made.errorText()));
    QVERIFY2(made.errorText().contains(QLatin1String("no-such-option")),
             qPrintable(made.errorText()));
    QVERIFY(!QFileInfo::exists(place.filePath(NxFootageRecipes::version(recipes))));
}

void tst_NxFootageSet::whatSomebodyLeftBehindIsRemoved()
{
    const NxTempDir place;
    const QString version = NxFootageRecipes::version(few());
    const QString half = place.write(version + QStringLiteral(".part/half.mp4"));
    const NxResult<QString> made = NxFootageSet::make(place.path(), few());
    QVERIFY2(made, qPrintable(made.errorText()));
    QVERIFY(!QFileInfo::exists(half));
    QCOMPARE(QDir(*made).entryList(QDir::Files, QDir::Name), names(few()));
}

NX_TEST_MAIN(tst_NxFootageSet)
#include "tst_NxFootageSet.moc"
