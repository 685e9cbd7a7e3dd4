// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/inject/BareApplication.h"

#include "host/files/ExplanationChannel.h"
#include "host/files/Phrase.h"

namespace inject {

BareApplication::BareApplication(std::unique_ptr<BorrowedVariables> variables)
    : m_variables(std::move(variables))
{
    QMetaObject::invokeMethod(this, &BareApplication::onEventLoop, Qt::QueuedConnection);
}

BareApplication::~BareApplication() = default;

void BareApplication::onEventLoop()
{
    m_variables->keep();
    gesturewidget::tell(
        m_variables->explanation(),
        {{QStringLiteral("problem"),
          gesturewidget::Phrase(QT_TRANSLATE_NOOP("host", "it has no widgets")).toJson()}});
}

} // namespace inject
