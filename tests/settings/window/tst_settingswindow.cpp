// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The whole window, in a home with programs of the test.

#include "settings/window/SettingsWindow.h"

#include "host/language/Translations.h"
#include "settings/window/MessageBar.h"
#include "tests/settings/support/HomeTest.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QScopeGuard>
#include <QSet>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>

using settings::SettingsWindow;
using tests::text;

namespace {

template <typename Widget> Widget *find(const SettingsWindow &window, const char *name)
{
    auto *widget = window.findChild<Widget *>(text(name));
    if (!widget)
        qFatal("there is no %s", name);
    return widget;
}

QString title(const SettingsWindow &window)
{
    return find<QLabel>(window, "program_title")->text();
}

QString state(const SettingsWindow &window)
{
    return find<QLabel>(window, "program_state")->text();
}

QString message(const SettingsWindow &window)
{
    return find<settings::MessageBar>(window, "message_bar")->text();
}

// What brightness a person sees, 0 to 1, as WCAG defines it.
double luminance(QRgb color)
{
    const auto linear = [](int value) {
        const double part = value / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

// The contrast between the most frequent colour and the one that differs most, 1 to 21. WCAG asks for
// 4.5 for text.
double contrastIn(const QImage &image)
{
    QHash<QRgb, int> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++colors[image.pixel(x, y)];
    }
    const auto ground = std::max_element(colors.begin(), colors.end());
    double most = 1.0;
    for (auto color = colors.begin(); color != colors.end(); ++color) {
        const double one = luminance(color.key()) + 0.05;
        const double other = luminance(ground.key()) + 0.05;
        most = std::max(most, std::max(one, other) / std::min(one, other));
    }
    return most;
}

} // namespace

class SettingsWindowTest : public tests::HomeTest
{
    Q_OBJECT

    // Opens a window and waits until it has found the programs and shows one.
    static void open(SettingsWindow &window, int programs = 2)
    {
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const QAbstractItemModel *list = find<QListView>(window, "program_list")->model();
        QTRY_COMPARE(list->rowCount(), programs);
        QTRY_VERIFY(!find<QProgressBar>(window, "program_progress")->isVisible());
        QVERIFY(programs == 0 || !title(window).isEmpty());
    }

private Q_SLOTS:
    void init()
    {
        HomeTest::init();
        install(text("draw"), text("Draw"));
        install(text("sketch"), text("Sketch"));
    }

    void showsAProgramAtOnce()
    {
        SettingsWindow window;
        open(window);
        QCOMPARE(title(window), text("Draw"));
        QVERIFY2(state(window).contains(text("Gestures")), qPrintable(state(window)));
        QCOMPARE(message(window), QString());
    }

    void showsFirstAProgramThatStartsWithGestures()
    {
        {
            SettingsWindow window;
            open(window);
            find<QListView>(window, "program_list")->setFocus();
            QTest::keyClick(window.windowHandle(), Qt::Key_Down);
            QCOMPARE(title(window), text("Sketch"));
            QTest::keyClick(window.windowHandle(), Qt::Key_Space);
            QVERIFY(QFile::exists(ownEntryFile(text("sketch"))));
        }
        SettingsWindow window;
        open(window);
        QCOMPARE(title(window), text("Sketch"));
        QVERIFY(find<QAbstractButton>(window, "program_switch")->isChecked());
    }

    void aSmallIconIsLargeOnThePage()
    {
        QImage image(16, 16, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(place("arc.png")));
        install(text("arc"), text("Arc"), "Icon=" + QFile::encodeName(place("arc.png")) + '\n');
        SettingsWindow window;
        open(window, 3);
        QCOMPARE(title(window), text("Arc"));
        const QSize shown = find<QLabel>(window, "program_icon")->sizeHint();
        QCOMPARE(shown, QSize(48, 48));
    }

    void theSwitchOfThePageAndTheOneInTheListAreOne()
    {
        SettingsWindow window;
        open(window);
        auto *button = find<QAbstractButton>(window, "program_switch");
        const QModelIndex index = find<QListView>(window, "program_list")->model()->index(0, 0);
        button->click();
        QCOMPARE(index.data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        QVERIFY(QFile::exists(ownEntryFile(text("draw"))));
        find<QListView>(window, "program_list")->setFocus();
        QTest::keyClick(window.windowHandle(), Qt::Key_Space);
        QVERIFY(!button->isChecked());
        QVERIFY(!QFile::exists(ownEntryFile(text("draw"))));
    }

    void aSwitchThatFailsStaysAndSaysWhy()
    {
        write(ownEntryFile(text("draw")), "[Desktop Entry]\nType=Application\nName=Draw\nExec=draw\n");
        SettingsWindow window;
        open(window);
        auto *button = find<QAbstractButton>(window, "program_switch");
        button->click();
        QVERIFY(!button->isChecked());
        QVERIFY2(message(window).contains(text("your own")), qPrintable(message(window)));
    }

    void everythingIsDoneByKeys()
    {
        SettingsWindow window;
        open(window);
        const auto press = [&](Qt::Key key, Qt::KeyboardModifiers keys = Qt::NoModifier) {
            QTest::keyClick(window.windowHandle(), key, keys);
        };
        press(Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), text("offset"));
        press(Qt::Key_Return); // to the list
        press(Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(stored(text("draw"), text("87")), text("ID_OFFSET"));
        QCOMPARE(stored(text("draw"), text("82")), QString());
        press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(stored(text("draw"), text("87")), text("ID_LINE"));
        QCOMPARE(stored(text("draw"), text("82")), text("ID_OFFSET"));
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(stored(text("draw"), text("87")), text("ID_OFFSET"));

        window.findChild<QWidget *>(text("sector_up"))->setFocus();
        press(Qt::Key_Delete);
        QCOMPARE(stored(text("draw"), text("81")), QString());
        press(Qt::Key_Return); // puts the chosen command there
        QCOMPARE(stored(text("draw"), text("81")), text("ID_OFFSET"));
        press(Qt::Key_Space);
        press(Qt::Key_Left);
        press(Qt::Key_Space);
        QCOMPARE(stored(text("draw"), text("82")), text("ID_OFFSET"));
        press(Qt::Key_4, Qt::AltModifier);
        QTRY_COMPARE(stored(text("draw"), text("ActiveScheme")),
                     text("4")); // shows itself pressed first
    }

    void tabReachesEverythingThatCanBeUsed()
    {
        writeProfile(text("draw"));
        SettingsWindow window;
        open(window);
        QTest::keyClicks(find<QLineEdit>(window, "command_search"), text("line"));
        QSet<QString> reached;
        for (int i = 0; i < 60; ++i) {
            QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
            if (QApplication::focusWidget())
                reached.insert(QApplication::focusWidget()->objectName());
        }
        for (const char *name : {"program_search", "program_list", "program_switch", "ring_list",
                                 "own_rings_button", "four_button", "sector_up", "trigger_list",
                                 "command_search", "put_button", "command_view"})
            QVERIFY2(reached.contains(text(name)),
                     qPrintable(text(name) + text(" is not in ")
                                + QStringList(reached.cbegin(), reached.cend()).join(QLatin1Char(' '))));
    }

    void everyControlHasANameAndARole()
    {
        SettingsWindow window;
        open(window);
        const auto widgets = window.findChildren<QWidget *>();
        int seen = 0;
        for (QWidget *widget : widgets) {
            if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible()
                || qobject_cast<QAbstractScrollArea *>(widget->parentWidget()))
                continue;
            const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
            QVERIFY(accessible);
            const QByteArray what =
                widget->metaObject()->className() + QByteArray(" ") + widget->objectName().toLatin1();
            QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), what.constData());
            QVERIFY2(accessible->role() != QAccessible::NoRole, what.constData());
            ++seen;
        }
        QVERIFY(seen >= 15);
    }

    void aProgramThatIsInstalledMeanwhileAppears()
    {
        SettingsWindow window;
        open(window);
        install(text("arc"), text("Arc"));
        const QAbstractItemModel *list = find<QListView>(window, "program_list")->model();
        QTRY_COMPARE(list->rowCount(), 3);
        QCOMPARE(title(window), text("Draw")); // the chosen one stays
    }

    void aProgramThatIsRemovedMeanwhileSaysSo()
    {
        SettingsWindow window;
        open(window);
        uninstall(text("draw"));
        const QAbstractItemModel *list = find<QListView>(window, "program_list")->model();
        QTRY_COMPARE(list->rowCount(), 1);
        QCOMPARE(title(window), text("Draw"));
        QTRY_VERIFY2(state(window).contains(text("no longer installed")), qPrintable(state(window)));
        // Changes are kept all the same, and the program's switch does no harm.
        window.findChild<QWidget *>(text("sector_up"))->setFocus();
        QTest::keyClick(window.windowHandle(), Qt::Key_Delete);
        QCOMPARE(stored(text("draw"), text("81")), QString());
        find<QAbstractButton>(window, "program_switch")->click();
        QVERIFY(!find<QAbstractButton>(window, "program_switch")->isChecked());
    }

    void twoWindowsStayRight()
    {
        SettingsWindow one;
        SettingsWindow other;
        open(one);
        open(other);
        one.findChild<QWidget *>(text("sector_up"))->setFocus();
        one.activateWindow();
        QTest::keyClick(one.findChild<QWidget *>(text("sector_up")), Qt::Key_Delete);
        QCOMPARE(stored(text("draw"), text("81")), QString());
        QTRY_COMPARE(QAccessible::queryAccessibleInterface(other.findChild<QWidget *>(text("sector_up")))
                         ->text(QAccessible::Name),
                     text("up: nothing"));
        QTest::keyClick(other.findChild<QWidget *>(text("sector_right")), Qt::Key_Delete);
        QCOMPARE(stored(text("draw"), text("81")), QString());
        find<QAbstractButton>(one, "program_switch")->click();
        QTRY_VERIFY(find<QAbstractButton>(other, "program_switch")->isChecked());
    }

    void damagedSettingsAreSaid()
    {
        write(settingsFile(text("draw")), QByteArray(200, '\0'));
        SettingsWindow window;
        open(window);
        QVERIFY2(message(window).contains(text("draw.ini")), qPrintable(message(window)));
    }

    void aHomeThatCannotBeWrittenIsSaid()
    {
        if (::geteuid() == 0)
            QVERIFY(QDir().rmdir(place("config")) && tests::writeFile(place("config"), "a file"));
        else
            QVERIFY(QFile::setPermissions(place("config"), QFile::ReadOwner | QFile::ExeOwner));
        SettingsWindow window;
        open(window);
        QVERIFY2(state(window).contains(text("cannot be kept")), qPrintable(state(window)));
        window.findChild<QWidget *>(text("sector_up"))->setFocus();
        QTest::keyClick(window.windowHandle(), Qt::Key_Delete);
        QVERIFY2(message(window).contains(text("draw.ini")), qPrintable(message(window)));
        QVERIFY(!find<QAction>(window, "undo")->isEnabled());
        QFile::setPermissions(place("config"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void aComplaintGoesWithTheNextChange()
    {
        SettingsWindow window;
        open(window);
        auto *field = find<QWidget>(window, "trigger_field");
        QTest::mouseClick(field, Qt::LeftButton);
        QVERIFY2(message(window).startsWith(text("The left button")), qPrintable(message(window)));
        QTest::mouseClick(field, Qt::MiddleButton);
        QCOMPARE(message(window), QString());
    }

    void gesturesThatAreOffAreSwitchedOnHere()
    {
        write(settingsFile(text("draw")), "[GestureWidget]\nEnableMouseGesture=0\n");
        SettingsWindow window;
        open(window);
        auto *button = find<QPushButton>(window, "enable_button");
        QVERIFY(button->isVisible());
        button->click();
        QCOMPARE(stored(text("draw"), text("EnableMouseGesture")), text("1"));
        QVERIFY(!button->isVisible());
    }

    void gesturesThatAreOffSinceACrashAreSwitchedOnHere()
    {
        write(settingsFile(text("draw")), "[Host]\nOffSinceCrash=1\n");
        SettingsWindow window;
        open(window);
        QVERIFY2(state(window).contains(text("crashed")), qPrintable(state(window)));
        auto *button = find<QPushButton>(window, "enable_button");
        QVERIFY(button->isVisible());
        button->click();
        QVERIFY(!tests::contentOf(settingsFile(text("draw"))).contains("OffSinceCrash"));
        QVERIFY2(!state(window).contains(text("crashed")), qPrintable(state(window)));
        QVERIFY(!button->isVisible());
    }

    void noProgramIsSaid()
    {
        uninstall(text("draw"));
        uninstall(text("sketch"));
        SettingsWindow window;
        open(window, 0);
        const auto labels = window.findChildren<QLabel *>();
        QTRY_VERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
            return label->isVisible() && label->text().contains(text("no program"));
        }));
    }

    // A program on a disk that does not answer: the search waits at a pipe until somebody writes to it.
    void theWindowIsUsableDuringTheSearch()
    {
        const QByteArray pipe = QFile::encodeName(programFile(text("slow")));
        QCOMPARE(::mkfifo(pipe.constData(), 0700), 0);
        write(entryFile(text("slow")), "[Desktop Entry]\nType=Application\nName=Slow\nExec=slow\n");
        SettingsWindow window;
        const auto letGo = [&pipe] {
            const int writer = ::open(pipe.constData(), O_WRONLY | O_NONBLOCK);
            if (writer >= 0)
                ::close(writer);
        };
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const auto *bar = find<QProgressBar>(window, "program_progress");
        QTRY_VERIFY(bar->isVisible());
        auto *search = find<QLineEdit>(window, "program_search");
        search->setFocus();
        QTest::keyClicks(search, text("draw"));
        QCOMPARE(search->text(), text("draw"));
        QVERIFY(!window.grab().isNull());
        QVERIFY(bar->isVisible());
        QTRY_VERIFY((letGo(), !bar->isVisible()));
        const QAbstractItemModel *list = find<QListView>(window, "program_list")->model();
        QCOMPARE(list->rowCount(), 1);
        search->clear();
        QCOMPARE(list->rowCount(), 2);
    }

    void everythingIsReadableInEveryTheme_data()
    {
        QTest::addColumn<QColor>("window");
        QTest::addColumn<QColor>("base");
        QTest::addColumn<QColor>("tip");
        QTest::newRow("dark") << QColor(0x22, 0x20, 0x21) << QColor(0x3d, 0x3d, 0x3d)
                              << QColor(0x3f, 0x3f, 0x36);
        QTest::newRow("light") << QColor(0xef, 0xef, 0xef) << QColor(Qt::white)
                               << QColor(0xff, 0xff, 0xdc);
    }
    void everythingIsReadableInEveryTheme()
    {
        QFETCH(QColor, window);
        QFETCH(QColor, base);
        QFETCH(QColor, tip);
        const QPalette before = QApplication::palette();
        const bool isDark = window.lightness() < 128;
        QPalette palette(window);
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::ToolTipBase, tip);
        palette.setColor(QPalette::ToolTipText, isDark ? Qt::white : Qt::black);
        QApplication::setPalette(palette);
        const auto back = qScopeGuard([&before] { QApplication::setPalette(before); });
        SettingsWindow shown;
        open(shown);
        find<settings::MessageBar>(shown, "message_bar")->complain(text("something is wrong"));
        QList<QWidget *> widgets;
        const auto labels = shown.findChildren<QLabel *>();
        for (QLabel *label : labels) {
            if (!label->text().isEmpty())
                widgets.append(label);
        }
        const auto buttons = shown.findChildren<QAbstractButton *>();
        for (QAbstractButton *button : buttons)
            widgets.append(button);
        for (const char *name : {"trigger_field", "trigger_list", "program_list", "command_view"})
            widgets.append(find<QWidget>(shown, name));
        int seen = 0;
        for (QWidget *widget : std::as_const(widgets)) {
            if (!widget->isVisible() || !widget->isEnabled())
                continue;
            const double contrast =
                contrastIn(shown.grab({widget->mapTo(&shown, QPoint()), widget->size()}).toImage());
            const QByteArray what = widget->metaObject()->className() + QByteArray(" ")
                                  + widget->objectName().toLatin1() + ' ' + QByteArray::number(contrast);
            // WCAG asks for 3 for controls without text.
            QVERIFY2(contrast >= (widget->objectName() == text("program_switch") ? 3.0 : 4.5),
                     what.constData());
            ++seen;
        }
        QVERIFY2(seen >= 15, qPrintable(QString::number(seen)));
    }

    void anotherProgramBeginsAnew()
    {
        write(settingsFile(text("draw")), QByteArray(200, '\0'));
        SettingsWindow window;
        open(window);
        auto *search = find<QLineEdit>(window, "command_search");
        QTest::keyClicks(search, text("line"));
        QVERIFY(!message(window).isEmpty());
        auto *list = find<QListView>(window, "program_list");
        list->setFocus();
        QTest::keyClick(window.windowHandle(), Qt::Key_Down);
        QCOMPARE(title(window), text("Sketch"));
        QCOMPARE(search->text(), QString());
        QCOMPARE(message(window), QString());
        QTest::keyClick(window.windowHandle(), Qt::Key_Up);
        QVERIFY(!message(window).isEmpty());
    }

    void lookingForAProgramKeepsTheChosenOne()
    {
        SettingsWindow window;
        open(window);
        QTest::keyClicks(find<QLineEdit>(window, "program_search"), text("ske"));
        QCOMPARE(find<QListView>(window, "program_list")->model()->rowCount(), 1);
        QCOMPARE(title(window), text("Draw"));
    }

    void everyLanguageFits_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("percent");
        QStringList languages = gesturewidget::Translations::languages();
        QVERIFY(languages.contains(text("de")));
        languages.prepend(text("en"));
        for (const QString &language : std::as_const(languages)) {
            for (const int percent : {100, 150, 300})
                QTest::addRow("%s, %d %%", qPrintable(language), percent) << language << percent;
        }
    }
    void everyLanguageFits()
    {
        QFETCH(QString, language);
        QFETCH(int, percent);
        const QFont before = QApplication::font();
        QFont font = before;
        font.setPointSizeF(before.pointSizeF() * percent / 100.0);
        QApplication::setFont(font);
        const auto back = qScopeGuard([&before] { QApplication::setFont(before); });
        writeProfile(text("draw"));
        gesturewidget::Translations translations;
        translations.install(language);
        SettingsWindow window;
        // The screen of the tests is that of a person who needs no larger texts.
        window.resize(window.size() * percent / 100);
        open(window);
        QCOMPARE(window.windowTitle() == text("Mouse Gestures"), language == text("en"));
        QVERIFY(state(window) != QString());
        int seen = 0;
        const auto labels = window.findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (!label->isVisible() || label->text().isEmpty())
                continue;
            const int needed =
                label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
            QTRY_VERIFY2_WITH_TIMEOUT(label->height() >= needed, qPrintable(label->text()), 500);
            QVERIFY2(label->wordWrap() || label->width() >= label->sizeHint().width(),
                     qPrintable(label->text()));
            ++seen;
        }
        QVERIFY(seen >= 5);
        const auto buttons = window.findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons)
            QVERIFY2(!button->isVisible() || button->width() >= button->minimumSizeHint().width(),
                     qPrintable(button->text()));
        for (const char *name : {"ring_list", "trigger_list"}) {
            const auto *box = find<QComboBox>(window, name);
            QVERIFY2(box->isVisible() && box->height() >= box->minimumSizeHint().height(), name);
        }
        const auto *field = find<QWidget>(window, "trigger_field");
        QVERIFY(field->width() >= field->sizeHint().width());
        QVERIFY(field->height() >= field->sizeHint().height());
    }

    void aTaskGetsItsOwnRingByKeys()
    {
        writeProfile(text("draw"));
        SettingsWindow window;
        open(window);
        auto *button = find<QToolButton>(window, "own_rings_button");
        auto *rings = find<QComboBox>(window, "ring_list");
        QVERIFY(button->isVisible());
        QCOMPARE(rings->count(), 1);
        const auto toggle = [&] {
            // The menu has an event loop of its own.
            QTimer::singleShot(0, button->menu(), [button] {
                QTest::keyClick(button->menu(), Qt::Key_Down);
                QTest::keyClick(button->menu(), Qt::Key_Return);
            });
            button->setFocus();
            QTest::keyClick(button, Qt::Key_Space);
        };
        toggle();
        QTRY_COMPARE(rings->count(), 2);
        QCOMPARE(rings->currentData().toString(), text("Sketching"));
        QVERIFY2(QAccessible::queryAccessibleInterface(window.findChild<QWidget *>(text("sector_right")))
                     ->text(QAccessible::Name)
                     .contains(text("Sketch_Line")),
                 "the ring of the task is not shown");
        toggle();
        QTRY_COMPARE(rings->count(), 1);
        find<QAction>(window, "undo")->trigger();
        QCOMPARE(rings->count(), 2);
    }

    void aProgramWithoutTasksShowsNoRings()
    {
        SettingsWindow window;
        open(window);
        QVERIFY(!find<QToolButton>(window, "own_rings_button")->isVisible());
        QVERIFY(!find<QComboBox>(window, "ring_list")->isVisible());
    }

    void itComesToTheFront()
    {
        SettingsWindow window;
        open(window);
        window.showMinimized();
        window.bringToFront();
        QTRY_VERIFY(!window.isMinimized());
        QTRY_VERIFY(window.isActiveWindow());
    }

    void eachProgramKeepsItsOwnUndo()
    {
        SettingsWindow window;
        open(window);
        auto *undo = find<QAction>(window, "undo");
        window.findChild<QWidget *>(text("sector_up"))->setFocus();
        QTest::keyClick(window.windowHandle(), Qt::Key_Delete);
        QVERIFY(undo->isEnabled());
        auto *list = find<QListView>(window, "program_list");
        list->setFocus();
        QTest::keyClick(window.windowHandle(), Qt::Key_Down);
        QVERIFY(!undo->isEnabled());
        QTest::keyClick(window.windowHandle(), Qt::Key_Up);
        QVERIFY(undo->isEnabled());
        undo->trigger();
        QCOMPARE(stored(text("draw"), text("81")), text("ID_ZOOM_BOUNDS"));
    }
};

QTEST_MAIN(SettingsWindowTest)
#include "tst_settingswindow.moc"
