// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/trigger/TriggerPanel.h"

#include "settings/editing/BindingsEditor.h"
#include "settings/trigger/TriggerField.h"
#include "settings/trigger/TriggerWords.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>

namespace settings {
namespace {

constexpr char kUsual[] = "default";
constexpr int kListWidth = 10; // characters; on a narrow screen, a longer entry is cut off

} // namespace

TriggerPanel::TriggerPanel(QWidget *parent)
    : QWidget(parent)
    , m_list(new QComboBox(this))
{
    m_list->setObjectName(QStringLiteral("trigger_list"));
    auto *label = new QLabel(tr("A gesture &starts with:"), this);
    label->setBuddy(m_list);
    m_list->setAccessibleName(tr("What starts a gesture"));
    const QString when = tr("It takes effect at the program's next start.");
    m_list->setToolTip(when);
    m_list->setAccessibleDescription(when);
    m_list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_list->setMinimumContentsLength(kListWidth);
    m_list->installEventFilter(this);
    auto *field = new TriggerField(this);

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label, 0, 0, 1, 2);
    layout->addWidget(m_list, 1, 0);
    layout->addWidget(field, 1, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);

    connect(m_list, qOverload<int>(&QComboBox::activated), this,
            [this](int index) { Q_EMIT wanted(m_list->itemData(index).toString()); });
    connect(field, &TriggerField::recorded, this, &TriggerPanel::wanted);
}

// A turn of the wheel over the closed list changes nothing, since each choice is kept at once.
bool TriggerPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_list && event->type() == QEvent::Wheel) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void TriggerPanel::showTrigger(const BindingsEditor &editor)
{
    const QSignalBlocker blocker(m_list);
    m_list->clear();
    m_list->addItem(tr("%1 (usual)").arg(triggerInWords(editor.usualTrigger())),
                    QString::fromLatin1(kUsual));
    QStringList triggers = commonTriggers();
    triggers.removeAll(editor.usualTrigger());
    const QString chosen = editor.bindings().trigger;
    if (!chosen.isEmpty() && chosen != editor.usualTrigger() && !triggers.contains(chosen))
        triggers.append(chosen);
    for (const QString &trigger : std::as_const(triggers))
        m_list->addItem(triggerInWords(trigger), trigger);
    m_list->setCurrentIndex(qMax(0, m_list->findData(chosen)));
}

} // namespace settings
