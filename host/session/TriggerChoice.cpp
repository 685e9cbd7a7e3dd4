// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/session/TriggerChoice.h"

#include "host/files/Complaint.h"
#include "host/files/ProgramProfile.h"
#include "host/files/SettingsNames.h"
#include "host/files/TriggerText.h"
#include "host/services/StoredSettings.h"
#include "sdk/chx/CHxProfileStore.h"

#include <QCoreApplication>
#include <QWidget>

#include <algorithm>
#include <array>

namespace gesturewidget {
namespace {

const Trigger kInSpace{Qt::RightButton, Qt::ControlModifier};

QString translated(const char *text)
{
    return QCoreApplication::translate("host", text);
}

// "Ctrl + right button".
QString inWords(const Trigger &trigger)
{
    QStringList parts;
    const std::array<std::pair<Qt::KeyboardModifier, const char *>, 4> keys{
        {{Qt::ControlModifier, QT_TRANSLATE_NOOP("host", "Ctrl")},
         {Qt::ShiftModifier, QT_TRANSLATE_NOOP("host", "Shift")},
         {Qt::AltModifier, QT_TRANSLATE_NOOP("host", "Alt")},
         {Qt::MetaModifier, QT_TRANSLATE_NOOP("host", "Meta")}}};
    for (const auto &[modifier, name] : keys) {
        if (trigger.modifiers.testFlag(modifier))
            parts.append(translated(name));
    }
    const char *button = trigger.button == Qt::LeftButton   ? QT_TRANSLATE_NOOP("host", "left button")
                       : trigger.button == Qt::MiddleButton ? QT_TRANSLATE_NOOP("host", "middle button")
                       : trigger.button == Qt::RightButton  ? QT_TRANSLATE_NOOP("host", "right button")
                       : trigger.button == Qt::BackButton   ? QT_TRANSLATE_NOOP("host", "back button")
                                                          : QT_TRANSLATE_NOOP("host", "forward button");
    parts.append(translated(button));
    return parts.join(QStringLiteral(" + "));
}

} // namespace

TriggerChoice::TriggerChoice(const ProgramProfile &profile, CHxProfileStore *store)
    : m_program(profile.program)
    , m_store(store)
    , m_trigger{profile.triggerButton, profile.triggerModifiers}
    , m_reason(!profile.triggerSetting.isEmpty()
                   ? Phrase(QT_TRANSLATE_NOOP("host", "the program itself is set to %1"),
                            {Phrase::verbatim(profile.triggerSetting)})
               : profile.hasTrigger ? Phrase(QT_TRANSLATE_NOOP("host", "the profile says so"))
                                    : Phrase(QT_TRANSLATE_NOOP("host", "nothing says otherwise")))
    , m_isSettled(profile.hasTrigger)
{
    const QString text = storedText(m_store, settingsnames::hostSection(), settingsnames::triggerKey());
    if (text.isEmpty())
        return;
    Trigger chosen = m_trigger;
    if (parseTrigger(text, chosen.button, chosen.modifiers)
        && isUsableTrigger(chosen.button, chosen.modifiers)) {
        m_trigger = chosen;
        m_reason = Phrase(QT_TRANSLATE_NOOP("host", "the settings say so"));
        m_isSettled = true;
    } else {
        complain(
            translated(QT_TRANSLATE_NOOP("host", "the settings name no trigger: \"%1\"")).arg(text));
    }
}

bool TriggerChoice::noteView(const QWidget &view)
{
    if (m_isSettled)
        return false;
    m_isSettled = true;
    const bool isInSpace = isPaintedByOpenGL(view);
    if (isInSpace) {
        m_trigger = kInSpace;
        m_reason = Phrase(QT_TRANSLATE_NOOP(
            "host", "OpenGL paints the drawing, and such programs need the right button"));
    }
    store(settingsnames::usualTriggerKey(), triggerText(m_trigger.button, m_trigger.modifiers));
    return isInSpace;
}

QString TriggerChoice::introduction()
{
    const bool wasIntroduced =
        !storedText(m_store, settingsnames::hostSection(), settingsnames::introducedKey()).isEmpty();
    if (!m_store || wasIntroduced || !areGesturesOn(m_store))
        return {};
    store(settingsnames::introducedKey(), QStringLiteral("1"));
    return QCoreApplication::translate(
               "host",
               "Mouse gestures start with: %1. To change it: \"Mouse Gestures\" in the desktop's menu, "
               "or mouse-gestures --trigger %2")
        .arg(inWords(m_trigger), m_program);
}

bool TriggerChoice::isPaintedByOpenGL(const QWidget &view)
{
    const std::array<const char *, 4> classes{"QOpenGLWidget", "QGLWidget", "QQuickWidget",
                                              "QWindowContainer"};
    return view.testAttribute(Qt::WA_PaintOnScreen)
        || std::any_of(classes.begin(), classes.end(),
                       [&view](const char *name) { return view.inherits(name); });
}

void TriggerChoice::store(const QString &key, const QString &value)
{
    const OdResBufPtr buffer = OdResBuf::newString(OdString(value));
    if (m_store)
        m_store->Set(settingsnames::hostSection(), key, buffer.get());
}

} // namespace gesturewidget
