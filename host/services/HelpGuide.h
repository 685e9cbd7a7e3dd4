#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>

namespace gesturewidget {

// The user guide, a page of HTML.
class HelpGuide
{
public:
    using Opener = std::function<bool(const QUrl &url)>;

    // Opens pages with the person's browser, and finds them near this library: in an
    // installation's share/doc/gesturewidget, or in a source tree's docs.
    HelpGuide();

    // Opens the guide at the topic's place; 0 is its beginning. Returns whether it opened.
    bool open(int topic) const;

    // Anchor of a topic in the guide: "topic-" and its number, empty for 0.
    [[nodiscard]] static QString anchorOf(int topic);

    // What opens pages, and where they are looked for; tests set their own.
    Opener opener;
    QStringList files;
};

} // namespace gesturewidget
