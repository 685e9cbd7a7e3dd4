// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/desktop/DesktopFile.h"

#include "host/files/FileContent.h"

namespace launcher {
namespace {

// Bytes. Far more than any desktop entry has, with all its translations.
constexpr qint64 kMaximalSize = qint64(1024) * 1024;

} // namespace

QByteArray DesktopFile::Line::key() const
{
    const auto equals = text.indexOf('=');
    return equals < 0 || text.startsWith('#') ? QByteArray() : text.left(equals).trimmed();
}

QByteArray DesktopFile::Line::value() const
{
    return QByteArray("") + text.mid(text.indexOf('=') + 1).trimmed();
}

bool DesktopFile::read(const QString &path)
{
    m_lines.clear();
    const gesturewidget::FileContent file = gesturewidget::FileContent::read(path, kMaximalSize);
    if (!file.isRead())
        return false;
    QByteArray group;
    const QList<QByteArray> texts = file.bytes.split('\n');
    for (const QByteArray &text : texts) {
        const QByteArray trimmed = text.trimmed();
        if (trimmed.startsWith('[') && trimmed.endsWith(']'))
            group = trimmed.mid(1, trimmed.size() - 2);
        m_lines.append({text, group});
    }
    return !value("Type").isNull();
}

QByteArray DesktopFile::content() const
{
    QByteArray content;
    for (int i = 0; i < m_lines.size(); ++i) {
        if (i > 0)
            content += '\n';
        content += m_lines.at(i).text;
    }
    return content;
}

QByteArray DesktopFile::value(const QByteArray &key) const
{
    QByteArray found;
    for (const Line &line : m_lines) {
        if (line.isOfEntry() && line.key() == key)
            found = line.value();
    }
    return found;
}

QByteArray DesktopFile::translated(const QByteArray &key, const QString &locale) const
{
    const QString language = locale.section(QLatin1Char('@'), 0, 0).section(QLatin1Char('_'), 0, 0);
    QByteArray found;
    for (const QString &name : {locale, locale.section(QLatin1Char('@'), 0, 0), language}) {
        if (found.isNull() && !name.isEmpty())
            found = value(key + '[' + name.toUtf8() + ']');
    }
    if (found.isNull())
        found = value(key);
    return ExecLine::unescaped(found);
}

void DesktopFile::setValue(const QByteArray &key, const QByteArray &value)
{
    int last = -1; // line of the entry with something in it
    bool isThere = false;
    for (int i = 0; i < m_lines.size(); ++i) {
        Line &line = m_lines[i];
        if (!line.isOfEntry())
            continue;
        if (!line.text.trimmed().isEmpty())
            last = i;
        if (line.key() == key) {
            line.text = key + '=' + value;
            isThere = true;
        }
    }
    if (!isThere && last >= 0)
        m_lines.insert(last + 1, {key + '=' + value, m_lines.at(last).group});
}

bool DesktopFile::isApplication() const
{
    return value("Type") == "Application" && value("Hidden") != "true";
}

void DesktopFile::startBy(const QByteArray &launcher,
                          const std::function<bool(const ExecLine &)> &isWanted)
{
    for (Line &line : m_lines) {
        if (line.key() != "Exec" || !(line.isOfEntry() || line.group.startsWith("Desktop Action ")))
            continue;
        const ExecLine exec = ExecLine::parse(line.value());
        if (exec.isValid && isWanted(exec))
            line.text = "Exec=" + exec.startedBy(launcher);
    }
}

} // namespace launcher
