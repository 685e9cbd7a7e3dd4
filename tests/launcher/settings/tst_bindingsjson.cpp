// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Bindings as JSON: what is accepted, what is refused, and that the schema says the same.

#include "launcher/settings/BindingsJson.h"

#include "host/files/TriggerText.h"
#include "tests/launcher/settings/BindingCases.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

#include <algorithm>

using launcher::Bindings;

namespace {

const QString kProgram = QStringLiteral("drafter");

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

QStringList strings(const QJsonValue &value)
{
    QStringList list;
    const QJsonArray array = value.toArray();
    for (const QJsonValue &entry : array)
        list.append(entry.toString());
    return sorted(list);
}

} // namespace

class BindingsJsonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void exported()
    {
        QCOMPARE(launcher::bindingsToJson(Bindings::initial(), kProgram), tests::exportedBindings());
    }

    void cases_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("says");
        const QVector<tests::BindingCase> cases = tests::bindingCases();
        QVERIFY(cases.size() > 50);
        for (const tests::BindingCase &row : cases)
            QTest::newRow(row.name.constData()) << row.text << row.says;
    }

    void cases()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, says);
        Bindings bindings = Bindings::initial();
        bindings.eight[0] = QStringLiteral("as it was");
        QString problem;
        QMap<QString, Bindings> rings;
        const bool isTaken = launcher::bindingsFromJson(text, kProgram, bindings, problem, &rings);
        QVERIFY2(isTaken == says.isEmpty(), qPrintable(problem));
        QVERIFY2(says.isEmpty() ? problem.isEmpty() : problem.startsWith(says), qPrintable(problem));
        QVERIFY(!problem.contains(QLatin1Char('\n')));
        QCOMPARE(bindings.eight.at(0) == QLatin1String("as it was"), !isTaken);
        if (!isTaken)
            return;
        // The export of what was accepted means the same.
        Bindings again;
        QMap<QString, Bindings> ringsAgain;
        const QByteArray exported = launcher::bindingsToJson(bindings, kProgram, rings);
        QVERIFY(launcher::bindingsFromJson(exported, kProgram, again, problem, &ringsAgain));
        QCOMPARE(again.toSettings(), bindings.toSettings());
        QCOMPARE(ringsAgain.keys(), rings.keys());
        for (auto it = rings.cbegin(); it != rings.cend(); ++it)
            QCOMPARE(ringsAgain.value(it.key()).toSettings(), it.value().toSettings());
    }

    // The schema allows exactly the keys that are written.
    void schemaNamesTheKeys()
    {
        QFile file(QStringLiteral(TESTS_SOURCE_DIR "/../docs/bindings.schema.json"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QJsonObject schema = QJsonDocument::fromJson(file.readAll()).object();
        const QJsonObject exported = QJsonDocument::fromJson(tests::exportedBindings()).object();
        const auto compare = [](const QJsonObject &part, const QStringList &keys,
                                const QStringList &optional = {}) {
            QCOMPARE(sorted(part.value(QStringLiteral("properties")).toObject().keys()),
                     sorted(keys + optional));
            QCOMPARE(strings(part.value(QStringLiteral("required"))), sorted(keys));
            QCOMPARE(part.value(QStringLiteral("additionalProperties")), QJsonValue(false));
        };
        compare(schema, exported.keys(), {QStringLiteral("rings")});
        const QJsonObject properties = schema.value(QStringLiteral("properties")).toObject();
        compare(properties.value(QStringLiteral("four")).toObject(), Bindings::directionNames(4));
        compare(properties.value(QStringLiteral("eight")).toObject(), Bindings::directionNames(8));
    }

    // A schema cannot ignore the case, so its pattern has each letter twice.
    void schemaNamesTheTriggers()
    {
        const auto anyCase = [](const QString &name) {
            QString pattern;
            for (const QChar letter : name)
                pattern += QStringLiteral("[%1%2]").arg(letter.toUpper()).arg(letter);
            return pattern;
        };
        QStringList keys;
        QString once;
        const QStringList modifiers = gesturewidget::modifierNames();
        for (const QString &name : modifiers) {
            const bool isControl = name == QLatin1String("ctrl");
            const QString key =
                isControl
                    ? QStringLiteral("(%1|%2)").arg(anyCase(name), anyCase(QStringLiteral("control")))
                    : anyCase(name);
            keys.append(key + QStringLiteral("\\+"));
            once += QStringLiteral("(?!.*%1\\+.*%1\\+)").arg(key);
        }
        QStringList buttons = gesturewidget::buttonNames();
        buttons.removeAll(QStringLiteral("left"));
        std::transform(buttons.begin(), buttons.end(), buttons.begin(), anyCase);
        const QString held = keys.join(QLatin1Char('|'));
        const QString pattern =
            QStringLiteral("^%1((%2)*(%3)|(%2)+%4)$")
                .arg(once, held, buttons.join(QLatin1Char('|')), anyCase(QStringLiteral("left")));
        QFile file(QStringLiteral(TESTS_SOURCE_DIR "/../docs/bindings.schema.json"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QJsonObject schema = QJsonDocument::fromJson(file.readAll()).object();
        const QJsonObject trigger = schema.value(QStringLiteral("properties"))
                                        .toObject()
                                        .value(QStringLiteral("trigger"))
                                        .toObject();
        QCOMPARE(trigger.value(QStringLiteral("anyOf"))
                     .toArray()
                     .at(1)
                     .toObject()
                     .value(QStringLiteral("pattern"))
                     .toString(),
                 pattern);
    }
};

QTEST_GUILESS_MAIN(BindingsJsonTest)
#include "tst_bindingsjson.moc"
