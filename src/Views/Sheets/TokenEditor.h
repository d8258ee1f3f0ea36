#pragma once

#include <gtkmm/scrolledwindow.h>
#include <gtkmm/textview.h>

#include <functional>

namespace tessaro {

/// The field for a pasted access token: several lines of a monospaced font. Tab leaves it.
class TokenEditor : public Gtk::ScrolledWindow {
public:
    /// @param name  for assistive technology
    explicit TokenEditor(const Glib::ustring& name);

    std::string text() const { return view_.get_buffer()->get_text().raw(); }
    void onChanged(std::function<void()> action);
    void focus() { view_.grab_focus(); }
    bool isFocus() const { return view_.is_focus(); }

private:
    Gtk::TextView view_;
};

} // namespace tessaro
