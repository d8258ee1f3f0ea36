#pragma once

#include <gtkmm/widget.h>

#include <string>

namespace tessaro {

/// The round face of an account's button: the first character of the name on a disc of the accent
/// or its tint, and an orange dot while the account's proxy is switched on.
class AccountFace : public Gtk::Widget {
public:
    AccountFace();

    void show(const std::string& accountName, bool proxyEnabled);
    void setSelected(bool selected);
    /// What stands on the disc.
    const std::string& initial() const { return initial_; }

protected:
    void snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) override;

private:
    std::string initial_;
    bool hasDot_ = false;
};

} // namespace tessaro
