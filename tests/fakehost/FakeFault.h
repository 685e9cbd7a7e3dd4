// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QPoint>
#include <QPointer>
#include <QString>

#include <algorithm>
#include <functional>
#include <limits>
#include <stdexcept>
#include <type_traits>
#include <utility>
#include <vector>

namespace tests {

// The ways in which a host can get a call wrong.
enum class Misdeed {
    None,
    Throws, // std::runtime_error
    GivesNothing, // null, empty, zero or the other truth
    GivesTooLittle, // the least number there is, a text of blanks
    GivesTooMuch, // the greatest number, a text of 100,000 characters
    Acts, // something else happens inside the call: events, calls back into the module, an object dies
};

// Makes one call into the fake host go wrong, whichever object it goes to. In force from construction
// to destruction. Several count the same calls, each for itself.
//
//     bool reached = true;
//     for (int call = 0; reached; ++call) {
//         const FakeFault fault(call);
//         useTheHost();
//         reached = fault.wasReached();
//     }
class FakeFault
{
public:
    Q_DISABLE_COPY_MOVE(FakeFault)

    // `call` counts from 0 the calls that follow.
    explicit FakeFault(int call, Misdeed misdeed = Misdeed::Throws)
        : m_callsLeft(call)
        , m_misdeed(misdeed)
    {
        s_armed.push_back(this);
    }
    FakeFault(int call, std::function<void()> act)
        : FakeFault(call, Misdeed::Acts)
    {
        m_act = std::move(act);
    }
    ~FakeFault() { s_armed.erase(std::remove(s_armed.begin(), s_armed.end(), this), s_armed.end()); }

    // True if enough calls were made and one went wrong.
    [[nodiscard]] bool wasReached() const { return m_wasReached; }

    // Every operation of the fake host begins with this. Returns what is wrong with its value.
    static Misdeed pass()
    {
        Misdeed misdeed = Misdeed::None;
        for (std::size_t place = 0; place < s_armed.size(); ++place) { // what acts may call the host
            FakeFault &fault = *s_armed[place];
            if (fault.m_wasReached || fault.m_callsLeft-- > 0)
                continue;
            fault.m_wasReached = true;
            misdeed = fault.m_misdeed;
            if (misdeed == Misdeed::Throws)
                throw std::runtime_error("the fake host was told to throw");
            if (fault.m_act)
                fault.m_act();
        }
        return misdeed;
    }

private:
    int m_callsLeft;
    const Misdeed m_misdeed;
    std::function<void()> m_act;
    bool m_wasReached = false;
    static inline std::vector<FakeFault *> s_armed;
};

// From one call that goes wrong to the next, in tests that let each go wrong. Where they take long or
// run a second time, under sanitizers and on Qt 6, it is 11, and each way of going wrong begins at
// another call. FAULT_STRIDE sets it.
inline int faultStride()
{
    const int chosen = qEnvironmentVariableIntValue("FAULT_STRIDE");
    int usual = QT_VERSION_MAJOR == 5 ? 1 : 11;
#ifdef __has_feature
#    if __has_feature(address_sanitizer)
    usual = 11;
#    endif
#endif
    return chosen > 0 ? chosen : usual;
}

// The value that a call gives in place of `value`.
inline bool altered(Misdeed misdeed, bool value)
{
    return misdeed == Misdeed::None || misdeed == Misdeed::Acts ? value : !value;
}

template <class Number, std::enable_if_t<std::is_integral_v<Number>, int> = 0>
Number altered(Misdeed misdeed, Number value)
{
    switch (misdeed) {
    case Misdeed::GivesNothing:
        return 0;
    case Misdeed::GivesTooLittle:
        return std::numeric_limits<Number>::min();
    case Misdeed::GivesTooMuch:
        return std::numeric_limits<Number>::max();
    default:
        return value;
    }
}

template <class Object> Object *altered(Misdeed misdeed, Object *value)
{
    // A wrong address is no value that anybody could check.
    return misdeed == Misdeed::None || misdeed == Misdeed::Acts ? value : nullptr;
}

inline QString altered(Misdeed misdeed, const QString &value)
{
    switch (misdeed) {
    case Misdeed::GivesNothing:
        return {};
    case Misdeed::GivesTooLittle:
        return QStringLiteral(" \t") + QChar(QChar::Null) + QLatin1Char('\n');
    case Misdeed::GivesTooMuch: // with half a character at its end
        return QString(100'000, QLatin1Char('&')) + QChar(0xd800);
    default:
        return value;
    }
}

inline QIcon altered(Misdeed misdeed, const QIcon &value)
{
    return misdeed == Misdeed::None || misdeed == Misdeed::Acts ? value : QIcon();
}

inline QPoint altered(Misdeed misdeed, const QPoint &value)
{
    return {altered(misdeed, value.x()), altered(misdeed, value.y())};
}

// The same as an expression, for operations of one line. What acts may change the member, so it is
// read afterwards.
template <class Value> auto passed(const Value &value)
{
    const Misdeed misdeed = FakeFault::pass();
    return altered(misdeed, value);
}

template <class Object> Object *passed(const QPointer<Object> &value)
{
    const Misdeed misdeed = FakeFault::pass();
    return altered(misdeed, value.data());
}

} // namespace tests
