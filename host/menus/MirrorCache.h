// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace gesturewidget {

// Objects that each stand for an object of the program, by its address. `Item` has a member
// source() that returns null once the program's object is gone.
//
// Such an item is first retired and destroyed later, because somebody who walks the menus may
// still use it.
template <class Item, class Source> class MirrorCache
{
public:
    // Returns the item for `source`; `make` creates it at first.
    template <class Make> Item *of(Source *source, Make make)
    {
        std::unique_ptr<Item> &item = m_items[source];
        if (item && item->source() != source) // another object had this address before
            m_retired.push_back(std::move(item));
        if (!item)
            item = make();
        return item.get();
    }

    void retireGone()
    {
        for (auto it = m_items.begin(); it != m_items.end();) {
            if (it->second->source()) {
                ++it;
                continue;
            }
            m_retired.push_back(std::move(it->second));
            it = m_items.erase(it);
        }
    }
    void destroyRetired() { m_retired.clear(); }
    [[nodiscard]] std::size_t size() const { return m_items.size() + m_retired.size(); }

private:
    std::unordered_map<const Source *, std::unique_ptr<Item>> m_items;
    std::vector<std::unique_ptr<Item>> m_retired;
};

} // namespace gesturewidget
