// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ShotWords.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/window/Languages.h>

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace {

constexpr int LargestSide = 8192; // px; of a picture of twice the size, too, that can be held.

struct SkinWord
{
    NxSkin skin;
    const char *text;
};

constexpr SkinWord SkinWords[] = {{NxSkin::Dark, "dark"}, {NxSkin::Light, "light"}};

NxResult<void> readOut(const CommandLine &line, QString *out)
{
    const std::optional<QString> path = line.value(CommandOptions::out);
    if (!path)
        return NxError{QStringLiteral("--out FILE.png is missing")};
    // Whoever mistypes the words shall not lose a project or a film.
    if (!path->endsWith(QLatin1String(".png"), Qt::CaseInsensitive))
        return NxError{
            QStringLiteral("the picture is a PNG file: \"%1\" does not end in .png").arg(*path)};
    *out = *path;
    return {};
}

NxResult<void> readSize(const CommandLine &line, QSize *size)
{
    const std::optional<QString> word = line.value(CommandOptions::size);
    if (!word)
        return {};
    static const QRegularExpression form(QStringLiteral("^([1-9][0-9]{0,4})x([1-9][0-9]{0,4})$"));
    const QRegularExpressionMatch match = form.match(*word);
    const QSize read(match.captured(1).toInt(), match.captured(2).toInt());
    if (!match.hasMatch() || read.width() > LargestSide || read.height() > LargestSide) {
        return NxError{QStringLiteral("\"%1\" is no size: 1280x800 is one, and no side is above %2")
                           .arg(*word)
                           .arg(LargestSide)};
    }
    *size = read;
    return {};
}

NxResult<void> readSkin(const CommandLine &line, NxSkin *skin)
{
    const std::optional<QString> word = line.value(CommandOptions::skin);
    if (!word)
        return {};
    const auto *known =
        std::find_if(std::begin(SkinWords), std::end(SkinWords),
                     [&word](const SkinWord &one) { return *word == QLatin1String(one.text); });
    if (known == std::end(SkinWords))
        return NxError{QStringLiteral("there is no skin \"%1\", only dark, light").arg(*word)};
    *skin = known->skin;
    return {};
}

NxResult<void> readLanguage(const CommandLine &line, QString *language)
{
    const std::optional<QString> word = line.value(CommandOptions::language);
    if (!word)
        return {};
    QStringList codes;
    const QList<Languages::Language> all = Languages::available();
    for (const Languages::Language &one : all)
        codes.append(one.code);
    if (!codes.contains(*word))
        return NxError{QStringLiteral("there is no language \"%1\", only %2")
                           .arg(*word, codes.join(QLatin1String(", ")))};
    *language = *word;
    return {};
}

} // namespace

NxResult<ShotWords> ShotWords::of(const CommandLine &line)
{
    ShotWords words;
    const NxResult<int> scale = scaleOf(line);
    if (!scale)
        return scale.error();
    for (const NxResult<void> &read :
         {readOut(line, &words.out), readSize(line, &words.size), readSkin(line, &words.skin),
          readLanguage(line, &words.language)}) {
        if (!read)
            return read.error();
    }
    const NxResult<ViewChoice> view = ViewChoice::of(line);
    if (!view)
        return view.error();
    words.view = *view;
    words.selected = line.value(CommandOptions::selected).value_or(QString());
    return words;
}

NxResult<int> ShotWords::scaleOf(const CommandLine &line)
{
    const QString word = line.value(CommandOptions::scale).value_or(QStringLiteral("1"));
    if (word != QLatin1String("1") && word != QLatin1String("2"))
        return NxError{QStringLiteral("there is no scale \"%1\", only 1, 2").arg(word)};
    return word.toInt();
}
