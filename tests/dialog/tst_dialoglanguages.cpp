// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutDataContainer.h"
#include "dialog/Notice.h"
#include "tests/dialog/DraftingCommands.h"
#include "tests/dialog/Input.h"
#include "tests/dialog/TestDialog.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/support/EmbeddedLanguage.h"
#include "tests/support/FatalWarnings.h"

#include <QSet>
#include <QTest>

#include <memory>

using tests::kCategory;
using tests::kDirection;
using tests::TestDialog;

// The dialog in all its languages.
class DialogLanguagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init();
    void cleanup();

    void everyTextIsTranslated_data() { languages(); }
    void everyTextIsTranslated();
    void allCommandsShowsAll_data() { languages(); }
    void allCommandsShowsAll();
    void othersShowsCommandsOutsideTheMenus_data() { languages(); }
    void othersShowsCommandsOutsideTheMenus();
    void noneUnbinds_data() { languages(); }
    void noneUnbinds();
    void directionsDiffer_data() { languages(); }
    void directionsDiffer();
    void languageMayChangeWhileItIsOpen();

private:
    static void languages();
    // Speaks the row's language and opens the dialog.
    void open();
    [[nodiscard]] QStringList texts() const;

    std::unique_ptr<tests::FakeHost> m_host;
    std::unique_ptr<tests::EmbeddedLanguage> m_language;
    std::unique_ptr<TestDialog> m_dialog;
};

void DialogLanguagesTest::init()
{
    tests::resetWarnings();
    m_host = std::make_unique<tests::FakeHost>();
    tests::addDraftingCommands(*m_host, 40, false);
}

void DialogLanguagesTest::cleanup()
{
    m_dialog.reset();
    m_language.reset();
    m_host.reset();
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

void DialogLanguagesTest::languages()
{
    QTest::addColumn<QString>("language");
    for (const char *language : tests::kLanguages)
        QTest::newRow(language) << QString::fromLatin1(language);
}

void DialogLanguagesTest::open()
{
    QFETCH(QString, language);
    m_dialog.reset();
    m_language = std::make_unique<tests::EmbeddedLanguage>(QStringLiteral("module"), language);
    QCOMPARE(m_language->isLoaded(), language != QLatin1String("en"));
    MgDonutDataContainer::instance()->init();
    m_dialog = std::make_unique<TestDialog>();
    QVERIFY(tests::showActive(*m_dialog));
}

QStringList DialogLanguagesTest::texts() const
{
    const auto &ui = m_dialog->ui;
    QStringList all{m_dialog->windowTitle(),
                    ui.category_label->text(),
                    ui.filter_checkBox->text(),
                    ui.search_label->text(),
                    ui.enableGesture_checkBox->text(),
                    ui.four_radioButton->text(),
                    ui.eight_radioButton->text(),
                    ui.reset_pushButton->text(),
                    ui.print_pushButton->text(),
                    ui.category_comboBox->itemText(0),
                    ui.category_comboBox->itemText(ui.category_comboBox->count() - 1),
                    ui.category_comboBox->accessibleName(),
                    ui.search_lineEdit->accessibleName(),
                    ui.command_tableView->accessibleName(),
                    m_dialog->directionList.item(0)->text(),
                    m_dialog->button(QDialogButtonBox::Cancel)->text(),
                    m_dialog->button(QDialogButtonBox::Help)->text()};
    for (int column = 0; column < 3; ++column)
        all.append(m_dialog->proxy->headerData(column, Qt::Horizontal).toString());
    for (unsigned char direction = 1; direction <= 8; ++direction)
        all.append(m_dialog->getDirectionName(direction));
    return all;
}

void DialogLanguagesTest::everyTextIsTranslated()
{
    QFETCH(QString, language);
    open();
    const QStringList here = texts();
    m_dialog.reset();
    m_language.reset();
    m_dialog = std::make_unique<TestDialog>();
    const QStringList english = texts();
    QCOMPARE(here.size(), english.size());
    for (int i = 0; i < here.size(); ++i) {
        QVERIFY2(!here[i].trimmed().isEmpty(), qPrintable(english[i]));
        QVERIFY2((here[i] == english[i]) == tests::isAsInEnglish(language, english[i]),
                 qPrintable(here[i]));
    }
}

void DialogLanguagesTest::allCommandsShowsAll()
{
    open();
    QCOMPARE(m_dialog->ui.category_comboBox->currentText(), m_dialog->allCommandsText());
    QCOMPARE(m_dialog->proxy->rowCount(), 40);
    m_dialog->ui.category_comboBox->setCurrentIndex(1);
    QVERIFY(m_dialog->proxy->rowCount() < 40);
    m_dialog->ui.category_comboBox->setCurrentIndex(0);
    QCOMPARE(m_dialog->proxy->rowCount(), 40);
}

void DialogLanguagesTest::othersShowsCommandsOutsideTheMenus()
{
    open();
    QComboBox *categories = m_dialog->ui.category_comboBox;
    categories->setCurrentIndex(categories->count() - 1);
    QCOMPARE(m_dialog->proxy->rowCount(), 4); // the last of every ten is in no menu
    const auto shown = m_dialog->shown(kCategory);
    for (const QString &category : shown)
        QCOMPARE(category, categories->currentText());
}

void DialogLanguagesTest::noneUnbinds()
{
    open();
    const int row = m_dialog->rowOf(QStringLiteral("Line"));
    tests::click(m_dialog->ui.command_tableView, m_dialog->cell(row, kDirection));
    QVERIFY(m_dialog->editor());
    QCOMPARE(m_dialog->editor()->currentIndex(), 7);
    QCOMPARE(m_dialog->editor()->itemText(0), m_dialog->getDirectionName(0));
    tests::key(m_dialog.get(), Qt::Key_Space);
    tests::key(m_dialog.get(), Qt::Key_Home);
    tests::key(m_dialog.get(), Qt::Key_Return);
    QCOMPARE(int(m_dialog->record(QStringLiteral("ID_LINE")).eightDirection), 0);
}

// A person tells directions apart by their names in the list and at a robbed command.
void DialogLanguagesTest::directionsDiffer()
{
    open();
    QSet<QString> names;
    for (unsigned char direction = 0; direction <= 8; ++direction)
        names.insert(m_dialog->getDirectionName(direction));
    QCOMPARE(names.size(), 9);
    const QString entry = m_dialog->directionList.item(7)->data(Qt::AccessibleTextRole).toString();
    QVERIFY2(entry.startsWith(m_dialog->getDirectionName(7)), qPrintable(entry));
    QVERIFY2(entry.endsWith(QLatin1String("Line")), qPrintable(entry));

    const int row = m_dialog->rowOf(QStringLiteral("Copy"));
    QVERIFY(m_dialog->model->setData(m_dialog->proxy->mapToSource(m_dialog->cell(row, kDirection)), 7,
                                     Qt::EditRole));
    const QString robbed = m_dialog->findChild<Notice *>()->text();
    QVERIFY2(robbed.contains(QLatin1String("Line")) && robbed.size() > 5, qPrintable(robbed));
}

void DialogLanguagesTest::languageMayChangeWhileItIsOpen()
{
    m_dialog = std::make_unique<TestDialog>();
    const tests::EmbeddedLanguage german(QStringLiteral("module"), QStringLiteral("de"));
    m_dialog->ui.category_comboBox->setCurrentIndex(1);
    m_dialog->ui.category_comboBox->setCurrentIndex(0);
    QCOMPARE(m_dialog->proxy->rowCount(), 40);
}

QTEST_MAIN(DialogLanguagesTest)
#include "tst_dialoglanguages.moc"
