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
constexpr int kNoteLines = 2; // most notes need them
constexpr int kListWidth = 10; // characters; on a narrow screen, a longer entry is cut off

} // namespace

TriggerPanel::TriggerPanel(QWidget *parent)
    : QWidget(parent)
    , m_list(new QComboBox(this))
    , m_note(new QLabel(this))
{
    m_list->setObjectName(QStringLiteral("trigger_list"));
    auto *label = new QLabel(tr("A gesture &starts with:"), this);
    label->setBuddy(m_list);
    m_list->setAccessibleName(tr("What starts a gesture"));
    m_list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_list->setMinimumContentsLength(kListWidth);
    m_list->installEventFilter(this);
    m_note->setObjectName(QStringLiteral("trigger_note"));
    m_note->setWordWrap(true);
    m_note->setTextFormat(Qt::PlainText);
    m_note->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // A note that comes must not move the field under the pointer.
    m_note->setText(QString(kNoteLines - 1, QLatin1Char('\n')));
    m_note->setMinimumHeight(m_note->sizeHint().height());
    auto *field = new TriggerField(this);

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label, 0, 0, 1, 2);
    layout->addWidget(m_list, 1, 0);
    layout->addWidget(field, 1, 1);
    layout->addWidget(m_note, 2, 0, 1, 2);
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
        m_list->addItem(editor.isUsedByProgram(trigger)
                            ? tr("%1 (%2 uses it)").arg(triggerInWords(trigger), editor.title())
                            : triggerInWords(trigger),
                        trigger);
    m_list->setCurrentIndex(qMax(0, m_list->findData(chosen)));
    showNote(editor);
}

void TriggerPanel::showNote(const BindingsEditor &editor)
{
    QStringList notes;
    if (editor.isUsedByProgram(editor.trigger()))
        notes.append(tr("%1 uses this drag itself. While it starts a gesture, %1 no longer gets it.")
                         .arg(editor.title()));
    if (editor.isTriggerPending())
        notes.append(tr("%1 is running. It takes this over at its next start.").arg(editor.title()));
    m_note->setText(notes.join(QLatin1Char('\n')));
    m_list->setAccessibleDescription(notes.join(QLatin1Char(' ')));
}

} // namespace settings
