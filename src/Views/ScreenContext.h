#pragma once

#include "Engine/EngineLoader.h"

#include "Platform/Clock.h"
#include "Platform/Desktop.h"
#include "Platform/NotificationCenter.h"
#include "Services/AppLogger.h"
#include "Services/DataStore.h"
#include "Services/DeviceIdentity.h"
#include "Services/Endpoints.h"
#include "Services/MetaGraphClient.h"
#include "Views/Modals.h"
#include "Views/Pictures/ImageLoader.h"
#include "Views/Theme/ThemeManager.h"
#include "Views/Widgets/InboxCommands.h"

namespace tessaro {

/// The services that the screens use. The application makes it once and passes it down by
/// reference; it outlives every screen.
struct ScreenContext {
    ThemeManager& theme;
    NotificationCenter& notifications;
    InboxSignals& inbox;
    SettingsStore& settings;
    Clock& clock;
    AppLogger& logger;
    Desktop& desktop;
    EngineLoader& engine;
    Modals& modals;
    DataStore& store;
    const DeviceIdentity& device;
    ImageLoader& images;
    const Endpoints& endpoints;
    GraphClientFactory makeGraphClient;
};

} // namespace tessaro
