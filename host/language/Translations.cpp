// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/language/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>

namespace gesturewidget {
namespace {

QDir folder()
{
    return QDir(QStringLiteral(":/gesturewidget/translations"));
}

} // namespace

Translations::Translations() = default;

Translations::~Translations()
{
    remove();
}

QStringList Translations::languages()
{
    QStringList codes;
    const QStringList names = folder().entryList(QDir::Dirs);
    for (const QString &name : names) {
        const QStringList files = QDir(folder().filePath(name)).entryList({QStringLiteral("*.qm")});
        for (const QString &file : files)
            codes.append(file.chopped(3));
    }
    codes.removeDuplicates();
    return codes;
}

void Translations::install(const QString &language)
{
    remove();
    const QStringList names = folder().entryList(QDir::Dirs);
    for (const QString &name : names) {
        auto part = std::make_unique<QTranslator>();
        if (part->load(folder().filePath(QStringLiteral("%1/%2.qm").arg(name, language))))
            m_parts.push_back(std::move(part));
    }
    if (!m_parts.empty())
        QCoreApplication::installTranslator(this);
}

void Translations::remove()
{
    if (m_parts.empty())
        return;
    if (QCoreApplication *app = QCoreApplication::instance()) {
        app->installEventFilter(this);
        QCoreApplication::removeTranslator(this);
        app->removeEventFilter(this);
    }
    m_parts.clear();
}

bool Translations::isEmpty() const
{
    return true;
}

QString Translations::translate(const char *context, const char *source, const char *disambiguation,
                                int number) const
{
    for (const std::unique_ptr<QTranslator> &part : m_parts) {
        QString text = part->translate(context, source, disambiguation, number);
        if (!text.isNull())
            return text;
    }
    return {};
}

bool Translations::eventFilter(QObject * /*receiver*/, QEvent *event)
{
    return event->type() == QEvent::LanguageChange;
}

} // namespace gesturewidget
