// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/Columns.h"

#include <QTextBoundaryFinder>

namespace launcher {
namespace {

bool isWide(QChar letter)
{
    constexpr ushort kFirstOfEastAsia = 0x2e80;
    constexpr ushort kHalfWidthForms = 0xff61;
    return letter.unicode() >= kFirstOfEastAsia && letter.unicode() < kHalfWidthForms;
}

// After a blank, and where Chinese or Japanese has none. Not at the hyphen of "up-left".
bool mayEndLine(const QString &text, int place)
{
    return place == text.size() || text.at(place - 1).isSpace() || isWide(text.at(place - 1))
        || isWide(text.at(place));
}

} // namespace

int columnsOf(const QString &text)
{
    int columns = 0;
    for (const QChar letter : text)
        columns += isWide(letter) ? 2 : 1;
    return columns;
}

QStringList wrapped(const QString &text, int columns)
{
    QStringList lines;
    const QStringList paragraphs = text.split(QLatin1Char('\n'));
    for (const QString &paragraph : paragraphs) {
        QString line;
        QTextBoundaryFinder finder(QTextBoundaryFinder::Line, paragraph);
        int from = 0;
        while (finder.toNextBoundary() != -1) {
            const int to = static_cast<int>(finder.position());
            if (!mayEndLine(paragraph, to))
                continue;
            const QString piece = paragraph.mid(from, to - from);
            if (!line.isEmpty() && columnsOf(line) + columnsOf(piece.trimmed()) > columns) {
                lines.append(line.trimmed());
                line.clear();
            }
            line += piece;
            from = to;
        }
        lines.append(line.trimmed());
    }
    return lines;
}

QString padded(const QString &text, int columns)
{
    return text + QString(qMax(0, columns - columnsOf(text)), QLatin1Char(' '));
}

} // namespace launcher
