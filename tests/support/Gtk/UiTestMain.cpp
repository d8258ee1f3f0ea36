#include "Views/Shell/Resources.h"

#include <adwaita.h>
#include <gtest/gtest.h>
#include <gtkmm/init.h>

/// Starts the toolkit before the tests, but not when they are only listed: that needs no display.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!testing::GTEST_FLAG(list_tests)) {
        Gtk::init_gtkmm_internals();
        adw_init();
        tessaro::registerResources();
    }
    return RUN_ALL_TESTS();
}
