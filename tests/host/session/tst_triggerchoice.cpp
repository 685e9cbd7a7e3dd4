// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/session/TriggerChoice.h"

#include "host/files/ProgramProfile.h"
#include "host/files/TriggerText.h"
#include "host/services/ProfileStore.h"
#include "tests/host/support/Files.h"
#include "tests/host/support/StandardErrorCapture.h"

#include <QGraphicsView>
#include <QTemporaryDir>
#include <QTest>

using gesturewidget::ProfileStore;
using gesturewidget::ProgramProfile;
using gesturewidget::SettingsFile;
using gesturewidget::TriggerChoice;

// A stand-in for Qt's own class, which needs a library that not every program links.
class QGLWidget : public QWidget
{
    Q_OBJECT
};

// The choice of the trigger, and the line that tells a person about it.
class TriggerChoiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_file = m_folder->filePath(QStringLiteral("program.ini"));
        m_profile = {};
        m_profile.program = QStringLiteral("program");
    }

    void aFlatDrawingHasTheRightButton();
    void aDrawingInSpaceLeavesTheRightButton();
    void theFirstViewDecides();
    void theProgramsOwnSettingIsNamed();
    void theProfileDecides();
    void theSettingsDecide();
    void anAreaWithASurface();
    void theIntroductionComesOnce();
    void theIntroductionNamesTheTrigger();
    void everyButtonHasWords();
    void nothingIsIntroducedWhileGesturesAreOff();
    void withoutAStore();

private:
    [[nodiscard]] SettingsFile::Values written() { return SettingsFile(m_file).read(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    ProgramProfile m_profile;
};

namespace {

bool isTrigger(const TriggerChoice &choice, Qt::MouseButton button, Qt::KeyboardModifiers keys)
{
    return choice.trigger().button == button && choice.trigger().modifiers == keys;
}

} // namespace

void TriggerChoiceTest::aFlatDrawingHasTheRightButton()
{
    ProfileStore store(m_file);
    TriggerChoice choice(m_profile, &store);
    QVERIFY(!choice.noteView(QWidget()));
    QVERIFY(isTrigger(choice, Qt::RightButton, Qt::NoModifier));
    QVERIFY(store.flush());
    QCOMPARE(written().value(QStringLiteral("Host/UsualTrigger")), QStringLiteral("right"));
}

void TriggerChoiceTest::aDrawingInSpaceLeavesTheRightButton()
{
    ProfileStore store(m_file);
    TriggerChoice choice(m_profile, &store);
    QVERIFY(isTrigger(choice, Qt::RightButton, Qt::NoModifier));
    QVERIFY(choice.noteView(QGLWidget()));
    QVERIFY(isTrigger(choice, Qt::RightButton, Qt::ControlModifier));
    QVERIFY2(choice.reason().english().contains(QStringLiteral("OpenGL")),
             qPrintable(choice.reason().english()));
    QVERIFY(store.flush());
    QCOMPARE(written().value(QStringLiteral("Host/UsualTrigger")), QStringLiteral("ctrl+right"));
}

void TriggerChoiceTest::theFirstViewDecides()
{
    ProfileStore store(m_file);
    TriggerChoice choice(m_profile, &store);
    QVERIFY(!choice.noteView(QWidget()));
    QVERIFY(!choice.noteView(QGLWidget()));
    QVERIFY(isTrigger(choice, Qt::RightButton, Qt::NoModifier));
}

void TriggerChoiceTest::theProgramsOwnSettingIsNamed()
{
    m_profile.hasTrigger = true;
    QCOMPARE(TriggerChoice(m_profile, nullptr).reason().english(),
             QStringLiteral("the profile says so"));
    m_profile.triggerSetting = QStringLiteral("Space");
    QCOMPARE(TriggerChoice(m_profile, nullptr).reason().english(),
             QStringLiteral("the program itself is set to Space"));
}

void TriggerChoiceTest::theProfileDecides()
{
    m_profile.hasTrigger = true;
    m_profile.triggerButton = Qt::MiddleButton;
    ProfileStore store(m_file);
    TriggerChoice choice(m_profile, &store);
    QVERIFY(!choice.noteView(QGLWidget()));
    QVERIFY(isTrigger(choice, Qt::MiddleButton, Qt::NoModifier));
    QVERIFY(!written().contains(QStringLiteral("Host/UsualTrigger")));
}

void TriggerChoiceTest::theSettingsDecide()
{
    tests::writeFile(m_file, "[Host]\nTrigger=shift+right\n");
    ProfileStore store(m_file);
    TriggerChoice choice(m_profile, &store);
    QVERIFY(!choice.noteView(QGLWidget()));
    QVERIFY(isTrigger(choice, Qt::RightButton, Qt::ShiftModifier));
    // A text that names none does not.
    tests::writeFile(m_file, "[Host]\nTrigger=wheel\n");
    const tests::StandardErrorCapture errors;
    ProfileStore other(m_file);
    TriggerChoice unsettled(m_profile, &other);
    QVERIFY(unsettled.noteView(QGLWidget()));
}

void TriggerChoiceTest::anAreaWithASurface()
{
    QGraphicsView area;
    QVERIFY(!TriggerChoice::isPaintedByOpenGL(*area.viewport()));
    area.setViewport(new QGLWidget);
    QVERIFY(TriggerChoice::isPaintedByOpenGL(*area.viewport()));
    QWidget native;
    native.setAttribute(Qt::WA_PaintOnScreen);
    QVERIFY(TriggerChoice::isPaintedByOpenGL(native));
}

void TriggerChoiceTest::theIntroductionComesOnce()
{
    {
        ProfileStore store(m_file);
        TriggerChoice choice(m_profile, &store);
        QVERIFY(choice.introduction().contains(QStringLiteral("right button")));
        QCOMPARE(choice.introduction(), QString());
    }
    ProfileStore store(m_file); // the next start
    QCOMPARE(TriggerChoice(m_profile, &store).introduction(), QString());
}

void TriggerChoiceTest::theIntroductionNamesTheTrigger()
{
    ProfileStore store(m_file);
    TriggerChoice choice(m_profile, &store);
    QVERIFY(choice.noteView(QGLWidget()));
    QCOMPARE(choice.introduction(),
             QStringLiteral("Mouse gestures start with: Ctrl + right button. To change it: \"Mouse "
                            "Gestures\" in the desktop's menu, or mouse-gestures --trigger program"));
}

void TriggerChoiceTest::everyButtonHasWords()
{
    const QStringList names = gesturewidget::buttonNames();
    for (const QString &name : names) {
        ProfileStore store(m_file + name); // each says it once
        m_profile.triggerButton = gesturewidget::buttonNamed(name);
        const QString introduction = TriggerChoice(m_profile, &store).introduction();
        QVERIFY2(introduction.contains(QLatin1Char(' ') + name + QStringLiteral(" button")),
                 qPrintable(name + QStringLiteral(": ") + introduction));
    }
}

void TriggerChoiceTest::nothingIsIntroducedWhileGesturesAreOff()
{
    tests::writeFile(m_file, "[GestureWidget]\nEnableMouseGesture=0\n");
    ProfileStore store(m_file);
    QCOMPARE(TriggerChoice(m_profile, &store).introduction(), QString());
    QVERIFY(!store.Exists(QStringLiteral("Host"), QStringLiteral("Introduced")));
}

void TriggerChoiceTest::withoutAStore()
{
    TriggerChoice choice(m_profile, nullptr);
    QVERIFY(choice.noteView(QGLWidget()));
    QVERIFY(isTrigger(choice, Qt::RightButton, Qt::ControlModifier));
    QCOMPARE(choice.introduction(), QString());
}

QTEST_MAIN(TriggerChoiceTest)
#include "tst_triggerchoice.moc"
