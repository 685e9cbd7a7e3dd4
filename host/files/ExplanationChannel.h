// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QJsonObject>

// A program that --explain started uses this to tell the launcher what was found in it: over a
// socket that it inherits, one JSON object a line. When the launcher closes its end, the program
// is to quit.
//
//     {"process": 4711}                          the plug-in is loaded
//     {"problem": TEXT}                          gestures cannot work, and why
//     {"profile": {...}, "lines": [TEXT, ...], "views": 1}   what is known by now; the last one counts
//
// A TEXT is what Phrase::toJson() gives.
namespace gesturewidget {

// The environment variable that names the socket: its number, a colon, and the number of its
// inode. Only the launcher that made the socket knows the second one, so an old or a made-up value
// never means some other socket of the program, such as that of its X connection.
inline constexpr char kExplanationVariable[] = "GESTUREWIDGET_EXPLAIN";

// The variable's value for an open socket; empty for anything else.
[[nodiscard]] QByteArray explanationValue(int socket);
// The socket that a value means, from now on closed to programs that this one starts; -1 for any
// value that explanationValue() does not give for an open socket.
[[nodiscard]] int explanationSocket(const QByteArray &value);

// Returns whether the message was sent. Raises no signal, and waits at most a second.
bool tell(int socket, const QJsonObject &message);

} // namespace gesturewidget
