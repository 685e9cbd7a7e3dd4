// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/ListEntries.h"

#include "host/captions/KnownCaptions.h"
#include "host/files/CommandNames.h"
#include "host/files/DocumentName.h"
#include "host/window/Captions.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QRegularExpression>

namespace gesturewidget {
namespace {

// Characters. A shorter title is too likely to be the caption of some command.
constexpr int kShortestTitle = 3;

QSet<QString> captionsOf(std::initializer_list<const char *> roles)
{
    QSet<QString> captions;
    for (const char *role : roles) {
        const QStringList list = KnownCaptions::menusOf(QLatin1String(role));
        for (const QString &caption : list)
            captions.insert(foldedCaption(caption));
    }
    return captions;
}

// Without the marks of a changed document.
QString plainTitle(QString title)
{
    title.remove(QLatin1String("[*]"));
    while (title.endsWith(QLatin1Char('*')))
        title.chop(1);
    while (title.startsWith(QLatin1Char('*')))
        title.remove(0, 1);
    return foldedCaption(title);
}

struct Number
{
    int value; // -1 if there is none
    bool isMarked; // by the mnemonic
};

// Returns the number of an entry such as "&1 drawing", "1&0 drawing" or "2: drawing".
Number numberOf(const QString &text)
{
    static const QRegularExpression marked(QStringLiteral(R"(^(&\d|\d&\d)[.:)]?\s+\S)"));
    static const QRegularExpression plain(QStringLiteral(R"(^(\d{1,2})[.:)]?\s+\S)"));
    QRegularExpressionMatch match = marked.match(text);
    const bool isMarked = match.hasMatch();
    if (!isMarked)
        match = plain.match(text);
    return {match.hasMatch() ? match.captured(1).remove(QLatin1Char('&')).toInt() : -1, isMarked};
}

bool mayBeEntry(const QAction &action)
{
    return action.objectName().isEmpty() && action.shortcut().isEmpty();
}

QString withoutStep(const QAction &action, const QString &caption)
{
    static const QSet<QString> words = captionsOf({"undo", "redo"});
    static const QList<QKeySequence> keys =
        QKeySequence::keyBindings(QKeySequence::Undo) + QKeySequence::keyBindings(QKeySequence::Redo);
    const QKeySequence shortcut = action.shortcut();
    const bool isIt = (!shortcut.isEmpty() && keys.contains(shortcut)) || action.inherits("QUndoAction");
    if (!isIt)
        return caption;
    const QString plain = caption.simplified() + QLatin1Char(' '); // so that something follows a word
    const QString folded = foldedCaption(plain);
    for (const QString &word : words) {
        if (folded.startsWith(word) && !plain.at(word.size()).isLetterOrNumber())
            return plain.left(word.size());
    }
    return caption;
}

} // namespace

ListEntries::Kind ListEntries::kindOf(const QString &menu)
{
    static const QSet<QString> documents = captionsOf({"recent", "undo", "redo"});
    static const QSet<QString> layers = captionsOf({"layers"});
    const QString caption = foldedCaption(menu);
    return documents.contains(caption) ? Kind::Documents
         : layers.contains(caption)    ? Kind::Layers
                                       : Kind::Commands;
}

QSet<const QAction *> ListEntries::among(const QList<QAction *> &actions, Kind kind)
{
    QSet<const QAction *> entries;
    int next = 0; // the number that continues the list
    for (const QAction *action : actions) {
        const QString text = action->text();
        if (text.isEmpty())
            continue;
        const QString caption = lastingCaption(*action, plainCaption(text));
        const bool isDocument = namesADocument(caption);
        if (!isDocument && !mayBeEntry(*action))
            continue;
        const Number number = numberOf(text);
        if (number.value == 0 || number.value == 1)
            next = number.value;
        const bool isNext = number.value == next;
        if (isNext)
            ++next;
        const bool isNumbered =
            isNext && action->icon().isNull() && (number.isMarked || action->data().isValid());
        if (isDocument || kind == Kind::Documents || isNumbered
            || (kind == Kind::Layers && (action->isCheckable() || action->data().isValid()))
            || (action->icon().isNull() && isWindowTitle(caption)))
            entries.insert(action);
    }
    return entries;
}

bool ListEntries::isWindowTitle(const QString &caption)
{
    if (!m_hasTitles) {
        const auto add = [this](const QString &title) {
            const QString plain = plainTitle(title);
            if (plain.size() >= kShortestTitle)
                m_titles.insert(plain);
        };
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (const QWidget *window : windows) {
            if (!qobject_cast<const QMainWindow *>(window))
                continue;
            add(window->windowTitle());
            const auto areas = window->findChildren<QMdiArea *>();
            for (const QMdiArea *area : areas) {
                const auto inside = area->subWindowList();
                for (const QMdiSubWindow *one : inside) {
                    add(one->windowTitle());
                    if (one->widget())
                        add(one->widget()->windowTitle());
                }
            }
        }
        m_hasTitles = true;
    }
    if (m_titles.isEmpty())
        return false;
    static const QRegularExpression number(QStringLiteral(R"(^\d{1,2}[.:)]?\s+)"));
    QString plain = caption;
    plain.remove(number);
    return m_titles.contains(plainTitle(plain)) || m_titles.contains(plainTitle(caption));
}

QString lastingCaption(const QAction &action, const QString &caption)
{
    return withoutStep(action, withoutDocument(caption));
}

} // namespace gesturewidget
