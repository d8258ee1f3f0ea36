#include "Engine/WebKit/WebKitMedia.h"

#include "Platform/GHandle.h"

#include <gst/gst.h>

#include <memory>

namespace tessaro {

namespace {

using CapsPtr = std::unique_ptr<GstCaps, Releaser<gst_caps_unref>>;
using FeatureListPtr = std::unique_ptr<GList, Releaser<gst_plugin_feature_list_free>>;

struct Codec {
    const char* name;
    const char* type; ///< As GStreamer calls it.
};

constexpr Codec codecs[] = {
    {"H.264", "video/x-h264"},
    {"H.265", "video/x-h265"},
    {"VP8", "video/x-vp8"},
    {"VP9", "video/x-vp9"},
    {"AV1", "video/x-av1"},
    {"AAC", "audio/mpeg, mpegversion=(int)4"},
    {"MP3", "audio/mpeg, mpegversion=(int)1, layer=(int)3"},
    {"Opus", "audio/x-opus"},
    {"Vorbis", "audio/x-vorbis"},
};

} // namespace

std::string decodableMedia() {
    if (!gst_init_check(nullptr, nullptr, nullptr))
        return {};
    const FeatureListPtr decoders(
        gst_element_factory_list_get_elements(GST_ELEMENT_FACTORY_TYPE_DECODER, GST_RANK_MARGINAL));
    std::string names;
    for (const auto& [name, type] : codecs) {
        const CapsPtr caps(gst_caps_from_string(type));
        const FeatureListPtr fitting(
            gst_element_factory_list_filter(decoders.get(), caps.get(), GST_PAD_SINK, FALSE));
        if (fitting)
            names += (names.empty() ? "" : ", ") + std::string(name);
    }
    return names;
}

} // namespace tessaro
