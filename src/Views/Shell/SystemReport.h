#pragma once

#include "Engine/Engine.h"

#include "Platform/Task.h"

#include <gtkmm/widget.h>

#include <string>

namespace tessaro {

/// One line for the log from which the support staff sees what the program runs on: its version,
/// engine and toolkit with theirs, the kind of session, how windows are drawn, whether web pages
/// are locked into their sandbox, and what media they can play. Holds nothing of the person's. UI
/// thread only.
/// @param engine  null when there is none
/// @param widget  is on screen at the time of the call
Task<std::string> systemReport(const Engine* engine, const Gtk::Widget* widget);

} // namespace tessaro
