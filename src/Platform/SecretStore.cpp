#include "Platform/SecretStore.h"

#include "Platform/Cancellation.h"

#include <libsecret/secret.h>

#include <condition_variable>
#include <mutex>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

namespace tessaro {

namespace {

constexpr const char* domain = "SecretStore";

using SecretValuePtr =
    std::unique_ptr<SecretValue, Releaser<static_cast<void (*)(gpointer)>(secret_value_unref)>>;

/// Only the two attributes identify an entry, not the schema that it was stored with.
const SecretSchema schema = {
    "org.freedesktop.Secret.Generic",
    SECRET_SCHEMA_DONT_MATCH_NAME,
    {{"service", SECRET_SCHEMA_ATTRIBUTE_STRING}, {"account", SECRET_SCHEMA_ATTRIBUTE_STRING}},
};

GHashTablePtr attributesOf(const std::string& service, const std::string& account) {
    return GHashTablePtr(secret_attributes_build(
        &schema, "service", service.c_str(), "account", account.c_str(), nullptr));
}

constexpr const char* promptRefused = "The keyring is locked or asks for the user's consent";

/// A SecretService that fails wherever a prompt would be needed. libsecret's own service would wait
/// for the user, and a thread of this program with it.
GType promptlessServiceType() {
    static const GType type = g_type_register_static_simple(
        SECRET_TYPE_SERVICE, "TessaroPromptlessSecretService", sizeof(SecretServiceClass),
        [](gpointer instanceClass, gpointer) {
            auto* service = static_cast<SecretServiceClass*>(instanceClass);
            service->prompt_sync = [](SecretService*, SecretPrompt*, GCancellable*,
                                      const GVariantType*, GError** error) -> GVariant* {
                g_set_error_literal(error, SECRET_ERROR, SECRET_ERROR_IS_LOCKED, promptRefused);
                return nullptr;
            };
            service->prompt_async = [](SecretService* self, SecretPrompt*, const GVariantType*,
                                       GCancellable*, GAsyncReadyCallback ready, gpointer data) {
                g_task_report_new_error(
                    self, ready, data, nullptr, SECRET_ERROR, SECRET_ERROR_IS_LOCKED, "%s",
                    promptRefused);
            };
            service->prompt_finish = [](SecretService*, GAsyncResult* result, GError** error) {
                return static_cast<GVariant*>(g_task_propagate_pointer(G_TASK(result), error));
            };
        },
        sizeof(SecretService), nullptr, static_cast<GTypeFlags>(0));
    return type;
}

/// Cancels the calls made with its cancellable once `limit` has passed.
class Deadline {
public:
    explicit Deadline(std::chrono::milliseconds limit)
        : watcher_([this, limit](std::stop_token ended) {
              std::mutex mutex;
              std::unique_lock lock(mutex);
              std::condition_variable_any().wait_for(
                  lock, ended, limit, [&] { return ended.stop_requested(); });
              if (!ended.stop_requested())
                  cancellation_.cancel();
          }) {}

    GCancellable* cancellable() const { return cancellation_.get(); }
    bool hasPassed() const { return cancellation_.isCancelled(); }

private:
    const Cancellation cancellation_;
    const std::jthread watcher_; ///< Stopped and joined before anything else goes.
};

tl::unexpected<Error> failed(const GErrorSlot& error) {
    return failure(domain, error->code, error.message());
}

/// Opens the service anew for each call, so that the service may restart between two calls.
template <typename Call>
auto run(std::chrono::milliseconds limit, Call call) {
    const Deadline deadline(limit);
    GErrorSlot error;
    const auto service = GObjectPtr<SecretService>::adopt(secret_service_open_sync(
        promptlessServiceType(), nullptr, SECRET_SERVICE_NONE, deadline.cancellable(),
        error.out()));
    using Outcome = std::invoke_result_t<Call, SecretService*, GCancellable*>;
    Outcome result = service ? call(service.get(), deadline.cancellable()) : Outcome(failed(error));
    if (!result && deadline.hasPassed())
        result = failure(domain, G_IO_ERROR_TIMED_OUT, "The secret service does not answer");
    return result;
}

} // namespace

SecretStore::SecretStore(std::chrono::milliseconds deadline) : deadline_(deadline) {}

Result<void> SecretStore::store(
    const std::string& service, const std::string& account, const SecretText& value) {
    return run(deadline_, [&](SecretService* secrets, GCancellable* cancellable) -> Result<void> {
        const auto& bytes = value.reveal();
        const SecretValuePtr secret(
            secret_value_new(bytes.data(), static_cast<gssize>(bytes.size()), "text/plain"));
        GErrorSlot error;
        if (!secret_service_store_sync(
                secrets, &schema, attributesOf(service, account).get(), SECRET_COLLECTION_DEFAULT,
                (service + ": " + account).c_str(), secret.get(), cancellable, error.out()))
            return failed(error);
        return {};
    });
}

Result<std::optional<SecretText>>
SecretStore::lookup(const std::string& service, const std::string& account) {
    using Found = std::optional<SecretText>;
    return run(deadline_, [&](SecretService* secrets, GCancellable* cancellable) -> Result<Found> {
        GErrorSlot error;
        const SecretValuePtr secret(secret_service_lookup_sync(
            secrets, &schema, attributesOf(service, account).get(), cancellable, error.out()));
        if (error)
            return failed(error);
        if (!secret)
            return Found();
        gsize length = 0;
        const char* bytes = secret_value_get(secret.get(), &length);
        return SecretText(std::string(bytes, length));
    });
}

Result<bool> SecretStore::clear(const std::string& service, const std::string& account) {
    return run(deadline_, [&](SecretService* secrets, GCancellable* cancellable) -> Result<bool> {
        GErrorSlot error;
        GList* const list = secret_service_search_sync(
            secrets, &schema, attributesOf(service, account).get(), SECRET_SEARCH_ALL, cancellable,
            error.out());
        if (error)
            return failed(error);
        std::vector<GObjectPtr<SecretItem>> items;
        for (const GList* node = list; node; node = node->next)
            items.push_back(GObjectPtr<SecretItem>::adopt(static_cast<SecretItem*>(node->data)));
        g_list_free(list);

        bool locked = false;
        for (const auto& item : items) {
            if (secret_item_get_locked(item.get()))
                locked = true;
            else if (!secret_item_delete_sync(item.get(), cancellable, error.out()))
                return failed(error);
        }
        if (locked)
            return failure(domain, SECRET_ERROR_IS_LOCKED, "The entry is locked");
        return !items.empty();
    });
}

} // namespace tessaro
