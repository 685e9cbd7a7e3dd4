// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/e2e/xinput/Commands.h"

#include "tests/e2e/xinput/XDesktop.h"

#include <algorithm>
#include <optional>

namespace {

constexpr int kSteadyMs = 40;
// A person holds a button for a moment.
constexpr int kClickMs = 30;
// A person's pointer reports about 125 times a second.
constexpr int kMsPerStep = 8;

const QString kOk = QStringLiteral("ok");

QString refuse(const QString &reason)
{
    return QStringLiteral("error ") + reason;
}

QStringList wordsOf(const QString &line)
{
    QStringList words;
    QString word;
    bool quoted = false;
    bool started = false;
    for (const QChar character : line) {
        if (character == QLatin1Char('"')) {
            quoted = !quoted;
            started = true;
        } else if (character.isSpace() && !quoted) {
            if (started)
                words.append(word);
            word.clear();
            started = false;
        } else {
            word.append(character);
            started = true;
        }
    }
    if (started)
        words.append(word);
    return words;
}

// The words from `first` on as numbers; nullopt if one of them is not a number.
std::optional<QList<int>> numbers(const QStringList &words, int first)
{
    QList<int> result;
    for (int i = first; i < words.size(); ++i) {
        bool isNumber = false;
        result.append(words.at(i).toInt(&isNumber));
        if (!isNumber)
            return {};
    }
    return result;
}

QString describe(const XDesktop::Window &window)
{
    return QStringLiteral("0x%1 %2 %3 %4 %5")
        .arg(window.id, 0, 16)
        .arg(window.geometry.x())
        .arg(window.geometry.y())
        .arg(window.geometry.width())
        .arg(window.geometry.height());
}

// Returns the number of different pixels per million. The pictures have one size.
qint64 difference(const QImage &a, const QImage &b)
{
    qint64 count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
    }
    return count * 1000000 / std::max<qint64>(1, qint64(a.width()) * a.height());
}

std::optional<XDesktop::Window> titled(const XDesktop &desktop, const QString &title)
{
    const QList<XDesktop::Window> windows = desktop.windows();
    for (auto it = windows.rbegin(); it != windows.rend(); ++it) {
        if (it->title.contains(title))
            return *it;
    }
    return {};
}

} // namespace

Commands::Commands(XDesktop &desktop)
    : m_desktop(desktop)
{
}

QString Commands::run(const QString &line)
{
    QStringList words = wordsOf(line);
    if (words.isEmpty())
        return refuse(QStringLiteral("empty command"));
    const QString name = words.takeFirst();
    for (const auto group : {&Commands::input, &Commands::windows, &Commands::picture}) {
        QString answer = (this->*group)(name, words);
        if (!answer.isEmpty())
            return answer;
    }
    return refuse(QStringLiteral("not understood: ") + line);
}

QString Commands::input(const QString &name, const QStringList &words)
{
    if (name == QLatin1String("key") && words.size() == 1)
        return m_desktop.tapKey(words.first()) ? kOk : refuse(QStringLiteral("no such key"));
    if (name == QLatin1String("type") && words.size() == 1)
        return m_desktop.typeText(words.first()) ? kOk : refuse(QStringLiteral("no key for it"));
    const bool isHold = name == QLatin1String("hold");
    if ((isHold || name == QLatin1String("let-go")) && words.size() == 1)
        return m_desktop.setModifier(words.first(), isHold) ? kOk
                                                            : refuse(QStringLiteral("no such key"));
    if (name == QLatin1String("pointer") && words.isEmpty()) {
        const QPoint at = m_desktop.pointer();
        return QStringLiteral("ok %1 %2").arg(at.x()).arg(at.y());
    }
    if (name == QLatin1String("grabs") && words.isEmpty()) {
        const auto state = [](bool taken) {
            return taken ? QStringLiteral("taken") : QStringLiteral("free");
        };
        const QString pointer = state(m_desktop.isPointerTaken());
        return QStringLiteral("ok pointer %1 keyboard %2")
            .arg(pointer, state(m_desktop.isKeyboardTaken()));
    }

    const auto given = numbers(words, 0);
    if (!given)
        return {};
    if (name == QLatin1String("move") && given->size() == 2) {
        m_desktop.movePointer({given->at(0), given->at(1)});
        return kOk;
    }
    if (given->size() == 1 && given->first() >= 1 && given->first() <= 9) {
        const bool click = name == QLatin1String("click");
        const bool press = name == QLatin1String("press");
        const bool release = name == QLatin1String("release");
        if (click || press)
            m_desktop.setButton(given->first(), true);
        if (click)
            m_desktop.glide({}, kClickMs, 1);
        if (click || release)
            m_desktop.setButton(given->first(), false);
        return click || press || release ? kOk : QString();
    }
    if (name == QLatin1String("drag") && (given->size() == 3 || given->size() == 4)) {
        const int milliseconds = given->at(2);
        const int steps = given->size() == 4 ? given->at(3) : std::max(8, milliseconds / kMsPerStep);
        if (milliseconds < 0 || steps < 1)
            return refuse(QStringLiteral("a drag takes time and steps"));
        m_desktop.glide({given->at(0), given->at(1)}, milliseconds, steps);
        return kOk;
    }
    return {};
}

QString Commands::windows(const QString &name, const QStringList &words)
{
    if (name == QLatin1String("windows") && words.isEmpty()) {
        QStringList found;
        const QList<XDesktop::Window> windows = m_desktop.windows();
        for (const XDesktop::Window &window : windows)
            found.append(describe(window) + QLatin1Char(' ') + window.title);
        return QStringLiteral("ok ") + found.join(QLatin1Char('\t'));
    }
    const bool close = name == QLatin1String("close");
    const bool activate = name == QLatin1String("activate");
    const bool minimize = name == QLatin1String("minimize");
    const bool focusOn = name == QLatin1String("focus-on");
    if ((close || activate || minimize || focusOn) && words.size() == 1) {
        const auto window = titled(m_desktop, words.first());
        if (!window)
            return refuse(QStringLiteral("no such window"));
        if (close)
            m_desktop.closeWindow(window->id);
        else if (activate)
            m_desktop.activateWindow(window->id);
        else if (minimize)
            m_desktop.minimizeWindow(window->id);
        else
            m_desktop.focusOn(window->id);
        return kOk;
    }
    if (name == QLatin1String("place") && words.size() == 5) {
        const auto window = titled(m_desktop, words.first());
        const auto given = numbers(words, 1);
        if (!window || !given)
            return refuse(QStringLiteral("no such window or place"));
        m_desktop.placeWindow(window->id, QRect(given->at(0), given->at(1), given->at(2), given->at(3)));
        return kOk;
    }
    if (name == QLatin1String("focus") && words.isEmpty())
        return QStringLiteral("ok active 0x%1 focus 0x%2")
            .arg(m_desktop.activeWindow(), 0, 16)
            .arg(m_desktop.focusWindow(), 0, 16);
    if (name == QLatin1String("watch") && words.isEmpty()) {
        m_desktop.watch();
        return kOk;
    }
    if (name == QLatin1String("activations") && words.isEmpty())
        return QStringLiteral("ok %1").arg(m_desktop.activations());

    const bool absent = name.startsWith(QLatin1String("wait-no-"));
    const QString what = name.mid(absent ? 8 : 5);
    if (!name.startsWith(QLatin1String("wait-")))
        return {};
    std::optional<XDesktop::Window> window;
    std::function<bool()> look;
    int milliseconds = 0;
    if (what == QLatin1String("window") && words.size() == 2) {
        look = [&] { return (window = titled(m_desktop, words.first())).has_value() != absent; };
        milliseconds = words.at(1).toInt();
    } else if (what == QLatin1String("focus") && words.size() == 2) {
        look = [&] {
            window = titled(m_desktop, words.first());
            return window && m_desktop.hasFocus(window->id);
        };
        milliseconds = words.at(1).toInt();
    } else if (what == QLatin1String("pointer-in") && words.size() == 2) {
        look = [&] {
            window = titled(m_desktop, words.first());
            return window && m_desktop.isUnderPointer(window->id);
        };
        milliseconds = words.at(1).toInt();
    } else if (absent && what == QLatin1String("popup") && words.size() == 1) {
        look = [&] { return !m_desktop.hasPopup(); };
        milliseconds = words.first().toInt();
    } else if (const auto given = numbers(words, 0);
               what == QLatin1String("size") && given && given->size() == 3) {
        const QSize size(given->at(0), given->at(1));
        look = [&, size] { return (window = m_desktop.windowOfSize(size)).has_value() != absent; };
        milliseconds = given->at(2);
    } else {
        return {};
    }
    if (!m_desktop.waitFor(look, milliseconds))
        return refuse(QStringLiteral("timeout"));
    return window ? QStringLiteral("ok ") + describe(*window) : kOk;
}

QString Commands::picture(const QString &name, const QStringList &words)
{
    if (name == QLatin1String("screenshot") && (words.size() == 1 || words.size() == 5)) {
        const auto given = numbers(words, 1);
        if (!given)
            return {};
        const QRect area = given->isEmpty()
                             ? m_desktop.screen()
                             : QRect(given->at(0), given->at(1), given->at(2), given->at(3));
        const QImage image = m_desktop.look(area);
        if (image.isNull())
            return refuse(QStringLiteral("that is not on the screen"));
        return image.save(words.first(), "PNG") ? kOk : refuse(QStringLiteral("cannot write the file"));
    }

    if (name == QLatin1String("keep") && words.size() == 1) {
        m_kept.insert(words.first(), m_seen);
        return kOk;
    }
    if (name == QLatin1String("difference") && words.size() == 1) {
        const QImage before = m_kept.value(words.first());
        const QImage now = m_desktop.look(m_area);
        if (before.isNull() || before.size() != now.size())
            return refuse(QStringLiteral("nothing like it was kept"));
        return QStringLiteral("ok %1").arg(difference(before, now));
    }
    const auto given = numbers(words, 0);
    if (!given)
        return {};
    if (name == QLatin1String("remember") && given->size() == 4) {
        m_area = QRect(given->at(0), given->at(1), given->at(2), given->at(3));
        m_seen = m_desktop.look(m_area);
        return m_seen.isNull() ? refuse(QStringLiteral("that is not on the screen")) : kOk;
    }
    if (name == QLatin1String("wait-change") && given->size() == 1 && !m_seen.isNull()) {
        const auto changed = [this] { return m_desktop.look(m_area) != m_seen; };
        return m_desktop.waitFor(changed, given->first()) ? kOk : refuse(QStringLiteral("timeout"));
    }
    if (name == QLatin1String("wait-steady") && given->size() == 1 && !m_seen.isNull()) {
        QImage last;
        int times = 0;
        const auto steady = [&] {
            const QImage current = m_desktop.look(m_area);
            times = current == last ? times + 1 : 0;
            last = current;
            return times * 10 >= kSteadyMs; // waitFor() asks every 10 ms
        };
        if (!m_desktop.waitFor(steady, given->first()))
            return refuse(QStringLiteral("timeout"));
        m_seen = last;
        return kOk;
    }
    return {};
}
