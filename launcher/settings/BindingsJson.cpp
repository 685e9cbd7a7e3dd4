// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/settings/BindingsJson.h"

#include "host/files/TriggerText.h"
#include "launcher/Text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

#include <algorithm>

namespace launcher {
namespace {

constexpr int kFormatVersion = 1;

QByteArray quoted(const QString &text)
{
    // QJsonDocument writes no single text, so this is the only entry of a list.
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

int lineAt(const QByteArray &text, qsizetype offset)
{
    return int(text.left(int(offset)).count('\n')) + 1;
}

// Levels of objects and lists. A file of bindings has two; more are read for better complaints.
constexpr int kDeepest = 8;

// The line in which something is nested too deeply; 0 when nothing is. For any text.
int lineTooDeep(const QByteArray &text)
{
    int depth = 0;
    bool isInString = false;
    for (int i = 0; i < text.size(); ++i) {
        const char letter = text.at(i);
        if (letter == '"')
            isInString = !isInString;
        else if (isInString && letter == '\\')
            ++i;
        else if (!isInString && (letter == '{' || letter == '['))
            ++depth;
        else if (!isInString && (letter == '}' || letter == ']'))
            --depth;
        if (depth > kDeepest)
            return lineAt(text, i);
    }
    return 0;
}

QString saidOfLine(int line, const QString &reason)
{
    return Text::tr("line %1: %2").arg(line).arg(reason);
}

// The lines of the keys of a text, which QJsonDocument does not tell. If the text is not JSON, they
// mean nothing.
class KeyLines
{
public:
    explicit KeyLines(const QByteArray &text)
    {
        QStringList path;
        QString last; // the string read last, a key if a colon follows
        int lastLine = 1;
        int line = 1;
        for (int i = 0; i < text.size(); ++i) {
            const char letter = text.at(i);
            if (letter == '\n') {
                ++line;
            } else if (letter == '"') {
                const int start = i;
                for (++i; i < text.size() && text.at(i) != '"'; ++i)
                    i += text.at(i) == '\\' ? 1 : 0;
                last = unquoted(text.mid(start, i - start + 1));
                lastLine = line;
            } else if (letter == ':') {
                const QString name = (path + QStringList{last}).join(QLatin1Char('.'));
                if (m_lines.contains(name) && repeated.isEmpty()) {
                    repeated = name;
                    repeatedLine = lastLine;
                }
                m_lines.insert(name, lastLine);
            } else if (letter == '{') {
                if (m_isInside)
                    path.append(last);
                m_isInside = true;
            } else if (letter == '}' && !path.isEmpty()) {
                path.removeLast();
            }
        }
    }

    // The line of a key, "object.key" for a key of an inner object. If the key is missing, the
    // line of the object, or 1.
    [[nodiscard]] int of(const QString &name) const
    {
        const auto dot = name.indexOf(QLatin1Char('.'));
        return m_lines.value(name, m_lines.value(name.left(dot), 1));
    }

    QString repeated; // the first key that occurs twice
    int repeatedLine = 0;

private:
    static QString unquoted(const QByteArray &text)
    {
        return QJsonDocument::fromJson('[' + text + ']').array().at(0).toString();
    }

    QMap<QString, int> m_lines;
    bool m_isInside = false;
};

// The scheme and the commands, without the braces around them. Each line begins with `indent`.
QByteArray ringToJson(const Bindings &ring, const QByteArray &indent)
{
    QByteArray text = indent + "\"scheme\": " + QByteArray::number(ring.scheme);
    for (const int scheme : {4, 8}) {
        text += ",\n" + indent + (scheme == 4 ? "\"four\": {" : "\"eight\": {");
        const QStringList names = Bindings::directionNames(scheme);
        for (int i = 0; i < scheme; ++i) {
            const QStringList &commands = scheme == 4 ? ring.four : ring.eight;
            text += (i == 0 ? "\n    " : ",\n    ") + indent + quoted(names.at(i)) + ": "
                  + quoted(commands.at(i));
        }
        text += '\n' + indent + '}';
    }
    return text;
}

class Reader
{
public:
    Reader(const KeyLines &lines, const QJsonObject &object)
        : m_lines(lines)
        , m_object(object)
    {
    }

    QString problem;

    void fail(const QString &name, const QString &reason)
    {
        if (problem.isEmpty())
            problem = saidOfLine(m_lines.of(name), QStringLiteral("\"%1\" %2").arg(name, reason));
    }

    void allow(const QJsonObject &object, const QStringList &keys, const QString &prefix,
               const QString &optional = {})
    {
        const QStringList present = object.keys();
        for (const QString &key : present) {
            if (!keys.contains(key) && (optional.isEmpty() || key != optional))
                fail(prefix + key, Text::tr("is not a key of such a file"));
        }
        for (const QString &key : keys) {
            if (!present.contains(key))
                fail(prefix + key, Text::tr("is missing"));
        }
    }

    QJsonValue value(const QString &key) const { return m_object.value(key); }
    const QJsonObject &object() const { return m_object; }

    // Reads the scheme and the commands of an object that is called `prefix`, or of the whole text.
    void readRing(const QJsonObject &object, const QString &prefix, Bindings &ring)
    {
        const QString schemeKey = QStringLiteral("scheme");
        ring.scheme = object.value(schemeKey).toInt();
        if (ring.scheme != 4 && ring.scheme != 8)
            fail(prefix + schemeKey, Text::tr("is neither 4 nor 8"));
        ring.four = commands(object.value(QLatin1String("four")), prefix + QStringLiteral("four"),
                             Bindings::directionNames(4));
        ring.eight = commands(object.value(QLatin1String("eight")), prefix + QStringLiteral("eight"),
                              Bindings::directionNames(8));
    }

    QMap<QString, Bindings> readRings()
    {
        QMap<QString, Bindings> rings;
        const QString key = QStringLiteral("rings");
        if (!value(key).isUndefined() && !value(key).isObject())
            fail(key, Text::tr("is not an object"));
        const QJsonObject object = value(key).toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            const QString name = key + QLatin1Char('.') + it.key();
            if (it.key().isEmpty())
                fail(name, Text::tr("names no task"));
            else if (holdsControlCharacter(it.key()))
                fail(key, Text::tr("holds a control character"));
            if (!it.value().isObject()) {
                fail(name, Text::tr("is not an object"));
                continue;
            }
            const QString prefix = name + QLatin1Char('.');
            const QJsonObject ring = it.value().toObject();
            allow(ring, {QStringLiteral("scheme"), QStringLiteral("four"), QStringLiteral("eight")},
                  prefix);
            readRing(ring, prefix, rings[it.key()]);
        }
        return rings;
    }

private:
    static bool holdsControlCharacter(const QString &text)
    {
        return std::any_of(text.begin(), text.end(),
                           [](QChar letter) { return letter.category() == QChar::Other_Control; });
    }

    QStringList commands(const QJsonValue &value, const QString &name, const QStringList &directions)
    {
        if (!value.isObject()) {
            fail(name, Text::tr("is not an object"));
            return {};
        }
        const QJsonObject object = value.toObject();
        const QString prefix = name + QLatin1Char('.');
        allow(object, directions, prefix);
        QStringList commands;
        for (const QString &direction : directions) {
            const QString command = object.value(direction).toString();
            if (!object.value(direction).isString())
                fail(prefix + direction, Text::tr("is not a string"));
            else if (holdsControlCharacter(command))
                fail(prefix + direction, Text::tr("holds a control character"));
            else if (!command.isEmpty() && commands.contains(command))
                fail(prefix + direction,
                     Text::tr("has \"%1\", which another direction has").arg(command));
            commands.append(command);
        }
        return commands;
    }

    KeyLines m_lines;
    QJsonObject m_object;
};

} // namespace

QByteArray bindingsToJson(const Bindings &bindings, const QString &program,
                          const QMap<QString, Bindings> &rings)
{
    QByteArray text = "{\n";
    text += "    \"version\": " + QByteArray::number(kFormatVersion) + ",\n";
    text += "    \"program\": " + quoted(program) + ",\n";
    text += QByteArray("    \"enabled\": ") + (bindings.enabled ? "true" : "false") + ",\n";
    text += "    \"trigger\": " + quoted(bindings.trigger) + ",\n";
    text += ringToJson(bindings, "    ");
    const char *separator = ",\n    \"rings\": {\n";
    for (auto it = rings.begin(); it != rings.end(); ++it) {
        text += separator + QByteArray("        ") + quoted(it.key()) + ": {\n";
        text += ringToJson(it.value(), "            ") + "\n        }";
        separator = ",\n";
    }
    if (!rings.isEmpty())
        text += "\n    }";
    return text + "\n}\n";
}

bool bindingsFromJson(const QByteArray &text, const QString &program, Bindings &bindings,
                      QString &problem, QMap<QString, Bindings> *rings)
{
    if (const int line = lineTooDeep(text)) {
        problem = Text::tr("line %1: this is nested too deeply for bindings").arg(line);
        return false;
    }
    // Before Qt's reader, which keeps the memory of an object whose key occurs again.
    const KeyLines lines(text);
    if (!lines.repeated.isEmpty()) {
        problem = saidOfLine(lines.repeatedLine, Text::tr("\"%1\" is there twice").arg(lines.repeated))
                      .simplified();
        return false;
    }
    QJsonParseError parsing;
    const QJsonDocument document = QJsonDocument::fromJson(text, &parsing);
    if (parsing.error != QJsonParseError::NoError) {
        problem = saidOfLine(lineAt(text, parsing.offset), parsing.errorString());
        return false;
    }
    if (!document.isObject()) {
        problem = Text::tr("line 1: it is not an object");
        return false;
    }

    Reader reader(lines, document.object());
    const auto name = [](const char *key) { return QString::fromLatin1(key); };
    reader.allow(reader.object(),
                 {name("version"), name("program"), name("enabled"), name("trigger"), name("scheme"),
                  name("four"), name("eight")},
                 {}, name("rings"));
    if (reader.value(name("version")) != QJsonValue(kFormatVersion))
        reader.fail(name("version"), Text::tr("is not %1").arg(kFormatVersion));
    if (reader.value(name("program")) != QJsonValue(program))
        reader.fail(name("program"), Text::tr("is not \"%1\"").arg(program));
    if (!reader.value(name("enabled")).isBool())
        reader.fail(name("enabled"), Text::tr("is neither true nor false"));
    const QString trigger = reader.value(name("trigger")).toString();
    Qt::MouseButton button = Qt::NoButton;
    Qt::KeyboardModifiers keys = Qt::NoModifier;
    if (!reader.value(name("trigger")).isString()
        || (!trigger.isEmpty()
            && !(gesturewidget::parseTrigger(trigger, button, keys)
                 && gesturewidget::isUsableTrigger(button, keys))))
        reader.fail(name("trigger"), Text::tr("names no button"));
    Bindings found;
    found.enabled = reader.value(name("enabled")).toBool();
    found.trigger = trigger.isEmpty() ? QString() : gesturewidget::triggerText(button, keys);
    reader.readRing(reader.object(), {}, found);
    const QMap<QString, Bindings> foundRings = reader.readRings();
    problem = reader.problem.simplified();
    if (!problem.isEmpty())
        return false;
    bindings = found;
    if (rings)
        *rings = foundRings;
    return true;
}

} // namespace launcher
