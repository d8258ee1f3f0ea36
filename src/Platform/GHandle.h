#pragma once

#include <gio/gio.h>

#include <memory>
#include <string>
#include <utility>

/// Owners for the handles of the C libraries. No other header calls their release functions.
namespace tessaro {

/// Calls one C release function; the type that makes std::unique_ptr own a C handle.
template <auto Release>
struct Releaser {
    template <typename T>
    void operator()(T* handle) const noexcept {
        Release(handle);
    }
};

using GCharPtr = std::unique_ptr<char, Releaser<g_free>>;
using GBytesPtr = std::unique_ptr<GBytes, Releaser<g_bytes_unref>>;
using GVariantPtr = std::unique_ptr<GVariant, Releaser<g_variant_unref>>;
using GUriPtr = std::unique_ptr<GUri, Releaser<g_uri_unref>>;
using GKeyFilePtr = std::unique_ptr<GKeyFile, Releaser<g_key_file_unref>>;
using GHashTablePtr = std::unique_ptr<GHashTable, Releaser<g_hash_table_unref>>;
using GMainLoopPtr = std::unique_ptr<GMainLoop, Releaser<g_main_loop_unref>>;
using GSourcePtr = std::unique_ptr<GSource, Releaser<g_source_unref>>;

/// One strong reference to a GObject. Copies take a reference of their own.
template <typename T>
class GObjectPtr {
public:
    GObjectPtr() = default;
    GObjectPtr(std::nullptr_t) {}
    GObjectPtr(const GObjectPtr& other) : object_(other.object_) {
        if (object_)
            g_object_ref(object_);
    }
    GObjectPtr(GObjectPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    GObjectPtr& operator=(GObjectPtr other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~GObjectPtr() {
        if (object_)
            g_object_unref(object_);
    }

    /// Takes over a reference that the caller owns ("transfer full").
    static GObjectPtr adopt(T* object) {
        GObjectPtr result;
        result.object_ = object;
        return result;
    }
    /// Adds a reference to an object that somebody else owns ("transfer none"); sinks a floating
    /// one.
    static GObjectPtr share(T* object) {
        return adopt(object ? static_cast<T*>(g_object_ref_sink(object)) : nullptr);
    }

    T* get() const { return object_; }
    T* operator->() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

private:
    T* object_ = nullptr;
};

/// Receives a C function's GError** argument: `call(..., error.out())`.
class GErrorSlot {
public:
    /// The address to hand to a C call; frees what an earlier call left.
    GError** out() {
        g_clear_error(&error_);
        return &error_;
    }
    ~GErrorSlot() { g_clear_error(&error_); }
    GErrorSlot() = default;
    GErrorSlot(const GErrorSlot&) = delete;
    GErrorSlot& operator=(const GErrorSlot&) = delete;

    explicit operator bool() const { return error_ != nullptr; }
    GError* get() const { return error_; }
    const GError* operator->() const { return error_; }
    bool matches(GQuark domain, int code) const { return g_error_matches(error_, domain, code); }
    std::string message() const { return error_ ? error_->message : ""; }

private:
    GError* error_ = nullptr;
};

/// The text of an owned C string; empty for null.
inline std::string takeString(char* text) {
    const GCharPtr owner(text);
    return text ? std::string(text) : std::string();
}

} // namespace tessaro
