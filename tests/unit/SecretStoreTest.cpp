#include "Platform/SecretStore.h"

#include "support/GnomeKeyring.h"
#include "support/MainLoop.h"
#include "support/MockBusService.h"

#include <gtest/gtest.h>
#include <libsecret/secret.h>

#include <algorithm>

using namespace tessaro;
using namespace std::chrono_literals;
using test::MockBusService;

namespace {

constexpr const char* secretService = "org.freedesktop.secrets";

/// The codes with which storing, looking up and clearing one entry fail; 0 for a call that worked.
std::vector<int> failuresOf(SecretStore& store) {
    const auto stored = store.store("service", "account", SecretText("value"));
    const auto found = store.lookup("service", "account");
    const auto cleared = store.clear("service", "account");
    return {
        stored ? 0 : stored.error().code, found ? 0 : found.error().code,
        cleared ? 0 : cleared.error().code};
}

std::chrono::steady_clock::duration timeOf(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::steady_clock::now() - start;
}

/// Answers like a service with one unlocked entry that asks for the user's consent to every change.
MockBusService::Reply askForConsent(const std::string& method, GDBusMessage* call) {
    GVariant* body = g_dbus_message_get_body(call);
    if (method == "org.freedesktop.DBus.Properties.GetAll")
        return MockBusService::answer(
            call, g_variant_new_parsed("({'Locked': <false>, 'Attributes': <@a{ss} {}>},)"));
    if (method.ends_with("SearchItems"))
        return MockBusService::answer(
            call, g_variant_new_parsed("([objectpath '/org/freedesktop/secrets/entry'], @ao [])"));
    if (method.ends_with("OpenSession")) {
        const char* algorithm = nullptr;
        g_variant_get(body, "(&sv)", &algorithm, nullptr);
        if (algorithm != std::string("plain"))
            return MockBusService::refuse(
                call, "org.freedesktop.DBus.Error.NotSupported", "only plain");
        return MockBusService::answer(
            call, g_variant_new_parsed("(<''>, objectpath '/org/freedesktop/secrets/session')"));
    }
    if (method.ends_with("Unlock")) {
        const GVariantPtr objects(g_variant_get_child_value(body, 0));
        return MockBusService::answer(call, g_variant_new("(@aoo)", objects.get(), "/"));
    }
    if (method.ends_with("CreateItem"))
        return MockBusService::answer(
            call,
            g_variant_new_parsed("(objectpath '/', objectpath '/org/freedesktop/secrets/prompt')"));
    if (method.ends_with("Delete"))
        return MockBusService::answer(
            call, g_variant_new_parsed("(objectpath '/org/freedesktop/secrets/prompt',)"));
    return {};
}

} // namespace

TEST(SecretStore, KeepsReplacesFindsAndDeletesEntriesInTheUsersKeyring) {
    const test::PrivateSessionBus bus;
    const test::GnomeKeyring keyring(bus);
    SecretStore store;
    const SecretText value(std::string("mật\0khẩu\xFF", 11));

    EXPECT_TRUE(store.store("service", "account", SecretText("old")));
    EXPECT_TRUE(store.store("service", "other", SecretText("other")));
    EXPECT_TRUE(store.store("service", "account", value));
    EXPECT_EQ(keyring.count("service", "account"), 1U);
    EXPECT_EQ(store.lookup("service", "account").value(), value);

    EXPECT_TRUE(store.clear("service", "account").value());
    EXPECT_FALSE(store.clear("service", "account").value());
    EXPECT_EQ(store.lookup("service", "account").value(), std::nullopt);
    EXPECT_EQ(store.lookup("service", "other").value(), SecretText("other"));
    EXPECT_EQ(store.lookup("another service", "other").value(), std::nullopt);
}

TEST(SecretStore, FailsAtALockedKeyringAndLeavesItsEntries) {
    const test::PrivateSessionBus bus;
    test::GnomeKeyring keyring(bus);
    SecretStore store(20s);
    ASSERT_TRUE(store.store("service", "account", SecretText("value")));
    keyring.lock();
    EXPECT_EQ(failuresOf(store), std::vector<int>(3, SECRET_ERROR_IS_LOCKED));
    EXPECT_EQ(keyring.count("service", "account"), 1U);
    EXPECT_FALSE(store.clear("service", "missing").value());
}

TEST(SecretStore, FailsWithoutASecretServiceAndWithoutABus) {
    SecretStore store(20s);
    {
        const test::PrivateSessionBus bus;
        EXPECT_EQ(failuresOf(store), std::vector<int>(3, G_DBUS_ERROR_SERVICE_UNKNOWN));
    }
    test::ScopedEnvironment environment;
    environment.set("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    EXPECT_EQ(failuresOf(store), std::vector<int>(3, G_IO_ERROR_NOT_FOUND));
}

TEST(SecretStore, FailsWhereTheServiceWantsToPromptAndNeverShowsThePrompt) {
    const test::PrivateSessionBus bus;
    const MockBusService service(bus, secretService, askForConsent);
    SecretStore store(20s);
    EXPECT_EQ(
        store.store("service", "account", SecretText("value")).error().code,
        SECRET_ERROR_IS_LOCKED);
    EXPECT_EQ(store.clear("service", "account").error().code, SECRET_ERROR_IS_LOCKED);
    for (const auto& method : service.calls())
        EXPECT_FALSE(method.starts_with("org.freedesktop.Secret.Prompt")) << method;
}

TEST(SecretStore, GivesUpAServiceThatNeverAnswersAndLeavesItInPeaceForAWhile) {
    const test::PrivateSessionBus bus;
    const MockBusService service(
        bus, secretService, [](const std::string&, GDBusMessage*) { return nullptr; });
    SecretStore store(500ms, 1h);
    EXPECT_EQ(failuresOf(store), std::vector<int>(3, G_IO_ERROR_TIMED_OUT));
    ASSERT_TRUE(test::runUntil([&] { return !service.calls().empty(); }));
    const auto calls = service.calls().size();
    EXPECT_LT(
        timeOf([&] {
            for (int i = 0; i < 50; ++i)
                failuresOf(store);
        }),
        200ms);
    EXPECT_EQ(service.calls().size(), calls);

    SecretStore impatient(200ms, 0ms);
    failuresOf(impatient);
    EXPECT_TRUE(test::runUntil([&] { return service.calls().size() > calls; }));
}
