#include "Views/Inbox/LoadingVeil.h"

#include "Platform/GHandle.h"

#include <gtk/gtk.h>

namespace tessaro {

namespace {

constexpr double blurRadius = 12.0; ///< In points.
/// The engine waits for this thread while a page begins to load, so that drawing slows it down.
/// What is done within this time seems to be done at once.
constexpr Clock::Delay unseenTime(100);
constexpr float reduction = 4; ///< Nobody sees on what is out of focus how coarse it is.

/// What the widget shows, out of focus and reduced in size, since blurring every pixel takes long.
/// One picture for all frames of the spinner: blurring each of them costs too much without a
/// graphics card, and blurs no further than to the edges of what changed.
GObjectPtr<GdkTexture> pictureOutOfFocus(Gtk::Widget& widget) {
    GskRenderer* renderer = gtk_native_get_renderer(gtk_widget_get_native(widget.gobj()));
    const auto paintable = GObjectPtr<GdkPaintable>::adopt(gtk_widget_paintable_new(widget.gobj()));
    const auto width = static_cast<float>(widget.get_width()) / reduction;
    const auto height = static_cast<float>(widget.get_height()) / reduction;
    GtkSnapshot* snapshot = gtk_snapshot_new();
    gtk_snapshot_push_blur(snapshot, blurRadius / reduction);
    gdk_paintable_snapshot(paintable.get(), snapshot, width, height);
    gtk_snapshot_pop(snapshot);
    const std::unique_ptr<GskRenderNode, Releaser<gsk_render_node_unref>> node(
        gtk_snapshot_free_to_node(snapshot));
    if (!node)
        return {};
    const graphene_rect_t whole = GRAPHENE_RECT_INIT(0, 0, width, height);
    return GObjectPtr<GdkTexture>::adopt(gsk_renderer_render_texture(renderer, node.get(), &whole));
}

} // namespace

LoadingVeil::LoadingVeil(Clock& clock) : clock_(clock) {
    backdrop_.add_css_class("inbox-backdrop");
    backdrop_.set_keep_aspect_ratio(false);
    set_child(backdrop_);

    column_.add_css_class("inbox-loading");
    spinner_.set_halign(Gtk::Align::CENTER);
    spinner_.set_valign(Gtk::Align::END);
    spinner_.set_vexpand();
    text_.set_valign(Gtk::Align::START);
    text_.set_vexpand();
    text_.set_css_classes({"points-13", "secondary-text"});
    column_.append(spinner_);
    column_.append(text_);
    add_overlay(column_);
    lift();
}

void LoadingVeil::cover(Gtk::Widget* page, bool atOnce) {
    if (get_visible())
        return;
    set_visible();
    if (!page || !page->get_mapped()) {
        appear();
        return;
    }
    if (atOnce)
        return appearAbove(*page);
    set_opacity(0);
    delay_ = clock_.timer(unseenTime, [this, page] { appearAbove(*page); });
}

void LoadingVeil::appearAbove(Gtk::Widget& page) {
    if (page.get_mapped()) // The window may have been closed meanwhile.
        gtk_picture_set_paintable(backdrop_.gobj(), GDK_PAINTABLE(pictureOutOfFocus(page).get()));
    appear();
}

void LoadingVeil::appear() {
    spinner_.set_spinning();
    set_opacity(1);
}

void LoadingVeil::lift() {
    delay_.disconnect();
    set_visible(false);
    spinner_.set_spinning(false);
    backdrop_.set_paintable({});
}

} // namespace tessaro
