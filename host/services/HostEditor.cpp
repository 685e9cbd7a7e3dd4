// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/services/HostEditor.h"

#include "sdk/chx/CHxEditorReactor.h"
#include "sdk/OwnCode.h"

#include <algorithm>

namespace gesturewidget {

HostEditor::HostEditor() = default;

HostEditor::~HostEditor() = default;

void HostEditor::addReactor(OdEditorReactor *reactor)
{
    const auto isReactor = [reactor](const Entry &entry) { return entry.reactor == reactor; };
    if (!reactor || std::any_of(m_reactors.begin(), m_reactors.end(), isReactor))
        return;
    m_reactors.push_back({reactor, false});
    if (m_frameCreated)
        QMetaObject::invokeMethod(
            &m_context,
            [this] {
                const OwnCode ours;
                tellUninformed();
            },
            Qt::QueuedConnection);
}

void HostEditor::removeReactor(OdEditorReactor *reactor)
{
    const auto isReactor = [reactor](const Entry &entry) { return entry.reactor == reactor; };
    m_reactors.erase(std::remove_if(m_reactors.begin(), m_reactors.end(), isReactor), m_reactors.end());
}

void HostEditor::notifyMainFrameCreated(QWidget *frame)
{
    if (m_frameCreated)
        return;
    m_frameCreated = true;
    m_frame = frame;
    tellUninformed();
}

void HostEditor::setMainFrame(QWidget *frame)
{
    if (m_frameCreated)
        m_frame = frame;
}

void HostEditor::notifyMainFrameDestroyed(QWidget *frame)
{
    m_frameCreated = false;
    m_frame.clear();
    const std::vector<Entry> reactors = m_reactors;
    for (Entry &entry : m_reactors)
        entry.knowsFrame = false;
    for (const Entry &entry : reactors) {
        auto *reactor = entry.knowsFrame ? frameReactor(entry.reactor) : nullptr;
        if (reactor)
            reactor->mainFrameDestroyed(frame);
    }
}

void HostEditor::tellUninformed()
{
    const std::vector<Entry> reactors = m_reactors;
    for (const Entry &entry : reactors) {
        if (!m_frame || !m_frameCreated)
            return;
        const auto isReactor = [&entry](const Entry &other) { return other.reactor == entry.reactor; };
        const auto found = std::find_if(m_reactors.begin(), m_reactors.end(), isReactor);
        if (found == m_reactors.end() || found->knowsFrame)
            continue;
        found->knowsFrame = true;
        if (auto *reactor = frameReactor(entry.reactor))
            reactor->mainFrameCreated(m_frame);
    }
}

// Returns the reactor if it handles main windows and is still there; otherwise null.
CHxEditorReactor *HostEditor::frameReactor(OdEditorReactor *reactor) const
{
    const auto isReactor = [reactor](const Entry &entry) { return entry.reactor == reactor; };
    const bool isThere = std::any_of(m_reactors.begin(), m_reactors.end(), isReactor);
    return isThere ? dynamic_cast<CHxEditorReactor *>(reactor) : nullptr;
}

} // namespace gesturewidget
