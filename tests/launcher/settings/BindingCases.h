// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <QVector>

// Files of bindings, and what is said about them. They are in fixtures/cases.json; test_schema.py
// tries the schema with the same files.
namespace tests {

struct BindingCase
{
    QByteArray name;
    QByteArray text; // the file
    QString says; // for a refused file, a part of the complaint; empty for an accepted one
};

// The export of a program called "drafter" with its first bindings.
inline QByteArray exportedBindings()
{
    QFile file(QStringLiteral(TESTS_SOURCE_DIR "/launcher/settings/fixtures/exported.json"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Empty when something is wrong with the table.
inline QVector<BindingCase> bindingCases()
{
    QFile file(QStringLiteral(TESTS_SOURCE_DIR "/launcher/settings/fixtures/cases.json"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QJsonArray rows = QJsonDocument::fromJson(file.readAll()).array();
    QVector<BindingCase> cases;
    for (const QJsonValue &value : rows) {
        const QJsonObject row = value.toObject();
        const auto text = [&row](const char *key) { return row.value(QLatin1String(key)).toString(); };
        BindingCase found{text("name").toUtf8(), text("text").toUtf8(), text("says")};
        if (row.contains(QStringLiteral("replace"))) {
            found.text = exportedBindings();
            const QByteArray what = text("replace").toUtf8();
            const auto place = found.text.indexOf(what);
            if (place < 0)
                return {};
            found.text.replace(static_cast<int>(place), static_cast<int>(what.size()),
                               text("by").toUtf8());
        }
        cases.append(found);
    }
    return cases;
}

} // namespace tests
