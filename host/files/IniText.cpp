// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/IniText.h"

#include <QList>

#include <algorithm>
#include <cstring>

namespace gesturewidget {
namespace {

// Only printable ASCII goes into the file, the rest as "%u" and four hexadecimal digits: the two
// Qt versions read anything else differently, and some characters not at all.
QString encoded(const QString &text, const QString &alsoEncode = {})
{
    const auto isPlain = [&alsoEncode](QChar letter) {
        return letter.unicode() >= 0x20 && letter.unicode() <= 0x7e && letter != QLatin1Char('%')
            && std::find(alsoEncode.begin(), alsoEncode.end(), letter) == alsoEncode.end();
    };
    // Nearly every text is plain, and all names are looked up at every gesture.
    if (std::all_of(text.begin(), text.end(), isPlain))
        return text;
    QString result;
    for (const QChar letter : text) {
        if (isPlain(letter))
            result += letter;
        else
            result += QStringLiteral("%u%1").arg(letter.unicode(), 4, 16, QLatin1Char('0'));
    }
    return result;
}

// Undoes encoded(). Leaves a "%" that encoded() did not write.
QString decoded(const QString &text)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        bool isCode = false;
        if (text.at(i) == QLatin1Char('%') && text.mid(i + 1, 1) == QLatin1String("u")) {
            const QString digits = text.mid(i + 2, 4);
            const ushort code = digits.size() == 4 ? digits.toUShort(&isCode, 16) : ushort(0);
            if (isCode)
                result += QChar(code);
        }
        if (isCode)
            i += 5;
        else
            result += text.at(i);
    }
    return result;
}

bool isPlainInName(char letter)
{
    return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z')
        || (letter >= '0' && letter <= '9') || letter == '_' || letter == '-' || letter == '.';
}

// A section or key as the file has it. `part` is printable ASCII.
QByteArray escapedName(const QString &part)
{
    QByteArray result;
    const QByteArray letters = part.toLatin1();
    for (const char letter : letters) {
        if (isPlainInName(letter))
            result += letter;
        else
            result += '%' + QByteArray(1, letter).toHex().toUpper();
    }
    return result;
}

// Undoes escapedName(); "%U" and four digits are a character too, and a backslash a slash.
QString unescapedName(const QByteArray &escaped)
{
    QString result;
    for (int i = 0; i < escaped.size(); ++i) {
        const bool isLong = escaped.mid(i + 1, 1) == "U";
        const int digits = isLong ? 4 : 2;
        const QByteArray code = escaped.mid(i + 1 + (isLong ? 1 : 0), digits);
        bool isCode = false;
        const ushort letter =
            escaped.at(i) == '%' && code.size() == digits ? code.toUShort(&isCode, 16) : ushort(0);
        if (isCode) {
            result += QChar(letter);
            i += digits + (isLong ? 1 : 0);
        } else {
            result += escaped.at(i) == '\\' ? QLatin1Char('/') : QLatin1Char(escaped.at(i));
        }
    }
    return result;
}

bool isGeneral(const QByteArray &section)
{
    return section.compare("general", Qt::CaseInsensitive) == 0;
}

QByteArray headOf(const QString &section)
{
    const QByteArray escaped = escapedName(section);
    // "[General]" itself holds the keys without a section.
    return '[' + (isGeneral(escaped) ? '%' + escaped : escaped) + ']';
}

// The section that such a head begins, with a slash at its end.
QString sectionOf(const QByteArray &head)
{
    const QByteArray section = head.mid(1, head.size() - 2).trimmed();
    if (isGeneral(section))
        return {};
    const bool isMarked = section.startsWith('%') && isGeneral(section.mid(1));
    return unescapedName(isMarked ? section.mid(1) : section) + QLatin1Char('/');
}

// A value as the file has it. `value` is printable ASCII.
QByteArray escapedValue(const QString &value)
{
    const QByteArray letters = value.toLatin1();
    QByteArray result;
    bool needsQuotes = letters.startsWith(' ') || letters.endsWith(' ');
    if (letters.startsWith('@'))
        result += '@'; // a single "@" would begin a value that is not a text
    for (const char letter : letters) {
        needsQuotes = needsQuotes || letter == ';' || letter == ',' || letter == '=';
        if (letter == '"' || letter == '\\')
            result += '\\';
        result += letter;
    }
    return needsQuotes ? '"' + result + '"' : result;
}

// Returns the meaning of the character after a backslash; null if a number follows it.
char meaningOf(char letter)
{
    constexpr char kLetters[] = "abfnrtv\"?'\\";
    constexpr char kMeanings[] = "\a\b\f\n\r\t\v\"?'\\";
    const char *found = letter == '\0' ? nullptr : std::strchr(kLetters, letter);
    return found ? kMeanings[found - kLetters] : '\0';
}

// Undoes escapedValue(). A person may have written the value, so spaces around it do not count, and
// a ";" outside quotes begins a comment.
QString unescapedValue(const QByteArray &escaped)
{
    const QString text = QString::fromUtf8(escaped.trimmed());
    QString result;
    int end = 0; // after the last character, without spaces outside quotes
    bool isQuoted = false;
    for (int i = 0; i < text.size(); ++i) {
        const QChar letter = text.at(i);
        if (letter == QLatin1Char('"')) {
            isQuoted = !isQuoted;
            end = int(result.size());
            continue;
        }
        if (letter == QLatin1Char(';') && !isQuoted)
            break;
        if (letter == QLatin1Char('\\') && i + 1 < text.size()) {
            const char meaning = meaningOf(text.at(++i).toLatin1());
            const bool isHex = text.at(i) == QLatin1Char('x');
            int digits = 0;
            while (isHex && digits < 4 && i + 1 + digits < text.size()
                   && QByteArray("0123456789abcdefABCDEF").contains(text.at(i + 1 + digits).toLatin1()))
                ++digits;
            if (digits > 0)
                result += QChar(text.mid(i + 1, digits).toUShort(nullptr, 16));
            else if (meaning != '\0')
                result += QLatin1Char(meaning);
            i += digits;
            end = int(result.size());
            continue;
        }
        result += letter;
        if (isQuoted || !letter.isSpace())
            end = int(result.size());
    }
    result.truncate(end);
    if (result.startsWith(QLatin1String("@@")))
        result.remove(0, 1);
    return result;
}

// Returns whether an INI file can have this line.
bool isLine(const QByteArray &line)
{
    const QByteArray text = line.trimmed();
    const bool isSection = text.startsWith('[') && text.endsWith(']');
    return !line.contains('\0')
        && (text.isEmpty() || isSection || text.startsWith(';') || text.startsWith('#')
            || text.contains('='));
}

} // namespace

IniText::IniText(const QByteArray &text)
{
    QString section;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &line : lines) {
        if (!isLine(line))
            continue;
        const QByteArray trimmed = line.trimmed();
        QString name;
        if (trimmed.startsWith('[') && trimmed.endsWith(']'))
            section = sectionOf(trimmed);
        else if (trimmed.contains('=') && !trimmed.startsWith(';') && !trimmed.startsWith('#'))
            name = section + unescapedName(trimmed.left(trimmed.indexOf('=')).trimmed());
        m_lines.append({line, section, name});
    }
}

bool IniText::isWellFormed(const QByteArray &text)
{
    const QList<QByteArray> lines = text.split('\n');
    return std::all_of(lines.begin(), lines.end(), isLine);
}

QString IniText::nameOf(const QString &section, const QString &key)
{
    const QString special = QStringLiteral("/\\");
    const auto part = [&special](const QString &text) {
        return text.isEmpty() ? QStringLiteral("%") : encoded(text, special);
    };
    return part(section) + QLatin1Char('/') + part(key);
}

QMap<QString, QString> IniText::values() const
{
    QMap<QString, QString> values;
    for (const Line &line : m_lines) {
        if (!line.name.isEmpty())
            values.insert(line.name, decoded(unescapedValue(line.text.mid(line.text.indexOf('=') + 1))));
    }
    return values;
}

void IniText::set(const QString &name, const QString &value)
{
    const QString section = name.section(QLatin1Char('/'), 0, 0) + QLatin1Char('/');
    const QByteArray text =
        escapedName(name.section(QLatin1Char('/'), 1)) + '=' + escapedValue(encoded(value));
    int last = -1; // line of the section with something in it
    for (int i = int(m_lines.size()) - 1; i >= 0; --i) {
        Line &line = m_lines[i];
        if (line.name == name) { // the last one, which is the one that counts
            line.text = text;
            return;
        }
        if (last < 0 && line.section == section && !line.text.trimmed().isEmpty())
            last = i;
    }
    if (last >= 0) {
        m_lines.insert(last + 1, {text, section, name});
        return;
    }
    while (!m_lines.isEmpty() && m_lines.last().text.trimmed().isEmpty())
        m_lines.removeLast();
    if (!m_lines.isEmpty())
        m_lines.append({{}, m_lines.last().section, {}});
    m_lines.append({headOf(name.section(QLatin1Char('/'), 0, 0)), section, {}});
    m_lines.append({text, section, name});
}

void IniText::remove(const QString &name)
{
    const auto isIt = [&name](const Line &line) { return line.name == name; };
    m_lines.erase(std::remove_if(m_lines.begin(), m_lines.end(), isIt), m_lines.end());
}

QByteArray IniText::text() const
{
    QByteArray text;
    for (const Line &line : m_lines)
        text += line.text + '\n';
    // The text that was read ended with a line end, behind which split() sees an empty line.
    while (text.endsWith("\n\n"))
        text.chop(1);
    return text == "\n" ? QByteArray() : text;
}

} // namespace gesturewidget
