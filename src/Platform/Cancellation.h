#pragma once

#include "Platform/GHandle.h"

namespace tessaro {

/// A request to stop, shared by its sender and the calls that it stops. All copies are the same
/// request.
class Cancellation {
public:
    Cancellation() : cancellable_(GObjectPtr<GCancellable>::adopt(g_cancellable_new())) {}

    /// Any thread. Running calls end soon afterwards with an error.
    void cancel() const { g_cancellable_cancel(cancellable_.get()); }
    bool isCancelled() const { return g_cancellable_is_cancelled(cancellable_.get()); }
    GCancellable* get() const { return cancellable_.get(); }

private:
    GObjectPtr<GCancellable> cancellable_;
};

} // namespace tessaro
