// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

struct xcb_connection_t;

// Says whether translucent windows are blended with what lies under them. On X11 a compositor
// does that, and it may start and stop at any time.
//
// The probe has an X connection of its own, because Qt offers its connection in a different way
// in each version. The connection opens on first use and stays open.
class MgCompositorProbe
{
public:
    Q_DISABLE_COPY_MOVE(MgCompositorProbe)

    MgCompositorProbe() = default;
    ~MgCompositorProbe();

    // Sends the question to the X server and does not wait. Does nothing on other platforms.
    void ask();
    // Returns the answer to ask(), which it calls itself if nobody did; then it waits for a round
    // trip. True on every other platform, and if the server cannot be reached.
    [[nodiscard]] bool isCompositing();

private:
    void connectToServer();

    xcb_connection_t *m_connection = nullptr;
    // The selection that a compositor owns, an X atom; 0 until the server was asked.
    quint32 m_selection = 0;
    // The request that waits for its answer; 0 without one.
    unsigned m_request = 0;
};
