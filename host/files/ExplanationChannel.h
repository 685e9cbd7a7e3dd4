#pragma once

#include <QByteArray>
#include <QJsonObject>

// How a program that was started to be looked at tells the launcher what was found in it:
// over a socket that it inherits, one JSON object a line. The other end being closed means
// that the program is to quit.
//
//     {"process": 4711}                          the plug-in is loaded
//     {"problem": "..."}                         gestures cannot work, and why
//     {"profile": {...}, "lines": [...], "views": 1}   what is known by now; the last counts
namespace gesturewidget {

// Environment variable with the socket's number.
inline constexpr char kExplanationVariable[] = "GESTUREWIDGET_EXPLAIN";

// The socket that a value of the variable means, kept from programs that this one starts;
// -1 for anything that is no such socket.
[[nodiscard]] int explanationSocket(const QByteArray &value);

// Returns whether it was sent. Never raises a signal, and does not wait for long.
bool tell(int socket, const QJsonObject &message);

} // namespace gesturewidget
