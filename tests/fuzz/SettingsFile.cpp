#include "FuzzTarget.h"

#include "Platform/FileStore.h"
#include "Platform/SettingsStore.h"
#include "support/TempFolder.h"

#include <fstream>

using namespace tessaro;

/// Whatever the file contains, its values can be read, and a change survives a new start.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const test::TempFolder folder;
    const auto file = folder / "config" / "settings.ini";
    // With the copies that were set aside.
    std::filesystem::remove_all(file.parent_path());
    ensureFolder(file.parent_path());
    std::ofstream(file) << test::asText(data, size);
    SettingsStore settings(file);
    for (const char* key : {"theme_appearance_mode", "theme_active_preset_id", "skarn_server_url"})
        settings.text(key);
    settings.setText("SkarnDeviceUUID", "changed");
    test::require(SettingsStore(file).text("SkarnDeviceUUID") == "changed");
    return 0;
}
