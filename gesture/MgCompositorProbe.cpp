// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "gesture/MgCompositorProbe.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QScopedPointer>

#include <xcb/xcb.h>

#include <utility>

MgCompositorProbe::~MgCompositorProbe()
{
    xcb_disconnect(m_connection); // null is fine
}

void MgCompositorProbe::ask()
{
    if (m_request != 0 || QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    if (!m_connection)
        connectToServer();
    // A connection with an error makes no request, and without a selection the answer is an error.
    // isCompositing() takes both for a compositor.
    m_request = xcb_get_selection_owner(m_connection, m_selection).sequence;
    xcb_flush(m_connection);
}

bool MgCompositorProbe::isCompositing()
{
    ask();
    if (m_request == 0)
        return true;
    const QScopedPointer<xcb_get_selection_owner_reply_t, QScopedPointerPodDeleter> owner(
        xcb_get_selection_owner_reply(m_connection, {std::exchange(m_request, 0U)}, nullptr));
    return !owner || owner->owner != XCB_NONE;
}

void MgCompositorProbe::connectToServer()
{
    int screen = 0;
    // Never null. It may hold an error instead; then every answer is null.
    m_connection = xcb_connect(nullptr, &screen);
    const QByteArray name = "_NET_WM_CM_S" + QByteArray::number(screen);
    const QScopedPointer<xcb_intern_atom_reply_t, QScopedPointerPodDeleter> atom(xcb_intern_atom_reply(
        m_connection,
        xcb_intern_atom(m_connection, 0, static_cast<quint16>(name.size()), name.constData()), nullptr));
    m_selection = atom ? atom->atom : 0;
}
