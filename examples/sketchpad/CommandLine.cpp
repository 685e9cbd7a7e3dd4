// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/CommandLine.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QtMath>

#include <cmath>

CommandLine::Input CommandLine::parse(const QString &text, const QPointF &last)
{
    static const QRegularExpression form(QStringLiteral("^(@?)([^,<]+)([,<])([^,<]+)$"));
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return {};
    Input input;
    bool isNumber = false;
    input.number = trimmed.toDouble(&isNumber);
    input.kind = isNumber && std::isfinite(input.number) ? Input::Kind::Number : Input::Kind::Words;
    const auto match = form.match(trimmed);
    if (!match.hasMatch())
        return input;
    bool areNumbers[2];
    const double first = match.captured(2).toDouble(&areNumbers[0]);
    const double second = match.captured(4).toDouble(&areNumbers[1]);
    if (!areNumbers[0] || !areNumbers[1] || !std::isfinite(first) || !std::isfinite(second))
        return input;
    input.kind = Input::Kind::Point;
    input.point = {first, second};
    if (match.captured(3) == QLatin1String("<"))
        input.point =
            first * QPointF(std::cos(qDegreesToRadians(second)), std::sin(qDegreesToRadians(second)));
    if (!match.captured(1).isEmpty())
        input.point += last;
    return input;
}

CommandLine::CommandLine(QWidget *parent)
    : QWidget(parent)
    , m_prompt(new QLabel(this))
    , m_edit(new QLineEdit(this))
{
    m_edit->setObjectName(QStringLiteral("commandLine"));
    m_edit->setPlaceholderText(
        tr("LINE, CIRCLE, TRIM, ZOOM, GESTURE \u2026 or a point such as 10,20 or @5<90"));
    m_edit->installEventFilter(this);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 8, 4);
    row->addWidget(m_prompt);
    row->addWidget(m_edit, 1);
    connect(m_edit, &QLineEdit::textChanged, this, &CommandLine::textChanged);
    connect(m_edit, &QLineEdit::returnPressed, this, [this] {
        const QString typed = m_edit->text();
        m_edit->clear();
        Q_EMIT entered(typed);
    });
}

bool CommandLine::eventFilter(QObject *watched, QEvent *event)
{
    // While the line is empty, Ctrl+Z, Del and similar keys act on the drawing.
    if (event->type() == QEvent::ShortcutOverride && m_edit->text().isEmpty()) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void CommandLine::setPrompt(const QString &prompt)
{
    m_prompt->setText(prompt);
}

QString CommandLine::text() const
{
    return m_edit->text();
}

void CommandLine::takeKey(QKeyEvent *event)
{
    m_edit->setFocus();
    QApplication::sendEvent(m_edit, event);
}
