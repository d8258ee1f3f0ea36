#include "Engine/WebKit/WebKitHandOver.h"

#include "Engine/WebKit/HandOverScript.h"

#include <webkit/webkit.h>

namespace tessaro {

namespace {

/// The name of the message's handler and of the world of the script.
constexpr const char* handler = "files";
constexpr const char* world = "tessaro";

using JSCValuePtr = GObjectPtr<JSCValue>;

void setText(JSCValue* object, const char* name, const std::string& text) {
    const auto value =
        JSCValuePtr::adopt(jsc_value_new_string(jsc_value_get_context(object), text.c_str()));
    jsc_value_object_set_property(object, name, value.get());
}

} // namespace

/// The answer that a script waits for.
class WebKitHandOver::Reply {
public:
    Reply(JSCContext* context, WebKitScriptMessageReply* reply)
        : context_(GObjectPtr<JSCContext>::share(context)),
          reply_(webkit_script_message_reply_ref(reply)) {}

    JSCContext* context() const { return context_.get(); }
    void answer(const JSCValuePtr& value) {
        webkit_script_message_reply_return_value(reply_.get(), value.get());
    }
    void fail() { webkit_script_message_reply_return_error_message(reply_.get(), "unreadable"); }

private:
    GObjectPtr<JSCContext> context_;
    std::unique_ptr<WebKitScriptMessageReply, Releaser<webkit_script_message_reply_unref>> reply_;
};

WebKitHandOver::WebKitHandOver(WebKitWebView* view) {
    WebKitUserContentManager* const manager = webkit_web_view_get_user_content_manager(view);
    messages_ =
        connectSignal<gboolean(WebKitUserContentManager*, JSCValue*, WebKitScriptMessageReply*)>(
            manager, "script-message-with-reply-received::files",
            [this](WebKitUserContentManager*, JSCValue* message, WebKitScriptMessageReply* reply)
                -> gboolean {
                onMessage(message, Reply(jsc_value_get_context(message), reply));
                return TRUE;
            });
    webkit_user_content_manager_register_script_message_handler_with_reply(manager, handler, world);
    const std::unique_ptr<WebKitUserScript, Releaser<webkit_user_script_unref>> script(
        webkit_user_script_new_for_world(
            handOverScript, WEBKIT_USER_CONTENT_INJECT_ALL_FRAMES,
            WEBKIT_USER_SCRIPT_INJECT_AT_DOCUMENT_START, world, nullptr, nullptr));
    webkit_user_content_manager_add_script(manager, script.get());
    watchDrops(GTK_WIDGET(view));
}

void WebKitHandOver::forget() {
    offered_.clear();
    dropped_.reset();
}

void WebKitHandOver::watchDrops(GtkWidget* widget) {
    GtkEventController* const events = gtk_event_controller_legacy_new();
    gtk_event_controller_set_propagation_phase(events, GTK_PHASE_CAPTURE);
    gtk_widget_add_controller(widget, events);
    drops_ = connectSignal<gboolean(GtkEventController*, GdkEvent*)>(
        events, "event", [this](GtkEventController*, GdkEvent* event) -> gboolean {
            if (gdk_event_get_event_type(event) == GDK_DROP_START) {
                GdkDrop* const drop = gdk_dnd_event_get_drop(event);
                dropped_.reset();
                if (!gdk_drop_get_drag(drop)) // What a page drags stays the page's.
                    dropped_ = filesOf(GObjectPtr<GdkDrop>::share(drop));
            }
            return FALSE;
        });
}

void WebKitHandOver::onMessage(JSCValue* message, Reply reply) {
    if (jsc_value_is_number(message))
        handOverPart(jsc_value_to_int32(message), std::move(reply)).detach();
    else if (takeString(jsc_value_to_string(message)) == "dropped")
        offerDropped(std::move(reply)).detach();
    else
        offerCopied(std::move(reply)).detach();
}

Task<void> WebKitHandOver::offerCopied(Reply reply) {
    const auto alive = lifetime_.watch();
    auto files = co_await filesOnClipboard();
    if (alive)
        offer(std::move(files), reply);
}

Task<void> WebKitHandOver::offerDropped(Reply reply) {
    const auto alive = lifetime_.watch();
    std::vector<OfferedFile> files;
    if (auto dropped = std::exchange(dropped_, std::nullopt))
        files = co_await std::move(*dropped);
    if (alive)
        offer(std::move(files), reply);
}

void WebKitHandOver::offer(std::vector<OfferedFile> files, Reply& reply) {
    const auto list = JSCValuePtr::adopt(jsc_value_new_array(reply.context(), G_TYPE_NONE));
    guint index = 0;
    for (auto& file : files) {
        const int id = ++lastId_;
        const auto told =
            JSCValuePtr::adopt(jsc_value_new_object(reply.context(), nullptr, nullptr));
        const auto number = JSCValuePtr::adopt(jsc_value_new_number(reply.context(), id));
        jsc_value_object_set_property(told.get(), "id", number.get());
        setText(told.get(), "name", file.name);
        setText(told.get(), "type", file.type);
        jsc_value_object_set_property_at_index(list.get(), index++, told.get());
        offered_.emplace(id, std::move(file));
    }
    reply.answer(list);
}

Task<void> WebKitHandOver::handOverPart(int id, Reply reply) {
    const auto alive = lifetime_.watch();
    // Out of the list while it is read, so that nobody reads it twice at once.
    auto entry = offered_.extract(id);
    if (entry && !entry.mapped().content)
        entry.mapped().content = co_await openFile(entry.mapped().file);
    GBytesPtr part;
    if (entry && entry.mapped().content)
        part = co_await readPart(entry.mapped().content);
    if (!part)
        co_return reply.fail();
    gsize size = 0;
    const auto* data = static_cast<const guchar*>(g_bytes_get_data(part.get(), &size));
    const GCharPtr text(g_base64_encode(data, size));
    reply.answer(JSCValuePtr::adopt(jsc_value_new_string(reply.context(), text.get())));
    if (size > 0 && alive)
        offered_.insert(std::move(entry));
}

} // namespace tessaro
