// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The list of programs: what is found, and what its switches do.

#include "settings/programs/ProgramModel.h"

#include "settings/programs/ProgramDelegate.h"
#include "settings/programs/ProgramFinder.h"
#include "settings/programs/ProgramIcon.h"
#include "settings/programs/ProgramPanel.h"
#include "tests/settings/support/HomeTest.h"
#include "tests/support/Fading.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QImage>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QPixmap>
#include <QProgressBar>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QtTest>

#include <unistd.h>

using launcher::DesktopMenu;
using settings::ProgramFinder;
using settings::ProgramModel;
using settings::ProgramPanel;
using tests::text;

namespace {

DesktopMenu::Places places()
{
    return DesktopMenu::usualPlaces(qgetenv("PATH"), launcher::launcherPath());
}

QStringList names(const ProgramModel &model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names.append(model.index(row).data().toString());
    return names;
}

QImage redImage(int side)
{
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image;
}

// Looks for programs until the search has ended.
void search(ProgramModel &model)
{
    ProgramFinder finder;
    QObject::connect(&finder, &ProgramFinder::found, &model, &ProgramModel::add);
    QSignalSpy finished(&finder, &ProgramFinder::finished);
    model.beginSearch();
    finder.start(launcher::MenuPrograms(places(), launcher::readEnvironment(::environ), {}, {}));
    QVERIFY(finished.wait());
    model.endSearch();
}

} // namespace

class ProgramModelTest : public tests::HomeTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { tests::outlastFading(); }

    void init()
    {
        HomeTest::init();
        install(text("sketch"), text("Sketch"));
        install(text("draw"), text("Draw"));
        installPlain(text("plain"), text("Plain"));
    }

    void holdsTheProgramsByName()
    {
        ProgramModel model(places());
        const QAbstractItemModelTester tester(&model);
        search(model);
        QCOMPARE(names(model), (QStringList{text("Draw"), text("Sketch")}));
        QVERIFY(!model.index(0).data(Qt::DecorationRole).value<QIcon>().isNull());
        QCOMPARE(model.index(0).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
    }

    void iconsOutsideOfAnyThemeAreFound_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("beside the themes") << text("share/icons/drafter.png");
        QTest::newRow("among the pixmaps") << text("share/pixmaps/drafter.png");
        QTest::newRow("the person's own") << text("data/icons/drafter.png");
    }
    void iconsOutsideOfAnyThemeAreFound()
    {
        QFETCH(QString, file);
        QVERIFY(QDir().mkpath(QFileInfo(place(file)).path()));
        QVERIFY(redImage(16).save(place(file)));
        for (const char *name : {"drafter", "drafter.png"})
            QCOMPARE(settings::programIcon(text(name)).pixmap(16).toImage().pixelColor(8, 8),
                     QColor(Qt::red));
    }

    void smallIconsFillTheirPlace_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<qreal>("ratio");
        QTest::addColumn<QSize>("shown");
        QTest::newRow("small") << QSize(16, 16) << 1.0 << QSize(32, 32);
        QTest::newRow("odd") << QSize(22, 22) << 1.0 << QSize(32, 32);
        QTest::newRow("right") << QSize(32, 32) << 1.0 << QSize(32, 32);
        QTest::newRow("large") << QSize(64, 64) << 1.0 << QSize(32, 32);
        QTest::newRow("wide") << QSize(16, 8) << 1.0 << QSize(32, 16);
        QTest::newRow("on a fine screen") << QSize(32, 32) << 2.0 << QSize(64, 64);
    }
    void smallIconsFillTheirPlace()
    {
        QFETCH(QSize, size);
        QFETCH(qreal, ratio);
        QFETCH(QSize, shown);
        const QIcon icon(QPixmap::fromImage(redImage(64).scaled(size)));
        const QPixmap pixmap = settings::programPixmap(icon, 32, ratio);
        QCOMPARE(pixmap.size(), shown);
        QCOMPARE(pixmap.devicePixelRatioF(), ratio);

        // The same in the list.
        QStandardItemModel model;
        model.appendRow(new QStandardItem(icon, text("Draw")));
        QImage paper(QSize(300, 48) * ratio, QImage::Format_RGB32);
        paper.setDevicePixelRatio(ratio);
        paper.fill(Qt::white);
        QStyleOptionViewItem option;
        option.rect = QRect(0, 0, 300, 48);
        option.palette.setColor(QPalette::Text, Qt::black);
        QPainter painter(&paper);
        settings::ProgramDelegate().paint(&painter, option, model.index(0, 0));
        painter.end();
        QRect red;
        for (int y = 0; y < paper.height(); ++y) {
            for (int x = 0; x < paper.width(); ++x) {
                if (paper.pixelColor(x, y) == QColor(Qt::red))
                    red |= QRect(x, y, 1, 1);
            }
        }
        QCOMPARE(red.size(), shown);
        QVERIFY((red.center() / ratio - QPoint(8 + 16, 24)).manhattanLength() <= 3);
    }

    void aSwitchDoesWhatEnableAndDisableDo()
    {
        ProgramModel model(places());
        search(model);
        QSignalSpy switched(&model, &ProgramModel::switched);
        QVERIFY(model.setData(model.index(0), Qt::Checked, Qt::CheckStateRole));
        QVERIFY(tests::contentOf(ownEntryFile(text("draw"))).contains("X-MouseGestures=true"));
        QVERIFY(model.isOn(0));
        QCOMPARE(switched, (QList<QVariantList>{{0}}));
        QVERIFY(model.setData(model.index(0), Qt::Unchecked, Qt::CheckStateRole));
        QVERIFY(!QFile::exists(ownEntryFile(text("draw"))));
        QVERIFY(!model.isOn(0));
    }

    void aSwitchThatCannotBeTurnedSaysWhy()
    {
        write(ownEntryFile(text("draw")), "[Desktop Entry]\nType=Application\nName=Mine\nExec=draw\n");
        ProgramModel model(places());
        search(model);
        QSignalSpy failed(&model, &ProgramModel::failed);
        const auto row = static_cast<int>(names(model).indexOf(text("Mine")));
        QVERIFY(row >= 0);
        QVERIFY(!model.setOn(row, true));
        QCOMPARE(failed.count(), 1);
        QVERIFY(failed.at(0).at(0).toString().contains(text("your own")));
        QVERIFY(!model.isOn(row));
    }

    void aProgramThatIsGoneMeanwhileSaysSo()
    {
        ProgramModel model(places());
        const QAbstractItemModelTester tester(&model);
        search(model);
        QSignalSpy failed(&model, &ProgramModel::failed);
        uninstall(text("draw"));
        QVERIFY(!model.setOn(0, true));
        QCOMPARE(failed.count(), 1);
        QVERIFY(failed.at(0).at(0).toString().contains(text("no such program")));
        search(model);
        QCOMPARE(names(model), QStringList{text("Sketch")});
    }

    void anotherWindowsSwitchIsSeen()
    {
        ProgramModel model(places());
        ProgramModel other(places());
        search(model);
        search(other);
        QVERIFY(other.setOn(1, true));
        QVERIFY(!model.isOn(1));
        model.updateSwitches();
        QVERIFY(model.isOn(1));
        search(model);
        QCOMPARE(names(model), (QStringList{text("Draw"), text("Sketch")}));
    }

    void aSearchThatIsGivenUpSaysNothingMore()
    {
        ProgramFinder finder;
        QSignalSpy finished(&finder, &ProgramFinder::finished);
        const launcher::MenuPrograms programs(places(), launcher::readEnvironment(::environ), {}, {});
        for (int i = 0; i < 20; ++i)
            finder.start(programs);
        QVERIFY(finished.wait());
        QVERIFY(!finder.isRunning());
        QCoreApplication::processEvents();
        QCOMPARE(finished.count(), 1);
    }

    void theListIsSearchedAndToggledByKeys()
    {
        ProgramModel model(places());
        ProgramPanel panel(&model);
        search(model);
        panel.show();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        auto *list = panel.findChild<QListView *>(text("program_list"));
        auto *field = panel.findChild<QLineEdit *>(text("program_search"));
        QTest::keyClicks(field, text("ske"));
        QCOMPARE(list->model()->rowCount(), 1);
        panel.choose(1);
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Space);
        QVERIFY(model.isOn(1));
        QTest::keyClicks(field, text("nothing"));
        QVERIFY(!list->isVisible());
    }

    void aClickOnTheSwitchTogglesAndOneBesideItDoesNot()
    {
        ProgramModel model(places());
        ProgramPanel panel(&model);
        search(model);
        panel.resize(320, 300);
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        auto *list = panel.findChild<QListView *>(text("program_list"));
        const QRect row = list->visualRect(list->model()->index(0, 0));
        const auto click = [list](const QPoint &at) {
            QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, at);
        };
        click(row.center());
        QVERIFY(!model.isOn(0));
        click(QPoint(row.right() - 20, row.center().y()));
        QVERIFY(model.isOn(0));
        click(QPoint(row.right() - 20, row.center().y()));
        QVERIFY(!model.isOn(0));
    }

    void iconsAreFoundIfTheDesktopsThemeIsNotInstalled()
    {
        const QDir themes(place(text("themes")));
        QVERIFY(themes.mkpath(text("hicolor/48x48/apps")));
        QFile index(themes.filePath(text("hicolor/index.theme")));
        QVERIFY(index.open(QIODevice::WriteOnly));
        index.write("[Icon Theme]\nName=Hicolor\nDirectories=48x48/apps\n[48x48/apps]\nSize=48\n");
        index.close();
        QImage red(48, 48, QImage::Format_ARGB32);
        red.fill(Qt::red);
        QVERIFY(red.save(themes.filePath(text("hicolor/48x48/apps/sketch.png"))));

        QIcon::setThemeSearchPaths({themes.path()});
        QIcon::setFallbackThemeName({});
        QIcon::setThemeName(text("gone"));
        settings::findIconsWithoutTheme();
        QCOMPARE(settings::programIcon(text("sketch")).pixmap(48, 48).toImage().pixelColor(24, 24),
                 QColor(Qt::red));
    }

    void aProgressBarRunsOnlyDuringTheSearch()
    {
        ProgramModel model(places());
        ProgramPanel panel(&model);
        panel.show();
        auto *bar = panel.findChild<QProgressBar *>(text("program_progress"));
        QVERIFY(!bar->isVisible());
        panel.showProgress(3, 10);
        QVERIFY(bar->isVisible());
        QCOMPARE(bar->value(), 3);
        panel.hideProgress();
        QVERIFY(!bar->isVisible());
    }
};

QTEST_MAIN(ProgramModelTest)
#include "tst_programmodel.moc"
