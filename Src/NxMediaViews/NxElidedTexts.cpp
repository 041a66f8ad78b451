// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxElidedTexts_p.h>

#include <QFontMetrics>
#include <QTransform>

#include <algorithm>

namespace {

constexpr int MostTexts = 4096; // Several screens full.
constexpr int LongestRead = 1024; // Characters; no row shows as many.

QString oneLine(const QString &text)
{
    QString line = text.left(LongestRead);
    std::replace_if(
        line.begin(), line.end(),
        [](QChar c) {
            return c == QLatin1Char('\n') || c == QLatin1Char('\r') || c == QLatin1Char('\t')
                   || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
        },
        QLatin1Char(' '));
    return line;
}

} // namespace

NxElidedTexts::NxElidedTexts() : m_texts(MostTexts) {}

QStaticText NxElidedTexts::text(const QString &text, int width, const QFont &font)
{
    if (font != m_font) {
        m_texts.clear();
        m_font = font;
    }
    const QPair<QString, int> key(text, width);
    if (const QStaticText *known = m_texts.object(key))
        return *known;
    const QString shown = QFontMetrics(font).elidedText(oneLine(text), Qt::ElideRight, width);
    auto *laid = new QStaticText(shown);
    laid->setTextFormat(Qt::PlainText);
    laid->prepare(QTransform(), font);
    const QStaticText answer = *laid;
    m_texts.insert(key, laid);
    return answer;
}
