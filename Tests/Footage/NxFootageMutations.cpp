// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFootageMutations.h"

#include "NxFootageNumbers.h"
#include "NxFootageParts.h"
#include "NxFootageRecipes.h"

#include <QRandomGenerator>
#include <QSet>

#include <algorithm>

namespace {

using Damager = QByteArray (*)(QByteArray whole, QRandomGenerator *random);

constexpr int largestByte = 0xFF;
/// Of a file's length: the longest range that is damaged.
constexpr int largestPart = 3;

QByteArray cut(QByteArray whole, QRandomGenerator *random)
{
    whole.truncate(random->bounded(1, whole.size()));
    return whole;
}

QByteArray zeroed(QByteArray whole, QRandomGenerator *random)
{
    const int length = random->bounded(1, qMax(2, whole.size() / largestPart));
    const int place = random->bounded(0, whole.size() - length);
    std::fill_n(whole.begin() + place, length, '\0');
    return whole;
}

QByteArray randomBytes(QByteArray whole, QRandomGenerator *random)
{
    constexpr int most = 64;
    // Half of them near the beginning, where the header is.
    constexpr int header = 1024;
    const int count = random->bounded(1, most);
    for (int number = 0; number < count; ++number) {
        const int end = number % 2 == 0 ? qMin(header, whole.size()) : whole.size();
        const int place = random->bounded(0, end);
        whole[place] = char(whole.at(place) ^ char(random->bounded(1, largestByte)));
    }
    return whole;
}

QByteArray swapped(QByteArray whole, QRandomGenerator *random)
{
    return NxFootageParts::swapped(whole, random);
}

QByteArray absurd(QByteArray whole, QRandomGenerator *random)
{
    return NxFootageNumbers::absurd(whole, random);
}

QByteArray emptied(QByteArray, QRandomGenerator *)
{
    return {};
}

struct Damage
{
    const char *name;
    Damager damager;
};

// By NxFootageDamage.
constexpr Damage damages[] = {{"cut", cut},         {"zeroed", zeroed}, {"random", randomBytes},
                              {"swapped", swapped}, {"absurd", absurd}, {"empty", emptied}};

const Damage &damageOf(NxFootageDamage damage)
{
    return damages[int(damage)];
}

} // namespace

QString NxFootageMutation::name() const
{
    constexpr int digits = 4;
    return QStringLiteral("%1 %2 %3")
        .arg(seed, digits, 10, QLatin1Char('0'))
        .arg(QLatin1String(damageOf(damage).name), recipe);
}

QByteArray NxFootageMutation::applied(const QByteArray &whole) const
{
    QRandomGenerator random(seed);
    QByteArray damaged = damageOf(damage).damager(whole, &random);
    while (damaged == whole)
        damaged = damageOf(damage).damager(whole, &random);
    return damaged;
}

std::vector<NxFootageMutation> NxFootageMutations::all()
{
    constexpr NxFootageDamage ofEach[] = {NxFootageDamage::Cut, NxFootageDamage::Zeroed,
                                          NxFootageDamage::Random, NxFootageDamage::Swapped,
                                          NxFootageDamage::Absurd};
    std::vector<NxFootageMutation> mutations;
    QSet<QString> emptySuffixes;
    quint32 seed = 0;
    for (const NxFootageRecipe &recipe : NxFootageRecipes::all()) {
        for (const NxFootageDamage damage : ofEach)
            mutations.push_back({recipe.name, damage, ++seed});
        const QString suffix = recipe.name.section(QLatin1Char('.'), -1);
        if (emptySuffixes.contains(suffix))
            continue;
        emptySuffixes.insert(suffix);
        mutations.push_back({recipe.name, NxFootageDamage::Empty, ++seed});
    }
    return mutations;
}
