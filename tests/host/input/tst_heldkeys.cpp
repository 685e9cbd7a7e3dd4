// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The keys that are down, as a program's windows see them.

#include "host/input/HeldKeys.h"

#include <QTest>

using gesturewidget::HeldKeys;

namespace {

QKeyEvent keyEvent(QEvent::Type type, int key, quint32 scanCode = 0, bool isRepeat = false)
{
    return {type, key, Qt::NoModifier, scanCode, 0, 0, QString(), isRepeat};
}

QKeyEvent press(int key, quint32 scanCode = 0)
{
    return keyEvent(QEvent::KeyPress, key, scanCode);
}

QKeyEvent release(int key, quint32 scanCode = 0)
{
    return keyEvent(QEvent::KeyRelease, key, scanCode);
}

} // namespace

class HeldKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachKeyIsHeldUntilItsRelease();
    void repeatsChangeNothing();
    void aPhysicalKeyIsOneKey();
    void moreKeysThanAHandHolds();
    void clearedAtOnce();
};

void HeldKeysTest::eachKeyIsHeldUntilItsRelease()
{
    HeldKeys keys;
    QVERIFY(!keys.contains(press(Qt::Key_A)));
    for (const int key : {Qt::Key_A, Qt::Key_B, Qt::Key_C})
        keys.note(press(key));
    for (const int key : {Qt::Key_A, Qt::Key_B, Qt::Key_C})
        QVERIFY(keys.contains(press(key)));
    QVERIFY(!keys.contains(press(Qt::Key_D)));
    keys.note(release(Qt::Key_D)); // pressed in another program
    keys.note(release(Qt::Key_A));
    QVERIFY(!keys.contains(press(Qt::Key_A)));
    QVERIFY(keys.contains(press(Qt::Key_B)));
    QVERIFY(keys.contains(press(Qt::Key_C)));
    keys.note(release(Qt::Key_C));
    keys.note(release(Qt::Key_B));
    QVERIFY(!keys.contains(press(Qt::Key_B)));
    QVERIFY(!keys.contains(press(Qt::Key_C)));
}

void HeldKeysTest::repeatsChangeNothing()
{
    HeldKeys keys;
    keys.note(press(Qt::Key_A));
    keys.note(keyEvent(QEvent::KeyRelease, Qt::Key_A, 0, true));
    keys.note(keyEvent(QEvent::KeyPress, Qt::Key_A, 0, true));
    QVERIFY(keys.contains(press(Qt::Key_A)));
    keys.note(release(Qt::Key_A));
    QVERIFY(!keys.contains(press(Qt::Key_A)));
}

// With Shift, it has another code.
void HeldKeysTest::aPhysicalKeyIsOneKey()
{
    HeldKeys keys;
    keys.note(press(Qt::Key_Slash, 61));
    QVERIFY(keys.contains(press(Qt::Key_Question, 61)));
    QVERIFY(!keys.contains(press(Qt::Key_Slash, 62)));
    // A scan code is no key code.
    QVERIFY(!keys.contains(press(61)));
    keys.note(release(Qt::Key_Question, 61));
    QVERIFY(!keys.contains(press(Qt::Key_Slash, 61)));
}

void HeldKeysTest::moreKeysThanAHandHolds()
{
    HeldKeys keys;
    for (int number = 0; number < 40; ++number)
        keys.note(press(Qt::Key_A + number));
    for (int number = 0; number < 40; ++number)
        QCOMPARE(keys.contains(press(Qt::Key_A + number)), number < 16);
    for (int number = 0; number < 40; ++number)
        keys.note(release(Qt::Key_A + number));
    for (int number = 0; number < 40; ++number)
        QVERIFY(!keys.contains(press(Qt::Key_A + number)));
}

void HeldKeysTest::clearedAtOnce()
{
    HeldKeys keys;
    keys.note(press(Qt::Key_A));
    keys.note(press(Qt::Key_B));
    keys.clear();
    QVERIFY(!keys.contains(press(Qt::Key_A)));
    QVERIFY(!keys.contains(press(Qt::Key_B)));
}

QTEST_GUILESS_MAIN(HeldKeysTest)
#include "tst_heldkeys.moc"
