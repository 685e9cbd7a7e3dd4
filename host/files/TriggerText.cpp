#include "host/files/TriggerText.h"

#include <QStringList>

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
// The first name of a key is the one that is written.
constexpr Key kKeys[] = {{"ctrl", Qt::ControlModifier},
                         {"shift", Qt::ShiftModifier},
                         {"alt", Qt::AltModifier},
                         {"meta", Qt::MetaModifier}};

Qt::KeyboardModifier keyNamed(const QString &name)
{
    if (name == QLatin1String("control"))
        return Qt::ControlModifier;
    for (const Key &key : kKeys) {
        if (name == QLatin1String(key.name))
            return key.modifier;
    }
    return Qt::NoModifier;
}

} // namespace

QString triggerSection()
{
    return QStringLiteral("Host");
}

QString triggerKey()
{
    return QStringLiteral("Trigger");
}

bool parseTrigger(const QString &text, Qt::MouseButton &button, Qt::KeyboardModifiers &modifiers)
{
    QStringList names = text.toLower().split(QLatin1Char('+'));
    const QString last = names.takeLast();
    Qt::MouseButton foundButton = Qt::NoButton;
    for (const Button &candidate : kButtons) {
        if (last == QLatin1String(candidate.name))
            foundButton = candidate.button;
    }
    Qt::KeyboardModifiers foundKeys = Qt::NoModifier;
    for (const QString &name : std::as_const(names)) {
        const Qt::KeyboardModifier key = keyNamed(name);
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
