#include "host/WellKnownGuess.h"

#include "host/Captions.h"

#include <QAction>
#include <QCoreApplication>
#include <QHash>
#include <QKeySequence>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace host {
namespace {

// Each sort of evidence outweighs all those after it together: a shortcut hardly ever lies,
// a caption depends on the language.
constexpr int kShortcutWeight = 8;
constexpr int kIconWeight = 4;
constexpr int kNameWeight = 2;
constexpr int kCaptionWeight = 1;

struct Signs
{
    const char *identifier;
    const char *caption;
    QKeySequence::StandardKey shortcut;
    QStringList icons;
    // In lower case, words separated by one space. An object name is compared with them
    // once its words that name no deed are gone, see kNoise.
    QStringList words;
};

const QVector<Signs> &allSigns()
{
    const auto list = [](const char *text) {
        return QString::fromLatin1(text).split(QLatin1Char('|'), Qt::SkipEmptyParts);
    };
    static const QVector<Signs> signs{
        {"ID_COPY", QT_TRANSLATE_NOOP("host", "Copy"), QKeySequence::Copy, list("edit-copy"),
         list("copy")},
        {"ID_DTEXT", QT_TRANSLATE_NOOP("host", "Text"), QKeySequence::UnknownKey,
         list("draw-text|insert-text|tool-text"),
         list("text|add text|draw text|insert text|add text field|text field|text tool|single line "
              "text")},
        {"ID_LINE", QT_TRANSLATE_NOOP("host", "Line"), QKeySequence::UnknownKey,
         list("draw-line|tool-line"),
         list("line|add line|draw line|insert line|straight line|line segment|line tool|lines|"
              "line 2 points|add straight line")},
        {"ID_OFFSET", QT_TRANSLATE_NOOP("host", "Offset"), QKeySequence::UnknownKey,
         list("object-offset|offset"), list("offset|offset curve|parallel offset|2d offset")},
        {"ID_OPEN", QT_TRANSLATE_NOOP("host", "Open"), QKeySequence::Open, list("document-open"),
         list("open|open file|file open|open drawing|open document")},
        {"ID_SAVE", QT_TRANSLATE_NOOP("host", "Save"), QKeySequence::Save, list("document-save"),
         list("save|save file|file save|save drawing|save document")},
        {"ID_TRIM", QT_TRANSLATE_NOOP("host", "Trim"), QKeySequence::UnknownKey, list("trim"),
         list("trim|trimex|trim extend|trim edge|trim line")},
        {"ID_ZOOM_BOUNDS", QT_TRANSLATE_NOOP("host", "Zoom to Fit"), QKeySequence::UnknownKey,
         list("zoom-fit-best|zoom-fit|zoom-fit-page|page-zoom"),
         list("zoom fit|zoom to fit|fit zoom|zoom extents|zoom all|zoom bounds|zoom auto|auto zoom|"
              "zoom fit best|zoom content|fit all|fit|fit in view|fit to page|fit page|fit to window|"
              "fit content|fit extents|zoom to extents|zoom content to fit|zoom page|best fit")},
    };
    return signs;
}

// Words of object names that say what sort of thing it is or where it is, not what it does.
const QSet<QString> &noise()
{
    static const QSet<QString> words = [] {
        const QStringList list =
            QStringLiteral(
                "act action m ui file edit draw modify view std menu mnu item btn button tool tb id")
                .split(QLatin1Char(' '));
        return QSet<QString>(list.begin(), list.end());
    }();
    return words;
}

// "&Zoom to Fit..." and "zoom_to-fit" become "zoom to fit".
QString plainWords(QString text)
{
    static const QRegularExpression separators(QStringLiteral("[^\\w]+|_+"),
                                               QRegularExpression::UseUnicodePropertiesOption);
    return text.replace(separators, QStringLiteral(" ")).simplified().toLower();
}

// The words of "m_actionZoomToFit" without noise: "zoom to fit".
QString wordsOfName(QString name)
{
    static const QRegularExpression humps(QStringLiteral("(?<=[a-z0-9])(?=[A-Z])"));
    const QString plain = plainWords(name.replace(humps, QStringLiteral(" ")));
    QStringList words;
    const QStringList all = plain.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : all) {
        if (!noise().contains(word))
            words.append(word);
    }
    return words.join(QLatin1Char(' '));
}

// What an action shows and is called, read once for all identifiers.
struct Look
{
    explicit Look(const QAction &action)
        : shortcuts(action.shortcuts())
        , icon(action.icon().name())
        , name(action.objectName())
        , nameWords(wordsOfName(action.objectName()))
        , caption(plainCaption(action.text()))
        , captionWords(plainWords(caption))
    {
    }

    QList<QKeySequence> shortcuts;
    QString icon;
    QString name;
    QString nameWords;
    QString caption;
    QString captionWords;
};

WellKnownGuess judge(const Signs &signs, const Look &look)
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
        if (found != look.shortcuts.end())
            weigh(true, kShortcutWeight, QStringLiteral("shortcut"), found->toString());
    }
    weigh(signs.icons.contains(look.icon), kIconWeight, QStringLiteral("icon"), look.icon);
    weigh(signs.words.contains(look.nameWords), kNameWeight, QStringLiteral("object name"), look.name);
    weigh(signs.words.contains(look.captionWords), kCaptionWeight, QStringLiteral("caption"),
          look.caption);
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
    QVector<WellKnownGuess> candidates;
    for (QAction *action : actions) {
        const Look look(*action);
        for (const Signs &signs : allSigns()) {
            if (!wanted.contains(QLatin1String(signs.identifier)))
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

} // namespace host
