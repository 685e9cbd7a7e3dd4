// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/WellKnownGuess.h"

#include "host/captions/KnownCaptions.h"
#include "host/window/Captions.h"
#include "sdk/QtBridge.h"

#include <QAction>
#include <QDockWidget>
#include <QHash>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSet>
#include <QToolBar>

#include <algorithm>
#include <iterator>
#include <vector>

namespace gesturewidget {
namespace {

// Each kind of sign outweighs all those after it together. The menu tells "Insert > Text" from
// "Convert to > Text"; alone it says nothing.
constexpr int kShortcutWeight = 32;
constexpr int kIconWeight = 16;
constexpr int kNameWeight = 8;
constexpr int kCaptionWeight = 4;
constexpr int kMenuWeight = 1;
// A file command's shortcut in a menu other than the first may run something else.
constexpr int kDoubtfulWeight = 1;
// A shortcut or icon whose caption and object name agree only in part: "Save All" may have
// Ctrl+S beside "Save".
constexpr int kPartlyWeight = 1;

using Words = QSet<QString>;

Words wordsIn(const char *text)
{
    const QStringList list = QString::fromLatin1(text).split(QLatin1Char(' '));
    return Words(list.begin(), list.end());
}

// Words of object names that say what sort of thing it is.
const Words &kinds()
{
    static const Words words = wordsIn("act action m ui std menu mnu item btn button tool tb id");
    return words;
}

// Those words, and words that say where it is, not what it does.
const Words &noise()
{
    static const Words words = Words(kinds()) | wordsIn("file edit draw modify view");
    return words;
}

QString without(const Words &unwanted, const QString &text)
{
    QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const auto isUnwanted = [&unwanted](const QString &word) { return unwanted.contains(word); };
    words.erase(std::remove_if(words.begin(), words.end(), isUnwanted), words.end());
    return words.join(QLatin1Char(' '));
}

// "&Zoom to Fit...", "Zoom to the fit" and "zoom_to-fit" become "zoom to fit".
QString plainWords(QString text)
{
    static const QRegularExpression separators(QStringLiteral("[^\\w]+|_+"),
                                               QRegularExpression::UseUnicodePropertiesOption);
    static const Words articles = wordsIn("a an the");
    return without(articles, text.replace(separators, QStringLiteral(" ")).toLower());
}

// The words of "m_actionZoomToFit" without noise, "zoom to fit". Of "actionViewAll" without
// its kind alone as well, "view all".
QStringList wordsOfName(QString name)
{
    static const QRegularExpression humps(QStringLiteral("(?<=[a-z0-9])(?=[A-Z])"));
    const QString plain = plainWords(name.replace(humps, QStringLiteral(" ")));
    return {without(noise(), plain), without(kinds(), plain)};
}

// The role of menus with "Zoom to Fit".
constexpr const char *kViewRole = "view";

// What is known of a command in every language.
struct WellKnownCommand
{
    const char *identifier;
    QKeySequence::StandardKey shortcut;
    const char *icons; // separated by bars
    const char *menuRoles; // of the menus where such commands are, separated by spaces
};

constexpr WellKnownCommand kWellKnownCommands[] = {
    {"ID_COPY", QKeySequence::Copy, "edit-copy", "edit"},
    {"ID_DTEXT", QKeySequence::UnknownKey, "draw-text|insert-text|tool-text", "draw"},
    {"ID_LINE", QKeySequence::UnknownKey, "draw-line|tool-line", "draw"},
    {"ID_OFFSET", QKeySequence::UnknownKey, "object-offset|offset", "edit draft draw"},
    {"ID_OPEN", QKeySequence::Open, "document-open", "file"},
    {"ID_SAVE", QKeySequence::Save, "document-save", "file"},
    {"ID_TRIM", QKeySequence::UnknownKey, "trim", "edit draft draw"},
    {"ID_ZOOM_BOUNDS", QKeySequence::UnknownKey, "zoom-fit-best|zoom-fit|zoom-fit-page", kViewRole},
};

struct Signs
{
    explicit Signs(const WellKnownCommand &command);

    QString identifier;
    QKeySequence::StandardKey shortcut;
    QStringList icons;
    bool isZoom;
    // In lower case, words separated by one space. An object name is compared with them
    // once its words that name no deed are gone, see noise().
    Words words;
    Words menus; // captions, likewise
    // Words that say too little but in one of these menus.
    Words wordsInMenus;
    // Single words among both: "Open Image" mentions "open".
    Words mentions;
};

Words plainWordsOf(const QStringList &captions)
{
    Words words;
    for (const QString &caption : captions)
        words.insert(plainWords(caption));
    return words;
}

Signs::Signs(const WellKnownCommand &command)
    : identifier(QLatin1String(command.identifier))
    , shortcut(command.shortcut)
    , icons(QString::fromLatin1(command.icons).split(QLatin1Char('|')))
    , isZoom(command.menuRoles == kViewRole)
{
    for (const KnownCaptions &captions : KnownCaptions::languages()) {
        words |= plainWordsOf(captions.commands.value(identifier));
        wordsInMenus |= plainWordsOf(captions.commandsInTheirMenus.value(identifier));
    }
    const QStringList roles = QString::fromLatin1(command.menuRoles).split(QLatin1Char(' '));
    for (const QString &role : roles)
        menus |= plainWordsOf(KnownCaptions::menusOf(role));
    const Words all = Words(words) | wordsInMenus;
    for (const QString &text : all) {
        if (!text.contains(QLatin1Char(' ')))
            mentions.insert(text);
    }
}

// Takes milliseconds the first time, so only what compares actions asks for it.
const std::vector<Signs> &allSigns()
{
    static const std::vector<Signs> signs(std::begin(kWellKnownCommands), std::end(kWellKnownCommands));
    return signs;
}

// Switches that show and hide a toolbar or a dock bear its title, not a deed.
bool isSwitchOfBar(const QAction &action)
{
    const QString name = action.objectName().toLower();
    return action.isCheckable()
        && (qobject_cast<QToolBar *>(action.parent()) || qobject_cast<QDockWidget *>(action.parent())
            || action.inherits("KToggleToolBarAction") || name.contains(QLatin1String("toolbar")));
}

// True if it belongs to a main window inside another, such as an editor for notes in a dock.
bool isOfAPart(const QMenuBar *bar)
{
    const QWidget *up = bar->parentWidget();
    while (up && !qobject_cast<const QMainWindow *>(up))
        up = up->parentWidget();
    return up && !up->isWindow();
}

// The place of a menu in its menu bar. A submenu has the place of the menu that it is in. -1 if it is
// in no menu bar. The first menu of a part of the window is not the first of all.
int placeInBar(const QMenu *menu)
{
    constexpr int kDeepest = 16; // menus may contain each other
    for (int depth = 0; menu && depth < kDeepest; ++depth) {
        QAction *action = menu->menuAction();
        const QMenu *above = nullptr;
        const QWidgetList widgets = qtbridge::widgetsOf(*action);
        for (const QWidget *widget : widgets) {
            if (const auto *bar = qobject_cast<const QMenuBar *>(widget))
                return static_cast<int>(bar->actions().indexOf(action)) + (isOfAPart(bar) ? 1 : 0);
            if (!above)
                above = qobject_cast<const QMenu *>(widget);
        }
        menu = above;
    }
    return -1;
}

// The places in menu bars of the menus that an action is in; empty when it is in none there.
QVector<int> placesInBars(const QAction &action)
{
    QVector<int> places;
    const QWidgetList widgets = qtbridge::widgetsOf(action);
    for (const QWidget *widget : widgets) {
        const int place = placeInBar(qobject_cast<const QMenu *>(widget));
        if (place >= 0)
            places.append(place);
    }
    return places;
}

// The titles of a menu and of those that it is in, the innermost first.
QStringList titlesUpFrom(const QMenu *menu)
{
    constexpr int kDeepest = 16; // menus may contain each other
    QStringList titles;
    for (int depth = 0; menu && depth < kDeepest; ++depth) {
        titles.append(plainWords(plainCaption(menu->title())));
        const QWidgetList widgets = qtbridge::widgetsOf(*menu->menuAction());
        menu = nullptr;
        for (const QWidget *widget : widgets) {
            if (!menu)
                menu = qobject_cast<const QMenu *>(widget);
        }
    }
    return titles;
}

// An action's texts, shortcuts and icon, read once for all identifiers.
struct Look
{
    explicit Look(const QAction &action)
        : shortcuts(action.shortcuts())
        , icon(action.icon().name())
        , name(action.objectName())
        , nameWords(wordsOfName(action.objectName()))
        , caption(plainCaption(action.text()))
        , captionWords(plainWords(caption))
        , places(placesInBars(action))
        , isButtonOnly(places.isEmpty() && !qtbridge::widgetsOf(action).isEmpty())
        , isCheckable(action.isCheckable())
    {
        const QWidgetList widgets = qtbridge::widgetsOf(action);
        for (const QWidget *widget : widgets) {
            if (const auto *menu = qobject_cast<const QMenu *>(widget)) {
                const QStringList titles = titlesUpFrom(menu);
                menus.append(titles.first());
                menusAbove += titles.mid(1);
            } else if (const auto *bar = qobject_cast<const QToolBar *>(widget)) {
                menus.append(plainWords(plainCaption(bar->windowTitle())));
            }
        }
    }

    QList<QKeySequence> shortcuts;
    QString icon;
    QString name;
    QStringList nameWords; // forms of the name
    QString caption;
    QString captionWords;
    QStringList menus; // that it is in
    QStringList menusAbove; // that those are in
    QVector<int> places;
    bool isButtonOnly; // or in a menu that opens over something
    bool isCheckable;
};

bool containsAny(const QStringList &titles, const Words &known)
{
    return std::any_of(titles.begin(), titles.end(),
                       [&known](const QString &title) { return known.contains(title); });
}

// Chinese and Japanese put no spaces between words.
bool isUnspaced(const QString &word)
{
    constexpr char16_t kFirst = 0x3000; // of the blocks of their characters
    return word.at(0).unicode() >= kFirst;
}

bool mentions(const QString &text, const Words &words)
{
    const QStringList parts = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (containsAny(parts, words))
        return true;
    return std::any_of(words.begin(), words.end(),
                       [&text](const QString &word) { return isUnspaced(word) && text.contains(word); });
}

// The signs that an action shows for one identifier.
struct Signals
{
    Signals(const Signs &signs, const Look &look)
    {
        isFileCommand = signs.shortcut == QKeySequence::Open || signs.shortcut == QKeySequence::Save;
        const auto standard = signs.shortcut == QKeySequence::UnknownKey
                                ? QList<QKeySequence>()
                                : QKeySequence::keyBindings(signs.shortcut);
        const auto found =
            std::find_if(look.shortcuts.begin(), look.shortcuts.end(),
                         [&standard](const QKeySequence &keys) { return standard.contains(keys); });
        if (found != look.shortcuts.end())
            shortcut = found->toString();
        hasIcon = signs.icons.contains(look.icon);
        isInMenu = containsAny(look.menus, signs.menus);
        const auto isWord = [&](const QString &words) {
            return signs.words.contains(words) || (isInMenu && signs.wordsInMenus.contains(words));
        };
        hasName = std::any_of(look.nameWords.begin(), look.nameWords.end(), isWord);
        hasCaption = isWord(look.captionWords);
        const auto isMention = [&signs](const QString &text) { return mentions(text, signs.mentions); };
        isMentioned = (hasIcon || !shortcut.isEmpty()) // asked for beside these only
                   && (isMention(look.captionWords)
                       || std::any_of(look.nameWords.begin(), look.nameWords.end(), isMention));
        const bool isInFirstMenu = isFileCommand && look.places.contains(0);
        isElsewhere = !look.places.isEmpty() && !isInMenu && !isInFirstMenu
                   && !containsAny(look.menusAbove, signs.menus);
        isDoubtful = isFileCommand && !look.places.isEmpty() && !look.places.contains(0);
    }

    bool isFileCommand;
    QString shortcut; // empty if it has not the standard one
    bool hasIcon;
    bool hasName;
    bool hasCaption;
    bool isMentioned; // caption or object name contains a word for it
    bool isInMenu; // where such commands are
    bool isElsewhere; // in other menus only, at any depth
    bool isDoubtful; // its shortcut
};

// A wrong command is worse than none: one weak sign does not suffice, nor do signs against
// which another speaks.
bool isConvincing(const Signs &signs, const Signals &has, const Look &look)
{
    const bool isTool = signs.shortcut == QKeySequence::UnknownKey;
    const bool isSaid = has.hasName || has.hasCaption;
    // A checkable action is a mode. Among well-known commands only tools and "keep it fitted" are.
    if (look.isCheckable && (!isTool || (signs.isZoom && !(has.hasIcon && isSaid))))
        return false;
    if (!has.shortcut.isEmpty() && (has.hasCaption || !has.isDoubtful) && (isSaid || has.isMentioned))
        return true;
    if (has.isElsewhere && !signs.isZoom)
        return false;
    // A button outside the menus that says "Save" may save anything. The command itself comes later.
    if (look.isButtonOnly && !isTool && !has.hasName && !has.hasIcon)
        return false;
    return isSaid || (has.hasIcon && (has.isMentioned || !has.shortcut.isEmpty()));
}

WellKnownGuess judge(const Signs &signs, const Look &look)
{
    WellKnownGuess guess;
    guess.identifier = signs.identifier;
    const Signals has(signs, look);
    if (!isConvincing(signs, has, look))
        return guess;
    const auto weigh = [&](bool speaksForIt, int weight, const char *kind, const QString &what) {
        if (!speaksForIt)
            return;
        guess.weight += weight;
        const Phrase sign(kind, {Phrase::verbatim(what)});
        guess.reason = guess.reason.isEmpty()
                         ? sign
                         : Phrase(QT_TRANSLATE_NOOP("host", "%1, %2"), {guess.reason, sign});
    };
    const bool isPartly = !has.hasName && !has.hasCaption && (has.shortcut.isEmpty() || !has.hasIcon);
    const auto weightOf = [isPartly](int weight) { return isPartly ? kPartlyWeight : weight; };
    weigh(!has.shortcut.isEmpty(), has.isDoubtful ? kDoubtfulWeight : weightOf(kShortcutWeight),
          QT_TRANSLATE_NOOP("host", "shortcut \"%1\""), has.shortcut);
    weigh(has.hasIcon, weightOf(kIconWeight), QT_TRANSLATE_NOOP("host", "icon \"%1\""), look.icon);
    weigh(has.hasName, kNameWeight, QT_TRANSLATE_NOOP("host", "object name \"%1\""), look.name);
    weigh(has.hasCaption, kCaptionWeight, QT_TRANSLATE_NOOP("host", "caption \"%1\""), look.caption);
    if (has.isInMenu)
        guess.weight += kMenuWeight;
    return guess;
}

} // namespace

QStringList WellKnownGuess::identifiers()
{
    QStringList names;
    for (const WellKnownCommand &command : kWellKnownCommands)
        names.append(QLatin1String(command.identifier));
    return names;
}

QVector<WellKnownGuess> WellKnownGuess::among(const QVector<QAction *> &actions,
                                              const QStringList &wanted)
{
    QVector<WellKnownGuess> candidates;
    for (QAction *action : actions) {
        if (isSwitchOfBar(*action))
            continue;
        const Look look(*action);
        for (const Signs &signs : allSigns()) {
            if (!wanted.contains(signs.identifier))
                continue;
            WellKnownGuess guess = judge(signs, look);
            guess.action = action;
            if (guess.weight > 0)
                candidates.append(guess);
        }
    }
    std::stable_sort(
        candidates.begin(), candidates.end(),
        [](const WellKnownGuess &a, const WellKnownGuess &b) { return a.weight > b.weight; });
    QVector<WellKnownGuess> chosen;
    for (const WellKnownGuess &candidate : std::as_const(candidates)) {
        const bool isTaken =
            std::any_of(chosen.begin(), chosen.end(), [&candidate](const WellKnownGuess &other) {
                return other.identifier == candidate.identifier || other.action == candidate.action;
            });
        if (!isTaken)
            chosen.append(candidate);
    }
    std::sort(chosen.begin(), chosen.end(), [](const WellKnownGuess &a, const WellKnownGuess &b) {
        return a.identifier < b.identifier;
    });
    return chosen;
}

} // namespace gesturewidget
