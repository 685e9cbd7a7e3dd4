// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/window/ProgramPage.h"

#include "settings/editing/BindingsEditor.h"
#include "settings/programs/ProgramIcon.h"
#include "settings/programs/Switch.h"
#include "settings/ring/CommandDrag.h"
#include "settings/ring/CommandModel.h"
#include "settings/ring/CommandPanel.h"
#include "settings/ring/RingView.h"
#include "settings/trigger/TriggerPanel.h"
#include "settings/trigger/TriggerWords.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

namespace settings {
namespace {

constexpr int kTitleIconSize = 48; // pixels
constexpr int kHandleWidth = 14; // pixels
constexpr int kCommandsWidth = 14; // heights of a line of text
constexpr double kTitleGrowth = 1.5;

} // namespace

ProgramPage::ProgramPage(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(createHeader());
    auto *middle = new QSplitter(this);
    middle->setChildrenCollapsible(false);
    middle->setHandleWidth(kHandleWidth);
    middle->addWidget(createRing());
    middle->addWidget(createCommands());
    // Of the whole; the ring needs a little more.
    middle->setSizes({1100, 900});
    middle->setStretchFactor(0, 11);
    middle->setStretchFactor(1, 9);
    layout->addWidget(middle, 1);
    m_drag = new CommandDrag(m_ring, this);
    connectParts();
}

QWidget *ProgramPage::createHeader()
{
    auto *header = new QWidget(this);
    m_icon = new QLabel(header);
    m_icon->setObjectName(QStringLiteral("program_icon"));
    m_title = new QLabel(header);
    m_title->setObjectName(QStringLiteral("program_title"));
    m_title->setTextFormat(Qt::PlainText);
    QFont font = m_title->font();
    font.setPointSizeF(font.pointSizeF() * kTitleGrowth);
    font.setBold(true);
    m_title->setFont(font);
    m_state = new QLabel(header);
    m_state->setObjectName(QStringLiteral("program_state"));
    m_state->setWordWrap(true);
    m_state->setTextFormat(Qt::PlainText);
    m_enable = new QPushButton(tr("Switch Gestures &On"), header);
    m_enable->setObjectName(QStringLiteral("enable_button"));
    m_switchLabel = new QLabel(tr("Start with &gestures"), header);
    m_switch = new Switch(header);
    m_switch->setObjectName(QStringLiteral("program_switch"));
    m_switch->setAccessibleName(tr("Start with gestures"));
    m_switchLabel->setBuddy(m_switch);

    auto *words = new QVBoxLayout;
    words->addWidget(m_title);
    words->addWidget(m_state);
    auto *layout = new QHBoxLayout(header);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_icon, 0, Qt::AlignTop);
    layout->addLayout(words, 1);
    layout->addWidget(m_enable);
    layout->addSpacing(12);
    layout->addWidget(m_switchLabel);
    layout->addWidget(m_switch);
    return header;
}

QWidget *ProgramPage::createRing()
{
    auto *side = new QWidget(this);
    m_four = new QRadioButton(tr("&4 directions"), side);
    m_four->setObjectName(QStringLiteral("four_button"));
    m_eight = new QRadioButton(tr("&8 directions"), side);
    m_eight->setObjectName(QStringLiteral("eight_button"));
    m_rings = new QComboBox(side);
    m_rings->setObjectName(QStringLiteral("ring_list"));
    m_rings->setAccessibleName(tr("Ring of a task"));
    m_rings->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_ringLabel = new QLabel(tr("&Ring:"), side);
    m_ringLabel->setBuddy(m_rings);
    m_ownRings = new QToolButton(side);
    m_ownRings->setObjectName(QStringLiteral("own_rings_button"));
    m_ownRings->setText(tr("&Own Rings"));
    m_ownRings->setToolTip(tr("Choose the tasks that have rings of their own"));
    m_ownRings->setAccessibleDescription(m_ownRings->toolTip());
    m_ownRings->setPopupMode(QToolButton::InstantPopup);
    m_ownRings->setFocusPolicy(Qt::StrongFocus);
    m_ownRings->setMenu(new QMenu(m_ownRings));
    m_ring = new RingView(side);
    m_hint = new QLabel(tr("Drag a command from the list into a direction. Drag it on to another "
                           "direction to exchange the two, or off the ring to take it away."),
                        side);
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignCenter);
    m_trigger = new TriggerPanel(side);

    auto *schemes = new QHBoxLayout;
    schemes->addStretch();
    schemes->addWidget(m_four);
    schemes->addSpacing(16);
    schemes->addWidget(m_eight);
    schemes->addStretch();
    auto *rings = new QHBoxLayout;
    rings->addWidget(m_ringLabel);
    rings->addWidget(m_rings, 1);
    rings->addWidget(m_ownRings);
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(rings);
    layout->addLayout(schemes);
    layout->addWidget(m_ring, 1);
    layout->addWidget(m_hint);
    layout->addSpacing(8);
    layout->addWidget(m_trigger);
    return side;
}

QWidget *ProgramPage::createCommands()
{
    auto *side = new QWidget(this);
    side->setMinimumWidth(kCommandsWidth * fontMetrics().height());
    m_commands = new CommandPanel(side);
    m_firstHint = new QLabel(side);
    m_firstHint->setObjectName(QStringLiteral("first_hint"));
    m_firstHint->setWordWrap(true);
    m_firstHint->setTextFormat(Qt::PlainText);
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_commands, 1);
    layout->addWidget(m_firstHint);
    return side;
}

void ProgramPage::connectParts()
{
    connect(m_switch, &QAbstractButton::clicked, this, &ProgramPage::switchWanted);
    connect(m_enable, &QPushButton::clicked, this, [this] {
        if (m_editor)
            m_editor->setEnabled(true);
    });
    connect(m_rings, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        if (m_editor)
            m_editor->setRing(m_rings->itemData(index).toString());
    });
    connect(m_ownRings->menu(), &QMenu::aboutToShow, this, &ProgramPage::fillOwnRings);
    const auto chooseScheme = [this](int scheme) {
        if (m_editor && m_editor->bindings().scheme != scheme)
            m_editor->setScheme(scheme);
    };
    connect(m_four, &QRadioButton::clicked, this, [chooseScheme] { chooseScheme(4); });
    connect(m_eight, &QRadioButton::clicked, this, [chooseScheme] { chooseScheme(8); });

    connect(
        m_commands, &CommandPanel::dragBegun, this,
        [this](const ShownCommand &command, QWidget *source) { m_drag->begin(command, -1, source); });
    connect(m_ring, &RingView::dragBegun, this, [this](int direction, QWidget *source) {
        m_drag->begin(m_ring->commands().at(direction), direction, source);
    });
    const auto bind = [this](const QString &identifier, int direction) {
        if (m_editor)
            m_editor->bind(direction, identifier);
    };
    connect(m_drag, &CommandDrag::bound, this, bind);
    connect(m_commands, &CommandPanel::wanted, this, bind);
    connect(m_ring, &RingView::activated, this, [this, bind](int direction) {
        const QString identifier = m_commands->chosenCommand().identifier;
        if (!identifier.isEmpty() && m_ring->commands().at(direction).identifier != identifier)
            bind(identifier, direction);
    });
    const auto swap = [this](int from, int direction) {
        if (m_editor)
            m_editor->swap(from, direction);
    };
    connect(m_drag, &CommandDrag::exchanged, this, swap);
    connect(m_ring, &RingView::exchanged, this, swap);
    const auto unbind = [this](int direction) {
        if (m_editor && !m_ring->commands().at(direction).identifier.isEmpty())
            m_editor->unbind(direction);
    };
    connect(m_drag, &CommandDrag::takenOff, this, unbind);
    connect(m_ring, &RingView::emptied, this, unbind);
    connect(m_commands, &CommandPanel::unwanted, this, unbind);
    connect(m_trigger, &TriggerPanel::wanted, this, [this](const QString &trigger) {
        if (m_editor)
            m_editor->setTrigger(trigger);
    });
}

void ProgramPage::showProgram(BindingsEditor *editor, const QIcon &icon, bool isOn)
{
    if (m_editor)
        disconnect(m_editor, nullptr, this, nullptr);
    m_editor = editor;
    if (!editor)
        return;
    connect(editor, &BindingsEditor::bindingsChanged, this, [this] {
        showBindings();
        examine();
    });
    connect(editor, &BindingsEditor::commandsChanged, this, &ProgramPage::showCommands);
    m_commands->clearSearch();
    m_icon->setPixmap(programPixmap(icon, kTitleIconSize, devicePixelRatioF()));
    m_title->setText(editor->title());
    m_isOn = isOn;
    m_switch->setChecked(isOn);
    showCommands();
    showBindings();
    examine();
}

void ProgramPage::setOn(bool isOn)
{
    m_isOn = isOn;
    m_switch->setChecked(isOn);
    showAdvice();
}

void ProgramPage::focusSearch()
{
    m_commands->focusSearch();
}

void ProgramPage::examine()
{
    if (!m_editor)
        return;
    const launcher::Subject subject = launcher::Subject::of(m_editor->subject().typed);
    m_trigger->showNote(*m_editor);
    m_advice = adviceFor(launcher::diagnose(launcher::Symptoms::of(subject)), m_editor->title());
    showAdvice();
}

void ProgramPage::showAdvice()
{
    if (!m_editor)
        return;
    QStringList lines;
    bool canEnable = false;
    for (const Advice &advice : std::as_const(m_advice)) {
        lines.append(advice.remedy.isEmpty() ? advice.text
                                             : advice.text + QLatin1Char(' ') + advice.remedy);
        canEnable |= advice.action == Advice::Remedy::EnableGestures;
    }
    if (lines.isEmpty())
        lines.append(m_isOn ? tr("Gestures work. %1 starts with them from the desktop's menus.")
                                  .arg(m_editor->title())
                            : tr("Gestures would work. Switch them on here, then start %1 from the "
                                 "desktop's menus.")
                                  .arg(m_editor->title()));
    m_state->setText(lines.join(QLatin1Char('\n')));
    m_enable->setVisible(canEnable);
}

void ProgramPage::showCommands()
{
    if (!m_editor)
        return;
    m_commands->showCommands(*m_editor);
    const bool hasRun = !m_editor->commands().shown().isEmpty();
    m_firstHint->setVisible(!hasRun);
    m_firstHint->setText(tr("These are the commands that nearly every program has. All others of %1 "
                            "appear here when it has run with gestures once.")
                             .arg(m_editor->title()));
}

void ProgramPage::showRings()
{
    m_rings->clear();
    m_rings->addItem(tr("For all tasks"), QString());
    for (const QString &task : m_editor->rings())
        m_rings->addItem(m_editor->captionOf(task), task);
    m_rings->setCurrentIndex(qMax(0, m_rings->findData(m_editor->ring())));
    const bool hasTasks = !m_editor->tasksOfProgram().isEmpty();
    m_rings->setVisible(hasTasks);
    m_ringLabel->setVisible(hasTasks);
    m_ownRings->setVisible(hasTasks);
}

void ProgramPage::fillOwnRings()
{
    QMenu *menu = m_ownRings->menu();
    menu->clear();
    if (!m_editor)
        return;
    const QStringList tasks = m_editor->tasksOfProgram();
    for (const QString &task : tasks) {
        QAction *action =
            menu->addAction(m_editor->captionOf(task).replace(QLatin1Char('&'), QLatin1String("&&")));
        action->setCheckable(true);
        action->setChecked(m_editor->rings().contains(task));
        connect(action, &QAction::triggered, this, [this, task](bool isOwn) {
            if (m_editor)
                m_editor->setOwnRing(task, isOwn);
        });
    }
}

void ProgramPage::showBindings()
{
    if (!m_editor)
        return;
    showRings();
    const launcher::Bindings &bindings = m_editor->bindings();
    (bindings.scheme == 4 ? m_four : m_eight)->setChecked(true);
    QVector<ShownCommand> commands;
    for (const QString &identifier : bindings.commands())
        commands.append(shownCommand(*m_editor, identifier));
    m_ring->setCommands(commands);
    m_ring->setMiddleText(
        tr("%1: hold, drag, and move on towards a command").arg(triggerInWords(m_editor->trigger())));
    m_commands->showDirections(*m_editor);
    m_trigger->showTrigger(*m_editor);
}

} // namespace settings
