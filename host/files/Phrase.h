// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonValue>
#include <QString>

#include <vector>

namespace gesturewidget {

// A text for a person that is translated where the person reads it, not where it is made: what the
// host finds in a program is shown by the launcher, in the language of the terminal.
//
//     Phrase(QT_TRANSLATE_NOOP("host", "%1, since %2"), {Phrase::verbatim(name), reason})
class Phrase
{
public:
    Phrase() = default;
    // `english` is a text of the translation context "host". %1 to %9 stand for the arguments.
    explicit Phrase(const char *english, std::vector<Phrase> arguments = {});
    // A text that no language changes, such as a name.
    [[nodiscard]] static Phrase verbatim(const QString &text);

    [[nodiscard]] bool isEmpty() const { return m_text.isEmpty(); }
    [[nodiscard]] QString english() const;
    // In the language that is installed.
    [[nodiscard]] QString translated() const;

    // A string, or for a text of the translations an array of it and its arguments.
    [[nodiscard]] QJsonValue toJson() const;
    // Any other value gives an empty phrase.
    [[nodiscard]] static Phrase fromJson(const QJsonValue &value);

private:
    // Returns `text` with the arguments in the places of %1 to %9.
    template <class ToText> [[nodiscard]] QString filled(const QString &text, ToText toText) const;

    QString m_text;
    bool m_isVerbatim = true;
    std::vector<Phrase> m_arguments;
};

} // namespace gesturewidget
