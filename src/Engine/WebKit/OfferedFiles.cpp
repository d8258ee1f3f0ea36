#include "Engine/WebKit/OfferedFiles.h"

#include <gdk/gdk.h>

namespace tessaro {

namespace {

/// A part goes to the page as one text, so it is short enough for the window not to falter.
constexpr gsize partSize = 512 * 1024;

using Files = std::vector<GObjectPtr<GFile>>;

Files filesIn(const GValue* value) {
    Files files;
    if (!value)
        return files;
    // The container is ours, its files are the value's.
    GSList* const list =
        gdk_file_list_get_files(static_cast<GdkFileList*>(g_value_get_boxed(value)));
    for (GSList* each = list; each; each = each->next)
        files.push_back(GObjectPtr<GFile>::share(static_cast<GFile*>(each->data)));
    g_slist_free(list);
    return files;
}

Task<std::vector<OfferedFile>> describe(Files files) {
    std::vector<OfferedFile> offered;
    for (const auto& file : files) {
        const auto info = co_await AsyncCall(
            [&](GAsyncReadyCallback ready, gpointer data) {
                g_file_query_info_async(
                    file.get(),
                    G_FILE_ATTRIBUTE_STANDARD_TYPE "," G_FILE_ATTRIBUTE_STANDARD_DISPLAY_NAME
                                                   "," G_FILE_ATTRIBUTE_STANDARD_CONTENT_TYPE,
                    G_FILE_QUERY_INFO_NONE, G_PRIORITY_DEFAULT, nullptr, ready, data);
            },
            [&](GObject*, GAsyncResult* result) {
                return GObjectPtr<GFileInfo>::adopt(
                    g_file_query_info_finish(file.get(), result, nullptr));
            });
        if (!info || g_file_info_get_file_type(info.get()) != G_FILE_TYPE_REGULAR)
            continue;
        const char* content = g_file_info_get_content_type(info.get());
        OfferedFile one;
        one.name = g_file_info_get_display_name(info.get());
        one.type = takeString(content ? g_content_type_get_mime_type(content) : nullptr);
        one.file = file;
        offered.push_back(std::move(one));
    }
    co_return offered;
}

Task<Files> copiedFiles(GdkClipboard* clipboard) {
    // The engine copies for pages too, and what a page names must not be read for it.
    if (gdk_clipboard_is_local(clipboard))
        co_return Files();
    co_return co_await AsyncCall(
        [&](GAsyncReadyCallback ready, gpointer data) {
            gdk_clipboard_read_value_async(
                clipboard, GDK_TYPE_FILE_LIST, G_PRIORITY_DEFAULT, nullptr, ready, data);
        },
        [&](GObject*, GAsyncResult* result) {
            return filesIn(gdk_clipboard_read_value_finish(clipboard, result, nullptr));
        });
}

Task<std::vector<OfferedFile>> copiedPicture(GdkClipboard* clipboard) {
    const char* types[] = {"image/png", "image/jpeg", "image/webp", nullptr};
    OfferedFile picture;
    picture.content = co_await AsyncCall(
        [&](GAsyncReadyCallback ready, gpointer data) {
            gdk_clipboard_read_async(clipboard, types, G_PRIORITY_DEFAULT, nullptr, ready, data);
        },
        [&](GObject*, GAsyncResult* result) {
            const char* type = nullptr;
            auto content = GObjectPtr<GInputStream>::adopt(
                gdk_clipboard_read_finish(clipboard, result, &type, nullptr));
            picture.type = type ? type : "";
            return content;
        });
    std::vector<OfferedFile> offered;
    if (picture.content) {
        picture.name = "image." + picture.type.substr(picture.type.find('/') + 1);
        offered.push_back(std::move(picture));
    }
    co_return offered;
}

} // namespace

Task<std::vector<OfferedFile>> filesOnClipboard() {
    GdkClipboard* const clipboard = gdk_display_get_clipboard(gdk_display_get_default());
    auto files = co_await describe(co_await copiedFiles(clipboard));
    if (files.empty())
        files = co_await copiedPicture(clipboard);
    co_return files;
}

Task<std::vector<OfferedFile>> filesOf(GObjectPtr<GdkDrop> drop) {
    auto files = co_await AsyncCall(
        [&](GAsyncReadyCallback ready, gpointer data) {
            gdk_drop_read_value_async(
                drop.get(), GDK_TYPE_FILE_LIST, G_PRIORITY_DEFAULT, nullptr, ready, data);
        },
        [&](GObject*, GAsyncResult* result) {
            return filesIn(gdk_drop_read_value_finish(drop.get(), result, nullptr));
        });
    co_return co_await describe(std::move(files));
}

Task<GObjectPtr<GInputStream>> openFile(GObjectPtr<GFile> file) {
    co_return co_await AsyncCall(
        [&](GAsyncReadyCallback ready, gpointer data) {
            g_file_read_async(file.get(), G_PRIORITY_DEFAULT, nullptr, ready, data);
        },
        [&](GObject*, GAsyncResult* result) {
            GFileInputStream* const stream = g_file_read_finish(file.get(), result, nullptr);
            return GObjectPtr<GInputStream>::adopt(reinterpret_cast<GInputStream*>(stream));
        });
}

Task<GBytesPtr> readPart(GObjectPtr<GInputStream> content) {
    co_return co_await AsyncCall(
        [&](GAsyncReadyCallback ready, gpointer data) {
            g_input_stream_read_bytes_async(
                content.get(), partSize, G_PRIORITY_DEFAULT, nullptr, ready, data);
        },
        [&](GObject*, GAsyncResult* result) {
            return GBytesPtr(g_input_stream_read_bytes_finish(content.get(), result, nullptr));
        });
}

} // namespace tessaro
