// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/CategoryWalk.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/Text.h"

#include <QtTest>

#include <random>
#include <utility>
#include <vector>

using tests::text;

namespace {

using Categories = QMap<QString, QString>;
using Entries = std::vector<std::pair<QString, QString>>;

Categories walked(CategoryWalk &walk, const Entries &entries)
{
    walk.begin();
    for (const auto &[command, category] : entries)
        walk.file(command, category);
    return walk.end();
}

Categories expected(const Entries &entries)
{
    Categories categories;
    for (const auto &[command, category] : entries)
        categories.insert(command, category);
    return categories;
}

} // namespace

class CategoryWalkTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void aWalkThatLeavesTheLastOneKeepsWhatTheyShare()
    {
        CategoryWalk walk;
        const Entries first{{text("line"), text("Draw")}, {text("save"), text("File")}};
        QCOMPARE(walked(walk, first), expected(first));
        for (const Entries &next : {Entries{{text("line"), text("Draw")}, {text("open"), text("File")}},
                                    Entries{{text("line"), text("Draw")}}, Entries{}, first}) {
            QCOMPARE(walked(walk, next), expected(next));
            QVERIFY(!walk.isAsBefore());
            QCOMPARE(walked(walk, next), expected(next));
            QVERIFY(walk.isAsBefore());
        }
    }

    void theTextOfTheLastWalkIsUsedAgain()
    {
        CategoryWalk walk;
        const QString draw = text("Draw");
        QCOMPARE(walk.asBefore(draw).constData(), draw.constData());
        QCOMPARE(walked(walk, {{text("line"), draw}, {text("save"), text("File")}}).size(), 2);
        QString newText = draw;
        newText.detach();
        QVERIFY(newText.constData() != draw.constData());
        walk.begin();
        QCOMPARE(walk.asBefore(newText).constData(), draw.constData());
        QCOMPARE(walk.asBefore(text("File")), text("File")); // not the next command's
        walk.file(text("line"), newText);
        QCOMPARE(walk.asBefore(newText).constData(), newText.constData());
        walk.file(text("open"), text("File"));
        QCOMPARE(walk.asBefore(newText).constData(), newText.constData());
        QCOMPARE(walk.end(), expected({{text("line"), text("Draw")}, {text("open"), text("File")}}));
    }

    // Each walk repeats the last one or changes a few entries of it.
    void anyWalkGivesWhatItFound()
    {
        std::mt19937 chance(20);
        const auto below = [&chance](std::size_t limit) {
            return std::uniform_int_distribution<std::size_t>(0, limit - 1)(chance);
        };
        const auto entry = [&below] {
            return std::pair(QString::number(below(6)), QString::number(below(3)));
        };
        CategoryWalk walk;
        Entries entries;
        for (int round = 0; round < 3000; ++round) {
            const Entries last = entries;
            switch (below(5)) {
            case 0:
                entries.push_back(entry());
                break;
            case 1:
                if (!entries.empty())
                    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(below(entries.size())));
                break;
            case 2:
                if (!entries.empty())
                    entries[below(entries.size())] = entry();
                break;
            case 3:
                if (entries.size() > 12)
                    entries.resize(below(4));
                break;
            default:
                break;
            }
            QCOMPARE(walked(walk, entries), expected(entries));
            QCOMPARE(walk.isAsBefore(), round == 0 || entries == last);
        }
    }
};

QTEST_APPLESS_MAIN(CategoryWalkTest)
#include "tst_categorywalk.moc"
