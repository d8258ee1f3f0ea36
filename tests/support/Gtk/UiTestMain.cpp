#include "Views/Shell/Resources.h"

#include <adwaita.h>
#include <gtest/gtest.h>
#include <gtkmm/init.h>

#include <cstring>

/// Starts the toolkit before the tests, but not when they are only listed: that needs no display.
int main(int argc, char** argv) {
    bool listing = false;
    for (int i = 1; i < argc; ++i)
        listing = listing || std::strcmp(argv[i], "--gtest_list_tests") == 0;
    testing::InitGoogleTest(&argc, argv);
    if (!listing) {
        Gtk::init_gtkmm_internals();
        adw_init();
        tessaro::registerResources();
    }
    return RUN_ALL_TESTS();
}
