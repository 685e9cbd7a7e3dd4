// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>

namespace gesturewidget {

// The user guide, a page of the site that docs/build makes.
class HelpGuide
{
public:
    using Opener = std::function<bool(const QUrl &url)>;

    // Opens pages in the person's browser. Looks for the guide near this library: in
    // share/doc/gesturewidget/html of an installation, or in docs of a build tree.
    HelpGuide();

    // Opens the guide at a topic; 0 is the beginning. Returns false if that is impossible.
    bool open(int topic) const;

    // Returns a topic's anchor in the guide: "topic-" and the number, empty for 0.
    [[nodiscard]] static QString anchorOf(int topic);

    // `opener` opens a page, `files` are the files to try. Tests set their own.
    Opener opener;
    QStringList files;
};

} // namespace gesturewidget
