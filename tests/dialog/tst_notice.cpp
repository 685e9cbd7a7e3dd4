// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "dialog/Notice.h"
#include "tests/support/FatalWarnings.h"

#include <QAccessible>
#include <QTest>
#include <QToolTip>

#include <algorithm>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

namespace {

int &alerts()
{
    static int count = 0;
    return count;
}

void noteEvent(QAccessibleEvent *event)
{
    alerts() += event->type() == QAccessible::Alert ? 1 : 0;
}

} // namespace

class NoticeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }
    void cleanupTestCase() { QAccessible::installUpdateHandler(nullptr); }

    void liesBesideItsPlace_data();
    void liesBesideItsPlace();
    void looksLikeATooltip();
    void textIsPlain();
    void aLongTextIsCutInItsMiddle();
    void clicksReachTheWidgetBelow();
    void isReadOut();
    void liesOverWidgetsThatCameLater();
};

void NoticeTest::initTestCase()
{
    tests::failOnWarnings();
    QAccessible::installUpdateHandler(noteEvent);
    // As an assistive program does over the session bus. Qt sends no event otherwise.
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
    QVERIFY(QAccessible::isActive());
}

// Where the note's corner is, in a window of 300 by 200 pixels or in a very narrow one.
void NoticeTest::liesBesideItsPlace_data()
{
    QTest::addColumn<int>("width"); // of the window
    QTest::addColumn<QRect>("place");
    QTest::addColumn<bool>("isBelow");
    QTest::addColumn<bool>("isAtTheEdge"); // of the window, not of its place
    QTest::newRow("below") << 300 << QRect(20, 30, 50, 20) << true << false;
    QTest::newRow("above, at the bottom") << 300 << QRect(20, 175, 50, 20) << false << false;
    QTest::newRow("left of its place, at the right") << 300 << QRect(290, 30, 50, 20) << true << true;
    QTest::newRow("scrolled out of the window") << 300 << QRect(-40, 30, 50, 20) << true << true;
    QTest::newRow("narrow window") << 8 << QRect(5, 30, 3, 20) << true << true;
}

void NoticeTest::liesBesideItsPlace()
{
    QFETCH(int, width);
    QFETCH(QRect, place);
    QFETCH(bool, isBelow);
    QFETCH(bool, isAtTheEdge);
    QWidget window;
    window.resize(width, 200);
    Notice notice(&window);
    QVERIFY(notice.isHidden());
    notice.showFor(QStringLiteral("Note"), place);
    QVERIFY(!notice.isHidden());
    QCOMPARE(notice.size(), notice.sizeHint());
    if (isBelow)
        QCOMPARE(notice.y(), place.bottom() + 1);
    else
        QCOMPARE(notice.geometry().bottom(), place.top() - 1);
    if (!isAtTheEdge)
        QCOMPARE(notice.x(), place.left());
    else
        QCOMPARE(notice.x(), std::max(0, place.left() < 0 ? 0 : width - notice.width()));

    // The last place with room below.
    const int lowest = 200 - notice.height() - 1;
    notice.showFor(QStringLiteral("Note"), QRect(0, 0, 3, lowest));
    QCOMPARE(notice.y(), lowest);
    notice.showFor(QStringLiteral("Note"), QRect(0, 0, 3, lowest + 1));
    QCOMPARE(notice.geometry().bottom(), -1);
}

void NoticeTest::looksLikeATooltip()
{
    const QPalette before = QToolTip::palette();
    QPalette striking = before;
    striking.setColor(QPalette::ToolTipBase, Qt::yellow);
    striking.setColor(QPalette::ToolTipText, Qt::blue);
    QToolTip::setPalette(striking);
    QWidget window;
    window.resize(300, 200);
    Notice notice(&window);
    notice.showFor(QStringLiteral("\u2588"), QRect(20, 30, 50, 20)); // a block as high as a line
    const QImage picture = notice.grab().toImage();
    QToolTip::setPalette(before);
    // From the edge to the middle: a frame of one pixel, two pixels of room, the text.
    QCOMPARE(notice.frameWidth(), 1);
    QCOMPARE(notice.margin(), 2);
    const int middle = notice.height() / 2;
    QCOMPARE(picture.pixelColor(0, middle), QColor(Qt::blue));
    QCOMPARE(picture.pixelColor(1, middle), QColor(Qt::yellow));
    QCOMPARE(picture.pixelColor(2, middle), QColor(Qt::yellow));
    QCOMPARE(picture.pixelColor(notice.width() / 2, middle), QColor(Qt::blue));
    for (const QPoint &corner : {QPoint(0, 0), picture.rect().topRight(), picture.rect().bottomRight()})
        QCOMPARE(picture.pixelColor(corner), QColor(Qt::blue)); // the frame is flat
}

// A command's name may look like a text with marks.
void NoticeTest::textIsPlain()
{
    QWidget window;
    window.resize(300, 200);
    Notice notice(&window);
    notice.showFor(QStringLiteral("<b>A</b>"), QRect(20, 30, 50, 20));
    QCOMPARE(notice.textFormat(), Qt::PlainText);
    QCOMPARE(notice.text(), QStringLiteral("<b>A</b>"));
}

void NoticeTest::aLongTextIsCutInItsMiddle()
{
    QWidget window;
    window.resize(300, 200);
    Notice notice(&window);
    notice.showFor(QStringLiteral("Taken from: %1 (end)").arg(QString(200, QLatin1Char('x'))),
                   QRect(20, 30, 50, 20));
    QVERIFY(notice.text().startsWith(QLatin1String("Taken from: x")));
    QVERIFY(notice.text().endsWith(QLatin1String("x (end)")));
    // It takes nine tenths of the window's width, less a letter at most.
    const int text = notice.fontMetrics().horizontalAdvance(notice.text());
    const int letter = notice.fontMetrics().horizontalAdvance(QLatin1Char('x'));
    QVERIFY2(text <= 270 && text > 270 - 2 * letter, qPrintable(QString::number(text)));
    QVERIFY(window.rect().contains(notice.geometry()));
}

void NoticeTest::clicksReachTheWidgetBelow()
{
    QWidget window;
    window.resize(300, 200);
    Notice notice(&window);
    window.show();
    notice.showFor(QStringLiteral("Note"), QRect(20, 30, 50, 20));
    QVERIFY(notice.isVisible());
    QCOMPARE(window.childAt(notice.geometry().center()), nullptr);
}

void NoticeTest::isReadOut()
{
    QWidget window;
    window.resize(300, 200);
    Notice notice(&window);
    window.show();
    alerts() = 0;
    notice.showFor(QStringLiteral("Note"), QRect(20, 30, 50, 20));
    QCOMPARE(alerts(), 1);
    notice.showFor(QStringLiteral("Note"), QRect(20, 30, 50, 20)); // for another cell
    QCOMPARE(alerts(), 2);
}

void NoticeTest::liesOverWidgetsThatCameLater()
{
    QWidget window;
    window.resize(300, 200);
    Notice notice(&window);
    QWidget later(&window);
    later.resize(window.size());
    notice.showFor(QStringLiteral("Note"), QRect(20, 30, 50, 20));
    QCOMPARE(window.children().constLast(), &notice);
}

QTEST_MAIN(NoticeTest)
#include "tst_notice.moc"
