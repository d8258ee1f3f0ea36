#include "Platform/Paths.h"

#include "support/ScopedEnvironment.h"

#include <gtest/gtest.h>

using namespace tessaro;

TEST(Paths, FollowTheEnvironmentUnlessItIsEmptyOrRelative) {
    test::ScopedEnvironment environment;
    environment.set("HOME", "/home/somebody");
    environment.set("XDG_DATA_HOME", "/data/");
    environment.set("XDG_CACHE_HOME", "relative");
    environment.set("XDG_CONFIG_HOME", "");
    EXPECT_EQ(paths::dataFolder(), "/data/Tessaro");
    EXPECT_EQ(paths::webDataFolder(), "/data/Tessaro/web");
    EXPECT_TRUE(paths::webCacheFolder().string().ends_with("/.cache/Tessaro/web"));
    EXPECT_TRUE(paths::settingsFile().string().ends_with("/.config/Tessaro/settings.ini"));
    environment.set("XDG_CONFIG_HOME", "/config");
    EXPECT_EQ(paths::settingsFile(), "/config/Tessaro/settings.ini");
}
