// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "dialog/ComboBoxAccessibility.h"

#include "dialog/MgDonutDialogManager.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>

namespace {

class AccessibleComboBox : public QAccessibleWidget
{
public:
    explicit AccessibleComboBox(QComboBox *box)
        : QAccessibleWidget(box, QAccessible::ComboBox)
    {
    }

    // The child is the list, even while it is closed.
    [[nodiscard]] int childCount() const override { return 1; }
    [[nodiscard]] QAccessibleInterface *child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(box()->view()) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child && child->object() == box()->view() ? 0 : -1;
    }

    [[nodiscard]] QString text(QAccessible::Text type) const override
    {
        if (type != QAccessible::Value)
            return QAccessibleWidget::text(type);
        const QString shown = box()->currentText();
        return shown.isEmpty() ? box()->currentData(Qt::AccessibleTextRole).toString() : shown;
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = box()->view()->isVisible();
        state.collapsed = !state.expanded;
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }
    void doAction(const QString &name) override
    {
        if (name != showMenuAction() && name != pressAction())
            return;
        if (box()->view()->isVisible())
            box()->hidePopup();
        else
            box()->showPopup();
    }

private:
    [[nodiscard]] QComboBox *box() const { return qobject_cast<QComboBox *>(widget()); }
};

QAccessibleInterface *create(const QString & /*className*/, QObject *object)
{
    auto *box = qobject_cast<QComboBox *>(object);
    const bool isOurs = box && qobject_cast<MgDonutDialogManager *>(box->window());
    return isOurs ? new AccessibleComboBox(box) : nullptr;
}

} // namespace

ComboBoxAccessibility::ComboBoxAccessibility()
{
    QAccessible::installFactory(create);
}

ComboBoxAccessibility::~ComboBoxAccessibility()
{
    QAccessible::removeFactory(create);
}
