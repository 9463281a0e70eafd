#include "player/MediaPlayerAvailable.h"

#include <gst/gst.h>
#include <initializer_list>

namespace {

bool ElementsPresent()
{
    if (!gst_init_check(nullptr, nullptr, nullptr))
        return false;
    for (const char* name : {"playbin", "scaletempo", "audioconvert", "audiopanorama", "volume",
                             "wavparse", "mpegaudioparse", "autoaudiosink"}) {
        GstElementFactory* factory = gst_element_factory_find(name);
        if (!factory)
            return false;
        gst_object_unref(factory);
    }
    // Any decoder of MPEG audio will do.
    GstCaps* mp3 = gst_caps_from_string("audio/mpeg, mpegversion=(int)1, layer=(int)3");
    GList* all = gst_element_factory_list_get_elements(
        GST_ELEMENT_FACTORY_TYPE_DECODER | GST_ELEMENT_FACTORY_TYPE_MEDIA_AUDIO, GST_RANK_MARGINAL);
    GList* decoders = gst_element_factory_list_filter(all, mp3, GST_PAD_SINK, FALSE);
    const bool haveMp3 = decoders != nullptr;
    gst_plugin_feature_list_free(decoders);
    gst_plugin_feature_list_free(all);
    gst_caps_unref(mp3);
    return haveMp3;
}

} // namespace

bool MediaPlayerAvailable()
{
    static const bool available = ElementsPresent();
    return available;
}
