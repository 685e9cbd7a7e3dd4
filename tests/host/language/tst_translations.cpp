// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/language/Translations.h"
#include "tests/support/EmbeddedLanguage.h"
#include "tests/support/FakeTranslator.h"
#include "tests/support/FatalWarnings.h"

#include <QTest>
#include <QWidget>

#include <algorithm>
#include <memory>

using gesturewidget::Translations;

namespace {

// A window that counts how often Qt says that the language has changed.
class Window : public QWidget
{
public:
    int changes = 0;

protected:
    void changeEvent(QEvent *event) override
    {
        changes += event->type() == QEvent::LanguageChange ? 1 : 0;
        QWidget::changeEvent(event);
    }
};

QString translated(const char *context, const char *source)
{
    return QCoreApplication::translate(context, source);
}

} // namespace

// The texts of host and module in the program's language.
class TranslationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void allLanguagesAreThere();
    void hostAndModuleSpeakTheLanguage();
    void programIsNotTold();
    void nothingIsLeftBehind();
    void programsOwnTranslatorsGoOn();
    void endsAfterTheApplication();
};

void TranslationsTest::allLanguagesAreThere()
{
    QStringList expected;
    for (const char *code : tests::kLanguages)
        expected.append(QString::fromLatin1(code));
    expected.removeAll(QStringLiteral("en"));
    QStringList found = Translations::languages();
    std::sort(expected.begin(), expected.end());
    std::sort(found.begin(), found.end());
    QCOMPARE(found, expected);
}

void TranslationsTest::hostAndModuleSpeakTheLanguage()
{
    Translations translations;
    translations.install(QStringLiteral("de"));
    QCOMPARE(translated("host", "Save"), QStringLiteral("Speichern"));
    QCOMPARE(translated("QObject", "Mouse Gestures..."), QStringLiteral("Mausgesten..."));
    translations.install(QStringLiteral("fr"));
    QCOMPARE(translated("host", "Save"), QStringLiteral("Enregistrer"));
    QCOMPARE(translated("another program", "Save"), QStringLiteral("Save"));
    translations.install(QStringLiteral("en"));
    QCOMPARE(translated("host", "Save"), QStringLiteral("Save"));
    translations.install(QStringLiteral("../../de"));
    QCOMPARE(translated("host", "Save"), QStringLiteral("Save"));
}

// Programs set all texts again and rebuild menus when Qt announces another language.
void TranslationsTest::programIsNotTold()
{
    Window window;
    Translations translations;
    translations.install(QStringLiteral("de"));
    translations.install(QStringLiteral("ja"));
    translations.remove();
    QCoreApplication::processEvents();
    QCOMPARE(window.changes, 0);
    const tests::FakeTranslator other; // Qt does announce others
    QCoreApplication::processEvents();
    QCOMPARE(window.changes, 1);
}

void TranslationsTest::nothingIsLeftBehind()
{
    {
        Translations translations;
        translations.install(QStringLiteral("de"));
    }
    QCOMPARE(translated("host", "Save"), QStringLiteral("Save"));
    Translations translations;
    translations.remove();
    translations.install(QStringLiteral("de"));
    translations.remove();
    translations.remove();
    QCOMPARE(translated("host", "Save"), QStringLiteral("Save"));
}

void TranslationsTest::programsOwnTranslatorsGoOn()
{
    tests::FakeTranslator program;
    program.add("program", "Save", QStringLiteral("Sichern"));
    Translations translations;
    translations.install(QStringLiteral("de"));
    QCOMPARE(translated("program", "Save"), QStringLiteral("Sichern"));
    translations.remove();
    QCOMPARE(translated("program", "Save"), QStringLiteral("Sichern"));
}

void TranslationsTest::endsAfterTheApplication()
{
    // The host may be destroyed last. There is nothing to remove then.
    static std::unique_ptr<Translations> late;
    late = std::make_unique<Translations>();
    late->install(QStringLiteral("de"));
    QCOMPARE(translated("host", "Save"), QStringLiteral("Speichern"));
}

QTEST_MAIN(TranslationsTest)
#include "tst_translations.moc"
