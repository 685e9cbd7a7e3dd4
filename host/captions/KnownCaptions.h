// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

namespace gesturewidget {

// The captions of menus and well-known commands in one language. The lists are the JSON files
// beside this header. All captions are in lower case, without mnemonics and ellipses.
//
// A program is never asked for its language: a caption counts if any language has it. So a list
// must not hold a word that names a different command in a program of another language.
struct KnownCaptions
{
    QString language; // ISO 639-1, such as "de"
    // By role: "tools", "help", "file", "edit", "view", "draw", "draft", and menus of entries that
    // are no commands: "recent", "undo", "redo", "layers". The usual one first.
    QHash<QString, QStringList> menus;
    // By identifier, such as "ID_LINE".
    QHash<QString, QStringList> commands;
    // Captions that name the command only in a menu where such commands are.
    QHash<QString, QStringList> commandsInTheirMenus;

    // English first. Read on the first call.
    [[nodiscard]] static const QVector<KnownCaptions> &languages();

    // The captions of menus of that role in all languages; English first.
    [[nodiscard]] static QStringList menusOf(const QString &role);
};

} // namespace gesturewidget
