// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/trigger/TriggerWords.h"

#include "host/files/TriggerText.h"

#include <QCoreApplication>

namespace settings {
namespace {

QString buttonInWords(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton:
        return QCoreApplication::translate("settings::Trigger", "Left button");
    case Qt::MiddleButton:
        return QCoreApplication::translate("settings::Trigger", "Middle button");
    case Qt::BackButton:
        return QCoreApplication::translate("settings::Trigger", "Back button");
    case Qt::ForwardButton:
        return QCoreApplication::translate("settings::Trigger", "Forward button");
    default:
        return QCoreApplication::translate("settings::Trigger", "Right button");
    }
}

} // namespace

QString triggerInWords(const QString &trigger)
{
    Qt::MouseButton button = Qt::NoButton;
    Qt::KeyboardModifiers keys = Qt::NoModifier;
    if (!gesturewidget::parseTrigger(trigger, button, keys))
        return trigger;
    QStringList words;
    if (keys.testFlag(Qt::ControlModifier))
        words.append(QCoreApplication::translate("settings::Trigger", "Ctrl"));
    if (keys.testFlag(Qt::ShiftModifier))
        words.append(QCoreApplication::translate("settings::Trigger", "Shift"));
    if (keys.testFlag(Qt::AltModifier))
        words.append(QCoreApplication::translate("settings::Trigger", "Alt"));
    if (keys.testFlag(Qt::MetaModifier))
        words.append(QCoreApplication::translate("settings::Trigger", "Meta"));
    words.append(buttonInWords(button));
    return words.join(QStringLiteral(" + "));
}

QStringList commonTriggers()
{
    return {QStringLiteral("right"),     QStringLiteral("middle"),      QStringLiteral("back"),
            QStringLiteral("forward"),   QStringLiteral("ctrl+right"),  QStringLiteral("shift+right"),
            QStringLiteral("alt+right"), QStringLiteral("ctrl+middle"), QStringLiteral("shift+middle"),
            QStringLiteral("ctrl+left"), QStringLiteral("alt+left")};
}

} // namespace settings
