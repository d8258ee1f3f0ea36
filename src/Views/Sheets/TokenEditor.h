#pragma once

#include <gtkmm/scrolledwindow.h>
#include <gtkmm/textview.h>

#include <functional>

namespace tessaro {

/// The field for a pasted access token: several lines of a monospaced font. Tab leaves it.
class TokenEditor : public Gtk::ScrolledWindow {
public:
    /// @param name      for assistive technology
    /// @param onReturn  asked when Return is pressed; true when it was taken as "accept", else the
    ///                  field gets a line break
    TokenEditor(const Glib::ustring& name, std::function<bool()> onReturn);

    std::string text() const { return view_.get_buffer()->get_text().raw(); }
    void onChanged(std::function<void()> action);
    void focus() { view_.grab_focus(); }

private:
    Gtk::TextView view_;
};

} // namespace tessaro
