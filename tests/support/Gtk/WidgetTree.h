#pragma once

#include <gtkmm/widget.h>

#include <vector>

namespace tessaro::test {

/// Every widget of that type below `root`, in the order of the tree.
template <typename T>
std::vector<T*> descendants(Gtk::Widget& root) {
    std::vector<T*> found;
    for (auto* child = root.get_first_child(); child; child = child->get_next_sibling()) {
        if (auto* match = dynamic_cast<T*>(child))
            found.push_back(match);
        const auto below = descendants<T>(*child);
        found.insert(found.end(), below.begin(), below.end());
    }
    return found;
}

} // namespace tessaro::test
