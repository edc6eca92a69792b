// What has been drawn on a page, by its kind.
#pragma once
#include <vector>

#include "platform/page.h"

template <class Item>
std::vector<Item> Drawn(const Page& page) {
    std::vector<Item> items;
    for (const PageItem& item : page.items)
        if (const Item* const found = std::get_if<Item>(&item)) items.push_back(*found);
    return items;
}

inline std::vector<PageText> TextsThatSay(const Page& page, const std::string& text) {
    std::vector<PageText> found;
    for (const PageText& each : Drawn<PageText>(page))
        if (each.text == text) found.push_back(each);
    return found;
}

inline bool Says(const Page& page, const std::string& text) {
    return !TextsThatSay(page, text).empty();
}
