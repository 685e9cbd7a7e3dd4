#pragma once

#include "host/files/RememberedCommand.h"
#include "launcher/Outcome.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace launcher {

// The commands that a program is known to have: those that it has shown whenever it ran with
// gestures, and those that any program may have under a well-known identifier.
class KnownCommands
{
public:
    KnownCommands() = default;
    // `shown`: what CatalogueFile has; `wellKnown`: further identifiers.
    KnownCommands(const QVector<gesturewidget::RememberedCommand> &shown, const QStringList &wellKnown);

    // What is known of a command that was shown; null otherwise.
    [[nodiscard]] const gesturewidget::RememberedCommand *find(const QString &identifier) const;
    // What a person calls the command; empty when that is not known.
    [[nodiscard]] QString captionOf(const QString &identifier) const;
    // The identifier of a command that a person has named by it, by the name of its action,
    // or by its caption, letter case and dots at the end ignored: in `identifier`. Returns an
    // empty text, or one line that says why it means none or several. As long as nothing was
    // ever shown, every text is taken for an identifier.
    [[nodiscard]] QString resolve(const QString &text, const QString &program,
                                  QString &identifier) const;
    // All that was shown, by menu and toolbar; fails when nothing was.
    [[nodiscard]] Outcome list(const QString &program) const;
    // The same as JSON, in the order of first sight.
    [[nodiscard]] Outcome listAsJson(const QString &program) const;

private:
    QVector<gesturewidget::RememberedCommand> m_shown;
    QStringList m_wellKnown;
};

} // namespace launcher
