// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/CommandCatalogue.h"
#include "host/commands/WellKnownGuess.h"
#include "host/documents/ViewGuess.h"
#include "tests/host/corpus/RebuiltProgram.h"

#include <QDir>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

using gesturewidget::ViewGuess;
using gesturewidget::WellKnownGuess;
using tests::RebuiltActions;
using tests::RebuiltWidgets;

namespace {

// Counts of right and wrong answers of a guess.
struct Score
{
    int right = 0;
    int wrong = 0;
    int missed = 0;

    // In per cent; 100 of nothing.
    [[nodiscard]] double precision() const { return percent(right, right + wrong); }
    [[nodiscard]] double recall() const { return percent(right, right + missed); }

    static double percent(int part, int whole) { return whole == 0 ? 100.0 : 100.0 * part / whole; }
};

void print(const char *name, const char *what, const Score &score)
{
    std::printf("%-18s %-9s %4d right %3d wrong %3d missed   precision %5.1f %%  recall %5.1f %%\n",
                name, what, score.right, score.wrong, score.missed, score.precision(), score.recall());
}

QStringList strings(const QJsonValue &value)
{
    QStringList list;
    const QJsonArray array = value.toArray();
    for (const auto &entry : array)
        list.append(entry.toString());
    return list;
}

bool containsAny(const QStringList &list, const QStringList &wanted)
{
    for (const QString &entry : wanted) {
        if (list.contains(entry))
            return true;
    }
    return false;
}

// True if the labels name the widget by its class, or by its parent's and its class.
bool isDrawing(const QJsonArray &widgets, const QJsonObject &widget, const QStringList &labels)
{
    const auto typeOf = [](const QJsonObject &record) {
        return record.value(QStringLiteral("type")).toString();
    };
    const QJsonObject parent = widgets.at(widget.value(QStringLiteral("in")).toInt()).toObject();
    return labels.contains(typeOf(widget))
        || labels.contains(QStringLiteral("%1 > %2").arg(typeOf(parent), typeOf(widget)));
}

} // namespace

// Compares both guesses with what a person says about real programs. "labels" of each file
// holds what is right:
//
//     commands   by identifier the object names, or menus and captions ("Edit > Copy"), that
//                are right; an identifier is missing if the program has no such command
//     drawings   the C++ classes of the widgets that show a drawing, after the class of the
//                parent and " > " where others of the class show none
//
// The programs were recorded by record-corpus.
class CorpusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void commands_data() { programs(); }
    void commands();
    void names_data() { programs(); }
    void names();
    void drawings_data() { programs(); }
    void drawings();
    void cleanupTestCase();

private:
    void programs();
    void judgeCommands(const QJsonObject &record, bool hasDocument, Score &score, QStringList &faults);
    QSet<QString> judgeDrawings(const QJsonObject &size, const QStringList &right, Score &score,
                                QStringList &faults);

    QHash<QString, QJsonObject> m_programs;
    QTemporaryDir m_themes;
    Score m_commands;
    Score m_drawings;
};

// A theme that has every icon of every program.
void CorpusTest::initTestCase()
{
    const QDir corpus(QStringLiteral(CORPUS_DIR));
    QSet<QString> icons;
    const QStringList files = corpus.entryList({QStringLiteral("*.json")});
    for (const QString &name : files) {
        QFile file(corpus.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QJsonObject record = QJsonDocument::fromJson(file.readAll()).object();
        QVERIFY2(!record.isEmpty(), qPrintable(name));
        const QJsonArray actions = record.value(QStringLiteral("actions")).toArray();
        for (const auto &action : actions)
            icons.insert(action.toObject().value(QStringLiteral("icon")).toString());
        m_programs.insert(name.chopped(5), record);
    }
    QVERIFY(m_programs.size() >= 25);
    const QDir folder(m_themes.path());
    QVERIFY(folder.mkpath(QStringLiteral("plain/16/actions")));
    QFile index(folder.filePath(QStringLiteral("plain/index.theme")));
    QVERIFY(index.open(QIODevice::WriteOnly));
    QVERIFY(index.write("[Icon Theme]\nName=plain\nDirectories=16/actions\n"
                        "[16/actions]\nSize=16\nContext=Actions\nType=Fixed\n")
            > 0);
    index.close();
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(Qt::red);
    for (const QString &icon : std::as_const(icons)) {
        if (!icon.isEmpty() && !icon.contains(QLatin1Char('/')))
            QVERIFY(image.save(folder.filePath(QStringLiteral("plain/16/actions/%1.png").arg(icon))));
    }
    QIcon::setThemeSearchPaths({m_themes.path()});
    QIcon::setThemeName(QStringLiteral("plain"));
}

void CorpusTest::programs()
{
    QTest::addColumn<QJsonObject>("record");
    QStringList names = m_programs.keys();
    names.sort();
    for (const QString &name : std::as_const(names))
        QTest::newRow(qPrintable(name)) << m_programs.value(name);
}

void CorpusTest::judgeCommands(const QJsonObject &record, bool hasDocument, Score &score,
                               QStringList &faults)
{
    const QJsonObject labels =
        record.value(QStringLiteral("labels")).toObject().value(QStringLiteral("commands")).toObject();
    const RebuiltActions rebuilt(record, hasDocument);
    const QVector<QAction *> actions = rebuilt.actions();
    QHash<QString, WellKnownGuess> guesses;
    const QVector<WellKnownGuess> found = WellKnownGuess::among(actions);
    for (const WellKnownGuess &guess : found)
        guesses.insert(guess.identifier, guess);
    QSet<QString> present; // keys of all actions
    for (const QAction *action : actions) {
        const QStringList keys = rebuilt.keysOf(*action);
        present.unite(QSet<QString>(keys.begin(), keys.end()));
    }
    const QStringList identifiers = WellKnownGuess::identifiers();
    for (const QString &identifier : identifiers) {
        const QStringList right = strings(labels.value(identifier));
        const WellKnownGuess guess = guesses.value(identifier);
        if (guess.action && containsAny(right, rebuilt.keysOf(*guess.action))) {
            ++score.right;
        } else if (guess.action) {
            ++score.wrong;
            faults.append(QStringLiteral("%1 is not %2 by %3")
                              .arg(identifier, rebuilt.keysOf(*guess.action).join(QStringLiteral(", ")),
                                   guess.reason.english()));
        } else if (containsAny(right, QStringList(present.begin(), present.end()))) {
            ++score.missed;
            std::printf("    misses %s: %s\n", qPrintable(identifier),
                        qPrintable(right.join(QStringLiteral(", "))));
        }
    }
}

void CorpusTest::commands()
{
    QFETCH(QJsonObject, record);
    Score score;
    QStringList faults;
    judgeCommands(record, true, score, faults);
    judgeCommands(record, false, score, faults);
    print(QTest::currentDataTag(), "commands", score);
    m_commands.right += score.right;
    m_commands.wrong += score.wrong;
    m_commands.missed += score.missed;
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

// No two commands have the same name, and the labelled ones are not taken for entries of lists.
void CorpusTest::names()
{
    QFETCH(QJsonObject, record);
    RebuiltActions rebuilt(record, true);
    gesturewidget::CommandCatalogue catalogue(&rebuilt.window(), {});
    QStringList offered;
    for (const auto &group : catalogue.groups()) {
        for (const CHxUICommandItem *item : group->items)
            offered.append(item->GetCaption().toQString().toCaseFolded());
    }
    QVERIFY(offered.size() > 10);
    QStringList unique = offered;
    unique.removeDuplicates();
    QCOMPARE(unique, offered);
    const QJsonObject labels =
        record.value(QStringLiteral("labels")).toObject().value(QStringLiteral("commands")).toObject();
    QStringList labelled;
    for (const auto &label : labels)
        labelled += strings(label);
    QStringList others;
    const QVector<QAction *> actions = rebuilt.actions();
    for (QAction *action : actions) {
        if (!gesturewidget::ActionItem::isCommand(action) || catalogue.itemOf(action))
            continue;
        const QStringList keys = rebuilt.keysOf(*action);
        QVERIFY2(!containsAny(labelled, keys), qPrintable(keys.join(QLatin1Char(' '))));
        others.append(keys.value(0));
    }
    std::printf("    %d commands, no commands: %s\n", int(offered.size()),
                qPrintable(others.join(QStringLiteral(", "))));
}

QSet<QString> CorpusTest::judgeDrawings(const QJsonObject &size, const QStringList &right, Score &score,
                                        QStringList &faults)
{
    const QJsonArray recorded = size.value(QStringLiteral("widgets")).toArray();
    const RebuiltWidgets rebuilt(recorded);
    QSet<QString> views;
    int index = 0;
    for (const QWidget *widget : rebuilt.widgets()) {
        const QJsonObject record = recorded.at(index++).toObject();
        const QString type = record.value(QStringLiteral("type")).toString();
        const ViewGuess guess = ViewGuess::of(widget);
        const bool isLabelled = isDrawing(recorded, record, right);
        const bool isRight = isLabelled && widget->width() >= ViewGuess::kSmallest
                          && widget->height() >= ViewGuess::kSmallest;
        if (guess.isView)
            views.insert(type);
        if (guess.isView && isLabelled) {
            ++score.right;
        } else if (guess.isView) {
            ++score.wrong;
            faults.append(QStringLiteral("%1 is no drawing: %2").arg(type, guess.reason.english()));
        } else if (isRight) {
            ++score.missed;
            std::printf("    misses %s: %s\n", qPrintable(type), qPrintable(guess.reason.english()));
        }
    }
    return views;
}

void CorpusTest::drawings()
{
    QFETCH(QJsonObject, record);
    const QStringList right =
        strings(record.value(QStringLiteral("labels")).toObject().value(QStringLiteral("drawings")));
    Score score;
    QStringList faults;
    QHash<bool, QSet<QString>> before; // by whether a document is open
    const QJsonArray sizes = record.value(QStringLiteral("sizes")).toArray();
    for (const auto &entry : sizes) {
        const QJsonObject size = entry.toObject();
        const bool hasDocument = size.value(QStringLiteral("document")).toBool();
        const QSet<QString> views = judgeDrawings(size, right, score, faults);
        if (before.contains(hasDocument) && before.value(hasDocument) != views)
            faults.append(QStringLiteral("another answer at another size of the window"));
        before.insert(hasDocument, views);
    }
    print(QTest::currentDataTag(), "drawings", score);
    m_drawings.right += score.right;
    m_drawings.wrong += score.wrong;
    m_drawings.missed += score.missed;
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void CorpusTest::cleanupTestCase()
{
    constexpr double kCommandRecall = 90;
    constexpr double kDrawingRecall = 95;
    print("all", "commands", m_commands);
    print("all", "drawings", m_drawings);
    std::fflush(stdout);
    QVERIFY(m_commands.wrong == 0 && m_commands.recall() >= kCommandRecall);
    QVERIFY(m_drawings.wrong == 0 && m_drawings.recall() >= kDrawingRecall);
}

QTEST_MAIN(CorpusTest)
#include "tst_corpus.moc"
