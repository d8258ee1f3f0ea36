#pragma once

#include "Engine/EngineLoader.h"

#include "Views/Sheets/Dialog.h"

#include <gtkmm/headerbar.h>

#include <memory>

namespace tessaro {

/// A small window that shows information and asks nothing. The window behind it goes on working.
class InfoWindow : public Dialog {
public:
    explicit InfoWindow(const Glib::ustring& title);

    /// Shows the program's name, version, engine, licence and data folder.
    static std::unique_ptr<InfoWindow> about(EngineLoader& engine);
    /// Lists the commands and their keys.
    static std::unique_ptr<InfoWindow> shortcuts();

private:
    Gtk::HeaderBar header_;
    ScopedConnection engineLoaded_;
};

} // namespace tessaro
