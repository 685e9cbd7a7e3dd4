// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLockFile>
#include <QObject>
#include <QString>

#include <memory>
#include <optional>

class QLocalServer;

namespace settings {

// Keeps a person's settings windows to one on each display: a process that comes later asks the first
// one to show its window, and ends.
//
//     OneWindow one(OneWindow::usualPlace());
//     if (one.isShownByAnother())
//         return 0;
//     QObject::connect(&one, &OneWindow::asked, &window, [&window] { /* bring it to the front */ });
//
// Two windows at once would lose nothing, so whatever goes wrong here, a window opens: without a
// place, if the place cannot be written, or if the first process does not answer in kPatience.
class OneWindow : public QObject
{
    Q_OBJECT

public:
    // `place` is the path of a socket, at most 107 bytes long; empty for none.
    explicit OneWindow(const QString &place, QObject *parent = nullptr);
    ~OneWindow() override;

    // A socket in the person's folder for running programs, with the display in its name. Empty if
    // there is no such folder.
    [[nodiscard]] static QString usualPlace();

    // Asks the first process to show its window. Returns true if that has answered, and false if this
    // process is the first one or gets no answer.
    [[nodiscard]] bool isShownByAnother();

    static constexpr int kPatience = 1000; // milliseconds

Q_SIGNALS:
    // Another process asks this one to show its window.
    void asked();

private:
    void answer();

    QString m_place;
    std::optional<QLockFile> m_lock; // held by the first process
    std::unique_ptr<QLocalServer> m_server;
};

} // namespace settings
