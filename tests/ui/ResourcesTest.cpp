#include <gtest/gtest.h>
#include <gtk/gtk.h>

TEST(Resources, TheStyleSheetIsCompiledIn) {
    gsize size = 0;
    EXPECT_TRUE(g_resources_get_info(
        "/com/vandel/Tessaro/style.css", G_RESOURCE_LOOKUP_FLAGS_NONE, &size, nullptr, nullptr));
}
