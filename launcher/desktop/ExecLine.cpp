// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/desktop/ExecLine.h"

#include <cstring>
#include <vector>

namespace launcher {
namespace {

// Started with the launcher's path and the program's command.
constexpr char kShell[] = "/bin/sh";
constexpr char kScript[] = R"([ -x "$0" ] && exec "$0" --always "$@"; exec "$@")";
// The words that earlier versions put there.
constexpr char kOldScript[] = R"([ -x "$0" ] && exec "$0" "$@"; exec "$@")";

// A character of the value without escapes, and its place in the value.
struct Letter
{
    char value;
    int place;
};

struct Word
{
    QByteArray text;
    int place;
};

constexpr char kReserved[] = " \t\n\r\"'\\><~|&;$*?#()`";
// Inside double quotes a backslash escapes these.
constexpr char kQuotable[] = "\"`$\\";

bool isOneOf(const char *letters, char letter)
{
    return letter != '\0' && std::strchr(letters, letter) != nullptr;
}

// Returns what a backslash and this letter mean in a value; null when they mean themselves.
char meaningOf(char letter)
{
    switch (letter) {
    case 's':
        return ' ';
    case 'n':
        return '\n';
    case 't':
        return '\t';
    case 'r':
        return '\r';
    case '\\':
        return '\\';
    default:
        return '\0';
    }
}

std::vector<Letter> lettersOf(const QByteArray &value)
{
    std::vector<Letter> letters;
    const auto size = int(value.size());
    for (int i = 0; i < size; ++i) {
        const char meaning = value.at(i) == '\\' && i + 1 < size ? meaningOf(value.at(i + 1)) : '\0';
        letters.push_back({meaning ? meaning : value.at(i), i});
        i += meaning ? 1 : 0;
    }
    return letters;
}

// Splits like a shell, without any expansion. Returns false when a quote is not closed.
bool split(const std::vector<Letter> &letters, std::vector<Word> &words)
{
    bool isInside = false; // of a word
    char quote = '\0';
    for (std::size_t i = 0; i < letters.size(); ++i) {
        const char letter = letters[i].value;
        if (!quote && (letter == ' ' || letter == '\t' || letter == '\n' || letter == '\r')) {
            isInside = false;
            continue;
        }
        if (!isInside)
            words.push_back({{}, letters[i].place});
        isInside = true;
        QByteArray &text = words.back().text;
        const char next = i + 1 < letters.size() ? letters[i + 1].value : '\0';
        if (quote && letter == quote) {
            quote = '\0';
        } else if (!quote && (letter == '"' || letter == '\'')) {
            quote = letter;
        } else if (letter == '\\' && next != '\0' && quote != '\''
                   && (quote != '"' || isOneOf(kQuotable, next))) {
            text += next;
            ++i;
        } else {
            text += letter;
        }
    }
    return quote == '\0';
}

// The index of the word that is the program; the number of words when there is none.
std::size_t programAmong(const std::vector<Word> &words)
{
    if (words.empty() || ExecLine::fileName(words.front().text) != "env")
        return 0;
    std::size_t i = 1;
    for (; i < words.size(); ++i) {
        const QByteArray &word = words[i].text;
        if (word == "-S" || word.startsWith("--split-string"))
            return words.size();
        if (word == "-u" || word == "-C" || word == "--unset" || word == "--chdir")
            ++i; // the next word belongs to the option
        else if (!word.startsWith('-') && !word.contains('='))
            break;
    }
    return i;
}

} // namespace

ExecLine ExecLine::parse(const QByteArray &value)
{
    ExecLine line;
    line.value = value;
    std::vector<Word> words;
    if (!split(lettersOf(value), words))
        return line;
    const std::size_t program = programAmong(words);
    if (program >= words.size() || words[program].text.isEmpty())
        return line;
    line.isValid = true;
    line.program = words[program].text;
    line.program.replace("%%", "%");
    line.place = words[program].place;
    for (std::size_t i = program + 1; i < words.size(); ++i)
        line.arguments.append(words[i].text);
    return line;
}

QByteArray ExecLine::encoded(const QByteArray &argument)
{
    bool isPlain = !argument.isEmpty();
    QByteArray quoted;
    for (const char letter : argument) {
        isPlain = isPlain && !isOneOf(kReserved, letter);
        if (isOneOf(kQuotable, letter))
            quoted += '\\';
        quoted += letter;
    }
    if (!isPlain)
        quoted = '"' + quoted + '"';
    quoted.replace("%", "%%");
    return escaped(quoted);
}

QByteArray ExecLine::unescaped(const QByteArray &value)
{
    QByteArray text;
    const std::vector<Letter> letters = lettersOf(value);
    for (const Letter &letter : letters)
        text += letter.value;
    return text;
}

QByteArray ExecLine::fileName(const QByteArray &program)
{
    return program.mid(program.lastIndexOf('/') + 1);
}

QByteArray ExecLine::escaped(QByteArray text)
{
    text.replace("\\", "\\\\").replace("\n", "\\n").replace("\t", "\\t").replace("\r", "\\r");
    if (text.startsWith(' ')) // spaces around a value do not count
        text.replace(0, 1, "\\s");
    return text;
}

QByteArray ExecLine::startedBy(const QByteArray &launcher) const
{
    const QByteArray start = QByteArray(kShell) + " -c " + encoded(kScript) + ' ' + encoded(launcher);
    return value.left(place) + start + ' ' + value.mid(place);
}

QByteArray ExecLine::startedProgram() const
{
    const bool hasScript =
        program == kShell && (arguments.value(1) == kScript || arguments.value(1) == kOldScript);
    // Earlier versions put the launcher itself there.
    return arguments.value(hasScript ? 3 : 0).replace("%%", "%");
}

} // namespace launcher
