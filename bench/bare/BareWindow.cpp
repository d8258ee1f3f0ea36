// The least that a start can cost: a window of the toolkit with nothing but a header bar.

#include <adwaita.h>

namespace {

void present(GtkApplication* application) {
    GtkWidget* window = adw_application_window_new(application);
    gtk_window_set_default_size(GTK_WINDOW(window), 1200, 760);
    adw_application_window_set_content(ADW_APPLICATION_WINDOW(window), adw_header_bar_new());
    gtk_window_present(GTK_WINDOW(window));
}

} // namespace

int main(int argc, char** argv) {
    auto* application =
        adw_application_new("com.vandel.Tessaro.BareWindow", G_APPLICATION_DEFAULT_FLAGS);
    g_signal_connect(application, "activate", G_CALLBACK(present), nullptr);
    return g_application_run(G_APPLICATION(application), argc, argv);
}
