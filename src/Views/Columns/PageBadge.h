#pragma once

#include <gtkmm/widget.h>

namespace tessaro {

/// What lies over a Page's picture: the outline of the selected Page and the dot that tells whether
/// the Page is connected.
class PageBadge : public Gtk::Widget {
public:
    PageBadge();

    void setConnected(bool connected);
    void setSelected(bool selected);
    bool isSelected() const { return selected_; }

protected:
    void snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) override;

private:
    void drawOutline(Gtk::Snapshot& snapshot);

    bool connected_ = true;
    bool selected_ = false;
};

} // namespace tessaro
