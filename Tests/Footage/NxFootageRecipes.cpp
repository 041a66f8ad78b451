// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFootageRecipes.h"

#include <QCryptographicHash>

#include <algorithm>

const QString NxFootageStep::Output = QStringLiteral("{output}");
const QString NxFootageStep::Scratch = QStringLiteral("{scratch}");

namespace NxFootageRecipes {

namespace {

std::vector<NxFootageRecipe> gathered()
{
    std::vector<NxFootageRecipe> recipes;
    for (const auto &part : {films(), sounds(), stills(), texts()})
        recipes.insert(recipes.end(), part.begin(), part.end());
    return recipes;
}

void add(const NxFootageRecipe &recipe, QCryptographicHash *hash)
{
    // A byte that ends no text in it keeps "ab", "c" and "a", "bc" apart.
    const auto addText = [hash](const QString &text) { hash->addData(text.toUtf8() + '\0'); };
    addText(recipe.name);
    addText(QString::number(recipe.frames.count()));
    if (recipe.frames.count() > 0) {
        hash->addData(recipe.frames.streamHeader());
        hash->addData(recipe.frames.streamFrame(NxNumberedFrames::LargestNumber));
    }
    for (const NxFootageStep &step : recipe.steps) {
        addText(step.program);
        addText(step.arguments.join(QChar(0)));
    }
    hash->addData(recipe.content);
}

} // namespace

const std::vector<NxFootageRecipe> &all()
{
    static const std::vector<NxFootageRecipe> recipes = gathered();
    return recipes;
}

const NxFootageRecipe &named(const QString &name)
{
    const auto found =
        std::find_if(all().begin(), all().end(),
                     [&name](const NxFootageRecipe &recipe) { return recipe.name == name; });
    if (found == all().end())
        qFatal("there is no footage called %s", qUtf8Printable(name));
    return *found;
}

QString version(const std::vector<NxFootageRecipe> &recipes)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const NxFootageRecipe &recipe : recipes)
        add(recipe, &hash);
    return QString::fromLatin1(hash.result().toHex());
}

} // namespace NxFootageRecipes
