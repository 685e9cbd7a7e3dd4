// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/TriggerText.h"

namespace gesturewidget {
namespace {

struct Button
{
    const char *name;
    Qt::MouseButton button;
};
constexpr Button kButtons[] = {{"left", Qt::LeftButton},
                               {"middle", Qt::MiddleButton},
                               {"right", Qt::RightButton},
                               {"back", Qt::BackButton},
                               {"forward", Qt::ForwardButton}};

struct Key
{
    const char *name;
    Qt::KeyboardModifier modifier;
};
constexpr Key kKeys[] = {{"ctrl", Qt::ControlModifier},
                         {"shift", Qt::ShiftModifier},
                         {"alt", Qt::AltModifier},
                         {"meta", Qt::MetaModifier}};
constexpr char kLongControl[] = "control";

} // namespace

QStringList buttonNames()
{
    QStringList names;
    for (const Button &button : kButtons)
        names.append(QLatin1String(button.name));
    return names;
}

QStringList modifierNames()
{
    QStringList names;
    for (const Key &key : kKeys)
        names.append(QLatin1String(key.name));
    return names;
}

Qt::MouseButton buttonNamed(const QString &name)
{
    for (const Button &button : kButtons) {
        if (name.compare(QLatin1String(button.name), Qt::CaseInsensitive) == 0)
            return button.button;
    }
    return Qt::NoButton;
}

Qt::KeyboardModifier modifierNamed(const QString &name)
{
    if (name.compare(QLatin1String(kLongControl), Qt::CaseInsensitive) == 0)
        return Qt::ControlModifier;
    for (const Key &key : kKeys) {
        if (name.compare(QLatin1String(key.name), Qt::CaseInsensitive) == 0)
            return key.modifier;
    }
    return Qt::NoModifier;
}

bool parseTrigger(const QString &text, Qt::MouseButton &button, Qt::KeyboardModifiers &modifiers)
{
    QStringList names = text.split(QLatin1Char('+'));
    const Qt::MouseButton foundButton = buttonNamed(names.takeLast());
    Qt::KeyboardModifiers foundKeys = Qt::NoModifier;
    for (const QString &name : std::as_const(names)) {
        const Qt::KeyboardModifier key = modifierNamed(name);
        if (key == Qt::NoModifier || foundKeys.testFlag(key))
            return false;
        foundKeys |= key;
    }
    if (foundButton == Qt::NoButton)
        return false;
    button = foundButton;
    modifiers = foundKeys;
    return true;
}

bool isUsableTrigger(Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    return button != Qt::NoButton && (button != Qt::LeftButton || modifiers != Qt::NoModifier);
}

QString triggerText(Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    QString text;
    for (const Key &key : kKeys) {
        if (modifiers.testFlag(key.modifier))
            text += QLatin1String(key.name) + QLatin1Char('+');
    }
    for (const Button &candidate : kButtons) {
        if (candidate.button == button)
            return text + QLatin1String(candidate.name);
    }
    return {};
}

} // namespace gesturewidget
