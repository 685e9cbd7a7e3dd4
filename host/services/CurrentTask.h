// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class CHxDocumentManager;

namespace gesturewidget {

class CommandCatalogue;
struct ProgramProfile;

// Knows the person's task at the moment, such as the workbench of the program. The profile says how.
class CurrentTask
{
public:
    // The catalogue must outlive this, and so must `documents`, which may be null.
    CurrentTask(const ProgramProfile &profile, CommandCatalogue &catalogue,
                CHxDocumentManager *documents);

    // Returns the task's name; empty if the profile does not say how to know it, or none is on.
    [[nodiscard]] QString name();
    // Returns the name that a person sees, which may be the same.
    [[nodiscard]] QString caption();

    // From now on the task stays the one that is on, until release().
    void hold();
    void release();

private:
    struct Found
    {
        QString name;
        QString caption;
    };

    [[nodiscard]] Found find();
    [[nodiscard]] Found checkedAction();
    [[nodiscard]] Found classOfView() const;

    QStringList m_actions;
    bool m_isOfView;
    CommandCatalogue &m_catalogue;
    CHxDocumentManager *m_documents;
    std::optional<Found> m_held;
};

} // namespace gesturewidget
