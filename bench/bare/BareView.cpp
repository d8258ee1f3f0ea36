// The least that an inbox can cost: a view of the engine in a window. It loads each address that it
// reads from its standard input.

#include <gio/gunixinputstream.h>
#include <webkit/webkit.h>

namespace {

void loadNext(GObject* lines, GAsyncResult* result, gpointer view) {
    char* address =
        g_data_input_stream_read_line_finish(G_DATA_INPUT_STREAM(lines), result, nullptr, nullptr);
    if (!address)
        return;
    webkit_web_view_load_uri(WEBKIT_WEB_VIEW(view), address);
    g_data_input_stream_read_line_async(
        G_DATA_INPUT_STREAM(lines), G_PRIORITY_DEFAULT, nullptr, loadNext, view);
}

} // namespace

int main() {
    gtk_init();
    GtkWidget* window = gtk_window_new();
    GtkWidget* view = webkit_web_view_new();
    gtk_window_set_default_size(GTK_WINDOW(window), 1200, 760);
    gtk_window_set_child(GTK_WINDOW(window), view);
    gtk_window_present(GTK_WINDOW(window));
    auto* lines = g_data_input_stream_new(g_unix_input_stream_new(0, FALSE));
    g_data_input_stream_read_line_async(lines, G_PRIORITY_DEFAULT, nullptr, loadNext, view);
    g_main_loop_run(g_main_loop_new(nullptr, FALSE));
}
