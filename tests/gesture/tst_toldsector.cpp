// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "gesture/MgDonutDialogPVStyleImpl.h"
#include "tests/gesture/GestureBench.h"
#include "tests/support/FatalWarnings.h"

#include <QAccessible>
#include <QDialog>
#include <QTest>

#include <memory>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

using tests::CountingDonut;
using tests::GestureBench;

namespace {

// The descriptions that accessibility events were sent for.
QStringList &describedAs()
{
    static QStringList descriptions;
    return descriptions;
}

void noteEvent(QAccessibleEvent *event)
{
    if (event->type() != QAccessible::DescriptionChanged)
        return;
    if (QAccessibleInterface *changed = QAccessible::queryAccessibleInterface(event->object()))
        describedAs() += changed->text(QAccessible::Description);
}

} // namespace

// The name of the lit command, in the host's status bar and for assistive programs.
class ToldSectorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void litSectorIsTold();
    void commandWithAnIconIsToldToo();
    void nameAndTip_data();
    void nameAndTip();
    void unboundSectorSaysNothing();
    void sameSectorIsToldOnce();
    void everyGestureTellsItsFirstSector();
    void chosenSectorIsTold();
    void everyEndTakesItBack_data();
    void everyEndTakesItBack();
    void nothingIsToldWithoutAGesture();
    void nameRoleAndState();
    void descriptionSendsItsEvent();
    void withoutTextOutput();

private:
    [[nodiscard]] const QString &shown() const { return m_bench->host.text; }

    std::unique_ptr<GestureBench> m_bench;
};

void ToldSectorTest::initTestCase()
{
    tests::failOnWarnings();
    QAccessible::installUpdateHandler(noteEvent);
    // As an assistive program does over the session bus. Qt sends no event otherwise.
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
    QVERIFY(QAccessible::isActive());
}

void ToldSectorTest::cleanupTestCase()
{
    QAccessible::installUpdateHandler(nullptr);
}

void ToldSectorTest::init()
{
    tests::resetWarnings();
    m_bench = std::make_unique<GestureBench>();
    describedAs().clear();
}

void ToldSectorTest::cleanup()
{
    m_bench.reset();
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

void ToldSectorTest::litSectorIsTold()
{
    CountingDonut donut;
    m_bench->start(donut);
    QCOMPARE(shown(), QStringLiteral("ZOOM_BOUNDS: Tip of ZOOM_BOUNDS"));
    m_bench->pointTo(donut, -30, 0);
    QCOMPARE(shown(), QStringLiteral("OPEN: Tip of OPEN"));
    QCOMPARE(donut.accessibleDescription(), shown());
    m_bench->pointTo(donut, 30, 0);
    QCOMPARE(shown(), QStringLiteral("LINE: Tip of LINE"));
    QCOMPARE(donut.accessibleDescription(), shown());
    m_bench->release(donut.origin);
    QCOMPARE(shown(), QString());
    QCOMPARE(donut.accessibleDescription(), QString());
}

void ToldSectorTest::commandWithAnIconIsToldToo()
{
    QPixmap picture(20, 20);
    picture.fill(Qt::red);
    m_bench->host.commands
        .addCommand(QStringLiteral("ID_PICTURE"), QStringLiteral("picture"),
                    QStringLiteral("Insert Picture"), QStringLiteral("From a file"))
        ->smallIcon = QIcon(picture);
    m_bench->host.store.values.insert(QStringLiteral("41"), QStringLiteral("ID_PICTURE"));
    CountingDonut donut;
    m_bench->start(donut);
    QCOMPARE(donut.sectorVisuals.front().first, 0);
    QCOMPARE(shown(), QStringLiteral("Insert Picture: From a file"));
    m_bench->release(donut.origin);
}

void ToldSectorTest::nameAndTip_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("tip");
    QTest::addColumn<QString>("text");
    const auto text = [](const char *latin1) { return QString::fromLatin1(latin1); };
    QTest::newRow("both") << text("Arc") << text("Draw an arc") << text("Arc: Draw an arc");
    QTest::newRow("no tip") << text("Arc") << QString() << text("Arc");
    QTest::newRow("tip is the name") << text("Arc") << text("Arc") << text("Arc");
    QTest::newRow("tip begins with the name")
        << text("Arc") << text("Arc: Draw an arc") << text("Arc: Draw an arc");
    QTest::newRow("tip begins with the name in a sentence")
        << text("Draw Arc") << text("Draw arc by three points") << text("Draw arc by three points");
    QTest::newRow("tip begins with another word")
        << text("Arc") << text("Arcs of an ellipse") << text("Arc: Arcs of an ellipse");
    QTest::newRow("no name") << QString() << text("Draw an arc") << text("Draw an arc");
    QTest::newRow("neither") << QString() << QString() << QString();
    QTest::newRow("place marks") << text("%1 %2") << text("50 %1") << text("%1 %2: 50 %1");
}

void ToldSectorTest::nameAndTip()
{
    QFETCH(QString, name);
    QFETCH(QString, tip);
    QFETCH(QString, text);
    m_bench->host.commands.addCommand(QStringLiteral("ID_ARC"), QStringLiteral("arc"), name, tip);
    m_bench->host.store.values.insert(QStringLiteral("41"), QStringLiteral("ID_ARC"));
    CountingDonut donut;
    m_bench->start(donut);
    QCOMPARE(shown(), text);
    m_bench->release(donut.origin);
}

void ToldSectorTest::unboundSectorSaysNothing()
{
    m_bench->host.store.values.insert(QStringLiteral("42"), QString());
    CountingDonut donut;
    m_bench->start(donut);
    QVERIFY(!shown().isEmpty());
    m_bench->pointTo(donut, -30, 0);
    QCOMPARE(donut.getActiveArc(), qint16(1));
    QCOMPARE(shown(), QString());
    QCOMPARE(donut.accessibleDescription(), QString());
    // An index past the last sector is not a sector either.
    donut.activeArc = -1;
    donut.mousePositionChanged(21, 21);
    donut.activeArc = 4;
    donut.mousePositionChanged(0, 0);
    m_bench->release(donut.origin);
    QCOMPARE(shown(), QString());
}

void ToldSectorTest::sameSectorIsToldOnce()
{
    CountingDonut donut;
    m_bench->start(donut);
    m_bench->host.log.clear();
    for (int x = 25; x < 35; ++x)
        m_bench->pointTo(donut, x, 0);
    QCOMPARE(m_bench->host.log.startingWith(QStringLiteral("text")).size(), 1);
    m_bench->release(donut.origin);
}

void ToldSectorTest::everyGestureTellsItsFirstSector()
{
    CountingDonut donut;
    for (int gesture = 0; gesture < 3; ++gesture) {
        m_bench->start(donut);
        QCOMPARE(shown(), QStringLiteral("ZOOM_BOUNDS: Tip of ZOOM_BOUNDS"));
        m_bench->release(donut.origin);
        QCOMPARE(shown(), QString());
    }
}

void ToldSectorTest::chosenSectorIsTold()
{
    CountingDonut donut;
    m_bench->start(donut);
    donut.mousePositionChanged(-75, 0);
    QVERIFY(donut.fading);
    QCOMPARE(shown(), QStringLiteral("OPEN: Tip of OPEN"));
    donut.StopGesturing(true);
    QCOMPARE(shown(), QString());
}

void ToldSectorTest::everyEndTakesItBack_data()
{
    QTest::addColumn<QString>("end");
    for (const char *end : {"release", "hide", "close", "destroyed", "accepted"})
        QTest::newRow(end) << QString::fromLatin1(end);
}

void ToldSectorTest::everyEndTakesItBack()
{
    QFETCH(QString, end);
    auto donut = std::make_unique<CountingDonut>();
    m_bench->start(*donut);
    QVERIFY(!shown().isEmpty());
    if (end == QLatin1String("release"))
        m_bench->release(donut->origin);
    else if (end == QLatin1String("hide"))
        donut->hide();
    else if (end == QLatin1String("close"))
        donut->close();
    else if (end == QLatin1String("destroyed"))
        donut.reset();
    else
        m_bench->pointTo(*donut, 0, 80);
    QCOMPARE(shown(), QString());
    if (donut)
        QCOMPARE(donut->accessibleDescription(), QString());
}

void ToldSectorTest::nothingIsToldWithoutAGesture()
{
    m_bench->host.text = QStringLiteral("the program's own");
    CountingDonut donut;
    donut.WindUp(m_bench->document);
    donut.mousePositionChanged(-30, 0);
    QCOMPARE(shown(), QStringLiteral("the program's own"));
    donut.StopGesturing(false);
    QCOMPARE(shown(), QStringLiteral("the program's own"));
}

void ToldSectorTest::nameRoleAndState()
{
    CountingDonut donut;
    QAccessibleInterface *ring = QAccessible::queryAccessibleInterface(&donut);
    QVERIFY(ring && ring->isValid());
    QCOMPARE(ring->role(), QAccessible::PopupMenu);
    QCOMPARE(ring->text(QAccessible::Name), QStringLiteral("Mouse gesture"));
    QCOMPARE(ring->text(QAccessible::Description), QString());
    QCOMPARE(ring->childCount(), 0);
    QVERIFY(ring->state().invisible);
    QVERIFY(!ring->state().disabled);

    m_bench->start(donut);
    QVERIFY(!ring->state().invisible);
    QVERIFY(!ring->state().modal);
    QCOMPARE(ring->rect(), donut.geometry());
    QCOMPARE(ring->text(QAccessible::Description), QStringLiteral("ZOOM_BOUNDS: Tip of ZOOM_BOUNDS"));
    m_bench->release(donut.origin);
    QVERIFY(ring->state().invisible);
    QCOMPARE(ring->text(QAccessible::Description), QString());

    // Other windows stay what they are.
    const QDialog dialog;
    QCOMPARE(QAccessible::queryAccessibleInterface(const_cast<QDialog *>(&dialog))->role(),
             QAccessible::Dialog);
}

void ToldSectorTest::descriptionSendsItsEvent()
{
    CountingDonut donut;
    m_bench->start(donut);
    m_bench->pointTo(donut, -30, 0);
    m_bench->pointTo(donut, -31, 0);
    m_bench->release(donut.origin);
    QCOMPARE(describedAs(), (QStringList{QStringLiteral("ZOOM_BOUNDS: Tip of ZOOM_BOUNDS"),
                                         QStringLiteral("OPEN: Tip of OPEN"), QString()}));
}

void ToldSectorTest::withoutTextOutput()
{
    m_bench->host.hasTextOutput = false;
    CountingDonut donut;
    m_bench->start(donut);
    QCOMPARE(donut.accessibleDescription(), QStringLiteral("ZOOM_BOUNDS: Tip of ZOOM_BOUNDS"));
    m_bench->release(donut.origin);
    QCOMPARE(donut.accessibleDescription(), QString());
}

QTEST_MAIN(ToldSectorTest)
#include "tst_toldsector.moc"
