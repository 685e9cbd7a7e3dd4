// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>

#include <QKeyEvent>

namespace gesturewidget {

// The keys that are down, as far as the program's windows have seen. A plain value of fixed
// size: noting a key allocates nothing.
class HeldKeys
{
public:
    // Follows one press or release. Of more keys than a hand holds, the last ones are ignored.
    void note(const QKeyEvent &event)
    {
        const quint64 key = identityOf(event);
        const std::size_t place = placeOf(key);
        if (event.type() == QEvent::KeyPress && place == m_count && m_count < m_keys.size())
            m_keys[m_count++] = key;
        else if (event.type() == QEvent::KeyRelease && !event.isAutoRepeat() && place < m_count)
            m_keys[place] = m_keys[--m_count];
    }
    [[nodiscard]] bool contains(const QKeyEvent &event) const
    {
        return placeOf(identityOf(event)) < m_count;
    }
    void clear() { m_count = 0; }

private:
    // The physical key where the window system names it: with Shift, one key has two codes.
    [[nodiscard]] static quint64 identityOf(const QKeyEvent &event)
    {
        constexpr quint64 kPhysical = quint64(1) << 32;
        return event.nativeScanCode() != 0 ? kPhysical | event.nativeScanCode()
                                           : static_cast<quint32>(event.key());
    }
    [[nodiscard]] std::size_t placeOf(quint64 key) const
    {
        std::size_t place = 0;
        while (place < m_count && m_keys[place] != key)
            ++place;
        return place;
    }

    std::array<quint64, 16> m_keys = {};
    std::size_t m_count = 0;
};

} // namespace gesturewidget
