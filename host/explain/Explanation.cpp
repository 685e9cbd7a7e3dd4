// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/explain/Explanation.h"

#include "host/commands/CommandCatalogue.h"
#include "host/commands/WellKnownGuess.h"
#include "host/documents/ViewGuess.h"
#include "host/files/ExplanationChannel.h"
#include "host/files/TriggerText.h"
#include "host/menus/ToolsMenu.h"
#include "host/services/SystemServices.h"
#include "host/window/Captions.h"
#include "host/window/MainWindows.h"
#include "sdk/OwnCode.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QFileInfo>
#include <QJsonArray>

#include <dlfcn.h>

#include <algorithm>

namespace gesturewidget {
namespace {

// Milliseconds. Changes within this time go into one report.
constexpr int kGatherTime = 100;
// The report names at most this many widgets that are not views: the largest ones.
constexpr int kMostOthers = 5;

QString classOf(const QWidget *widget)
{
    return QString::fromLatin1(widget->metaObject()->className());
}

// True if the widget's class is one of Qt's. A widget without Q_OBJECT looks like one.
bool isOfQt(const QWidget *widget)
{
    Dl_info info = {};
    return dladdr(widget->metaObject(), &info) && info.dli_fname
        && QFileInfo(QFile::decodeName(info.dli_fname)).fileName().startsWith(QLatin1String("libQt"));
}

// Returns the widget to judge: for a viewport, its scroll area.
QWidget *judgedFor(QWidget *view)
{
    auto *area = qobject_cast<QAbstractScrollArea *>(view->parentWidget());
    return area && area->viewport() == view ? area : view;
}

Phrase describe(const QString &className, const QString &name)
{
    return Phrase::verbatim(name.isEmpty() ? className
                                           : QStringLiteral("%1 \"%2\"").arg(className, name));
}

// A fact and what speaks for it.
Phrase since(const Phrase &fact, const Phrase &reason)
{
    return Phrase(QT_TRANSLATE_NOOP("host", "%1, since %2"), {fact, reason});
}

Phrase since(const QString &fact, const Phrase &reason)
{
    return since(Phrase::verbatim(fact), reason);
}

// Returns why an action was taken for a well-known one. A guess is made once; at later starts the
// command is remembered without a reason.
Phrase guessReason(const ActionItem &item, const QString &identifier, const Phrase &known)
{
    if (!known.isEmpty())
        return known;
    const QVector<WellKnownGuess> again = WellKnownGuess::among({item.action()}, {identifier});
    return again.isEmpty() ? Phrase(QT_TRANSLATE_NOOP("host", "chosen at an earlier start"))
                           : again.first().reason;
}

} // namespace

void Explanation::Findings::add(const Phrase &what, const Phrase &text)
{
    lines.append(Phrase(QT_TRANSLATE_NOOP("host", "%1: %2"), {what, text}).toJson());
}

Explanation::Explanation(int socket, const ProgramProfile &profile, SystemServices &services)
    : m_socket(socket)
    , m_profile(profile)
    , m_services(services)
    , m_triggerButton(profile.triggerButton)
    , m_triggerModifiers(profile.triggerModifiers)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(kGatherTime);
    connect(&m_soon, &QTimer::timeout, this, &Explanation::tellNow);
    connect(&services.catalogue(), &CommandCatalogue::menusChanged, this, &Explanation::tellSoon);
    connect(&services.catalogue(), &CommandCatalogue::currentWindowChanged, this,
            &Explanation::tellSoon);
}

Explanation::~Explanation() = default;

void Explanation::addView(QWidget *view)
{
    QWidget *judged = judgedFor(view);
    const bool isKnown = std::any_of(m_views.begin(), m_views.end(),
                                     [judged](const View &known) { return known.widget == judged; });
    if (isKnown)
        return;
    Phrase reason;
    for (const QString &name : std::as_const(m_profile.viewClasses)) {
        if (reason.isEmpty() && judged->inherits(name.toLatin1().constData()))
            reason = Phrase(QT_TRANSLATE_NOOP("host", "the profile names its class %1"),
                            {Phrase::verbatim(name)});
    }
    if (reason.isEmpty())
        reason = ViewGuess::of(judged).reason;
    m_views.append({judged, classOf(judged), judged->objectName(), reason, isOfQt(judged)});
    tellSoon();
}

void Explanation::noteTrigger(Qt::MouseButton button, Qt::KeyboardModifiers modifiers,
                              const Phrase &reason)
{
    m_triggerButton = button;
    m_triggerModifiers = modifiers;
    m_triggerReason = reason;
    tellSoon();
}

void Explanation::menusSettled()
{
    m_isSettled = true;
    tellSoon();
}

void Explanation::tellSoon()
{
    if (m_isSettled && !m_soon.isActive())
        m_soon.start();
}

void Explanation::tellNow()
{
    const OwnCode ours;
    const QJsonObject now = report();
    if (now == m_told || !window())
        return;
    m_told = now;
    tell(m_socket, now);
}

QJsonObject Explanation::report()
{
    Findings findings;
    findings.profile = m_profile;
    if (const QMainWindow *current = window())
        findings.add(QT_TRANSLATE_NOOP("host", "window"),
                     describe(classOf(current), current->objectName()));
    explainViews(findings);
    explainTrigger(findings);
    explainToolsMenu(findings);
    explainCommands(findings);
    QJsonObject profile = findings.profile.toJson();
    profile.insert(QStringLiteral("why"), findings.why);
    return {{QStringLiteral("profile"), profile},
            {QStringLiteral("lines"), findings.lines},
            {QStringLiteral("views"), static_cast<int>(m_views.size())}};
}

QMainWindow *Explanation::window() const
{
    return qobject_cast<QMainWindow *>(m_services.windows().current());
}

void Explanation::explainViews(Findings &findings) const
{
    QJsonObject reasons;
    QStringList classes = m_profile.viewClasses;
    bool areAllNamed = true;
    for (const View &view : m_views) {
        findings.add(QT_TRANSLATE_NOOP("host", "view"),
                     since(describe(view.className, view.name), view.reason));
        reasons.insert(view.className, view.reason.english());
        areAllNamed = areAllNamed && !view.isQtsOwn;
        if (m_profile.viewClasses.isEmpty() && !classes.contains(view.className))
            classes.append(view.className);
    }
    if (m_views.isEmpty()) {
        findings.add(QT_TRANSLATE_NOOP("host", "view"),
                     Phrase(QT_TRANSLATE_NOOP("host", "none, perhaps before a drawing is open")));
        explainOthers(findings);
    }
    if (m_profile.viewClasses.isEmpty() && !areAllNamed) {
        // A profile that named such a class would mean other widgets of it as well.
        classes.clear();
        const Phrase note(
            QT_TRANSLATE_NOOP("host", "left to be guessed, a class of Qt's own says too little"));
        findings.add(QT_TRANSLATE_NOOP("host", "view classes"), note);
        reasons.insert(QStringLiteral("viewClasses"), note.english());
    }
    classes.sort();
    findings.profile.viewClasses = classes;
    findings.why.insert(QStringLiteral("views"), reasons);
}

void Explanation::explainOthers(Findings &findings) const
{
    QVector<const QWidget *> others;
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets) {
        if (window() && window()->isAncestorOf(widget) && widget->isVisible()
            && widget->width() >= ViewGuess::kSmallest && widget->height() >= ViewGuess::kSmallest)
            others.append(widget);
    }
    const auto area = [](const QWidget *widget) { return widget->width() * widget->height(); };
    std::sort(others.begin(), others.end(), [&area](const QWidget *a, const QWidget *b) {
        return area(a) != area(b) ? area(a) > area(b) : classOf(a) < classOf(b);
    });
    for (int i = 0; i < others.size() && i < kMostOthers; ++i) {
        const QWidget *other = others.at(i);
        findings.add(QT_TRANSLATE_NOOP("host", "no view"),
                     since(describe(classOf(other), other->objectName()), ViewGuess::of(other).reason));
    }
}

void Explanation::explainTrigger(Findings &findings) const
{
    findings.profile.triggerButton = m_triggerButton;
    findings.profile.triggerModifiers = m_triggerModifiers;
    if (m_triggerReason.isEmpty())
        return;
    findings.add(QT_TRANSLATE_NOOP("host", "trigger"),
                 since(triggerText(m_triggerButton, m_triggerModifiers), m_triggerReason));
    findings.why.insert(QStringLiteral("trigger"), m_triggerReason.english());
}

void Explanation::explainToolsMenu(Findings &findings) const
{
    const ToolsMenu &tools = m_services.toolsMenu();
    const QMenu *menu = tools.find();
    QString name;
    Phrase reason;
    if (!menu || menu == tools.made()) {
        reason = Phrase(
            QT_TRANSLATE_NOOP("host", "one is made, since no menu of the menu bar is called Tools"));
    } else {
        const QString caption = plainCaption(menu->title());
        name = menu->objectName().isEmpty() ? caption : menu->objectName();
        const bool isNamed =
            !m_profile.toolsMenu.isEmpty()
            && (menu->objectName() == m_profile.toolsMenu || caption == m_profile.toolsMenu);
        if (isNamed)
            reason = Phrase(QT_TRANSLATE_NOOP("host", "the profile names it"));
        else if (menuRole(menu->objectName()) == QLatin1String("tools"))
            reason = Phrase(QT_TRANSLATE_NOOP("host", "its object name says so"));
        else
            reason = Phrase(QT_TRANSLATE_NOOP("host", "its caption \"%1\" says so"),
                            {Phrase::verbatim(caption)});
    }
    findings.add(QT_TRANSLATE_NOOP("host", "Tools menu"), name.isEmpty() ? reason : since(name, reason));
    findings.why.insert(QStringLiteral("toolsMenu"), reason.english());
    findings.profile.toolsMenu = name;
}

void Explanation::explainCommands(Findings &findings)
{
    CommandCatalogue &catalogue = m_services.catalogue();
    catalogue.update();
    QStringList identifiers = WellKnownGuess::identifiers() + m_profile.wellKnownCommands.keys();
    identifiers.removeDuplicates();
    identifiers.sort();
    QJsonObject reasons;
    for (const QString &identifier : std::as_const(identifiers)) {
        const QStringList named = m_profile.wellKnownCommands.value(identifier);
        const ActionItem *item = catalogue.findUsable(identifier);
        const bool isThere = item && item->action();
        const QString key = isThere ? item->key() : QString();
        Phrase reason;
        if (!named.isEmpty() && isThere)
            reason = Phrase(QT_TRANSLATE_NOOP("host", "the profile names it"));
        else if (!named.isEmpty())
            reason = Phrase(
                QT_TRANSLATE_NOOP("host", "the profile names %1, which is not there at the moment"),
                {Phrase::verbatim(named.join(QLatin1String(", ")))});
        else if (isThere && key == identifier)
            reason = Phrase(QT_TRANSLATE_NOOP("host", "the action itself is called so"));
        else if (isThere)
            reason = guessReason(*item, identifier, catalogue.reasonFor(identifier));
        else
            reason = Phrase(QT_TRANSLATE_NOOP(
                "host", "no action has a matching shortcut, icon, object name or caption"));
        if (named.isEmpty() && isThere && key != identifier)
            findings.profile.wellKnownCommands.insert(identifier, {key});
        const Phrase none(QT_TRANSLATE_NOOP("host", "none"));
        findings.add(Phrase::verbatim(identifier),
                     since(isThere ? Phrase::verbatim(key) : none, reason));
        reasons.insert(identifier, reason.english());
    }
    findings.why.insert(QStringLiteral("wellKnownCommands"), reasons);
}

} // namespace gesturewidget
