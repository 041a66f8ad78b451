// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "TranslationFile.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

namespace {

// What stands for a value of the program, in alphabetical order.
QStringList places(const QString &text)
{
    static const QRegularExpression place(QStringLiteral("%(L?[0-9]+|L?n)"));
    QStringList found;
    QRegularExpressionMatchIterator matches = place.globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured());
    found.sort();
    return found;
}

// How many letters are to be pressed with Alt; "&&" is the sign itself.
int letters(QString text)
{
    text.remove(QLatin1String("&&"));
    static const QRegularExpression letter(QStringLiteral("&\\w"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    return text.count(letter);
}

QString faultBetween(const QString &source, const QString &translation)
{
    const auto isCutOff = [](const QString &text) { return text.endsWith(QLatin1String("...")); };
    if (translation.trimmed().isEmpty())
        return QStringLiteral("is empty");
    if (places(source) != places(translation))
        return QStringLiteral("has other values in it");
    if (letters(source) != letters(translation))
        return QStringLiteral("has another number of letters to press");
    if (isCutOff(source) != isCutOff(translation))
        return QStringLiteral("differs in the dots at its end");
    if (source.count(QLatin1Char('\n')) != translation.count(QLatin1Char('\n')))
        return QStringLiteral("has another number of lines");
    return {};
}

QStringList readTranslations(QXmlStreamReader *reader)
{
    QStringList forms;
    QString text;
    while (!reader->atEnd()) {
        const QXmlStreamReader::TokenType token = reader->readNext();
        if (token == QXmlStreamReader::EndElement)
            break;
        if (token == QXmlStreamReader::Characters)
            text += reader->text();
        else if (token == QXmlStreamReader::StartElement)
            forms.append(reader->readElementText());
    }
    return forms.isEmpty() ? QStringList(text) : forms;
}

TranslatedText readMessage(QXmlStreamReader *reader, const QString &context)
{
    TranslatedText message;
    message.context = context;
    while (reader->readNextStartElement()) {
        if (reader->name() == QLatin1String("source")) {
            message.source = reader->readElementText();
        } else if (reader->name() == QLatin1String("translation")) {
            message.isFinished = !reader->attributes().hasAttribute(QStringLiteral("type"));
            message.translations = readTranslations(reader);
        } else {
            reader->skipCurrentElement();
        }
    }
    return message;
}

} // namespace

QString TranslatedText::fault() const
{
    QString found = isFinished ? QString() : QStringLiteral("is not finished");
    for (const QString &translation : translations) {
        if (found.isEmpty())
            found = faultBetween(source, translation);
    }
    return found.isEmpty()
               ? found
               : QStringLiteral("%1: the translation of \"%2\" %3").arg(context, source, found);
}

QVector<TranslatedText> TranslationFile::read(const QByteArray &content)
{
    QVector<TranslatedText> texts;
    QString context;
    QXmlStreamReader reader(content);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("name"))
            context = reader.readElementText();
        else if (reader.name() == QLatin1String("message"))
            texts.append(readMessage(&reader, context));
    }
    return reader.hasError() ? QVector<TranslatedText>() : texts;
}
