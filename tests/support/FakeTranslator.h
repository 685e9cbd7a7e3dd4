// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QMap>
#include <QPair>
#include <QString>
#include <QTranslator>

namespace tests {

// A language with the words that a test gives it, each in one context. It is the program's
// language from construction to destruction.
class FakeTranslator : public QTranslator
{
public:
    FakeTranslator() { QCoreApplication::installTranslator(this); }
    ~FakeTranslator() override { QCoreApplication::removeTranslator(this); }

    void add(const char *context, const char *source, const QString &translation)
    {
        m_words.insert({QString::fromLatin1(context), QString::fromLatin1(source)}, translation);
    }

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *source,
                                    const char * /*disambiguation*/, int /*number*/) const override
    {
        return m_words.value({QString::fromLatin1(context), QString::fromLatin1(source)});
    }

private:
    QMap<QPair<QString, QString>, QString> m_words;
};

} // namespace tests
