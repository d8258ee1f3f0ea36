#pragma once

#include "Platform/Rgba.h"

#include <gtkmm/widget.h>

#include <optional>

namespace tessaro {

/// What lies over the face of a column's button: the dot that tells a state, and the outline of the
/// selected one.
class FaceBadge : public Gtk::Widget {
public:
    FaceBadge();

    /// @param color  of the dot; nothing for none
    void setDot(const std::optional<Rgba>& color);
    void setOutlined(bool outlined);

protected:
    void snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) override;

private:
    void drawOutline(Gtk::Snapshot& snapshot);

    std::optional<Rgba> dot_;
    bool isOutlined_ = false;
};

} // namespace tessaro
