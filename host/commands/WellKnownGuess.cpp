#include "host/commands/WellKnownGuess.h"

#include "host/window/Captions.h"
#include "sdk/QtBridge.h"

#include <QAction>
#include <QCoreApplication>
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

namespace gesturewidget {
namespace {

// Each kind of sign outweighs all later kinds together: a shortcut is nearly always right, a
// caption depends on the language. The menu tells "Insert > Text" from "Convert to > Text"; alone
// it means nothing.
constexpr int kShortcutWeight = 16;
constexpr int kIconWeight = 8;
constexpr int kNameWeight = 4;
constexpr int kCaptionWeight = 2;
constexpr int kMenuWeight = 1;
// The shortcut of a file command in a menu other than the first: some programs use it for another
// command.
constexpr int kDoubtfulWeight = 1;

struct Signs
{
    const char *identifier;
    const char *caption;
    QKeySequence::StandardKey shortcut;
    QStringList icons;
    // In lower case, with one space between words. An object name is compared after its kNoise
    // words are removed.
    QStringList words;
    QStringList menus; // captions, likewise
    // Words that are clear enough only in one of these menus.
    QStringList wordsInMenus;
    // Every English name of the command contains one of these. An English name without them counts
    // more than the shortcut alone.
    QStringList stems;
};

const QVector<Signs> &allSigns()
{
    const auto list = [](const char *text) {
        return QString::fromLatin1(text).split(QLatin1Char('|'), Qt::SkipEmptyParts);
    };
    static const char *const drawing =
        "draw|drawing|insert|add|add new|create|new|object|objects|tools|lines|line|shape|shapes|"
        "sketch|geometry|elements|items|place";
    static const QVector<Signs> signs{
        {"ID_COPY",
         QT_TRANSLATE_NOOP("host", "Copy"),
         QKeySequence::Copy,
         list("edit-copy"),
         list("copy|copy selection|copy selected|copy objects|copy features"),
         list("edit|modify"),
         {},
         list("copy|duplicate|clone")},
        {"ID_DTEXT",
         QT_TRANSLATE_NOOP("host", "Text"),
         QKeySequence::UnknownKey,
         list("draw-text|insert-text|tool-text"),
         list("text|add text|draw text|insert text|create text|new text|place text|add text field|"
              "text field|add textfield|textfield|text frame|insert text frame|add text frame|"
              "text label|add text label|text box|add text box|insert text box|text object|"
              "text tool|single line text"),
         list(drawing),
         {},
         {}},
        {"ID_LINE",
         QT_TRANSLATE_NOOP("host", "Line"),
         QKeySequence::UnknownKey,
         list("draw-line|tool-line"),
         list("line|add line|draw line|insert line|create line|new line|straight line|"
              "line segment|line tool|lines|line 2 points|line by 2 points|line by two points|"
              "line two points|two point line|add straight line"),
         list(drawing),
         {},
         {}},
        {"ID_OFFSET",
         QT_TRANSLATE_NOOP("host", "Offset"),
         QKeySequence::UnknownKey,
         list("object-offset|offset"),
         list("offset|offset curve|parallel offset|2d offset"),
         list("edit|modify|draft|tools"),
         {},
         {}},
        {"ID_OPEN",
         QT_TRANSLATE_NOOP("host", "Open"),
         QKeySequence::Open,
         list("document-open"),
         list("open|open file|file open|open drawing|open document|open project"),
         list("file|project|document"),
         {},
         list("open|load")},
        {"ID_SAVE",
         QT_TRANSLATE_NOOP("host", "Save"),
         QKeySequence::Save,
         list("document-save"),
         list("save|save file|file save|save drawing|save document|save project"),
         list("file|project|document"),
         {},
         list("save|store|write")},
        {"ID_TRIM",
         QT_TRANSLATE_NOOP("host", "Trim"),
         QKeySequence::UnknownKey,
         list("trim"),
         list("trim|trimex|trim extend|trim edge|trim line|trim extend feature|trim curve|trim object"),
         list("edit|modify|draft|tools"),
         {},
         {}},
        {"ID_ZOOM_BOUNDS",
         QT_TRANSLATE_NOOP("host", "Zoom to Fit"),
         QKeySequence::UnknownKey,
         list("zoom-fit-best|zoom-fit|zoom-fit-page|page-zoom"),
         list("zoom fit|zoom to fit|fit zoom|zoom extents|zoom all|zoom to all|zoom bounds|zoom auto|"
              "auto zoom|zoom fit best|zoom content|zoom to content|fit all|view fit|fit in view|"
              "fit to view|fit view|fit to page|fit page|fit to window|fit in window|"
              "fit to screen|fit content|fit to content|fit extents|zoom to extents|"
              "zoom content to fit|zoom page|best fit|view all|zoom full|zoom full extent|"
              "zoom to full extent|full extent|global zoom|zoom global"),
         list("view|zoom|display"),
         list("fit|all|extents|best fit"),
         {}},
    };
    return signs;
}

using Words = QSet<QString>;

Words wordsOf(const QString &text)
{
    const QStringList list = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return Words(list.begin(), list.end());
}

Words wordsIn(const char *text)
{
    return wordsOf(QString::fromLatin1(text));
}

// Words in object names for the kind of object.
const Words &kinds()
{
    static const Words words = wordsIn("act action m ui std menu mnu item btn button tool tb id");
    return words;
}

// The same, and words for the place of a command.
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

// Switches for toolbars and docks have the title of what they show, not of a command.
bool isSwitchOfBar(const QAction &action)
{
    const QString name = action.objectName().toLower();
    return action.isCheckable()
        && (qobject_cast<QToolBar *>(action.parent()) || qobject_cast<QDockWidget *>(action.parent())
            || action.inherits("KToggleToolBarAction") || name.contains(QLatin1String("toolbar")));
}

// True for a menu bar of a main window inside another one, such as an editor for notes.
bool isOfAPart(const QMenuBar *bar)
{
    const QWidget *up = bar->parentWidget();
    while (up && !qobject_cast<const QMainWindow *>(up))
        up = up->parentWidget();
    return up && !up->isWindow();
}

// Returns the menu's place in a menu bar; for a submenu, that of the menu that contains it; -1 if
// there is none. The first menu of a part of the window does not count as the first.
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

// Returns the places, in menu bars, of the menus that contain an action.
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

QStringList menusOf(const QAction &action)
{
    QStringList menus;
    const QWidgetList widgets = qtbridge::widgetsOf(action);
    for (const QWidget *widget : widgets) {
        if (const auto *menu = qobject_cast<const QMenu *>(widget))
            menus.append(plainWords(plainCaption(menu->title())));
    }
    return menus;
}

// An action's texts and icon, read once for all identifiers.
struct Look
{
    explicit Look(const QAction &action)
        : shortcuts(action.shortcuts())
        , icon(action.icon().name())
        , name(action.objectName())
        , nameWords(wordsOfName(action.objectName()))
        , caption(plainCaption(action.text()))
        , captionWords(plainWords(caption))
        , menus(menusOf(action))
        , places(placesInBars(action))
        , isButtonOnly(places.isEmpty() && !qtbridge::widgetsOf(action).isEmpty())
    {
    }

    QList<QKeySequence> shortcuts;
    QString icon;
    QString name;
    QStringList nameWords; // forms of the name
    QString caption;
    QString captionWords;
    QStringList menus;
    QVector<int> places;
    bool isButtonOnly; // or in a menu that opens over something
};

// Which of the program's texts are English, and can be understood here.
struct Language
{
    bool ofCaptions = false;
    bool ofNames = false;
};

Language languageOf(const QVector<QAction *> &actions)
{
    // This many common commands must have English names.
    constexpr int kEnough = 3;
    static const Words common = wordsIn("new open save close quit exit undo redo cut copy paste print");
    Words captions;
    Words names;
    for (const QAction *action : actions) {
        captions |= wordsOf(plainWords(plainCaption(action->text()))) & common;
        names |= wordsOf(wordsOfName(action->objectName()).last()) & common;
    }
    return {captions.size() >= kEnough, names.size() >= kEnough};
}

// True for a text that names something else than one of these stems.
bool isOtherDeed(const QString &text, const QStringList &stems)
{
    constexpr int kShortestWord = 3; // letters; less is no word
    return text.size() >= kShortestWord
        && std::none_of(stems.begin(), stems.end(),
                        [&text](const QString &stem) { return text.contains(stem); });
}

// True for a guess that rests on one sign alone while another one contradicts it.
//
// A wrong guess is worse than none: what only a weak sign speaks for, or what another sign
// contradicts, is no guess.
bool isContradicted(const Signs &signs, const Look &look, const Language &language, int weight,
                    bool isInMenu)
{
    if (weight == kShortcutWeight && !signs.stems.isEmpty()) {
        return (language.ofCaptions && isOtherDeed(look.captionWords, signs.stems))
            || (language.ofNames && isOtherDeed(look.nameWords.last(), signs.stems));
    }
    if (signs.shortcut != QKeySequence::UnknownKey)
        return false;
    // One word, in a menu of other things: "Go to > Line".
    const bool isOneWord = !look.captionWords.contains(QLatin1Char(' '));
    return weight == kCaptionWeight && isOneWord && !look.menus.isEmpty() && !isInMenu;
}

WellKnownGuess judge(const Signs &signs, const Look &look, const Language &language)
{
    WellKnownGuess guess;
    guess.identifier = QLatin1String(signs.identifier);
    QStringList reasons;
    const auto weigh = [&](bool speaksForIt, int weight, const QString &kind, const QString &what) {
        if (!speaksForIt)
            return;
        guess.weight += weight;
        reasons.append(QStringLiteral("%1 \"%2\"").arg(kind, what));
    };
    if (signs.shortcut != QKeySequence::UnknownKey) {
        const QList<QKeySequence> standard = QKeySequence::keyBindings(signs.shortcut);
        const auto found =
            std::find_if(look.shortcuts.begin(), look.shortcuts.end(),
                         [&standard](const QKeySequence &keys) { return standard.contains(keys); });
        const bool isFileCommand =
            signs.shortcut == QKeySequence::Open || signs.shortcut == QKeySequence::Save;
        const bool isDoubtful = isFileCommand && !look.places.isEmpty() && !look.places.contains(0);
        if (found != look.shortcuts.end())
            weigh(true, isDoubtful ? kDoubtfulWeight : kShortcutWeight, QStringLiteral("shortcut"),
                  found->toString());
    }
    weigh(signs.icons.contains(look.icon), kIconWeight, QStringLiteral("icon"), look.icon);
    const auto menu = std::find_if(look.menus.begin(), look.menus.end(), [&signs](const QString &title) {
        return signs.menus.contains(title);
    });
    const bool isInMenu = menu != look.menus.end();
    const auto isWord = [&signs, isInMenu](const QString &words) {
        return signs.words.contains(words) || (isInMenu && signs.wordsInMenus.contains(words));
    };
    weigh(std::any_of(look.nameWords.begin(), look.nameWords.end(), isWord), kNameWeight,
          QStringLiteral("object name"), look.name);
    // On a button outside all menus, "Save" may mean anything.
    const bool isEnough =
        guess.weight > 0 || !look.isButtonOnly || signs.shortcut == QKeySequence::UnknownKey;
    weigh(isEnough && isWord(look.captionWords), kCaptionWeight, QStringLiteral("caption"),
          look.caption);
    if (isContradicted(signs, look, language, guess.weight, isInMenu))
        guess.weight = 0;
    if (guess.weight > 0 && isInMenu)
        guess.weight += kMenuWeight;
    guess.reason = reasons.join(QStringLiteral(", "));
    return guess;
}

} // namespace

QStringList WellKnownGuess::identifiers()
{
    QStringList names;
    for (const Signs &signs : allSigns())
        names.append(QLatin1String(signs.identifier));
    return names;
}

QString WellKnownGuess::captionOf(const QString &identifier)
{
    for (const Signs &signs : allSigns()) {
        if (identifier == QLatin1String(signs.identifier))
            return QCoreApplication::translate("host", signs.caption);
    }
    return {};
}

QVector<WellKnownGuess> WellKnownGuess::among(const QVector<QAction *> &actions,
                                              const QStringList &wanted)
{
    const Language language = languageOf(actions);
    QVector<WellKnownGuess> candidates;
    for (QAction *action : actions) {
        if (isSwitchOfBar(*action))
            continue;
        const Look look(*action);
        for (const Signs &signs : allSigns()) {
            if (!wanted.contains(QLatin1String(signs.identifier)))
                continue;
            WellKnownGuess guess = judge(signs, look, language);
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
