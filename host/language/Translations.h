// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QTranslator>

#include <memory>
#include <vector>

namespace gesturewidget {

// The texts of the host and of its module in one language, for the program's tr() calls from
// install() until remove() or destruction.
//
// Host and module embed their texts as resources, :/gesturewidget/translations/NAME/LANGUAGE.qm.
// All names are read, so a module of somebody else can bring its own.
//
// The program does not notice. Usually Qt tells all windows when a translator comes or goes.
// Programs then set all their texts again, and some build their menus again.
class Translations : public QTranslator
{
    Q_OBJECT

public:
    Translations();
    ~Translations() override;

    // The languages that at least one NAME has, as ISO 639-1 codes.
    [[nodiscard]] static QStringList languages();

    // Replaces the language. Does nothing more if no NAME has the language, as with "en".
    void install(const QString &language);
    void remove();

    // Always true. Qt uses the translator anyway, but does not announce it.
    [[nodiscard]] bool isEmpty() const override;
    [[nodiscard]] QString translate(const char *context, const char *source, const char *disambiguation,
                                    int number) const override;
    // Swallows the announcement while the translator is removed.
    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    std::vector<std::unique_ptr<QTranslator>> m_parts; // one for each NAME
};

} // namespace gesturewidget
