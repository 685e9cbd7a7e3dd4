// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/bindings/OlderSettings.h"
#include "tests/bindings/OpenContainer.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/support/FakeTranslator.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/Text.h"

#include <QtTest>

#include <memory>

using tests::text;

namespace {

using Categories = QMap<QString, QString>;

QIcon icon(Qt::GlobalColor colour)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(colour);
    return QIcon(pixmap);
}

// Gets one more entry when its first one is read.
class GrowingCollection : public tests::FakeMenuItemCollection
{
public:
    [[nodiscard]] CHxUIMenuItem *GetItem(int index) const override
    {
        if (index == 0 && late) {
            auto *self = const_cast<GrowingCollection *>(this);
            self->items.push_back(std::exchange(self->late, nullptr));
        }
        return tests::FakeMenuItemCollection::GetItem(index);
    }

    CHxUIMenuItem *late = nullptr;
};

// A command in the menu "Draw" that another menu, "Edit", can get.
class MovingLine
{
public:
    explicit MovingLine(tests::FakeHost &host)
        : m_draw(host.addTopLevelMenu(text("&Draw")))
        , m_edit(host.addTopLevelMenu(text("&Edit")))
        , m_entry(host.ui.addItem(m_draw->subItems.get(), text("Line"), false, {},
                                  host.commands.addCommand(text("ID_LINE"), text("line"), text("Line"))))
    {
    }

    void moveToEdit() const
    {
        m_draw->subItems->Remove(m_entry);
        m_edit->subItems->Append(m_entry);
    }

private:
    tests::FakeMenuItem *m_draw;
    tests::FakeMenuItem *m_edit;
    tests::FakeMenuItem *m_entry;
};

} // namespace

class CommandCatalogueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }

    void init()
    {
        tests::resetWarnings();
        older = std::make_unique<tests::OlderSettings>();
        host = std::make_unique<tests::FakeHost>();
    }

    void cleanup()
    {
        QCOMPARE(host->ui.iteratorsAlive, 0);
        host.reset();
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void topLevelCaptionNamesEverythingBelow()
    {
        tests::FakeMenuItem *draw = host->addTopLevelMenu(text("&Draw"));
        addEntry(draw, "&Line", "line");
        tests::FakeMenuItem *arcs = host->ui.addItem(draw->subItems.get(), text("&Arcs"), true);
        addEntry(arcs, "By &three points", "arc3");
        tests::FakeMenuItem *more = host->ui.addItem(arcs->subItems.get(), text("More"), true);
        addEntry(more, "Tangential", "arctan");
        addEntry(host->addTopLevelMenu(text("&Edit")), "Undo", "undo");
        // A command right in the bar is its own category.
        addEntry(nullptr, "&Help!", "help");

        const tests::OpenContainer container;
        QCOMPARE(container.categoryMap, (Categories{{text("line"), text("Draw")},
                                                    {text("arc3"), text("Draw")},
                                                    {text("arctan"), text("Draw")},
                                                    {text("undo"), text("Edit")},
                                                    {text("help"), text("Help!")}}));
    }

    void anEntryMayHaveACommandAndEntriesBelow()
    {
        tests::FakeMenuItem *draw = host->addTopLevelMenu(text("Draw"));
        draw->command = command("draw");
        addEntry(draw, "Line", "line");
        const tests::OpenContainer container;
        QCOMPARE(container.categoryMap,
                 (Categories{{text("draw"), text("Draw")}, {text("line"), text("Draw")}}));
    }

    void theMenuVisitedLastWins()
    {
        addEntry(host->addTopLevelMenu(text("&File")), "Save", "save");
        addEntry(host->addTopLevelMenu(text("&Standard")), "Save", "save");
        const tests::OpenContainer container;
        QCOMPARE(container.getCategory(text("save")), text("Standard"));

        // The same holds for two bars.
        tests::FakeMenu *secondBar = host->ui.addMenu();
        tests::FakeMenuItem *extra = host->ui.addItem(&secondBar->items, text("E&xtra"), true);
        addEntry(extra, "Save", "save");
        QCOMPARE(tests::OpenContainer().getCategory(text("save")), text("Extra"));
    }

    // The records of the last reading are used again as long as they hold.
    void aNewIconReplacesTheOldOne()
    {
        tests::FakeCommandItem *line =
            host->commands.addCommand(text("ID_LINE"), text("line"), text("Line"));
        line->smallIcon = icon(Qt::red);
        tests::OpenContainer container;
        QCOMPARE(container.commands.at(0).icon.cacheKey(), line->smallIcon.cacheKey());
        line->smallIcon = icon(Qt::blue);
        container.init();
        QCOMPARE(container.commands.at(0).icon.cacheKey(), line->smallIcon.cacheKey());
    }

    void aCommandMayMoveToAnotherMenu()
    {
        const MovingLine line(*host);
        tests::OpenContainer container;
        container.init();
        QCOMPARE(container.commands.at(0).category, text("Draw"));
        line.moveToEdit();
        container.init();
        QCOMPARE(container.commands.at(0).category, text("Edit"));
    }

    // A dialog may be open for hours before it saves its records.
    void recordsOfAnEarlierReadingGetTheirNewCategory()
    {
        const MovingLine line(*host);
        tests::OpenContainer container;
        const std::vector<MgCommandDS> records = container.getCommandsDS();
        line.moveToEdit();
        container.init();
        container.update(records, true, DonutScheme::Eight);
        QCOMPARE(container.commands.at(0).category, text("Draw"));
        container.init();
        QCOMPARE(container.commands.at(0).category, text("Edit"));
    }

    void commandsOutsideTheMenusFollowTheLanguage()
    {
        host->commands.addCommand(text("ID_LINE"), text("line"), text("Line"));
        tests::OpenContainer container;
        container.init();
        QCOMPARE(container.commands.at(0).category, text("Others"));
        tests::FakeTranslator german;
        german.add("QObject", "Others", text("Sonstige"));
        container.init();
        QCOMPARE(container.commands.at(0).category, text("Sonstige"));
    }

    void everyAmpersandGoes_data()
    {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("category");
        QTest::newRow("none") << "Draw"
                              << "Draw";
        QTest::newRow("mnemonic") << "&Draw"
                                  << "Draw";
        QTest::newRow("inside") << "D&ra&w"
                                << "Draw";
        QTest::newRow("last") << "Draw&"
                              << "Draw";
        QTest::newRow("escaped") << "Draw && Paint"
                                 << "Draw  Paint";
        QTest::newRow("many") << "&&&&Draw&&&"
                              << "Draw";
    }

    void everyAmpersandGoes()
    {
        QFETCH(QString, caption);
        addEntry(host->addTopLevelMenu(caption), "Line", "line");
        const tests::OpenContainer container;
        QTEST(container.getCategory(text("line")), "category");
    }

    void everyAmpersandGoesFromTheParentCategory()
    {
        tests::OpenContainer container;
        tests::FakeMenuItemCollection items;
        host->ui.addItem(&items, text("Line"), false, {}, command("line"));
        container.fcParseRecursive(text("A&&B&"), &items);
        QCOMPARE(container.categoryMap, (Categories{{text("line"), text("AB")}}));
    }

    void anEmptyCaptionHandsDownNothing_data()
    {
        QTest::addColumn<QString>("caption");
        QTest::newRow("empty") << "";
        QTest::newRow("ampersands only") << "&&";
    }

    void anEmptyCaptionHandsDownNothing()
    {
        QFETCH(QString, caption);
        tests::FakeMenuItem *nameless = host->addTopLevelMenu(caption);
        nameless->command = command("nameless");
        addEntry(nameless, "&Line", "line");
        tests::FakeMenuItem *arcs = host->ui.addItem(nameless->subItems.get(), text("&Arcs"), true);
        addEntry(arcs, "Tangential", "arctan");

        const tests::OpenContainer container;
        QCOMPARE(container.categoryMap, (Categories{{text("nameless"), QString()},
                                                    {text("line"), text("Line")},
                                                    {text("arctan"), text("Arcs")}}));
        // A command with an empty category is still found.
        QCOMPARE(container.getCategory(text("nameless")), QString());
    }

    void aCommandOfNoMenuIsOneOfTheOthers()
    {
        addEntry(host->addTopLevelMenu(text("Draw")), "Line", "line");
        const tests::OpenContainer container;
        QCOMPARE(container.getCategory(text("arc")), text("Others"));
        QCOMPARE(container.getCategory(QString()), text("Others"));
        QCOMPARE(container.getCategory(text("LINE")), text("Others"));

        tests::FakeTranslator translator;
        translator.add("QObject", "Others", text("Sonstige"));
        QCOMPARE(container.getCategory(text("arc")), text("Sonstige"));
    }

    void recordsAreFiledByTheirCommandString()
    {
        addEntry(host->addTopLevelMenu(text("&Draw")), "Line", "line");
        host->commands.addCommand(text("ID_LINE"), text("line"), text("Line"));
        // Its identifier equals a command string in the menus; its own command string does not.
        host->commands.addCommand(text("line"), text("arc"), text("Arc"));
        const tests::OpenContainer container;
        QCOMPARE(container.commands.size(), std::size_t(2));
        QCOMPARE(container.commands[0].category, text("Draw"));
        QCOMPARE(container.commands[1].category, text("Others"));
    }

    void everyInitStartsAnew()
    {
        addEntry(host->addTopLevelMenu(text("Draw")), "Line", "line");
        tests::OpenContainer container;
        QCOMPARE(container.getCategory(text("line")), text("Draw"));
        static_cast<tests::FakeMenuItem *>(host->menuItems.items.front())->subItems->items.clear();
        static_cast<tests::FakeMenu *>(host->ui.menus.front())->items.items.clear();
        addEntry(host->addTopLevelMenu(text("Edit")), "Undo", "undo");
        container.init();
        QCOMPARE(container.categoryMap, (Categories{{text("undo"), text("Edit")}}));
    }

    void whatIsMissingIsSkipped()
    {
        tests::FakeMenuItem *draw = host->addTopLevelMenu(text("Draw"));
        draw->subItems->items.push_back(nullptr);
        addEntry(draw, "Line", "line");
        draw->subItems->items.push_back(nullptr);
        host->ui.addItem(draw->subItems.get(), QString(), false); // a separator
        tests::FakeMenu *secondBar = host->ui.addMenu();
        addEntry(host->ui.addItem(&secondBar->items, text("Edit"), true), "Undo", "undo");
        host->ui.addMenu()->hasItems = false;
        host->ui.menus.insert(host->ui.menus.begin(), nullptr);

        const tests::OpenContainer container;
        QCOMPARE(container.categoryMap,
                 (Categories{{text("line"), text("Draw")}, {text("undo"), text("Edit")}}));
    }

    void withoutMenusThereAreOnlyOthers_data()
    {
        QTest::addColumn<bool>("hasServices");
        QTest::newRow("no user-interface manager") << true;
        QTest::newRow("no services") << false;
    }

    void withoutMenusThereAreOnlyOthers()
    {
        QFETCH(bool, hasServices);
        addEntry(host->addTopLevelMenu(text("Draw")), "Line", "line");
        host->hasUIManager = false;
        host->setPresent(hasServices);
        tests::OpenContainer container;
        QVERIFY(container.categoryMap.isEmpty());
        QCOMPARE(container.getCategory(text("line")), text("Others"));
        container.fcParseRecursive(text("Draw"), nullptr);
        QVERIFY(container.categoryMap.isEmpty());
    }

    void aMenuThatGrowsIsWalkedToItsEnd()
    {
        GrowingCollection items;
        host->ui.addItem(&items, text("Line"), false, {}, command("line"));
        items.late = host->ui.addItem(nullptr, text("Arc"), false, {}, command("arc"));
        tests::OpenContainer container;
        container.fcParseRecursive(text("Draw"), &items);
        QCOMPARE(container.categoryMap.keys(), QStringList({text("arc"), text("line")}));
    }

    // Every level leads back to the first by two entries.
    void aMenuThatContainsItselfEnds()
    {
        class Loop : public tests::FakeMenuItem
        {
        public:
            [[nodiscard]] CHxUIMenuItemCollection *GetSubItems() const override { return target; }
            CHxUIMenuItemCollection *target = nullptr;
        };
        tests::FakeMenuItem *draw = host->addTopLevelMenu(text("Draw"));
        tests::FakeMenuItem *arcs = host->ui.addItem(draw->subItems.get(), text("Arcs"), true);
        Loop outer;
        outer.target = draw->subItems.get();
        Loop inner;
        inner.target = arcs->subItems.get();
        arcs->subItems->items = {&outer, &inner, &outer};
        addEntry(arcs, "Tangential", "arctan");
        addEntry(draw, "Line", "line");

        tests::OpenContainer container;
        QCOMPARE(container.categoryMap,
                 (Categories{{text("arctan"), text("Draw")}, {text("line"), text("Draw")}}));
        // Each walk starts empty.
        container.init();
        QCOMPARE(container.categoryMap.size(), 2);
        arcs->subItems->items.clear();
    }

    // The same entries below two menus are walked under both.
    void aMenuSharedByTwoIsWalkedTwice()
    {
        tests::FakeMenuItemCollection items;
        host->ui.addItem(&items, text("Line"), false, {}, command("line"));
        tests::OpenContainer container;
        container.fcParseRecursive(text("Draw"), &items);
        container.fcParseRecursive(text("Edit"), &items);
        QCOMPARE(container.getCategory(text("line")), text("Edit"));
    }

private:
    tests::FakeCommandItem *command(const char *commandString)
    {
        // Made by the user-interface manager, so that the command manager does not list it.
        auto *item = static_cast<tests::FakeCommandItem *>(
            host->ui.CreateCommandItem(CHxString(QLatin1String("ID_") + text(commandString)), 0));
        item->command = text(commandString);
        return item;
    }

    // Null means the bar itself.
    void addEntry(tests::FakeMenuItem *menu, const char *caption, const char *commandString)
    {
        tests::FakeMenuItemCollection *items =
            menu ? menu->subItems.get() : &static_cast<tests::FakeMenu *>(host->ui.menus.front())->items;
        host->ui.addItem(items, text(caption), false, {}, command(commandString));
    }

    std::unique_ptr<tests::OlderSettings> older;
    std::unique_ptr<tests::FakeHost> host;
};

QTEST_MAIN(CommandCatalogueTest)
#include "tst_commandcatalogue.moc"
